// MSI (modified Plessey), single modules: start 110, twelve modules for each digit (its four bits,
// the most significant first, 0 as 100 and 1 as 110), one check digit and stop 1001. "1234" becomes
// the digits 1 2 3 4 and the check digit 4: 67 letters.
//
// Every symbol that the factory's encoder makes has the modulo-10 check digit. The modulo-11 digit
// can be had from the functions here only.
//
// Deliberate deviation, kept because hosts depend on it (docs/deviations.md):
//   D-MSI-1  the empty text is accepted: the symbol holds the check digit 0 alone
#ifndef BARHATCH_SYMBOLOGIES_MSISYMBOLOGY_H
#define BARHATCH_SYMBOLOGIES_MSISYMBOLOGY_H

#include "symbologies/Symbology.h"

namespace barhatch {

enum class MsiCheckScheme {
  kNone,  // refuses every text: no symbol is made without a check digit
  kModulo10,
  kModulo11,
};

// The module string of the narrowed text (at most 3119 bytes), owned by the caller (delete[]). Null
// for a character other than a digit, with the scheme kNone, and when there is no memory.
char* EncodeMsi(const char* text, MsiCheckScheme scheme, QuietZone quietZone);

// The digits at positions 1, 3, 5, ... from the right, read as one number, are doubled; the check
// digit brings the digits of the product and the remaining digits to a multiple of ten. Exact for
// any length. REQUIRES: digits only; the empty text gives '0'.
char MsiModulo10Check(const char* digits);

// Weights 2 to 7 from the right, over again from 2. A check of 10 is the character ':', the one
// after '9', and is written with the bits of 10. REQUIRES: digits only; the empty text gives '0'.
char MsiModulo11Check(const char* digits);

class MsiSymbology final : public Symbology {
 public:
  char* GenerateString() override;
};

}  // namespace barhatch

#endif
