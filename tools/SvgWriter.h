// The marks as an SVG: one line (or dot) each, in drawing order, y turned downwards, captions in a
// monospaced font. Animated, every mark appears when its turn comes, glowing first; where nothing
// is animated (a printer, a converter, a reader who asked for rest) the picture is complete.
#ifndef BARHATCH_TOOLS_SVGWRITER_H
#define BARHATCH_TOOLS_SVGWRITER_H

#include <string>

#include "Drawing.h"
#include "MarkImage.h"
#include "Statistics.h"

namespace preview {

std::string SvgOf(const Drawing& drawing, const Look& look);

// At the speeds, but for the whole: it takes 2 seconds at least and 12 at most.
std::string AnimatedSvgOf(const Drawing& drawing, const Look& look, const Speeds& speeds);

}  // namespace preview

#endif
