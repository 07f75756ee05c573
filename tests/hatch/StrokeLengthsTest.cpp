#include "hatch/StrokeLengths.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/PlainHatcher.h"

namespace barhatch {
namespace {

using Numbers = std::vector<double>;

StrokeLengths Measure(const Numbers& numbers, FillingShape shape = FillingShape::kSegments) {
  return MeasureStrokes(numbers.data(), numbers.size(), shape);
}

struct Case {
  const char* name;
  FillingShape shape;
  Numbers coordinates;
  double mark;
  double jump;
  std::size_t jumps;
};

const Case kCases[] = {
    {"nothing", FillingShape::kSegments, {}, 0, 0, 0},
    {"one segment across", FillingShape::kSegments, {1, 7, 4, 7}, 3, 0, 0},
    {"one segment downwards", FillingShape::kSegments, {1, 7, 1, 2}, 5, 0, 0},
    {"a slanted one", FillingShape::kSegments, {-1, -1, 2, 3}, 5, 0, 0},
    {"two the same way", FillingShape::kSegments, {0, 0, 3, 0, 0, 4, 3, 4}, 6, 5, 1},
    {"two that alternate", FillingShape::kSegments, {0, 0, 3, 0, 3, 4, 0, 4}, 6, 4, 1},
    {"one that goes on", FillingShape::kSegments, {0, 0, 3, 0, 3, 0, 3, 4}, 7, 0, 0},
    {"one of no length", FillingShape::kSegments, {0, 0, 0, 0, 0, 2, 0, 2}, 0, 2, 1},
    {"one point", FillingShape::kPoints, {8, 8}, 0, 0, 0},
    {"three points", FillingShape::kPoints, {0, 0, 3, 4, 3, 6}, 0, 7, 2},
};

TEST(StrokeLengths, AreThoseOfTheCases) {
  for (const Case& c : kCases) {
    const StrokeLengths lengths = Measure(c.coordinates, c.shape);
    EXPECT_EQ(lengths.mark, c.mark) << c.name;
    EXPECT_EQ(lengths.jump, c.jump) << c.name;
    EXPECT_EQ(lengths.jumps, c.jumps) << c.name;
  }
}

TEST(StrokeLengths, ASpiralJumpsFromElementToElementAlone) {
  const auto one = Measure(test::PlainPattern({{0, 0, 1, 1}}, 5, 0.25));
  // Three sides, then legs of 0.75, 0.75, 0.5, 0.5, 0.25 and 0.25.
  EXPECT_EQ(one.mark, 6.0);
  EXPECT_EQ(one.jump, 0.0);
  // The second starts one gap inside its left edge, at (2.25, 0); the first ended at (0.5, 0.5).
  const auto two = Measure(test::PlainPattern({{0, 0, 1, 1}, {2, 0, 3, 1}}, 5, 0.25));
  EXPECT_DOUBLE_EQ(two.jump * two.jump, 1.75 * 1.75 + 0.5 * 0.5);
}

TEST(StrokeLengths, AlternatingLinesJumpByTheGapWithinAnElement) {
  const std::vector<test::PlainRect> bar = {{0, 0, 3, 1}};
  EXPECT_EQ(Measure(test::PlainPattern(bar, 2, 0.25)).mark, 4 * 3.0);
  EXPECT_EQ(Measure(test::PlainPattern(bar, 2, 0.25)).jump, 3 * 0.25);
  EXPECT_EQ(Measure(test::PlainPattern(bar, 3, 0.25)).mark, 12 * 1.0);
  EXPECT_EQ(Measure(test::PlainPattern(bar, 3, 0.25)).jump, 11 * 0.25);
}

TEST(Translate, MovesEveryXAndEveryY) {
  Numbers numbers = {0, 1, 2, 3, 4, 5};
  Translate(numbers.data(), numbers.size(), 10, -100);
  EXPECT_EQ(numbers, (Numbers{10, -99, 12, -97, 14, -95}));
  Translate(numbers.data(), 2, 1, 1);
  EXPECT_EQ(numbers, (Numbers{11, -98, 12, -97, 14, -95}));
  Translate(nullptr, 0, 1, 1);
}

}  // namespace
}  // namespace barhatch
