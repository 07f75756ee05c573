// Expected module strings in the notation of the standards, folded into letters. Blanks group and
// mean nothing.
#ifndef BARHATCH_TESTS_SUPPORT_MODULES_H
#define BARHATCH_TESTS_SUPPORT_MODULES_H

#include <string>

namespace barhatch::test {

// "101 0001011": single modules, '1' dark, '0' light.
inline std::string Modules(const std::string& digits) {
  std::string letters;
  for (char digit : digits) {
    if (digit != ' ') letters += digit == '1' ? 'A' : 'a';
  }
  return letters;
}

// "NNWWN wn": elements, upper case bar or space alike, bar first and then alternating; W wide, N
// narrow.
inline std::string Elements(const std::string& widths) {
  std::string letters;
  for (char width : widths) {
    if (width == ' ') continue;
    const bool bar = letters.size() % 2 == 0;
    letters += width == 'W' ? (bar ? 'B' : 'b') : (bar ? 'A' : 'a');
  }
  return letters;
}

inline std::string Quiet(int modules = 10) {
  return std::string(static_cast<std::size_t>(modules), 'a');
}

}  // namespace barhatch::test

#endif
