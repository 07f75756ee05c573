// A grid is proven or not: right ones of all sizes are, and no single module may be otherwise.
#include "datamatrix/SymbolProof.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "datamatrix/DataMatrix.h"
#include "datamatrix/SizeTesting.h"
#include "support/PlainGrid.h"

namespace barhatch::test {
namespace {

std::vector<int> RandomData(const PlainSize& plain, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<int> data;
  for (int i = 0; i < plain.size.data; ++i) data.push_back(static_cast<int>(random() % 256));
  return data;
}

// The codewords of a grid; empty for one that is not proven.
std::vector<int> CodewordsRead(const std::string& grid, const PlainSize& plain, int quietModules,
                               BlockOrder order = BlockOrder::kStandard) {
  std::vector<std::uint8_t> codewords(static_cast<std::size_t>(plain.size.data + plain.size.ecc),
                                      0x5A);
  const DrawnGrid drawn = {grid.data(), plain.size.rows + 2 * quietModules,
                           plain.size.columns + 2 * quietModules, quietModules};
  if (!ReadGrid(drawn, order, {plain.size.data, plain.size.ecc}, codewords.data())) return {};
  return std::vector<int>(codewords.begin(), codewords.end());
}

bool IsProven(const std::string& grid, const PlainSize& plain, int quietModules = 0) {
  return !CodewordsRead(grid, plain, quietModules).empty();
}

std::string RightGrid(const PlainSize& plain, int quietModules) {
  return PlainGrid(PlainStream(RandomData(plain, 5), plain, false), plain, quietModules);
}

// Modules that may be another one without notice; every so manieth is tried.
int UnnoticedModules(const PlainSize& plain, int quietModules, std::size_t step) {
  std::string grid = RightGrid(plain, quietModules);
  int unnoticed = 0;
  for (std::size_t at = 0; at < grid.size(); at += step) {
    const char right = grid[at];
    grid[at] = right == 'A' ? 'a' : 'A';
    unnoticed += IsProven(grid, plain, quietModules) ? 1 : 0;
    grid[at] = right;
  }
  EXPECT_TRUE(IsProven(grid, plain, quietModules)) << plain;
  return unnoticed;
}

}  // namespace

TEST(SymbolProof, PlainGridsOfAllSizesShowTheirCodewords) {
  for (const PlainSize& plain : PlainSizes()) {
    const std::vector<int> stream = PlainStream(RandomData(plain, 1), plain, false);
    for (const int quiet : {0, 1, 2, 7}) {
      EXPECT_EQ(CodewordsRead(PlainGrid(stream, plain, quiet), plain, quiet), stream)
          << plain << ", quiet " << quiet;
    }
  }
}

TEST(SymbolProof, SymbolsOfTheLibraryAreProvenFullAndEmpty) {
  for (std::size_t row = 0; row < ReferenceSizes().size(); ++row) {
    const PlainSize& plain = PlainSizes()[row];
    const std::size_t most = 2 * static_cast<std::size_t>(plain.size.data);
    for (const std::size_t digits : {std::size_t{1}, most}) {
      std::u16string text;
      for (std::size_t i = 0; i < digits; ++i) text += static_cast<char16_t>(u'0' + i * 7 % 10);
      const MatrixJob job = {{text.data(), digits},
                             kStandardQuietZone,
                             {plain.size.rows, plain.size.columns, 0},
                             Header::kNone};
      Conformance how = Conformance::Device();
      MatrixSymbol symbol;
      ASSERT_FALSE(EncodeDataMatrix(job, how, RuntimeMemory(), symbol).IsRefused()) << plain;
      const std::string grid = symbol.letters;
      RuntimeMemory().Release(symbol.letters);
      const std::vector<int> read = CodewordsRead(grid, plain, 1, BlockOrder::kIndustry);
      const std::uint8_t* const codewords = symbol.codewords.data();
      EXPECT_EQ(read, std::vector<int>(codewords, codewords + plain.size.data + plain.size.ecc))
          << plain;
    }
  }
}

TEST(SymbolProof, EverySingleModuleOfSmallSymbolsMatters) {
  for (const PlainSize& plain : PlainSizes()) {
    if (plain.size.rows * plain.size.columns > 1700) continue;
    EXPECT_EQ(UnnoticedModules(plain, 1, 1), 0) << plain;
  }
}

TEST(SymbolProof, SampledModulesOfLargeSymbolsMatter) {
  for (const PlainSize& plain : PlainSizes()) {
    if (plain.size.rows * plain.size.columns <= 1700) continue;
    EXPECT_EQ(UnnoticedModules(plain, 1, 37), 0) << plain;
  }
}

TEST(SymbolProof, QuietZonesOfAnyWidthAreLookedAt) {
  const PlainSize& plain = PlainSizes().front();
  EXPECT_EQ(UnnoticedModules(plain, 5, 1), 0);
}

TEST(SymbolProof, WideElementsAreNoModules) {
  const PlainSize& plain = PlainSizes().front();
  const std::string right = RightGrid(plain, 1);
  for (std::size_t at = 0; at < right.size(); ++at) {
    for (const char letter : {'B', 'b', '\0', 'x'}) {
      std::string grid = right;
      grid[at] = letter;
      EXPECT_FALSE(IsProven(grid, plain, 1)) << at << " " << int{letter};
    }
  }
}

// One codeword that is placed otherwise than it was coded, in each block.
TEST(SymbolProof, EverySingleCodewordMatters) {
  for (const PlainSize& plain : PlainSizes()) {
    const std::vector<int> right = PlainStream(RandomData(plain, 3), plain, false);
    const std::size_t step = right.size() > 300 ? 41 : 1;
    for (std::size_t at = 0; at < right.size(); at += step) {
      std::vector<int> stream = right;
      stream[at] ^= 1 + static_cast<int>(at % 255);
      EXPECT_FALSE(IsProven(PlainGrid(stream, plain, 0), plain)) << plain << ", codeword " << at;
    }
  }
}

TEST(SymbolProof, OrdersOfTheLargestSquareAreToldApart) {
  for (const PlainSize& plain : PlainSizes()) {
    const std::vector<int> data = RandomData(plain, 4);
    const bool isLargest = plain.size.rows == 144;
    for (const bool isIndustry : {false, true}) {
      const std::string grid = PlainGrid(PlainStream(data, plain, isIndustry), plain, 0);
      const bool asStandard = !CodewordsRead(grid, plain, 0, BlockOrder::kStandard).empty();
      const bool asIndustry = !CodewordsRead(grid, plain, 0, BlockOrder::kIndustry).empty();
      EXPECT_EQ(asStandard, !isLargest || !isIndustry) << plain;
      EXPECT_EQ(asIndustry, !isLargest || isIndustry) << plain;
    }
  }
}

TEST(SymbolProof, OtherNumbersOfCodewordsThanThoseOfTheSizeAreNone) {
  const PlainSize& plain = PlainSizes().front();
  const std::string grid = RightGrid(plain, 0);
  std::uint8_t codewords[16];
  const DrawnGrid drawn = {grid.data(), 10, 10, 0};
  EXPECT_TRUE(ReadGrid(drawn, BlockOrder::kStandard, {3, 5}, codewords));
  EXPECT_FALSE(ReadGrid(drawn, BlockOrder::kStandard, {4, 5}, codewords));
  EXPECT_FALSE(ReadGrid(drawn, BlockOrder::kStandard, {3, 4}, codewords));
  EXPECT_FALSE(ReadGrid(drawn, BlockOrder::kStandard, {4, 4}, codewords));
}

// A quiet zone of one module for the frame of the next size, columns for rows.
TEST(SymbolProof, GridsAreThoseOfTheirSizeAlone) {
  const PlainSize& square = PlainSizes().front();
  const std::string grid = RightGrid(square, 1);
  std::uint8_t codewords[16];
  EXPECT_TRUE(ReadGrid({grid.data(), 12, 12, 1}, BlockOrder::kStandard, {3, 5}, codewords));
  EXPECT_FALSE(ReadGrid({grid.data(), 12, 12, 0}, BlockOrder::kStandard, {5, 7}, codewords));
  const PlainSize& rectangle = PlainSizes()[24];
  const std::string wide = RightGrid(rectangle, 0);
  EXPECT_TRUE(ReadGrid({wide.data(), 8, 18, 0}, BlockOrder::kStandard, {5, 7}, codewords));
  EXPECT_FALSE(ReadGrid({wide.data(), 18, 8, 0}, BlockOrder::kStandard, {5, 7}, codewords));
  EXPECT_FALSE(ReadGrid({wide.data(), 9, 16, 0}, BlockOrder::kStandard, {5, 7}, codewords));
}

}  // namespace barhatch::test
