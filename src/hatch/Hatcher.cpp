#include "hatch/Hatcher.h"

#include "api/BarcodeSettings.h"
#include "hatch/BuildRects.h"
#include "hatch/FillBuffer.h"
#include "hatch/HatchPatterns.h"

namespace barhatch {

namespace {

constexpr double kQuietModulesOfBothEnds = 20.0;

FilledElements FilledBySettings(const BarcodeSettings& settings) {
  return settings.InvertImage != 0 ? FilledElements::kLight : FilledElements::kDark;
}

// Counts first and writes once: the coordinates are written straight into the array that the host
// will get.
FillBufferInfo* FillOf(const RectList& rects, const BarcodeSettings& settings) {
  const HatchStyle style{settings.HatchingType, settings.LineGap};
  const DoubleCount mostDoubles = MostDoubles(rects, style);
  if (mostDoubles <= 0) return nullptr;
  CoordinateList coordinates(static_cast<std::size_t>(mostDoubles));
  FillRects(rects, style, coordinates);
  FillBufferInfo* fill = MakeFillBuffer(coordinates, settings.HatchingType);
  if (fill == nullptr) return nullptr;
  fill->FillHeight = settings.FillHeight;
  fill->FillWidth = settings.FillWidth;
  return fill;
}

}  // namespace

FillBufferInfo* Hatcher::VectorizeLinear(const char* moduleString) {
  BarcodeSettings& settings = CurrentSettings();
  const double modules = ModuleCount(moduleString, settings.PrintRatio);
  if (modules == 0.0) return nullptr;

  const double moduleSize = settings.width / modules;
  const ElementSizes sizes{moduleSize, settings.PrintRatio * moduleSize, settings.height};
  const FilledElements filled = FilledBySettings(settings);
  RectList rects(CountFilled(moduleString, filled));
  const double end = BuildRects(moduleString, sizes, filled, rects);

  settings.FillHeight = settings.height;
  settings.FillWidth = end - kQuietModulesOfBothEnds * moduleSize;
  return rects.HasFailed() ? nullptr : FillOf(rects, settings);
}

}  // namespace barhatch
