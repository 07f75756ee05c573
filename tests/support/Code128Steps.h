// The four ways from a text to Code 128 values as a clerk would follow them: position by position,
// each type by itself, with nothing shared and nothing clever. Slow and obvious on purpose; it
// judges the loops of the library, whose code and tables it does not use.
#ifndef BARHATCH_TESTS_SUPPORT_CODE128STEPS_H
#define BARHATCH_TESTS_SUPPORT_CODE128STEPS_H

#include <string>
#include <vector>

namespace barhatch::test {

// The values from start to check character for type 5, 6, 7 or 8. REQUIRES: a text of one or more
// characters from 32 to 127.
std::vector<int> Code128StepValues(int type, const std::string& text);

}  // namespace barhatch::test

#endif
