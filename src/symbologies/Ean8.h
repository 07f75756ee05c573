// EAN-8, plain and with an add-on of two or five digits (ISO/IEC 15420). "9638507" becomes
// 96385074: 9 6 3 8 drawn from L, 5 0 7 and the check digit 4 from R, 67 modules in all.
//
// The text is 7 digits, always without the check digit, followed by the digits of the add-on.
//
// Deliberate deviation (docs/deviations.md):
//   D-EAN-2  add-ons beside EAN-8, which the standard keeps for EAN-13, UPC-A and UPC-E
#ifndef BARHATCH_SYMBOLOGIES_EAN8_H
#define BARHATCH_SYMBOLOGIES_EAN8_H

#include "job/Refusal.h"
#include "symbologies/Encoder.h"

namespace barhatch {

// An add-on beside EAN-8 is not standard, whatever its digits (D-EAN-2).
Refusal CheckEan8AddonForm(const Characters& text, Conformance& how);

// REQUIRES: the digits of the layout. variant: of one of the three EanUpcSymbol of EAN-8.
void EncodeEan8(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

}  // namespace barhatch

#endif
