#include "symbologies/Codabar.h"

#include <cstring>

#include "job/CharacterClasses.h"
#include "symbologies/LetterTables.h"
#include "symbologies/PatternRows.h"
#include "symbologies/PatternTables.h"
#include "symbologies/TextRules.h"

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
static_assert(kCodabarCharacters[kCodabarStartA].character == 'A', "");
static_assert(AllOfFullLength(kCodabarCharacters, &CodabarCharacter::elements), "7 elements");
static_assert(AllDistinct(kCodabarCharacters, &CodabarCharacter::elements), "20 patterns");

constexpr auto kLetters = ElementLetters<1>(kCodabarCharacters, &CodabarCharacter::elements);
constexpr ElementRows<7> kValues(kLetters);
constexpr CharacterRows MakeRows() {
  CharacterRows rows;
  rows.Add(kCodabarCharacters, &CodabarCharacter::otherName);
  rows.Add(kCodabarCharacters, &CodabarCharacter::character);
  return rows;
}
constexpr CharacterRows kRows = MakeRows();

int RowOf(char character) { return kRows.of[static_cast<unsigned char>(character)]; }

bool IsStartStop(char character) { return (ClassesOf(character) & kClassCodabarEnds) != 0; }

// Of all characters but the one at a place.
char CheckCharacter(const PreparedText& text, std::size_t but) {
  int sum = 0;
  for (std::size_t i = 0; i < text.length; ++i) sum += i == but ? 0 : RowOf(text.room[i]);
  const int check = (kCodabarCheckModulus - sum % kCodabarCheckModulus) % kCodabarCheckModulus;
  return kCodabarCharacters[check].character;
}

bool HasAnEnd(const PreparedText& text) {
  return IsStartStop(text.room[0]) || IsStartStop(text.room[text.length - 1]);
}

// A place behind a start that was put in front of the text.
Refusal BehindStart(Refusal refusal) {
  if (refusal.position > 0) --refusal.position;
  return refusal;
}

// As its rule takes the text, with start and stop put in where the options ask for them.
Refusal CheckEnds(const LinearOptions& options, PreparedText& text, Conformance& how) {
  TextRule characters = *text.rule;
  characters.form = nullptr;
  const Refusal refusal = CheckText(characters, text.room, text.length, how);
  if (refusal.IsRefused()) return refusal;
  if (!options.addsStartStop || HasAnEnd(text)) {
    return CheckCodabarForm({text.room, text.length}, how);
  }
  Insert(text, 0, 'A');
  Insert(text, text.length, 'A');
  return BehindStart(CheckCodabarForm({text.room, text.length}, how));
}

// In front of the stop.
Refusal VerifyCheck(const PreparedText& text) {
  if (text.length < 4) return {Reason::kOnlyCheck};
  const std::size_t place = text.length - 2;
  return VerifyCharacter(text, place, CheckCharacter(text, place));
}

}  // namespace

Refusal PrepareCodabar(const LinearOptions& options, PreparedText& text, Conformance& how) {
  const std::size_t given = text.length;
  const Refusal refusal = CheckEnds(options, text, how);
  if (refusal.IsRefused()) return refusal;
  if (options.check == CheckScheme::kVerify) {
    const Refusal wrong = VerifyCheck(text);
    return text.length > given ? BehindStart(wrong) : wrong;
  }
  if (options.check == CheckScheme::kModulo16) {
    Insert(text, text.length - 1, CheckCharacter(text, text.length));
  }
  return {};
}

const char* CodabarElements(char character) {
  return kCodabarCharacters[RowOf(character)].elements;
}

int CodabarValue(const char* letters) { return kValues.Find(letters); }

char CodabarCharacterOf(int value) { return kCodabarCharacters[value].character; }

Refusal CheckCodabarForm(const Characters& text, Conformance& how) {
  const std::size_t last = text.length - 1;
  for (std::size_t i = 1; i < last; ++i) {
    const char character = text.text[i];
    if (IsStartStop(character)) {
      return {Reason::kEndInside, static_cast<std::int32_t>(i),
              static_cast<unsigned char>(character)};
    }
  }
  const bool starts = IsStartStop(text.text[0]);
  const bool stops = last > 0 && IsStartStop(text.text[last]);
  if (starts && stops && text.length > 2) return {};
  const Deviation by = starts && stops   ? Deviation::kDCB_3
                       : starts || stops ? Deviation::kDCB_2
                                         : Deviation::kDCB_1;
  if (how.Deviates(by)) return {};
  if (text.length < 3) return {Reason::kLength, -1, static_cast<std::int32_t>(text.length)};
  return starts ? Refusal{Reason::kNoStop, static_cast<std::int32_t>(last), 0}
                : Refusal{Reason::kNoStart, 0, 0};
}

void EncodeCodabar(const Characters& text, int /*variant*/, Conformance& /*how*/,
                   SymbolWriter& out) {
  // Eight letters a character (seven elements and a gap) but the last, which has no gap.
  const std::size_t letters = 8 * text.length - 1;
  out.Open(letters);
  char* at = out.Room(letters);
  if (at == nullptr) return;
  for (std::size_t i = 0; i + 1 < text.length; ++i)
    at = CopyLetters(at, kLetters.rows[RowOf(text.text[i])]);
  std::memcpy(at, kLetters.rows[RowOf(text.text[text.length - 1])], 7);
}

}  // namespace barhatch
