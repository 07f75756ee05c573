// Data Matrix ECC 200 (ISO/IEC 16022): the text of the settings becomes a grid of modules.
// "123456" as 10 x 10 is the codewords 142 164 186, the error codewords 114 25 5 88 102 and 100
// letters, row by row from the top, 'A' dark and 'a' light.
//
// The stages, each in a file of its own: encodation, symbol size, padding, error correction with
// interleaving, placement, grid. Everything about the symbol comes from the settings: the text, the
// requested size and whether it may grow, the code format, the quiet zone flag.
#ifndef BARHATCH_DATAMATRIX_DATAMATRIXENCODER_H
#define BARHATCH_DATAMATRIX_DATAMATRIXENCODER_H

#include <cstddef>

#include "barhatch.h"
#include "datamatrix/CodewordBuffer.h"
#include "datamatrix/SymbolSizes.h"
#include "api/Symbology.h"

namespace barhatch {

// Two digits in each of the 1558 data codewords of the largest symbol.
constexpr std::size_t kMaxDataMatrixText = 3116;

// An encoder serves one call. It is a Symbology by its base alone: there is no module string of a
// matrix, and GenerateString is the base's.
class DataMatrixEncoder final : public Symbology {
 public:
  // The symbol of the current settings; the caller owns the record (delete) and its data
  // (delete[]). All fields of the record are zero when the symbol is refused:
  //  - text of more than 3116 characters, or text that the settings have refused
  //  - more than 1558 data codewords
  //  - a requested size that cannot be had, see SymbolSizes.h
  // Null when there is no memory. The codewords are not cleared afterwards: a second call appends
  // to those of the first.
  TwoDStringResult* EncodeDataMatrix();

 private:
  CodewordBuffer codewords_;
};

}  // namespace barhatch

#endif
