// The beginning of the seeded run on the emulated device: the checksum that every other machine
// gives.
#include "determinism/SeededRun.h"

#include <gtest/gtest.h>

#include "device/DeviceLibrary.h"

namespace barhatch::device {
namespace {

TEST(SeededRunOfTheDevice, GivesThePinnedChecksum) {
  DeviceLibrary library;
  const auto result = determinism::RunSeeded(library, determinism::kShortRun.steps);
  EXPECT_EQ(result.checksum, determinism::kShortRun.checksum);
}

}  // namespace
}  // namespace barhatch::device
