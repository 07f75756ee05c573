#include "support/PlacementReference.h"

#include <cstddef>

namespace barhatch::test {

namespace {

constexpr int kUnset = -1;

class Annex {
 public:
  Annex(int rows, int columns)
      : rows_(rows), columns_(columns), cells_(static_cast<std::size_t>(rows * columns), kUnset) {}

  std::vector<int> Cells() {
    int codeword = 1;
    int row = 4;
    int column = 0;
    do {
      if (row == rows_ && column == 0) Corner1(codeword++);
      if (row == rows_ - 2 && column == 0 && columns_ % 4 != 0) Corner2(codeword++);
      if (row == rows_ - 2 && column == 0 && columns_ % 8 == 4) Corner3(codeword++);
      if (row == rows_ + 4 && column == 2 && columns_ % 8 == 0) Corner4(codeword++);
      do {
        if (row < rows_ && column >= 0 && Cell(row, column) == kUnset)
          Utah(row, column, codeword++);
        row -= 2;
        column += 2;
      } while (row >= 0 && column < columns_);
      row += 1;
      column += 3;
      do {
        if (row >= 0 && column < columns_ && Cell(row, column) == kUnset)
          Utah(row, column, codeword++);
        row += 2;
        column -= 2;
      } while (row < rows_ && column >= 0);
      row += 3;
      column += 1;
    } while (row < rows_ || column < columns_);
    FixedCorner();
    return cells_;
  }

 private:
  int& Cell(int row, int column) {
    return cells_.at(static_cast<std::size_t>(row * columns_ + column));
  }

  void Module(int row, int column, int codeword, int bit) {
    if (row < 0) {
      row += rows_;
      column += 4 - ((rows_ + 4) % 8);
    }
    if (column < 0) {
      column += columns_;
      row += 4 - ((columns_ + 4) % 8);
    }
    if (row >= rows_) row -= rows_;  // ISO/IEC 21471
    Cell(row, column) = 10 * codeword + bit;
  }

  void Utah(int row, int column, int codeword) {
    Module(row - 2, column - 2, codeword, 1);
    Module(row - 2, column - 1, codeword, 2);
    Module(row - 1, column - 2, codeword, 3);
    Module(row - 1, column - 1, codeword, 4);
    Module(row - 1, column, codeword, 5);
    Module(row, column - 2, codeword, 6);
    Module(row, column - 1, codeword, 7);
    Module(row, column, codeword, 8);
  }

  void Corner1(int codeword) {
    Module(rows_ - 1, 0, codeword, 1);
    Module(rows_ - 1, 1, codeword, 2);
    Module(rows_ - 1, 2, codeword, 3);
    Module(0, columns_ - 2, codeword, 4);
    Module(0, columns_ - 1, codeword, 5);
    Module(1, columns_ - 1, codeword, 6);
    Module(2, columns_ - 1, codeword, 7);
    Module(3, columns_ - 1, codeword, 8);
  }

  void Corner2(int codeword) {
    Module(rows_ - 3, 0, codeword, 1);
    Module(rows_ - 2, 0, codeword, 2);
    Module(rows_ - 1, 0, codeword, 3);
    Module(0, columns_ - 4, codeword, 4);
    Module(0, columns_ - 3, codeword, 5);
    Module(0, columns_ - 2, codeword, 6);
    Module(0, columns_ - 1, codeword, 7);
    Module(1, columns_ - 1, codeword, 8);
  }

  void Corner3(int codeword) {
    Module(rows_ - 3, 0, codeword, 1);
    Module(rows_ - 2, 0, codeword, 2);
    Module(rows_ - 1, 0, codeword, 3);
    Module(0, columns_ - 2, codeword, 4);
    Module(0, columns_ - 1, codeword, 5);
    Module(1, columns_ - 1, codeword, 6);
    Module(2, columns_ - 1, codeword, 7);
    Module(3, columns_ - 1, codeword, 8);
  }

  void Corner4(int codeword) {
    Module(rows_ - 1, 0, codeword, 1);
    Module(rows_ - 1, columns_ - 1, codeword, 2);
    Module(0, columns_ - 3, codeword, 3);
    Module(0, columns_ - 2, codeword, 4);
    Module(0, columns_ - 1, codeword, 5);
    Module(1, columns_ - 3, codeword, 6);
    Module(1, columns_ - 2, codeword, 7);
    Module(1, columns_ - 1, codeword, 8);
  }

  void FixedCorner() {
    if (Cell(rows_ - 1, columns_ - 1) != kUnset) return;
    Cell(rows_ - 1, columns_ - 1) = kFixedDark;
    Cell(rows_ - 2, columns_ - 2) = kFixedDark;
    Cell(rows_ - 1, columns_ - 2) = kFixedLight;
    Cell(rows_ - 2, columns_ - 1) = kFixedLight;
  }

  int rows_;
  int columns_;
  std::vector<int> cells_;
};

}  // namespace

std::vector<int> ReferencePlacement(int rows, int columns) { return Annex(rows, columns).Cells(); }

std::string ReferenceMapping(const std::vector<int>& codewords, int rows, int columns) {
  std::string mapping;
  for (int cell : ReferencePlacement(rows, columns)) {
    const bool isFixed = cell < 10;
    const bool isDark =
        isFixed ? cell == kFixedDark
                : (codewords.at(static_cast<std::size_t>(cell / 10 - 1)) >> (8 - cell % 10)) & 1;
    mapping += isDark ? 'A' : 'a';
  }
  return mapping;
}

std::vector<int> CodewordsOfGrid(const std::string& grid, const ReferenceSize& size) {
  const ReferenceRegions regions = RegionsOf(size.rows, size.columns);
  const int regionRows = size.mappingRows / regions.down;
  const int regionColumns = size.mappingColumns / regions.across;
  const std::vector<int> placement = ReferencePlacement(size.mappingRows, size.mappingColumns);
  std::vector<int> codewords(static_cast<std::size_t>(size.data + size.ecc), 0);
  for (int row = 0; row < size.mappingRows; ++row) {
    for (int column = 0; column < size.mappingColumns; ++column) {
      const int cell = placement[static_cast<std::size_t>(row * size.mappingColumns + column)];
      const int gridRow = row + 1 + 2 * (row / regionRows);
      const int gridColumn = column + 1 + 2 * (column / regionColumns);
      const char letter = grid.at(static_cast<std::size_t>(gridRow * size.columns + gridColumn));
      if (cell >= 10 && letter == 'A')
        codewords.at(static_cast<std::size_t>(cell / 10 - 1)) |= 1 << (8 - cell % 10);
    }
  }
  return codewords;
}

}  // namespace barhatch::test
