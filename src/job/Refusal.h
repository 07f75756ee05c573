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
  kNoUtf8,              // position: of a byte that belongs to no character
  kCharacter,           // position: of a character that the symbology lacks; figure: its code
  kLength,              // figure: the characters there are
  kEndInside,           // position: of a start or stop character between others
  kNumberSystem,        // position: of a number system that there is none
  kNoStart,             // position: where a start character should stand
  kNoStop,              // position: where a stop character should stand
  kNotStandard,         // a symbol that the standard leaves out
  kTooManyValues,       // of a linear symbol; figure: those of the text
  kTooManyCodewords,    // figure: the codewords of the text, as far as they were counted
  kSizeTooSmall,        // figure: the codewords of the text
  kNoSuchSize,          // figure: the codewords of the text
  kNoPermissionToGrow,  // figure: the codewords of the text; they need more than was asked for
  kGeometry,            // sizes that make no sense
  kNothingToMark,
  kTooManyStrokes,  // more than a fill may have
  kFnc1Place,       // position: of an FNC1 that would be taken for one in second position
  kMaskEscape,      // position: of a backslash of a mask with nothing behind it to mean
  kNoSuchByte,      // position: of a character that the ECI asked for has no byte for
  kNoMemory,
};

// A count as a figure; beyond the largest figure it stays there.
constexpr std::int32_t FigureOf(std::size_t count) {
  return count < 0x7FFFFFFF ? static_cast<std::int32_t>(count) : 0x7FFFFFFF;
}

struct Refusal {
  Reason reason = Reason::kNone;
  std::int32_t position = -1;  // of a unit of the text, from 0; -1 for none
  std::int32_t figure = 0;

  constexpr bool IsRefused() const { return reason != Reason::kNone; }
};

}  // namespace barhatch

#endif
