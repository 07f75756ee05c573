// The weights of the look-ahead: what one character of the text adds to the codewords that each
// encodation mode would need, by the character's class. They are those of ISO/IEC 16022 but for
// D-DM-2 (docs/deviations.md): characters above 127 have no extra weights, and the last class makes
// the ASCII count whole downwards.
//
// The unit is the standard's: C40, Text and X12 need two codewords for three values, that is 2/3 of
// a codeword a value, EDIFACT 3/4 a character, ASCII a half a digit. Base 256 always needs one.
#ifndef BARHATCH_DATAMATRIX_LOOKAHEADWEIGHTS_H
#define BARHATCH_DATAMATRIX_LOOKAHEADWEIGHTS_H

#include <cstdint>

namespace barhatch {

enum class CharacterClass : std::uint8_t {
  kDigit,        // 0-9
  kUpper,        // A-Z
  kSpace,        //
  kX12Sign,      // * >
  kPrintable,    // the others from ! to ^, which EDIFACT encodes
  kReturn,       // carriage return, which X12 encodes
  kLower,        // a-z
  kOther,        // _ ` { | } ~ DEL, control characters and everything above 127
  kClassCount_,  // not a class
};

constexpr int kCharacterClassCount = static_cast<int>(CharacterClass::kClassCount_);

// The modes that need thirds of a codeword.
enum ThirdsColumn { kC40Thirds, kTextThirds, kX12Thirds, kThirdsColumnCount };

// How the ASCII count takes a character: a digit adds a half; everything else makes the count whole
// first, upwards or, for D-DM-2, downwards, and adds one.
enum class AsciiRule : std::uint8_t { kHalf, kRoundUp, kTruncate };

struct LookAheadWeights {
  AsciiRule ascii;
  std::uint8_t thirds[kThirdsColumnCount];
  std::uint8_t edifactQuarters;
};

// ISO/IEC 16022, look-ahead test for the encodation modes. Rows in the order of CharacterClass.
// clang-format off
constexpr LookAheadWeights kLookAheadWeights[kCharacterClassCount] = {
    // ASCII                 C40/3  Text/3  X12/3   EDIFACT/4
    {AsciiRule::kHalf,      {  2,      2,      2},      3},  // digit
    {AsciiRule::kRoundUp,   {  2,      4,      2},      3},  // upper
    {AsciiRule::kRoundUp,   {  2,      2,      2},      3},  // space
    {AsciiRule::kRoundUp,   {  4,      4,      2},      3},  // * >
    {AsciiRule::kRoundUp,   {  4,      4,     10},      3},  // printable
    {AsciiRule::kRoundUp,   {  4,      4,      2},     13},  // return
    {AsciiRule::kRoundUp,   {  4,      2,     10},     13},  // lower
    {AsciiRule::kTruncate,  {  4,      4,     10},     13},  // other; D-DM-2: published kRoundUp
};
// clang-format on

// A character costs one value, two values (a shift and a value), or, where X12 has to be left for
// it, ten thirds. ThirdsSum counts on these three being all.
constexpr bool HasThreeWeightsOfThirds() {
  for (const LookAheadWeights& row : kLookAheadWeights) {
    for (const int thirds : row.thirds) {
      if (thirds != 2 && thirds != 4 && thirds != 10) return false;
    }
    if (row.edifactQuarters != 3 && row.edifactQuarters != 13) return false;
  }
  return true;
}
static_assert(HasThreeWeightsOfThirds(), "2/3, 4/3 and 10/3; 3/4 and 13/4");

constexpr CharacterClass ClassOfByte(int byte) {
  if (byte >= '0' && byte <= '9') return CharacterClass::kDigit;
  if (byte >= 'A' && byte <= 'Z') return CharacterClass::kUpper;
  if (byte >= 'a' && byte <= 'z') return CharacterClass::kLower;
  if (byte == ' ') return CharacterClass::kSpace;
  if (byte == '*' || byte == '>') return CharacterClass::kX12Sign;
  if (byte >= '!' && byte <= '^') return CharacterClass::kPrintable;
  return byte == '\r' ? CharacterClass::kReturn : CharacterClass::kOther;
}

struct ClassTable {
  CharacterClass classes[256] = {};
  constexpr ClassTable() {
    for (int byte = 0; byte < 256; ++byte) classes[byte] = ClassOfByte(byte);
  }
};
inline constexpr ClassTable kClassTable;

// The class of a character of the text: that of its low byte, also where the whole character stands
// for something else.
constexpr CharacterClass ClassOf(char16_t character) {
  return kClassTable.classes[character & 0xFF];
}

constexpr const LookAheadWeights& WeightsOf(char16_t character) {
  return kLookAheadWeights[static_cast<int>(ClassOf(character))];
}

}  // namespace barhatch

#endif
