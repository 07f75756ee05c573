// One size of a Data Matrix for many texts, so that the thousandth part is no larger than the
// first.
#ifndef BARHATCH_TOOLS_SHAREDSIZE_H
#define BARHATCH_TOOLS_SHAREDSIZE_H

#include <string>
#include <vector>

#include "Request.h"

namespace preview {

// The size that holds every text of a mask becomes that of the request. Empty, or why there is
// none.
std::string TakeSizeOfMask(Request& request, const std::string& mask);

// The size of the text that needs the largest; refused ones do not count.
void TakeLargestSize(Request& request, const std::vector<std::string>& texts);

}  // namespace preview

#endif
