// The 23 linear types: their names, which text each of them takes, and what a user wants to know
// before choosing one. The one table behind --list, --explain and docs/symbologies.md. The rules
// are those of the documents, applied to the text alone: the library is not asked.
//
// Worked example: "123" for type 3 is refused, "ean13 takes 12 characters, not 3".
#ifndef BARHATCH_TOOLS_TEXTRULES_H
#define BARHATCH_TOOLS_TEXTRULES_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "BarcodeText.h"

namespace preview {

enum class Alphabet { kDigits, kCode11, kCode39, kCode93, kCodabar, kFromSpaceTo127, kEveryByte };
enum class Widths { kSingleModules, kNarrowAndWide };  // the second are those that --ratio is for

struct TypeRule {
  const char* name;      // for the command line
  const char* title;     // of the symbology
  const char* accepted;  // in Markdown
  Alphabet alphabet;
  Widths widths;
  std::size_t shortest;
  std::size_t longest;
  const char* checkDigit;
  int leftQuietModules;
  int rightQuietModules;
  const char* capacity;
  const char* example;
};

constexpr std::int32_t kLinearTypes = 23;

// REQUIRES: type from 0 to 22.
const TypeRule& RuleOf(std::int32_t type);

// The number of a type given by number ("1") or name ("code39", in any case); nothing for anything
// else.
std::optional<std::int32_t> LinearTypeFrom(std::string_view text);

// Why a linear type refuses the text, as the end of a sentence; nothing when it takes it.
std::optional<std::string> WhyRefused(std::int32_t type, const std::u16string& units);

}  // namespace preview

#endif
