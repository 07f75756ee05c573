#include "datamatrix/ShownCodewords.h"

#include "job/ModuleString.h"

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

// Eight modules from the class 1 on are of three codewords: three, two and three bits.
bool ShownCodewords::AddEights(int row, int first, int end, const char* letters,
                               std::uint8_t* codewords) const {
  const int diagonal = (row + first + 3) / 4;
  std::uint8_t* const codewords0 = codewords + ShiftOf(row + 1, diagonal);
  std::uint8_t* const codewords1 = codewords + ShiftOf(row + 2, diagonal + 1);
  std::uint8_t* const codewords2 = codewords + ShiftOf(row, diagonal + 1);
  const std::int16_t* inRow0 = inRow0_ + diagonal;
  for (int column = first; column < end; column += 8, inRow0 += 2) {
    const std::uint64_t eight = EightLetters(letters + column);
    if (!AreModules(eight)) return false;
    const int dark = DarkBits(eight);
    codewords0[inRow0[0]] |= static_cast<std::uint8_t>(dark >> 2 & 0x38);
    codewords1[inRow0[1]] |= static_cast<std::uint8_t>(dark << 3 & 0xC0);
    codewords2[inRow0[1]] |= static_cast<std::uint8_t>(dark & 0x07);
  }
  return true;
}

bool ShownCodewords::AddOneByOne(int row, int first, int end, const char* letters,
                                 std::uint8_t* codewords) const {
  for (int column = first; column < end; ++column) {
    if (letters[column] == kNarrowSpace) continue;
    if (letters[column] != kNarrowBar) return false;
    const PlaceClass& way = kClasses[ClassOf(row, column)];
    codewords[CodewordAt(row + way.rows, column + way.columns)] |=
        static_cast<std::uint8_t>(0x80 >> way.bit);
  }
  return true;
}

bool ShownCodewords::AddRow(int row, char* letters, std::uint8_t* codewords) const {
  if (!TakeFixedCorner(row, letters)) return false;
  TakeTornShape(row, letters, codewords);
  // The last modules of the two lowest rows may lie below, as those of the last columns beside.
  const int first = (8 - ClassOf(row, 7)) % 8;
  const int end = row < rows_ - 2 ? columns_ - (columns_ - first) % 8 : first;
  return AddOneByOne(row, 0, first, letters, codewords) &&
         AddEights(row, first, end, letters, codewords) &&
         AddOneByOne(row, end, columns_, letters, codewords);
}

}  // namespace barhatch
