#include "hatch/HatchPatterns.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

#include "hatch/LinePatterns.h"
#include "support/Fills.h"
#include "support/PlainHatcher.h"

namespace barhatch {
namespace {

using test::Bits;
using test::PlainRect;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

RectList& Collect(RectList& list, const std::vector<PlainRect>& rects) {
  for (const PlainRect& r : rects) list.Append(HatchRect(r.x0, r.y0, r.x1, r.y1));
  return list;
}

DoubleCount Most(const std::vector<PlainRect>& rects, int type, double gap) {
  const HatchPattern* pattern = PatternOf({type, gap, FilledElements::kDark});
  if (pattern == nullptr) return 0;
  if (pattern->most == nullptr) return CentreDoubles(rects.size());
  RectList list(RuntimeMemory());
  return pattern->most(Collect(list, rects), gap);
}

void FillInto(CoordinateList& coordinates, const std::vector<PlainRect>& rects, int type,
              double gap) {
  const HatchPattern* pattern = PatternOf({type, gap, FilledElements::kDark});
  if (pattern == nullptr) return;
  RectList list(RuntimeMemory());
  pattern->fill(Collect(list, rects), gap, coordinates);
}

std::vector<double> Fill(const std::vector<PlainRect>& rects, int type, double gap) {
  CoordinateList coordinates(RuntimeMemory());
  FillInto(coordinates, rects, type, gap);
  return std::vector<double>(coordinates.begin(), coordinates.end());
}

// Expected values below are written with the arithmetic of the strokes: repeated addition of the
// gap.
const double g = 0.1;
const std::vector<double> kThreeLines = {0.0, 0.0 + g, (0.0 + g) + g};

TEST(ScanLines, CrossEveryRectangleBeforeTheNextLineStarts) {
  std::vector<double> expected;
  for (double y : kThreeLines) {
    expected.insert(expected.end(), {0, y, 1, y});
    expected.insert(expected.end(), {2, y, 3, y});
  }
  EXPECT_EQ(Fill({{0, 0, 1, 0.25}, {2, 0, 3, 0.25}}, 0, g), expected);
}

TEST(ScanLines, TakeTheRangeOfTheFirstRectangleAlone) {
  EXPECT_EQ(Fill({{0, 0, 1, 0.15}, {2, 5, 3, 9}}, 0, g).size(), 2u * 2 * 4);
}

TEST(ScanLines, OfNoRectangleAreNone) { EXPECT_TRUE(Fill({}, 0, g).empty()); }

TEST(VerticalLines, LieOnTheGridAndStrictlyBelowTheRightEdge) {
  const double x = 3 * g;
  const std::vector<double> expected = {x, 0, x, 1, x + g, 0, x + g, 1};
  EXPECT_EQ(Fill({{0.26, 0, 0.5, 1}}, 1, g), expected);
}

TEST(VerticalLines, AreNoneWhereTheSnappedStartIsNotBelowTheEnd) {
  EXPECT_TRUE(Fill({{0.26, 0, 0.29, 1}}, 1, g).empty());
}

TEST(AlternatingVerticalLines, GoOnAcrossTheGapBetweenRectangles) {
  const std::vector<double> expected = {0, 0, 0, 1, 0.5, 1, 0.5, 0, 2, 0, 2, 1, 2.5, 1, 2.5, 0};
  EXPECT_EQ(Fill({{0, 0, 1, 1}, {2, 0, 3, 1}}, 3, 0.5), expected);
}

TEST(AlternatingHorizontalLines, GoOnAcrossTheGapBetweenRectangles) {
  // Three strokes in the first rectangle, so that the second one starts backwards.
  const std::vector<double> expected = {0, 0, 1, 0, 1, 0.5, 0, 0.5, 0, 1, 1, 1,
                                        3, 0, 2, 0, 2, 0.5, 3, 0.5, 3, 1, 2, 1};
  EXPECT_EQ(Fill({{0, 0, 1, 1.5}, {2, 0, 3, 1.5}}, 2, 0.5), expected);
}

TEST(Spiral, OfTheUnitSquareHasNineSegments) {
  const std::vector<double> path = {0,    0,    0,    1,    1,    1,    1,   0,    0.25, 0,
                                    0.25, 0.75, 0.75, 0.75, 0.75, 0.25, 0.5, 0.25, 0.5,  0.5};
  std::vector<double> expected;
  for (std::size_t i = 0; i + 3 < path.size(); i += 2) {
    expected.insert(expected.end(), {path[i], path[i + 1], path[i + 2], path[i + 3]});
  }
  ASSERT_EQ(expected.size(), 36u);
  EXPECT_EQ(Fill({{0, 0, 1, 1}}, 5, 0.25), expected);
}

TEST(Spiral, OfATinyRectangleStillHasThreeSegments) {
  EXPECT_EQ(Fill({{0, 0, 0.01, 0.01}}, 5, g).size(), 12u);
  EXPECT_EQ(Fill({{0, 0, 0.01, 5}}, 5, g).size(), 12u);
  EXPECT_EQ(Most({{0, 0, 0.01, 0.01}}, 5, g), 12);
  EXPECT_EQ(Most({{0, 0, 0.01, 5}}, 5, g), 12);
}

TEST(Spiral, OfAFlatRectangleHasALegBackAndNoMore) {
  EXPECT_EQ(Fill({{0, 0, 5, 0.01}}, 5, g).size(), 16u);
  EXPECT_EQ(Most({{0, 0, 5, 0.01}}, 5, g), 16);
}

TEST(Spiral, MovesLowerBoundsOneGapInsideUnlessTheyAreZero) {
  const auto fill = Fill({{1, 1, 2, 2}}, 5, 0.25);
  EXPECT_EQ(fill[0], 1.25);  // left
  EXPECT_EQ(fill[1], 1.25);  // bottom
  EXPECT_EQ(fill[3], 2.0);   // top
  EXPECT_EQ(fill[6], 2.0);   // right
}

struct EdgeAndGap {
  double edge;
  double gap;
};

// A half number of gaps by division and one bit less by multiplication with the reciprocal, so that
// the bounds of the same coordinate round to different lines. Edge 0 when there is no such pair.
EdgeAndGap EdgeThatDependsOnTheOperation() {
  const auto whole = [](double v) { return static_cast<int>(v); };
  for (int k = 1; k < 20000; ++k) {
    const double gap = k / 1000.0;
    for (int half = 1; half < 60; half += 2) {
      const double edge = half * gap / 2;
      if (whole(edge / gap + 0.5) != whole(edge * (1 / gap) + 0.5)) return {edge, gap};
    }
  }
  return {0.0, 0.0};
}

TEST(Spiral, DividesForTheLeftBoundAndMultipliesForTheBottom) {
  const auto [edge, gap] = EdgeThatDependsOnTheOperation();
  ASSERT_NE(edge, 0.0) << "no such pair among the candidates";
  const auto fill = Fill({{edge, edge, edge + 9 * gap, edge + 9 * gap}}, 5, gap);
  const double left = fill[0], bottom = fill[1];
  EXPECT_NE(left, bottom);
  EXPECT_EQ(left, (static_cast<int>(edge / gap + 0.5) + 1) * gap);
  EXPECT_EQ(bottom, (static_cast<int>(edge * (1 / gap) + 0.5) + 1) * gap);
}

TEST(Spiral, MultipliesForTheRightAndTheTopBound) {
  const auto [edge, gap] = EdgeThatDependsOnTheOperation();
  ASSERT_NE(edge, 0.0) << "no such pair among the candidates";
  const auto fill = Fill({{0, 0, edge, edge}}, 5, gap);
  const double top = fill[3], right = fill[6];
  EXPECT_EQ(top, static_cast<int>(edge * (1 / gap) + 0.5) * gap);
  EXPECT_EQ(right, static_cast<int>(edge * (1 / gap) + 0.5) * gap);
}

TEST(Spiral, MayEndOnAnyWholeSegment) {
  for (int sides = 1; sides < 12; ++sides) {
    EXPECT_EQ(Fill({{0, 0, 1.0 * sides, 1}}, 5, 0.125).size() % 4, 0u);
    EXPECT_EQ(Fill({{0, 0, 1, 1.0 * sides}}, 5, 0.125).size() % 4, 0u);
  }
}

TEST(Centres, GiveExactlyTwoDoublesForEachRectangle) {
  const std::vector<double> expected = {0.5, 2, 4.5, 2};
  EXPECT_EQ(Fill({{0, 0, 1, 4}, {4, 0, 5, 4}}, 6, g), expected);
}

TEST(Centres, NeedNoLineGap) {
  for (double gap : {0.0, -1.0, kNoNumber, kInfinity})
    EXPECT_EQ(Fill({{0, 0, 1, 4}}, 6, gap).size(), 2u);
}

TEST(Centres, AreCountedAsLongAsBufferLengthHoldsThem) {
  EXPECT_EQ(CentreDoubles(1073741823), 2147483646);
  EXPECT_EQ(CentreDoubles(1073741824), kUncountable);
}

TEST(HatchPatterns, FourAndUnknownTypesFillNothing) {
  for (int type :
       {4, 7, -1, 100, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_TRUE(Fill({{0, 0, 1, 1}}, type, g).empty()) << type;
    EXPECT_EQ(Most({{0, 0, 1, 1}}, type, g), 0) << type;
  }
}

TEST(HatchPatterns, NoRectangleNeedsNoDoubles) {
  for (int type : {0, 1, 2, 3, 5, 6}) EXPECT_EQ(Most({}, type, g), 0) << type;
}

TEST(HatchPatterns, AListWithoutMemoryTakesNothing) {
  for (int type : {0, 1, 2, 3, 5, 6}) {
    CoordinateList coordinates(RuntimeMemory(), std::numeric_limits<std::size_t>::max() / 8);
    ASSERT_TRUE(coordinates.HasFailed());
    FillInto(coordinates, {{0, 0, 1, 1}}, type, g);
    EXPECT_EQ(coordinates.Count(), 0u) << type;
  }
}

TEST(HatchPatterns, UnusableGapsFillNothing) {
  for (int type : {0, 1, 2, 3, 5}) {
    for (double gap : {0.0, -0.0, -0.1, kNoNumber, kInfinity, -kInfinity}) {
      EXPECT_TRUE(Fill({{0, 0, 1, 1}}, type, gap).empty()) << type << ' ' << gap;
      EXPECT_EQ(Most({{0, 0, 1, 1}}, type, gap), 0) << type << ' ' << gap;
    }
  }
}

TEST(HatchPatterns, TheLargestFiniteGapStillMarksTheStrokeAtTheOrigin) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  EXPECT_EQ(Fill({{0, 0, 1, 2}}, 0, kLargest), (std::vector<double>{0, 0, 1, 0}));
  EXPECT_EQ(Fill({{0, 0, 1, 2}}, 1, kLargest), (std::vector<double>{0, 0, 0, 2}));
}

TEST(HatchPatterns, GapsTooSmallToCountAreFoundBeforeFilling) {
  for (int type : {0, 1, 2, 3, 5}) {
    for (double gap : {5e-324, 1e-300, 1e-17, 1e-12, 1e-10}) {
      EXPECT_EQ(Most({{0, 0, 1, 1}, {2, 0, 3, 1}}, type, gap), kUncountable) << type << ' ' << gap;
    }
  }
}

TEST(HatchPatterns, AResultOfMoreDoublesThanBufferLengthHoldsIsFoundBeforeFilling) {
  // 2^31 - 1 doubles are 536,870,911 segments.
  EXPECT_GT(Most({{0, 0, 1, 500000000}}, 0, 1.0), 0);
  EXPECT_EQ(Most({{0, 0, 1, 536870912}}, 0, 1.0), kUncountable);
  EXPECT_EQ(Most({{0, 0, 1, 300000000}, {2, 0, 3, 300000000}}, 0, 1.0), kUncountable);
  EXPECT_EQ(Most({{0, 0, 1, 300000000}, {2, 0, 3, 300000000}}, 2, 1.0), kUncountable);
  EXPECT_EQ(Most({{0, 0, 300000000, 1}, {0, 0, 300000000, 1}}, 1, 1.0), kUncountable);
  EXPECT_EQ(Most({{0, 0, 536870912, 536870912}}, 5, 1.0), kUncountable);
}

TEST(HatchPatterns, AFillOneLineShortOfTheLargestBufferIsCounted) {
  // 1103 rectangles, 486,737 lines across all of them: 536,870,911 segments.
  const std::vector<PlainRect> rects(1103, {0, 0, 1, 486736});
  EXPECT_GE(Most(rects, 0, 1.0), 4 * DoubleCount{1103} * 486736);
}

TEST(Spiral, IsNoneWhereABoundRoundsToInfinity) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  EXPECT_EQ(Most({{0, 0, kLargest, 1}}, 5, kLargest / 1.7), kUncountable);
  EXPECT_EQ(Most({{0, 0, 1, kLargest}}, 5, kLargest / 1.7), kUncountable);
}

TEST(HatchPatterns, StrokesThatFit32BitsWithoutTheirSignAreTooManyAsWell) {
  for (int type : {0, 2, 5}) {
    EXPECT_EQ(Most({{0, 0, 1, 2.5e9}}, type, 1.0), kUncountable) << type;
  }
  for (int type : {1, 3, 5}) {
    EXPECT_EQ(Most({{0, 0, 2.5e9, 1}}, type, 1.0), kUncountable) << type;
  }
  EXPECT_EQ(Most({{0, -2.5e9, 1, 1}}, 5, 1.0), kUncountable);
  EXPECT_EQ(Most({{-2.5e9, 0, 1, 1}}, 5, 1.0), kUncountable);
}

TEST(HatchPatterns, RectanglesOfNoNumberOrInfinityEnd) {
  const std::vector<PlainRect> strange[] = {
      {{0, 0, kNoNumber, kNoNumber}}, {{kNoNumber, kNoNumber, 1, 1}},
      {{0, 0, kInfinity, kInfinity}}, {{-kInfinity, 0, kInfinity, 1}},
      {{0, 0, 1e300, 1e300}},         {{5, 5, -5, -5}},
  };
  for (const auto& rects : strange) {
    for (int type : {0, 1, 2, 3, 5}) {
      const DoubleCount most = Most(rects, type, 0.1);
      if (most != kUncountable) {
        EXPECT_LE(static_cast<DoubleCount>(Fill(rects, type, 0.1).size()), most) << type;
      }
    }
  }
}

std::vector<PlainRect> RandomRow(std::mt19937_64& random) {
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  std::vector<PlainRect> rects;
  const double height = 0.05 + 2.0 * unit(random);
  const double y0 = random() % 3 == 0 ? 2.0 * unit(random) : 0.0;
  double x = random() % 2 == 0 ? 0.0 : unit(random);
  for (std::size_t i = 0; i < 1 + random() % 12; ++i) {
    const double width = 0.01 + 0.3 * unit(random);
    rects.push_back({x, y0, x + width, y0 + height});
    x += width + 0.2 * unit(random);
  }
  return rects;
}

TEST(HatchPatterns, AgreeWithThePlainPatternsToTheLastBitAndNeverExceedTheirCount) {
  std::mt19937_64 random(20261121);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  const double niceGaps[] = {0.1, 0.05, 0.01, 0.25, 0.0625, 0.3, 1.0 / 3.0};
  for (int round = 0; round < 3000; ++round) {
    const auto rects = RandomRow(random);
    const double gap = round % 2 == 0 ? niceGaps[random() % 7] : 0.01 + 0.3 * unit(random);
    for (int type : {0, 1, 2, 3, 5, 6}) {
      const auto plain = PlainPattern(rects, type, gap);
      ASSERT_EQ(Bits(Fill(rects, type, gap)), Bits(plain)) << "type " << type << " gap " << gap;
      const DoubleCount most = Most(rects, type, gap);
      ASSERT_GE(most, static_cast<DoubleCount>(plain.size()));
      // At most a segment more for each rectangle, for a spiral two.
      ASSERT_LE(most, static_cast<DoubleCount>(plain.size() + 8 * rects.size()));
    }
  }
}

}  // namespace
}  // namespace barhatch
