// Reads Code 93 (AIM USS Code 93) from a module string, by the book: it shares neither code nor
// table with the encoder, measures widths instead of comparing modules, and refuses a symbol whose
// check characters do not match.
#ifndef BARHATCH_TESTS_SUPPORT_CODE93READER_H
#define BARHATCH_TESTS_SUPPORT_CODE93READER_H

#include <optional>
#include <string>
#include <vector>

namespace barhatch::test {

// The name of the character with these nine modules ("101011110"): "0".."9", "A".."Z", "-", ".",
// " ", "$", "/", "+", "%", "($)", "(%)", "(/)", "(+)" or "*" for start and stop.
std::optional<std::string> NameOfCode93Character(const std::string& modules);

// The names of the data characters: start, stop, termination bar and both check characters are
// verified and left out.
std::optional<std::vector<std::string>> ReadCode93Characters(const std::string& letters);

// The text of the data characters, shift pairs resolved.
std::optional<std::string> ReadCode93(const std::string& letters);

// The published full ASCII table: the characters that stand for a character of 0..127.
std::vector<std::string> PublishedCode93Pair(int character);

}  // namespace barhatch::test

#endif
