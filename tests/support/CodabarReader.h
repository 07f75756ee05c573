// Reads Codabar (AIM USS Codabar, two widths) from a module string.
#ifndef BARHATCH_TESTS_SUPPORT_CODABARREADER_H
#define BARHATCH_TESTS_SUPPORT_CODABARREADER_H

#include <optional>
#include <string>

namespace barhatch::test {

// All characters as they stand; start and stop characters are reported as A to D and not demanded.
std::optional<std::string> ReadCodabarCharacters(const std::string& letters);

// By the book: the symbol must begin and end with a start/stop character and have none inside.
std::optional<std::string> ReadCodabar(const std::string& letters);

}  // namespace barhatch::test

#endif
