// Texts of EAN and UPC by the book: with or without the check digit, UPC-E in any of its forms, an
// add-on behind '+' or behind the digits of a type that has one. They become the digits that the
// encoders draw: the main ones without check digit, then those of the add-on.
//
//   symbology  digits of the main symbol
//   EAN-13     12, or 13 with the check digit
//   UPC-A      11, or 12 with the check digit
//   EAN-8      7, or 8 with the check digit
//   UPC-E      6 of number system 0; 7 with the number system, 8 with the check digit too;
//              11 of a UPC-A number whose zeros can be suppressed, 12 with its check digit
//
// A check digit that is given is verified. Of the types without add-on, "9501101530003+12" has one
// of two digits and "9501101530003" has none. The types with add-on have it always, and the sign
// may be left out: the last two or five digits are the add-on's. Two texts would then say two
// things and are refused without the sign: UPC-E of six digits and an add-on of two has as many as
// UPC-E of eight, and with one of five as many as a UPC-A number.
#ifndef BARHATCH_SYMBOLOGIES_EANUPCTEXT_H
#define BARHATCH_SYMBOLOGIES_EANUPCTEXT_H

#include <cstddef>

#include "job/Deviations.h"
#include "job/Job.h"
#include "job/Refusal.h"
#include "symbologies/EanUpcElements.h"
#include "symbologies/Preparation.h"

namespace barhatch {

constexpr char kAddonSign = '+';

// What an encoder takes.
struct EanUpcDigits {
  EanUpcSymbol symbol;            // plain, or with the add-on that there is
  char digits[kWorkingCapacity];  // those of its layout and a NUL
  std::size_t length;
};

// Takes a text of the asked symbol apart; a symbol without add-on may get one by its sign. Refused
// with the position of the character, sign or first digit that is wrong. CheckScheme::kVerify asks
// for the forms with a check digit. Deviates asks for what the standard leaves out: an add-on
// beside EAN-8 (D-EAN-2), number system 1 of UPC-E (D-EAN-3).
Refusal ReadEanUpcText(EanUpcSymbol asked, const Characters& text, CheckScheme check,
                       Conformance& how, EanUpcDigits& read);

// The preparation of the family's types: the digits, the variant with the add-on and the gap that
// is asked for, and the quiet zone behind the add-on. The option's gap is 0 or one that the
// symbology has.
Refusal PrepareEanUpc(const LinearOptions& options, PreparedText& text, Conformance& how);

}  // namespace barhatch

#endif
