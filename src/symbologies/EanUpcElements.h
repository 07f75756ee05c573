// What the EAN/UPC symbols (ISO/IEC 15420, GS1 General Specifications) are made of: number sets,
// guards, parities, check digit and add-on, and one table that says how the twelve types differ.
//
// A symbol is guards and digits of seven modules each. A digit is drawn from number set L (odd
// parity), G (even parity) or R (the standard's sets A, B and C); which of L and G a digit comes
// from carries a further digit: the first one of EAN-13, the check digit of UPC-E, the check value
// of an add-on. EAN-8 of 9638507, whose check digit is 4:
//   101  9 6 3 8 from L  01010  5 0 7 4 from R  101
//
// The data never carries the check digit: text that already ends in it is one digit too long and
// refused. The add-on digits follow the main digits without a separator.
#ifndef BARHATCH_SYMBOLOGIES_EANUPCELEMENTS_H
#define BARHATCH_SYMBOLOGIES_EANUPCELEMENTS_H

#include <cstddef>

#include "symbologies/Encoder.h"

namespace barhatch {

// The members of the family; the value is the index of the row in kEanUpcLayouts.
enum class EanUpcSymbol {
  kEan13,
  kEan13Addon2,
  kEan13Addon5,
  kUpcA,
  kUpcAAddon2,
  kUpcAAddon5,
  kEan8,
  kEan8Addon2,
  kEan8Addon5,
  kUpcE,
  kUpcEAddon2,
  kUpcEAddon5,
};

// What becomes of the first digit of the text.
enum class FirstDigit {
  kGiven,         // a digit like the others
  kBehindZero,    // likewise, but PrefixZero puts the leading '0' of UPC-A in front of it
  kNumberSystem,  // '0' or '1', drawn by parity alone, as is the check digit of such a symbol
};

// Everything in which the twelve types differ.
struct EanUpcLayout {
  EanUpcSymbol symbol;
  int mainDigits;     // digits the text must have before those of the add-on
  int addonDigits;    // 0, 2 or 5
  int workingDigits;  // main digits with what the encoder adds; the check digit, where it adds one,
                      // is the last of them, and the add-on digits follow
  FirstDigit firstDigit;
  int mainModules;  // of the symbol without add-on and quiet zone: seven a drawn digit and
                    // 11 of the guards (3 + 5 + 3), 9 for UPC-E (3 + 6)
};

// clang-format off
inline constexpr EanUpcLayout kEanUpcLayouts[] = {
    //                           digits
    //                         main addon working                     modules
    {EanUpcSymbol::kEan13,        12,  0,  13,   FirstDigit::kGiven,         95},
    {EanUpcSymbol::kEan13Addon2,  12,  2,  13,   FirstDigit::kGiven,         95},
    {EanUpcSymbol::kEan13Addon5,  12,  5,  13,   FirstDigit::kGiven,         95},
    {EanUpcSymbol::kUpcA,         11,  0,  13,   FirstDigit::kBehindZero,    95},
    {EanUpcSymbol::kUpcAAddon2,   11,  2,  13,   FirstDigit::kBehindZero,    95},
    {EanUpcSymbol::kUpcAAddon5,   11,  5,  13,   FirstDigit::kBehindZero,    95},
    {EanUpcSymbol::kEan8,          7,  0,   8,   FirstDigit::kGiven,         67},
    {EanUpcSymbol::kEan8Addon2,    7,  2,   8,   FirstDigit::kGiven,         67},
    {EanUpcSymbol::kEan8Addon5,    7,  5,   8,   FirstDigit::kGiven,         67},
    {EanUpcSymbol::kUpcE,          7,  0,   7,   FirstDigit::kNumberSystem,  51},
    {EanUpcSymbol::kUpcEAddon2,    7,  2,   7,   FirstDigit::kNumberSystem,  51},
    {EanUpcSymbol::kUpcEAddon5,    7,  5,   7,   FirstDigit::kNumberSystem,  51},
};
// clang-format on

constexpr const EanUpcLayout& EanUpcLayoutOf(EanUpcSymbol symbol) {
  return kEanUpcLayouts[static_cast<int>(symbol)];
}

// The variant of the family's encoders: the symbol, and above it the light modules that are asked
// for in front of an add-on, 0 for the usual ones.
constexpr int kVariantSymbols = 16;
constexpr int EanUpcVariant(EanUpcSymbol symbol, int addonGap) {
  return static_cast<int>(symbol) + kVariantSymbols * addonGap;
}
constexpr const EanUpcLayout& EanUpcLayoutOf(int variant) {
  return kEanUpcLayouts[static_cast<unsigned>(variant) % kVariantSymbols];
}
constexpr int AddonGapOf(int variant) { return variant / kVariantSymbols; }

constexpr char kNormalGuard[] = "101";
constexpr char kCentreGuard[] = "01010";
constexpr char kUpcEEndGuard[] = "010101";
constexpr char kAddonStartGuard[] = "1011";
constexpr char kAddonSeparator[] = "01";
// Modules in front of an add-on: 7 to 12 beside EAN, 9 to 12 beside UPC. The usual 9 is in both.
constexpr int kAddonGapModules = 9;
constexpr int kDeviceAddonGapModules = 8;
constexpr int kLeastAddonGapModules = 7;
constexpr int kLeastUpcAddonGapModules = 9;
constexpr int kMostAddonGapModules = 12;
constexpr int LeastAddonGapOf(EanUpcSymbol symbol) {
  const bool isEan = EanUpcLayoutOf(symbol).firstDigit == FirstDigit::kGiven;
  return isEan ? kLeastAddonGapModules : kLeastUpcAddonGapModules;
}
// Light modules that the standard asks for behind an add-on, whatever it stands beside.
constexpr int kAddonQuietModules = 5;

constexpr int kCheckModulus = 10;

// 13 digits, 5 of an add-on and the NUL.
constexpr std::size_t kWorkingCapacity = 13 + 5 + 1;

enum class NumberSet { kL, kG, kR };

// The digit 0..9 that completes the digits to a multiple of ten with weights 3, 1, 3, ... counted
// from the rightmost one: 4 for the seven digits 9638507 (3*9 + 6 + 3*3 + 8 + 3*5 + 0 + 3*7 = 86).
int CheckDigit(const char* digits, int count);

// Writes the check digit of the digits before it as the last of the working digits; the add-on
// digits and the NUL move one place to the right. REQUIRES: digits that lack nothing but the check
// digit, and room for one more.
void InsertCheckDigit(const EanUpcLayout& layout, char* working);

// The seven modules of a digit '0' to '9'.
const char* EncodeDigit(char digit, NumberSet set);

// The digit and the set with these seven letters; false for letters that no set has.
struct DrawnDigit {
  char digit;
  NumberSet set;
};
bool FindDigit(const char* letters, DrawnDigit& found);

// Parities, one character per drawn digit: '0' for a digit from L, '1' for one from G.
//
// Of the six digits that follow the first digit '0' to '9' of EAN-13: "001011" for '1'.
const char* FirstDigitParity(char firstDigit);
// Of the six digits of UPC-E, for number system 0 or 1 and the check digit 0..9: "101100" for 0 and
// 4. Null for any other number system.
const char* UpcEParity(int numberSystem, int checkDigit);
// Of the digits of an add-on. Two digits: their value modulo 4 in binary, "01" for 05. Five digits:
// chosen by (3*a1 + 9*a2 + 3*a3 + 9*a4 + 3*a5) mod 10, "10100" for 52495. REQUIRES: count 2 or 5.
const char* AddonParity(const char* addon, int count);

// Appends one digit for each of the six characters of the parity.
void AppendDigits(SymbolWriter& out, const char* digits, const char* parity);
// Appends count digits, all from one set.
void AppendDigits(SymbolWriter& out, const char* digits, int count, NumberSet set);

// Appends the gap, the add-on guard and the digits with separators between them; nothing for a
// variant without add-on. The device has a gap of its own (D-EAN-1).
void AppendAddon(SymbolWriter& out, int variant, const char* addon, Conformance& how);

// Of an add-on without the gap: start guard, seven modules a digit, two between digits.
constexpr int AddonModules(int digits) { return 4 + 7 * digits + 2 * (digits - 1); }

// Letters of the symbol with its add-on, at most.
constexpr std::size_t MostModules(const EanUpcLayout& layout) {
  const int digits = layout.addonDigits;
  const int addon = digits == 0 ? 0 : kMostAddonGapModules + AddonModules(digits);
  return static_cast<std::size_t>(layout.mainModules + addon);
}

}  // namespace barhatch

#endif
