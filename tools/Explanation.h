// What the library says of a text: made or refused, where and why, its warnings, the deviations
// from the standard that the symbol has met, and what a standard reader reports of it.
#ifndef BARHATCH_TOOLS_EXPLANATION_H
#define BARHATCH_TOOLS_EXPLANATION_H

#include <string>

#include "Symbol.h"

namespace preview {

// Ends with a line feed.
std::string ExplanationText(const Symbol& symbol);

}  // namespace preview

#endif
