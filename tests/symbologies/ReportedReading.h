// What the reader of the library reports, and what the plain readers of tests/support report in the
// same words.
#ifndef BARHATCH_TESTS_SYMBOLOGIES_REPORTEDREADING_H
#define BARHATCH_TESTS_SYMBOLOGIES_REPORTEDREADING_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace barhatch::test {

struct ReportedReading {
  std::optional<std::string> text;  // none: no symbol
  std::vector<int> values;
};

// The arrays have exactly the room that the reader asks for: beyond it the sanitizers watch.
ReportedReading Report(std::int32_t type, const std::string& letters);

// None of the plain readers knows the types, all of them take light modules at the ends for quiet
// zones, and some report a symbol without data as an empty text: here that is no symbol. The
// characters that Codabar starts and stops with are left out, and an add-on stands behind a space.
std::optional<std::string> PlainReading(std::int32_t type, const std::string& letters);

// The text itself as a reader reports it when it was drawn by the book: with the check digit of
// EAN/UPC and the 0 of Interleaved 2 of 5.
std::string ReportOf(std::int32_t type, const std::string& text);

}  // namespace barhatch::test

#endif
