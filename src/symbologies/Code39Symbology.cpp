#include "symbologies/Code39Symbology.h"

#include <cstddef>

#include "job/CharacterClasses.h"
#include "symbologies/PatternTables.h"

namespace barhatch {

namespace {

struct Code39Character {
  char character;
  char elements[10];
};

// Code 39 characters: ISO/IEC 16388, symbol character assignments. Elements left to right, bar
// first; 1 = wide.
// clang-format off
constexpr Code39Character kCode39Characters[] = {
    //     BSBSBSBSB
    {'0', "000110100"},  // index 0
    {'1', "100100001"},
    {'2', "001100001"},
    {'3', "101100000"},
    {'4', "000110001"},
    {'5', "100110000"},
    {'6', "001110000"},
    {'7', "000100101"},
    {'8', "100100100"},
    {'9', "001100100"},
    {'A', "100001001"},  // 10
    {'B', "001001001"},
    {'C', "101001000"},
    {'D', "000011001"},
    {'E', "100011000"},
    {'F', "001011000"},
    {'G', "000001101"},
    {'H', "100001100"},
    {'I', "001001100"},
    {'J', "000011100"},
    {'K', "100000011"},
    {'L', "001000011"},
    {'M', "101000010"},
    {'N', "000010011"},
    {'O', "100010010"},
    {'P', "001010010"},
    {'Q', "000000111"},
    {'R', "100000110"},
    {'S', "001000110"},
    {'T', "000010110"},
    {'U', "110000001"},
    {'V', "011000001"},
    {'W', "011000000"},  // D-39-1: published 111000000
    {'X', "010010001"},
    {'Y', "110010000"},
    {'Z', "011010000"},
    {'*', "010010100"},  // 36, start and stop
    {'-', "010000101"},
    {'$', "010101000"},
    {'%', "000101010"},
    {' ', "011000100"},
    {'.', "110000100"},
    {'/', "000101010"},  // D-39-2: published 010100010
    {'+', "010001010"},
};
// clang-format on
constexpr int kCode39CharacterCount = sizeof(kCode39Characters) / sizeof(kCode39Characters[0]);

constexpr bool HasPublishedElements(const Code39Character& row) {
  return row.character != 'W' && row.character != '/';  // D-39-1, D-39-2
}

constexpr bool TwoWideBarsAndOneWideSpaceOrThreeWideSpaces() {
  for (const Code39Character& row : kCode39Characters) {
    const bool spacesAlone = IsOneOf(row.character, "$%/+");
    if (row.character != 'W' && WideBars(row.elements) != (spacesAlone ? 0 : 2)) return false;
    if (WideSpaces(row.elements) != (spacesAlone ? 3 : 1)) return false;
  }
  return true;
}

constexpr bool PublishedRowsAreDistinct() {
  for (const Code39Character& a : kCode39Characters) {
    for (const Code39Character& b : kCode39Characters) {
      if (!HasPublishedElements(a) || !HasPublishedElements(b) || &a == &b) continue;
      if (IsSamePattern(a.elements, b.elements)) return false;
    }
  }
  return true;
}

// Digits and letters are found by their place in the table, the signs from the 36th row on by name.
constexpr bool DigitsAndLettersStandInOrder() {
  for (int i = 0; i < 36; ++i) {
    if (kCode39Characters[i].character != (i < 10 ? '0' + i : 'A' + i - 10)) return false;
  }
  return true;
}
static_assert(DigitsAndLettersStandInOrder(), "0 to 9, then A to Z");
static_assert(kCode39CharacterCount == 44, "digits, letters and eight further characters");
static_assert(AllOfFullLength(kCode39Characters, &Code39Character::elements), "9 elements");
static_assert(TwoWideBarsAndOneWideSpaceOrThreeWideSpaces(), "three wide elements of nine");
static_assert(PublishedRowsAreDistinct(), "no two characters look alike but by D-39-2");

// D-39-3: what stands for every letter from 'E' to 'Z'.
constexpr char kUnlistedLetterElements[10] = "011111111";

constexpr char kStartStop = '*';
constexpr std::size_t kLongestFramedText =
    3116;  // hosts rely on 3114 characters of data as the limit
constexpr std::size_t kUsualCapacity =
    31170;  // what a Code 39 module string has always been allocated with

// Puts the data between two start/stop characters and collapses each "%%", pair by pair from the
// left, into one '%' (D-39-5). Returns the length of the framed text.
std::size_t FrameText(const char* text, char* framed) {
  std::size_t length = 0;
  framed[length++] = kStartStop;
  for (; *text != '\0'; ++text) {
    if (text[0] == '%' && text[1] == '%') ++text;
    framed[length++] = *text;
  }
  framed[length++] = kStartStop;
  framed[length] = '\0';
  return length;
}

bool IsCode39Text(const char* framed) {
  for (; *framed != '\0'; ++framed) {
    // D-39-4: '*' inside the data as well as around it.
    if (!IsDigit(*framed) && !IsAsciiUpper(*framed) && !IsOneOf(*framed, "*-$% ./+")) return false;
  }
  return true;
}

int TableIndexOfSign(char character) {
  for (int index = 36; index < kCode39CharacterCount; ++index) {
    if (kCode39Characters[index].character == character) return index;
  }
  return -1;
}

}  // namespace

const char* Code39TableElements(int index) {
  return index >= 0 && index < kCode39CharacterCount ? kCode39Characters[index].elements : nullptr;
}

const char* Code39Elements(char character) {
  if (IsDigit(character)) return kCode39Characters[character - '0'].elements;
  if (character >= 'A' && character <= 'D') return kCode39Characters[character - 'A' + 10].elements;
  const int index = TableIndexOfSign(character);
  return index >= 0 ? kCode39Characters[index].elements : kUnlistedLetterElements;
}

char* EncodeCode39(const char* text, QuietZone quietZone) {
  char framed[kNarrowTextCapacity + 2];
  const std::size_t length = FrameText(text, framed);  // D-39-6: two characters at least
  if (length > kLongestFramedText || !IsCode39Text(framed)) return nullptr;

  const int quietModules = QuietModules(quietZone);
  // Ten letters a character (nine elements and a gap) but the last, which has no gap, and the quiet
  // zones.
  ModuleStringBuilder builder(kUsualCapacity,
                              10 * length - 1 + 2 * static_cast<std::size_t>(quietModules));
  builder.AppendSpace(quietModules);
  for (std::size_t i = 0; i < length; ++i) {
    if (i > 0) builder.AppendSpace(1);
    builder.AppendElements<9>(Code39Elements(framed[i]));
  }
  builder.AppendSpace(quietModules);
  return builder.Release();
}

}  // namespace barhatch
