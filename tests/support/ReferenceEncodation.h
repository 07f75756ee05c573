// The encodation of a text a second time, as plainly and slowly as the rules can be put down: the
// look-ahead counted anew at each question, C40 and Text values gathered from latch to unlatch and
// packed as texts of binary digits. With it, what a standard reader is going to read by the
// register of deviations. Shares nothing with the encoder.
#ifndef BARHATCH_TESTS_SUPPORT_REFERENCEENCODATION_H
#define BARHATCH_TESTS_SUPPORT_REFERENCEENCODATION_H

#include <set>
#include <string>
#include <vector>

namespace barhatch::test {

struct ReferenceRequest {
  int rows = 0;
  int columns = 0;
  int isExpanding = 1;
};

struct ReferenceEncodation {
  std::vector<int> codewords;
  int capacity = 0;  // data codewords of the symbol; 0 for a refusal, where nothing is read
  std::vector<int> reading;
  // True when a deviation leads the reader astray behind the reading; anything may follow.
  bool isAstray = false;
  // The rows of the register that change what is read: "D-DM-3" etc.
  std::set<std::string> ids;
};

// codeFormat: 2 and 3 put the macro header in front.
ReferenceEncodation EncodeByReference(const std::u16string& text, int codeFormat,
                                      const ReferenceRequest& request);

}  // namespace barhatch::test

#endif
