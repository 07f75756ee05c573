// What the Code 128 tests share: values as decimal text, read-back by the plain reader, and what a
// standard reader is expected to give where the deviations D-128-1 and D-128-2 touch a text.
#ifndef BARHATCH_TESTS_SYMBOLOGIES_CODE128TESTING_H
#define BARHATCH_TESTS_SYMBOLOGIES_CODE128TESTING_H

#include <optional>
#include <random>
#include <string>
#include <vector>

#include "support/Code128Reader.h"
#include "support/OwnedString.h"
#include "symbologies/Code128Symbologies.h"

namespace barhatch::test::code128 {

constexpr Code128Policy kAuto = Code128Policy::kAuto;
constexpr Code128Policy kFromA = Code128Policy::kFromA;
constexpr Code128Policy kB = Code128Policy::kB;
constexpr Code128Policy kFromC = Code128Policy::kFromC;

struct TypeAndPolicy {
  int type;
  Code128Policy policy;
};
constexpr TypeAndPolicy kTypes[] = {{5, kAuto}, {6, kFromA}, {7, kB}, {8, kFromC}};

inline std::optional<std::string> Encode(Code128Policy policy, const std::string& text,
                                         QuietZone quietZone = QuietZone::kNone) {
  return Take(EncodeCode128(text.c_str(), policy, quietZone));
}

// Start to check character; empty for a refused text.
inline std::vector<int> ValuesWithCheck(Code128Policy policy, const std::string& text) {
  Code128Values symbol;
  if (!BuildCode128Values(text.c_str(), policy, symbol)) return {};
  return std::vector<int>(symbol.values, symbol.values + symbol.count);
}

// Start to last data value as decimal text: "104 33".
inline std::string Values(Code128Policy policy, const std::string& text) {
  std::vector<int> values = ValuesWithCheck(policy, text);
  if (values.empty()) return "refused";
  values.pop_back();
  std::string decimal;
  for (int value : values) decimal += (decimal.empty() ? "" : " ") + std::to_string(value);
  return decimal;
}

// The text that a standard reader gives for the symbol; "unread" when it gives none.
inline std::string ReadBack(Code128Policy policy, const std::string& text) {
  const auto encoded = Encode(policy, text);
  const auto reading = encoded ? ReadCode128(*encoded) : std::nullopt;
  return reading ? reading->text : "unread";
}

inline std::string Repeat(const std::string& part, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += part;
  return text;
}

inline bool IsLowerRange(char c) { return c >= 96 && c <= 126; }

inline bool IsDigitCharacter(char c) { return c >= '0' && c <= '9'; }

// D-128-1 by the shape of the text alone: five or more characters that are all digits, an odd
// number of them; or a last character that is no digit after a run of four or more digits, which is
// even or does not begin the text.
inline bool HasLoneLastCharacter(const std::string& text) {
  if (text.size() < 5) return false;
  const bool endsInDigit = IsDigitCharacter(text.back());
  std::size_t runBegin = text.size() - (endsInDigit ? 0 : 1);
  const std::size_t runEnd = runBegin;
  while (runBegin > 0 && IsDigitCharacter(text[runBegin - 1])) --runBegin;
  const std::size_t run = runEnd - runBegin;
  if (endsInDigit) return runBegin == 0 && run % 2 == 1;
  return run >= 4 && (run % 2 == 0 || runBegin > 0);
}

inline std::string ExpectedReadingOfAuto(std::string text) {
  if (!HasLoneLastCharacter(text)) return text;
  const int value = text.back() - 32;
  text.pop_back();
  return text + static_cast<char>('0' + value / 10) + static_cast<char>('0' + value % 10);
}

// D-128-2: a 127 in front of the first character from 96 to 126 is read as control character 31.
inline std::string ExpectedReadingFromA(std::string text) {
  for (char& c : text) {
    if (IsLowerRange(c)) break;
    if (c == 127) c = 31;
  }
  return text;
}

inline std::string ExpectedReading(Code128Policy policy, const std::string& text) {
  if (policy == kAuto) return ExpectedReadingOfAuto(text);
  return policy == kFromA ? ExpectedReadingFromA(text) : text;
}

// Runs of one kind of character each, so that every policy finds something to switch for.
inline std::string RandomText(std::mt19937& random, std::size_t length) {
  const std::string kinds[] = {"0123456789", "ABCXYZ -./", "abcxyz`~{", "\x7f \x5f\x40"};
  std::string text;
  while (text.size() < length) {
    const std::string& kind = kinds[random() % 16 == 0 ? 3 : random() % 3];
    const std::size_t run = 1 + random() % 7;
    for (std::size_t i = 0; i < run && text.size() < length; ++i)
      text += kind[random() % kind.size()];
  }
  return text;
}

}  // namespace barhatch::test::code128

#endif
