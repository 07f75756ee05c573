#include "symbologies/Code39.h"

#include "job/CharacterClasses.h"
#include "symbologies/LetterTables.h"
#include "symbologies/PatternRows.h"
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
    {'W', "111000000"},
    {'X', "010010001"},
    {'Y', "110010000"},
    {'Z', "011010000"},
    {'*', "010010100"},  // 36, start and stop
    {'-', "010000101"},
    {'$', "010101000"},
    {'%', "000101010"},
    {' ', "011000100"},
    {'.', "110000100"},
    {'/', "010100010"},
    {'+', "010001010"},
};
// clang-format on
constexpr int kCode39CharacterCount = sizeof(kCode39Characters) / sizeof(kCode39Characters[0]);

constexpr bool TwoWideBarsAndOneWideSpaceOrThreeWideSpaces() {
  for (const Code39Character& row : kCode39Characters) {
    const bool spacesAlone = IsOneOf(row.character, "$%/+");
    if (WideBars(row.elements) != (spacesAlone ? 0 : 2)) return false;
    if (WideSpaces(row.elements) != (spacesAlone ? 3 : 1)) return false;
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
constexpr int kPercent = 39;
constexpr char kStartStopElements[] = "010010100";
static_assert(IsSamePattern(kCode39Characters[kCode39StartStop].elements, kStartStopElements), "");
static_assert(kCode39Characters[kPercent].character == '%',
              "the elements that the device writes for / as well");
static_assert(DigitsAndLettersStandInOrder(), "0 to 9, then A to Z");
static_assert(kCode39CharacterCount == 44, "digits, letters and eight further characters");
static_assert(AllOfFullLength(kCode39Characters, &Code39Character::elements), "9 elements");
static_assert(TwoWideBarsAndOneWideSpaceOrThreeWideSpaces(), "three wide elements of nine");
static_assert(AllDistinct(kCode39Characters, &Code39Character::elements), "44 patterns");

// What the device writes besides: for every letter from 'E' to 'Z', and in its table for 'W', which
// no text reaches there.
constexpr Code39Character kDeviceCharacters[] = {
    {'E', "011111111"},
    {'W', "011000000"},
};
constexpr int kUnlistedLetter = 0;
constexpr int kDeviceW = 1;

constexpr auto kLetters = ElementLetters<1>(kCode39Characters, &Code39Character::elements);
constexpr ElementRows<9> kPublishedRows(kLetters);
constexpr auto kDeviceLetters = ElementLetters<1>(kDeviceCharacters, &Code39Character::elements);

constexpr CharacterRows MakeRows() {
  CharacterRows rows;
  rows.Add(kCode39Characters, &Code39Character::character);
  return rows;
}
constexpr CharacterRows kRows = MakeRows();

using Letters = char[10];

const Letters& LettersOf(char character, Conformance& how) {
  if (character > 'D' && how.Deviates(Deviation::kD39_3)) {
    return kDeviceLetters.rows[kUnlistedLetter];
  }
  if (character == '/' && how.Deviates(Deviation::kD39_2)) return kLetters.rows[kPercent];
  return kLetters.rows[kRows.of[static_cast<unsigned char>(character)]];
}

// ISO/IEC 16388, check character: the signs from value 36 on.
constexpr char kSigns[] = "-. $/+%";

char CharacterOfValue(int value) {
  return value < kCode39StartStop ? kCode39Characters[value].character
                                  : kSigns[value - kCode39StartStop];
}

Refusal VerifyCheck(const PreparedText& text) {
  if (text.length < 2) return {Reason::kOnlyCheck};
  const std::size_t last = text.length - 1;
  return VerifyCharacter(text, last, Code39CheckCharacter({text.room, last}));
}

}  // namespace

int Code39ValueOfRow(int row) {
  const char character = kCode39Characters[row].character;
  if (row < kCode39StartStop) return row;
  int sign = 0;
  while (kSigns[sign] != character) ++sign;
  return kCode39StartStop + sign;
}

char Code39CheckCharacter(const Characters& text) {
  int sum = 0;
  for (std::size_t i = 0; i < text.length; ++i)
    sum += Code39ValueOfRow(kRows.of[static_cast<unsigned char>(text.text[i])]);
  return CharacterOfValue(sum % kCode39CheckModulus);
}

Refusal PrepareCode39(const LinearOptions& options, PreparedText& text, Conformance& how) {
  const Refusal refusal = CheckCharacters(text, how);
  if (refusal.IsRefused()) return refusal;
  if (options.check == CheckScheme::kVerify) return VerifyCheck(text);
  if (options.check == CheckScheme::kModulo43) {
    Insert(text, text.length, Code39CheckCharacter({text.room, text.length}));
  }
  return {};
}

const char* Code39TableElements(int index, Conformance& how) {
  const Code39Character& row = kCode39Characters[index];
  if (row.character == 'W' && how.Deviates(Deviation::kD39_1)) {
    return kDeviceCharacters[kDeviceW].elements;
  }
  if (row.character == '/' && how.Deviates(Deviation::kD39_2)) {
    return kCode39Characters[kPercent].elements;
  }
  return row.elements;
}

int Code39Row(const char* letters) { return kPublishedRows.Find(letters); }

char Code39CharacterOf(int row) { return kCode39Characters[row].character; }

void EncodeCode39(const Characters& text, int /*variant*/, Conformance& how, SymbolWriter& out) {
  // Ten letters a character (nine elements and a gap) from the start on, and a stop without gap.
  const std::size_t letters = 10 * (text.length + 1);
  out.Open(letters + 9);
  char* at = out.Room(letters);
  if (at == nullptr) return;
  at = CopyLetters(at, kLetters.rows[kCode39StartStop]);
  for (std::size_t i = 0; i < text.length; ++i) at = CopyLetters(at, LettersOf(text.text[i], how));
  out.AppendElements(kStartStopElements);
}

}  // namespace barhatch
