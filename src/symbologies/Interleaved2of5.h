// Interleaved 2 of 5 (ISO/IEC 16390): digits in pairs, the first digit of a pair in the bars and
// the second in the spaces. An odd number of digits gets a '0' in front. No check digit is added
// unless a host asks for it by the book; the one that the text may end with is the host's.
//
// "12" becomes AaAa BaAbAaAaBb BaA: start, the bars WNNNW of 1 with the spaces NWNNW of 2 between
// them, stop.
//
// Deliberate deviations, kept because marked parts and hosts depend on them (ids in
// docs/deviations.md):
//   D-25-1  the check digit's weight 3 is bound to the leftmost digit instead of the rightmost; no
//           symbol is touched, since no type asks for the check digit
//   D-25-2  the empty text is accepted and gives start and stop alone
//
// ITF-14 is Interleaved 2 of 5 of 14 digits, the last of which is the check digit.
#ifndef BARHATCH_SYMBOLOGIES_INTERLEAVED2OF5_H
#define BARHATCH_SYMBOLOGIES_INTERLEAVED2OF5_H

#include "job/Refusal.h"
#include "symbologies/Encoder.h"
#include "symbologies/Preparation.h"

namespace barhatch {

// The check digit of a text of digits: weights 3, 1, 3, 1, ... from the rightmost digit on, then
// what is missing to the next multiple of ten. "12345" has 3x5 + 4 + 3x3 + 2 + 3x1 = 33 and so '7';
// '0' for the empty text. The device counts from the leftmost digit (D-25-1), which is the same
// where their number is odd.
char Interleaved2of5CheckDigit(const Characters& digits, Conformance& how);

// Appends the check digit, or verifies it.
Refusal PrepareInterleaved2of5(const LinearOptions& options, PreparedText& text, Conformance& how);

// Of 13 digits appends the check digit, of 14 verifies it.
constexpr std::size_t kItf14Digits = 14;
Refusal PrepareItf14(const LinearOptions& options, PreparedText& text, Conformance& how);

// The five elements of a digit, '1' wide, '0' narrow; null for any other character.
const char* Interleaved2of5Elements(char digit);

constexpr char kInterleaved2of5Start[] = "0000";
constexpr char kInterleaved2of5Stop[] = "100";
constexpr int kInterleaved2of5PairLetters = 10;

// The number 0..99 of the pair of digits with these ten letters, kNoRow for any others.
int Interleaved2of5Pair(const char* letters);

// REQUIRES: digits. There is one variant.
void EncodeInterleaved2of5(const Characters& text, int variant, Conformance& how,
                           SymbolWriter& out);

}  // namespace barhatch

#endif
