#include "symbologies/CodabarSymbology.h"

#include <cstddef>
#include <cstring>

#include "job/CharacterClasses.h"
#include "symbologies/PatternTables.h"

namespace barhatch {

namespace {

struct CodabarCharacter {
  char character;
  char otherName;  // of a start/stop character
  char elements[8];
};

// Codabar characters: AIM USS Codabar, character set. Elements left to right, bar first; 1 = wide.
// clang-format off
constexpr CodabarCharacter kCodabarCharacters[] = {
    //          BSBSBSB
    {'0', '\0', "0000011"},
    {'1', '\0', "0000110"},
    {'2', '\0', "0001001"},
    {'3', '\0', "1100000"},
    {'4', '\0', "0010010"},
    {'5', '\0', "1000010"},
    {'6', '\0', "0100001"},
    {'7', '\0', "0100100"},
    {'8', '\0', "0110000"},
    {'9', '\0', "1001000"},
    {'-', '\0', "0001100"},
    {'$', '\0', "0011000"},
    {':', '\0', "1000101"},
    {'/', '\0', "1010001"},
    {'.', '\0', "1010100"},
    {'+', '\0', "0010101"},
    {'A', 'T',  "0011010"},
    {'B', 'N',  "0101001"},
    {'C', '*',  "0001011"},
    {'D', 'E',  "0001110"},
};
// clang-format on
constexpr int kCodabarCharacterCount = sizeof(kCodabarCharacters) / sizeof(kCodabarCharacters[0]);

constexpr bool HaveWide(int firstRow, int lastRow, int bars, int spaces) {
  for (int row = firstRow; row <= lastRow; ++row) {
    const char* elements = kCodabarCharacters[row].elements;
    if (WideBars(elements) != bars || WideSpaces(elements) != spaces) return false;
  }
  return true;
}
static_assert(kCodabarCharacterCount == 20, "digits, six signs and four start/stop characters");
static_assert(HaveWide(0, 11, 1, 1), "digits, '-' and '$': one wide bar, one space");
static_assert(HaveWide(12, 15, 3, 0), "':', '/', '.' and '+': three wide bars");
static_assert(HaveWide(16, 19, 1, 2), "start/stop: one wide bar, two wide spaces");
static_assert(AllOfFullLength(kCodabarCharacters, &CodabarCharacter::elements), "7 elements");
static_assert(AllDistinct(kCodabarCharacters, &CodabarCharacter::elements), "20 patterns");

constexpr char kAllNarrow[] = "0000000";
constexpr std::size_t kLongestText = 3116;  // hosts rely on the limit
constexpr std::size_t kUsualCapacity =
    24936;  // what a Codabar module string has always been allocated with

bool IsCodabarText(const char* text, std::size_t length) {
  if (length == 0 || length > kLongestText) return false;
  for (std::size_t i = 0; i < length; ++i) {
    // D-CB-1, D-CB-2: a start or stop character may stand at either end and need not; D-CB-3: data
    // need not stand between them.
    const bool atAnEnd = i == 0 || i == length - 1;
    if (atAnEnd && IsOneOf(text[i], "ABCDENT*")) continue;
    if (!IsDigit(text[i]) && !IsOneOf(text[i], "-$+:/.")) return false;
  }
  return true;
}

}  // namespace

const char* CodabarElements(char character) {
  for (const CodabarCharacter& row : kCodabarCharacters) {
    const bool byOtherName = row.otherName != '\0' && row.otherName == character;
    if (row.character == character || byOtherName) return row.elements;
  }
  return kAllNarrow;
}

char* EncodeCodabar(const char* text, QuietZone quietZone) {
  const std::size_t length = std::strlen(text);
  if (!IsCodabarText(text, length)) return nullptr;

  const int quietModules = QuietModules(quietZone);
  // Eight letters a character (seven elements and a gap) but the last, which has no gap, and the
  // quiet zones.
  ModuleStringBuilder builder(kUsualCapacity,
                              8 * length - 1 + 2 * static_cast<std::size_t>(quietModules));
  builder.AppendSpace(quietModules);
  for (std::size_t i = 0; i < length; ++i) {
    if (i > 0) builder.AppendSpace(1);
    builder.AppendElements<7>(CodabarElements(text[i]));
  }
  builder.AppendSpace(quietModules);
  return builder.Release();
}

}  // namespace barhatch
