// Codewords compared with the text that they are to say, token by token. A reading has lost some of
// it: FNC1 has become GS or nothing, designators and heads are gone. Here they count.
#ifndef BARHATCH_DATAMATRIX_TEXTPROOF_H
#define BARHATCH_DATAMATRIX_TEXTPROOF_H

#include <cstdint>

#include "datamatrix/PublishedMatrix.h"

namespace barhatch {

// codewords: all data codewords of a symbol, pads included. True where they are sound and say this
// head, these bytes, ECI designators of these numbers and FNC1 in these places; in front it has to
// be where readers take it for what it is. Takes no memory.
bool SaysText(const std::uint8_t* codewords, int count, const PublishedText& text);

}  // namespace barhatch

#endif
