// From a module string through strokes and the picture of the marked part to the readers, with a
// hatcher of three lines in the place of the library's.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ReaderOracle.h"
#include "symbologies/DrawnSymbol.h"

namespace barhatch::test {
namespace {

constexpr double kModule = 0.3;
constexpr double kWide = 2.5 * kModule;
constexpr double kHeight = 4.0;
constexpr double kGap = 0.03;

double Width(char letter) { return letter == 'B' || letter == 'b' ? kWide : kModule; }

double Width(const std::string& modules) {
  double width = 0;
  for (const char letter : modules) width += Width(letter);
  return width;
}

// Horizontal strokes through every element whose letter is one of those to be filled.
std::vector<double> Strokes(const std::string& modules, const std::string& filled) {
  std::vector<double> strokes;
  for (double y = 0; y < kHeight; y += kGap) {
    double x = 0;
    for (const char letter : modules) {
      const double next = x + Width(letter);
      if (filled.find(letter) != std::string::npos) {
        strokes.insert(strokes.end(), {x, y, next, y});
      }
      x = next;
    }
  }
  return strokes;
}

Raster Picture(const std::string& modules, const std::string& filled, double marginModules) {
  std::vector<double> strokes = Strokes(modules, filled);
  FillBufferInfo fill = {};
  fill.BufferLength = static_cast<int>(strokes.size());
  fill.FilledArray = strokes.data();
  MarkParameters parameters;
  parameters.width = Width(modules);
  parameters.height = kHeight;
  parameters.margin = marginModules * kModule;
  parameters.pixelsPerUnit = 4 / kModule;
  parameters.beamWidth = kGap;
  parameters.colour = filled == "AB" ? MarkColour::kDarkOnLight : MarkColour::kLightOnDark;
  return MarkStrokes(fill, parameters);
}

std::string Modules39(const std::string& text, QuietZone quietZone) {
  return DrawnByTheDevice(1, text, quietZone).value();
}

void ExpectRead(const Raster& picture, const std::string& text) {
  for (const Reader reader : {Reader::kZxing, Reader::kZbar}) {
    if (!HasReader(reader)) continue;
    const auto result = Read(reader, picture, Format::kCode39);
    ASSERT_TRUE(result) << text;
    EXPECT_EQ(result->text, text);
  }
}

TEST(MarkedCode39, IsReadFromDarkMarksOnALightPart) {
  for (const std::string text : {"ABC-123", "1", "0123456789ABCD -.$+%"}) {
    ExpectRead(Picture(Modules39(text, QuietZone::kNone), "AB", 10), text);
    ExpectRead(Picture(Modules39(text, QuietZone::kBothEnds), "AB", 0), text);
  }
}

TEST(MarkedCode39, IsReadFromLightMarksOnADarkPart) {
  const std::string modules = Modules39("ABC-123", QuietZone::kBothEnds);
  ExpectRead(Picture(modules, "ab", 0), "ABC-123");
  ExpectRead(Picture(modules, "ab", 3), "ABC-123");
}

TEST(MarkedCode39, IsLostWhenTheLightElementsAreMarkedDark) {
  Raster picture = Picture(Modules39("ABC-123", QuietZone::kBothEnds), "ab", 3);
  picture.Invert();
  EXPECT_FALSE(Read(Reader::kZxing, picture, Format::kCode39));
  EXPECT_FALSE(Read(Reader::kZbar, picture, Format::kCode39));
}

TEST(MarkedCode39, IsLostInADarkPartWithoutAQuietZone) {
  const Raster picture = Picture(Modules39("ABC-123", QuietZone::kNone), "ab", 3);
  EXPECT_FALSE(Read(Reader::kZxing, picture, Format::kCode39));
  EXPECT_FALSE(Read(Reader::kZbar, picture, Format::kCode39));
}

}  // namespace
}  // namespace barhatch::test
