// Code 11: start, the digits and dashes of the data, the check character C and, for more than ten
// data characters, the check character K, stop. Five elements a character, one narrow space between
// characters. "123" becomes 1 2 3 and C = 10, which is '-', framed: 35 letters.
//
// By the book a host may ask for none of them, for C alone or for both whatever the length.
//
// Deliberate deviations, kept because hosts depend on them (ids in docs/deviations.md):
//   D-11-1  K is written for ten data characters already, not only for more than ten
//   D-11-2  the empty text is accepted: the symbol holds the check character 0 alone
#ifndef BARHATCH_SYMBOLOGIES_CODE11_H
#define BARHATCH_SYMBOLOGIES_CODE11_H

#include <cstddef>

#include "job/Refusal.h"
#include "symbologies/Encoder.h"
#include "symbologies/Preparation.h"

namespace barhatch {

// Adds the check characters by the length of the text. REQUIRES: digits and dashes. There is one
// variant.
void EncodeCode11(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

// Adds nothing. REQUIRES: digits and dashes. There is one variant.
void EncodeCode11Characters(const Characters& text, int variant, Conformance& how,
                            SymbolWriter& out);

// Appends the check characters of a scheme, or verifies those by length.
Refusal PrepareCode11(const LinearOptions& options, PreparedText& text, Conformance& how);

// Symbol characters have the values 0 to 10, '-' the last; start and stop stand outside.
constexpr int kCode11Dash = 10;
constexpr int kCode11StartStop = 11;

// Check characters: remainders of the sums with weights from 1 on. C is taken over the data, K over
// the data and C.
constexpr int kCode11CheckModulus = 11;
constexpr int kCode11LongestWeightOfC = 10;
constexpr int kCode11LongestWeightOfK = 9;
constexpr std::size_t kCode11LongestTextWithC = 10;  // alone; with K as well from the next one on

// Check characters that a scheme has for so many data characters: 0 to 2.
int Code11CheckCharactersOf(CheckScheme check, std::size_t length);

// The value of the character with these five letters, kNoRow for any others.
int Code11Value(const char* letters);

}  // namespace barhatch

#endif
