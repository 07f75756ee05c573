// What the encodation modes of ISO/IEC 16022 share: the text and the place in it, the codewords so
// far, the mode in force.
//
// A 16-bit character above 255 is no data but an ECI designator, whose number it is.
#ifndef BARHATCH_DATAMATRIX_ENCODATIONSTATE_H
#define BARHATCH_DATAMATRIX_ENCODATIONSTATE_H

#include <cstddef>

#include "datamatrix/CodewordBuffer.h"
#include "datamatrix/LookAhead.h"
#include "job/Deviations.h"
#include "job/Job.h"

namespace barhatch {

// REQUIRES: the text outlives the state; length <= 3116.
struct EncodationState {
  EncodationState(const TextUnits& itsText, const SizeRequest& itsRequest, Conformance& itsHow,
                  CodewordBuffer& itsCodewords)
      : text(itsText.units),
        length(itsText.length),
        request(itsRequest),
        how(itsHow),
        codewords(itsCodewords),
        lookAhead(itsText.units, itsText.length) {}

  const char16_t* text;
  std::size_t length;
  SizeRequest request;
  Conformance& how;
  CodewordBuffer& codewords;
  LookAhead lookAhead;
  std::size_t position = 0;  // of the next character to encode
  Mode mode = Mode::kAscii;
};

constexpr bool IsDesignator(char16_t character) { return character > 255; }

// Up to `limit` characters that follow in front of the end of the text or of a designator.
std::size_t CharactersAhead(const EncodationState& state, std::size_t limit);

// The mode of the look-ahead for the text from the position on (D-DM-2).
Mode NextMode(EncodationState& state);

// The mode for what follows a group: that of the look-ahead, also where fewer characters follow
// than a group, but the mode in force where nothing follows or a designator stands within the next
// group. ahead: CharactersAhead of a group.
Mode ModeBehindGroup(EncodationState& state, std::size_t ahead, std::size_t group);

// Writes the latch of the mode, nothing for ASCII, and enters it.
void EnterMode(EncodationState& state, Mode mode);

}  // namespace barhatch

#endif
