// The function that the platform's loader calls with a reason code when a process or thread
// attaches (1, 2) or detaches (0, 3). The library has nothing to prepare and nothing to release:
// it reports success.
#include <cstdint>

extern "C" std::int32_t DllMain(void* /*instance*/, std::uint32_t /*reason*/, void* /*reserved*/) {
  return 1;
}
