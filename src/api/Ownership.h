// What the library gives away and how it comes back. Every array is released in the form it was
// allocated in.
//
//   given to the host           allocated in                        as released by module string
//   symbologies/ModuleStringBuilder     new char[]              ReleaseModuleString, or the host's
//   delete[] FillBufferInfo              hatch/FillBuffer, NewFillBuffer     new FillBufferInfo
//   FreeBarcodeData its FilledArray             hatch/GrowableArray                 new double[]
//   FreeBarcodeData
#ifndef BARHATCH_API_OWNERSHIP_H
#define BARHATCH_API_OWNERSHIP_H

#include "barhatch.h"

namespace barhatch {

// An empty record, all zero; null when there is no memory.
FillBufferInfo* NewFillBuffer();

void ReleaseModuleString(const char* moduleString);

}  // namespace barhatch

#endif
