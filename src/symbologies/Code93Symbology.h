// Code 93 (AIM USS Code 93), single modules: start, the data with full ASCII characters as shift
// pairs, the check characters C and K, stop and the termination bar. "AB" becomes the values 10 11,
// C = 31 and K = 36, framed: 55 letters.
//
// The two types differ in what they accept, not in what they write. A byte of 128 or above has no
// Code 93 character; type 22 accepts it nevertheless.
//
// Deliberate deviations, kept because marked parts and hosts depend on them (ids in
// docs/deviations.md):
//   D-93-1  '$', '%', '+' and '/' are written as shift pairs, never as their native characters
//   D-93-2  a byte without a value repeats the character before it and is in no check sum
//   D-93-3  a byte without a value with no character before it writes nothing
//   D-93-4  the empty text is accepted: the symbol holds the check characters alone
#ifndef BARHATCH_SYMBOLOGIES_CODE93SYMBOLOGY_H
#define BARHATCH_SYMBOLOGIES_CODE93SYMBOLOGY_H

#include "symbologies/Symbology.h"

namespace barhatch {

enum class Code93Input {
  kNativeSet,  // type 2: digits, 'A' to 'Z', - . space $ / + %
  kFullAscii,  // type 22: every byte
};

// The module string of the narrowed text (at most 3119 bytes), owned by the caller (delete[]). Null
// for a character outside the input's set and when there is no memory.
char* EncodeCode93(const char* text, Code93Input input, QuietZone quietZone);

class Code93Symbology final : public Symbology {
 public:
  explicit Code93Symbology(Code93Input input) : input_(input) {}
  char* GenerateString() override;

 private:
  Code93Input input_;
};

}  // namespace barhatch

#endif
