// The two lists of a fill: rectangles to be filled, and the coordinates that fill them.
#ifndef BARHATCH_HATCH_HATCHLISTS_H
#define BARHATCH_HATCH_HATCHLISTS_H

#include <cstdint>

#include "hatch/GrowableArray.h"
#include "hatch/HatchGeometry.h"

namespace barhatch {

// The rectangles are held by value: one allocation for a whole symbol instead of one for each bar.
using RectList = GrowableArray<HatchRect>;

// What the coordinates of a fill are: x and y of the start and x and y of the end of each segment,
// or x and y of each point.
enum class FillingShape : std::uint8_t { kSegments, kPoints };
constexpr int kDoublesPerSegment = 4;
constexpr int kDoublesPerPoint = 2;

class CoordinateList : public GrowableArray<double> {
 public:
  using GrowableArray::GrowableArray;

  void AppendSegment(double xa, double ya, double xb, double yb) {
    if (double* room = RoomFor(kDoublesPerSegment)) {
      room[0] = xa;
      room[1] = ya;
      room[2] = xb;
      room[3] = yb;
    }
  }
};

}  // namespace barhatch

#endif
