// The sizes by the book and which of them a text gets.
#include "datamatrix/PublishedSizes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

// ISO/IEC 21471: rows, columns, data and error codewords, regions across.
constexpr int kRectangularExtension[][5] = {
    {8, 48, 18, 15, 2},  {8, 64, 24, 18, 4},   {8, 80, 32, 22, 4},   {8, 96, 38, 28, 4},
    {8, 120, 49, 32, 6}, {8, 144, 63, 36, 6},  {12, 64, 43, 27, 4},  {12, 88, 64, 36, 4},
    {16, 64, 62, 36, 4}, {20, 36, 44, 28, 2},  {20, 44, 56, 34, 2},  {20, 64, 84, 42, 4},
    {22, 48, 72, 38, 2}, {24, 48, 80, 41, 2},  {24, 64, 108, 46, 4}, {26, 40, 70, 38, 2},
    {26, 48, 90, 42, 2}, {26, 64, 118, 50, 4},
};

std::string Chosen(int codewords, const SizeWish& wish) {
  SymbolSize size{};
  const Refusal refusal = ChoosePublishedSize(codewords, wish, size);
  if (!refusal.IsRefused()) {
    return std::to_string(size.symbolRows) + "x" + std::to_string(size.symbolColumns);
  }
  EXPECT_EQ(size.symbolRows, 0) << "unchanged";
  EXPECT_EQ(refusal.figure, codewords);
  switch (refusal.reason) {
    case Reason::kTooManyCodewords:
      return "too many";
    case Reason::kNoSuchSize:
      return "no size";
    case Reason::kNoPermissionToGrow:
      return "may not grow";
    default:
      return refusal.reason == Reason::kSizeTooSmall ? "too small" : "?";
  }
}

std::string Smallest(int codewords, Shape shape) { return Chosen(codewords, {0, 0, shape, false}); }

TEST(PublishedSizes, OfTheRectangularExtensionAreThoseOfTheStandard) {
  ASSERT_EQ(std::size(kRectangularExtension), 18u);
  for (std::size_t i = 0; i < 18; ++i) {
    const auto& row = kRectangularExtension[i];
    const SymbolSize& size = kDmreSizes[i];
    EXPECT_EQ(size.symbolRows, row[0]);
    EXPECT_EQ(size.symbolColumns, row[1]);
    EXPECT_EQ(size.dataCodewords, row[2]);
    EXPECT_EQ(size.errorCodewords, row[3]);
    EXPECT_EQ(size.regionsAcross, row[4]);
    EXPECT_EQ(size.regionsDown, 1);
    EXPECT_EQ(size.blocks, 1);
    EXPECT_EQ(size.mappingRows, row[0] - 2);
    EXPECT_EQ(size.mappingColumns, row[1] - 2 * row[4]);
    EXPECT_TRUE(IsDmre(size));
  }
}

TEST(PublishedSizes, FortyEightAreFoundByTheirRowsAndColumns) {
  int found = 0;
  for (int rows = 0; rows < 256; ++rows) {
    for (int columns = 0; columns < 256; ++columns) {
      const SymbolSize* const size = FindSize(rows, columns);
      if (size == nullptr) continue;
      ++found;
      EXPECT_EQ(size->symbolRows, rows);
      EXPECT_EQ(size->symbolColumns, columns);
    }
  }
  EXPECT_EQ(found, 48);
  for (const test::ReferenceSize& size : test::ReferenceSizes()) {
    ASSERT_NE(FindSize(size.rows, size.columns), nullptr);
    EXPECT_EQ(FindSize(size.rows, size.columns)->dataCodewords, size.data);
    EXPECT_FALSE(IsDmre(*FindSize(size.rows, size.columns)));
  }
}

