#include "support/SymbolSizeReference.h"

namespace barhatch::test {

// ISO/IEC 16022, attributes of the ECC 200 symbols: symbol, data, error correction, mapping matrix.
const std::vector<ReferenceSize>& ReferenceSquares() {
  static const std::vector<ReferenceSize> squares = {
      {10, 10, 3, 5, 8, 8},
      {12, 12, 5, 7, 10, 10},
      {14, 14, 8, 10, 12, 12},
      {16, 16, 12, 12, 14, 14},
      {18, 18, 18, 14, 16, 16},
      {20, 20, 22, 18, 18, 18},
      {22, 22, 30, 20, 20, 20},
      {24, 24, 36, 24, 22, 22},
      {26, 26, 44, 28, 24, 24},
      {32, 32, 62, 36, 28, 28},
      {36, 36, 86, 42, 32, 32},
      {40, 40, 114, 48, 36, 36},
      {44, 44, 144, 56, 40, 40},
      {48, 48, 174, 68, 44, 44},
      {52, 52, 204, 84, 48, 48},
      {64, 64, 280, 112, 56, 56},
      {72, 72, 368, 144, 64, 64},
      {80, 80, 456, 192, 72, 72},
      {88, 88, 576, 224, 80, 80},
      {96, 96, 696, 272, 88, 88},
      {104, 104, 816, 336, 96, 96},
      {120, 120, 1050, 408, 108, 108},
      {132, 132, 1304, 496, 120, 120},
      {144, 144, 1558, 620, 132, 132},
  };
  return squares;
}

const std::vector<ReferenceSize>& ReferenceRectangles() {
  static const std::vector<ReferenceSize> rectangles = {
      {8, 18, 5, 7, 6, 16},     {8, 32, 10, 11, 6, 28},   {12, 26, 16, 14, 10, 24},
      {12, 36, 22, 18, 10, 32}, {16, 36, 32, 24, 14, 32}, {16, 48, 49, 28, 14, 44},
  };
  return rectangles;
}

std::vector<ReferenceSize> ReferenceSizes() {
  std::vector<ReferenceSize> sizes = ReferenceSquares();
  sizes.insert(sizes.end(), ReferenceRectangles().begin(), ReferenceRectangles().end());
  return sizes;
}

std::optional<ReferenceSize> ReferenceChoice(int codewords, int rows, int columns,
                                             int isExpanding) {
  bool isSquare = rows == columns;
  bool hasBecomeSquare = false;
  if (!isSquare && codewords >= 50) {
    if (isExpanding != 1) return std::nullopt;
    isSquare = hasBecomeSquare = true;
  }
  const std::vector<ReferenceSize>& table = isSquare ? ReferenceSquares() : ReferenceRectangles();

  ReferenceSize chosen{};
  for (auto size = table.rbegin(); size != table.rend(); ++size)
    if (size->data >= codewords) chosen = *size;
  if (chosen.rows == 0) return std::nullopt;

  const bool mustFit = isExpanding == 0 && !hasBecomeSquare;
  if (mustFit && (rows < chosen.rows || columns < chosen.columns)) return std::nullopt;
  if (rows <= chosen.rows && columns <= chosen.columns) return chosen;

  // The request wins. The row that is looked up has to be the request itself.
  std::optional<ReferenceSize> found;
  for (auto size = table.rbegin(); size != table.rend(); ++size)
    if (size->rows >= rows && (isSquare || size->columns >= columns)) found = *size;
  if (!found || found->rows != rows || found->columns != columns) return std::nullopt;
  if (found->data < codewords) return std::nullopt;
  return found;
}

ReferenceRegions RegionsOf(int rows, int columns) {
  if (rows != columns) return {1, columns == 18 || columns == 26 ? 1 : 2};
  if (rows <= 26) return {1, 1};
  if (rows <= 52) return {2, 2};
  if (rows <= 104) return {4, 4};
  return {6, 6};
}

int BlocksOf(int rows, int columns) {
  if (rows != columns || rows <= 48) return 1;
  switch (rows) {
    case 52:
    case 64:
      return 2;
    case 72:
    case 80:
    case 88:
    case 96:
      return 4;
    case 104:
    case 120:
      return 6;
    case 132:
      return 8;
    default:
      return 10;
  }
}

}  // namespace barhatch::test
