#include "hatch/Hatch.h"

#include "hatch/HatchPatterns.h"
#include "hatch/LinePatterns.h"

namespace barhatch {

FillingShape ShapeOf(const Filling& filling) {
  const HatchPattern* pattern = PatternOf(filling);
  return pattern == nullptr ? FillingShape::kSegments : pattern->shape;
}

DoubleCount MostDoubles(ElementRows& rows, const Filling& filling) {
  const HatchPattern* pattern = PatternOf(filling);
  if (pattern == nullptr) return 0;
  if (pattern->most == nullptr) return CentreDoubles(rows.Count());
  DoubleCount most = 0;
  for (int row = 0; row < rows.Rows() && most != kUncountable; ++row) {
    most = AddCounts(most, pattern->most(rows.Row(row), filling.gap));
  }
  return most;
}

void Fill(ElementRows& rows, const Filling& filling, CoordinateList& coordinates) {
  const HatchPattern* pattern = PatternOf(filling);
  if (pattern == nullptr) return;
  for (int row = 0; row < rows.Rows(); ++row) {
    pattern->fill(rows.Row(row), filling.gap, coordinates);
  }
}

}  // namespace barhatch
