#include "Results.h"

#include <cmath>
#include <cstring>

#include "CallWatch.h"

namespace barhatch::fuzz {

namespace {

constexpr double kManyStrokes = 2e5;
constexpr double kMostGaps = 8589934592.0;  // 2^33: more than 32 bits of gaps in one element
constexpr int kSpiral = 5;
constexpr int kCentres = 6;

bool IsLinesUpwards(std::int32_t hatchingType) { return hatchingType == 1 || hatchingType == 3; }

// Gaps across one element of that size for the strokes of a pattern.
double GapsAcross(double width, double height, double gap, std::int32_t hatchingType) {
  const double vertical = std::fabs(width / gap);
  const double horizontal = std::fabs(height / gap);
  if (hatchingType == kSpiral) return 2.0 * std::fmin(vertical, horizontal) + 3.0;
  return IsLinesUpwards(hatchingType) ? vertical : horizontal;
}

bool IsLarge(double gapsAcross, double elements) {
  return gapsAcross * elements > kManyStrokes && gapsAcross <= kMostGaps;
}

}  // namespace

void DemandSoundFill(const FillBufferInfo* fill) {
  if (fill == nullptr) return;
  Demand(fill->FillingShapeType == 0 || fill->FillingShapeType == 2, "segments or points");
  Demand(fill->BufferLength > 0, "a fill is not empty");
  Demand(fill->BufferLength % (fill->FillingShapeType == 0 ? 4 : 2) == 0, "whole strokes");
  Demand(fill->FilledArray != nullptr, "a fill has its array");
  volatile double last = fill->FilledArray[fill->BufferLength - 1];
  (void)last;
}

void DemandSoundLetters(const char* letters) {
  if (letters == nullptr) return;
  Demand(letters[0] != '\0', "a module string is not empty");
  Demand(std::strspn(letters, "AaBb") == std::strlen(letters), "the four letters alone");
}

std::size_t BytesOf(const FillBufferInfo* fill) {
  return fill == nullptr ? 0
                         : sizeof(FillBufferInfo) +
                               sizeof(double) * static_cast<std::size_t>(fill->BufferLength);
}

bool IsLargeLinearFill(const std::string& letters, const BarcodeSettings& settings) {
  if (settings.HatchingType == kCentres) return false;
  double modules = 0.0;
  for (char letter : letters) {
    if (letter == 'A' || letter == 'a') modules += 1.0;
    if (letter == 'B' || letter == 'b') modules += settings.PrintRatio;
  }
  const double narrow = settings.width / modules;
  const double elements = static_cast<double>(letters.size());
  for (const double width : {narrow, narrow * settings.PrintRatio}) {
    if (IsLarge(GapsAcross(width, settings.height, settings.LineGap, settings.HatchingType),
                elements)) {
      return true;
    }
  }
  return false;
}

bool IsLargeMatrixFill(const DataMatrixBarcodeInfo& info) {
  if (info.HatchingType == kCentres) return false;
  // From the 8 rows of the smallest rectangle to the 146 of the largest square with its quiet zone.
  // Strokes upwards add up to at most half of the modules' widths in each row.
  constexpr double kMostRows = 146.0;
  constexpr double kFewestRows = 8.0;
  const double largest = std::fabs(info.height / kFewestRows / info.LineGap);
  const double smallest = std::fabs(info.height / kMostRows / info.LineGap);
  return largest * kMostRows * kMostRows > kManyStrokes && smallest <= kMostGaps;
}

}  // namespace barhatch::fuzz
