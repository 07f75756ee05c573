// Data Matrix ECC 200 (ISO/IEC 16022), the door of this room: a job becomes a grid of modules.
// "123456" as 10 x 10 is the codewords 142 164 186, the error codewords 114 25 5 88 102 and 100
// letters, row by row from the top, 'A' dark and 'a' light.
//
// The stages, each in a file of its own: encodation, symbol size, padding, error correction with
// interleaving, placement, grid.
#ifndef BARHATCH_DATAMATRIX_DATAMATRIX_H
#define BARHATCH_DATAMATRIX_DATAMATRIX_H

#include <cstddef>
#include <cstdint>

#include "datamatrix/CodewordBuffer.h"
#include "datamatrix/SymbolSizes.h"
#include "job/Job.h"
#include "job/Memory.h"
#include "job/Refusal.h"

namespace barhatch {

// Two digits in each of the 1558 data codewords of the largest symbol.
constexpr std::size_t kMaxDataMatrixText = 3116;

// Light modules on each side, at most. The standard asks for 1.
constexpr std::int32_t kMostQuietModules = 1000;

// A finished symbol. Rows and columns are those of the grid, border included.
struct MatrixSymbol {
  int rows = 0;
  int columns = 0;
  int quietModules = 0;     // on each side
  char* letters = nullptr;  // rows x columns from the top row (ModuleString.h), and a NUL
  SymbolSize size = {};     // without border
  // Count() codewords of the text, header included; behind them in data() the pads up to
  // size.dataCodewords and size.errorCodewords more: the stream as it is placed.
  CodewordBuffer codewords;
};

// The symbol of the job: its text (up to 255 data, above an ECI designator), header, size, border.
// `how` says which deviations are in force, and then which of them the symbol has met. The letters
// are from `memory`, the caller releases them there.
//
// Refused, with no letters and nothing met, `figure` being the codewords of the text where no other
// figure is named:
//   kLength              more than kMaxDataMatrixText units; figure: the units
//   kTooManyCodewords    more than 1558, the counting of which ends at 1559
//   kNoPermissionToGrow, kSizeTooSmall, kNoSuchSize   see SymbolSizes.h
//   kOption              a border of more than kMostQuietModules; figure: that
//   kNoMemory
// The codewords of the text are appended to those that the symbol holds already: none, in one just
// made.
Refusal EncodeDataMatrix(const MatrixJob& job, Conformance& how, const Memory& memory,
                         MatrixSymbol& symbol);

}  // namespace barhatch

#endif
