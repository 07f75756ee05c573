// What standards say of their pattern tables, to be proven at compile time below each table. A
// pattern is a string of '1' and '0': single modules, or elements of which '1' is wide.
#ifndef BARHATCH_SYMBOLOGIES_PATTERNTABLES_H
#define BARHATCH_SYMBOLOGIES_PATTERNTABLES_H

#include <cstddef>

namespace barhatch {

constexpr bool IsSamePattern(const char* a, const char* b) {
  for (; *a != '\0' && *a == *b; ++a) ++b;
  return *a == *b;
}

// True when no two rows have the same pattern: AllDistinct(kRows, &Row::elements).
template <typename Row, std::size_t kRows, std::size_t kLength>
constexpr bool AllDistinct(const Row (&rows)[kRows], char (Row::*pattern)[kLength]) {
  for (std::size_t a = 0; a < kRows; ++a) {
    for (std::size_t b = 0; b < a; ++b) {
      if (IsSamePattern(rows[a].*pattern, rows[b].*pattern)) return false;
    }
  }
  return true;
}

// True when every pattern fills its field of kLength - 1 digits and the NUL.
template <typename Row, std::size_t kRows, std::size_t kLength>
constexpr bool AllOfFullLength(const Row (&rows)[kRows], char (Row::*pattern)[kLength]) {
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < kLength - 1; ++i) {
      if ((row.*pattern)[i] != '0' && (row.*pattern)[i] != '1') return false;
    }
  }
  return true;
}

// Wide elements among the bars (the first, third, ... element) and among the spaces.
constexpr int WideBars(const char* elements) {
  int wide = 0;
  for (int i = 0; elements[i] != '\0'; ++i) wide += i % 2 == 0 && elements[i] == '1' ? 1 : 0;
  return wide;
}
constexpr int WideSpaces(const char* elements) {
  int wide = 0;
  for (int i = 0; elements[i] != '\0'; ++i) wide += i % 2 == 1 && elements[i] == '1' ? 1 : 0;
  return wide;
}

// Bars and spaces of a pattern of single modules.
constexpr int Runs(const char* modules) {
  int runs = *modules != '\0' ? 1 : 0;
  for (; modules[0] != '\0' && modules[1] != '\0'; ++modules) {
    runs += modules[0] != modules[1] ? 1 : 0;
  }
  return runs;
}

}  // namespace barhatch

#endif
