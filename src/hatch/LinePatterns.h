// Hatching types 0 to 3 and 6: straight strokes, and one point for each rectangle. A rectangle
// whose first position on the grid is not below its end gets no stroke; the last stroke lies
// strictly below the upper (or right) edge.
//
// Every pattern comes as a pair: the most doubles it can write, found without writing, and the fill
// itself. Positions are reached by adding the gap again and again, never by multiplying, so that
// they agree with earlier fills to the last bit.
#ifndef BARHATCH_HATCH_LINEPATTERNS_H
#define BARHATCH_HATCH_LINEPATTERNS_H

#include "hatch/HatchGrid.h"
#include "hatch/HatchLists.h"

namespace barhatch {

enum class LineDirection { kHorizontal, kVertical };
enum class LineSense { kSame, kAlternating };

// Hatching type 0: scan lines from left to right across all rectangles before the next line starts.
// The y range is that of the first rectangle; the others are taken to have the same.
// REQUIRES: gap > 0 and finite, here and below.
DoubleCount MostScanLineDoubles(const RectList& rects, double gap);
void FillWithScanLines(const RectList& rects, double gap, CoordinateList& coordinates);

// Hatching types 1 (vertical, same sense), 2 (horizontal, alternating) and 3 (vertical,
// alternating): rectangle by rectangle. The first line leads to the right or upwards; alternation
// goes on from one rectangle to the next.
template <LineDirection direction>
DoubleCount MostLineDoubles(const RectList& rects, double gap);
template <LineDirection direction, LineSense sense>
void FillWithLines(const RectList& rects, double gap, CoordinateList& coordinates);

// Hatching type 6: the centre of every rectangle; uses no gap.
DoubleCount CentreDoubles(std::size_t rects);
void FillWithCentres(const RectList& rects, double gap, CoordinateList& coordinates);

}  // namespace barhatch

#endif
