// The look-ahead of the Data Matrix encodation (ISO/IEC 16022): which mode needs the fewest
// codewords for the rest of the text. For "AIMAIM" the counts from ASCII are ASCII 6, C40 5, Text
// 9, X12 5, EDIFACT 6 (5.5 rounded up), Base 256 7: the choice is C40.
//
// It differs from the published test, on purpose (ids in docs/deviations.md):
//   D-DM-2  the counting always runs to the end of the text, ASCII starts at 2 where another mode
//   is
//           in force, half an ASCII codeword is dropped in front of some characters, and the extra
//           weights of Base 256 and of characters above 127 are left out; so Base 256 is never
//           chosen
//
// The counts are defined as sums in double precision, each addition in text order, from start
// counts to the end of the text, rounded up there. The class gives the modes of that definition but
// does not make the sums again for each position: it keeps the sums of the rest of the text as
// integers, from which each character taken is subtracted, and knows when double precision makes a
// difference (ThirdsSum). A whole text costs time in proportion to its length and no memory.
#ifndef BARHATCH_DATAMATRIX_LOOKAHEAD_H
#define BARHATCH_DATAMATRIX_LOOKAHEAD_H

#include <cstddef>
#include <cstdint>

#include "datamatrix/ThirdsSum.h"

namespace barhatch {

enum class Mode { kAscii = 1, kBase256 = 2, kEdifact = 3, kText = 4, kX12 = 5, kC40 = 6 };

// Codewords that each mode needs, rounded up, indexed by the number of the mode; [0] has no
// meaning.
struct ModeCounts {
  int counts[7];
  int& operator[](Mode mode) { return counts[static_cast<int>(mode)]; }
  int operator[](Mode mode) const { return counts[static_cast<int>(mode)]; }
};

// The mode of the counts: ASCII when none is below it; Base 256, EDIFACT, Text, X12, in this order,
// when it is below all others; C40 else.
Mode ChooseMode(const ModeCounts& counts);

class LookAhead {
 public:
  // Only the low bytes of the text count. It is not copied. REQUIRES: length <= 4800.
  LookAhead(const char16_t* text, std::size_t length);

  // The mode for the text from position on, for an encoder that is in the mode `current`. A
  // position beyond the end gives `current`. REQUIRES: positions do not decrease from call to call.
  Mode ModeFor(std::size_t position, Mode current);

  // Characters looked at since construction, each as often as it was looked at.
  std::uint32_t Work() const;

 private:
  void Take(char16_t character);
  void TakeDigit();
  ModeCounts CountsFrom(Mode current) const;

  // `whole`: bits of the columns whose exact sum is whole, so that the sum in double precision may
  // count one more. True when `mode` is chosen whether they do or not, as is most often the case.
  static bool IsSettled(const ModeCounts& counts, unsigned whole, Mode mode);

  const char16_t* text_;
  std::size_t length_;
  std::size_t position_ = 0;
  std::size_t digitsEnd_ = 0;  // end of the run of digits that position_ is in
  std::uint32_t work_ = 0;

  // Sums of the text from position_ to the end.
  int ascii_ = 0;
  int thirds_[kThirdsColumnCount] = {};
  int edifactQuarters_ = 0;

  ThirdsSum doubleSums_[kThirdsColumnCount];
};

}  // namespace barhatch

#endif
