// Code 128 (ISO/IEC 15417): four policies of choosing start character and code sets over one
// pipeline of text -> symbol values -> modules. Characters of 32 to 127 are accepted; the check
// character is added; function characters and the shift are never written.
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
//            text is dropped without a word
//   D-128-4  types 5, 6 and 8: the step that reaches that limit may write two values, so that 80
//            follow the start; the last of them can be a switch without data behind it
#ifndef BARHATCH_SYMBOLOGIES_CODE128SYMBOLOGIES_H
#define BARHATCH_SYMBOLOGIES_CODE128SYMBOLOGIES_H

#include <cstdint>

#include "symbologies/Symbology.h"

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

// Puts the values for a narrowed text into symbol. False, with symbol undefined, for an empty text
// and for one with a byte outside 32..127.
bool BuildCode128Values(const char* text, Code128Policy policy, Code128Values& symbol);

// The module string of a narrowed text, owned by the caller (delete[]): 11 letters for each value
// and 13 for the stop, 935 at most with the quiet zones. Null when BuildCode128Values refuses the
// text and when there is no memory.
char* EncodeCode128(const char* text, Code128Policy policy, QuietZone quietZone);

template <Code128Policy policy>
char* EncodeCode128(const char* text, QuietZone quietZone) {
  return EncodeCode128(text, policy, quietZone);
}

class Code128AutoSymbology final : public Symbology {
 public:
  char* GenerateString() override { return EncodeCurrentText(EncodeCode128<Code128Policy::kAuto>); }
};

class Code128ASymbology final : public Symbology {
 public:
  char* GenerateString() override {
    return EncodeCurrentText(EncodeCode128<Code128Policy::kFromA>);
  }
};

class Code128BSymbology final : public Symbology {
 public:
  char* GenerateString() override { return EncodeCurrentText(EncodeCode128<Code128Policy::kB>); }
};

class Code128CSymbology final : public Symbology {
 public:
  char* GenerateString() override {
    return EncodeCurrentText(EncodeCode128<Code128Policy::kFromC>);
  }
};

}  // namespace barhatch

#endif
