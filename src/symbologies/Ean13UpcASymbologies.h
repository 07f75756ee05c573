// EAN-13 and UPC-A, plain and with an add-on of two or five digits (ISO/IEC 15420). UPC-A is EAN-13
// with the first digit '0' and quiet zones of its own. "400638133393" becomes 4006381333931: the
// digits 0 0 6 3 8 1 drawn from L G L L G G, which says 4, then 3 3 3 9 3 and the check digit 1
// from R, 95 modules in all.
//
// The text is 12 digits for EAN-13 and 11 for UPC-A, always without the check digit, followed by
// the digits of the add-on.
#ifndef BARHATCH_SYMBOLOGIES_EAN13UPCASYMBOLOGIES_H
#define BARHATCH_SYMBOLOGIES_EAN13UPCASYMBOLOGIES_H

#include "symbologies/EanUpcElements.h"

namespace barhatch {

// Makes the 11 digits of UPC-A the 12 of EAN-13: the whole text moves one place to the right behind
// a '0'. REQUIRES: room for one character more.
void PrefixZero(char* working);

// The module string of text in one of the six layouts of the two symbologies, see EanUpcEncoder.
char* EncodeEan13UpcA(const EanUpcLayout& layout, const char* text, QuietZone quietZone);

class Ean13Symbology final : public EanUpcSymbology<EanUpcSymbol::kEan13, EncodeEan13UpcA> {};

class Ean13Addon2Symbology final
    : public EanUpcSymbology<EanUpcSymbol::kEan13Addon2, EncodeEan13UpcA> {};

class Ean13Addon5Symbology final
    : public EanUpcSymbology<EanUpcSymbol::kEan13Addon5, EncodeEan13UpcA> {};

class UpcASymbology final : public EanUpcSymbology<EanUpcSymbol::kUpcA, EncodeEan13UpcA> {};

class UpcAAddon2Symbology final
    : public EanUpcSymbology<EanUpcSymbol::kUpcAAddon2, EncodeEan13UpcA> {};

class UpcAAddon5Symbology final
    : public EanUpcSymbology<EanUpcSymbol::kUpcAAddon5, EncodeEan13UpcA> {};

}  // namespace barhatch

#endif
