// How a text fills a Data Matrix, without the symbol: the number of codewords, the size, and which
// departures from ISO/IEC 16022 it meets on the way. Codewords are counted, not written.
//
// Worked example: "ABCDEF" takes 5 codewords, the latch to C40 and twice two for three letters, and
// a 12 x 12; that the unlatch is left out is by the book there.
#ifndef BARHATCH_TOOLS_MATRIXOUTLINE_H
#define BARHATCH_TOOLS_MATRIXOUTLINE_H

#include <bitset>
#include <optional>

#include "BarcodeText.h"
#include "MatrixSizes.h"

namespace preview {

struct MatrixOutline {
  int codewords = 0;               // more than kMostDataCodewords where the text is too long
  std::optional<MatrixSize> size;  // nothing for a refusal
  std::bitset<11> met;             // bit n: D-DM-n
};

MatrixOutline OutlineOf(const BarcodeText& text);

MatrixRequest RequestOf(const BarcodeText& text);

}  // namespace preview

#endif