// Whatever the shape, by trying all sizes in any order.
TEST(PublishedSizes, TheSmallestAreaIsTaken) {
  struct Row {
    int rows;
    int columns;
    int data;
    bool isDmre;
  };
  std::vector<Row> rows;
  for (const test::ReferenceSize& size : test::ReferenceSizes())
    rows.push_back({size.rows, size.columns, size.data, false});
  for (const auto& row : kRectangularExtension) rows.push_back({row[0], row[1], row[2], true});
  for (const Shape shape : {Shape::kSquare, Shape::kRectangle, Shape::kAny, Shape::kDmreRectangle,
                            Shape::kAnyAndDmre}) {
    const bool hasDmre = shape == Shape::kDmreRectangle || shape == Shape::kAnyAndDmre;
    for (int codewords = 1; codewords <= 1559; ++codewords) {
      std::vector<Row> fitting;
      for (const Row& row : rows) {
        const bool isSquare = row.rows == row.columns;
        const bool isOfShape = shape == Shape::kSquare ? isSquare
                               : shape == Shape::kAny || shape == Shape::kAnyAndDmre
                                   ? isSquare || hasDmre || !row.isDmre
                                   : !isSquare && (hasDmre || !row.isDmre);
        if (isOfShape && row.data >= codewords) fitting.push_back(row);
      }
      const auto smallest =
          std::min_element(fitting.begin(), fitting.end(), [](const Row& a, const Row& b) {
            const int areas = a.rows * a.columns - b.rows * b.columns;
            return areas != 0 ? areas < 0 : a.columns - a.rows < b.columns - b.rows;
          });
      const std::string expected = fitting.empty() ? "too many"
                                                   : std::to_string(smallest->rows) + "x" +
                                                         std::to_string(smallest->columns);
      ASSERT_EQ(Smallest(codewords, shape), expected) << codewords;
    }
  }
}

TEST(PublishedSizes, ExamplesOfShapes) {
  EXPECT_EQ(Smallest(5, Shape::kSquare), "12x12");
  EXPECT_EQ(Smallest(5, Shape::kRectangle), "8x18");
  EXPECT_EQ(Smallest(5, Shape::kAny), "12x12") << "144 modules each: the squarer";
  EXPECT_EQ(Smallest(44, Shape::kAny), "26x26");
  EXPECT_EQ(Smallest(18, Shape::kDmreRectangle), "8x48");
  EXPECT_EQ(Smallest(118, Shape::kDmreRectangle), "26x64");
  EXPECT_EQ(Smallest(119, Shape::kDmreRectangle), "too many");
  EXPECT_EQ(Smallest(50, Shape::kRectangle), "too many");
  EXPECT_EQ(Smallest(1559, Shape::kAnyAndDmre), "too many");
}

TEST(PublishedSizes, ASizeThatIsAskedForIsKeptOrRefused) {
  EXPECT_EQ(Chosen(1, {144, 144, Shape::kSquare, false}), "144x144");
  EXPECT_EQ(Chosen(5, {8, 18, Shape::kSquare, false}), "8x18") << "the shape is for 0 x 0";
  EXPECT_EQ(Chosen(6, {8, 18, Shape::kSquare, false}), "may not grow");
  EXPECT_EQ(Chosen(6, {12, 26, Shape::kSquare, false}), "12x26");
  EXPECT_EQ(Chosen(18, {8, 48, Shape::kSquare, false}), "8x48");
  EXPECT_EQ(Chosen(19, {8, 48, Shape::kSquare, false}), "may not grow");
  for (const auto& [rows, columns] : {std::pair(11, 11), {8, 0}, {0, 8}, {18, 8}, {255, 255}}) {
    EXPECT_EQ(Chosen(1, {rows, columns, Shape::kSquare, false}), "no size");
    EXPECT_EQ(Chosen(1, {rows, columns, Shape::kSquare, true}), "no size");
  }
}

TEST(PublishedSizes, WithPermissionTheNextOfItsKindThatCoversIt) {
  EXPECT_EQ(Chosen(4, {10, 10, Shape::kSquare, true}), "12x12");
  EXPECT_EQ(Chosen(3, {10, 10, Shape::kSquare, true}), "10x10");
  EXPECT_EQ(Chosen(11, {8, 32, Shape::kSquare, true}), "12x36") << "12x26 is narrower";
  EXPECT_EQ(Chosen(50, {16, 48, Shape::kSquare, true}), "too small");
  EXPECT_EQ(Chosen(19, {8, 48, Shape::kSquare, true}), "8x64");
  EXPECT_EQ(Chosen(64, {8, 144, Shape::kSquare, true}), "too small");
  EXPECT_EQ(Chosen(1559, {10, 10, Shape::kSquare, true}), "too small");
}

TEST(PublishedSizes, TheNextForWhatIsNoSize) {
  EXPECT_EQ(NextPublishedSize(11, 11)->symbolRows, 12);
  EXPECT_EQ(NextPublishedSize(8, 40)->symbolColumns, 48);
  EXPECT_EQ(NextPublishedSize(145, 145), nullptr);
}

}  // namespace
}  // namespace barhatch
