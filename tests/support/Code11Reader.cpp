#include "support/Code11Reader.h"

#include <vector>

#include "support/QuietZoneTrim.h"

namespace barhatch::test {
namespace {

// The published widths in the order 0 to 9, dash, start/stop: 1 narrow, 2 wide, bar first.
const std::string kWidths[] = {
    "11112", "21112", "12112", "22111", "11212", "21211",
    "12211", "11122", "21121", "21111", "11211", "11221",
};
const std::string kNames = "0123456789-*";

std::optional<char> NameOf(const std::string& elements) {
  std::string widths;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const std::string allowed = i % 2 == 0 ? "AB" : "ab";
    if (allowed.find(elements[i]) == std::string::npos) return std::nullopt;
    widths += elements[i] == allowed[1] ? '2' : '1';
  }
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (widths == kWidths[i]) return kNames[i];
  }
  return std::nullopt;
}

// The check character over the text: weights from the right, 1 to the largest and over again.
char CheckCharacter(const std::string& text, std::size_t largestWeight) {
  std::size_t sum = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t value = kNames.find(text[i]);
    sum += value * ((text.size() - 1 - i) % largestWeight + 1);
  }
  return kNames[sum % 11];
}

}  // namespace

std::optional<std::string> ReadCode11Characters(const std::string& letters) {
  const std::string symbol = WithoutQuietZone(letters) + "a";
  std::string names;
  if (symbol.size() % 6 != 0) return std::nullopt;
  for (std::size_t at = 0; at < symbol.size(); at += 6) {
    const auto name = NameOf(symbol.substr(at, 5));
    if (!name || symbol[at + 5] != 'a') return std::nullopt;
    names += *name;
  }
  if (names.size() < 2 || names.front() != '*' || names.back() != '*') return std::nullopt;
  names = names.substr(1, names.size() - 2);
  if (names.find('*') != std::string::npos) return std::nullopt;
  return names;
}

std::optional<std::string> ReadCode11(const std::string& letters, Code11Checks checks) {
  auto text = ReadCode11Characters(letters);
  if (!text) return std::nullopt;
  if (checks == Code11Checks::kCAndK) {
    if (text->empty()) return std::nullopt;
    const char k = text->back();
    text->pop_back();
    if (k != CheckCharacter(*text, 9)) return std::nullopt;
  }
  if (text->empty()) return std::nullopt;
  const char c = text->back();
  text->pop_back();
  if (c != CheckCharacter(*text, 10)) return std::nullopt;
  return text;
}

}  // namespace barhatch::test
