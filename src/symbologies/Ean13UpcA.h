// EAN-13 and UPC-A, plain and with an add-on of two or five digits (ISO/IEC 15420). UPC-A is EAN-13
// with the first digit '0' and quiet zones of its own. "400638133393" becomes 4006381333931: the
// digits 0 0 6 3 8 1 drawn from L G L L G G, which says 4, then 3 3 3 9 3 and the check digit 1
// from R, 95 modules in all.
//
// The text is 12 digits for EAN-13 and 11 for UPC-A, always without the check digit, followed by
// the digits of the add-on.
#ifndef BARHATCH_SYMBOLOGIES_EAN13UPCA_H
#define BARHATCH_SYMBOLOGIES_EAN13UPCA_H

#include "symbologies/Encoder.h"

namespace barhatch {

// Makes the 11 digits of UPC-A the 12 of EAN-13: the whole text moves one place to the right behind
// a '0'. REQUIRES: room for one character more.
void PrefixZero(char* working);

// REQUIRES: the digits of the layout. variant: of one of the six EanUpcSymbol of the two symbologies.
void EncodeEan13UpcA(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

}  // namespace barhatch

#endif
