#include "Results.h"

#include <cmath>
#include <cstring>

#include "CallWatch.h"

namespace barhatch::fuzz {

namespace {

constexpr double kManyStrokes = 1e5;
constexpr double kMostGaps = 8589934592.0;  // 2^33: more than 32 bits of gaps in one element
constexpr std::int32_t kSpiral = 5;

constexpr std::size_t kBytesOfAnElement = 32 + 2 * 32;
constexpr std::size_t kWorkBytes = 8192;
constexpr std::size_t kBytesOfTwoRows = 2 * 32 * 146;
constexpr std::size_t kUsualLetters = 65536;
constexpr std::size_t kMostLettersOfAUnit = 40;

bool HasStrokes(std::int32_t hatchingType) {
  return (hatchingType >= 0 && hatchingType <= 3) || hatchingType == kSpiral;
}

// Strokes in one element of that size.
double StrokesOf(double width, double height, const BarcodeSettings& settings) {
  const double upwards = std::fabs(width / settings.LineGap);
  const double across = std::fabs(height / settings.LineGap);
  if (settings.HatchingType == kSpiral) return 2.0 * std::fmin(upwards, across) + 3.0;
  return settings.HatchingType % 2 == 1 ? upwards : across;
}

bool IsLarge(double width, double height, double elements, const BarcodeSettings& settings) {
  if (!HasStrokes(settings.HatchingType) || !(settings.LineGap > 0.0)) return false;
  const double strokes = StrokesOf(width, height, settings);
  return strokes * elements > kManyStrokes && strokes <= kMostGaps;
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

std::size_t MostFillBytes(const FillBufferInfo* fill, std::size_t elements) {
  const std::size_t doubles = fill == nullptr ? 0 : static_cast<std::size_t>(fill->BufferLength);
  return sizeof(double) * doubles + kBytesOfAnElement * elements + kWorkBytes;
}

std::size_t MostMatrixBytes(const FillBufferInfo* fill, std::size_t modules) {
  return MostFillBytes(fill, modules) + kBytesOfTwoRows;
}

std::size_t MostLetterBytes(std::size_t units) {
  return kUsualLetters + kMostLettersOfAUnit * units;
}

bool IsLargeLinearFill(const std::string& letters, const BarcodeSettings& settings) {
  double modules = 0.0;
  for (char letter : letters) {
    if (letter == 'A' || letter == 'a') modules += 1.0;
    if (letter == 'B' || letter == 'b') modules += settings.PrintRatio;
  }
  const double narrow = settings.width / modules;
  const double wide = narrow * settings.PrintRatio;
  const double elements = static_cast<double>(letters.size());
  return IsLarge(narrow, settings.height, elements, settings) ||
         IsLarge(wide, settings.height, elements, settings);
}

bool IsLargeMatrixFill(std::int32_t rows, std::int32_t columns, const BarcodeSettings& settings) {
  const double cell = settings.height / rows;
  return IsLarge(cell, cell, static_cast<double>(rows) * columns, settings);
}

}  // namespace barhatch::fuzz
