// The marks as a DXF drawing of release 12 in ASCII, which every CAD and engraving program reads:
// one LINE (or POINT) each, in marking order, on the layer MARK. A unit is a millimetre.
#ifndef BARHATCH_TOOLS_DXFWRITER_H
#define BARHATCH_TOOLS_DXFWRITER_H

#include <string>

#include "Drawing.h"

namespace preview {

std::string DxfOf(const Drawing& drawing);

}  // namespace preview

#endif
