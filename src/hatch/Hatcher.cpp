#include "hatch/Hatcher.h"

#include "api/BarcodeSettings.h"
#include "hatch/BuildRects.h"
#include "hatch/FillBuffer.h"
#include "hatch/HatchPatterns.h"
#include "hatch/LinePatterns.h"
#include "hatch/MatrixRects.h"

namespace barhatch {

namespace {

constexpr double kQuietModulesOfBothEnds = 20.0;
constexpr double kQuietCellsOfBothSides = 2.0;

FilledElements FilledBySettings(const BarcodeSettings& settings) {
  return settings.InvertImage != 0 ? FilledElements::kLight : FilledElements::kDark;
}

HatchStyle StyleOf(const BarcodeSettings& settings) {
  return {settings.HatchingType, settings.LineGap};
}

FillBufferInfo* PackFill(CoordinateList& coordinates, const BarcodeSettings& settings) {
  FillBufferInfo* fill = MakeFillBuffer(coordinates, settings.HatchingType);
  if (fill == nullptr) return nullptr;
  fill->FillHeight = settings.FillHeight;
  fill->FillWidth = settings.FillWidth;
  return fill;
}

// Both fills count first and write once: the coordinates go straight into the array that the host
// will get. Without that array no stroke is looked for; a gap that asks for more than the memory
// holds may mean hundreds of millions of them.
FillBufferInfo* FillOfList(const RectList& rects, const BarcodeSettings& settings) {
  const HatchStyle style = StyleOf(settings);
  const DoubleCount mostDoubles = MostDoubles(rects, style);
  if (mostDoubles <= 0) return nullptr;
  CoordinateList coordinates(static_cast<std::size_t>(mostDoubles));
  if (coordinates.HasFailed()) return nullptr;
  FillRects(rects, style, coordinates);
  return PackFill(coordinates, settings);
}

DoubleCount MostDoublesOfRows(MatrixRects& matrix, int rows, const HatchStyle& style) {
  if (IsCountedWithoutRects(style)) return CentreDoubles(matrix.Count());
  DoubleCount most = 0;
  for (int row = 0; row < rows && most != kUncountable; ++row) {
    most = AddCounts(most, MostDoubles(matrix.Row(row), style));
  }
  return most;
}

FillBufferInfo* FillOfRows(MatrixRects& matrix, int rows, const BarcodeSettings& settings) {
  const HatchStyle style = StyleOf(settings);
  const DoubleCount mostDoubles = MostDoublesOfRows(matrix, rows, style);
  if (mostDoubles <= 0) return nullptr;
  CoordinateList coordinates(static_cast<std::size_t>(mostDoubles));
  if (coordinates.HasFailed()) return nullptr;
  for (int row = 0; row < rows; ++row) FillRects(matrix.Row(row), style, coordinates);
  return PackFill(coordinates, settings);
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
  return rects.HasFailed() ? nullptr : FillOfList(rects, settings);
}

FillBufferInfo* Hatcher::VectorizeMatrix(const TwoDStringResult& matrix) {
  if (matrix.numrows <= 0 || matrix.numcols <= 0 || matrix.data == nullptr) return nullptr;
  BarcodeSettings& settings = CurrentSettings();
  const double cellSize = settings.height / matrix.numrows;
  MatrixRects rects(matrix, cellSize, FilledBySettings(settings));

  settings.FillHeight = settings.height - kQuietCellsOfBothSides * cellSize;
  settings.FillWidth = rects.Width() - kQuietCellsOfBothSides * cellSize;
  return rects.HasFailed() ? nullptr : FillOfRows(rects, matrix.numrows, settings);
}

}  // namespace barhatch
