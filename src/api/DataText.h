// The host's 16-bit text on its way into the settings. Text that does not fit is refused as a
// whole: a mark of a shortened text is worse than none.
#ifndef BARHATCH_API_DATATEXT_H
#define BARHATCH_API_DATATEXT_H

#include <cstddef>

#include "api/BarcodeSettings.h"
#include "barhatch.h"

namespace barhatch {

// Units of the text before its NUL, counted no further than limit + 1, so that a text without end
// in sight costs no more than the longest acceptable one.
std::size_t TextLength(const BarhatchChar* text, std::size_t limit);

// True when the text is there and fits DataString with its NUL.
bool IsStorableText(const BarhatchChar* text);

// REQUIRES: IsStorableText(text).
void StoreText(const BarhatchChar* text, BarcodeSettings& settings);

}  // namespace barhatch

#endif
