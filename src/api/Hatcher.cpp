#include "api/Hatcher.h"

#include "api/BarcodeSettings.h"
#include "api/FillBuffer.h"
#include "mark/Mark.h"

namespace barhatch {

namespace {

constexpr double kQuietModulesOfBothEnds = 20.0;
constexpr double kQuietCellsOfBothSides = 2.0;

Filling FillingOf(const BarcodeSettings& settings) {
  return {settings.HatchingType, settings.LineGap,
          settings.InvertImage != 0 ? FilledElements::kLight : FilledElements::kDark};
}

// The coordinates go straight into the array that the host will get. Without that array no stroke
// is looked for; a gap that asks for more than the memory holds may mean hundreds of millions of
// them.
FillBufferInfo* FillOf(ElementRows& rows, const Filling& filling) {
  if (rows.HasFailed()) return nullptr;
  const DoubleCount mostDoubles = MostDoubles(rows, filling);
  if (mostDoubles <= 0) return nullptr;
  CoordinateList coordinates(RuntimeMemory(), static_cast<std::size_t>(mostDoubles));
  if (coordinates.HasFailed()) return nullptr;
  Fill(rows, filling, coordinates);
  return MakeFillBuffer(coordinates, ShapeOf(filling));
}

// The settings get the extents of every symbol that was laid out, also where nothing is filled.
FillBufferInfo* FillWithExtents(ElementRows& rows, const Filling& filling, double height,
                                double width, BarcodeSettings& settings) {
  settings.FillHeight = height;
  settings.FillWidth = width;
  FillBufferInfo* fill = FillOf(rows, filling);
  if (fill == nullptr) return nullptr;
  fill->FillHeight = height;
  fill->FillWidth = width;
  return fill;
}

}  // namespace

FillBufferInfo* Hatcher::VectorizeLinear(const char* moduleString) {
  BarcodeSettings& settings = CurrentSettings();
  const double modules = ModuleCount(moduleString, settings.PrintRatio);
  if (modules == 0.0) return nullptr;

  const Filling filling = FillingOf(settings);
  const double moduleSize = settings.width / modules;
  const ElementSizes sizes{moduleSize, settings.PrintRatio * moduleSize, settings.height};
  ElementRows rows(moduleString, sizes, filling.filled, RuntimeMemory());
  return FillWithExtents(rows, filling, settings.height,
                         rows.Right() - kQuietModulesOfBothEnds * moduleSize, settings);
}

FillBufferInfo* Hatcher::VectorizeMatrix(const TwoDStringResult& matrix) {
  if (matrix.numrows <= 0 || matrix.numcols <= 0 || matrix.data == nullptr) return nullptr;
  BarcodeSettings& settings = CurrentSettings();

  const Filling filling = FillingOf(settings);
  const double cellSize = settings.height / matrix.numrows;
  ElementRows rows({matrix.data, matrix.numrows, matrix.numcols, cellSize}, filling.filled,
                   RuntimeMemory());
  const double quietZones = kQuietCellsOfBothSides * cellSize;
  return FillWithExtents(rows, filling, settings.height - quietZones, rows.Right() - quietZones,
                         settings);
}

}  // namespace barhatch
