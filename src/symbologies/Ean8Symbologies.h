// EAN-8, plain and with an add-on of two or five digits (ISO/IEC 15420). "9638507" becomes
// 96385074: 9 6 3 8 drawn from L, 5 0 7 and the check digit 4 from R, 67 modules in all.
//
// The text is 7 digits, always without the check digit, followed by the digits of the add-on.
//
// Deliberate deviation (docs/deviations.md):
//   D-EAN-2  add-ons beside EAN-8, which the standard keeps for EAN-13, UPC-A and UPC-E
#ifndef BARHATCH_SYMBOLOGIES_EAN8SYMBOLOGIES_H
#define BARHATCH_SYMBOLOGIES_EAN8SYMBOLOGIES_H

#include "symbologies/EanUpcElements.h"

namespace barhatch {

// The module string of text in one of the three layouts of EAN-8, see EanUpcEncoder.
char* EncodeEan8(const EanUpcLayout& layout, const char* text, QuietZone quietZone);

class Ean8Symbology final : public EanUpcSymbology<EanUpcSymbol::kEan8, EncodeEan8> {};

class Ean8Addon2Symbology final : public EanUpcSymbology<EanUpcSymbol::kEan8Addon2, EncodeEan8> {};

class Ean8Addon5Symbology final : public EanUpcSymbology<EanUpcSymbol::kEan8Addon5, EncodeEan8> {};

}  // namespace barhatch

#endif
