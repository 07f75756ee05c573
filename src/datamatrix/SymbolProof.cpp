#include "datamatrix/SymbolProof.h"

#include <cstddef>
#include <cstring>

#include "datamatrix/RootCheck.h"
#include "datamatrix/ShownCodewords.h"
#include "job/ModuleString.h"

namespace barhatch {

namespace {

struct ReadSize {
  std::uint8_t rows;
  std::uint8_t columns;
  std::uint8_t errorCodewords;  // of a block
  std::uint8_t blocks;
};

// clang-format off
constexpr ReadSize kReadSizes[] = {
    // ISO/IEC 16022, squares and rectangles
    { 10,  10,  5, 1}, { 12,  12,  7, 1}, { 14,  14, 10, 1}, { 16,  16, 12, 1}, { 18,  18, 14,  1},
    { 20,  20, 18, 1}, { 22,  22, 20, 1}, { 24,  24, 24, 1}, { 26,  26, 28, 1}, { 32,  32, 36,  1},
    { 36,  36, 42, 1}, { 40,  40, 48, 1}, { 44,  44, 56, 1}, { 48,  48, 68, 1}, { 52,  52, 42,  2},
    { 64,  64, 56, 2}, { 72,  72, 36, 4}, { 80,  80, 48, 4}, { 88,  88, 56, 4}, { 96,  96, 68,  4},
    {104, 104, 56, 6}, {120, 120, 68, 6}, {132, 132, 62, 8}, {144, 144, 62, 10},
    {  8,  18,  7, 1}, {  8,  32, 11, 1}, { 12,  26, 14, 1}, { 12,  36, 18, 1}, { 16,  36, 24,  1},
    { 16,  48, 28, 1},
    // ISO/IEC 21471
    {  8,  48, 15, 1}, {  8,  64, 18, 1}, {  8,  80, 22, 1}, {  8,  96, 28, 1}, {  8, 120, 32,  1},
    {  8, 144, 36, 1}, { 12,  64, 27, 1}, { 12,  88, 36, 1}, { 16,  64, 36, 1}, { 20,  36, 28,  1},
    { 20,  44, 34, 1}, { 20,  64, 42, 1}, { 22,  48, 38, 1}, { 24,  48, 41, 1}, { 24,  64, 46,  1},
    { 26,  40, 38, 1}, { 26,  48, 42, 1}, { 26,  64, 50, 1},
};
// clang-format on
static_assert(sizeof(kReadSizes) / sizeof(kReadSizes[0]) == 24 + 6 + 18, "all sizes");

constexpr int kMostRegionModules = 26;  // of a side, its frame included

// Regions along a side: as few of 1, 2, 4 and 6 as are small enough.
constexpr int RegionsAlong(int modules) {
  int regions = 1;
  while (regions <= 4 && modules > regions * kMostRegionModules) regions *= 2;
  return regions <= 4 ? regions : 6;
}
static_assert(RegionsAlong(26) == 1 && RegionsAlong(32) == 2 && RegionsAlong(64) == 4, "");
static_assert(RegionsAlong(104) == 4 && RegionsAlong(120) == 6, "");

const ReadSize* SizeOf(int rows, int columns) {
  for (const ReadSize& size : kReadSizes) {
    if (size.rows == rows && size.columns == columns) return &size;
  }
  return nullptr;
}

bool AreAll(const char* letters, std::size_t count, char letter) {
  return count == 0 || (*letters == letter && std::memcmp(letters, letters + 1, count - 1) == 0);
}

bool AreLight(const char* letters, std::size_t count) {
  return AreAll(letters, count, kNarrowSpace);
}

// Dark and light in turn. REQUIRES: two letters or more.
bool Alternate(const char* letters, std::size_t count) {
  return letters[0] == kNarrowBar && letters[1] == kNarrowSpace &&
         std::memcmp(letters, letters + 2, count - 2) == 0;
}

class GridReader {
 public:
  GridReader(const DrawnGrid& grid, std::uint8_t* codewords)
      : grid_(grid),
        rows_(grid.rows - 2 * grid.quietModules),
        columns_(grid.columns - 2 * grid.quietModules),
        regionRows_(rows_ / RegionsAlong(rows_)),
        regionColumns_(columns_ / RegionsAlong(columns_)),
        shown_(rows_ - 2 * RegionsAlong(rows_), columns_ - 2 * RegionsAlong(columns_)),
        codewords_(codewords) {}

