// Stretches of a text as codewords, each in the encodation scheme that was chosen for it (ISO/IEC
// 16022). "AIM" in C40 is 230 91 11, and 254 where the text goes on.
#ifndef BARHATCH_DATAMATRIX_SCHEMEWRITER_H
#define BARHATCH_DATAMATRIX_SCHEMEWRITER_H

#include <cstddef>

#include "datamatrix/CodewordBuffer.h"
#include "datamatrix/ShortestPass.h"

namespace barhatch {

// How a stretch ends.
enum class Leaving : std::uint8_t {
  kUnlatch,  // back to ASCII
  kNone,     // the end of the symbol implies it
};

// Writes the tokens from `begin` to `end` in one scheme, with its latch. REQUIRES: the scheme has
// them all; the triples of C40, Text and X12 are whole, and the groups of EDIFACT where there is no
// unlatch.
void WriteStretch(const TokenText& text, std::size_t begin, std::size_t end, Scheme scheme,
                  Leaving leaving, CodewordBuffer& codewords);

}  // namespace barhatch

#endif
