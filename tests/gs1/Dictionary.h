// The rows of dictionary.txt: the public syntax dictionary of GS1, which tests hold the library's
// own table against.
#ifndef BARHATCH_TESTS_GS1_DICTIONARY_H
#define BARHATCH_TESTS_GS1_DICTIONARY_H

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace barhatch::test {

struct DictionaryRow {
  std::string first;  // identifiers
  std::string last;
  bool isPredefined = false;
  std::vector<std::string> components;  // "N13,csum,gcppos1" "[X..17]"
  std::string needs;                    // "01,8006+21"; empty: nothing
  std::string notWith;                  // "01,310n"
};

inline std::vector<std::string> SplitAt(const std::string& text, char sign) {
  std::vector<std::string> parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, sign);) parts.push_back(part);
  return parts;
}

inline std::vector<DictionaryRow> ReadDictionary() {
  std::ifstream file(BARHATCH_GS1_TESTS "/dictionary.txt");
  std::vector<DictionaryRow> rows;
  for (std::string line; std::getline(file, line);) {
    if (line.front() == '#') continue;
    const std::vector<std::string> columns = SplitAt(line, '\t');
    const std::vector<std::string> ais = SplitAt(columns[0], '-');
    rows.push_back({ais.front(), ais.back(), columns[1] == "f", SplitAt(columns[2], ' '),
                    columns[3] == "-" ? "" : columns[3], columns[4] == "-" ? "" : columns[4]});
  }
  return rows;
}

// The identifiers of a row, with their leading zeros.
inline std::vector<std::string> IdentifiersOf(const DictionaryRow& row) {
  std::vector<std::string> ais;
  for (int ai = std::stoi(row.first); ai <= std::stoi(row.last); ++ai) {
    const std::string digits = std::to_string(ai);
    ais.push_back(std::string(row.first.size() - digits.size(), '0') + digits);
  }
  return ais;
}

}  // namespace barhatch::test

#endif
