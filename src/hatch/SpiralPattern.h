// Hatching type 5: a continuous path from the edge of each rectangle inwards, one gap from turn to
// turn.
//
//   (0,1) +-----------------+ (1,1)   Unit square with a gap of 0.25: up the left edge, along the
//         |                 |         top, down the right edge, then legs to the left, up, to the
//         |   +---------+   |         right and down until the next one would not advance: 9
//         |   |         |   |         segments, the last of which ends at (0.5,0.5). They are
//         |   |    +    |   |         written as whole segments: the end of each is repeated as the
//         |   |    |    |   |         start of the next.
//         |   |    +----+   |
//         |   |             |
//   (0,0) +   +-------------+ (1,0)
//
// Lower bounds move one gap inside after rounding to the grid (unless they are exactly 0.0), upper
// bounds are only rounded; the left bound is found by division, the others by multiplication with
// the reciprocal of the gap. Marked parts depend on both: keep them.
#ifndef BARHATCH_HATCH_SPIRALPATTERN_H
#define BARHATCH_HATCH_SPIRALPATTERN_H

#include "hatch/HatchGrid.h"
#include "hatch/HatchLists.h"

namespace barhatch {

// Every rectangle gets at least the first three segments, 12 doubles, however small it is.
// REQUIRES: gap > 0 and finite.
DoubleCount MostSpiralDoubles(const RectList& rects, double gap);
void FillWithSpirals(const RectList& rects, double gap, CoordinateList& coordinates);

}  // namespace barhatch

#endif
