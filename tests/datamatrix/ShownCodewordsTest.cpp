#include "datamatrix/ShownCodewords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "support/PlacementReference.h"
#include "support/PlainGrid.h"

namespace barhatch::test {
namespace {

using Codewords = std::vector<std::uint8_t>;

Codewords NoCodewords(const ReferenceSize& size) {
  return Codewords(static_cast<std::size_t>(size.data + size.ecc), 0);
}

// A row whose fixed modules, where it has some, are as they have to be.
std::string LightRow(const ReferenceSize& size, const std::vector<int>& placement, int row) {
  std::string letters;
  for (int column = 0; column < size.mappingColumns; ++column) {
    const int cell = placement[static_cast<std::size_t>(row * size.mappingColumns + column)];
    letters += cell == kFixedDark ? 'A' : 'a';
  }
  return letters;
}

struct Read {
  bool isRight;
  Codewords codewords;
};

ModuleRow RowOf(const std::string& letters) {
  ModuleRow modules;
  std::copy(letters.begin(), letters.end(), modules.Letters());
  return modules;
}

Read ReadRow(const ReferenceSize& size, int row, const std::string& letters) {
  Read read = {false, NoCodewords(size)};
  ModuleRow modules = RowOf(letters);
  const ShownCodewords shown(size.mappingRows, size.mappingColumns);
  read.isRight = shown.AddRow(row, modules, read.codewords.data());
  return read;
}

}  // namespace

TEST(ShownCodewords, EveryModuleOfEverySizeShowsWhatTheAnnexSays) {
  for (const PlainSize& plain : PlainSizes()) {
    const ReferenceSize& size = plain.size;
    const std::vector<int> placement = ReferencePlacement(size.mappingRows, size.mappingColumns);
    int wrong = 0;
    for (std::size_t at = 0; at < placement.size(); ++at) {
      const int row = static_cast<int>(at) / size.mappingColumns;
      const std::size_t column = at % static_cast<std::size_t>(size.mappingColumns);
      const int cell = placement[at];
      std::string letters = LightRow(size, placement, row);
      letters[column] = letters[column] == 'A' ? 'a' : 'A';
      const Read read = ReadRow(size, row, letters);
      if (cell < 10) {
        wrong += read.isRight ? 1 : 0;
        continue;
      }
      Codewords expected = NoCodewords(size);
      expected[static_cast<std::size_t>(cell / 10 - 1)] =
          static_cast<std::uint8_t>(0x80 >> (cell % 10 - 1));
      wrong += read.isRight && read.codewords == expected ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0) << plain;
  }
}

TEST(ShownCodewords, RowsAddToWhatOthersHaveShown) {
  for (const PlainSize& plain : PlainSizes()) {
    const ReferenceSize& size = plain.size;
    std::vector<int> stream;
    for (int i = 0; i < size.data + size.ecc; ++i) stream.push_back(37 * i % 251);
    const std::string mapping = ReferenceMapping(stream, size.mappingRows, size.mappingColumns);
    Codewords codewords = NoCodewords(size);
    const ShownCodewords shown(size.mappingRows, size.mappingColumns);
    const auto columns = static_cast<std::size_t>(size.mappingColumns);
    for (int row = 0; row < size.mappingRows; ++row) {
      ModuleRow modules = RowOf(mapping.substr(static_cast<std::size_t>(row) * columns, columns));
      EXPECT_TRUE(shown.AddRow(row, modules, codewords.data()));
    }
    EXPECT_EQ(std::vector<int>(codewords.begin(), codewords.end()), stream) << plain;
  }
}

TEST(ShownCodewords, LettersThatAreNoModulesAreRefusedWhereverTheyStand) {
  for (const PlainSize& plain : PlainSizes()) {
    const ReferenceSize& size = plain.size;
    const std::vector<int> placement = ReferencePlacement(size.mappingRows, size.mappingColumns);
    for (int row = 0; row < size.mappingRows; ++row) {
      for (std::size_t column = 0; column < static_cast<std::size_t>(size.mappingColumns);
           ++column) {
        for (const char strange : {'B', 'b', '\0', '\xE1'}) {
          std::string letters = LightRow(size, placement, row);
          letters[column] = strange;
          ASSERT_FALSE(ReadRow(size, row, letters).isRight)
              << plain << ", row " << row << ", column " << column << ", " << int{strange};
        }
      }
    }
  }
}

}  // namespace barhatch::test
