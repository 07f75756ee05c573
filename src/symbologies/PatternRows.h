// The way back through a letter table: which of its rows stands in a module string. The rows are
// found by the number that their letters make, in a table that is built when the library is
// compiled.
#ifndef BARHATCH_SYMBOLOGIES_PATTERNROWS_H
#define BARHATCH_SYMBOLOGIES_PATTERNROWS_H

#include <cstddef>

#include "job/ModuleString.h"
#include "symbologies/LetterTables.h"

namespace barhatch {

// Stands for the row of letters that are in none, and for the number of letters that make none.
constexpr int kNoRow = -1;

// The number of single modules, the first its highest bit: "AaA" is 5.
constexpr int ModuleBits(const char* letters, std::size_t count) {
  int bits = 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (letters[i] != kNarrowBar && letters[i] != kNarrowSpace) return kNoRow;
    bits = 2 * bits + (letters[i] == kNarrowBar ? 1 : 0);
  }
  return bits;
}

// The number of elements, bar first, then space, bar, ...; 1 = wide: "AbA" is 2.
constexpr int ElementBits(const char* letters, std::size_t count) {
  int bits = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const int wide = letters[i] - (i % 2 == 0 ? kNarrowBar : kNarrowSpace);
    if (wide != 0 && wide != 1) return kNoRow;
    bits = 2 * bits + wide;
  }
  return bits;
}

static_assert(ModuleBits("AaA", 3) == 5 && ModuleBits("AbA", 3) == kNoRow, "");
static_assert(ElementBits("AbA", 3) == 2 && ElementBits("BaC", 3) == kNoRow, "");

// The rows of at most 128 by their first kCount letters, which no two of them share.
template <std::size_t kCount, int (*kBitsOf)(const char*, std::size_t)>
class PatternRows {
 public:
  template <std::size_t kRows, std::size_t kLetters>
  constexpr explicit PatternRows(const LetterTable<kRows, kLetters>& table) {
    static_assert(kRows <= 128 && kCount <= kLetters, "a row is a byte, its letters are there");
    for (signed char& row : rows_) row = kNoRow;
    for (std::size_t row = 0; row < kRows; ++row)
      rows_[kBitsOf(table.rows[row], kCount)] = static_cast<signed char>(row);
  }

  // REQUIRES: kCount letters, whatever they are.
  constexpr int Find(const char* letters) const {
    const int bits = kBitsOf(letters, kCount);
    return bits == kNoRow ? kNoRow : rows_[bits];
  }

 private:
  signed char rows_[std::size_t{1} << kCount] = {};
};

template <std::size_t kCount>
using ModuleRows = PatternRows<kCount, ModuleBits>;
template <std::size_t kCount>
using ElementRows = PatternRows<kCount, ElementBits>;

// Whether a symbol has these modules at a place, '1' dark. REQUIRES: as many letters.
template <std::size_t kSize>
constexpr bool AreModules(const char* letters, const char (&modules)[kSize]) {
  for (std::size_t i = 0; i < kSize - 1; ++i) {
    if (letters[i] != ModuleLetter(modules[i])) return false;
  }
  return true;
}

// Likewise elements, bar first, '1' wide.
template <std::size_t kSize>
constexpr bool AreElements(const char* letters, const char (&elements)[kSize]) {
  for (std::size_t i = 0; i < kSize - 1; ++i) {
    if (letters[i] != ElementLetter(elements[i], static_cast<int>(i))) return false;
  }
  return true;
}

}  // namespace barhatch

#endif
