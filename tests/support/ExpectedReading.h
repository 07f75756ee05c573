// What a standard reader makes of a symbol of the library, written from docs/deviations.md row by
// row: the text that was given, another one, or nothing. Shares no code with the encoders.
#ifndef BARHATCH_TESTS_SUPPORT_EXPECTEDREADING_H
#define BARHATCH_TESTS_SUPPORT_EXPECTEDREADING_H

#include <optional>
#include <string>

namespace barhatch::test {

struct ExpectedReading {
  std::optional<std::string> text;  // EAN/UPC: the digits with the check digit; none: unreadable
  std::string addOn;
  std::string ids;  // the rows that touch the text, "D-39-2 D-39-5"
};

// REQUIRES: a text that the type accepts.
ExpectedReading ExpectedLinearReading(int type, const std::string& text);

}  // namespace barhatch::test

#endif
