// The fill pattern of a hatching type.
#ifndef BARHATCH_HATCH_HATCHPATTERNS_H
#define BARHATCH_HATCH_HATCHPATTERNS_H

#include <cstdint>

#include "hatch/HatchGrid.h"
#include "hatch/HatchLists.h"

namespace barhatch {

// What the host chose with SetHatchPattern.
struct HatchStyle {
  std::int32_t hatchingType;  // 0..3, 5, 6; every other value fills nothing
  double lineGap;  // host's unit; types 0 to 5 fill nothing unless it is finite and above zero
};

// The most doubles that filling the rectangles takes: 0 when nothing will be filled, kUncountable
// when the fill would not fit a fill buffer. Found in time proportional to the rectangles, however
// small the gap.
DoubleCount MostDoubles(const RectList& rects, const HatchStyle& style);

// True for the pattern whose fill is counted by the number of rectangles alone, whatever they are:
// CentreDoubles of LinePatterns.h.
bool IsCountedWithoutRects(const HatchStyle& style);

// Appends the coordinates of the fill.
// REQUIRES: MostDoubles(rects, style) is not kUncountable.
void FillRects(const RectList& rects, const HatchStyle& style, CoordinateList& coordinates);

}  // namespace barhatch

#endif
