#include "TextRules.h"

#include <fmt/core.h>

#include <charconv>

namespace preview {

namespace {

constexpr TypeRule kRules[] = {
    {"codabar", "Codabar",
     "digits and `- $ : / . +`; a letter `A B C D` (or `T N * E`) as first and last character; 1 "
     "to 3116",
     Alphabet::kCodabar, Widths::kNarrowAndWide, 1, 3116, "none", 10, 10, "3116 characters",
     "A1234B"},
    {"code39", "Code 39",
     "digits, `A`-`Z`, `- . $ / + % *`, space; 0 to 3114. Readable: digits, `A`-`D`, `- . $ + %`, "
     "space",
     Alphabet::kCode39, Widths::kNarrowAndWide, 0, 3114, "none", 10, 10,
     "3114 characters, `%%` counting as one", "ABC-123"},
    {"code93", "Code 93", "digits, `A`-`Z`, `- . $ / + %`, space; 0 to 3119", Alphabet::kCode93,
     Widths::kSingleModules, 0, kLongestLinearText, "the library adds C and K", 10, 10,
     "3119 characters", "CODE 93"},
    {"ean13", "EAN-13", "12 digits", Alphabet::kDigits, Widths::kSingleModules, 12, 12,
     "the library adds it", 11, 7, "fixed", "950110153100"},
    {"msi", "MSI", "digits; 0 to 3119", Alphabet::kDigits, Widths::kSingleModules, 0,
     kLongestLinearText, "the library adds one (modulo 10)", 10, 10, "3119 digits", "1234567"},
    {"code128", "Code 128, sets B and C by digit runs", "bytes 32 to 127; at least 1",
     Alphabet::kFromSpaceTo127, Widths::kSingleModules, 1, kLongestLinearText,
     "the library adds it", 10, 10, "79 values after the start character", "Part 4711-08"},
    {"code128a", "Code 128 from set A", "bytes 32 to 127; at least 1", Alphabet::kFromSpaceTo127,
     Widths::kSingleModules, 1, kLongestLinearText, "the library adds it", 10, 10,
     "79 values after the start character", "ABC-123"},
    {"code128b", "Code 128 set B", "bytes 32 to 127; at least 1", Alphabet::kFromSpaceTo127,
     Widths::kSingleModules, 1, kLongestLinearText, "the library adds it", 10, 10, "79 characters",
     "Abc-123"},
    {"code128c", "Code 128 from set C", "bytes 32 to 127; at least 1", Alphabet::kFromSpaceTo127,
     Widths::kSingleModules, 1, kLongestLinearText, "the library adds it", 10, 10,
     "79 values after the start character (158 digits)", "12345678"},
    {"upca", "UPC-A", "11 digits", Alphabet::kDigits, Widths::kSingleModules, 11, 11,
     "the library adds it", 9, 9, "fixed", "03600029145"},
    {"upce", "UPC-E", "7 digits: number system `0` or `1`, then the six", Alphabet::kDigits,
     Widths::kSingleModules, 7, 7, "the library computes it; parity carries it", 9, 7, "fixed",
     "0425261"},
    {"code11", "Code 11", "digits and `-`; 0 to 3119", Alphabet::kCode11, Widths::kNarrowAndWide, 0,
     kLongestLinearText, "the library adds C, from 10 characters on C and K", 10, 10,
     "3119 characters", "123-45"},
    {"ean8", "EAN-8", "7 digits", Alphabet::kDigits, Widths::kSingleModules, 7, 7,
     "the library adds it", 7, 7, "fixed", "9638507"},
    {"upca+2", "UPC-A with 2-digit add-on", "13 digits: 11, then 2", Alphabet::kDigits,
     Widths::kSingleModules, 13, 13, "the library adds it", 9, 9, "fixed", "0360002914512"},
    {"upca+5", "UPC-A with 5-digit add-on", "16 digits: 11, then 5", Alphabet::kDigits,
     Widths::kSingleModules, 16, 16, "the library adds it", 9, 9, "fixed", "0360002914552495"},
    {"ean13+2", "EAN-13 with 2-digit add-on", "14 digits: 12, then 2", Alphabet::kDigits,
     Widths::kSingleModules, 14, 14, "the library adds it", 11, 7, "fixed", "97713845240112"},
    {"ean13+5", "EAN-13 with 5-digit add-on", "17 digits: 12, then 5", Alphabet::kDigits,
     Widths::kSingleModules, 17, 17, "the library adds it", 11, 7, "fixed", "97808777993054321"},
    {"ean8+2", "EAN-8 with 2-digit add-on", "9 digits: 7, then 2", Alphabet::kDigits,
     Widths::kSingleModules, 9, 9, "the library adds it", 7, 7, "fixed", "963850712"},
    {"ean8+5", "EAN-8 with 5-digit add-on", "12 digits: 7, then 5", Alphabet::kDigits,
     Widths::kSingleModules, 12, 12, "the library adds it", 7, 7, "fixed", "963850752495"},
    {"upce+2", "UPC-E with 2-digit add-on", "9 digits: 7, then 2", Alphabet::kDigits,
     Widths::kSingleModules, 9, 9, "the library computes it; parity carries it", 9, 7, "fixed",
     "042526112"},
    {"upce+5", "UPC-E with 5-digit add-on", "12 digits: 7, then 5", Alphabet::kDigits,
     Widths::kSingleModules, 12, 12, "the library computes it; parity carries it", 9, 7, "fixed",
     "042526152495"},
    {"itf", "Interleaved 2 of 5", "digits; 0 to 3119, an odd number gets a leading 0",
     Alphabet::kDigits, Widths::kNarrowAndWide, 0, kLongestLinearText, "none", 10, 10,
     "3119 digits", "12345678"},
    {"code93full", "Code 93, full ASCII", "every byte; 0 to 3119", Alphabet::kEveryByte,
     Widths::kSingleModules, 0, kLongestLinearText, "the library adds C and K", 10, 10,
     "3119 bytes", "Code 93!"},
};
static_assert(sizeof(kRules) / sizeof(kRules[0]) == kLinearTypes, "one row for each type");

constexpr std::int32_t kCodabar = 0;
constexpr std::int32_t kCode39 = 1;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool IsOneOf(char c, std::string_view characters) {
  return characters.find(c) != std::string_view::npos;
}

bool Takes(Alphabet alphabet, char c) {
  switch (alphabet) {
    case Alphabet::kDigits:
      return IsDigit(c);
    case Alphabet::kCode11:
      return IsDigit(c) || c == '-';
    case Alphabet::kCode39:
      return IsDigit(c) || IsUpper(c) || IsOneOf(c, "-.$/+%* ");
    case Alphabet::kCode93:
      return IsDigit(c) || IsUpper(c) || IsOneOf(c, "-.$/+% ");
    case Alphabet::kCodabar:
      return IsDigit(c) || IsOneOf(c, "-$:/.+");
    case Alphabet::kFromSpaceTo127:
      return static_cast<unsigned char>(c) >= 32 && static_cast<unsigned char>(c) <= 127;
    case Alphabet::kEveryByte:
      return true;
  }
  return false;
}

const char* Description(Alphabet alphabet) {
  switch (alphabet) {
    case Alphabet::kDigits:
      return "digits";
    case Alphabet::kCode11:
      return "digits and -";
    case Alphabet::kCode39:
      return "digits, A to Z, - . $ / + % * and space";
    case Alphabet::kCode93:
      return "digits, A to Z, - . $ / + % and space";
    case Alphabet::kCodabar:
      return "digits, - $ : / . + and, at both ends, one of A B C D T N * E";
    case Alphabet::kFromSpaceTo127:
      return "the characters from 32 to 127";
    case Alphabet::kEveryByte:
      return "every byte";
  }
  return "";
}

// Of Codabar, the first and the last character may be a start/stop character.
bool TakesAt(std::int32_t type, std::string_view text, std::size_t index) {
  const bool isAtAnEnd = index == 0 || index == text.size() - 1;
  if (type == kCodabar && isAtAnEnd && IsOneOf(text[index], "ABCDTN*E")) return true;
  return Takes(kRules[type].alphabet, text[index]);
}

std::size_t CollapsedPercentPairs(std::string_view text) {
  std::size_t pairs = 0;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != '%' || text[i + 1] != '%') continue;
    ++pairs;
    ++i;
  }
  return pairs;
}