  // False for a module that is not as it has to be.
  bool Read() {
    const auto quietLines = static_cast<std::size_t>(grid_.quietModules * grid_.columns);
    const char* const below = LineAt(rows_) - grid_.quietModules;
    if (!AreLight(grid_.letters, quietLines) || !AreLight(below, quietLines)) return false;
    for (int line = 0; line < rows_; ++line) {
      if (!AreSidesLight(LineAt(line)) || !ReadLine(line)) return false;
    }
    return true;
  }

 private:
  // The first letter of the symbol in a line of it.
  const char* LineAt(int line) const {
    return grid_.letters + (line + grid_.quietModules) * grid_.columns + grid_.quietModules;
  }

  bool AreSidesLight(const char* line) const {
    const auto quiet = static_cast<std::size_t>(grid_.quietModules);
    return AreLight(line - quiet, quiet) && AreLight(line + columns_, quiet);
  }

  bool ReadLine(int line) {
    const char* const letters = LineAt(line);
    const auto count = static_cast<std::size_t>(columns_);
    const int lineOfRegion = line % regionRows_;
    if (lineOfRegion == 0) return Alternate(letters, count);
    if (lineOfRegion == regionRows_ - 1) return AreAll(letters, count, kNarrowBar);
    return ReadDataLine(letters, lineOfRegion % 2 == 0 ? kNarrowSpace : kNarrowBar);
  }

  bool ReadDataLine(const char* letters, char rightSide) {
    ModuleRow row;
    char* next = row.Letters();
    const int modules = regionColumns_ - 2;
    for (int region = 0; region < columns_; region += regionColumns_, next += modules) {
      const char* const side = letters + region;
      if (side[0] != kNarrowBar || side[modules + 1] != rightSide) return false;
      std::memcpy(next, side + 1, static_cast<std::size_t>(modules));
    }
    return shown_.AddRow(row_++, row, codewords_);
  }

  const DrawnGrid& grid_;
  const int rows_;
  const int columns_;
  const int regionRows_;
  const int regionColumns_;
  const ShownCodewords shown_;
  std::uint8_t* const codewords_;
  int row_ = 0;  // of the mapping matrix
};

// Data codeword i is of block i modulo blocks. So are error codewords, counted on from the data in
// the industry's order and from 0 in the standard's.
InterleavedBlock BlockAt(int block, const ReadSize& size, int dataCodewords, BlockOrder order,
                         const std::uint8_t* codewords) {
  const int blocks = size.blocks;
  const int ahead = order == BlockOrder::kIndustry ? dataCodewords % blocks : 0;
  return {codewords + block, (dataCodewords - block + blocks - 1) / blocks,
          codewords + dataCodewords + (block + blocks - ahead) % blocks, size.errorCodewords,
          blocks};
}

bool HasNoErrors(const ReadSize& size, int dataCodewords, BlockOrder order,
                 const std::uint8_t* codewords) {
  for (int tested = 0; tested < size.errorCodewords; tested += 16) {
    const int left = size.errorCodewords - tested;
    const RootCheck roots(tested / 16, left < 16 ? left : 16);
    for (int block = 0; block < size.blocks; ++block) {
      if (!roots.Divides(BlockAt(block, size, dataCodewords, order, codewords))) return false;
    }
  }
  return true;
}

int MappingModules(const ReadSize& size) {
  return (size.rows - 2 * RegionsAlong(size.rows)) *
         (size.columns - 2 * RegionsAlong(size.columns));
}

}  // namespace

bool ReadGrid(const DrawnGrid& grid, BlockOrder order, CodewordCounts counts,
              std::uint8_t* codewords) {
  const ReadSize* const size =
      SizeOf(grid.rows - 2 * grid.quietModules, grid.columns - 2 * grid.quietModules);
  if (size == nullptr || counts.error != size->errorCodewords * size->blocks ||
      counts.data + counts.error != MappingModules(*size) / 8) {
    return false;
  }
  std::memset(codewords, 0, static_cast<std::size_t>(counts.data + counts.error));
  return GridReader(grid, codewords).Read() && HasNoErrors(*size, counts.data, order, codewords);
}

}  // namespace barhatch
