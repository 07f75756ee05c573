#include "symbologies/Code39FullAscii.h"

#include "job/CharacterClasses.h"
#include "symbologies/Code39.h"

namespace barhatch {

namespace {

struct Pairs {
  char shift;
  char letter;     // of the first character
  int firstAscii;  // the others follow in both
  int count;
};

// clang-format off
constexpr Pairs kPairs[] = {
    {'%', 'U',   0,  1},
    {'$', 'A',   1, 26},
    {'%', 'A',  27,  5},
    {'/', 'A',  33, 15},  // '-' and '.' among them, which are written as themselves
    {'/', 'Z',  58,  1},
    {'%', 'F',  59,  5},
    {'%', 'V',  64,  1},
    {'%', 'K',  91,  5},
    {'%', 'W',  96,  1},
    {'+', 'A',  97, 26},
    {'%', 'P', 123,  5},
};
// clang-format on

constexpr bool StandsForItself(char character) {
  return IsDigit(character) || IsAsciiUpper(character) || IsOneOf(character, " -.");
}

constexpr const Pairs* PairsOf(int ascii) {
  for (const Pairs& pairs : kPairs) {
    if (ascii >= pairs.firstAscii && ascii < pairs.firstAscii + pairs.count) return &pairs;
  }
  return nullptr;
}

constexpr bool EveryCharacterIsWritten() {
  for (int ascii = 0; ascii < 128; ++ascii) {
    if (PairsOf(ascii) == nullptr && !StandsForItself(static_cast<char>(ascii))) return false;
  }
  return true;
}
static_assert(EveryCharacterIsWritten(), "as itself or as a pair");

char* SpellOut(char character, char* at) {
  if (StandsForItself(character)) {
    *at++ = character;
    return at;
  }
  const Pairs& pairs = *PairsOf(character);
  *at++ = pairs.shift;
  *at++ = static_cast<char>(pairs.letter + (character - pairs.firstAscii));
  return at;
}

// The character that a pair stands for, -1 for none.
int Resolve(char shift, char letter) {
  for (const Pairs& pairs : kPairs) {
    const int place = letter - pairs.letter;
    if (shift == pairs.shift && place >= 0 && place < pairs.count) return pairs.firstAscii + place;
  }
  return -1;
}

// Of the first characters, behind all of them and room for two more.
void SpellOutBehind(PreparedText& text, std::size_t length, bool hasCheck) {
  char* const drawn = text.room + text.length + 2;
  char* end = SpellOutCode39({text.room, length}, drawn);
  if (hasCheck) {
    *end = Code39CheckCharacter({drawn, static_cast<std::size_t>(end - drawn)});
    ++end;
  }
  text.drawn = {drawn, static_cast<std::size_t>(end - drawn)};
}

}  // namespace

char* SpellOutCode39(const Characters& text, char* room) {
  for (std::size_t i = 0; i < text.length; ++i) room = SpellOut(text.text[i], room);
  return room;
}

std::size_t ResolveCode39(char* text, std::size_t length) {
  std::size_t resolved = 0;
  for (std::size_t i = 0; i < length; ++i) {
    int character = static_cast<unsigned char>(text[i]);
    if (IsOneOf(text[i], "$/+%")) {
      if (++i == length) return kNoSpelling;
      character = Resolve(text[i - 1], text[i]);
      if (character < 0) return kNoSpelling;
    }
    text[resolved++] = static_cast<char>(character);
  }
  return resolved;
}

Refusal PrepareCode39FullAscii(const LinearOptions& options, PreparedText& text, Conformance& how) {
  const Refusal refusal = CheckCharacters(text, how);
  if (refusal.IsRefused()) return refusal;
  const bool verifies = options.check == CheckScheme::kVerify;
  const bool hasCheck = verifies || options.check == CheckScheme::kModulo43;
  if (verifies && text.length < 2) return {Reason::kOnlyCheck};
  const std::size_t length = verifies ? text.length - 1 : text.length;
  SpellOutBehind(text, length, hasCheck);
  if (!hasCheck) return {};
  text.reading.behind = 1;
  text.isForPeople = true;
  const char check = text.drawn.text[text.drawn.length - 1];
  if (verifies) return VerifyCharacter(text, length, check);
  Insert(text, text.length, check);
  return {};
}

}  // namespace barhatch
