#include "mark/Extents.h"

#include "hatch/Hatch.h"
#include "job/ModuleString.h"
#include "mark/JobRecord.h"

namespace barhatch {

namespace {

constexpr double kMostExtent = 1e150;  // whose square still is a number

bool IsQuietInside(const BarhatchJob& job) { return (job.flags & BARHATCH_QUIET_INSIDE) != 0; }

// Of the drawn symbol, in modules.
double DrawnWidth(const BarhatchJob& job, const MarkedSymbol& symbol) {
  return IsMatrix(job) ? symbol.columns : ModuleCount(symbol.letters, RatioOf(job));
}

// Without the quiet zone that is drawn.
double InnerWidth(const BarhatchJob& job, const MarkedSymbol& symbol) {
  return DrawnWidth(job, symbol) - (symbol.drawnQuiet.left + symbol.drawnQuiet.right);
}

int InnerRows(const MarkedSymbol& symbol) {
  return symbol.rows - symbol.drawnQuiet.below - symbol.drawnQuiet.above;
}

double ModuleSizeOf(const BarhatchJob& job, const MarkedSymbol& symbol) {
  if (job.x_dimension != 0.0) return job.x_dimension;
  const bool isInside = IsQuietInside(job);
  if (job.width != 0.0) {
    return job.width / (isInside ? DrawnWidth(job, symbol) : InnerWidth(job, symbol));
  }
  return job.height / (isInside ? symbol.rows : InnerRows(symbol));
}

}  // namespace

bool HasWideElements(const MarkedSymbol& symbol) {
  if (symbol.letters == nullptr) return false;  // of a mask
  for (const char* letter = symbol.letters; *letter != '\0'; ++letter) {
    if (*letter == kWideBar || *letter == kWideSpace) return true;
  }
  return false;
}

Extents ExtentsOf(const BarhatchJob& job, const MarkedSymbol& symbol) {
  const double module = ModuleSizeOf(job, symbol);
  const double bearer = HasBearerBars(job) ? kBearerModules * module : 0.0;
  Extents extents = {module, RatioOf(job) * module, job.height, bearer, 0.0, 0.0};
  if (!IsQuietInside(job)) {
    extents.shiftX = -symbol.drawnQuiet.left * module;
    extents.shiftY = -symbol.drawnQuiet.below * module;
  }
  return extents;
}

void DescribeExtents(const BarhatchJob& job, const MarkedSymbol& symbol, const Extents& extents,
                     BarhatchResult& result) {
  const double module = extents.moduleSize;
  const QuietSides& quiet = symbol.quiet;
  const double linearHeight = extents.bearer + job.height + extents.bearer;
  const double height = IsMatrix(job) ? InnerRows(symbol) * module : linearHeight;
  result.x_dimension = module;
  result.narrowest =
      HasWideElements(symbol) && extents.wideSize < module ? extents.wideSize : module;
  result.symbol[0] = IsQuietInside(job) ? quiet.left * module : 0.0;
  result.symbol[1] = IsQuietInside(job) ? quiet.below * module : 0.0;
  result.symbol[2] = result.symbol[0] + InnerWidth(job, symbol) * module;
  result.symbol[3] = result.symbol[1] + height;
  result.total[0] = result.symbol[0] - quiet.left * module;
  result.total[1] = result.symbol[1] - quiet.below * module;
  result.total[2] = result.symbol[2] + quiet.right * module;
  result.total[3] = result.symbol[3] + quiet.above * module;
}

bool IsMarkable(const BarhatchResult& result) {
  return result.narrowest > 0.0 && result.total[2] <= kMostExtent && result.total[3] <= kMostExtent;
}

}  // namespace barhatch
