// Code 11: start, the digits and dashes of the data, the check character C and,
// for ten data characters or more, the check character K, stop. Five elements a character, one
// narrow space between characters. "123" becomes 1 2 3 and C = 10, which is '-', framed: 35
// letters.
//
// Deliberate deviations, kept because hosts depend on them (ids in docs/deviations.md):
//   D-11-1  K is written for ten data characters already, not only for more than ten
//   D-11-2  the empty text is accepted: the symbol holds the check character 0 alone
#ifndef BARHATCH_SYMBOLOGIES_CODE11SYMBOLOGY_H
#define BARHATCH_SYMBOLOGIES_CODE11SYMBOLOGY_H

#include "symbologies/Symbology.h"

namespace barhatch {

enum class Code11CheckScheme {
  kNone,  // refuses every text: no symbol is made without a check character
  kModulo11,
};

// The module string of the narrowed text (at most 3119 bytes), owned by the caller (delete[]). Null
// for a character other than a digit or '-', with the scheme kNone, and when there is no memory.
char* EncodeCode11(const char* text, Code11CheckScheme scheme, QuietZone quietZone);

class Code11Symbology final : public Symbology {
 public:
  char* GenerateString() override;
};

}  // namespace barhatch

#endif
