#include "support/Raster.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace barhatch::test {
namespace {

struct Segment {
  double xa, ya, xb, yb;
};

// The buffer borrows the coordinates.
FillBufferInfo Buffer(std::vector<double>& coordinates, int shape = 0) {
  FillBufferInfo fill = {};
  fill.FillingShapeType = shape;
  fill.BufferLength = static_cast<int>(coordinates.size());
  fill.FilledArray = coordinates.data();
  return fill;
}

Raster Mark(const std::vector<Segment>& segments, const MarkParameters& parameters) {
  std::vector<double> coordinates;
  for (const Segment& s : segments) coordinates.insert(coordinates.end(), {s.xa, s.ya, s.xb, s.yb});
  return MarkStrokes(Buffer(coordinates), parameters);
}

// A light part of 6 x 4 units at 1 pixel a unit, under a beam of 2 units.
MarkParameters SmallPart() {
  MarkParameters parameters;
  parameters.width = 6;
  parameters.height = 4;
  parameters.pixelsPerUnit = 1;
  parameters.beamWidth = 2;
  return parameters;
}

int MarkedColumns(const Raster& raster, int row) {
  int marked = 0;
  for (int x = 0; x < raster.Width(); ++x) marked += raster.At(x, row) == kDarkShade;
  return marked;
}

TEST(Raster, FillIsCutOffAtTheEdges) {
  Raster raster(3, 2, kLightShade);
  raster.Fill(-5, -5, 1, 1, kDarkShade);
  raster.Fill(2, 1, 9, 9, kDarkShade);
  raster.Fill(1, 0, 1, 2, kDarkShade);
  raster.Fill(7, 0, 9, 2, kDarkShade);
  EXPECT_EQ(ToText(raster),
            "#..\n"
            "..#\n");
}

TEST(Raster, InvertExchangesTheShades) {
  Raster raster(2, 1, kLightShade);
  raster.Fill(0, 0, 1, 1, kDarkShade);
  raster.Invert();
  EXPECT_EQ(ToText(raster), ".#\n");
}

TEST(MarkStrokes, HorizontalStrokeMarksItsLengthAndTheBeamWidthAroundIt) {
  EXPECT_EQ(ToText(Mark({{1, 2, 5, 2}}, SmallPart())),
            "......\n"
            ".####.\n"
            ".####.\n"
            "......\n");
}

TEST(MarkStrokes, VerticalStrokeMarksItsLengthAndTheBeamWidthAroundIt) {
  EXPECT_EQ(ToText(Mark({{2, 0, 2, 3}}, SmallPart())),
            "......\n"
            ".##...\n"
            ".##...\n"
            ".##...\n");
}

TEST(MarkStrokes, DirectionOfAStrokeMakesNoDifference) {
  EXPECT_EQ(ToText(Mark({{5, 2, 1, 2}}, SmallPart())), ToText(Mark({{1, 2, 5, 2}}, SmallPart())));
  EXPECT_EQ(ToText(Mark({{2, 3, 2, 0}}, SmallPart())), ToText(Mark({{2, 0, 2, 3}}, SmallPart())));
}

TEST(MarkStrokes, ProjectingEndsReachHalfABeamFurtherOnBothEnds) {
  MarkParameters parameters = SmallPart();
  parameters.ends = StrokeEnds::kProjecting;
  EXPECT_EQ(ToText(Mark({{2, 2, 4, 2}}, parameters)),
            "......\n"
            ".####.\n"
            ".####.\n"
            "......\n");
  EXPECT_EQ(ToText(Mark({{2, 3, 2, 1}}, parameters)),
            ".##...\n"
            ".##...\n"
            ".##...\n"
            ".##...\n");
}

TEST(MarkStrokes, StrokeWithoutLengthMarksTheSpotWhenEndsProject) {
  MarkParameters parameters = SmallPart();
  EXPECT_EQ(MarkedColumns(Mark({{3, 2, 3, 2}}, parameters), 2), 0);
  parameters.ends = StrokeEnds::kProjecting;
  EXPECT_EQ(ToText(Mark({{3, 2, 3, 2}}, parameters)),
            "......\n"
            "..##..\n"
            "..##..\n"
            "......\n");
}

TEST(MarkStrokes, UpInTheBufferIsUpInThePicture) {
  EXPECT_EQ(ToText(Mark({{0, 3, 2, 3}, {4, 1, 6, 1}}, SmallPart())),
            "##....\n"
            "##....\n"
            "....##\n"
            "....##\n");
}

TEST(MarkStrokes, OriginAndMarginPlaceTheAreaInThePicture) {
  MarkParameters parameters = SmallPart();
  parameters.left = 100;
  parameters.bottom = -50;
  parameters.width = 2;
  parameters.height = 2;
  parameters.margin = 1;
  EXPECT_EQ(ToText(Mark({{100, -49, 102, -49}}, parameters)),
            "....\n"
            ".##.\n"
            ".##.\n"
            "....\n");
}

TEST(MarkStrokes, MarksOutsideThePictureAreCutOff) {
  EXPECT_EQ(ToText(Mark({{-1e300, 0, 2, 0}, {6, 3, 1e300, 3}, {4, 1e9, 4, 3}}, SmallPart())),
            "...##.\n"
            "......\n"
            "......\n"
            "##....\n");
}

TEST(MarkStrokes, LightMarksOnADarkPartShowTheNegative) {
  MarkParameters parameters = SmallPart();
  Raster expected = Mark({{1, 2, 5, 2}}, parameters);
  expected.Invert();
  parameters.colour = MarkColour::kLightOnDark;
  EXPECT_EQ(ToText(Mark({{1, 2, 5, 2}}, parameters)), ToText(expected));
}

TEST(MarkStrokes, PointsMarkOneCellEach) {
  MarkParameters parameters = SmallPart();
  parameters.cellWidth = 2;
  parameters.cellHeight = 1;
  std::vector<double> points = {1, 0.5, 5, 3.5};
  EXPECT_EQ(ToText(MarkStrokes(Buffer(points, 2), parameters)),
            "....##\n"
            "......\n"
            "......\n"
            "##....\n");
}

TEST(MarkStrokes, EmptyBufferShowsTheBarePart) {
  FillBufferInfo fill = {};
  const std::string bare = "......\n......\n......\n......\n";
  EXPECT_EQ(ToText(MarkStrokes(fill, SmallPart())), bare);
}

// 1 / 3 is no binary fraction and its sums drift, so that each border is computed twice with
// another last bit. The scales put borders on pixel centres, on pixel edges and between.
TEST(MarkStrokes, NeighbouringStrokesNeitherOverlapNorLeaveALine) {
  const double gap = 1.0 / 3.0;
  for (const double pixelsPerGap : {1.0, 2.0, 3.0, 1.5, 0.7, 4.3}) {
    MarkParameters parameters;
    parameters.width = 100 * gap;
    parameters.height = gap;
    parameters.beamWidth = gap;
    parameters.pixelsPerUnit = pixelsPerGap / gap;
    std::vector<Segment> odd;
    std::vector<Segment> even;
    int index = 0;
    for (double x = gap; index < 98; x += gap) (index++ % 2 ? odd : even).push_back({x, 0, x, 1});
    std::vector<Segment> all = odd;
    all.insert(all.end(), even.begin(), even.end());
    const int marked = MarkedColumns(Mark(all, parameters), 0);
    EXPECT_EQ(marked,
              MarkedColumns(Mark(odd, parameters), 0) + MarkedColumns(Mark(even, parameters), 0));
    EXPECT_NEAR(marked, 98 * pixelsPerGap, 1.0);
    EXPECT_EQ(ToText(Mark(all, parameters)).find("#.#"), std::string::npos);
  }
}

// Strokes on multiples of the gap from the rounded left edge on, below the right edge: what the
// header says about the width that a bar comes out with, over bars of all phases.
TEST(MarkStrokes, VerticalStrokesWidenABarByLessThanOneAndAHalfGaps) {
  MarkParameters parameters;
  parameters.width = 20;
  parameters.height = 1;
  parameters.margin = 1;
  parameters.pixelsPerUnit = 100;
  parameters.beamWidth = 1;
  double narrowest = 9;
  double widest = -9;
  for (double left = 3; left < 4; left += 0.05) {
    for (double right = 9; right < 10; right += 0.05) {
      std::vector<Segment> strokes;
      for (double x = std::floor(left + 0.5); x < right; ++x) strokes.push_back({x, 0, x, 1});
      const double excess = MarkedColumns(Mark(strokes, parameters), 150) / 100.0 - (right - left);
      narrowest = std::min(narrowest, excess);
      widest = std::max(widest, excess);
    }
  }
  EXPECT_NEAR(narrowest, -0.5, 0.1);
  EXPECT_NEAR(widest, 1.5, 0.1);
}

TEST(MarkStrokes, BufferThatNoHeadCouldTraceIsRefused) {
  std::vector<double> three = {0, 0, 1};
  EXPECT_THROW(MarkStrokes(Buffer(three), SmallPart()), std::invalid_argument);
  EXPECT_THROW(MarkStrokes(Buffer(three, 2), SmallPart()), std::invalid_argument);
  std::vector<double> four = {0, 0, 1, 0};
  EXPECT_THROW(MarkStrokes(Buffer(four, 1), SmallPart()), std::invalid_argument);
  FillBufferInfo missing = Buffer(four);
  missing.FilledArray = nullptr;
  EXPECT_THROW(MarkStrokes(missing, SmallPart()), std::invalid_argument);
  FillBufferInfo negative = Buffer(four);
  negative.BufferLength = -4;
  EXPECT_THROW(MarkStrokes(negative, SmallPart()), std::invalid_argument);
}

TEST(MarkStrokes, StrokeThatNoPatternMakesIsRefused) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_THROW(Mark({{0, 0, 1, 1}}, SmallPart()), std::invalid_argument);
  EXPECT_THROW(Mark({{nan, 0, 1, 0}}, SmallPart()), std::invalid_argument);
  EXPECT_THROW(Mark({{0, infinity, 1, infinity}}, SmallPart()), std::invalid_argument);
}

TEST(MarkStrokes, PictureWithoutOrWithTooManyPixelsIsRefused) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double pixelsPerUnit : {0.0, -1.0, 1e-9, 1e9, 1e5, nan}) {
    MarkParameters parameters = SmallPart();
    parameters.pixelsPerUnit = pixelsPerUnit;
    EXPECT_THROW(Mark({}, parameters), std::invalid_argument) << pixelsPerUnit;
  }
}

TEST(SampleModules, ShowsTheShadeAtTheCentreOfEachModule) {
  MarkParameters parameters;
  parameters.left = -0.5;
  parameters.width = 1.5;
  parameters.height = 1;
  parameters.margin = 0.25;
  parameters.pixelsPerUnit = 10;
  parameters.cellWidth = 0.5;
  parameters.cellHeight = 0.5;
  std::vector<double> points = {-0.25, 0.75, 0.75, 0.75, 0.25, 0.25};
  const Raster picture = MarkStrokes(Buffer(points, 2), parameters);
  EXPECT_EQ(SampleModules(picture, parameters, 2, 3),
            "AaA"
            "aAa");
  EXPECT_EQ(SampleModules(picture, parameters, 1, 3).size(), 3u);
}

}  // namespace
}  // namespace barhatch::test
