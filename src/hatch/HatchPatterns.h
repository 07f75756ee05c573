// The fill patterns: one row of a table for each hatching type that fills anything.
#ifndef BARHATCH_HATCH_HATCHPATTERNS_H
#define BARHATCH_HATCH_HATCHPATTERNS_H

#include <cstdint>

#include "hatch/HatchGrid.h"
#include "hatch/HatchLists.h"
#include "job/Job.h"

namespace barhatch {

struct HatchPattern {
  std::int32_t type;
  FillingShape shape;

  // The most doubles that filling a row takes, or kUncountable; found in time proportional to the
  // rectangles, however small the gap. Null for the pattern that needs no gap and has one point for
  // each rectangle, whatever it is: CentreDoubles of LinePatterns.h.
  DoubleCount (*most)(const RectList& row, double gap);

  // Appends the coordinates of a row. REQUIRES: most is not kUncountable.
  void (*fill)(const RectList& row, double gap, CoordinateList& coordinates);
};

// The pattern of a filling. Null where nothing will be filled: for an unknown type, and for a gap
// that is no pitch (not finite, or not above zero) of a pattern that needs one.
const HatchPattern* PatternOf(const Filling& filling);

}  // namespace barhatch

#endif
