// A plain reader of Code 128, written from the published symbology (ISO/IEC 15417) with a table of
// its own: from the letters of a module string back to values and text. It follows code-set
// switches, shift and FNC4 as any standard reader does, knows nothing of the library's deviations,
// and takes FNC1, FNC2 and FNC3, which the library never writes, for a defect.
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
std::optional<Code128Reading> ReadCode128(const std::string& moduleString);

}  // namespace barhatch::test

#endif
