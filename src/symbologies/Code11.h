// Code 11: start, the digits and dashes of the data, the check character C and,
// for ten data characters or more, the check character K, stop. Five elements a character, one
// narrow space between characters. "123" becomes 1 2 3 and C = 10, which is '-', framed: 35
// letters.
//
// Deliberate deviations, kept because hosts depend on them (ids in docs/deviations.md):
//   D-11-1  K is written for ten data characters already, not only for more than ten
//   D-11-2  the empty text is accepted: the symbol holds the check character 0 alone
#ifndef BARHATCH_SYMBOLOGIES_CODE11_H
#define BARHATCH_SYMBOLOGIES_CODE11_H

#include "symbologies/Encoder.h"

namespace barhatch {

// REQUIRES: digits and dashes. There is one variant.
void EncodeCode11(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

}  // namespace barhatch

#endif
