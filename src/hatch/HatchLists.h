// The two lists of a fill: rectangles to be filled, and the coordinates that fill them.
#ifndef BARHATCH_HATCH_HATCHLISTS_H
#define BARHATCH_HATCH_HATCHLISTS_H

#include "hatch/GrowableArray.h"
#include "hatch/HatchGeometry.h"

namespace barhatch {

// The rectangles are held by value: one allocation for a whole symbol instead of one for each bar.
class RectList : public GrowableArray<HatchRect> {
 public:
  using GrowableArray::GrowableArray;
};

class CoordinateList : public GrowableArray<double> {
 public:
  using GrowableArray::GrowableArray;

  void AppendSegment(double xa, double ya, double xb, double yb) {
    if (double* room = RoomFor(4)) {
      room[0] = xa;
      room[1] = ya;
      room[2] = xb;
      room[3] = yb;
    }
  }

  void AppendPoint(double x, double y) {
    if (double* room = RoomFor(2)) {
      room[0] = x;
      room[1] = y;
    }
  }
};

}  // namespace barhatch

#endif
