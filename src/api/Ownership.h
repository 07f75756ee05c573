// What the library gives away and how it comes back. Every array is released in the form it was
// allocated in; nothing else allocates for the
// hosts of these exports. (What a result of the mark interface points to lies in one block of its
// own, see mark/ResultBlock.h.)
//
//   given to the host   allocated in                     as                    released by
//   -----------------   ------------------------------   -------------------   --------------------
//   module string       SymbolWriter                     new char[]            the host's delete[]
//   FillBufferInfo      NewFillBuffer                    new FillBufferInfo    FreeBarcodeData
//   its FilledArray     Hatcher, by RuntimeMemory        operator new[]        FreeBarcodeData
//
// Inside, a TwoDStringResult (SymbolGrid: new, its data new[]) goes to Free2DBarcodeStringResult
// and a module string that no host sees to ReleaseModuleString.
#ifndef BARHATCH_API_OWNERSHIP_H
#define BARHATCH_API_OWNERSHIP_H

#include "barhatch.h"

namespace barhatch {

// An empty record, all zero; null when there is no memory.
FillBufferInfo* NewFillBuffer();

void ReleaseModuleString(const char* moduleString);

}  // namespace barhatch

#endif
