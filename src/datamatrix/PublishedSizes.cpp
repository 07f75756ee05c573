#include "datamatrix/PublishedSizes.h"

#include <cstddef>

namespace barhatch {

// ISO/IEC 21471, attributes of the rectangular extension, in the order of the standard.
// clang-format off
constexpr SymbolSize kDmreSizes[kDmreSizeCount] = {
    // symbol   regions  mapping   codewords   blocks
    //                   matrix    data   ECC
    {  8,  48,  1, 2,    6,  44,    18,   15,   1},
    {  8,  64,  1, 4,    6,  56,    24,   18,   1},
    {  8,  80,  1, 4,    6,  72,    32,   22,   1},
    {  8,  96,  1, 4,    6,  88,    38,   28,   1},
    {  8, 120,  1, 6,    6, 108,    49,   32,   1},
    {  8, 144,  1, 6,    6, 132,    63,   36,   1},
    { 12,  64,  1, 4,   10,  56,    43,   27,   1},
    { 12,  88,  1, 4,   10,  80,    64,   36,   1},
    { 16,  64,  1, 4,   14,  56,    62,   36,   1},
    { 20,  36,  1, 2,   18,  32,    44,   28,   1},
    { 20,  44,  1, 2,   18,  40,    56,   34,   1},
    { 20,  64,  1, 4,   18,  56,    84,   42,   1},
    { 22,  48,  1, 2,   20,  44,    72,   38,   1},
    { 24,  48,  1, 2,   22,  44,    80,   41,   1},
    { 24,  64,  1, 4,   22,  56,   108,   46,   1},
    { 26,  40,  1, 2,   24,  36,    70,   38,   1},
    { 26,  48,  1, 2,   24,  44,    90,   42,   1},
    { 26,  64,  1, 4,   24,  56,   118,   50,   1},
};
// clang-format on

namespace {

constexpr bool AreConsistent() {
  for (const SymbolSize& size : kDmreSizes) {
    if (!IsConsistent(size)) return false;
  }
  return true;
}
static_assert(AreConsistent(), "codewords fill the matrix, regions have frames");

struct SizeTable {
  const SymbolSize* sizes;
  int count;
};
constexpr SizeTable kTables[] = {{kSquareSizes, kSquareSizeCount},
                                 {kRectangularSizes, kRectangularSizeCount},
                                 {kDmreSizes, kDmreSizeCount}};
constexpr int kSquares = 1;  // bits: 1 << index of a table
constexpr int kRectangles = 2;
constexpr int kDmre = 4;
constexpr int kAllTables = kSquares | kRectangles | kDmre;
constexpr int kTablesOfShape[] = {kSquares, kRectangles, kSquares | kRectangles,
                                  kRectangles | kDmre, kAllTables};

template <typename Function>
void ForEachSize(int tables, const Function& function) {
  for (int table = 0; table < 3; ++table) {
    if ((tables & 1 << table) == 0) continue;
    for (int i = 0; i < kTables[table].count; ++i) function(kTables[table].sizes[i]);
  }
}

constexpr int AreaOf(const SymbolSize& size) { return size.symbolRows * size.symbolColumns; }

// Of equal areas the one with more rows is nearer to a square: no size is higher than wide.
bool IsSmaller(const SymbolSize& size, const SymbolSize* than) {
  if (than == nullptr || AreaOf(size) != AreaOf(*than)) {
    return than == nullptr || AreaOf(size) < AreaOf(*than);
  }
  return size.symbolRows > than->symbolRows;
}

const SymbolSize* SmallestCovering(int tables, int codewords, int rows, int columns) {
  const SymbolSize* smallest = nullptr;
  ForEachSize(tables, [&](const SymbolSize& size) {
    const bool covers = size.symbolRows >= rows && size.symbolColumns >= columns;
    if (covers && size.dataCodewords >= codewords && IsSmaller(size, smallest)) smallest = &size;
  });
  return smallest;
}

int TablesOf(const SymbolSize& size) {
  if (IsDmre(size)) return kDmre;
  return size.symbolRows == size.symbolColumns ? kSquares : kRectangles;
}

int TablesOf(Shape shape) { return kTablesOfShape[static_cast<int>(shape)]; }

const SymbolSize* Choose(int codewords, const SizeWish& wish, Reason& reason) {
  if (wish.rows == 0 && wish.columns == 0) {
    reason = Reason::kTooManyCodewords;
    return SmallestOf(wish.shape, codewords);
  }
  const SymbolSize* const asked = FindSize(wish.rows, wish.columns);
  reason = Reason::kNoSuchSize;
  if (asked == nullptr || asked->dataCodewords >= codewords) return asked;
  reason = wish.mayGrow ? Reason::kSizeTooSmall : Reason::kNoPermissionToGrow;
  return wish.mayGrow ? GrownSize(codewords, wish.rows, wish.columns) : nullptr;
}

}  // namespace

const SymbolSize* FindSize(int rows, int columns) {
  const SymbolSize* found = nullptr;
  ForEachSize(kAllTables, [&](const SymbolSize& size) {
    if (size.symbolRows == rows && size.symbolColumns == columns) found = &size;
  });
  return found;
}

bool IsDmre(const SymbolSize& size) {
  bool isDmre = false;
  ForEachSize(kDmre, [&](const SymbolSize& row) {
    isDmre |= row.symbolRows == size.symbolRows && row.symbolColumns == size.symbolColumns;
  });
  return isDmre;
}

const SymbolSize* GrownSize(int codewords, int rows, int columns) {
  const SymbolSize* const asked = FindSize(rows, columns);
  if (asked == nullptr) return nullptr;
  return SmallestCovering(TablesOf(*asked), codewords, rows, columns);
}

const SymbolSize* NextPublishedSize(int rows, int columns) {
  return SmallestCovering(rows == columns ? kSquares : kRectangles | kDmre, 0, rows, columns);
}

const SymbolSize* SmallestOf(Shape shape, int codewords) {
  return SmallestCovering(TablesOf(shape), codewords, 0, 0);
}

const SymbolSize& LargestOf(Shape shape) {
  const SymbolSize* largest = kSquareSizes;  // the smallest of all
  ForEachSize(TablesOf(shape), [&](const SymbolSize& size) {
    if (size.dataCodewords > largest->dataCodewords) largest = &size;
  });
  return *largest;
}

Refusal ChoosePublishedSize(int codewords, const SizeWish& wish, SymbolSize& chosen) {
  Reason reason = Reason::kNone;
  const SymbolSize* const size = Choose(codewords, wish, reason);
  if (size == nullptr) return {reason, -1, codewords};
  chosen = *size;
  return {};
}

}  // namespace barhatch
