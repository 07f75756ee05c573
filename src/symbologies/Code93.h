// Code 93 (AIM USS Code 93), single modules: start, the data with full ASCII characters as shift
// pairs, the check characters C and K, stop and the termination bar. "AB" becomes the values 10 11,
// C = 31 and K = 36, framed: 55 letters.
//
// The two types, 2 for the 43 native characters and 22 for ASCII, differ in what they accept, not
// in what they write.
//
// Deliberate deviations, kept because marked parts and hosts depend on them (ids in
// docs/deviations.md):
//   D-93-1  '$', '%', '+' and '/' are written as shift pairs, never as their native characters
//   D-93-2  a byte without a value repeats the character before it and is in no check sum
//   D-93-3  a byte without a value with no character before it writes nothing
//   D-93-4  the empty text is accepted: the symbol holds the check characters alone
#ifndef BARHATCH_SYMBOLOGIES_CODE93_H
#define BARHATCH_SYMBOLOGIES_CODE93_H

#include "symbologies/Encoder.h"

namespace barhatch {

// REQUIRES: text that the rule of one of the two types accepts. There is one variant.
void EncodeCode93(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

}  // namespace barhatch

#endif
