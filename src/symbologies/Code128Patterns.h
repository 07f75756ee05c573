// Symbol characters of Code 128 (ISO/IEC 15417): the value of each character, the elements it is
// drawn with, and the check character of a symbol.
//
// A symbol is a start character, data and code-set switches, one check character, the stop
// character and a termination bar. "A" in set B is 104 33 34: start B, 'A', check; each of the
// three and the stop character has three bars and three spaces of 11 modules in all, and the
// termination bar has two, which makes 46 modules.
#ifndef BARHATCH_SYMBOLOGIES_CODE128PATTERNS_H
#define BARHATCH_SYMBOLOGIES_CODE128PATTERNS_H

#include <cstddef>
#include <cstdint>

#include "symbologies/SymbolWriter.h"

namespace barhatch {

// Values with a name; all others are data. A switch has the same value in every set it can be
// written in.
constexpr std::uint8_t kCode128Fnc3 = 96;   // A and B
constexpr std::uint8_t kCode128Fnc2 = 97;   // A and B
constexpr std::uint8_t kCode128Shift = 98;  // A and B
constexpr std::uint8_t kCode128SwitchToC = 99;
constexpr std::uint8_t kCode128SwitchToB = 100;  // in B itself: FNC4
constexpr std::uint8_t kCode128SwitchToA = 101;  // in A itself: FNC4
constexpr std::uint8_t kCode128Fnc1 = 102;
constexpr std::uint8_t kCode128StartA = 103;
constexpr std::uint8_t kCode128StartB = 104;
constexpr std::uint8_t kCode128StartC = 105;
constexpr std::uint8_t kCode128Stop = 106;

constexpr int kCode128CharacterModules = 11;
constexpr int kCode128TerminationBarModules = 2;
constexpr char kCode128TerminationBar[kCode128TerminationBarModules + 1] = "11";

// The six element widths of a value in modules, bar first, as digits: "212222" for 0. The stop
// character comes without its termination bar. Null for a value outside 0..106.
const char* Code128Widths(int value);

// The value with these eleven letters, kNoRow for any others.
int Code128Value(const char* letters);

// Appends the 11 modules of each value. REQUIRES: values in 0..106.
void AppendCode128Characters(SymbolWriter& out, const std::uint8_t* values, int count);

// Appends the stop character and the termination bar, 13 modules.
void AppendCode128Stop(SymbolWriter& out);

// The check character of the values from the start character to the last data or switch value: the
// start counts once, each later value as often as its position says, modulo 103.
// 104 33 gives (104 + 1 x 33) mod 103 = 34. REQUIRES: count in 1..6300, values in 0..106: their sum
// stays below 106 x 6300 x 6300 / 2, which is less than 2^31.
constexpr std::size_t kMostCode128CheckedValues = 6300;
std::uint8_t Code128CheckValue(const std::uint8_t* values, int count);

}  // namespace barhatch

#endif
