#include "support/PlainGrid.h"

#include <cstddef>

#include "support/EccReference.h"
#include "support/PlacementReference.h"

namespace barhatch::test {

namespace {

// ISO/IEC 21471: rows, columns, data and error codewords, regions across.
constexpr int kLongRectangles[][5] = {
    {8, 48, 18, 15, 2},  {8, 64, 24, 18, 4},   {8, 80, 32, 22, 4},   {8, 96, 38, 28, 4},
    {8, 120, 49, 32, 6}, {8, 144, 63, 36, 6},  {12, 64, 43, 27, 4},  {12, 88, 64, 36, 4},
    {16, 64, 62, 36, 4}, {20, 36, 44, 28, 2},  {20, 44, 56, 34, 2},  {20, 64, 84, 42, 4},
    {22, 48, 72, 38, 2}, {24, 48, 80, 41, 2},  {24, 64, 108, 46, 4}, {26, 40, 70, 38, 2},
    {26, 48, 90, 42, 2}, {26, 64, 118, 50, 4},
};

std::vector<PlainSize> AllSizes() {
  std::vector<PlainSize> sizes;
  for (const ReferenceSize& size : ReferenceSizes()) {
    sizes.push_back({size, RegionsOf(size.rows, size.columns), BlocksOf(size.rows, size.columns)});
  }
  for (const int(&row)[5] : kLongRectangles) {
    const ReferenceSize size = {row[0], row[1], row[2], row[3], row[0] - 2, row[1] - 2 * row[4]};
    sizes.push_back({size, {1, row[4]}, 1});
  }
  return sizes;
}

bool IsDark(int row, int column, const PlainSize& plain, const std::string& mapping) {
  const int regionRows = plain.size.rows / plain.regions.down;
  const int regionColumns = plain.size.columns / plain.regions.across;
  const int rowInside = row % regionRows;
  const int columnInside = column % regionColumns;
  if (columnInside == 0 || rowInside == regionRows - 1) return true;
  if (rowInside == 0) return column % 2 == 0;
  if (columnInside == regionColumns - 1) return row % 2 == 1;
  const int mappingRow = row - 1 - 2 * (row / regionRows);
  const int mappingColumn = column - 1 - 2 * (column / regionColumns);
  return mapping.at(static_cast<std::size_t>(mappingRow * plain.size.mappingColumns +
                                             mappingColumn)) == 'A';
}

}  // namespace

const std::vector<PlainSize>& PlainSizes() {
  static const std::vector<PlainSize> sizes = AllSizes();
  return sizes;
}

std::vector<int> PlainStream(const std::vector<int>& data, const PlainSize& plain,
                             bool isIndustry) {
  const std::vector<std::vector<int>> blocks = CodedBlocks(data, plain.size.ecc, plain.blocks);
  if (isIndustry) return EmittedRoundRobin(blocks);
  std::vector<int> stream = data;
  const std::size_t errors = static_cast<std::size_t>(plain.size.ecc / plain.blocks);
  for (std::size_t i = 0; i < errors; ++i) {
    for (const std::vector<int>& block : blocks) stream.push_back(block[block.size() - errors + i]);
  }
  return stream;
}

std::string PlainGrid(const std::vector<int>& stream, const PlainSize& plain, int quietModules) {
  const std::string mapping =
      ReferenceMapping(stream, plain.size.mappingRows, plain.size.mappingColumns);
  std::string grid;
  for (int row = -quietModules; row < plain.size.rows + quietModules; ++row) {
    for (int column = -quietModules; column < plain.size.columns + quietModules; ++column) {
      const bool isQuiet =
          row < 0 || column < 0 || row >= plain.size.rows || column >= plain.size.columns;
      grid += !isQuiet && IsDark(row, column, plain, mapping) ? 'A' : 'a';
    }
  }
  return grid;
}

}  // namespace barhatch::test
