// The marks as comma-separated values: a header line, then one stroke (x0,y0,x1,y1) or one point
// (x,y) a line, in marking order and in as many digits as a double has.
#ifndef BARHATCH_TOOLS_CSVWRITER_H
#define BARHATCH_TOOLS_CSVWRITER_H

#include <string>

#include "Drawing.h"

namespace preview {

std::string CsvOf(const Drawing& drawing);

}  // namespace preview

#endif
