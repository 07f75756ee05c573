#include "support/Code93Reader.h"

#include <map>

#include "support/QuietZoneTrim.h"

namespace barhatch::test {
namespace {

struct Width {
  const char* widths;  // bar, space, bar, space, bar, space, in modules
  const char* name;
  int value;
};

const Width kWidths[] = {
    {"131112", "0", 0},    {"111213", "1", 1},    {"111312", "2", 2},    {"111411", "3", 3},
    {"121113", "4", 4},    {"121212", "5", 5},    {"121311", "6", 6},    {"111114", "7", 7},
    {"131211", "8", 8},    {"141111", "9", 9},    {"211113", "A", 10},   {"211212", "B", 11},
    {"211311", "C", 12},   {"221112", "D", 13},   {"221211", "E", 14},   {"231111", "F", 15},
    {"112113", "G", 16},   {"112212", "H", 17},   {"112311", "I", 18},   {"122112", "J", 19},
    {"132111", "K", 20},   {"111123", "L", 21},   {"111222", "M", 22},   {"111321", "N", 23},
    {"121122", "O", 24},   {"131121", "P", 25},   {"212112", "Q", 26},   {"212211", "R", 27},
    {"211122", "S", 28},   {"211221", "T", 29},   {"221121", "U", 30},   {"222111", "V", 31},
    {"112122", "W", 32},   {"112221", "X", 33},   {"122121", "Y", 34},   {"123111", "Z", 35},
    {"121131", "-", 36},   {"311112", ".", 37},   {"311211", " ", 38},   {"321111", "$", 39},
    {"112131", "/", 40},   {"113121", "+", 41},   {"211131", "%", 42},   {"121221", "($)", 43},
    {"312111", "(%)", 44}, {"311121", "(/)", 45}, {"122211", "(+)", 46}, {"111141", "*", 47},
};

// By ASCII code, sixteen a row; a sign before a letter is the shift character of that sign.
const char* const kFullAscii[128] = {
    "%U", "$A", "$B", "$C", "$D", "$E", "$F", "$G", "$H", "$I", "$J", "$K", "$L", "$M", "$N", "$O",
    "$P", "$Q", "$R", "$S", "$T", "$U", "$V", "$W", "$X", "$Y", "$Z", "%A", "%B", "%C", "%D", "%E",
    " ",  "/A", "/B", "/C", "/D", "/E", "/F", "/G", "/H", "/I", "/J", "/K", "/L", "-",  ".",  "/O",
    "0",  "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "/Z", "%F", "%G", "%H", "%I", "%J",
    "%V", "A",  "B",  "C",  "D",  "E",  "F",  "G",  "H",  "I",  "J",  "K",  "L",  "M",  "N",  "O",
    "P",  "Q",  "R",  "S",  "T",  "U",  "V",  "W",  "X",  "Y",  "Z",  "%K", "%L", "%M", "%N", "%O",
    "%W", "+A", "+B", "+C", "+D", "+E", "+F", "+G", "+H", "+I", "+J", "+K", "+L", "+M", "+N", "+O",
    "+P", "+Q", "+R", "+S", "+T", "+U", "+V", "+W", "+X", "+Y", "+Z", "%P", "%Q", "%R", "%S", "%T",
};

const Width* FindByModules(const std::string& modules) {
  std::string widths;
  for (std::size_t i = 0; i < modules.size(); ++i) {
    if (i == 0 || modules[i] != modules[i - 1]) widths += '0';
    ++widths.back();
  }
  if (modules.empty() || modules[0] != '1') return nullptr;
  for (const Width& row : kWidths) {
    if (widths == row.widths) return &row;
  }
  return nullptr;
}

// All characters with start and stop, the termination bar taken off; empty when one is unknown.
std::vector<const Width*> ReadAll(const std::string& letters) {
  std::string modules = WithoutQuietZone(letters);
  if (modules.find_first_not_of("Aa") != std::string::npos || modules.size() % 9 != 1) return {};
  modules.pop_back();
  std::vector<const Width*> characters;
  for (std::size_t at = 0; at < modules.size(); at += 9) {
    std::string nine;
    for (char letter : modules.substr(at, 9)) nine += letter == 'A' ? '1' : '0';
    const Width* character = FindByModules(nine);
    if (character == nullptr) return {};
    characters.push_back(character);
  }
  return characters;
}

// The check value over values[0..count): the rightmost has weight 1, after the largest comes 1.
int CheckValue(const std::vector<int>& values, std::size_t count, std::size_t largestWeight) {
  std::size_t sum = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t fromTheRight = count - 1 - i;
    sum += static_cast<std::size_t>(values[i]) * (fromTheRight % largestWeight + 1);
  }
  return static_cast<int>(sum % 47);
}

}  // namespace

std::optional<std::string> NameOfCode93Character(const std::string& modules) {
  const Width* character = FindByModules(modules);
  if (character == nullptr) return std::nullopt;
  return character->name;
}

std::optional<std::vector<std::string>> ReadCode93Characters(const std::string& letters) {
  const std::vector<const Width*> all = ReadAll(letters);
  if (all.size() < 4 || all.front()->value != 47 || all.back()->value != 47) return std::nullopt;

  std::vector<std::string> names;
  std::vector<int> values;
  for (std::size_t i = 1; i + 1 < all.size(); ++i) {
    if (all[i]->value == 47) return std::nullopt;
    names.push_back(all[i]->name);
    values.push_back(all[i]->value);
  }
  const std::size_t dataCount = values.size() - 2;
  if (values[dataCount] != CheckValue(values, dataCount, 20)) return std::nullopt;
  if (values[dataCount + 1] != CheckValue(values, dataCount + 1, 15)) return std::nullopt;
  names.resize(dataCount);
  return names;
}

std::optional<std::string> ReadCode93(const std::string& letters) {
  const auto names = ReadCode93Characters(letters);
  if (!names) return std::nullopt;

  std::map<std::string, char> pairs;
  for (int character = 0; character < 128; ++character) {
    const std::string pair = kFullAscii[character];
    if (pair.size() == 2) pairs[pair] = static_cast<char>(character);
  }
  std::string text;
  for (std::size_t i = 0; i < names->size(); ++i) {
    const std::string& name = (*names)[i];
    if (name.size() == 1) {
      text += name;
      continue;
    }
    if (++i == names->size()) return std::nullopt;
    const auto pair = pairs.find(name[1] + (*names)[i]);
    if (pair == pairs.end()) return std::nullopt;
    text += pair->second;
  }
  return text;
}

std::vector<std::string> PublishedCode93Pair(int character) {
  const std::string pair = kFullAscii[character];
  if (pair.size() == 1) return {pair};
  return {std::string("(") + pair[0] + ")", std::string(1, pair[1])};
}

}  // namespace barhatch::test
