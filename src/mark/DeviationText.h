// The deviations that a mark has met as text: a line for each, "D-39-2: what is done; a standard
// reader sees: what it reports".
#ifndef BARHATCH_MARK_DEVIATIONTEXT_H
#define BARHATCH_MARK_DEVIATIONTEXT_H

#include <cstddef>

#include "job/Deviations.h"

namespace barhatch {

// Bytes of the text without its NUL.
std::size_t DeviationTextLength(DeviationSet met);

// Writes the text and a NUL. REQUIRES: room for them.
void WriteDeviationText(DeviationSet met, char* text);

}  // namespace barhatch

#endif
