#include "symbologies/Code11.h"

#include "job/CharacterClasses.h"
#include "symbologies/CyclicWeights.h"
#include "symbologies/LetterTables.h"
#include "symbologies/PatternRows.h"
#include "symbologies/PatternTables.h"

namespace barhatch {

namespace {

struct Code11Character {
  char character;
  char elements[6];
};

// Code 11 characters in the order of their values, as its public descriptions list them. Elements
// left to right, bar first; 1 = wide. The last row is start and stop.
// clang-format off
constexpr Code11Character kCode11Characters[] = {
    //    BSBSB
    {'0', "00001"},
    {'1', "10001"},
    {'2', "01001"},
    {'3', "11000"},
    {'4', "00101"},
    {'5', "10100"},
    {'6', "01100"},
    {'7', "00011"},
    {'8', "10010"},
    {'9', "10000"},
    {'-', "00100"},
    {'*', "00110"},
};
// clang-format on
constexpr auto kLetters = ElementLetters<1>(kCode11Characters, &Code11Character::elements);
constexpr ElementRows<5> kValues(kLetters);
constexpr int kCode11CharacterCount = sizeof(kCode11Characters) / sizeof(kCode11Characters[0]);
constexpr char kStartStopElements[] = "00110";
static_assert(IsSamePattern(kCode11Characters[kCode11StartStop].elements, kStartStopElements), "");

constexpr bool TwoOfFiveWideButForThree() {
  for (const Code11Character& row : kCode11Characters) {
    const int wide = WideBars(row.elements) + WideSpaces(row.elements);
    if (wide != (IsOneOf(row.character, "09-") ? 1 : 2)) return false;
  }
  return true;
}

// Rows are found by their value alone; the names have to follow it.
constexpr bool DigitsStandInSequence() {
  for (int value = 0; value < 10; ++value) {
    if (kCode11Characters[value].character != '0' + value) return false;
  }
  return true;
}
static_assert(kCode11CharacterCount == 12, "ten digits, '-' and start/stop");
static_assert(DigitsStandInSequence() && kCode11Characters[kCode11Dash].character == '-' &&
                  kCode11Characters[kCode11StartStop].character == '*',
              "0 to 9, '-', then start and stop");
static_assert(TwoOfFiveWideButForThree(), "0, 9 and - have one wide element, all others two");
static_assert(AllOfFullLength(kCode11Characters, &Code11Character::elements), "5 elements");
static_assert(AllDistinct(kCode11Characters, &Code11Character::elements), "12 patterns");

struct CheckValues {
  int count;  // C alone or C and K
  int values[2];
};

int ValueOf(char character) { return character == '-' ? kCode11Dash : character - '0'; }

void AddFromTheRight(const Characters& text, CyclicWeightedSum& sum) {
  for (std::size_t i = text.length; i-- > 0;) sum.Add(ValueOf(text.text[i]));
}

bool HasK(std::size_t length, Conformance& how) {
  return length > kCode11LongestTextWithC ||
         (length == kCode11LongestTextWithC && how.Deviates(Deviation::kD11_1));
}

CheckValues ComputeCheckValues(const Characters& text, Conformance& how) {
  CyclicWeightedSum weightedForC(1, kCode11LongestWeightOfC);
  AddFromTheRight(text, weightedForC);
  const int c = weightedForC.Modulo(kCode11CheckModulus);
  if (!HasK(text.length, how)) return {1, {c, 0}};

  CyclicWeightedSum weightedForK(1, kCode11LongestWeightOfK);
  weightedForK.Add(c);
  AddFromTheRight(text, weightedForK);
  return {2, {c, weightedForK.Modulo(kCode11CheckModulus)}};
}

// Of the characters in front of a place.
char CheckCharacter(const PreparedText& text, std::size_t length, int longestWeight) {
  CyclicWeightedSum sum(1, longestWeight);
  AddFromTheRight({text.room, length}, sum);
  return kCode11Characters[sum.Modulo(kCode11CheckModulus)].character;
}

void AppendChecks(int count, PreparedText& text) {
  constexpr int kLongestWeights[] = {kCode11LongestWeightOfC, kCode11LongestWeightOfK};
  for (int i = 0; i < count; ++i)
    Insert(text, text.length, CheckCharacter(text, text.length, kLongestWeights[i]));
  text.reading.behind = static_cast<std::uint8_t>(count);
}

// C is behind ten characters at most, C and K are behind eleven at least.
Refusal VerifyChecks(PreparedText& text) {
  constexpr std::size_t kNeither = kCode11LongestTextWithC + 2;
  if (text.length < 2) return {Reason::kOnlyCheck};
  if (text.length == kNeither) return {Reason::kCheckCount, -1, static_cast<int>(kNeither)};
  const bool hasK = text.length > kNeither;
  text.reading.behind = hasK ? 2 : 1;
  const std::size_t c = text.length - text.reading.behind;
  const Refusal refusal =
      VerifyCharacter(text, c, CheckCharacter(text, c, kCode11LongestWeightOfC));
  if (refusal.IsRefused() || !hasK) return refusal;
  return VerifyCharacter(text, c + 1, CheckCharacter(text, c + 1, kCode11LongestWeightOfK));
}

}  // namespace

int Code11CheckCharactersOf(CheckScheme check, std::size_t length) {
  if (check == CheckScheme::kNone) return 0;
  if (check == CheckScheme::kCode11C) return 1;
  return check == CheckScheme::kCode11CAndK || length > kCode11LongestTextWithC ? 2 : 1;
}

Refusal PrepareCode11(const LinearOptions& options, PreparedText& text, Conformance& how) {
  const Refusal refusal = CheckCharacters(text, how);
  if (refusal.IsRefused()) return refusal;
  text.encode = EncodeCode11Characters;
  text.isForPeople = true;
  if (options.check == CheckScheme::kVerify) return VerifyChecks(text);
  AppendChecks(Code11CheckCharactersOf(options.check, text.length), text);
  return {};
}

int Code11Value(const char* letters) { return kValues.Find(letters); }

void EncodeCode11(const Characters& text, int /*variant*/, Conformance& how, SymbolWriter& out) {
  const CheckValues check = ComputeCheckValues(text, how);
  const std::size_t characters = text.length + static_cast<std::size_t>(check.count) + 1;
  // Six letters a character (five elements and a gap) from the start on, and a stop without gap.
  out.Open(6 * characters + 5);
  char* at = out.Room(6 * characters);
  if (at == nullptr) return;
  at = CopyLetters(at, kLetters.rows[kCode11StartStop]);
  for (std::size_t i = 0; i < text.length; ++i)
    at = CopyLetters(at, kLetters.rows[ValueOf(text.text[i])]);
  for (int i = 0; i < check.count; ++i) at = CopyLetters(at, kLetters.rows[check.values[i]]);
  out.AppendElements(kStartStopElements);
}

void EncodeCode11Characters(const Characters& text, int /*variant*/, Conformance& /*how*/,
                            SymbolWriter& out) {
  const std::size_t letters = 6 * (text.length + 1);
  out.Open(letters + 5);
  char* at = out.Room(letters);
  if (at == nullptr) return;
  at = CopyLetters(at, kLetters.rows[kCode11StartStop]);
  for (std::size_t i = 0; i < text.length; ++i)
    at = CopyLetters(at, kLetters.rows[ValueOf(text.text[i])]);
  out.AppendElements(kStartStopElements);
}

}  // namespace barhatch
