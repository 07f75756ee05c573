#include "datamatrix/ShownCodewords.h"

namespace barhatch {

namespace {

constexpr int ClassOf(int row, int column) { return (column + 5 * row + 4) % 8; }

// Eight modules in a row from the class 1 on are of three codewords.
struct Part {
  int rows;     // from the modules down to the last one of their shape
  int columns;  // from the first of the eight to it
};
constexpr Part kBits345 = {1, 2};
constexpr Part kBits12 = {2, 5};
constexpr Part kBits678 = {0, 7};
constexpr bool LeadsToLastModule(const Part& part) {
  return ClassOf(16 + part.rows, 13 + part.columns) == 0;
}
static_assert(ClassOf(16, 13) == 1 && LeadsToLastModule(kBits345) && LeadsToLastModule(kBits12) &&
                  LeadsToLastModule(kBits678),
              "last modules are of the class 0");

// The bits of a codeword that the eight show, 1 dark, the first the highest.
constexpr int Bits345(int dark) { return dark >> 2 & 0x38; }
constexpr int Bits12(int dark) { return dark << 3 & 0xC0; }
constexpr int Bits678(int dark) { return dark & 0x07; }

constexpr bool IsUpwards(int diagonal) { return diagonal % 2 != 0; }

constexpr std::uint64_t Letter(const char* letters, int index) {
  return std::uint64_t{static_cast<unsigned char>(letters[index])} << (56 - 8 * index);
}

// Eight letters, the first in the highest byte: written out, it is one load for compilers.
constexpr std::uint64_t EightLetters(const char* letters) {
  return Letter(letters, 0) | Letter(letters, 1) | Letter(letters, 2) | Letter(letters, 3) |
         Letter(letters, 4) | Letter(letters, 5) | Letter(letters, 6) | Letter(letters, 7);
}

constexpr std::uint64_t kInEachByte = 0x0101010101010101;
constexpr int kLightBit = 5;
static_assert((kNarrowBar | 1 << kLightBit) == kNarrowSpace && kNarrowBar != kNarrowSpace, "");

// The letters differ in one bit.
constexpr bool AreModules(std::uint64_t eight) {
  return (eight | kInEachByte << kLightBit) == kInEachByte * kNarrowSpace;
}

// A bit for each letter, 1 dark, the first the highest: the product moves that of letter i, bit
// 56 - 8 i, to bit 63 - i.
constexpr int DarkBits(std::uint64_t eight) {
  const std::uint64_t dark = ~eight >> kLightBit & kInEachByte;
  return static_cast<int>(dark * 0x0102040810204080 >> 56);
}
static_assert(DarkBits(EightLetters("AaaAAaAA")) == 0b10011011 &&
                  AreModules(EightLetters("aAaAaAaA")),
              "");

// How far the codeword of a last module is from that of row 0 in its diagonal.
constexpr int ShiftOf(int row, int diagonal) { return IsUpwards(diagonal) ? -(row / 2) : row / 2; }

}  // namespace

// Negative places count from the bottom and from the right.
struct TornShape {
  int places[8][2];    // row and column of each module, the most significant bit first
  int frontOf;         // row + column, less the rows, of the diagonal in front of which it comes
  bool isExtra;        // it takes the place of no last module there
  int withoutHighest;  // row + column, less the columns, of the diagonal that lacks its highest one
};

namespace {

constexpr int kNoDiagonal = 1;  // columns are even, and so are all of these sums

// ISO/IEC 16022, the corner cases.
// clang-format off
constexpr TornShape kTorn[] = {
    {{{-1, 0}, {-1,  1}, {-1,  2}, {0, -2}, {0, -1}, {1, -1}, {2, -1}, {3, -1}},
      0, true,  kNoDiagonal},
    {{{-3, 0}, {-2,  0}, {-1,  0}, {0, -4}, {0, -3}, {0, -2}, {0, -1}, {1, -1}},
     -2, false, -2},
    {{{-3, 0}, {-2,  0}, {-1,  0}, {0, -2}, {0, -1}, {1, -1}, {2, -1}, {3, -1}},
     -2, false, kNoDiagonal},
    {{{-1, 0}, {-1, -1}, { 0, -3}, {0, -2}, {0, -1}, {1, -3}, {1, -2}, {1, -1}},
      6, true,  0},
};
// clang-format on

const TornShape* TornIn(int rows, int columns) {
  if (rows % 8 == 4) return &kTorn[0];
  if (rows % 8 != 6) return nullptr;
  if (columns % 4 != 0) return &kTorn[1];
  return columns % 8 == 4 ? &kTorn[2] : &kTorn[3];
}

constexpr int Smaller(int a, int b) { return a < b ? a : b; }
constexpr int Larger(int a, int b) { return a > b ? a : b; }

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
    const int low = Smaller(rows_ - 2 + odd, sum - odd);
    int high = Larger(odd, sum - columns_ + 2 - odd);
    if (torn_ != nullptr && sum == rows_ + torn_->frontOf) {
      tornCodeword_ = next;
      if (torn_->isExtra) ++next;
    }
    if (torn_ != nullptr && sum == columns_ + torn_->withoutHighest) high += 2;
    const int first = IsUpwards(diagonal) ? low : high;
    inRow0_[diagonal] = static_cast<std::int16_t>(next - ShiftOf(first, diagonal));
    next += (low - high) / 2 + 1;
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
bool ShownCodewords::TakeFixedCorner(int row, char* letters) const {
  if (rows_ * columns_ % 8 == 0 || row < rows_ - 2) return true;
  const int dark = columns_ - (rows_ - row);
  const int light = columns_ - 3 + (rows_ - row);
  const bool isRight = letters[dark] == kNarrowBar && letters[light] == kNarrowSpace;
  letters[dark] = kNarrowSpace;
  letters[light] = kNarrowSpace;
  return isRight;
}

void ShownCodewords::TakeTornShape(int row, char* letters, std::uint8_t* codewords) const {
  if (torn_ == nullptr || (row > 3 && row < rows_ - 3)) return;
  for (int bit = 0; bit < 8; ++bit) {
    if (FromEnd(torn_->places[bit][0], rows_) != row) continue;
    const int column = FromEnd(torn_->places[bit][1], columns_);
    if (letters[column] != kNarrowBar) continue;
    codewords[tornCodeword_] |= static_cast<std::uint8_t>(0x80 >> bit);
    letters[column] = kNarrowSpace;
  }
}

void ShownCodewords::Add(int lastRow, int lastColumn, int bits, std::uint8_t* codewords) const {
  if (bits != 0) codewords[CodewordAt(lastRow, lastColumn)] |= static_cast<std::uint8_t>(bits);
}

// Eights whose last modules may lie outside.
bool ShownCodewords::AddAtSide(int row, int first, int end, const char* letters,
                               std::uint8_t* codewords) const {
  for (int column = first; column < end; column += 8) {
    const std::uint64_t eight = EightLetters(letters + column);
    if (!AreModules(eight)) return false;
    const int dark = DarkBits(eight);
    Add(row + kBits345.rows, column + kBits345.columns, Bits345(dark), codewords);
    Add(row + kBits12.rows, column + kBits12.columns, Bits12(dark), codewords);
    Add(row + kBits678.rows, column + kBits678.columns, Bits678(dark), codewords);
  }
  return true;
}

// Eights whose last modules lie inside, in two diagonals.
bool ShownCodewords::AddInside(int row, int first, int end, const char* letters,
                               std::uint8_t* codewords) const {
  const int diagonal = (row + first + 3) / 4;
  std::uint8_t* const of345 = codewords + ShiftOf(row + kBits345.rows, diagonal);
  std::uint8_t* const of12 = codewords + ShiftOf(row + kBits12.rows, diagonal + 1);
  std::uint8_t* const of678 = codewords + ShiftOf(row + kBits678.rows, diagonal + 1);
  const std::int16_t* inRow0 = inRow0_ + diagonal;
  for (int column = first; column < end; column += 8, inRow0 += 2) {
    const std::uint64_t eight = EightLetters(letters + column);
    if (!AreModules(eight)) return false;
    const int dark = DarkBits(eight);
    of345[inRow0[0]] |= static_cast<std::uint8_t>(Bits345(dark));
    of12[inRow0[1]] |= static_cast<std::uint8_t>(Bits12(dark));
    of678[inRow0[1]] |= static_cast<std::uint8_t>(Bits678(dark));
  }
  return true;
}

bool ShownCodewords::AddRow(int row, ModuleRow& modules, std::uint8_t* codewords) const {
  char* const letters = modules.Letters();
  if (!TakeFixedCorner(row, letters)) return false;
  TakeTornShape(row, letters, codewords);
  // Of the two lowest rows last modules may lie below, of the last columns beside.
  const int first = (8 - ClassOf(row, 7)) % 8;
  const int end = row < rows_ - 2 ? columns_ - (columns_ - first) % 8 : first;
  return AddAtSide(row, first - 8, first, letters, codewords) &&
         AddInside(row, first, end, letters, codewords) &&
         AddAtSide(row, end, columns_, letters, codewords);
}

}  // namespace barhatch
