// Interleaved 2 of 5 (ISO/IEC 16390): digits in pairs, the first digit of a pair in the bars and
// the second in the spaces. An odd number of digits gets a '0' in front. No check digit is added:
// the one that the text may end with is the host's.
//
// "12" becomes AaAa BaAbAaAaBb BaA: start, the bars WNNNW of 1 with the spaces NWNNW of 2 between
// them, stop.
//
// Deliberate deviations, kept because marked parts and hosts depend on them (ids in
// docs/deviations.md):
//   D-25-1  the check digit's weight 3 is bound to the leftmost digit instead of the rightmost; no
//           symbol is touched, since the class never asks for the check digit
//   D-25-2  the empty text is accepted and gives start and stop alone
#ifndef BARHATCH_SYMBOLOGIES_INTERLEAVED2OF5SYMBOLOGY_H
#define BARHATCH_SYMBOLOGIES_INTERLEAVED2OF5SYMBOLOGY_H

#include "symbologies/Symbology.h"

namespace barhatch {

enum class Interleaved2of5Check { kNone, kAppended };

// The check digit of a text of digits: weights 3, 1, 3, 1, ... from the leftmost digit on, then
// what is missing to the next multiple of ten. "1234" has 3x1 + 2 + 3x3 + 4 = 18 and so '2'; '0'
// for the empty text.
char Interleaved2of5CheckDigit(const char* digits);

// The five elements of a digit, '1' wide, '0' narrow; null for any other character.
const char* Interleaved2of5Elements(char digit);

// The module string of the narrowed text (at most 3119 bytes), owned by the caller (delete[]). The
// check digit, if asked for, is appended before the digits are padded to an even number. Null for a
// text with anything but digits, and when there is no memory.
char* EncodeInterleaved2of5(const char* text, Interleaved2of5Check check, QuietZone quietZone);

// The same without check digit.
char* EncodeInterleaved2of5(const char* text, QuietZone quietZone);

class Interleaved2of5Symbology final : public Symbology {
 public:
  char* GenerateString() override { return EncodeCurrentText(EncodeInterleaved2of5); }
};

}  // namespace barhatch

#endif
