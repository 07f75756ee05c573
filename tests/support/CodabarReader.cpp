#include "support/CodabarReader.h"

#include <map>

#include "support/QuietZoneTrim.h"

namespace barhatch::test {
namespace {

// Which of the seven elements are wide, counted from 1 at the left.
const std::map<std::string, char> kWidePositions = {
    {"67", '0'},  {"56", '1'},  {"47", '2'},  {"12", '3'},  {"36", '4'},
    {"16", '5'},  {"27", '6'},  {"25", '7'},  {"23", '8'},  {"14", '9'},
    {"45", '-'},  {"34", '$'},  {"157", ':'}, {"137", '/'}, {"135", '.'},
    {"357", '+'}, {"346", 'A'}, {"247", 'B'}, {"467", 'C'}, {"456", 'D'},
};

std::optional<char> NameOf(const std::string& elements) {
  std::string wide;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const std::string allowed = i % 2 == 0 ? "AB" : "ab";
    if (allowed.find(elements[i]) == std::string::npos) return std::nullopt;
    if (elements[i] == allowed[1]) wide += static_cast<char>('1' + i);
  }
  const auto found = kWidePositions.find(wide);
  if (found == kWidePositions.end()) return std::nullopt;
  return found->second;
}

bool IsStartStop(char name) { return name >= 'A' && name <= 'D'; }

}  // namespace

std::optional<std::string> ReadCodabarCharacters(const std::string& letters) {
  const std::string symbol = WithoutQuietZone(letters) + "a";
  if (symbol.size() % 8 != 0) return std::nullopt;
  std::string names;
  for (std::size_t at = 0; at < symbol.size(); at += 8) {
    const auto name = NameOf(symbol.substr(at, 7));
    if (!name || symbol[at + 7] != 'a') return std::nullopt;
    names += *name;
  }
  return names;
}

std::optional<std::string> ReadCodabar(const std::string& letters) {
  const auto names = ReadCodabarCharacters(letters);
  if (!names || names->size() < 2) return std::nullopt;
  for (std::size_t i = 0; i < names->size(); ++i) {
    const bool atAnEnd = i == 0 || i == names->size() - 1;
    if (IsStartStop((*names)[i]) != atAnEnd) return std::nullopt;
  }
  return names;
}

}  // namespace barhatch::test
