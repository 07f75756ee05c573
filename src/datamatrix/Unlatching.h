// When C40, Text, X12 and EDIFACT are left behind an unlatch, and when without one: all of it is
// decided here, below the modes.
//
// By the standard an unlatch is left out where the symbol ends: where it is full, where one
// codeword is left for C40, Text or X12, and where one or two are left for EDIFACT. The device
// decides by the capacities of squares in some places, whatever symbol is asked for.
//
// Deviations (ids in docs/deviations.md):
//   D-DM-7   behind whole groups no unlatch is written one below a square capacity, also where the
//            symbol goes on
//   D-DM-8   the end of a text gets its unlatch also where the symbol would be full without it,
//            unless one or two characters behind the last group fill it
//   D-DM-10  the EDIFACT unlatch is a codeword of its own, also in the last two of the symbol
#ifndef BARHATCH_DATAMATRIX_UNLATCHING_H
#define BARHATCH_DATAMATRIX_UNLATCHING_H

#include <cstddef>

#include "datamatrix/EncodationState.h"

namespace barhatch {

// Leaves the mode for `next` behind an unlatch, 254 or for EDIFACT 124. The characters in front of
// `end` go out in ASCII before the latch of `next`.
void LeaveBehindUnlatch(EncodationState& state, std::size_t end, Mode next);

// The same in mid-text for C40, Text and X12, where the unlatch may fall under D-DM-7. isWhole: the
// groups of values are whole, no pad closes them and nothing waits.
void LeaveForMode(EncodationState& state, std::size_t end, Mode next, bool isWhole);

// Leaves the mode for ASCII at the end of the text; the characters left go out in ASCII.
void LeaveAtEnd(EncodationState& state);

// C40 or Text at the end of the text, if the mode is kept up to it.
struct KeptEnding {
  int codewords;   // of the whole symbol then; 0 where the mode cannot be kept
  int lastValues;  // of the characters behind the last group, with those that wait behind it
  std::size_t charactersLeft;  // behind the last group
};

// True when the mode is kept, so that no unlatch is needed: the values of one or two characters
// left, with those that wait, fill the last two codewords of the symbol, with a pad or without;
// published, wherever the symbol is full (D-DM-8).
bool KeepsModeToTheEnd(EncodationState& state, const KeptEnding& ending);

}  // namespace barhatch

#endif
