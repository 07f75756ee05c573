#include "hatch/BuildRects.h"

#include <gtest/gtest.h>

#include <vector>

namespace barhatch {
namespace {

using Corners = std::vector<double>;

std::vector<Corners> Build(const char* row, FilledElements filled, double moduleSize = 1.0,
                           double ratio = 3.0, double barHeight = 1.0) {
  RectList rects(RuntimeMemory());
  BuildRects(row, {moduleSize, ratio * moduleSize, barHeight}, filled, rects);
  std::vector<Corners> corners;
  for (const HatchRect& r : rects) {
    corners.push_back({r.lowerLeft.x, r.lowerLeft.y, r.upperRight.x, r.upperRight.y});
  }
  return corners;
}

TEST(ModuleCount, CountsWideElementsByThePrintRatio) { EXPECT_EQ(ModuleCount("ABab", 2.5), 7.0); }

TEST(ModuleCount, OtherCharactersDoNotCount) {
  EXPECT_EQ(ModuleCount("01 A\xE1\xC1"
                        "Cc!",
                        2.5),
            1.0);
  EXPECT_EQ(ModuleCount("", 2.5), 0.0);
}

TEST(ModuleCount, AddsInTheOrderOfTheLetters) {
  // 0.1 + 0.1 + ... + 1.0 differs in the last bit from 1.0 + 0.1 + ...
  EXPECT_EQ(ModuleCount("BBBA", 0.1), ((0.1 + 0.1) + 0.1) + 1.0);
  EXPECT_EQ(ModuleCount("ABBB", 0.1), ((1.0 + 0.1) + 0.1) + 0.1);
}

TEST(BuildRects, TwoBarsAndASpaceGiveTwoRectangles) {
  const std::vector<Corners> expected = {{0, 0, 1, 1}, {2, 0, 3, 1}};
  EXPECT_EQ(Build("AaA", FilledElements::kDark), expected);
}

TEST(BuildRects, InvertedOnlyLowerCaseLettersAreFilled) {
  const std::vector<Corners> expected = {{1, 0, 2, 1}};
  EXPECT_EQ(Build("AaA", FilledElements::kLight), expected);
}

TEST(BuildRects, WideElementsTakeThePrintRatio) {
  const std::vector<Corners> dark = {{0, 0, 1, 4}, {1, 0, 3.5, 4}};
  const std::vector<Corners> light = {{3.5, 0, 4.5, 4}, {4.5, 0, 7, 4}};
  EXPECT_EQ(Build("ABab", FilledElements::kDark, 1.0, 2.5, 4.0), dark);
  EXPECT_EQ(Build("ABab", FilledElements::kLight, 1.0, 2.5, 4.0), light);
}

TEST(BuildRects, OtherCharactersNeitherCountNorAdvance) {
  EXPECT_EQ(Build("0A1 a!A", FilledElements::kDark), Build("AaA", FilledElements::kDark));
}

TEST(BuildRects, ReturnsTheEndOfTheRow) {
  RectList rects(RuntimeMemory());
  EXPECT_EQ(BuildRects("AaBa", {1.0, 3.0, 1.0}, FilledElements::kDark, rects), 6.0);
}

TEST(CountFilled, AnnouncesWhatBuildRectsMakes) {
  for (const char* row : {"", "AaBbA", "xAxBxaxb", "aaaa"}) {
    for (FilledElements filled : {FilledElements::kDark, FilledElements::kLight}) {
      EXPECT_EQ(CountFilled(row, filled), Build(row, filled).size()) << row;
    }
  }
}

}  // namespace
}  // namespace barhatch
