// Why a job was refused, before anybody has put it into words.
#ifndef BARHATCH_JOB_REFUSAL_H
#define BARHATCH_JOB_REFUSAL_H

#include <cstddef>
#include <cstdint>

namespace barhatch {

enum class Reason : std::uint8_t {
  kNone,                // not refused
  kOption,              // a number that names nothing; figure: that number
  kEmpty,               // text of no characters
  kNoUtf8,              // position: of a byte or unit that belongs to no character
  kNoEscape,            // position: of an escape that there is none
  kFunction,            // position: of a function character or ECI that the symbology lacks
  kCharacter,           // position: of a character that the symbology lacks; figure: its code
  kLength,              // figure: the characters there are
  kEndInside,           // position: of a start or stop character between others
  kNumberSystem,        // position: of a number system that there is none
  kCheck,               // position: of a wrong check character; figure: the right one
  kNoCheck,             // a check of 10, which no digit writes
  kOnlyCheck,           // check characters without data in front of them
  kCheckCount,          // figure: characters that are none of data and its check characters
  kNoStart,             // position: where a start character should stand
  kNoStop,              // position: where a stop character should stand
  kNotStandard,         // a symbol that the standard leaves out
  kSecondSign,          // position: of a second sign in front of an add-on
  kAddonDigits,         // position: of that sign; figure: the digits behind it, which are no add-on
  kUpcEForm,            // position: of six digits of UPC-E; figure: those that are right instead
  kNoUpcE,              // position: of a UPC-A number whose zeros cannot be suppressed
  kTooManyValues,       // of a linear symbol; figure: those of the text
  kTooManyCodewords,    // figure: the codewords of the text, as far as they were counted
  kSizeTooSmall,        // figure: the codewords of the text
  kNoSuchSize,          // figure: the codewords of the text
  kNoPermissionToGrow,  // figure: the codewords of the text; they need more than was asked for
  kGeometry,            // sizes that make no sense
  kNothingToMark,
  kTooManyStrokes,  // more than a fill may have
  kProof,           // the finished symbol does not decode to its text
  // GS1 element strings; the figure of all but the last is an AiFigure: identifier and detail
  kUnknownAi,        // not assigned
  kAiTooLong,        // a value; detail: its characters
  kAiTooShort,       // a value; detail: its characters
  kAiCharacter,      // detail: the code of one that the value may not have
  kAiCheckDigit,     // detail: the right one
  kAiCheckPair,      // detail: the codes of the right two, the first times 256
  kAiDate,           // no such date or time; detail: a DateDetail
  kAiValue,          // detail: the AiCheck that it fails
  kAiRepeated,       // with another value; detail: nothing
  kGs1Syntax,        // no application identifier where one begins
  kTooManyElements,  // of GS1-128; figure: the data characters
  kFnc1Place,        // position: of an FNC1 that would be taken for one in second position
  kMaskEscape,       // position: of a backslash of a mask with nothing behind it to mean
  kNoSuchByte,       // position: of a character that the ECI asked for has no byte for
  kNoMemory,
};

// A count as a figure; beyond the largest figure it stays there.
constexpr std::int32_t FigureOf(std::size_t count) {
  return count < 0x7FFFFFFF ? static_cast<std::int32_t>(count) : 0x7FFFFFFF;
}

struct Refusal {
  Reason reason = Reason::kNone;
  std::int32_t position =
      -1;  // of a token of the text, for the device of a unit, from 0; -1 for none
  std::int32_t figure = 0;
  std::int32_t extent = 1;  // tokens from the position on

  constexpr bool IsRefused() const { return reason != Reason::kNone; }
};

}  // namespace barhatch

#endif
