#include "hatch/StrokeLengths.h"

#include <cmath>

namespace barhatch {

namespace {

// Of two points, each x and y.
double Distance(const double* from, const double* to) {
  const double dx = to[0] - from[0];
  const double dy = to[1] - from[1];
  return std::sqrt(dx * dx + dy * dy);
}

}  // namespace

StrokeLengths MeasureStrokes(const double* coordinates, std::size_t count, FillingShape shape) {
  const bool areSegments = shape == FillingShape::kSegments;
  const std::size_t doubles = areSegments ? kDoublesPerSegment : kDoublesPerPoint;
  StrokeLengths lengths{0.0, 0.0, 0};
  for (std::size_t at = 0; at < count; at += doubles) {
    const double* start = coordinates + at;
    if (areSegments) lengths.mark += Distance(start, start + 2);
    const double jump = at != 0 ? Distance(start - 2, start) : 0.0;
    lengths.jump += jump;
    if (jump > 0.0) ++lengths.jumps;
  }
  return lengths;
}

void Translate(double* coordinates, std::size_t count, double dx, double dy) {
  for (std::size_t at = 0; at < count; at += kDoublesPerPoint) {
    coordinates[at] += dx;
    coordinates[at + 1] += dy;
  }
}

}  // namespace barhatch
