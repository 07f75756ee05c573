// Reads Code 11 from a module string and verifies its check characters.
#ifndef BARHATCH_TESTS_SUPPORT_CODE11READER_H
#define BARHATCH_TESTS_SUPPORT_CODE11READER_H

#include <optional>
#include <string>

namespace barhatch::test {

// The characters between start and stop, the check characters among them, unverified.
std::optional<std::string> ReadCode11Characters(const std::string& letters);

// How many check characters the reader is set up for.
enum class Code11Checks { kC, kCAndK };

// The data alone; nothing when a check character does not match.
std::optional<std::string> ReadCode11(const std::string& letters, Code11Checks checks);

}  // namespace barhatch::test

#endif
