#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "api/BarcodeSettings.h"
#include "api/Hatcher.h"
#include "support/Fills.h"
#include "support/PlainHatcher.h"
#include "support/SettingsFixture.h"

namespace barhatch {
namespace {

using test::Bits;
using test::Doubles;
using test::OwnedFill;

class MatrixVectorization : public test::SettingsFixture {};

// rows of '#' (dark) and '.' (light), top row first
OwnedFill Vectorize(const std::vector<std::string>& rows) {
  std::string letters;
  for (const std::string& row : rows) {
    for (char module : row) letters += module == '#' ? 'A' : 'a';
  }
  const TwoDStringResult matrix{static_cast<int32_t>(rows.size()),
                                static_cast<int32_t>(rows[0].size()), letters.data()};
  Hatcher hatcher;
  return OwnedFill(hatcher.VectorizeMatrix(matrix));
}

const std::vector<std::string> kDiagonal = {"#.", ".#"};

TEST_F(MatrixVectorization, TheBottomRowComesFirstAndTheTopRowEndsAtTheHeight) {
  SetBarcodeHeight(2);
  SetHatchPattern(1.0, 0);
  const OwnedFill fill = Vectorize(kDiagonal);
  EXPECT_EQ(Doubles(*fill), (std::vector<double>{1, 0, 2, 0, 0, 1, 1, 1}));
  EXPECT_EQ(fill->FillHeight, 0.0);
  EXPECT_EQ(fill->FillWidth, 0.0);
  EXPECT_EQ(fill->FillingShapeType, 0);
}

TEST_F(MatrixVectorization, ASingleRowOrColumnIsAMatrix) {
  SetBarcodeHeight(3);
  SetHatchPattern(3.0, 0);
  const OwnedFill row = Vectorize({"#.#"});
  ASSERT_TRUE(row);
  EXPECT_EQ(Doubles(*row), (std::vector<double>{0, 0, 3, 0, 6, 0, 9, 0}));
  EXPECT_EQ(row->FillHeight, -3.0);
  EXPECT_EQ(row->FillWidth, 3.0);
  SetHatchPattern(1.0, 0);
  const OwnedFill column = Vectorize({"#", ".", "#"});
  ASSERT_TRUE(column);
  EXPECT_EQ(Doubles(*column), (std::vector<double>{0, 0, 1, 0, 0, 2, 1, 2}));
  EXPECT_EQ(column->FillHeight, 1.0);
  EXPECT_EQ(column->FillWidth, -1.0);
}

TEST_F(MatrixVectorization, InvertedTheLightModulesAreFilled) {
  SetBarcodeHeight(2);
  SetHatchPattern(1.0, 0);
  SetImageInversionMode(1);
  EXPECT_EQ(Doubles(*Vectorize(kDiagonal)), (std::vector<double>{0, 0, 1, 0, 1, 1, 2, 1}));
}

TEST_F(MatrixVectorization, TheWidthHasNoEffect) {
  const OwnedFill before = Vectorize(kDiagonal);
  SetBarcodeSize(77.0, 0.5);
  const OwnedFill after = Vectorize(kDiagonal);
  EXPECT_EQ(Doubles(*after), Doubles(*before));
  EXPECT_EQ(after->FillHeight, before->FillHeight);
  EXPECT_EQ(after->FillWidth, before->FillWidth);
}

TEST_F(MatrixVectorization, AlternationStartsForwardOnEveryRow) {
  SetBarcodeHeight(2);
  SetHatchPattern(1.0, 3);
  // One stroke in each row: both upwards.
  EXPECT_EQ(Doubles(*Vectorize(kDiagonal)), (std::vector<double>{1, 0, 1, 1, 0, 1, 0, 2}));
}

TEST_F(MatrixVectorization, PointsLieAtTheCentresOfTheCells) {
  SetBarcodeHeight(2);
  SetHatchPattern(0.0, 6);
  const OwnedFill fill = Vectorize(kDiagonal);
  EXPECT_EQ(Doubles(*fill), (std::vector<double>{1.5, 0.5, 0.5, 1.5}));
  EXPECT_EQ(fill->FillingShapeType, 2);
}

TEST_F(MatrixVectorization, RectanglesOfModulesAreTwoCellsSmallerInBothExtents) {
  SetBarcodeHeight(4);
  SetHatchPattern(0.5, 0);
  const OwnedFill fill = Vectorize({"######", "#.#.#.", "######", "#.#.#."});
  EXPECT_EQ(fill->FillHeight, 2.0);
  EXPECT_EQ(fill->FillWidth, 4.0);
}

// Null, with the extents of a matrix of height 4 set.
void ExpectNothingFilled(const std::vector<std::string>& rows) {
  CurrentSettings().FillHeight = CurrentSettings().FillWidth = -77.0;
  EXPECT_FALSE(Vectorize(rows));
  const double cell = 4.0 / static_cast<double>(rows.size());
  EXPECT_EQ(CurrentSettings().FillHeight, 4.0 - 2.0 * cell);
  EXPECT_EQ(CurrentSettings().FillWidth, cell * static_cast<double>(rows[0].size()) - 2.0 * cell);
}

TEST_F(MatrixVectorization, NothingToFillIsNullAndSetsTheExtents) {
  SetBarcodeHeight(4);
  SetHatchPattern(0.5, 0);
  ExpectNothingFilled({".....", ".....", ".....", "....."});
  SetImageInversionMode(1);
  ExpectNothingFilled({"###", "###"});
  SetImageInversionMode(0);
  for (int type : {4, 7, -1}) {
    SCOPED_TRACE(type);
    SetHatchPattern(0.5, type);
    ExpectNothingFilled(kDiagonal);
  }
  for (double gap : {0.0, -1.0, 1e-12}) {
    SCOPED_TRACE(gap);
    SetHatchPattern(gap, 0);
    ExpectNothingFilled({"#.#", ".#."});
  }
}

TEST_F(MatrixVectorization, AMatrixWithoutModulesIsNullAndLeavesTheExtentsAlone) {
  Hatcher hatcher;
  CurrentSettings().FillHeight = 7.0;
  CurrentSettings().FillWidth = 8.0;
  char data[] = "A";
  EXPECT_EQ(hatcher.VectorizeMatrix({0, 0, nullptr}), nullptr);
  EXPECT_EQ(hatcher.VectorizeMatrix({0, 1, data}), nullptr);
  EXPECT_EQ(hatcher.VectorizeMatrix({1, 0, data}), nullptr);
  EXPECT_EQ(hatcher.VectorizeMatrix({-1, -1, data}), nullptr);
  EXPECT_EQ(hatcher.VectorizeMatrix({1, 1, nullptr}), nullptr);
  EXPECT_EQ(CurrentSettings().FillHeight, 7.0);
  EXPECT_EQ(CurrentSettings().FillWidth, 8.0);
}

// Row by row from the bottom with the plain step and the plain patterns.
std::vector<double> PlainMatrixFill(const std::vector<std::string>& rows, double height, int type,
                                    double gap, bool invert) {
  const double cell = height / static_cast<double>(rows.size());
  std::vector<double> all;
  for (std::size_t r = 0; r < rows.size(); ++r) {
    std::string letters;
    for (char module : rows[rows.size() - 1 - r]) letters += module == '#' ? 'A' : 'a';
    auto rects = test::PlainRects(letters, cell, 3.0, cell, invert);
    for (test::PlainRect& rect : rects) {
      rect.y0 += static_cast<double>(r) * cell;
      rect.y1 += static_cast<double>(r) * cell;
    }
    const auto fill = test::PlainPattern(rects, type, gap);
    all.insert(all.end(), fill.begin(), fill.end());
  }
  return all;
}

TEST_F(MatrixVectorization, FillsAgreeWithThePlainHatcherToTheLastBit) {
  std::mt19937_64 random(16022);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  for (int round = 0; round < 400; ++round) {
    std::vector<std::string> rows(2 + random() % 20, std::string(2 + random() % 20, '.'));
    for (std::string& row : rows) {
      for (char& module : row) module = random() % 2 == 0 ? '#' : '.';
    }
    const double height = 0.5 + 10.0 * unit(random);
    const double gap = height / 300.0 + 0.05 * unit(random);
    const int type = static_cast<int>(random() % 7);
    const bool invert = random() % 2 == 0;
    SetBarcodeSize(1.0, height);
    SetHatchPattern(gap, type);
    SetImageInversionMode(invert ? 1 : 0);
    const auto plain = PlainMatrixFill(rows, height, type, gap, invert);
    const OwnedFill fill = Vectorize(rows);
    ASSERT_EQ(static_cast<bool>(fill), !plain.empty());
    if (fill) {
      ASSERT_EQ(Bits(Doubles(*fill)), Bits(plain)) << "type " << type << " height " << height;
    }
  }
}

}  // namespace
}  // namespace barhatch
