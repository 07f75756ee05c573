// Reads MSI (modified Plessey) from a module string and verifies the modulo-10 check digit by
// doubling the number that the published rule describes, digit by digit with carry.
#ifndef BARHATCH_TESTS_SUPPORT_MSIREADER_H
#define BARHATCH_TESTS_SUPPORT_MSIREADER_H

#include <optional>
#include <string>

namespace barhatch::test {

// The digits between start and stop, the check digit among them, unverified.
std::optional<std::string> ReadMsiDigits(const std::string& letters);

// The data alone; nothing when the check digit does not match.
std::optional<std::string> ReadMsi(const std::string& letters);

// The published rule as it is worded, for a number of any length.
char PublishedMsiModulo10(const std::string& data);

// The decimal number doubled: "77" is "154".
std::string Doubled(const std::string& number);

}  // namespace barhatch::test

#endif
