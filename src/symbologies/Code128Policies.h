// Code 128 (ISO/IEC 15417) as the device writes it: four policies of choosing start character and
// code sets over one pipeline of text -> symbol values -> modules. Characters of 32 to 127 are
// accepted; the check character is added; function characters and the shift are never written. By
// the book the same types are the shortest symbols, see Code128Shortest.h.
//
//   type  policy    "1234A" becomes
//   5     kAuto     105 12 34 33          C and B by runs of digits (here D-128-1, see below)
//   6     kFromA    103 17 18 19 20 33    A until a character needs B, then B to the end
//   7     kB        104 17 18 19 20 33    B throughout
//   8     kFromC    105 12 34 100 33      C while there are pairs of digits, then B to the end
//
// and then the check character.
//
// Deliberate deviations, kept because marked parts and hosts depend on them (ids in
// docs/deviations.md):
//   D-128-1  type 5: a lone last character after a run of pairs is written inside set C with the
//            value it has in set B
//   D-128-2  type 6: byte 127 in set A is written as 95 without a switch to set B
//   D-128-3  a symbol takes no more text once it has 79 values after the start; the rest of the
//            text is dropped
//   D-128-4  types 5, 6 and 8: the step that reaches that limit may write two values, so that 80
//            follow the start; the last of them can be a switch without data behind it
#ifndef BARHATCH_SYMBOLOGIES_CODE128POLICIES_H
#define BARHATCH_SYMBOLOGIES_CODE128POLICIES_H

#include <cstddef>
#include <cstdint>

#include "symbologies/Code128Patterns.h"
#include "symbologies/Code128Shortest.h"
#include "symbologies/Encoder.h"

namespace barhatch {

enum class Code128Policy {
  kAuto,
  kFromA,
  kB,
  kFromC,
};

// A symbol that has this many values, the start among them, takes no more text.
constexpr int kCode128FullSymbol = 80;

// The last step begins with 79 values at most and writes at most two (D-128-4); then comes the
// check character: 79 + 2 + 1.
constexpr int kMaxCode128Values = 82;

// The values of one symbol from the start to the check character, without the stop. All of them are
// below 107.
struct Code128Values {
  std::uint8_t values[kMaxCode128Values];
  int count;
};

// Puts the values of a text into symbol. REQUIRES: one character or more, all of 32..127.
void BuildCode128Values(const Characters& text, Code128Policy policy, Conformance& how,
                        Code128Values& symbol);

// The values and the stop, and the termination bar.
constexpr std::size_t kMostCode128Letters =
    kCode128CharacterModules * (kMaxCode128Values + 1) + kCode128TerminationBarModules;

// By the book the symbol begins so. variant: a Code128Policy.
Code128Start Code128StartOf(int variant);

// variant: a Code128Policy, which the device follows; by the book the symbol is the shortest one
// (Code128Shortest.h) that starts as the policy says. 11 letters for each value and 13 for the
// stop. REQUIRES: text that the rule of the type accepts.
void EncodeCode128(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

}  // namespace barhatch

#endif
