#include "datamatrix/SymbolGrid.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "datamatrix/SizeTesting.h"
#include "support/AllocationProbe.h"
#include "support/GridText.h"
#include "support/OwnedGrid.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::OwnedGrid;
using test::ReferenceSize;
using test::SizeOf;

OwnedGrid Draw(const ReferenceSize& size, const std::string& mapping, int quietModules = 0) {
  EXPECT_EQ(mapping.size(), static_cast<std::size_t>(size.mappingRows * size.mappingColumns));
  return test::Drawn(SizeOf(size), quietModules, mapping);
}

std::string Filled(const ReferenceSize& size, char letter) {
  return std::string(static_cast<std::size_t>(size.mappingRows * size.mappingColumns), letter);
}

// A mapping matrix in which no two cells near each other are easily confused.
std::string Mixed(const ReferenceSize& size) {
  std::string mapping = Filled(size, 'a');
  for (std::size_t i = 0; i < mapping.size(); ++i) {
    if ((i * i / 3 + i / 7) % 3 == 0) mapping[i] = 'A';
  }
  return mapping;
}

ReferenceSize Size(int rows, int columns) {
  for (const ReferenceSize& size : test::ReferenceSizes())
    if (size.rows == rows && size.columns == columns) return size;
  ADD_FAILURE();
  return {};
}

TEST(SymbolGrid, SmallestSquareIsOneFramedRegion) {
  const ReferenceSize size = Size(10, 10);
  EXPECT_EQ(test::FromLetters(Draw(size, Filled(size, 'a')).Letters(), 10),
            (std::vector<std::string>{"#.#.#.#.#.",  //
                                      "#........#",  //
                                      "#.........",  //
                                      "#........#",  //
                                      "#.........",  //
                                      "#........#",  //
                                      "#.........",  //
                                      "#........#",  //
                                      "#.........",  //
                                      "##########"}));
}

TEST(SymbolGrid, RectangleOfTwoRegionsHasAnAlignmentPatternInTheMiddle) {
  const ReferenceSize size = Size(8, 32);
  EXPECT_EQ(test::FromLetters(Draw(size, Filled(size, 'a')).Letters(), 32),
            (std::vector<std::string>{"#.#.#.#.#.#.#.#.#.#.#.#.#.#.#.#.",  //
                                      "#..............##..............#",  //
                                      "#...............#...............",  //
                                      "#..............##..............#",  //
                                      "#...............#...............",  //
                                      "#..............##..............#",  //
                                      "#...............#...............",  //
                                      "################################"}));
}

// Module by module from the standard's text: finder at the left and at the bottom of every region,
// alternating modules at its top and right, all else the mapping matrix in its order.
TEST(SymbolGrid, EveryModuleOfEverySizeIsAsTheStandardSays) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    const std::string mapping = Mixed(size);
    const std::string letters = Draw(size, mapping).Letters();
    ASSERT_EQ(letters.size(), static_cast<std::size_t>(size.rows * size.columns));
    const int height = size.rows / test::RegionsOf(size.rows, size.columns).down;
    const int width = size.columns / test::RegionsOf(size.rows, size.columns).across;
    std::size_t nextCell = 0;
    for (int row = 0; row < size.rows; ++row) {
      for (int column = 0; column < size.columns; ++column) {
        char expected = '\0';
        if (column % width == 0 || row % height == height - 1) {
          expected = 'A';
        } else if (row % height == 0) {
          expected = column % width % 2 == 0 ? 'A' : 'a';
        } else if (column % width == width - 1) {
          expected = row % height % 2 == 1 ? 'A' : 'a';
        } else {
          expected = mapping.at(nextCell++);
        }
        ASSERT_EQ(letters[static_cast<std::size_t>(row * size.columns + column)], expected)
            << size.rows << "x" << size.columns << " at " << row << "," << column;
      }
    }
    EXPECT_EQ(nextCell, mapping.size());
  }
}

TEST(SymbolGrid, QuietBorderIsOneLightModuleOnEverySide) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    const std::string mapping = Mixed(size);
    const OwnedGrid grid = Draw(size, mapping, 1);
    EXPECT_EQ(grid.Rows(), size.rows + 2);
    EXPECT_EQ(grid.Columns(), size.columns + 2);
    EXPECT_EQ(grid.Letters().size(),
              static_cast<std::size_t>((size.rows + 2) * (size.columns + 2)));
    EXPECT_EQ(grid.Ring(), std::string(grid.Ring().size(), 'a'));
    EXPECT_EQ(grid.Inner(), Draw(size, mapping).Letters());
  }
}

TEST(SymbolGrid, QuietBorderMayBeWider) {
  const ReferenceSize size = Size(8, 32);
  const std::string mapping = Mixed(size);
  const OwnedGrid grid = Draw(size, mapping, 3);
  EXPECT_EQ(grid.Size(), "14x38");
  const std::string letters = grid.Letters();
  ASSERT_EQ(letters.size(), 14u * 38u);
  std::string inner;
  for (std::size_t row = 0; row < 14; ++row) {
    const std::string line = letters.substr(38 * row, 38);
    if (row < 3 || row > 10) {
      EXPECT_EQ(line, std::string(38, 'a'));
      continue;
    }
    EXPECT_EQ(line.substr(0, 3) + line.substr(35), "aaaaaa");
    inner += line.substr(3, 32);
  }
  EXPECT_EQ(inner, Draw(size, mapping).Letters());
}

TEST(SymbolGrid, NoMemoryIsNull) {
  const ReferenceSize size = Size(10, 10);
  const std::string mapping = Mixed(size);
  const test::AllocationProbe probe(1);
  EXPECT_EQ(NewGrid(SizeOf(size), 0, mapping.data(), RuntimeMemory()), nullptr);
}

}  // namespace
}  // namespace barhatch
