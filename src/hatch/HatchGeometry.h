// Points and rectangles of a fill, in the host's length unit: x to the right, y upwards from the
// lower-left corner of the symbol. Plain values: a rectangle is 32 bytes, and an array of them
// needs no construction.
#ifndef BARHATCH_HATCH_HATCHGEOMETRY_H
#define BARHATCH_HATCH_HATCHGEOMETRY_H

#include <type_traits>

namespace barhatch {

struct HatchPoint {
  constexpr HatchPoint(double pointX, double pointY) : y(pointY), x(pointX) {}

  double y;
  double x;
};

// A filled element. An element of negative width (a host may ask for one) has its upper-right
// corner left of its lower-left one.
struct HatchRect {
  constexpr HatchRect(double x0, double y0, double x1, double y1)
      : lowerLeft(x0, y0), upperRight(x1, y1) {}

  // Moves both corners by dx to the right and dy upwards.
  constexpr void Offset(double dx, double dy) {
    lowerLeft.x += dx;
    lowerLeft.y += dy;
    upperRight.x += dx;
    upperRight.y += dy;
  }

  HatchPoint lowerLeft;
  HatchPoint upperRight;
};

static_assert(std::is_trivially_copyable_v<HatchRect> && sizeof(HatchRect) == 32, "a plain value");

}  // namespace barhatch

#endif
