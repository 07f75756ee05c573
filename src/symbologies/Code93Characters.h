// The 48 symbol characters of Code 93 (AIM USS Code 93) and its full ASCII extension, which writes
// most characters as a shift character and a letter: 'a' is (+)A, values 46 and 10.
//
// Deviation kept on purpose (docs/deviations.md):
//   D-93-1  '$', '%', '+' and '/' have native characters (39, 42, 41 and 40) but are always written
//           as the pairs (/)D, (/)E, (/)K and (/)O
#ifndef BARHATCH_SYMBOLOGIES_CODE93CHARACTERS_H
#define BARHATCH_SYMBOLOGIES_CODE93CHARACTERS_H

#include "job/Deviations.h"

namespace barhatch {

// The values take part in the check sums modulo 47; the start/stop character stands outside.
constexpr int kCode93CheckModulus = 47;
constexpr int kCode93LongestWeightOfC = 20;
constexpr int kCode93LongestWeightOfK = 15;
constexpr int kCode93StartStop = 47;

// Stands for the value of a byte that no Code 93 character can represent.
constexpr int kCode93NoValue = -1;

// The one or two symbol characters of a byte of data.
struct Code93Expansion {
  signed char count;      // 1 or 2
  signed char values[2];  // 0..46, or kCode93NoValue alone
};

// Bytes of 128 and above expand to kCode93NoValue; every other byte to characters that have values.
const Code93Expansion& ExpandCode93(char byte, Conformance& how);

// The nine modules of a value, '1' dark; null for a value outside 0..47.
const char* Code93Modules(int value);

// The same as letters of a module string. REQUIRES: value in 0..47.
const char* Code93Letters(int value);

// The value 0..47 with these nine letters, kCode93NoValue for any others.
int Code93Value(const char* letters);

// The four shift characters have the values from here to 46; below, each stands for itself.
constexpr int kCode93FirstShift = 43;

// REQUIRES: value below kCode93FirstShift.
char Code93CharacterOf(int value);

// The ASCII character of a shift character and the one behind it, kCode93NoValue where full ASCII
// has no such pair. REQUIRES: shift in kCode93FirstShift..46, value in 0..46.
int Code93CharacterOfPair(int shift, int value);

constexpr char kCode93TerminationBar[] = "1";

}  // namespace barhatch

#endif
