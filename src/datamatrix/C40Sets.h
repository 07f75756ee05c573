// The character sets of the C40, Text and X12 encodations (ISO/IEC 16022). A character is one value
// of the basic set, or a shift and a value of the set that the shift selects: in C40 'A' is 14, 'a'
// is 2 1 (shift 3, value 1), '!' is 1 0 (shift 2, value 0). Bytes above 127 are the upper shift 1
// 30 and the values of the byte less 128. X12 has a basic set alone.
#ifndef BARHATCH_DATAMATRIX_C40SETS_H
#define BARHATCH_DATAMATRIX_C40SETS_H

#include <cstddef>
#include <cstdint>

namespace barhatch {

enum class CharacterSet { kC40, kText, kX12 };

// The values of one character, in the order in which they are written; none for a character that
// the set lacks.
struct CharacterValues {
  int count = 0;
  std::uint8_t values[4] = {};
  constexpr void Append(int value) { values[count++] = static_cast<std::uint8_t>(value); }
};

// Characters `first` to `last` have ascending values from `firstValue` on, in the basic set (shift
// 0) or in that of shift 1, 2 or 3.
struct SetRange {
  char first;
  char last;
  int shift;
  int firstValue;
};

// ISO/IEC 16022, C40, Text and X12 character sets.
// clang-format off
constexpr SetRange kC40Ranges[] = {
    // first   last  shift  value
    {'\x00', '\x1F',   1,     0},
    {   ' ',    ' ',   0,     3},
    {   '!',    '/',   2,     0},
    {   '0',    '9',   0,     4},
    {   ':',    '@',   2,    15},
    {   'A',    'Z',   0,    14},
    {   '[',    '_',   2,    22},
    {   '`', '\x7F',   3,     0},
};
constexpr SetRange kTextRanges[] = {
    {'\x00', '\x1F',   1,     0},
    {   ' ',    ' ',   0,     3},
    {   '!',    '/',   2,     0},
    {   '0',    '9',   0,     4},
    {   ':',    '@',   2,    15},
    {   'A',    'Z',   3,     1},
    {   '[',    '_',   2,    22},
    {   '`',    '`',   3,     0},
    {   'a',    'z',   0,    14},
    {   '{', '\x7F',   3,    27},
};
constexpr SetRange kX12Ranges[] = {
    {  '\r',   '\r',   0,     0},
    {   '*',    '*',   0,     1},
    {   '>',    '>',   0,     2},
    {   ' ',    ' ',   0,     3},
    {   '0',    '9',   0,     4},
    {   'A',    'Z',   0,    14},
};
// clang-format on

constexpr int kPadValue = 0;     // shift 1, with nothing behind it to be shifted
constexpr int kShift2Value = 1;  // shift n has the value n - 1
constexpr int kUpperShift = 30;  // in the set of shift 2

constexpr int kSetBytes = 128;

// The ranges spread out, by character.
struct CharacterSetTable {
  CharacterValues rows[kSetBytes] = {};

  template <std::size_t count>
  constexpr explicit CharacterSetTable(const SetRange (&ranges)[count]) {
    for (const SetRange& range : ranges) {
      for (int character = range.first; character <= range.last; ++character) {
        if (range.shift > 0) rows[character].Append(range.shift - 1);
        rows[character].Append(range.firstValue + character - range.first);
      }
    }
  }

  constexpr bool EachHasItsOwnValues() const {
    for (int i = 0; i < kSetBytes; ++i) {
      for (int k = 0; k < i; ++k) {
        if (rows[i].count == rows[k].count && rows[i].values[0] == rows[k].values[0] &&
            rows[i].values[1] == rows[k].values[1] && rows[i].count != 0) {
          return false;
        }
      }
    }
    return true;
  }

  constexpr int CharactersWith(int valueCount) const {
    int characters = 0;
    for (const CharacterValues& row : rows) characters += row.count == valueCount ? 1 : 0;
    return characters;
  }
};

inline constexpr CharacterSetTable kC40Table(kC40Ranges);
inline constexpr CharacterSetTable kTextTable(kTextRanges);
inline constexpr CharacterSetTable kX12Table(kX12Ranges);

static_assert(kC40Table.CharactersWith(1) == 37 && kC40Table.CharactersWith(2) == 91,
              "a basic set of space, digits and letters; everything else shifted");
static_assert(kTextTable.CharactersWith(1) == 37 && kTextTable.CharactersWith(2) == 91,
              "a basic set of space, digits and letters; everything else shifted");
static_assert(kX12Table.CharactersWith(1) == 40 && kX12Table.CharactersWith(0) == 88,
              "forty values, all of them used");
static_assert(kC40Table.EachHasItsOwnValues() && kTextTable.EachHasItsOwnValues() &&
                  kX12Table.EachHasItsOwnValues(),
              "a set is read back character by character");

constexpr const CharacterSetTable& TableOf(CharacterSet set) {
  return set == CharacterSet::kC40    ? kC40Table
         : set == CharacterSet::kText ? kTextTable
                                      : kX12Table;
}

// How many values a byte, 0..255, has; 0 where the set lacks it.
constexpr int ValueCountOf(CharacterSet set, int byte) {
  if (byte < kSetBytes) return TableOf(set).rows[byte].count;
  return set == CharacterSet::kX12 ? 0 : 2 + TableOf(set).rows[byte - kSetBytes].count;
}

// byte: 0..255.
constexpr CharacterValues ValuesOf(CharacterSet set, int byte) {
  if (byte < kSetBytes) return TableOf(set).rows[byte];
  CharacterValues values;
  if (set == CharacterSet::kX12) return values;
  const CharacterValues& lower = TableOf(set).rows[byte - kSetBytes];
  values.Append(kShift2Value);
  values.Append(kUpperShift);
  for (int i = 0; i < lower.count; ++i) values.Append(lower.values[i]);
  return values;
}

constexpr bool CountsAgree(CharacterSet set) {
  for (int byte = 0; byte < 256; ++byte) {
    if (ValueCountOf(set, byte) != ValuesOf(set, byte).count) return false;
  }
  return true;
}
static_assert(CountsAgree(CharacterSet::kC40) && CountsAgree(CharacterSet::kText) &&
                  CountsAgree(CharacterSet::kX12),
              "values are counted as they are written");

}  // namespace barhatch

#endif
