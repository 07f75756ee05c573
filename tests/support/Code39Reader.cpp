#include "support/Code39Reader.h"

#include "support/QuietZoneTrim.h"

namespace barhatch::test {

namespace {

// Two of the five bars are wide, in ten ways; the one wide space tells the group of ten.
const std::string kBars[] = {"10001", "01001", "11000", "00101", "10100",
                             "01100", "00011", "10010", "01010", "00110"};
struct Group {
  std::string spaces;
  std::string names;
};
const Group kGroups[] = {
    {"0100", "1234567890"}, {"0010", "ABCDEFGHIJ"}, {"0001", "KLMNOPQRST"}, {"1000", "UVWXYZ-. *"}};
// Narrow bars and three wide spaces.
const Group kSigns[] = {{"1110", "$"}, {"1101", "/"}, {"1011", "+"}, {"0111", "%"}};

std::optional<char> NameOf(const std::string& bars, const std::string& spaces) {
  for (const Group& sign : kSigns) {
    if (bars == "00000" && spaces == sign.spaces) return sign.names[0];
  }
  for (const Group& group : kGroups) {
    for (std::size_t i = 0; i < 10; ++i) {
      if (bars == kBars[i] && spaces == group.spaces) return group.names[i];
    }
  }
  return std::nullopt;
}

std::optional<char> Character(const std::string& elements) {
  std::string wide[2];
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const std::string allowed = i % 2 == 0 ? "AB" : "ab";
    if (allowed.find(elements[i]) == std::string::npos) return std::nullopt;
    wide[i % 2] += elements[i] == allowed[1] ? '1' : '0';
  }
  return NameOf(wide[0], wide[1]);
}

}  // namespace

std::optional<std::string> ReadCode39(const std::string& letters) {
  const std::string symbol = WithoutQuietZone(letters) + "a";
  if (symbol.size() % 10 != 0) return std::nullopt;
  std::string text;
  for (std::size_t at = 0; at < symbol.size(); at += 10) {
    const auto name = Character(symbol.substr(at, 9));
    if (!name || symbol[at + 9] != 'a' || (at == 0 && name != '*')) return std::nullopt;
    if (at == 0) continue;
    if (name == '*') return text.empty() ? std::nullopt : std::optional<std::string>(text);
    text += *name;
  }
  return std::nullopt;
}

}  // namespace barhatch::test
