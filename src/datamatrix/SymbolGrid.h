// The finished symbol as the record that the hatcher and the host read: the mapping matrix cut into
// the data regions of ISO/IEC 16022, each in its frame of finder and clock track, and the quiet
// zone around the whole. A frame, with '#' dark and '.' light, x the modules of the mapping matrix:
//
//     # . # . # .      clock track: dark in even columns
//     # x x x x #
//     # x x x x .      right side: light in even rows
//     # x x x x #
//     # x x x x .
//     # # # # # #      finder: left side and bottom row
#ifndef BARHATCH_DATAMATRIX_SYMBOLGRID_H
#define BARHATCH_DATAMATRIX_SYMBOLGRID_H

#include "barhatch.h"
#include "datamatrix/SymbolSizes.h"

namespace barhatch {

enum class QuietBorder { kNone, kOneModule };  // on every side

// The record of a refused symbol: all fields zero. Null when there is no memory. The caller owns
// the record (delete).
TwoDStringResult* NewRefusedGrid();

// The grid of a symbol, its modules the letters of ModuleString.h. The caller owns the record
// (delete) and its data (delete[]). Null when there is no memory.
//   mapping  size.mappingRows x size.mappingColumns letters, row by row from the top
TwoDStringResult* NewGrid(const SymbolSize& size, QuietBorder border, const char* mapping);

}  // namespace barhatch

#endif
