#include "datamatrix/ShownCodewords.h"

#include <algorithm>

namespace barhatch {

namespace {

struct PlaceClass {
  int bit;      // 0 the most significant
  int rows;     // from the module down to the last one of its shape
  int columns;  // and to the right
};

constexpr PlaceClass kClasses[] = {
    {7, 0, 0}, {2, 1, 2}, {3, 1, 1}, {4, 1, 0}, {0, 2, 2}, {1, 2, 1}, {5, 0, 2}, {6, 0, 1},
};

constexpr int ClassOf(int row, int column) { return (column + 5 * row + 4) % 8; }

// Every class is that of the module which its own way leads to the last one from.
constexpr bool ClassesLeadToLastModules() {
  int bits = 0;
  for (const PlaceClass& way : kClasses) {
    const int index = static_cast<int>(&way - kClasses);
    if (ClassOf(16 - way.rows, 20 - way.columns) != index) return false;
    bits |= 1 << way.bit;
  }
  return bits == 0xFF;
}
static_assert(ClassOf(16, 20) == 0 && ClassesLeadToLastModules(), "eight modules of one shape");

constexpr bool IsUpwards(int diagonal) { return diagonal % 2 != 0; }

// How far the codeword of a last module is from that of row 0 in its diagonal.
constexpr int ShiftOf(int row, int diagonal) { return IsUpwards(diagonal) ? -(row / 2) : row / 2; }

}  // namespace

// Negative places count from the bottom and from the right.
struct TornShape {
  int places[8][2];  // row and column, bit by bit
  int frontOf;    // the sum of row and column of its diagonal, less the rows: it comes first there
  bool isExtra;   // no last module of the diagonal gives way to it
  int lastGone;   // the diagonal that has no last module in row 0, less the columns; 0 for none
  int firstGone;  // the diagonal that has none in row 1, less the columns; 1 for none
};

namespace {

// ISO/IEC 16022, the corner cases.
constexpr TornShape kTorn[] = {
    {{{-1, 0}, {-1, 1}, {-1, 2}, {0, -2}, {0, -1}, {1, -1}, {2, -1}, {3, -1}}, 0, true, 0, 1},
    {{{-3, 0}, {-2, 0}, {-1, 0}, {0, -4}, {0, -3}, {0, -2}, {0, -1}, {1, -1}}, -2, false, -2, 1},
    {{{-3, 0}, {-2, 0}, {-1, 0}, {0, -2}, {0, -1}, {1, -1}, {2, -1}, {3, -1}}, -2, false, 0, 1},
    {{{-1, 0}, {-1, -1}, {0, -3}, {0, -2}, {0, -1}, {1, -3}, {1, -2}, {1, -1}}, 6, true, 0, 0},
};

const TornShape* TornIn(int rows, int columns) {
  if (rows % 8 == 4) return &kTorn[0];
  if (rows % 8 != 6) return nullptr;
  if (columns % 4 != 0) return &kTorn[1];
  return columns % 8 == 4 ? &kTorn[2] : &kTorn[3];
}

int FromEnd(int place, int count) { return place < 0 ? place + count : place; }

}  // namespace

ShownCodewords::ShownCodewords(int rows, int columns)
    : rows_(rows), columns_(columns), torn_(TornIn(rows, columns)) {
  NumberDiagonals();
}

void ShownCodewords::NumberDiagonals() {
  int next = 0;
  for (int diagonal = 1; 4 * diagonal <= rows_ + columns_ - 2; ++diagonal) {
    const int sum = 4 * diagonal;
    // Last modules of even rows and columns, or of odd ones.
    const int odd = IsUpwards(diagonal) ? 0 : 1;
    const int low = std::min(rows_ - 2 + odd, sum - odd);
    int high = std::max(odd, sum - columns_ + 2 - odd);
    if (torn_ != nullptr && sum == rows_ + torn_->frontOf) {
      tornCodeword_ = next;
      if (torn_->isExtra) ++next;
    }
    if (torn_ != nullptr && sum == columns_ + torn_->firstGone) high += 2;
    const int first = IsUpwards(diagonal) ? low : high;
    inRow0_[diagonal] = static_cast<std::int16_t>(next - ShiftOf(first, diagonal));
    next += (low - high) / 2 + 1;
    if (torn_ != nullptr && torn_->lastGone != 0 && sum == columns_ + torn_->lastGone) --next;
  }
}

int ShownCodewords::CodewordAt(int lastRow, int lastColumn) const {
  if (lastRow >= rows_) {
    lastRow -= rows_;
    lastColumn -= 4 - (rows_ + 4) % 8;
  }
  if (lastColumn >= columns_) {
    lastColumn -= columns_;
    lastRow -= 4 - (columns_ + 4) % 8;
  }
  if (lastRow < 0) {
    lastRow += rows_;
    lastColumn += 4 - (rows_ + 4) % 8;
  }
  const int diagonal = (lastRow + lastColumn) / 4;
  return inRow0_[diagonal] + ShiftOf(lastRow, diagonal);
}

// Two dark modules in one diagonal of the corner, two light ones in the other.
bool ShownCodewords::TakeFixedCorner(int row, ModuleRow& modules) const {
  if (rows_ * columns_ % 8 == 0 || row < rows_ - 2) return true;
  const int dark = columns_ - (rows_ - row);
  const int light = 2 * columns_ - 3 - dark;
  const bool isRight = modules.IsDark(dark) && !modules.IsDark(light);
  modules.SetLight(dark);
  modules.SetLight(light);
  return isRight;
}

void ShownCodewords::TakeTornShape(int row, ModuleRow& modules, std::uint8_t* codewords) const {
  if (torn_ == nullptr) return;
  for (int bit = 0; bit < 8; ++bit) {
    if (FromEnd(torn_->places[bit][0], rows_) != row) continue;
    const int column = FromEnd(torn_->places[bit][1], columns_);
    if (!modules.IsDark(column)) continue;
    codewords[tornCodeword_] |= static_cast<std::uint8_t>(0x80 >> bit);
    modules.SetLight(column);
  }
}

// Eight modules from the class 1 on are of three codewords: three, two and three bits.
void ShownCodewords::AddEights(int row, int first, int end, const ModuleRow& modules,
                               std::uint8_t* codewords) const {
  const std::int16_t* inRow0 = inRow0_ + (row + first + 3) / 4;
  const int diagonal = (row + first + 3) / 4;
  const int shift0 = ShiftOf(row + 1, diagonal);
  const int shift1 = ShiftOf(row + 2, diagonal + 1);
  const int shift2 = ShiftOf(row, diagonal + 1);
  for (int column = first; column < end; column += 8, inRow0 += 2) {
    const std::uint8_t* const bytes = modules.bytes + column / 8;
    const int eight = (bytes[0] << 8 | bytes[1]) >> (8 - column % 8) & 0xFF;
    codewords[inRow0[0] + shift0] |= static_cast<std::uint8_t>(eight >> 2 & 0x38);
    codewords[inRow0[1] + shift1] |= static_cast<std::uint8_t>(eight << 3 & 0xC0);
    codewords[inRow0[1] + shift2] |= static_cast<std::uint8_t>(eight & 0x07);
  }
}

void ShownCodewords::AddOneByOne(int row, int first, int end, const ModuleRow& modules,
                                 std::uint8_t* codewords) const {
  for (int column = first; column < end; ++column) {
    if (!modules.IsDark(column)) continue;
    const PlaceClass& way = kClasses[ClassOf(row, column)];
    codewords[CodewordAt(row + way.rows, column + way.columns)] |=
        static_cast<std::uint8_t>(0x80 >> way.bit);
  }
}

bool ShownCodewords::AddRow(int row, ModuleRow modules, std::uint8_t* codewords) const {
  const bool isRight = TakeFixedCorner(row, modules);
  TakeTornShape(row, modules, codewords);
  // The last modules of the two lowest rows may lie below, as those of the last columns beside.
  const int first = (8 - ClassOf(row, 7)) % 8;
  const int end = row < rows_ - 2 ? columns_ - (columns_ - first) % 8 : first;
  AddOneByOne(row, 0, first, modules, codewords);
  AddEights(row, first, end, modules, codewords);
  AddOneByOne(row, end, columns_, modules, codewords);
  return isRight;
}

}  // namespace barhatch
