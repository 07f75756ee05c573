#include "hatch/HatchPatterns.h"

#include <limits>

#include "hatch/LinePatterns.h"
#include "hatch/SpiralPattern.h"

namespace barhatch {

namespace {

enum HatchingType : std::int32_t {
  kScanLines = 0,
  kVerticalLines = 1,
  kAlternatingHorizontalLines = 2,
  kAlternatingVerticalLines = 3,
  kSpiral = 5,
  kCentres = 6,
};

// Multiples of an infinite gap are no numbers, and a spiral between such bounds would never end.
bool HasUsableGap(const HatchStyle& style) {
  const bool isPitch = style.lineGap > 0.0 && style.lineGap <= std::numeric_limits<double>::max();
  return isPitch || style.hatchingType == kCentres;
}

}  // namespace

DoubleCount MostDoubles(const RectList& rects, const HatchStyle& style) {
  if (!HasUsableGap(style)) return 0;
  switch (style.hatchingType) {
    case kScanLines:
      return MostScanLineDoubles(rects, style.lineGap);
    case kVerticalLines:
    case kAlternatingVerticalLines:
      return MostLineDoubles(rects, style.lineGap, LineDirection::kVertical);
    case kAlternatingHorizontalLines:
      return MostLineDoubles(rects, style.lineGap, LineDirection::kHorizontal);
    case kSpiral:
      return MostSpiralDoubles(rects, style.lineGap);
    case kCentres:
      return CentreDoubles(rects.Count());
    default:
      return 0;
  }
}

bool IsCountedWithoutRects(const HatchStyle& style) { return style.hatchingType == kCentres; }

void FillRects(const RectList& rects, const HatchStyle& style, CoordinateList& coordinates) {
  if (!HasUsableGap(style)) return;
  switch (style.hatchingType) {
    case kScanLines:
      return FillWithScanLines(rects, style.lineGap, coordinates);
    case kVerticalLines:
      return FillWithLines(rects, style.lineGap, LineDirection::kVertical, LineOrder::kSameWay,
                           coordinates);
    case kAlternatingHorizontalLines:
      return FillWithLines(rects, style.lineGap, LineDirection::kHorizontal,
                           LineOrder::kAlternating, coordinates);
    case kAlternatingVerticalLines:
      return FillWithLines(rects, style.lineGap, LineDirection::kVertical, LineOrder::kAlternating,
                           coordinates);
    case kSpiral:
      return FillWithSpirals(rects, style.lineGap, coordinates);
    case kCentres:
      return FillWithCentres(rects, coordinates);
    default:
      return;
  }
}

}  // namespace barhatch
