// What the Code 128 tests share: values as decimal text and read-back by the plain reader.
#ifndef BARHATCH_TESTS_SYMBOLOGIES_CODE128TESTING_H
#define BARHATCH_TESTS_SYMBOLOGIES_CODE128TESTING_H

#include <optional>
#include <random>
#include <string>
#include <vector>

#include "support/Code128Reader.h"
#include "support/ExpectedReading.h"
#include "symbologies/Code128Policies.h"
#include "symbologies/DrawnSymbol.h"

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
  for (const TypeAndPolicy& row : kTypes) {
    if (row.policy == policy) return DrawnByTheDevice(row.type, text, quietZone);
  }
  return std::nullopt;
}

// Start to check character; empty for a refused text.
inline std::vector<int> ValuesWithCheck(Code128Policy policy, const std::string& text) {
  if (!Encode(policy, text)) return {};
  Conformance how = Conformance::Device();
  Code128Values symbol;
  BuildCode128Values({text.c_str(), text.size()}, policy, how, symbol);
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

inline std::string ExpectedText(Code128Policy policy, const std::string& text) {
  for (const TypeAndPolicy& row : kTypes) {
    if (row.policy == policy) return ExpectedLinearReading(row.type, text).text.value_or("unread");
  }
  return "unread";
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
