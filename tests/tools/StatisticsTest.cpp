// Lengths, times and places of marks that can be reckoned by hand.
#include "Statistics.h"

#include <gtest/gtest.h>

namespace preview {

namespace {

Speeds SpeedsOf(double mark, double jump, double dwell) {
  Speeds speeds;
  speeds.mark = mark;
  speeds.jump = jump;
  speeds.dwell = dwell;
  return speeds;
}

}  // namespace

TEST(Statistics, OfStrokes) {
  Drawing drawing;
  // Ten to the right, a jump of 3-4-5, four downwards, no jump, two to the left.
  drawing.marks = {{0, 0, 10, 0}, {13, 4, 13, 0}, {13, 0, 11, 0}};
  const Statistics statistics = StatisticsOf(drawing, SpeedsOf(2.0, 10.0, 99.0));
  EXPECT_EQ(statistics.marks, 3u);
  EXPECT_DOUBLE_EQ(statistics.markedLength, 16.0);
  EXPECT_DOUBLE_EQ(statistics.travelLength, 5.0);
  EXPECT_DOUBLE_EQ(statistics.seconds, 8.0 + 0.5);
  EXPECT_EQ(statistics.left, 0.0);
  EXPECT_EQ(statistics.bottom, 0.0);
  EXPECT_EQ(statistics.right, 13.0);
  EXPECT_EQ(statistics.top, 4.0);
  EXPECT_EQ(CountText(statistics), "3 strokes");
}

TEST(Statistics, OfPoints) {
  Drawing drawing;
  drawing.kind = MarkKind::kPoints;
  drawing.marks = {{1, 1, 1, 1}, {4, 5, 4, 5}};
  const Speeds speeds = SpeedsOf(2.0, 10.0, 250.0);
  const Statistics statistics = StatisticsOf(drawing, speeds);
  EXPECT_DOUBLE_EQ(statistics.markedLength, 0.0);
  EXPECT_DOUBLE_EQ(statistics.travelLength, 5.0);
  EXPECT_DOUBLE_EQ(statistics.seconds, 0.5 + 0.5);
  EXPECT_EQ(CountText(statistics), "2 points");
  EXPECT_EQ(Report(statistics, speeds),
            "  travel length 5 mm\n"
            "  time          1 s (250 ms at each point, jumping 10 mm/s)\n"
            "  bounding box  1 1 to 4 5\n");
}

TEST(Statistics, OfNothing) {
  const Statistics statistics = StatisticsOf({}, {});
  EXPECT_EQ(statistics.marks, 0u);
  EXPECT_EQ(statistics.seconds, 0.0);
}

TEST(Statistics, OneStrokeIsOne) {
  Drawing drawing;
  drawing.marks = {{0, 0, 1, 0}};
  EXPECT_EQ(CountText(StatisticsOf(drawing, {})), "1 stroke");
}

}  // namespace preview
