// Check characters of linear symbologies as their standards word them, for texts of any length.
// Shares nothing with the library.
#ifndef BARHATCH_TESTS_SUPPORT_CHECKCHARACTERS_H
#define BARHATCH_TESTS_SUPPORT_CHECKCHARACTERS_H

#include <cstddef>
#include <string>

namespace barhatch::test {

// ISO/IEC 16388: the values of the characters, their sum modulo 43.
inline char Modulo43Of(const std::string& text) {
  const std::string names = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";
  std::size_t sum = 0;
  for (const char name : text) sum += names.find(name);
  return names[sum % 43];
}

// Codabar: what makes the sum of all values, start and stop among them, a multiple of 16.
inline char Modulo16Of(const std::string& textWithStartAndStop) {
  const std::string names = "0123456789-$:/.+ABCD";
  std::size_t sum = 0;
  for (const char name : textWithStartAndStop) sum += names.find(name);
  return names[(16 - sum % 16) % 16];
}

// Code 11: weights from the right, 1 to the largest and over again; 10 for C, 9 for K.
inline char Code11CheckOf(const std::string& text, std::size_t largestWeight) {
  const std::string names = "0123456789-";
  std::size_t sum = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    sum += names.find(text[text.size() - 1 - i]) * (i % largestWeight + 1);
  }
  return names[sum % 11];
}

// MSI modulo 11: weights from the right, 2 to the largest and over again; ':' for 10, which has no
// digit.
inline char MsiModulo11Of(const std::string& data, std::size_t largestWeight) {
  std::size_t sum = 0;
  for (std::size_t i = 0; i < data.size(); ++i) {
    const char digit = data[data.size() - 1 - i];
    sum += static_cast<std::size_t>(digit - '0') * (i % (largestWeight - 1) + 2);
  }
  return static_cast<char>('0' + (11 - sum % 11) % 11);
}

}  // namespace barhatch::test

#endif
