// UPC-E, plain and with an add-on of two or five digits (ISO/IEC 15420): a UPC-A number without its
// run of zeros. "0425261" stands for 04210000526 with the check digit 4; the digits 4 2 5 2 6 1 are
// drawn from G L G G L L, which says number system 0 and check digit 4, 51 modules in all.
//
// The text is the number system and six digits, always without the check digit, followed by the
// digits of the add-on.
//
// Deliberate deviations (docs/deviations.md):
//   D-EAN-3  number system 1 is accepted beside 0
//   D-EAN-4  six digits that suppressing the zeros of a UPC-A number would not give are accepted
#ifndef BARHATCH_SYMBOLOGIES_UPCE_H
#define BARHATCH_SYMBOLOGIES_UPCE_H

#include "job/Refusal.h"
#include "symbologies/Encoder.h"

namespace barhatch {

// Digits of a UPC-A number without its check digit.
constexpr int kUpcADigits = 11;
// Number system and six digits.
constexpr int kUpcEDigits = 7;
constexpr int kUpcESixDigits = 6;

// Writes the UPC-A number that the number system and the six digits at upcE stand for, 11 digits
// and a NUL. REQUIRES: seven digits at upcE (what follows them is not read), room for 12
// characters.
void ExpandUpcE(const char* upcE, char* upcA);

// The way back: writes the number system and the six digits, 7 characters, of the UPC-A number at
// upcA. False for a number whose zeros cannot be suppressed, and then they are none. Of the digits
// that stand for a number only one choice is the standard's. REQUIRES: 11 digits at upcA.
bool SuppressUpcA(const char* upcA, char* upcE);

// The check digit 0..9 of a UPC-E number, which is that of the UPC-A number it stands for.
// REQUIRES: as ExpandUpcE.
int UpcECheckDigit(const char* upcE);

// Holds the number system and the six digits to the standard (D-EAN-3, D-EAN-4). Six digits that
// stand for a number which the standard writes with six others are refused, those as the figure.
// REQUIRES: digits, seven or more.
Refusal CheckUpcEForm(const Characters& text, Conformance& how);

// REQUIRES: the digits of the layout, number system 0 or 1. variant: of one of the three
// EanUpcSymbol of UPC-E.
void EncodeUpcE(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

}  // namespace barhatch

#endif
