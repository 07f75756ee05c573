// The application identifiers of the GS1 General Specifications: which there are and what their
// values look like.
//
// (11) has the value N6, a date: six digits. (253) has N13 with a check digit, and X..17 that may
// be missing.
#ifndef BARHATCH_GS1_APPLICATIONIDENTIFIERS_H
#define BARHATCH_GS1_APPLICATIONIDENTIFIERS_H

#include <cstddef>
#include <cstdint>

#include "job/Token.h"

namespace barhatch {

// The digits of an application identifier behind a 1, which keeps its leading zeros: 101 is (01),
// 1235 is (235), 13100 is (3100).
using AiCode = std::uint16_t;

// The longest value that an application identifier may have.
constexpr std::size_t kLongestAiValue = 90;

constexpr std::size_t kFewestAiDigits = 2;
constexpr std::size_t kMostAiDigits = 4;

// The sets of the standard: N the digits, X the 82 characters, Y the 39, Z
// set 64 of "file safe, URI safe base64".
enum class AiCharacters : std::uint8_t { kN, kX, kY, kZ };

// What is asked of a component beside its length and characters.
enum class AiCheck : std::uint8_t {
  kNone,
  kCheckDigit,       // the last digit, modulo 10
  kCheckPair,        // the last two characters, behind a company prefix
  kHasNonDigit,      // likewise, and not digits alone
  kCompanyPrefix,    // begins with the digits of a company prefix
  kDate,             // YYMMDD, a day that there is
  kDateOrMonth,      // YYMMDD, or YYMM00 for the month as a whole
  kLongDate,         // YYYYMMDD
  kHourMinute,       // HHMM
  kHour,             // HH
  kMinute,           // MM
  kSecond,           // SS
  kZero,             // a 0
  kNotZero,          // not zeros alone
  kNoZeroInFront,    // 0 itself is allowed
  kYesNo,            // 0, 1
  kWinding,          // 0, 1, 9
  kSex,              // 0, 1, 2, 9
  kHyphens,          // - alone
  kPieceOfTotal,     // two digits each; the piece is at most the total, neither is 0
  kPositionOfTotal,  // digit / digit; likewise
  kLatitude,         // at most 1800000000
  kLongitude,        // at most 3600000000
  kPercentEscapes,   // % stands in front of two hexadecimal digits
  kImporterIndex,    // a digit, a letter, - or _
  kMediaType,        // 01 to 10, 80 to 99
  kBankAccount,      // an IBAN: letters of a country, two check digits, digits and letters
  kPadding,          // = at the end alone, to fill up a group of three
};

struct AiComponent {
  AiCharacters characters = AiCharacters::kN;
  bool isOptional = false;
  std::uint8_t shortest = 0;
  std::uint8_t longest = 0;  // 0: there is no such component
  AiCheck check = AiCheck::kNone;
};

constexpr std::size_t kMostAiComponents = 5;

// Application identifiers of one length and one format, first to last.
struct AiRange {
  AiCode first;
  AiCode last;
  AiComponent components[kMostAiComponents];
};

constexpr AiCode kAiCodeEnd = 20000;  // beyond every code

constexpr std::size_t DigitsOf(AiCode ai) { return ai < 1000 ? 2 : ai < 10000 ? 3 : 4; }

// Characters that a value has at least and at most.
std::size_t ShortestValueOf(const AiRange& range);
std::size_t LongestValueOf(const AiRange& range);

// The range that has the application identifier, null for one that is not assigned.
const AiRange* FindAi(AiCode ai);

// What the first two digits of an application identifier say about it, assigned or not.
struct AiPrefix {
  std::uint8_t digits;      // that such identifiers have; 0: not known
  std::uint8_t predefined;  // characters of the value where its length is predefined; no separator
                            // follows it then. 0: it is not
};

// firstTwo: 0..99.
AiPrefix PrefixOf(int firstTwo);

// The first two digits of a code, 0..99.
int FirstTwoOf(AiCode ai);

// The index of an assigned application identifier, from 0, below kMostAis. REQUIRES: the range has
// it.
constexpr std::size_t kMostAis = 600;
std::size_t IndexOfAi(const AiRange& range, AiCode ai);

// Whether the set has the character.
bool HasAiCharacter(AiCharacters set, Token character);

// An application identifier and a number beside it, as the one figure of a refusal.
constexpr std::int32_t kMostAiDetail = 0xFFFF;
constexpr std::int32_t AiFigure(AiCode ai, std::size_t detail) {
  const auto kept = static_cast<std::int32_t>(detail < kMostAiDetail ? detail : kMostAiDetail);
  return kept * 0x8000 + ai;
}
constexpr AiCode AiOfFigure(std::int32_t figure) { return static_cast<AiCode>(figure % 0x8000); }
constexpr std::int32_t DetailOfFigure(std::int32_t figure) { return figure / 0x8000; }
static_assert(kAiCodeEnd < 0x8000, "a code leaves room for the detail above it");

// Detail of Reason::kAiDate: which part of a date or time there is not, and the number that stands
// there.
enum class DatePart : std::uint8_t { kMonth, kDay, kHour, kMinute, kSecond };
constexpr std::size_t DateDetail(DatePart part, int number) {
  return static_cast<std::size_t>(part) * 100 + static_cast<std::size_t>(number);
}

}  // namespace barhatch

#endif
