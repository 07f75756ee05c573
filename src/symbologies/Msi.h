// MSI (modified Plessey), single modules: start 110, twelve modules for each digit (its four bits,
// the most significant first, 0 as 100 and 1 as 110), one check digit and stop 1001. "1234" becomes
// the digits 1 2 3 4 and the check digit 4: 67 letters.
//
// The type that hosts can ask for has the modulo-10 check digit.
//
// Deliberate deviation, kept because hosts depend on it (docs/deviations.md):
//   D-MSI-1  the empty text is accepted: the symbol holds the check digit 0 alone
#ifndef BARHATCH_SYMBOLOGIES_MSI_H
#define BARHATCH_SYMBOLOGIES_MSI_H

#include "symbologies/Encoder.h"

namespace barhatch {

enum class MsiCheckScheme {
  kModulo10,
  kModulo11,
};

constexpr char kMsiStart[] = "110";
constexpr char kMsiStop[] = "1001";
constexpr int kMsiDigitLetters = 12;

// The digit with these twelve letters, kNoRow for any others.
int MsiDigit(const char* letters);

// REQUIRES: digits. variant: an MsiCheckScheme.
void EncodeMsi(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

// The digits at positions 1, 3, 5, ... from the right, read as one number, are doubled; the check
// digit brings the digits of the product and the remaining digits to a multiple of ten. Exact for
// any length. REQUIRES: digits only; the empty text gives '0'.
char MsiModulo10Check(const Characters& digits);

// Weights 2 to 7 from the right, over again from 2. A check of 10 is the character ':', the one
// after '9', and is written with the bits of 10. REQUIRES: digits only; the empty text gives '0'.
char MsiModulo11Check(const Characters& digits);

}  // namespace barhatch

#endif
