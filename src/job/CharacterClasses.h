// Character classes by plain comparison. The library reads no locale, and bytes are compared as
// signed 8-bit values on every compiler (plain char is unsigned on ARM Linux), so bytes of 128 and
// above lie below '\0'.
#ifndef BARHATCH_JOB_CHARACTERCLASSES_H
#define BARHATCH_JOB_CHARACTERCLASSES_H

namespace barhatch {

constexpr signed char AsSignedByte(char c) { return static_cast<signed char>(c); }

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsAsciiUpper(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool IsAsciiLower(char c) { return c >= 'a' && c <= 'z'; }

// True for digits alone, and for the empty text.
constexpr bool IsDigits(const char* text) {
  while (IsDigit(*text)) ++text;
  return *text == '\0';
}

// True for the characters of the list and false for all others, the NUL among them.
constexpr bool IsOneOf(char c, const char* list) {
  for (; *list != '\0'; ++list) {
    if (c == *list) return true;
  }
  return false;
}

}  // namespace barhatch

#endif
