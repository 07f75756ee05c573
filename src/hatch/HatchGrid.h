// The grid of the strokes: multiples of the line gap measured from the origin of the symbol, not
// from the edge of an element, so that the fills of neighbouring elements line up. A stroke may
// therefore lie up to half a gap outside its element on the lower side.
#ifndef BARHATCH_HATCH_HATCHGRID_H
#define BARHATCH_HATCH_HATCHGRID_H

#include <cstdint>

namespace barhatch {

// A count of doubles that a fill needs at most; kUncountable when it does not fit BufferLength.
using DoubleCount = std::int64_t;
constexpr DoubleCount kUncountable = -1;
constexpr DoubleCount kMostDoubles = 2147483647;  // BufferLength is a signed 32-bit count

// The sum of two counts, or kUncountable.
DoubleCount AddCounts(DoubleCount a, DoubleCount b);

// Converts toward zero. False, and whole untouched, when the value does not fit 32 bits or is no
// number.
bool TruncateToInt32(double value, std::int32_t& whole);

// trunc(v / gap + 0.5) x gap, with a 32-bit integer in between, so never -0.0. Not a number when
// the integer would not fit: no stroke lies there. With a gap of 0.1: 0.26 gives 0.3, 0.24 gives
// 0.2, -0.26 gives -0.2.
double Snap(double v, double gap);

// How many times `position < end` can hold while position starts at start and grows by gap: never
// too few, and at most one more than the true number but for fills of many millions of strokes.
// kUncountable when start is no number, or when the strokes or the distance of an end from the
// origin exceed 32 bits of gaps; every position that a countable range visits therefore really
// advances. REQUIRES: gap > 0 and finite.
DoubleCount MostStrokes(double start, double end, double gap);

}  // namespace barhatch

#endif
