// Grids of modules in readable form: one string a row from the top, '#' dark and '.' light.
#ifndef BARHATCH_TESTS_SUPPORT_GRIDTEXT_H
#define BARHATCH_TESTS_SUPPORT_GRIDTEXT_H

#include <cstddef>
#include <string>
#include <vector>

namespace barhatch::test {

// Letters row by row, 'A' dark, 'a' light. Anything else becomes '?'.
inline std::vector<std::string> FromLetters(const std::string& letters, int columns) {
  std::vector<std::string> rows;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    if (i % static_cast<std::size_t>(columns) == 0) rows.emplace_back();
    rows.back() += letters[i] == 'A' ? '#' : letters[i] == 'a' ? '.' : '?';
  }
  return rows;
}

}  // namespace barhatch::test

#endif
