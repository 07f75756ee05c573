#include "Departures.h"

#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>

#include "Code128Outline.h"
#include "MatrixOutline.h"
#include "TextRules.h"

namespace preview {

namespace {

// The rows of docs/deviations.md, in its order and words.
constexpr Departure kDepartures[] = {
    {"D-39-1", "the character table holds 011000000 for 'W'", "-", Effect::kReadsAlike},
    {"D-39-2", "'/' is written with the elements of '%'",
     "'%' where '/' was given: wrong text, no error", Effect::kMayReadOtherwise},
    {"D-39-3",
     "the letters 'E' to 'Z' are accepted and each written as 011111111 (a narrow bar and eight "
     "wide elements)",
     "no Code 39 character: the symbol cannot be read", Effect::kMayReadOtherwise},
    {"D-39-4", "'*' is accepted inside the data and written as the start/stop character",
     "the symbol ends at the first '*'", Effect::kMayReadOtherwise},
    {"D-39-5", "\"%%\" in the data is written as one '%', pair by pair from the left",
     "one '%' for each pair", Effect::kMayReadOtherwise},
    {"D-39-6", "an empty text gives start and stop alone", "nothing: there is no data to read",
     Effect::kMayReadOtherwise},
    {"D-128-1",
     "type 5: one character left over after pairs of digits in set C, at the very end of the "
     "text, is written with its set B value while the symbol is still in set C",
     "two wrong digits for the last character, its code less 32: \"12345\" reads 123421, "
     "\"1234A\" reads 123433; no error",
     Effect::kMayReadOtherwise},
    {"D-128-2", "type 6: character 127 (DEL) is written as value 95 in set A, without a switch",
     "character 31 for 127; no error", Effect::kMayReadOtherwise},
    {"D-128-3",
     "no more text is taken once 79 values (characters, pairs of digits, switches) follow the "
     "start character; the rest is dropped and a valid symbol is written",
     "the beginning of the text; no error", Effect::kMayReadOtherwise},
    {"D-128-4",
     "types 5, 6 and 8: the step that reaches the limit of D-128-3 may write a switch and a "
     "character, so that 80 values follow the start; the switch may be the last of them, with no "
     "data after it",
     "the same as without the switch", Effect::kReadsAlike},
    {"D-25-1", "the check digit is computed with weight 3 on the leftmost digit", "-",
     Effect::kReadsAlike},
    {"D-25-2", "an empty text gives a symbol of start and stop alone",
     "nothing: there is no data to read", Effect::kMayReadOtherwise},
    {"D-93-1",
     "'$', '%', '+' and '/' are written as the shift pairs (/)D, (/)E, (/)K and (/)O, by both "
     "types; the values 39 to 42 occur as check characters only",
     "the same text; the symbol is nine modules wider for each of them and its check characters "
     "differ",
     Effect::kReadsAlike},
    {"D-93-2",
     "a byte of 128 or above is accepted by type 22: the modules of the symbol character before "
     "it (of a shift pair, the letter) are written once more, and no check sum counts it",
     "as a rule a wrong check character: no read. Where the sums happen to agree, a wrong text "
     "without error (the byte 128 after \"0\" reads as \"00\")",
     Effect::kMayReadOtherwise},
    {"D-93-3",
     "such bytes at the beginning of the text, with no character before them, write nothing",
     "the text without them: wrong text, no error", Effect::kMayReadOtherwise},
    {"D-93-4", "the empty text is accepted: start, the check characters 0 and 0, stop",
     "no text or no read", Effect::kMayReadOtherwise},
    {"D-MSI-1", "the empty text is accepted: start, the check digit 0, stop",
     "no text, or \"0\" from a reader that does not test check digits", Effect::kMayReadOtherwise},
    {"D-CB-1",
     "text without start and stop characters is accepted and written without them; none are "
     "added",
     "no symbol: it cannot be read", Effect::kMayReadOtherwise},
    {"D-CB-2",
     "a start character without a stop character, a stop character without a start character and "
     "a start/stop character alone are accepted",
     "no symbol: it cannot be read", Effect::kMayReadOtherwise},
    {"D-CB-3", "a start character and a stop character with no data between them are accepted",
     "no data, or no symbol", Effect::kMayReadOtherwise},
    {"D-11-1", "K is written for ten data characters already",
     "a reader that expects C alone there takes C for data and tests K in its place: no read, "
     "or, where K happens to fit, a wrong text with one character too many. A reader that "
     "expects C and K at any length reads it",
     Effect::kMayReadOtherwise},
    {"D-11-2", "the empty text is accepted: start, the check character 0, stop",
     "no text, or \"0\" from a reader that does not test check characters",
     Effect::kMayReadOtherwise},
    {"D-EAN-1", "an add-on follows eight light modules behind the last bar of the main symbol",
     "the same digits; a reader that insists on nine light modules may read the main symbol "
     "without its add-on or not at all",
     Effect::kMayReadOtherwise},
    {"D-EAN-2", "EAN-8 can have an add-on",
     "EAN-8 as usual; many readers do not look for an add-on there and leave it out",
     Effect::kMayReadOtherwise},
    {"D-EAN-3",
     "UPC-E takes number system 1 as well as 0 and draws it with the complementary parities",
     "the number with number system 1, where the reader knows it; others do not read the symbol",
     Effect::kMayReadOtherwise},
    {"D-EAN-4",
     "UPC-E takes any six digits, also those that suppressing the zeros of a UPC-A number does "
     "not give: a last digit 3 with a third digit 0 to 2, 4 with a fourth digit 0, 5 to 9 with a "
     "fifth digit 0",
     "the six digits that were given and the right UPC-A number; another UPC-E stands for the "
     "same number",
     Effect::kReadsAlike},
    {"D-DM-1",
     "in 144 x 144 the error codewords of blocks 8 and 9, which have one data codeword less, "
     "come first in each round: positions 1558, 1559, 1568, ...",
     "nothing: this is the order that the industry writes and reads. A reader that takes them in "
     "another order (libdmtx) does not get the text",
     Effect::kReadsAlike},
    {"D-DM-2",
     "the look-ahead counts every mode to the end of the text; outside ASCII, ASCII starts at 2 "
     "like the others; in front of a character that neither X12 nor EDIFACT has, small letters "
     "apart, half an ASCII codeword is dropped; Base 256 has no start weight of its own and bytes "
     "above 127 have no extra weight, so Base 256 is never chosen",
     "nothing: other codewords than from other encoders, and more of them for binary data",
     Effect::kReadsAlike},
    {"D-DM-3", "a byte from 129 to 255 is written in ASCII as 235, byte - 128",
     "the byte one lower, no error", Effect::kMayReadOtherwise},
    {"D-DM-4", "the byte 128 is dropped in ASCII", "the text without it",
     Effect::kMayReadOtherwise},
    {"D-DM-5", "Base 256 passes over its characters and writes nothing", "-", Effect::kReadsAlike},
    {"D-DM-6",
     "the FNC1 of code format 1 is written whenever there is exactly one codeword: behind a "
     "latch too, and not at all where the first character takes two codewords",
     "behind a latch: wrong text, as 232 is read as data of that mode; else: the text without "
     "FNC1",
     Effect::kMayReadOtherwise},
    {"D-DM-7",
     "behind whole groups of values, where one more codeword would fill the smallest square that "
     "holds more than those written, C40, Text and X12 are left without 254 for another mode, and "
     "they and EDIFACT at the end of the text: whatever the symbol and whatever follows",
     "what follows is read as data of the mode that was left: wrong text behind the right "
     "beginning (at the end of the text: the pads as characters)",
     Effect::kMayReadOtherwise},
    {"D-DM-8",
     "at the end of a text in C40, Text, X12 or EDIFACT the unlatch is written also where the "
     "symbol would be full without it: behind a whole group; in C40 and Text where the group that "
     "ends the text leaves values over, and where one or two characters behind the last group "
     "have, with the values that wait, more than three",
     "nothing: as a rule the next symbol size, a refusal where that does not suit the request or "
     "does not exist, or a rectangle whose last codeword is the unlatch",
     Effect::kReadsAlike},
    {"D-DM-9", "EDIFACT writes the low six bits of any character",
     "another character with the same six bits (! for a); from _ and the bytes 31, 159 and 223 "
     "on, wrong text, as theirs are the unlatch",
     Effect::kMayReadOtherwise},
    {"D-DM-10",
     "the EDIFACT unlatch is the codeword 124 behind a whole group, also where only one or two "
     "codewords of the symbol are left; characters that fill no group go out in ASCII behind it",
     "a { behind the text; elsewhere nothing", Effect::kMayReadOtherwise},
};

bool IsOneOf(char c, std::string_view characters) {
  return characters.find(c) != std::string_view::npos;
}

bool HasAnyOf(std::string_view text, std::string_view characters) {
  return text.find_first_of(characters) != std::string_view::npos;
}

bool IsAbove127(char c) { return static_cast<unsigned char>(c) > 127; }

// What the rows of the linear types ask of a text, narrowed and accepted.
struct LinearText {
  std::int32_t type;
  // cppcheck-suppress unusedStructMember ; the functions of the rows below read it
  std::string_view text;
  Code128Outline code128;  // of the types 5 to 8
};

bool IsCodabarEnd(char c) { return IsOneOf(c, "ABCDTN*E"); }

int CodabarEnds(std::string_view text) {
  const int first = IsCodabarEnd(text.front()) ? 1 : 0;
  return text.size() == 1 ? first : first + (IsCodabarEnd(text.back()) ? 1 : 0);
}

bool HasLetterFromEOn(std::string_view text) {
  for (const char c : text) {
    if (c >= 'E' && c <= 'Z') return true;
  }
  return false;
}

// The bytes that Code 93 has no value for: those at the beginning, and those behind another one.
std::size_t LeadingWithoutValue(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && IsAbove127(text[count])) ++count;
  return count;
}

bool HasLaterWithoutValue(std::string_view text) {
  for (const char c : text.substr(LeadingWithoutValue(text))) {
    if (IsAbove127(c)) return true;
  }
  return false;
}

bool GoesBeyondTheLimit(const Code128Outline& outline) {
  return outline.values > kFullCode128Symbol || outline.endsWithSwitch;
}

// Six digits, behind the number system, that suppressing zeros does not give.
bool IsUnusualUpcE(std::string_view text) {
  const std::string_view six = text.substr(1, 6);
  if (six[5] == '3') return six[2] <= '2';
  if (six[5] == '4') return six[3] == '0';
  return six[5] >= '5' && six[4] == '0';
}

constexpr std::uint32_t Types(std::initializer_list<int> types) {
  std::uint32_t bits = 0;
  for (const int type : types) bits |= 1u << type;
  return bits;
}

// clang-format off
struct LinearRule {
  std::string_view id;
  std::uint32_t types;  // a bit for each
  bool (*touches)(const LinearText& symbol);
};
constexpr LinearRule kLinearRules[] = {
    {"D-39-2",  Types({1}),               [](const LinearText& s) { return HasAnyOf(s.text, "/"); }},
    {"D-39-3",  Types({1}),               [](const LinearText& s) { return HasLetterFromEOn(s.text); }},
    {"D-39-4",  Types({1}),               [](const LinearText& s) { return HasAnyOf(s.text, "*"); }},
    {"D-39-5",  Types({1}),               [](const LinearText& s) { return s.text.find("%%") != std::string_view::npos; }},
    {"D-39-6",  Types({1}),               [](const LinearText& s) { return s.text.empty(); }},
    {"D-128-1", Types({5}),               [](const LinearText& s) { return s.code128.isLastLoneInSetC; }},
    {"D-128-2", Types({6}),               [](const LinearText& s) { return s.code128.hasDeleteInSetA; }},
    {"D-128-3", Types({5, 6, 7, 8}),      [](const LinearText& s) { return s.code128.taken < s.text.size(); }},
    {"D-128-4", Types({5, 6, 8}),         [](const LinearText& s) { return GoesBeyondTheLimit(s.code128); }},
    {"D-25-2",  Types({21}),              [](const LinearText& s) { return s.text.empty(); }},
    {"D-93-1",  Types({2, 22}),           [](const LinearText& s) { return HasAnyOf(s.text, "$%+/"); }},
    {"D-93-2",  Types({22}),              [](const LinearText& s) { return HasLaterWithoutValue(s.text); }},
    {"D-93-3",  Types({22}),              [](const LinearText& s) { return LeadingWithoutValue(s.text) > 0; }},
    {"D-93-4",  Types({2, 22}),           [](const LinearText& s) { return s.text.empty(); }},
    {"D-MSI-1", Types({4}),               [](const LinearText& s) { return s.text.empty(); }},
    {"D-CB-1",  Types({0}),               [](const LinearText& s) { return CodabarEnds(s.text) == 0; }},
    {"D-CB-2",  Types({0}),               [](const LinearText& s) { return CodabarEnds(s.text) == 1; }},
    {"D-CB-3",  Types({0}),               [](const LinearText& s) { return s.text.size() == 2 && CodabarEnds(s.text) == 2; }},
    {"D-11-1",  Types({11}),              [](const LinearText& s) { return s.text.size() == 10; }},
    {"D-11-2",  Types({11}),              [](const LinearText& s) { return s.text.empty(); }},
    {"D-EAN-1", Types({13, 14, 19, 20}),  [](const LinearText&) { return true; }},
    {"D-EAN-2", Types({17, 18}),          [](const LinearText&) { return true; }},
    {"D-EAN-3", Types({10, 19, 20}),      [](const LinearText& s) { return s.text[0] == '1'; }},
    {"D-EAN-4", Types({10, 19, 20}),      [](const LinearText& s) { return IsUnusualUpcE(s.text); }},
};
// clang-format on

bool Touches(const LinearRule& rule, const LinearText& symbol) {
  return (rule.types >> symbol.type & 1) != 0 && rule.touches(symbol);
}

bool IsTouchedLinear(std::string_view id, const LinearText& symbol) {
  for (const LinearRule& rule : kLinearRules) {
    if (rule.id == id) return Touches(rule, symbol);
  }
  return false;
}

bool IsTouchedMatrix(std::string_view id, const MatrixOutline& outline) {
  for (std::size_t number = 1; number < outline.met.size(); ++number) {
    if (id == "D-DM-" + std::to_string(number)) return outline.met.test(number);
  }
  return false;
}

template <typename IsTouched>
std::vector<const Departure*> Those(IsTouched isTouched) {
  std::vector<const Departure*> those;
  for (const Departure& departure : Departures()) {
    if (isTouched(departure.id)) those.push_back(&departure);
  }
  return those;
}

}  // namespace

const std::vector<Departure>& Departures() {
  static const std::vector<Departure> departures(std::begin(kDepartures), std::end(kDepartures));
  return departures;
}

std::vector<const Departure*> DeparturesTouching(const BarcodeText& text) {
  if (text.kind == Kind::kDataMatrix) {
    if (text.units.size() > kLongestMatrixText) return {};
    const MatrixOutline outline = OutlineOf(text);
    return Those([&](std::string_view id) { return IsTouchedMatrix(id, outline); });
  }
  if (WhyRefused(text.type, text.units)) return {};
  const std::string narrow = NarrowText(text.units);
  LinearText symbol{text.type, narrow, {}};
  if (text.type >= 5 && text.type <= 8) symbol.code128 = Code128OutlineOf(text.type, narrow);
  return Those([&](std::string_view id) { return IsTouchedLinear(id, symbol); });
}

}  // namespace preview
