#include "symbologies/Interleaved2of5.h"

#include "job/CharacterClasses.h"
#include "symbologies/PatternRows.h"

namespace barhatch {

namespace {

// Interleaved 2 of 5 digits: ISO/IEC 16390, character encodation. Elements left to right, all bars
// or all spaces; 1 = wide. The digits 1 to 9 are the sums of the weights of their wide elements; 0,
// which no such sum is left for, takes 4 + 7.
// clang-format off
constexpr char kDigitElements[10][6] = {
    // 1247P
    "00110",  // 0
    "10001",  // 1
    "01001",  // 2
    "11000",  // 3
    "00101",  // 4
    "10100",  // 5
    "01100",  // 6
    "00011",  // 7
    "10010",  // 8
    "01010",  // 9
};
// clang-format on
constexpr int kElementsOfDigit = 5;
constexpr int kElementWeights[kElementsOfDigit] = {1, 2, 4, 7, 0};

constexpr bool IsTwoOfFive(const char* elements) {
  int wide = 0;
  for (int i = 0; i < kElementsOfDigit; ++i) wide += elements[i] == '1' ? 1 : 0;
  return wide == 2 && elements[kElementsOfDigit] == '\0';
}

constexpr int WeightedDigit(const char* elements) {
  int sum = 0;
  for (int i = 0; i < kElementsOfDigit; ++i) sum += elements[i] == '1' ? kElementWeights[i] : 0;
  return sum % 11;
}

constexpr bool EveryRowStandsForItsIndex() {
  for (int digit = 0; digit < 10; ++digit) {
    if (!IsTwoOfFive(kDigitElements[digit])) return false;
    if (WeightedDigit(kDigitElements[digit]) != digit) return false;
  }
  return true;
}
static_assert(EveryRowStandsForItsIndex(), "two of five wide, and their weights make the digit");

// Four elements of start and three of stop.
constexpr std::size_t kFrameLetters = 4 + 3;

constexpr std::size_t kPairLetters = 2 * kElementsOfDigit;
static_assert(kPairLetters == kInterleaved2of5PairLetters, "");

// The digits as bars and as spaces.
struct ShadedDigits {
  char bars[10][kElementsOfDigit];
  char spaces[10][kElementsOfDigit];
};

constexpr ShadedDigits ShadeDigits() {
  ShadedDigits shaded{};
  for (int digit = 0; digit < 10; ++digit) {
    for (int i = 0; i < kElementsOfDigit; ++i) {
      shaded.bars[digit][i] = ElementLetter(kDigitElements[digit][i], 0);
      shaded.spaces[digit][i] = ElementLetter(kDigitElements[digit][i], 1);
    }
  }
  return shaded;
}
constexpr ShadedDigits kLetters = ShadeDigits();

constexpr LetterTable<100, kPairLetters> DrawPairs() {
  LetterTable<100, kPairLetters> pairs{};
  for (int pair = 0; pair < 100; ++pair) {
    for (int i = 0; i < kElementsOfDigit; ++i) {
      pairs.rows[pair][2 * i] = kLetters.bars[pair / 10][i];
      pairs.rows[pair][2 * i + 1] = kLetters.spaces[pair % 10][i];
    }
  }
  return pairs;
}
constexpr ElementRows<kPairLetters> kPairs(DrawPairs());

// The first digit in the bars, the second in the spaces.
char* DrawPair(char* at, char first, char second) {
  const char* const bars = kLetters.bars[first - '0'];
  const char* const spaces = kLetters.spaces[second - '0'];
  for (int i = 0; i < kElementsOfDigit; ++i) {
    *at++ = bars[i];
    *at++ = spaces[i];
  }
  return at;
}

void AppendCheck(PreparedText& text, Conformance& how) {
  Insert(text, text.length, Interleaved2of5CheckDigit({text.room, text.length}, how));
}

Refusal VerifyCheck(const PreparedText& text, Conformance& how) {
  if (text.length < 2) return {Reason::kOnlyCheck};
  const std::size_t last = text.length - 1;
  return VerifyCharacter(text, last, Interleaved2of5CheckDigit({text.room, last}, how));
}

}  // namespace

Refusal PrepareInterleaved2of5(const LinearOptions& options, PreparedText& text, Conformance& how) {
  const Refusal refusal = CheckCharacters(text, how);
  if (refusal.IsRefused()) return refusal;
  if (options.check == CheckScheme::kVerify) return VerifyCheck(text, how);
  if (options.check == CheckScheme::kInterleaved10) AppendCheck(text, how);
  return {};
}

Refusal PrepareItf14(const LinearOptions& options, PreparedText& text, Conformance& how) {
  const Refusal refusal = CheckCharacters(text, how);
  if (refusal.IsRefused()) return refusal;
  if (text.length == kItf14Digits) return VerifyCheck(text, how);
  if (options.check == CheckScheme::kVerify) {
    return {Reason::kCheckCount, -1, static_cast<std::int32_t>(text.length)};
  }
  AppendCheck(text, how);
  return {};
}

char Interleaved2of5CheckDigit(const Characters& digits, Conformance& how) {
  const bool startsOnTheLeft = how.Deviates(Deviation::kD25_1);
  int sum = 0;
  for (std::size_t i = 0; i < digits.length; ++i) {
    const std::size_t place = startsOnTheLeft ? i : digits.length - 1 - i;
    sum += (place % 2 == 0 ? 3 : 1) * (digits.text[i] - '0');
  }
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

const char* Interleaved2of5Elements(char digit) {
  return IsDigit(digit) ? kDigitElements[digit - '0'] : nullptr;
}

int Interleaved2of5Pair(const char* letters) { return kPairs.Find(letters); }

void EncodeInterleaved2of5(const Characters& text, int /*variant*/, Conformance& /*how*/,
                           SymbolWriter& out) {
  const char* next = text.text;
  const char* const end = text.text + text.length;
  const std::size_t letters = kPairLetters * ((text.length + 1) / 2);
  out.Open(kFrameLetters + letters);
  out.AppendElements(kInterleaved2of5Start);
  char* at = out.Room(letters);
  if (at == nullptr) return;
  if (text.length % 2 != 0) at = DrawPair(at, '0', *next++);
  for (; next < end; next += 2) at = DrawPair(at, next[0], next[1]);
  out.AppendElements(kInterleaved2of5Stop);
}

}  // namespace barhatch
