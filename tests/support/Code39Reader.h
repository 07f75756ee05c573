// Reads Code 39 (ISO/IEC 16388) from a module string, by the book: from the start character to the
// first stop character, whatever stands behind it.
#ifndef BARHATCH_TESTS_SUPPORT_CODE39READER_H
#define BARHATCH_TESTS_SUPPORT_CODE39READER_H

#include <optional>
#include <string>

namespace barhatch::test {

// The data; nothing for elements that are no character of Code 39 and for a symbol without data.
std::optional<std::string> ReadCode39(const std::string& letters);

}  // namespace barhatch::test

#endif
