// Code 39 (ISO/IEC 16388) between the start/stop characters '*' that the encoder adds. "A1" becomes
// the 39 letters of *A1*: nine elements a character, one narrow space between characters.
//
// By the book a host may ask for the check character modulo 43: ABC-123 has the values 10 11 12 36
// 1 2 3, the sum 75, and the check character 32, which is W. Full ASCII: see Code39FullAscii.h.
//
// Deliberate deviations, kept because marked parts and hosts depend on them (ids in
// docs/deviations.md):
//   D-39-1  the table row of 'W' is not the published one (no text reaches that row, see D-39-3)
//   D-39-2  '/' has the elements of '%'
//   D-39-3  'E' to 'Z' are accepted and all written as one narrow bar and eight wide elements
//   D-39-4  '*' is accepted inside the data and written as the start/stop character
//   D-39-5  "%%" in the data stands for a single '%'
//   D-39-6  the empty text is accepted and gives start and stop alone
#ifndef BARHATCH_SYMBOLOGIES_CODE39_H
#define BARHATCH_SYMBOLOGIES_CODE39_H

#include "job/Refusal.h"
#include "symbologies/Encoder.h"
#include "symbologies/Preparation.h"

namespace barhatch {

// REQUIRES: text that the rule of Code 39 accepts. There is one variant.
void EncodeCode39(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

// Appends the check character, or verifies it.
Refusal PrepareCode39(const LinearOptions& options, PreparedText& text, Conformance& how);

// The check character of characters of the set, and the values of its scheme: 0 to 9 the digits, 10
// to 35 the letters, then - . space $ / + %. REQUIRES: a row of one of them.
constexpr int kCode39CheckModulus = 43;
char Code39CheckCharacter(const Characters& text);
int Code39ValueOfRow(int row);

// The nine elements of a row of the character table, '1' wide, '0' narrow. Rows: 0-9 digits, 10-35
// letters, then * - $ % space . / +. REQUIRES: index in 0..43.
const char* Code39TableElements(int index, Conformance& how);

// Rows of the published table: the one of start and stop.
constexpr int kCode39StartStop = 36;

// The row with these nine letters, kNoRow for any others.
int Code39Row(const char* letters);

// REQUIRES: row in 0..43.
char Code39CharacterOf(int row);

}  // namespace barhatch

#endif
