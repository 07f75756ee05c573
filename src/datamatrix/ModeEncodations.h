// The encoders of the single modes (ISO/IEC 16022) and the state they share. Each takes over at the
// position of the state in its own mode, consumes a stretch of the text and leaves with the mode
// changed, or with the text at its end or the codeword buffer overflowed.
//
// A 16-bit character above 255 is no data but an ECI designator, whose number it is. Every stretch
// ends in front of one, back in ASCII.
//
// C40, Text and X12 take the text in groups of three characters, EDIFACT in groups of four. After
// each group the look-ahead says whether to stay, also where fewer characters follow than a group.
// Only in front of a designator within the next group it is not consulted. Characters that fill no
// group go out in ASCII, but for C40 and Text where their values fill the symbol.
//
// Deviations from the standard (ids in docs/deviations.md):
//   D-DM-3   bytes above 127 in ASCII are written one lower
//   D-DM-4   the byte 128 is dropped in ASCII
//   D-DM-5   Base 256 writes nothing (and is never chosen, D-DM-2)
//   D-DM-6   the FNC1 of code format 1 stands behind the first codeword, whatever that is
//   D-DM-7   behind whole groups no unlatch is written one below a square capacity, also where the
//            symbol goes on
//   D-DM-8   the end of a text gets its unlatch also where the symbol would be full without it,
//            unless one or two characters behind the last group fill it
//   D-DM-9   EDIFACT writes the low six bits of any character
//   D-DM-10  the EDIFACT unlatch is a codeword of its own
#ifndef BARHATCH_DATAMATRIX_MODEENCODATIONS_H
#define BARHATCH_DATAMATRIX_MODEENCODATIONS_H

#include <cstddef>

#include "datamatrix/CodewordBuffer.h"
#include "datamatrix/LookAhead.h"
#include "datamatrix/SymbolSizes.h"

namespace barhatch {

// REQUIRES: the text outlives the state; length <= 3116.
struct EncodationState {
  EncodationState(const char16_t* itsText, std::size_t itsLength, const SizeRequest& itsRequest,
                  CodewordBuffer& itsCodewords)
      : text(itsText),
        length(itsLength),
        request(itsRequest),
        codewords(itsCodewords),
        lookAhead(itsText, itsLength) {}

  const char16_t* text;
  std::size_t length;
  SizeRequest request;
  CodewordBuffer& codewords;
  LookAhead lookAhead;
  std::size_t position = 0;  // of the next character to encode
  Mode mode = Mode::kAscii;
};

constexpr bool IsDesignator(char16_t character) { return character > 255; }

// --- Encodation.cpp: what the modes have in common

// Up to `limit` characters that follow in front of the end of the text or of a designator.
std::size_t CharactersAhead(const EncodationState& state, std::size_t limit);

// The mode for what follows a group; `ahead` characters of it are data in front of the end of the
// text or of a designator, `group` at most.
Mode ModeBehindGroup(EncodationState& state, std::size_t ahead, std::size_t group);

// The codeword that leads from the mode back to ASCII, 124 or 254.
int UnlatchCodeword(Mode mode);

// Writes the latch of the mode, nothing for ASCII, and enters it.
void EnterMode(EncodationState& state, Mode mode);

// True when one more codeword would fill the smallest square that holds more than the codewords
// written so far, whatever symbol is asked for.
bool IsOneBelowSquareCapacity(const EncodationState& state);

// True when so many data codewords fill the symbol that they get under the request.
bool IsSymbolFull(const EncodationState& state, int codewords);

// Ends a stretch of C40, Text, X12 or EDIFACT at restEnd, the end of the text or a designator: what
// is left in front of it goes out in ASCII, behind the unlatch. At the end of the text the unlatch
// is left out where the finished symbol implies it: in front of one character in the last codeword,
// from EDIFACT in the last two. Where nothing is left at the end of the text the unlatch is written
// unless IsOneBelowSquareCapacity (D-DM-7, D-DM-8).
void EndStretch(EncodationState& state, std::size_t restEnd);

// --- AsciiEncodation.cpp

// The characters in front of `end`, a digit pair as one codeword. ASCII is entered without a
// codeword: an unlatch is the caller's.
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
