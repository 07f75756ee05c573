// Points and rectangles of a fill, in the host's length unit: x to the right, y upwards from the
// lower-left corner of the symbol.
#ifndef BARHATCH_HATCH_HATCHGEOMETRY_H
#define BARHATCH_HATCH_HATCHGEOMETRY_H

namespace barhatch {

class HatchPoint {
 public:
  HatchPoint() = default;
  HatchPoint(double pointX, double pointY) : y(pointY), x(pointX) {}
  HatchPoint(const HatchPoint&) = default;
  HatchPoint& operator=(const HatchPoint&) = default;
  virtual ~HatchPoint() = default;

  double y = 0.0;
  double x = 0.0;
};

// A filled element. An element of negative width (a host may ask for one) has its upper-right
// corner left of its lower-left one.
class HatchRect {
 public:
  HatchRect() = default;
  HatchRect(double x0, double y0, double x1, double y1) : lowerLeft(x0, y0), upperRight(x1, y1) {}
  HatchRect(const HatchRect&) = default;
  HatchRect& operator=(const HatchRect&) = default;
  virtual ~HatchRect() = default;

  // The same as assigning HatchRect(x0, y0, x1, y1), for a rectangle that is already in its list.
  void Set(double x0, double y0, double x1, double y1) {
    lowerLeft.x = x0;
    lowerLeft.y = y0;
    upperRight.x = x1;
    upperRight.y = y1;
  }

  // Moves both corners by dx to the right and dy upwards.
  void Offset(double dx, double dy) {
    lowerLeft.x += dx;
    lowerLeft.y += dy;
    upperRight.x += dx;
    upperRight.y += dy;
  }

  HatchPoint lowerLeft;
  HatchPoint upperRight;
};

}  // namespace barhatch

#endif
