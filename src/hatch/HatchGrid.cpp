#include "hatch/HatchGrid.h"

#include <limits>

namespace barhatch {

namespace {

constexpr double kTwoTo32 = 4294967296.0;

// The relative error of one addition of doubles is at most 2^-53; twice that leaves room for the
// error of the estimate itself.
constexpr double kErrorPerAddition = 1.0 / 4503599627370496.0;  // 2^-52

double Magnitude(double value) { return value < 0.0 ? -value : value; }

}  // namespace

DoubleCount AddCounts(DoubleCount a, DoubleCount b) {
  if (a == kUncountable || b == kUncountable || a + b > kMostDoubles) return kUncountable;
  return a + b;
}

bool TruncateToInt32(double value, std::int32_t& whole) {
  if (!(value > -2147483649.0 && value < 2147483648.0)) return false;
  whole = static_cast<std::int32_t>(value);
  return true;
}

double Snap(double v, double gap) {
  std::int32_t whole = 0;
  if (!TruncateToInt32(v / gap + 0.5, whole)) return std::numeric_limits<double>::quiet_NaN();
  return static_cast<double>(whole) * gap;
}

DoubleCount MostStrokes(double start, double end, double gap) {
  if (start != start) return kUncountable;
  if (!(start < end)) return 0;
  const double strokes = (end - start) / gap;
  const double farthest = Magnitude(start) > Magnitude(end) ? Magnitude(start) : Magnitude(end);
  const double gapsFromOrigin = farthest / gap;
  if (!(strokes < kTwoTo32 && gapsFromOrigin < kTwoTo32)) return kUncountable;
  // Each addition may fall short of the true sum by half a unit in the last place of the farthest
  // position, so that after all of them a few more strokes than the quotient may fit.
  const double shortfall = strokes * ((gapsFromOrigin + 4.0) * kErrorPerAddition);
  return static_cast<DoubleCount>(strokes + shortfall) + 1;
}

}  // namespace barhatch
