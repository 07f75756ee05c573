// The finished symbol as the hatcher and the host read it: the mapping matrix cut into the data
// regions of ISO/IEC 16022, each in its frame of finder and clock track, and the quiet
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

#include "datamatrix/SymbolSizes.h"
#include "job/Memory.h"

namespace barhatch {

// The letters (ModuleString.h) of the symbol with so many light modules on each side, row by row
// from the top, and a NUL; from `memory`, where the caller releases them. Null when there is none.
//   quietModules  0..1000
//   mapping       size.mappingRows x size.mappingColumns letters, row by row from the top
char* NewGrid(const SymbolSize& size, int quietModules, const char* mapping, const Memory& memory);

}  // namespace barhatch

#endif
