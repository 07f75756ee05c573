// How large the modules of a symbol are, and where it lies.
#ifndef BARHATCH_MARK_EXTENTS_H
#define BARHATCH_MARK_EXTENTS_H

#include "barhatch_mark.h"
#include "job/Job.h"
#include "mark/MarkedSymbol.h"

namespace barhatch {

// A bearer bar. GS1 General Specifications, 5.3.2: 2 modules and more, and 4.83 mm where a plate
// prints it, 4.75 modules of the nominal 1.016 mm. These are 5, so that a gap that divides a module
// divides a bearer bar as well.
constexpr int kBearerModules = 5;

struct Extents {
  double moduleSize;
  double wideSize;
  double barHeight;  // of a linear symbol, without bearer bars
  double bearer;     // height of a bearer bar; 0 where there is none
  double shiftX;     // of the drawn symbol, whose own origin is its lower-left corner
  double shiftY;     // 0 where shiftX is
};

// True for a linear symbol of two widths that has a wide element.
bool HasWideElements(const MarkedSymbol& symbol);

// REQUIRES: checked geometry that has a size.
Extents ExtentsOf(const BarhatchJob& job, const MarkedSymbol& symbol);

// Writes x_dimension, symbol, total and narrowest.
void DescribeExtents(const BarhatchJob& job, const MarkedSymbol& symbol, const Extents& extents,
                     BarhatchResult& result);

// Of what DescribeExtents wrote. False where an element has no width left or the symbol reaches so
// far to the right or up that the squares of its coordinates, of which lengths are made, are no
// numbers. To the left and down it lies by its quiet zone at most, which is narrower than the rest.
bool IsMarkable(const BarhatchResult& result);

}  // namespace barhatch

#endif
