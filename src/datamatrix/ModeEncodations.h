// The encoders of the single modes (ISO/IEC 16022). Each takes over at the position of the state in
// its own mode, consumes a stretch of the text and leaves with the mode changed, or with the text
// at its end or the codeword buffer overflowed. Every stretch ends in front of an ECI designator,
// back in ASCII.
//
// C40, Text and X12 take the text in groups of three characters, EDIFACT in groups of four. After
// each group the look-ahead says whether to stay, also where fewer characters follow than a group.
// Only in front of a designator within the next group it is not consulted. Characters that fill no
// group go out in ASCII, but for C40 and Text where their values fill the symbol. What an unlatch
// stands in front of is decided in Unlatching.h.
//
// Deviations from the standard (ids in docs/deviations.md):
//   D-DM-3   bytes above 127 in ASCII are written one lower
//   D-DM-4   the byte 128 is dropped in ASCII
//   D-DM-5   Base 256 writes nothing (and is never chosen, D-DM-2)
//   D-DM-9   EDIFACT writes the low six bits of any character
// What is written for D-DM-5 and D-DM-9 does not depend on their being in force: the mode that the
// look-ahead has chosen knows nothing better.
#ifndef BARHATCH_DATAMATRIX_MODEENCODATIONS_H
#define BARHATCH_DATAMATRIX_MODEENCODATIONS_H

#include <cstddef>

#include "datamatrix/EncodationState.h"

namespace barhatch {

// --- AsciiEncodation.cpp

// A digit pair as one codeword, or one character; the pair ends in front of `end`. ASCII is entered
// without a codeword: an unlatch is the caller's.
void EncodePairOrCharacter(EncodationState& state, std::size_t end);

// The same for all characters in front of `end`.
void EncodeAsciiUntil(EncodationState& state, std::size_t end);

// Codewords that EncodeAsciiUntil would write.
int AsciiCodewordsUntil(const EncodationState& state, std::size_t end);

// A digit pair, or else what the look-ahead says: one character, or the latch of another mode.
void EncodeAscii(EncodationState& state);

// The ECI sequence for the designator at the position. REQUIRES: mode is ASCII.
void EncodeDesignator(EncodationState& state);

// 241 and one to three codewords for the ECI number, 0..65535: 26 gives 241 27, 321 gives
// 241 128 195.
void AppendEciSequence(CodewordBuffer& codewords, int number);

// Passes over characters for as long as the look-ahead says Base 256 (D-DM-5).
void EncodeBase256(EncodationState& state);

// --- C40TextX12Encodation.cpp: mode C40, Text or X12

void EncodeTriples(EncodationState& state);

// --- EdifactEncodation.cpp

void EncodeEdifact(EncodationState& state);

}  // namespace barhatch

#endif
