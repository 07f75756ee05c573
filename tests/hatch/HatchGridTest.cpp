#include "hatch/HatchGrid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace barhatch {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

TEST(Snap, RoundsToTheGridByTruncationTowardZeroAfterAddingHalf) {
  EXPECT_EQ(Snap(0.26, 0.1), 3 * 0.1);
  EXPECT_EQ(Snap(0.24, 0.1), 2 * 0.1);
  EXPECT_EQ(Snap(-0.26, 0.1), -2 * 0.1);
}

TEST(Snap, NeverGivesNegativeZero) {
  EXPECT_FALSE(std::signbit(Snap(-0.0, 0.1)));
  EXPECT_FALSE(std::signbit(Snap(-0.1, 0.1)));
  EXPECT_EQ(Snap(-0.1, 0.1), 0.0);
}

TEST(Snap, IsNoNumberWhereTheGridLeavesThirtyTwoBits) {
  EXPECT_EQ(Snap(2147483647.0, 1.0), 2147483647.0);
  EXPECT_TRUE(std::isnan(Snap(2147483647.5, 1.0)));
  EXPECT_EQ(Snap(-2147483649.0, 1.0), -2147483648.0);
  EXPECT_TRUE(std::isnan(Snap(-2147483650.0, 1.0)));
  EXPECT_TRUE(std::isnan(Snap(kNoNumber, 1.0)));
  EXPECT_TRUE(std::isnan(Snap(kInfinity, 1.0)));
  EXPECT_TRUE(std::isnan(Snap(1.0, 1e-300)));
}

TEST(TruncateToInt32, CoversExactlyTheThirtyTwoBits) {
  std::int32_t whole = 77;
  EXPECT_TRUE(TruncateToInt32(2147483647.9, whole));
  EXPECT_EQ(whole, 2147483647);
  EXPECT_TRUE(TruncateToInt32(-2147483648.9, whole));
  EXPECT_EQ(whole, std::numeric_limits<std::int32_t>::min());
  whole = 77;
  EXPECT_FALSE(TruncateToInt32(2147483648.0, whole));
  EXPECT_FALSE(TruncateToInt32(-2147483649.0, whole));
  EXPECT_FALSE(TruncateToInt32(kNoNumber, whole));
  EXPECT_FALSE(TruncateToInt32(-kInfinity, whole));
  EXPECT_EQ(whole, 77);
}

TEST(AddCounts, StopsAtTheLargestBufferLength) {
  EXPECT_EQ(AddCounts(2147483640, 7), 2147483647);
  EXPECT_EQ(AddCounts(2147483640, 8), kUncountable);
  EXPECT_EQ(AddCounts(kUncountable, 0), kUncountable);
  EXPECT_EQ(AddCounts(0, kUncountable), kUncountable);
  EXPECT_EQ(AddCounts(kUncountable, 5), kUncountable);
  EXPECT_EQ(AddCounts(5, kUncountable), kUncountable);
}

DoubleCount CountByWalking(double start, double end, double gap) {
  DoubleCount strokes = 0;
  for (double position = start; position < end; position += gap) ++strokes;
  return strokes;
}

TEST(MostStrokes, IsNeverTooFewAndAtMostOneTooMany) {
  std::mt19937_64 random(39);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  for (int i = 0; i < 20000; ++i) {
    const double gap = std::exp2(-10.0 * unit(random));
    const double start = Snap((unit(random) - 0.3) * 20.0, gap);
    const double end = start + (unit(random) - 0.1) * 3.0;
    const DoubleCount walked = CountByWalking(start, end, gap);
    const DoubleCount most = MostStrokes(start, end, gap);
    ASSERT_GE(most, walked) << start << ' ' << end << ' ' << gap;
    ASSERT_LE(most, walked + 1) << start << ' ' << end << ' ' << gap;
  }
}

TEST(MostStrokes, CoversTheShortfallOfMillionsOfRoundedAdditions) {
  // 0.1 is a little more than a tenth, 0.7 a little less than seven tenths: the sums drift both
  // ways.
  for (double gap : {0.1, 0.7, 0.3, 1.1}) {
    const double end = gap * 20000000;
    const DoubleCount walked = CountByWalking(0.0, end, gap);
    EXPECT_GE(MostStrokes(0.0, end, gap), walked);
    EXPECT_LE(MostStrokes(0.0, end, gap), walked + 64);
  }
}

TEST(MostStrokes, CannotCountWhatLeavesThirtyTwoBits) {
  EXPECT_EQ(MostStrokes(0.0, 1.0, 1e-10), kUncountable);
  EXPECT_EQ(MostStrokes(0.0, 1.0, 5e-324), kUncountable);
  EXPECT_EQ(MostStrokes(0.0, kInfinity, 1.0), kUncountable);
  EXPECT_EQ(MostStrokes(kNoNumber, 1.0, 1.0), kUncountable);
  EXPECT_EQ(MostStrokes(1e300, 1.1e300, 1.0), kUncountable);
  EXPECT_EQ(MostStrokes(-1.7e308, 1.7e308, 1e300), kUncountable);
}

TEST(MostStrokes, CountsUpToThirtyTwoBitsOfGaps) {
  EXPECT_GE(MostStrokes(0.0, 4294967295.0, 1.0), 4294967295);
  EXPECT_EQ(MostStrokes(0.0, 4294967296.0, 1.0), kUncountable);
  EXPECT_GE(MostStrokes(4294967294.0, 4294967295.0, 1.0), 1);
  EXPECT_EQ(MostStrokes(4294967295.0, 4294967296.0, 1.0), kUncountable);
  EXPECT_EQ(MostStrokes(-4294967296.0, -4294967295.0, 1.0), kUncountable);
  // The distance across and the distance from the origin have the same limit, each on its own.
  EXPECT_EQ(MostStrokes(-2147483648.0, 2147483648.0, 1.0), kUncountable);
  EXPECT_GE(MostStrokes(-2147483648.0, 2147483647.0, 1.0), 4294967295);
  EXPECT_EQ(MostStrokes(4.3e6, 4.3e6 + 1.0, 0.001), kUncountable);
  EXPECT_GE(MostStrokes(4.2e6, 4.2e6 + 1.0, 0.001), 1000);
  EXPECT_EQ(MostStrokes(-0.9, -0.9 + 1e-6, 1e-10), kUncountable);
}

TEST(MostStrokes, NothingLiesInAnEmptyRange) {
  EXPECT_EQ(MostStrokes(1.0, 1.0, 0.1), 0);
  EXPECT_EQ(MostStrokes(1.0, 0.5, 0.1), 0);
  EXPECT_EQ(MostStrokes(0.0, kNoNumber, 0.1), 0);
}

}  // namespace
}  // namespace barhatch
