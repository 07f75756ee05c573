// The Data Matrix of the settings as the record that hosts and the hatcher read: the settings
// become a job (DataMatrix.h), the finished symbol a record.
#ifndef BARHATCH_API_DATAMATRIXENCODER_H
#define BARHATCH_API_DATAMATRIXENCODER_H

#include <cstdint>

#include "api/Symbology.h"
#include "barhatch.h"
#include "mark/Mark.h"

namespace barhatch {

// matrixSize: rows in bits 8 to 15, columns in bits 0 to 7; the higher bits have no meaning.
SizeRequest RequestFromMatrixSize(std::int32_t matrixSize, std::int32_t isExpanding);

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
  MatrixSymbol symbol_;
};

}  // namespace barhatch

#endif
