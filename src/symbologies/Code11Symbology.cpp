#include "symbologies/Code11Symbology.h"

#include <cstddef>
#include <cstring>

#include "job/CharacterClasses.h"
#include "symbologies/CyclicWeights.h"
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
constexpr int kCode11CharacterCount = sizeof(kCode11Characters) / sizeof(kCode11Characters[0]);
constexpr int kDash = 10;
constexpr int kStartStop = 11;
constexpr int kModulus = 11;

constexpr bool TwoOfFiveWideButForThree() {
  for (const Code11Character& row : kCode11Characters) {
    const int wide = WideBars(row.elements) + WideSpaces(row.elements);
    if (wide != (IsOneOf(row.character, "09-") ? 1 : 2)) return false;
  }
  return true;
}
static_assert(kCode11CharacterCount == 12, "ten digits, '-' and start/stop");
static_assert(TwoOfFiveWideButForThree(), "0, 9 and - have one wide element, all others two");
static_assert(AllOfFullLength(kCode11Characters, &Code11Character::elements), "5 elements");
static_assert(AllDistinct(kCode11Characters, &Code11Character::elements), "12 patterns");

constexpr std::size_t kTextLengthWithK = 10;  // D-11-1: published 11
constexpr std::size_t kUsualCapacity =
    24936;  // what a Code 11 module string has always been allocated with

struct CheckValues {
  int count;  // C alone or C and K
  int values[2];
};

int ValueOf(char character) { return character == '-' ? kDash : character - '0'; }

bool IsCode11Text(const char* text) {
  for (; *text != '\0'; ++text) {
    if (!IsDigit(*text) && *text != '-') return false;
  }
  return true;
}

void AddFromTheRight(const char* text, std::size_t length, CyclicWeightedSum& sum) {
  for (std::size_t i = length; i-- > 0;) sum.Add(ValueOf(text[i]));
}

CheckValues ComputeCheckValues(const char* text, std::size_t length) {
  CyclicWeightedSum weightedForC(1, 10);
  AddFromTheRight(text, length, weightedForC);
  const int c = weightedForC.Modulo(kModulus);
  if (length < kTextLengthWithK) return {1, {c, 0}};

  CyclicWeightedSum weightedForK(1, 9);
  weightedForK.Add(c);
  AddFromTheRight(text, length, weightedForK);
  return {2, {c, weightedForK.Modulo(kModulus)}};
}

void AppendCharacterAndGap(int value, ModuleStringBuilder& builder) {
  builder.AppendElements(kCode11Characters[value].elements);
  builder.AppendSpace(1);
}

char* EncodeWithModulo11(const char* text, QuietZone quietZone) {
  return EncodeCode11(text, Code11CheckScheme::kModulo11, quietZone);
}

}  // namespace

char* EncodeCode11(const char* text, Code11CheckScheme scheme, QuietZone quietZone) {
  // D-11-2: the empty text passes.
  if (scheme == Code11CheckScheme::kNone || !IsCode11Text(text)) return nullptr;

  const std::size_t length = std::strlen(text);
  const CheckValues check = ComputeCheckValues(text, length);
  const int quietModules = QuietModules(quietZone);
  // Six letters a character (five elements and a gap), with start, at most two check characters and
  // stop, which has no gap, and the quiet zones.
  ModuleStringBuilder builder(kUsualCapacity,
                              6 * (length + 4) - 1 + 2 * static_cast<std::size_t>(quietModules));
  builder.AppendSpace(quietModules);
  AppendCharacterAndGap(kStartStop, builder);
  for (; *text != '\0'; ++text) AppendCharacterAndGap(ValueOf(*text), builder);
  for (int i = 0; i < check.count; ++i) AppendCharacterAndGap(check.values[i], builder);
  builder.AppendElements(kCode11Characters[kStartStop].elements);
  builder.AppendSpace(quietModules);
  return builder.Release();
}

char* Code11Symbology::GenerateString() { return EncodeCurrentText(EncodeWithModulo11); }

}  // namespace barhatch
