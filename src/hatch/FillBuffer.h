// Packs the coordinates of a fill into the record that goes to the host.
#ifndef BARHATCH_HATCH_FILLBUFFER_H
#define BARHATCH_HATCH_FILLBUFFER_H

#include <cstdint>

#include "barhatch.h"
#include "hatch/HatchLists.h"

namespace barhatch {

// A new record whose FilledArray is the list's array, handed over without a copy; the list is empty
// afterwards. The extents are left at zero for the caller to fill in. The caller owns the record
// (FreeBarcodeData). Null when the list holds nothing or lost an element for want of memory, and
// when there is no memory for the record.
FillBufferInfo* MakeFillBuffer(CoordinateList& coordinates, std::int32_t hatchingType);

}  // namespace barhatch

#endif
