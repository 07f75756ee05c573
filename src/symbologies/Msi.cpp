#include "symbologies/Msi.h"

#include <cstring>

#include "job/CharacterClasses.h"
#include "symbologies/CyclicWeights.h"
#include "symbologies/LetterTables.h"
#include "symbologies/PatternRows.h"

namespace barhatch {

namespace {

constexpr char kZeroBit[] = "100";
constexpr char kOneBit[] = "110";

// What a digit adds to the digit sum of the doubled number: twice itself, and from 5 on a ten is
// carried, which counts one in the next place. A carry coming in never causes another: 2 x 4 + 1
// is below ten.
int DoubledDigitSum(int digit) { return digit < 5 ? 2 * digit : 2 * digit - 10 + 1; }

constexpr int kDigits = 10;

constexpr LetterTable<kDigits, kMsiDigitLetters> SpreadBits() {
  LetterTable<kDigits, kMsiDigitLetters> letters{};
  for (int value = 0; value < kDigits; ++value) {
    for (int i = 0; i < kMsiDigitLetters; ++i) {
      const char* bit = (value << i / 3 & 8) != 0 ? kOneBit : kZeroBit;
      letters.rows[value][i] = ModuleLetter(bit[i % 3]);
    }
  }
  return letters;
}
constexpr auto kLetters = SpreadBits();

char* DrawDigit(char* at, char digit) { return CopyLetters(at, kLetters.rows[digit - '0']); }

struct MsiScheme {
  CheckScheme check;
  int lastWeight;     // of the first check digit, modulo 11; 0: there is none of modulo 11
  int modulo10Count;  // check digits of modulo 10 behind it
};

constexpr MsiScheme kSchemes[] = {
    {CheckScheme::kOwn, 0, 1},
    {CheckScheme::kNone, 0, 0},
    {CheckScheme::kVerify, 0, 1},
    {CheckScheme::kMsi10, 0, 1},
    {CheckScheme::kMsi10And10, 0, 2},
    {CheckScheme::kMsi11, kMsiLastWeight, 0},
    {CheckScheme::kMsi11And10, kMsiLastWeight, 1},
    {CheckScheme::kMsiNcr11, kMsiLastWeightOfNcr, 0},
    {CheckScheme::kMsiNcr11And10, kMsiLastWeightOfNcr, 1},
};

const MsiScheme& SchemeOf(CheckScheme check) {
  for (const MsiScheme& scheme : kSchemes) {
    if (scheme.check == check) return scheme;
  }
  return kSchemes[0];
}

int CheckDigitsOf(const MsiScheme& scheme) {
  return (scheme.lastWeight != 0 ? 1 : 0) + scheme.modulo10Count;
}

// Of the digits so far. A check of 10 gives what is no digit.
char NextCheck(const MsiScheme& scheme, const Characters& digits, bool isFirst) {
  if (!isFirst || scheme.lastWeight == 0) return MsiModulo10Check(digits);
  return static_cast<char>('0' + MsiModulo11Check(digits, scheme.lastWeight));
}

Refusal AppendChecks(const MsiScheme& scheme, PreparedText& text) {
  const int count = CheckDigitsOf(scheme);
  for (int i = 0; i < count; ++i) {
    const char check = NextCheck(scheme, {text.room, text.length}, i == 0);
    if (!IsDigit(check)) return {Reason::kNoCheck};
    Insert(text, text.length, check);
  }
  text.reading.behind = static_cast<std::uint8_t>(count);
  return {};
}

Refusal VerifyCheck(PreparedText& text) {
  if (text.length < 2) return {Reason::kOnlyCheck};
  text.reading.behind = 1;
  const std::size_t last = text.length - 1;
  return VerifyCharacter(text, last, MsiModulo10Check({text.room, last}));
}

}  // namespace

char MsiModulo10Check(const Characters& digits) {
  int sum = 0;
  bool doubled = true;
  for (std::size_t i = digits.length; i-- > 0; doubled = !doubled) {
    const int digit = digits.text[i] - '0';
    sum += doubled ? DoubledDigitSum(digit) : digit;
  }
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

int MsiModulo11Check(const Characters& digits, int lastWeight) {
  CyclicWeightedSum sum(2, lastWeight);
  for (std::size_t i = digits.length; i-- > 0;) sum.Add(digits.text[i] - '0');
  return (11 - sum.Modulo(11)) % 11;
}

int MsiCheckDigitsOf(CheckScheme check) { return CheckDigitsOf(SchemeOf(check)); }

bool HasMsiCheck(const Characters& digits, CheckScheme check) {
  const MsiScheme& scheme = SchemeOf(check);
  const std::size_t first = digits.length - static_cast<std::size_t>(CheckDigitsOf(scheme));
  for (std::size_t at = first; at < digits.length; ++at) {
    if (digits.text[at] != NextCheck(scheme, {digits.text, at}, at == first)) return false;
  }
  return true;
}

Refusal PrepareMsi(const LinearOptions& options, PreparedText& text, Conformance& how) {
  const Refusal refusal = CheckCharacters(text, how);
  if (refusal.IsRefused()) return refusal;
  text.encode = EncodeMsiDigits;
  text.isForPeople = true;
  text.quiet = {kMsiQuietModules, kMsiQuietModules};
  if (options.check == CheckScheme::kVerify) return VerifyCheck(text);
  return AppendChecks(SchemeOf(options.check), text);
}

int MsiDigit(const char* letters) {
  for (int digit = 0; digit < 10; ++digit) {
    if (std::memcmp(kLetters.rows[digit], letters, kMsiDigitLetters) == 0) return digit;
  }
  return kNoRow;
}

void EncodeMsi(const Characters& text, int /*variant*/, Conformance& /*how*/, SymbolWriter& out) {
  // Twelve letters for each digit and the check digit, start and stop.
  const std::size_t letters = kMsiDigitLetters * (text.length + 1);
  out.Open(letters + 3 + 4);
  out.AppendModules(kMsiStart);
  char* at = out.Room(letters);
  if (at == nullptr) return;
  for (std::size_t i = 0; i < text.length; ++i) at = DrawDigit(at, text.text[i]);
  DrawDigit(at, MsiModulo10Check(text));
  out.AppendModules(kMsiStop);
}

void EncodeMsiDigits(const Characters& text, int /*variant*/, Conformance& /*how*/,
                     SymbolWriter& out) {
  const std::size_t letters = kMsiDigitLetters * text.length;
  out.Open(letters + 3 + 4);
  out.AppendModules(kMsiStart);
  char* at = out.Room(letters);
  if (at == nullptr) return;
  for (std::size_t i = 0; i < text.length; ++i) at = DrawDigit(at, text.text[i]);
  out.AppendModules(kMsiStop);
}

}  // namespace barhatch
