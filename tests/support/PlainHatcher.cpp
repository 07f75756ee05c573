#include "support/PlainHatcher.h"

#include <cstdint>

namespace barhatch::test {

namespace {

using Doubles = std::vector<double>;

int32_t Whole(double value) { return static_cast<int32_t>(value); }

double PlainSnap(double v, double g) { return Whole(v / g + 0.5) * g; }

void Emit(Doubles& out, double xa, double ya, double xb, double yb) {
  out.insert(out.end(), {xa, ya, xb, yb});
}

void HorizontalAcrossAll(const std::vector<PlainRect>& rects, double g, Doubles& out) {
  if (rects.empty()) return;
  double y = PlainSnap(rects.front().y0, g);
  const double end = rects.front().y1;
  while (y < end) {
    for (const PlainRect& r : rects) Emit(out, r.x0, y, r.x1, y);
    y += g;
  }
}

void VerticalUpwards(const std::vector<PlainRect>& rects, double g, Doubles& out) {
  for (const PlainRect& r : rects) {
    double x = PlainSnap(r.x0, g);
    while (x < r.x1) {
      Emit(out, x, r.y0, x, r.y1);
      x += g;
    }
  }
}

void HorizontalAlternating(const std::vector<PlainRect>& rects, double g, Doubles& out) {
  bool forward = true;
  for (const PlainRect& r : rects) {
    double y = PlainSnap(r.y0, g);
    while (y < r.y1) {
      if (forward) {
        Emit(out, r.x0, y, r.x1, y);
      } else {
        Emit(out, r.x1, y, r.x0, y);
      }
      forward = !forward;
      y += g;
    }
  }
}

void VerticalAlternating(const std::vector<PlainRect>& rects, double g, Doubles& out) {
  bool forward = true;
  for (const PlainRect& r : rects) {
    double x = PlainSnap(r.x0, g);
    while (x < r.x1) {
      if (forward) {
        Emit(out, x, r.y0, x, r.y1);
      } else {
        Emit(out, x, r.y1, x, r.y0);
      }
      forward = !forward;
      x += g;
    }
  }
}

// The pen's path as points; every inner point ends one segment and starts the next.
void Spiral(const PlainRect& rect, double g, double r, Doubles& out) {
  const double left = rect.x0 == 0.0 ? rect.x0 : (Whole(rect.x0 / g + 0.5) + 1) * g;
  const double right = Whole(rect.x1 * r + 0.5) * g;
  const double bottom = rect.y0 == 0.0 ? rect.y0 : (Whole(rect.y0 * r + 0.5) + 1) * g;
  const double top = Whole(rect.y1 * r + 0.5) * g;
  Emit(out, left, bottom, left, top);
  Emit(out, left, top, right, top);
  Emit(out, right, top, right, bottom);
  out.insert(out.end(), {right, bottom});
  double x = right, y = bottom, toLeft = left, toTop = top, toRight = right, toBottom = bottom;
  for (int leg = 0;; leg = (leg + 1) % 4) {
    if (leg == 0) {
      toLeft = toLeft + g;
      if (x <= toLeft) break;
      x = toLeft;
    } else if (leg == 1) {
      toTop = toTop - g;
      if (y >= toTop) break;
      y = toTop;
    } else if (leg == 2) {
      toRight = toRight - g;
      if (x >= toRight) break;
      x = toRight;
    } else {
      toBottom = toBottom + g;
      if (y <= toBottom) break;
      y = toBottom;
    }
    Emit(out, x, y, x, y);
  }
  out.resize(out.size() - 2);
}

}  // namespace

Doubles PlainPattern(const std::vector<PlainRect>& rects, int hatchingType, double g) {
  Doubles out;
  if (hatchingType == 0) HorizontalAcrossAll(rects, g, out);
  if (hatchingType == 1) VerticalUpwards(rects, g, out);
  if (hatchingType == 2) HorizontalAlternating(rects, g, out);
  if (hatchingType == 3) VerticalAlternating(rects, g, out);
  if (hatchingType == 5) {
    for (const PlainRect& rect : rects) Spiral(rect, g, 1 / g, out);
  }
  if (hatchingType == 6) {
    for (const PlainRect& r : rects) {
      out.push_back((r.x1 + r.x0) * 0.5);
      out.push_back((r.y1 + r.y0) * 0.5);
    }
  }
  return out;
}

std::vector<PlainRect> PlainRects(const std::string& letters, double moduleSize, double printRatio,
                                  double barHeight, bool invert) {
  std::vector<PlainRect> rects;
  const double wide = printRatio * moduleSize;
  double x = 0.0;
  for (char letter : letters) {
    double w = 0.0;
    bool dark = false;
    switch (letter) {
      case 'A':
        w = moduleSize;
        dark = !invert;
        break;
      case 'B':
        w = wide;
        dark = !invert;
        break;
      case 'a':
        w = moduleSize;
        dark = invert;
        break;
      case 'b':
        w = wide;
        dark = invert;
        break;
      default:
        continue;
    }
    if (dark) rects.push_back({x, 0, x + w, barHeight});
    x += w;
  }
  return rects;
}

Doubles PlainLinearFill(const std::string& moduleString, const PlainRequest& request) {
  double count = 0.0;
  for (char letter : moduleString) {
    int folded = static_cast<signed char>(letter);
    if (folded >= 91) folded -= 32;
    if (folded == 65) count += 1.0;
    if (folded == 66) count += request.printRatio;
  }
  const double moduleSize = request.width / count;
  return PlainPattern(
      PlainRects(moduleString, moduleSize, request.printRatio, request.height, request.invert),
      request.hatchingType, request.lineGap);
}

}  // namespace barhatch::test
