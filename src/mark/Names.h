// What the symbologies are called, and which text each takes, in words for people.
#ifndef BARHATCH_MARK_NAMES_H
#define BARHATCH_MARK_NAMES_H

#include <cstdint>

#include "symbologies/SymbologyTable.h"

namespace barhatch {

// Null for a number that names no symbology.
const SymbologyName* NameOf(std::int32_t symbology);

// What it accepts under a BarhatchConformance.
const char* AcceptedBy(const SymbologyName& name, std::int32_t conformance);

}  // namespace barhatch

#endif
