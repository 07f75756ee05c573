// How far the head goes for a finished fill: the way it marks and the way it jumps.
#ifndef BARHATCH_HATCH_STROKELENGTHS_H
#define BARHATCH_HATCH_STROKELENGTHS_H

#include <cstddef>

#include "hatch/HatchLists.h"

namespace barhatch {

// In the host's unit. Both are sums in marking order, rounded after each addition.
struct StrokeLengths {
  double mark;  // of all segments; points have none
  double jump;  // from the end of each segment to the start of the next, or from point to point
  std::size_t jumps;  // those of some length
};

// The way to the first stroke and the way back from the last are no jumps. A segment that begins
// where the one before it ended, as within a spiral, is reached by a jump of no length.
// REQUIRES: whole segments, or whole points: count doubles, four or two for each.
StrokeLengths MeasureStrokes(const double* coordinates, std::size_t count, FillingShape shape);

// Moves the points of either shape, x and y by turns, by dx to the right and dy upwards.
// REQUIRES: whole points.
void Translate(double* coordinates, std::size_t count, double dx, double dy);

}  // namespace barhatch

#endif
