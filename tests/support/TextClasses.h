// The nine classes of characters that Data Matrix texts are tested with, and seeded texts of them.
#ifndef BARHATCH_TESTS_SUPPORT_TEXTCLASSES_H
#define BARHATCH_TESTS_SUPPORT_TEXTCLASSES_H

#include <cstddef>
#include <random>
#include <string>

namespace barhatch::test {

constexpr int kTextClassCount = 9;
constexpr int kMixedClass = 8;

inline std::string Bytes(int first, int last) {
  std::string bytes;
  for (int byte = first; byte <= last; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

// Digits, upper, lower, space, X12 signs, EDIFACT punctuation, control, extended, mixed.
inline std::string CharactersOfClass(int textClass) {
  switch (textClass) {
    case 0:
      return Bytes('0', '9');
    case 1:
      return Bytes('A', 'Z');
    case 2:
      return Bytes('a', 'z');
    case 3:
      return " ";
    case 4:
      return "\r*>";
    case 5:
      return Bytes('!', ')') + Bytes('+', '/') + ":;<=?@[\\]^";
    case 6:
      return Bytes(1, 12) + Bytes(14, 31) + "_`{|}~\x7F";
    case 7:
      return Bytes(128, 255);
    default:
      return Bytes(1, 255);
  }
}

inline std::size_t Below(std::mt19937& random, std::size_t limit) { return random() % limit; }

// Runs of one class each; mainly characters of the given class.
inline std::string RandomText(std::mt19937& random, int textClass, std::size_t length) {
  std::string text;
  while (text.size() < length) {
    const bool isOwn = Below(random, 3) != 0;
    const std::string characters =
        CharactersOfClass(isOwn ? textClass : static_cast<int>(Below(random, kTextClassCount)));
    for (std::size_t run = 1 + Below(random, isOwn ? 12 : 4); run > 0; --run) {
      text += characters[Below(random, characters.size())];
    }
  }
  text.resize(length);
  return text;
}

inline std::u16string Wide(const std::string& bytes) {
  std::u16string text;
  for (const char byte : bytes) text += static_cast<char16_t>(static_cast<unsigned char>(byte));
  return text;
}

}  // namespace barhatch::test

#endif
