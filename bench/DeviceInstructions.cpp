// Prints the instruction counts of the DLL in the form of instruction-budgets.txt.
#include <cstdio>
#include <exception>

#include "device/InstructionCounts.h"

int main() {
  try {
    barhatch::device::DeviceLibrary device;
    for (const auto& count : barhatch::device::CountInstructions(device)) {
      std::printf("%-28s %10.1f\n", count.name.c_str(), count.instructions);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
