// Strokes, their lengths and their time, by hand: all of EAN-8.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

// EAN-8 with 38 dark modules of 67, each filled by itself; the first lie at 0 to 1 and 2 to 3.
BarhatchJob Ean8(std::int32_t pattern, double gap) {
  BarhatchJob job = PublishedJobOf(BARHATCH_EAN_8, "9638507");
  job.pattern = pattern;
  job.gap = gap;
  job.height = 8.0;
  return job;
}

std::vector<double> FirstStrokes(const Mark& mark, std::size_t count) {
  return std::vector<double>(mark->strokes, mark->strokes + count);
}

using Doubles = std::vector<double>;

}  // namespace

TEST(MarkStrokes, OfScanLinesGoThroughAllModules) {
  const Mark mark(Ean8(BARHATCH_SCAN_LINES, 4.0));
  EXPECT_EQ(mark->kind, BARHATCH_SEGMENTS);
  EXPECT_EQ(mark->strokes_count, 2u * 38u);
  EXPECT_EQ(FirstStrokes(mark, 8), (Doubles{0, 0, 1, 0, 2, 0, 3, 0}));
  EXPECT_EQ(mark->strokes[4 * 38 + 1], 4.0);
}

TEST(MarkStrokes, UpwardsGoFromBottomToTop) {
  const Mark mark(Ean8(BARHATCH_VERTICAL_LINES, 0.5));
  EXPECT_EQ(FirstStrokes(mark, 12), (Doubles{0, 0, 0, 8, 0.5, 0, 0.5, 8, 2, 0, 2, 8}));
}

TEST(MarkStrokes, AlternatingGoUpAndDown) {
  const Mark mark(Ean8(BARHATCH_ALTERNATING_VERTICAL, 0.5));
  EXPECT_EQ(FirstStrokes(mark, 12), (Doubles{0, 0, 0, 8, 0.5, 8, 0.5, 0, 2, 0, 2, 8}));
}

TEST(MarkStrokes, OfPointsAreOneAtEachCentre) {
  const Mark mark(Ean8(BARHATCH_POINTS, 0.0));
  EXPECT_EQ(mark->kind, BARHATCH_DOTS);
  EXPECT_EQ(mark->strokes_count, 38u);
  EXPECT_EQ(FirstStrokes(mark, 4), (Doubles{0.5, 4, 2.5, 4}));
}

TEST(MarkStrokes, LengthsAreThoseOfAllStrokesAndOfTheWayBetween) {
  const Mark mark(Ean8(BARHATCH_SCAN_LINES, 4.0));
  EXPECT_EQ(mark->mark_length, 2.0 * 38.0);
  // Each of two lines jumps over 29 light modules; between the two from (67, 0) to (0, 4).
  EXPECT_DOUBLE_EQ(mark->jump_length, 2.0 * 29.0 + std::sqrt(67.0 * 67.0 + 4.0 * 4.0));
}

TEST(MarkStrokes, PointsHaveNoLengthButJumps) {
  const Mark mark(Ean8(BARHATCH_POINTS, 0.0));
  EXPECT_EQ(mark->mark_length, 0.0);
  EXPECT_EQ(mark->jump_length, 66.0) << "on one line from 0.5 to 66.5";
}

TEST(MarkStrokes, SecondsAddUp) {
  BarhatchJob job = Ean8(BARHATCH_POINTS, 0.0);
  job.mark_speed = 100.0;
  job.jump_speed = 8.0;
  EXPECT_DOUBLE_EQ(Mark(job)->seconds, 66.0 / 8.0);
  job.stroke_delay = 0.5;
  EXPECT_DOUBLE_EQ(Mark(job)->seconds, 66.0 / 8.0 + 38 * 0.5);
  job.jump_delay = 0.25;
  EXPECT_DOUBLE_EQ(Mark(job)->seconds, 66.0 / 8.0 + 38 * 0.5 + 37 * 0.25);
}

TEST(MarkStrokes, SecondsOfSegmentsHaveBothSpeeds) {
  BarhatchJob job = Ean8(BARHATCH_SCAN_LINES, 4.0);
  job.mark_speed = 10.0;
  job.jump_speed = 20.0;
  const Mark mark(job);
  EXPECT_DOUBLE_EQ(mark->seconds, mark->mark_length / 10.0 + mark->jump_length / 20.0);
}

TEST(MarkStrokes, SecondsThatAreNoNumberAreNoGeometry) {
  BarhatchJob job = Ean8(BARHATCH_SCAN_LINES, 4.0);
  job.mark_speed = 1e-300;
  job.jump_speed = 1.0;
  EXPECT_EQ(Mark(job)->status, BARHATCH_OK);
  job.mark_speed = 1e-308;
  EXPECT_EQ(Mark(job)->status, BARHATCH_BAD_GEOMETRY);
}

TEST(MarkStrokes, SecondsMayBeTheLargestNumber) {
  BarhatchJob job = Ean8(BARHATCH_SCAN_LINES, 4.0);
  job.x_dimension = 1.6;
  job.mark_speed = std::nextafter(std::ldexp(Mark(job)->mark_length, -1024), 1.0);
  job.jump_speed = 1e150;
  const Mark mark(job);
  EXPECT_EQ(mark->status, BARHATCH_OK);
  EXPECT_EQ(mark->seconds, std::numeric_limits<double>::max());
}

TEST(MarkStrokes, SecondsNeedBothSpeeds) {
  BarhatchJob job = Ean8(BARHATCH_SCAN_LINES, 4.0);
  job.stroke_delay = 1.0;
  for (const double markSpeed : {0.0, 10.0}) {
    job.mark_speed = markSpeed;
    job.jump_speed = 10.0 - markSpeed;
    const Mark mark(job);
    EXPECT_TRUE(mark.IsOk());
    EXPECT_EQ(mark->seconds, 0.0);
  }
  job.mark_speed = job.jump_speed = 0.0;
  EXPECT_EQ(Mark(job)->seconds, 0.0);
}

// The strokes of a spiral hang together.
TEST(MarkStrokes, StrokesThatGoOnWithoutAJumpHaveNoDelayOfOne) {
  BarhatchJob job = Ean8(BARHATCH_SPIRAL, 0.25);
  job.mark_speed = job.jump_speed = 1e9;
  job.jump_delay = 1.0;
  const Mark mark(job);
  EXPECT_LT(mark->seconds, static_cast<double>(mark->strokes_count) - 1.0);
  EXPECT_GE(mark->seconds, 37.0);
}

TEST(MarkStrokes, LieAsADoubleWantsIt) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    const Mark mark(PlainJobOf(symbology));
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(mark->strokes) % alignof(double), 0u);
  }
}

}  // namespace barhatch::test
