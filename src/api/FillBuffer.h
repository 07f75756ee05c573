// Packs the coordinates of a fill into the record that goes to the host.
#ifndef BARHATCH_API_FILLBUFFER_H
#define BARHATCH_API_FILLBUFFER_H

#include "barhatch.h"
#include "mark/Mark.h"

namespace barhatch {

// A new record whose FilledArray is the list's array, handed over without a copy; the list is empty
// afterwards and had its array from RuntimeMemory(). The extents are left at zero for the caller to
// fill in. The caller owns the record (FreeBarcodeData). Null when the list holds nothing or lost
// an element for want of memory, and when there is no memory for the record.
FillBufferInfo* MakeFillBuffer(CoordinateList& coordinates, FillingShape shape);

}  // namespace barhatch

#endif
