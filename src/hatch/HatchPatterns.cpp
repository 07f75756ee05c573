#include "hatch/HatchPatterns.h"

#include <limits>

#include "hatch/LinePatterns.h"
#include "hatch/SpiralPattern.h"

namespace barhatch {

namespace {

using Shape = FillingShape;
using Direction = LineDirection;
using Sense = LineSense;

constexpr HatchPattern kPatterns[] = {
    // type, shape, most doubles of a row, fill of a row
    {0, Shape::kSegments, MostScanLineDoubles, FillWithScanLines},
    {1, Shape::kSegments, MostLineDoubles<Direction::kVertical>,
     FillWithLines<Direction::kVertical, Sense::kSame>},
    {2, Shape::kSegments, MostLineDoubles<Direction::kHorizontal>,
     FillWithLines<Direction::kHorizontal, Sense::kAlternating>},
    {3, Shape::kSegments, MostLineDoubles<Direction::kVertical>,
     FillWithLines<Direction::kVertical, Sense::kAlternating>},
    {5, Shape::kSegments, MostSpiralDoubles, FillWithSpirals},
    {6, Shape::kPoints, nullptr, FillWithCentres},
};

// Multiples of an infinite gap are no numbers, and a spiral between such bounds would never end.
bool IsPitch(double gap) { return gap > 0.0 && gap <= std::numeric_limits<double>::max(); }

}  // namespace

const HatchPattern* PatternOf(const Filling& filling) {
  for (const HatchPattern& pattern : kPatterns) {
    if (pattern.type != filling.pattern) continue;
    return pattern.most == nullptr || IsPitch(filling.gap) ? &pattern : nullptr;
  }
  return nullptr;
}

}  // namespace barhatch
