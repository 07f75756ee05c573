// The door of this room: from the elements of a symbol to the coordinates that fill them.
//
// Count first, write once. The caller learns the most doubles that a fill can take, provides a list
// with so much room, and the fill writes into it:
//
//   ElementRows rows(grid, filling.filled, memory);
//   const DoubleCount most = MostDoubles(rows, filling);   // 0: nothing; kUncountable: too much
//   CoordinateList coordinates(room, capacity);            // capacity >= most
//   Fill(rows, filling, coordinates);                      // coordinates.Count() doubles
//
// Nothing here keeps anything between calls, and all memory comes from the caller.
#ifndef BARHATCH_HATCH_HATCH_H
#define BARHATCH_HATCH_HATCH_H

#include "hatch/ElementRows.h"
#include "hatch/HatchGrid.h"
#include "hatch/HatchLists.h"
#include "job/Job.h"

namespace barhatch {

// What the coordinates of such a filling are; segments where nothing is filled.
FillingShape ShapeOf(const Filling& filling);

// The most doubles that the fill takes: 0 when nothing will be filled, kUncountable when there are
// more than kMostDoubles. Found in time proportional to the elements, however small the gap.
// REQUIRES: !rows.HasFailed(), here and below.
DoubleCount MostDoubles(ElementRows& rows, const Filling& filling);

// Appends the fill, every row on its own: alternating strokes start forward in each.
// REQUIRES: MostDoubles(rows, filling) is not kUncountable, and coordinates has room for as many or
// grows. Without room the fill ends, but only after a walk along all its strokes.
void Fill(ElementRows& rows, const Filling& filling, CoordinateList& coordinates);

}  // namespace barhatch

#endif
