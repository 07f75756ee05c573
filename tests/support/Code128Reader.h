// A plain reader of Code 128, written from the published symbology (ISO/IEC 15417) with a table of
// its own: from the letters of a module string back to values and text. It follows code-set
// switches, shift and FNC4 as any standard reader does and knows nothing of the library's
// deviations.
#ifndef BARHATCH_TESTS_SUPPORT_CODE128READER_H
#define BARHATCH_TESTS_SUPPORT_CODE128READER_H

#include <optional>
#include <string>
#include <vector>

namespace barhatch::test {

struct Code128Reading {
  std::vector<int> values;  // start to check character
  std::string text;
};

// The letters of a value's 11 modules by the reader's own table. REQUIRES: value in 0..106.
std::string Code128Letters(int value);

// Nothing for letters that are no Code 128 symbol: unknown character, no start, no stop, wrong
// check character, a value without meaning. Light modules at both ends are passed over.
// FNC1, FNC2 and FNC3, which a text alone does not ask for, are a defect too.
std::optional<Code128Reading> ReadCode128(const std::string& moduleString);

constexpr int kCode128Fnc1 = 1001;
constexpr int kCode128Fnc2 = 1002;
constexpr int kCode128Fnc3 = 1003;

struct Code128Message {
  std::vector<int> values;  // start to check character
  std::vector<int> items;   // bytes and functions in their order
};

// Likewise, with the functions.
std::optional<Code128Message> ReadCode128Message(const std::string& moduleString);

}  // namespace barhatch::test

#endif
