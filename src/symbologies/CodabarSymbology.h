// Codabar (AIM USS Codabar, two widths): seven elements a character, four bars and three spaces,
// one narrow space between characters. The start and stop characters come inside the data, none are
// added, and there is no check character. "A1B" becomes three characters and two gaps: 23 letters.
//
// A to D may be given by their other names T, N, * and E as well.
//
// Deliberate deviations, kept because hosts depend on them (ids in docs/deviations.md):
//   D-CB-1  data without start and stop characters is accepted and written without them
//   D-CB-2  a start character without a stop character, or the reverse, is accepted
//   D-CB-3  a start and a stop character without data between them are accepted
#ifndef BARHATCH_SYMBOLOGIES_CODABARSYMBOLOGY_H
#define BARHATCH_SYMBOLOGIES_CODABARSYMBOLOGY_H

#include "symbologies/Symbology.h"

namespace barhatch {

// The module string of the narrowed text (at most 3119 bytes), owned by the caller (delete[]). Null
// for an empty text, a character outside the set, a start or stop letter between the first and the
// last character, more than 3116 characters, and when there is no memory.
char* EncodeCodabar(const char* text, QuietZone quietZone);

// The seven elements written for a character, '1' wide; all narrow for a character outside the set.
const char* CodabarElements(char character);

class CodabarSymbology final : public Symbology {
 public:
  char* GenerateString() override { return EncodeCurrentText(EncodeCodabar); }
};

}  // namespace barhatch

#endif
