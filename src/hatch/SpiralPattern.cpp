#include "hatch/SpiralPattern.h"

namespace barhatch {

namespace {

constexpr DoubleCount kFirstSegments = 3;

struct SpiralBounds {
  double left;
  double right;
  double bottom;
  double top;
};

// True when both quotients fit the grid's 32-bit integers; lower and upper are the bounds on the
// grid.
bool SnapInside(double lowEdge, double lowGaps, double highGaps, double gap, double& lower,
                double& upper) {
  std::int32_t low = 0;
  std::int32_t high = 0;
  if (!TruncateToInt32(highGaps + 0.5, high)) return false;
  upper = static_cast<double>(high) * gap;
  if (lowEdge == 0.0) {
    lower = lowEdge;
    return true;
  }
  if (!TruncateToInt32(lowGaps + 0.5, low)) return false;
  lower = (static_cast<double>(low) + 1.0) * gap;
  return true;
}

bool BoundsOf(const HatchRect& rect, double gap, double gapsPerUnit, SpiralBounds& bounds) {
  const HatchPoint& low = rect.lowerLeft;
  const HatchPoint& high = rect.upperRight;
  return SnapInside(low.x, low.x / gap, high.x * gapsPerUnit, gap, bounds.left, bounds.right) &&
         SnapInside(low.y, low.y * gapsPerUnit, high.y * gapsPerUnit, gap, bounds.bottom,
                    bounds.top);
}

// Horizontal and vertical legs take turns, the first is horizontal, and each shortens its side by
// one gap: the side that is used up first ends the spiral.
DoubleCount MostLegs(const SpiralBounds& bounds, double gap) {
  const DoubleCount horizontal = MostStrokes(bounds.left, bounds.right, gap);
  const DoubleCount vertical = MostStrokes(bounds.bottom, bounds.top, gap);
  if (horizontal == kUncountable || vertical == kUncountable) return kUncountable;
  const DoubleCount horizontalLegs = horizontal > 0 ? horizontal - 1 : 0;
  const DoubleCount verticalLegs = vertical > 0 ? vertical - 1 : 0;
  return horizontalLegs <= verticalLegs ? 2 * horizontalLegs : 2 * verticalLegs + 1;
}

class SpiralPen {
 public:
  SpiralPen(const SpiralBounds& bounds, CoordinateList& coordinates)
      : x_(bounds.left), y_(bounds.bottom), coordinates_(coordinates) {}

  double X() const { return x_; }
  double Y() const { return y_; }

  void DrawTo(double x, double y) {
    coordinates_.AppendSegment(x_, y_, x, y);
    x_ = x;
    y_ = y;
  }

 private:
  double x_;
  double y_;
  CoordinateList& coordinates_;
};

void DrawSpiral(const SpiralBounds& bounds, double gap, CoordinateList& coordinates) {
  SpiralPen pen(bounds, coordinates);
  pen.DrawTo(bounds.left, bounds.top);
  pen.DrawTo(bounds.right, bounds.top);
  pen.DrawTo(bounds.right, bounds.bottom);

  // Where the next leg to each side ends: one gap inside the place where the pen last stood there.
  SpiralBounds next = bounds;
  for (;;) {
    next.left += gap;
    if (pen.X() <= next.left) return;
    pen.DrawTo(next.left, pen.Y());
    next.top -= gap;
    if (pen.Y() >= next.top) return;
    pen.DrawTo(pen.X(), next.top);
    next.right -= gap;
    if (pen.X() >= next.right) return;
    pen.DrawTo(next.right, pen.Y());
    next.bottom += gap;
    if (pen.Y() <= next.bottom) return;
    pen.DrawTo(pen.X(), next.bottom);
  }
}

}  // namespace

DoubleCount MostSpiralDoubles(const RectList& rects, double gap) {
  const double gapsPerUnit = 1.0 / gap;
  DoubleCount total = 0;
  for (const HatchRect& rect : rects) {
    SpiralBounds bounds{};
    if (!BoundsOf(rect, gap, gapsPerUnit, bounds)) return kUncountable;
    const DoubleCount legs = MostLegs(bounds, gap);
    if (legs == kUncountable) return kUncountable;
    total = AddCounts(total, (kFirstSegments + legs) * kDoublesPerSegment);
  }
  return total;
}

void FillWithSpirals(const RectList& rects, double gap, CoordinateList& coordinates) {
  const double gapsPerUnit = 1.0 / gap;
  for (const HatchRect& rect : rects) {
    SpiralBounds bounds{};
    if (BoundsOf(rect, gap, gapsPerUnit, bounds)) DrawSpiral(bounds, gap, coordinates);
  }
}

}  // namespace barhatch
