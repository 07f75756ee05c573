#include "datamatrix/Placement.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "support/GridText.h"
#include "support/PlacementReference.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::ReferenceSize;

std::string Mapping(const std::vector<int>& codewords, const ReferenceSize& size) {
  EXPECT_EQ(codewords.size(), static_cast<std::size_t>(size.data + size.ecc));
  const std::vector<std::uint8_t> bytes(codewords.begin(), codewords.end());
  const std::size_t cells = static_cast<std::size_t>(size.mappingRows * size.mappingColumns);
  std::string mapping(cells + 50, 'x');  // what was there before must not matter
  PlaceCodewords(bytes.data(), size.mappingRows, size.mappingColumns, mapping.data());
  EXPECT_EQ(mapping.substr(cells), std::string(50, 'x'));
  return mapping.substr(0, cells);
}

// Which bit of the stream (from 0) every cell shows, found out by placing the binary digits of the
// bits' own numbers one after the other. Two further placements, of zeros and of ones alone, tell
// the cells that show no bit: -1 light, -2 dark.
std::vector<int> BitOfEveryCell(const ReferenceSize& size) {
  const int codewords = size.data + size.ecc;
  const auto placed = [&](auto bitOf) {
    std::vector<int> stream(static_cast<std::size_t>(codewords), 0);
    for (int bit = 0; bit < 8 * codewords; ++bit)
      stream[static_cast<std::size_t>(bit / 8)] |= bitOf(bit) << (7 - bit % 8);
    return Mapping(stream, size);
  };
  const std::string zeros = placed([](int) { return 0; });
  const std::string ones = placed([](int) { return 1; });
  std::vector<int> bits(zeros.size(), 0);
  for (int digit = 0; digit < 15; ++digit) {
    const std::string mapping = placed([&](int bit) { return bit >> digit & 1; });
    for (std::size_t cell = 0; cell < bits.size(); ++cell)
      bits[cell] |= (mapping[cell] == 'A' ? 1 : 0) << digit;
  }
  for (std::size_t cell = 0; cell < bits.size(); ++cell) {
    if (zeros[cell] == ones[cell]) bits[cell] = zeros[cell] == 'A' ? -2 : -1;
  }
  return bits;
}

TEST(Placement, EveryBitOfEverySizeIsShownExactlyOnce) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    const std::vector<int> cells = BitOfEveryCell(size);
    std::vector<int> shown(static_cast<std::size_t>(8 * (size.data + size.ecc)), 0);
    for (int bit : cells) {
      if (bit >= 0) ++shown.at(static_cast<std::size_t>(bit));
    }
    EXPECT_EQ(shown, std::vector<int>(shown.size(), 1)) << size.rows << "x" << size.columns;
  }
}

TEST(Placement, EqualsTheAnnexInEveryCellOfEverySize) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    std::vector<int> expected;
    for (int cell : test::ReferencePlacement(size.mappingRows, size.mappingColumns)) {
      if (cell == test::kFixedLight) expected.push_back(-1);
      if (cell == test::kFixedDark) expected.push_back(-2);
      if (cell >= 10) expected.push_back(8 * (cell / 10 - 1) + cell % 10 - 1);
    }
    EXPECT_EQ(BitOfEveryCell(size), expected) << size.rows << "x" << size.columns;
  }
}

TEST(Placement, LowerRightCornerIsFixedWhereTheCodewordsLeaveItOver) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    const std::vector<int> cells = BitOfEveryCell(size);
    const std::size_t last = cells.size() - 1;
    const std::size_t columns = static_cast<std::size_t>(size.mappingColumns);
    const bool isLeftOver = size.mappingRows * size.mappingColumns % 8 == 4;
    const std::vector<int> corner = {cells[last - columns - 1], cells[last - columns],
                                     cells[last - 1], cells[last]};
    if (isLeftOver) {
      EXPECT_EQ(corner, (std::vector<int>{-2, -1, -1, -2})) << size.rows << "x" << size.columns;
    }
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
      if (!isLeftOver) {
        EXPECT_GE(cells[cell], 0);
      }
    }
  }
}

TEST(Placement, RandomCodewordsLookAsTheAnnexSays) {
  std::mt19937 random(7);
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    std::vector<int> codewords;
    for (int i = 0; i < size.data + size.ecc; ++i)
      codewords.push_back(static_cast<int>(random() % 256));
    EXPECT_EQ(Mapping(codewords, size),
              test::ReferenceMapping(codewords, size.mappingRows, size.mappingColumns));
  }
}

// ISO/IEC 16022, the figure of the 10 x 10 symbol's codeword placement: codeword.bit.
TEST(Placement, SmallestSymbolIsThatOfThePublishedFigure) {
  const double figure[8][8] = {
      {2.1, 2.2, 3.6, 3.7, 3.8, 4.3, 4.4, 4.5},  //
      {2.3, 2.4, 2.5, 5.1, 5.2, 4.6, 4.7, 4.8},  //
      {2.6, 2.7, 2.8, 5.3, 5.4, 5.5, 1.1, 1.2},  //
      {1.5, 6.1, 6.2, 5.6, 5.7, 5.8, 1.3, 1.4},  //
      {1.8, 6.3, 6.4, 6.5, 8.1, 8.2, 1.6, 1.7},  //
      {7.2, 6.6, 6.7, 6.8, 8.3, 8.4, 8.5, 7.1},  //
      {7.4, 7.5, 3.1, 3.2, 8.6, 8.7, 8.8, 7.3},  //
      {7.7, 7.8, 3.3, 3.4, 3.5, 4.1, 4.2, 7.6},
  };
  const std::vector<int> cells = BitOfEveryCell(test::ReferenceSquares().front());
  for (std::size_t i = 0; i < 64; ++i) {
    const int expected = static_cast<int>(figure[i / 8][i % 8] * 10 + 0.5);
    EXPECT_EQ(cells[i], 8 * (expected / 10 - 1) + expected % 10 - 1) << i;
  }
}

TEST(Placement, SecondCodewordOfTheSmallestSymbolIsAWholeShapeInTheUpperLeft) {
  const ReferenceSize size = test::ReferenceSquares().front();
  EXPECT_EQ(test::FromLetters(Mapping({0, 0xFF, 0, 0, 0, 0, 0, 0}, size), 8),
            (std::vector<std::string>{"##......",  //
                                      "###.....",  //
                                      "###.....",  //
                                      "........",  //
                                      "........",  //
                                      "........",  //
                                      "........",  //
                                      "........"}));
}

}  // namespace
}  // namespace barhatch
