#include "symbologies/TextRules.h"

#include "job/CharacterClasses.h"

namespace barhatch {

namespace {

constexpr unsigned ClassesOfByte(char character) {
  const signed char byte = AsSignedByte(character);
  if (byte < 0) return kClassAbove127;
  unsigned classes = kClassAscii;
  if (byte >= ' ') classes |= kClassFromSpace;
  if (IsDigit(character)) classes |= kClassDigits;
  if (IsAsciiUpper(character) || IsOneOf(character, "-. $/+%")) classes |= kClassLettersAndSigns;
  if (character == '*') classes |= kClassAsterisk;
  if (character == '-') classes |= kClassDash;
  if (IsOneOf(character, "-$:/.+")) classes |= kClassCodabarSigns;
  if (IsOneOf(character, "ABCDTN*E")) classes |= kClassCodabarEnds;
  return classes;
}

struct ClassTable {
  std::uint16_t of[256];
};

constexpr ClassTable MakeClassTable() {
  ClassTable table{};
  for (int byte = 0; byte < 256; ++byte)
    table.of[byte] = static_cast<std::uint16_t>(ClassesOfByte(static_cast<char>(byte)));
  return table;
}
constexpr ClassTable kClasses = MakeClassTable();

constexpr int CharactersIn(std::uint16_t classes) {
  int count = 0;
  for (const std::uint16_t of : kClasses.of) count += (of & classes) != 0 ? 1 : 0;
  return count;
}
static_assert(CharactersIn(kClassDigits | kClassLettersAndSigns) == 43, "the set of Code 39");
static_assert(CharactersIn(kClassDigits | kClassCodabarSigns) == 16, "Codabar between its ends");
static_assert(CharactersIn(kClassCodabarEnds) == 8, "four start/stop characters of two names");
static_assert(CharactersIn(kClassFromSpace) == 96 && CharactersIn(kClassAbove127) == 128, "");

// The first position from `position` on whose character is in none of the classes.
std::size_t FirstOutside(std::uint16_t classes, const char* text, std::size_t position,
                         std::size_t length) {
  while (position < length && (ClassesOf(text[position]) & classes) != 0) ++position;
  return position;
}

Refusal RefusedCharacter(const char* text, std::size_t position) {
  return {Reason::kCharacter, static_cast<std::int32_t>(position),
          static_cast<unsigned char>(text[position])};
}

// The characters from the first one on that are in none of the accepted classes.
Refusal CheckMore(const TextRule& rule, std::uint16_t accepted, const char* text,
                  std::size_t outside, std::size_t length, Conformance& how) {
  bool isInFront = outside == 0;
  for (; outside < length; outside = FirstOutside(accepted, text, outside, length)) {
    const Deviation by = isInFront ? rule.moreInFrontBy : rule.moreBy;
    if ((ClassesOf(text[outside]) & rule.more) == 0 || !how.Deviates(by)) {
      return RefusedCharacter(text, outside);
    }
    ++outside;
    isInFront = isInFront && outside < length && (ClassesOf(text[outside]) & accepted) == 0;
  }
  return {};
}

// Pair by pair from the left. Returns the new length.
std::size_t MergePercentPairs(char* text, std::size_t length, Deviation by, Conformance& how) {
  std::size_t merged = 0;
  for (std::size_t i = 0; i < length; ++i) {
    if (text[i] == '%' && i + 1 < length && text[i + 1] == '%' && how.Deviates(by)) ++i;
    text[merged++] = text[i];
  }
  text[merged] = '\0';
  return merged;
}

Refusal CheckLength(const TextRule& rule, std::size_t length, Conformance& how) {
  if (length == 0) return {how.Deviates(rule.emptyBy) ? Reason::kNone : Reason::kEmpty, -1, 0};
  if (length >= rule.shortest && length <= rule.longest) return {};
  return {Reason::kLength, -1, static_cast<std::int32_t>(length)};
}

}  // namespace

std::uint16_t ClassesOf(char character) {
  return kClasses.of[static_cast<unsigned char>(character)];
}

Refusal CheckText(const TextRule& rule, char* text, std::size_t& length, Conformance& how) {
  const std::uint16_t accepted = how.IsInForce(rule.plannedBy) ? rule.planned : rule.accepted;
  const std::size_t outside = FirstOutside(accepted, text, 0, length);
  if (outside < length) {
    const Refusal character = CheckMore(rule, accepted, text, outside, length, how);
    if (character.IsRefused()) return character;
  }
  if (how.IsInForce(rule.percentPairBy)) {
    length = MergePercentPairs(text, length, rule.percentPairBy, how);
  }
  const Refusal ofLength = CheckLength(rule, length, how);
  if (ofLength.IsRefused() || rule.form == nullptr) return ofLength;
  return rule.form({text, length}, how);
}

}  // namespace barhatch
