// Lengths, times and places of marks that can be reckoned by hand.
#include "Statistics.h"

#include <gtest/gtest.h>

#include "Request.h"

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

TEST(Request, ModuleSizeIsThatOfTheSymbol) {
  Request linear;
  linear.text = "A1";
  linear.width = 41.5;  // 83 modules: four characters of 15, three gaps, two quiet zones
  linear.quietZone = true;
  const Fill fill = Generate(linear);
  EXPECT_DOUBLE_EQ(ModuleSizeOf(linear, *fill), 0.5);

  Request matrix;
  matrix.kind = Kind::kDataMatrix;
  matrix.text = "123456";  // 10 x 10
  matrix.height = 5.0;
  const Fill cells = Generate(matrix);
  EXPECT_DOUBLE_EQ(ModuleSizeOf(matrix, *cells), 0.5);
  EXPECT_DOUBLE_EQ(WidthOf(matrix, *cells), 5.0);
}

TEST(Request, TextIsUtf8WithoutNul) {
  EXPECT_EQ(ToUnits(""), u"");
  EXPECT_EQ(ToUnits("A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"), u"A\u00E4\u20AC\U0001F600");
  for (const std::string broken :
       {"\x80", "\xC3", "\xC3(", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
        "\xF4\x90\x80\x80", "\xFF"}) {
    EXPECT_EQ(ToUnits(broken), std::nullopt) << broken;
  }
  EXPECT_EQ(ToUnits(std::string("A\0B", 3)), std::nullopt);
  EXPECT_EQ(ToUnits("\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"), u"\uD7FF\uE000\uFFFF");
  EXPECT_EQ(ToUnits("\xF4\x8F\xBF\xBF")->size(), 2u);
}

}  // namespace preview
