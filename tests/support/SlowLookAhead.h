// The look-ahead as it is defined: six counts in double precision, character by character from the
// position to the end of the text. Quadratic when asked at every position, for tests alone. Shares
// nothing with the encoder.
#ifndef BARHATCH_TESTS_SUPPORT_SLOWLOOKAHEAD_H
#define BARHATCH_TESTS_SUPPORT_SLOWLOOKAHEAD_H

#include <cstddef>
#include <string>

namespace barhatch::test {

struct SlowCounts {
  double ascii;
  double base256;
  double edifact;
  double text;
  double x12;
  double c40;
};

// Modes by number: 1 ASCII, 2 Base 256, 3 EDIFACT, 4 Text, 5 X12, 6 C40. The text is made of bytes.
SlowCounts SlowLookAheadCounts(const std::string& text, std::size_t position, int mode);
int SlowLookAhead(const std::string& text, std::size_t position, int mode);

}  // namespace barhatch::test

#endif
