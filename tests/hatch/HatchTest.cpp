#include "hatch/Hatch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Fills.h"
#include "support/PlainHatcher.h"

namespace barhatch {
namespace {

constexpr int kPatterns[] = {0, 1, 2, 3, 5, 6};

// Counts, makes room for just so much, fills.
std::vector<double> CountAndFill(ElementRows& rows, const Filling& filling) {
  const DoubleCount most = MostDoubles(rows, filling);
  EXPECT_GE(most, 0);
  std::vector<double> room(static_cast<std::size_t>(most));
  CoordinateList coordinates(room.data(), room.size());
  Fill(rows, filling, coordinates);
  EXPECT_FALSE(coordinates.HasFailed());
  room.resize(coordinates.Count());
  return room;
}

Filling DarkFilling(int pattern, double gap) { return {pattern, gap, FilledElements::kDark}; }

TEST(Hatch, FillsALinearSymbolInRoomOfTheCaller) {
  const std::string letters = "AaBbAaaBA";
  for (int pattern : kPatterns) {
    const double narrow = 4.5 / ModuleCount(letters.c_str(), 2.5);
    ElementRows rows(letters.c_str(), {narrow, 2.5 * narrow, 1.5}, FilledElements::kDark,
                     RuntimeMemory());
    const auto plain = test::PlainLinearFill(letters, {4.5, 1.5, 2.5, 0.07, pattern, false});
    EXPECT_EQ(test::Bits(CountAndFill(rows, DarkFilling(pattern, 0.07))), test::Bits(plain))
        << pattern;
  }
}

TEST(Hatch, StartsEveryRowOfAMatrixForward) {
  const ModuleGrid grid = {"AaaA", 2, 2, 1.0};
  ElementRows rows(grid, FilledElements::kDark, RuntimeMemory());
  EXPECT_EQ(CountAndFill(rows, DarkFilling(3, 1.0)), (std::vector<double>{1, 0, 1, 1, 0, 1, 0, 2}));
  EXPECT_EQ(CountAndFill(rows, DarkFilling(6, 0.0)), (std::vector<double>{1.5, 0.5, 0.5, 1.5}));
}

TEST(Hatch, FillsNothingByUnknownPatternsAndGapsThatAreNoPitch) {
  ElementRows rows("A", {1.0, 3.0, 1.0}, FilledElements::kDark, RuntimeMemory());
  for (const Filling& nothing : {DarkFilling(-1, 0.5), DarkFilling(4, 0.5), DarkFilling(7, 0.5),
                                 DarkFilling(0, 0.0), DarkFilling(5, -1.0)}) {
    SCOPED_TRACE(nothing.pattern);
    EXPECT_EQ(MostDoubles(rows, nothing), 0);
    EXPECT_EQ(CountAndFill(rows, nothing), std::vector<double>{});
  }
}

TEST(Hatch, NeedsNoRoomWhereNoElementIsFilled) {
  for (int pattern : kPatterns) {
    ElementRows linear("aab", {1.0, 3.0, 1.0}, FilledElements::kDark, RuntimeMemory());
    EXPECT_EQ(MostDoubles(linear, DarkFilling(pattern, 0.1)), 0) << pattern;
    ElementRows matrix({"aaaa", 2, 2, 1.0}, FilledElements::kDark, RuntimeMemory());
    EXPECT_EQ(MostDoubles(matrix, DarkFilling(pattern, 0.1)), 0) << pattern;
  }
}

TEST(Hatch, CannotCountTheRowsOfAMatrixBeyondTheLargestBuffer) {
  // 300 million segments in each row: one row fits, two do not.
  for (int rowCount : {1, 2}) {
    const ModuleGrid grid = {"AA", rowCount, 1, 3e8};
    ElementRows rows(grid, FilledElements::kDark, RuntimeMemory());
    const DoubleCount most = MostDoubles(rows, DarkFilling(1, 1.0));
    EXPECT_EQ(most == kUncountable, rowCount == 2);
  }
}

TEST(Hatch, CallsThePointsOfPatternSixPointsAndEverythingElseSegments) {
  for (int pattern : {-1, 0, 1, 2, 3, 4, 5, 6, 7}) {
    EXPECT_EQ(ShapeOf(DarkFilling(pattern, 0.1)) == FillingShape::kPoints, pattern == 6) << pattern;
  }
  EXPECT_EQ(ShapeOf(DarkFilling(6, 0.0)), FillingShape::kPoints);
}

}  // namespace
}  // namespace barhatch
