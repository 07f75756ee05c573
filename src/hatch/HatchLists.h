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

  void AppendRect(double x0, double y0, double x1, double y1) {
    if (HatchRect* room = RoomFor(1)) room->Set(x0, y0, x1, y1);
  }
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
};

}  // namespace barhatch

#endif
