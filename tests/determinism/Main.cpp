// Prints the checksum of the seeded run; the exit code is 0 when both runs have their pinned
// checksums.
#include <cinttypes>
#include <cstdio>

#include "determinism/SeededRun.h"
#include "device/NativeLibrary.h"

namespace {

using barhatch::determinism::PinnedRun;

bool HasPinnedChecksum(const PinnedRun& pinned) {
  barhatch::device::NativeLibrary library;
  const auto result = barhatch::determinism::RunSeeded(library, pinned.steps);
  std::printf("%d steps, %d barcodes: 0x%016" PRIx64 "\n", result.steps, result.barcodes,
              result.checksum);
  return result.checksum == pinned.checksum;
}

}  // namespace

int main() {
  const bool isShortRunTheSame = HasPinnedChecksum(barhatch::determinism::kShortRun);
  const bool isLongRunTheSame = HasPinnedChecksum(barhatch::determinism::kLongRun);
  return isShortRunTheSame && isLongRunTheSame ? 0 : 1;
}
