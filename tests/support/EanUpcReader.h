// A plain reader of EAN/UPC symbols, the opposite of the encoders and without anything of theirs:
// it works on the widths of bars and spaces, as the standard draws the characters, and finds out
// for itself which symbol it has before it.
//
// It is strict: every element must belong to a guard, a digit, a separator or the gap, every parity
// must exist and every check digit be right; otherwise there is no reading.
#ifndef BARHATCH_TESTS_SUPPORT_EANUPCREADER_H
#define BARHATCH_TESTS_SUPPORT_EANUPCREADER_H

#include <optional>
#include <string>

namespace barhatch::test {

struct EanUpcReading {
  std::string symbol;  // "EAN-13" (UPC-A is one that begins with '0'), "EAN-8" or "UPC-E"
  std::string digits;  // 13 or 8 digits with the check digit; UPC-E begins with its number system
  std::string addon;   // empty, 2 or 5 digits
  int leftQuiet = 0;   // light modules before the first and behind the last bar
  int rightQuiet = 0;
  int gap = 0;  // light modules between the main symbol and the add-on, 0 without one
};

// Reads a string of 'A' and 'a', one letter a module.
std::optional<EanUpcReading> ReadEanUpc(const std::string& moduleString);

// The check digit of digits that lack it: what makes 3 times every other digit, beginning with the
// last, plus the rest a multiple of ten.
char MissingCheckDigit(const std::string& digits);

// The 11 digits of UPC-A without check digit for number system and six digits of UPC-E.
std::string ExpandedUpcE(const std::string& upcE);

}  // namespace barhatch::test

#endif
