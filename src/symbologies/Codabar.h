// Codabar (AIM USS Codabar, two widths): seven elements a character, four bars and three spaces,
// one narrow space between characters. The start and stop characters come inside the data. "A1B"
// becomes three characters and two gaps: 23 letters.
//
// By the book a host may have A put on both sides of a text that has neither, and ask for the check
// character modulo 16, which stands in front of the stop: A1234B has the values 16 1 2 3 4 17, the
// sum 43, and the check character 5, which makes it a multiple of 16.
//
// A to D may be given by their other names T, N, * and E as well.
//
// Deliberate deviations, kept because hosts depend on them (ids in docs/deviations.md):
//   D-CB-1  data without start and stop characters is accepted and written without them
//   D-CB-2  a start character without a stop character, or the reverse, is accepted
//   D-CB-3  a start and a stop character without data between them are accepted
#ifndef BARHATCH_SYMBOLOGIES_CODABAR_H
#define BARHATCH_SYMBOLOGIES_CODABAR_H

#include "job/Refusal.h"
#include "symbologies/Encoder.h"
#include "symbologies/Preparation.h"

namespace barhatch {

// Holds a text of Codabar characters to start, data and stop (D-CB-1 to D-CB-3). REQUIRES: one
// character or more.
Refusal CheckCodabarForm(const Characters& text, Conformance& how);

// Puts in what the options ask for, or verifies the check character.
Refusal PrepareCodabar(const LinearOptions& options, PreparedText& text, Conformance& how);

// REQUIRES: text that the rule of Codabar accepts. There is one variant.
void EncodeCodabar(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

// The seven elements of a character of the set, '1' wide.
const char* CodabarElements(char character);

// Symbol characters have the values of the standard's table: 0 to 9 the digits, 10 to 15 the signs
// - $ : / . +, and from here on the start/stop characters A to D.
constexpr int kCodabarStartA = 16;
constexpr int kCodabarCheckModulus = 16;

// The value of the character with these seven letters, kNoRow for any others.
int CodabarValue(const char* letters);

// REQUIRES: value in 0..19.
char CodabarCharacterOf(int value);

}  // namespace barhatch

#endif
