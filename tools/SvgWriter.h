// The strokes as an SVG: one line (or dot) each, in drawing order, y turned downwards.
#ifndef BARHATCH_TOOLS_SVGWRITER_H
#define BARHATCH_TOOLS_SVGWRITER_H

#include <string>

#include "MarkImage.h"

namespace preview {

// False when the file cannot be written.
bool WriteSvg(const std::string& path, const FillBufferInfo& fill, const View& view);

}  // namespace preview

#endif
