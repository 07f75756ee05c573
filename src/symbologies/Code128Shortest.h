// Code 128 by the book (ISO/IEC 15417): the fewest symbol characters that a text of bytes can have.
//
// A place in the text can be reached in six ways: in set A, B or C, each with FNC4 latched or not.
// From the end of the text backwards, each way costs the values that are still needed; the choice
// of the start and of every switch, shift and FNC4 follows the costs. "ab1234567" becomes
//   104 65 66 17 99 23 45 67     start B, a, b, 1, switch to C, 23, 45, 67
// and "a\xE9" 104 65 100 73: start B, a, FNC4, i.
//
// Bytes of 128 and above are written with FNC4, singly or latched by two of them. FNC1 is one value
// in every set, FNC2 and FNC3 in A and B. Where two ways cost the same, no switch is made before it
// has to be; a start is B before A before C. But two digits with FNC1 behind them begin in C, where
// it may be: readers take it for FNC1 in second position there alone.
#ifndef BARHATCH_SYMBOLOGIES_CODE128SHORTEST_H
#define BARHATCH_SYMBOLOGIES_CODE128SHORTEST_H

#include <cstdint>

#include "job/Token.h"
#include "symbologies/Encoder.h"

namespace barhatch {

enum class Code128Start : std::uint8_t {
  kFree,
  kA,
  kB,     // and stays there
  kPair,  // C where the text begins with two digits, behind FNC1 or not, else B
};

// From the start to the check character. A symbol of this many would be 22,000 modules wide.
constexpr int kMostShortestValues = 2000;

// The values from the start to the last one before the check character, from the memory; the caller
// gives them back. Null when there is no memory. Takes time in proportion to the text and, while it
// runs, 12 bytes a character. REQUIRES: one token or more, at most kLongestLinearText, bytes and
// FNC1 to FNC3; for kB none that set B lacks.
std::uint8_t* ShortestCode128Values(const TokenText& text, Code128Start start, const Memory& memory,
                                    int& count);

// Draws the symbol; refuses to the writer what has more than kMostShortestValues values.
void DrawShortestCode128(const TokenText& text, Code128Start start, SymbolWriter& out);

}  // namespace barhatch

#endif
