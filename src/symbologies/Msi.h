// MSI (modified Plessey), single modules: start 110, twelve modules for each digit (its four bits,
// the most significant first, 0 as 100 and 1 as 110), one check digit and stop 1001. "1234" becomes
// the digits 1 2 3 4 and the check digit 4: 67 letters.
//
// The device writes the check digit of modulo 10. By the book there are the usual schemes:
//
//   kMsi10          4    of 1234567
//   kMsi10And10     41   the second digit is that of 12345674
//   kMsi11          4    weights 2 to 7
//   kMsi11And10     41
//   kMsiNcr11       9    weights 2 to 9
//   kMsiNcr11And10  90
//
// A check of modulo 11 that is 10 has no digit: the text is refused.
//
// Deliberate deviation, kept because hosts depend on it (docs/deviations.md):
//   D-MSI-1  the empty text is accepted: the symbol holds the check digit 0 alone
#ifndef BARHATCH_SYMBOLOGIES_MSI_H
#define BARHATCH_SYMBOLOGIES_MSI_H

#include "job/Refusal.h"
#include "symbologies/Encoder.h"
#include "symbologies/Preparation.h"

namespace barhatch {

constexpr char kMsiStart[] = "110";
constexpr char kMsiStop[] = "1001";
constexpr int kMsiDigitLetters = 12;

// No standard says how wide the quiet zone is; by the book it is that of the other generators. The
// device has 10.
constexpr int kMsiQuietModules = 12;

// The digit with these twelve letters, kNoRow for any others.
int MsiDigit(const char* letters);

// Adds the check digit of modulo 10. REQUIRES: digits. There is one variant.
void EncodeMsi(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

// Adds nothing. REQUIRES: digits. There is one variant.
void EncodeMsiDigits(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

// Appends the check digits of a scheme, or verifies that of modulo 10.
Refusal PrepareMsi(const LinearOptions& options, PreparedText& text, Conformance& how);

// Check digits of a scheme: 0, 1 or 2.
int MsiCheckDigitsOf(CheckScheme check);

// Whether the last of the digits are the check digits of the others. REQUIRES: digits, more than
// the scheme has.
bool HasMsiCheck(const Characters& digits, CheckScheme check);

// The digits at positions 1, 3, 5, ... from the right, read as one number, are doubled; the check
// digit brings the digits of the product and the remaining digits to a multiple of ten. Exact for
// any length. REQUIRES: digits only; the empty text gives '0'.
char MsiModulo10Check(const Characters& digits);

// 0..10. Weights from 2 to the last one, from the right and over again. REQUIRES: digits only; the
// empty text gives 0.
constexpr int kMsiLastWeight = 7;
constexpr int kMsiLastWeightOfNcr = 9;
int MsiModulo11Check(const Characters& digits, int lastWeight);

}  // namespace barhatch

#endif
