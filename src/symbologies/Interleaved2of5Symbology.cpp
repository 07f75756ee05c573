#include "symbologies/Interleaved2of5Symbology.h"

#include <cassert>
#include <cstddef>
#include <cstring>

#include "job/CharacterClasses.h"

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
constexpr char kStartElements[] = "0000";
constexpr char kStopElements[] = "100";

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

// What an Interleaved 2 of 5 module string has always been allocated with.
constexpr std::size_t kUsualCapacity = 24936;
// Four elements of start and three of stop.
constexpr std::size_t kFrameLetters = 4 + 3;

// Returns the number of digits written, which is even.
std::size_t CompleteDigits(const char* text, Interleaved2of5Check check, char* digits) {
  const std::size_t textLength = std::strlen(text);
  const std::size_t checkDigits = check == Interleaved2of5Check::kAppended ? 1 : 0;
  std::size_t length = 0;
  if ((textLength + checkDigits) % 2 != 0) digits[length++] = '0';
  std::memcpy(digits + length, text, textLength);  // NOLINT(bugprone-not-null-terminated-result)
  length += textLength;
  if (checkDigits != 0) digits[length++] = Interleaved2of5CheckDigit(text);
  assert(length % 2 == 0);
  return length;
}

}  // namespace

char Interleaved2of5CheckDigit(const char* digits) {
  int sum = 0;
  int weight = 3;  // D-25-1: published from the rightmost digit on
  for (; *digits != '\0'; ++digits) {
    sum += weight * (*digits - '0');
    weight = weight == 3 ? 1 : 3;
  }
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

const char* Interleaved2of5Elements(char digit) {
  return IsDigit(digit) ? kDigitElements[digit - '0'] : nullptr;
}

char* EncodeInterleaved2of5(const char* text, Interleaved2of5Check check, QuietZone quietZone) {
  if (!IsDigits(text)) return nullptr;  // D-25-2: the empty text passes
  char digits[kNarrowTextCapacity];     // 3119 digits and one more, or 3118 and two, without NUL
  const std::size_t length = CompleteDigits(text, check, digits);

  const int quietModules = QuietModules(quietZone);
  const std::size_t letters =
      kFrameLetters + kElementsOfDigit * length + 2 * static_cast<std::size_t>(quietModules);
  ModuleStringBuilder builder(kUsualCapacity, letters);
  builder.AppendSpace(quietModules);
  builder.AppendElements(kStartElements);
  for (std::size_t i = 0; i < length; i += 2) {
    builder.AppendInterleaved<kElementsOfDigit>(Interleaved2of5Elements(digits[i]),
                                                Interleaved2of5Elements(digits[i + 1]));
  }
  builder.AppendElements(kStopElements);
  builder.AppendSpace(quietModules);
  return builder.Release();
}

char* EncodeInterleaved2of5(const char* text, QuietZone quietZone) {
  return EncodeInterleaved2of5(text, Interleaved2of5Check::kNone, quietZone);
}

}  // namespace barhatch
