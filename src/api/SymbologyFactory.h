// The 23 linear barcode types and the encoder of each.
#ifndef BARHATCH_API_SYMBOLOGYFACTORY_H
#define BARHATCH_API_SYMBOLOGYFACTORY_H

#include <cstdint>

#include "api/Symbology.h"

namespace barhatch {

// A new encoder for the type, which the caller owns (delete); null for a type outside 0..22 or when
// there is no memory.
Symbology* SymbologyFactory(std::int32_t type);

}  // namespace barhatch

#endif
