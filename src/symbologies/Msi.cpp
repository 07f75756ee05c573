#include "symbologies/Msi.h"

#include <cstring>

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

constexpr int kDigits = 11;  // a check of 10 as well

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

char MsiModulo11Check(const Characters& digits) {
  CyclicWeightedSum sum(2, 7);
  for (std::size_t i = digits.length; i-- > 0;) sum.Add(digits.text[i] - '0');
  return static_cast<char>('0' + (11 - sum.Modulo(11)) % 11);
}

int MsiDigit(const char* letters) {
  for (int digit = 0; digit < 10; ++digit) {
    if (std::memcmp(kLetters.rows[digit], letters, kMsiDigitLetters) == 0) return digit;
  }
  return kNoRow;
}

void EncodeMsi(const Characters& text, int variant, Conformance& /*how*/, SymbolWriter& out) {
  const bool isModulo11 = static_cast<MsiCheckScheme>(variant) == MsiCheckScheme::kModulo11;
  // Twelve letters for each digit and the check digit, start and stop.
  const std::size_t letters = kMsiDigitLetters * (text.length + 1);
  out.Open(letters + 3 + 4);
  out.AppendModules(kMsiStart);
  char* at = out.Room(letters);
  if (at == nullptr) return;
  for (std::size_t i = 0; i < text.length; ++i) at = DrawDigit(at, text.text[i]);
  DrawDigit(at, isModulo11 ? MsiModulo11Check(text) : MsiModulo10Check(text));
  out.AppendModules(kMsiStop);
}

}  // namespace barhatch