std::string LengthReason(const TypeRule& rule, std::size_t length) {
  if (length == 0) return fmt::format("{} takes no empty text", rule.name);
  if (rule.shortest == rule.longest) {  // the retail symbols
    return fmt::format("{} takes {} digits, besides the check digit, not {}", rule.name,
                       rule.longest, length);
  }
  return fmt::format("{} takes at most {} characters, not {}", rule.name, rule.longest, length);
}

bool IsUpcE(std::int32_t type) { return type == 10 || type == 19 || type == 20; }

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const char lower = IsUpper(a[i]) ? static_cast<char>(a[i] - 'A' + 'a') : a[i];
    if (lower != b[i]) return false;
  }
  return true;
}

}  // namespace

const TypeRule& RuleOf(std::int32_t type) { return kRules[type]; }

std::optional<std::int32_t> LinearTypeFrom(std::string_view text) {
  for (std::int32_t type = 0; type < kLinearTypes; ++type) {
    if (SameName(text, kRules[type].name)) return type;
  }
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (number < 0 || number >= kLinearTypes) return std::nullopt;
  return number;
}

std::optional<std::string> WhyRefused(std::int32_t type, const std::u16string& units) {
  const TypeRule& rule = kRules[type];
  if (units.size() > kLongestLinearText) {
    return fmt::format("the text has {} characters, the limit is {}", units.size(),
                       kLongestLinearText);
  }
  const std::string text = NarrowText(units);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (TakesAt(type, text, i)) continue;
    return fmt::format("{} takes {}; character {} is {}", rule.name, Description(rule.alphabet),
                       i + 1, CharacterName(units[i]));
  }
  std::size_t length = text.size();
  if (type == kCode39) length -= CollapsedPercentPairs(text);
  if (length < rule.shortest || length > rule.longest) return LengthReason(rule, length);
  if (IsUpcE(type) && text[0] != '0' && text[0] != '1') {
    return fmt::format("the number system, the first digit of {}, is 0 or 1, not {}", rule.name,
                       text[0]);
  }
  return std::nullopt;
}

}  // namespace preview
