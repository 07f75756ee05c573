// The checksums of the seeded run, here and, by scripts/determinism, on other machines.
#include "determinism/SeededRun.h"

#include <gtest/gtest.h>

#include "device/NativeLibrary.h"

namespace barhatch::determinism {
namespace {

TEST(SeededRun, GivesThePinnedChecksum) {
  for (const PinnedRun& pinned : {kShortRun, kLongRun}) {
    device::NativeLibrary library;
    const RunResult result = RunSeeded(library, pinned.steps);
    EXPECT_EQ(result.checksum, pinned.checksum) << pinned.steps << " steps";
    EXPECT_GT(result.barcodes, pinned.steps * 2 / 3) << "the run is worth something";
  }
}

// One bit of one result has to show.
class OneBitOff : public device::NativeLibrary {
 public:
  MaybeFill GenerateVectorizedBarcode() override {
    MaybeFill fill = NativeLibrary::GenerateVectorizedBarcode();
    if (fill && ++fills_ == 20) fill->FilledArray.back() ^= 1;
    return fill;
  }

 private:
  int fills_ = 0;
};

TEST(SeededRun, HasAnotherChecksumWhenOneBitDiffers) {
  OneBitOff library;
  EXPECT_NE(RunSeeded(library, kShortRun.steps).checksum, kShortRun.checksum);
}

}  // namespace
}  // namespace barhatch::determinism
