// Any module string, grid, size, gap and pattern. Where the plain fills of the tests come to an end
// in good time, the library's have to agree with them to the last bit.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "Results.h"
#include "api/BarcodeSettings.h"
#include "api/Hatcher.h"
#include "barhatch.h"
#include "support/PlainHatcher.h"

namespace {

using barhatch::BarcodeSettings;
using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;

constexpr std::size_t kMostElements = 1000;

void ReadSettings(FuzzInput& input, BarcodeSettings& settings) {
  settings.HatchingType = input.Byte() % 8;
  settings.InvertImage = input.Byte() % 2;
  settings.width = input.Double();
  settings.height = input.Double();
  settings.LineGap = input.Double();
  settings.PrintRatio = input.Double();
}

void DemandSound(FillBufferInfo* fill, const CallWatch& watch, std::size_t mostBytes) {
  watch.DemandWithin(mostBytes);
  if (fill == nullptr) watch.DemandNothingKept();
  barhatch::fuzz::DemandSoundFill(fill);
}

bool IsWithin(double value, double least, double most) { return value >= least && value <= most; }

// True where the plain fills, which check nothing, stay within their numbers and come to an end.
bool IsTame(const BarcodeSettings& settings) {
  return IsWithin(settings.width, 0.0, 1e4) && IsWithin(settings.height, 0.0, 1e4) &&
         IsWithin(settings.PrintRatio, 1e-3, 1e3) && IsWithin(settings.LineGap, 1e-6, 1e6) &&
         settings.LineGap * 1e6 >= settings.width + settings.height;
}

void DemandAsThePlainFill(const FillBufferInfo* fill, const std::vector<double>& plain) {
  const std::size_t doubles = fill == nullptr ? 0 : static_cast<std::size_t>(fill->BufferLength);
  Demand(doubles == plain.size(), "as many strokes as the plain fill has");
  Demand(doubles == 0 || std::memcmp(fill->FilledArray, plain.data(), 8 * doubles) == 0,
         "the strokes of the plain fill to the last bit");
}

std::vector<double> PlainFill(const std::string& letters, const BarcodeSettings& settings) {
  return barhatch::test::PlainLinearFill(
      letters, {settings.width, settings.height, settings.PrintRatio, settings.LineGap,
                settings.HatchingType, settings.InvertImage != 0});
}

// Row by row from the bottom, in square cells.
std::vector<double> PlainFill(const TwoDStringResult& grid, const BarcodeSettings& settings) {
  const double cell = settings.height / grid.numrows;
  std::vector<double> all;
  for (int row = 0; row < grid.numrows; ++row) {
    const char* letters = grid.data + (grid.numrows - 1 - row) * grid.numcols;
    std::vector<barhatch::test::PlainRect> rects =
        barhatch::test::PlainRects(std::string(letters, static_cast<std::size_t>(grid.numcols)),
                                   cell, 3.0, cell, settings.InvertImage != 0);
    for (barhatch::test::PlainRect& rect : rects) {
      rect.y0 += row * cell;
      rect.y1 += row * cell;
    }
    const std::vector<double> strokes =
        barhatch::test::PlainPattern(rects, settings.HatchingType, settings.LineGap);
    all.insert(all.end(), strokes.begin(), strokes.end());
  }
  return all;
}

void Linear(FuzzInput& input, const BarcodeSettings& settings) {
  std::string letters;
  while (!input.IsEmpty() && letters.size() < kMostElements) letters += "AaBbx"[input.Byte() % 5];
  if (barhatch::fuzz::IsLargeLinearFill(letters, settings)) return;
  const CallWatch watch;
  FillBufferInfo* fill = HatchBarcodeString(letters.c_str());
  DemandSound(fill, watch, barhatch::fuzz::MostFillBytes(fill, letters.size()));
  if (letters.find_first_of("AaBb") == std::string::npos) {
    Demand(fill == nullptr, "nothing to fill");
  } else if (IsTame(settings)) {
    DemandAsThePlainFill(fill, PlainFill(letters, settings));
  }
  FreeBarcodeData(fill);
}

void Matrix(FuzzInput& input, const BarcodeSettings& settings) {
  const std::int32_t columns = 1 + input.Byte() % 32;
  std::string cells;
  while (!input.IsEmpty() && cells.size() < kMostElements) cells += "Aa"[input.Byte() % 2];
  const std::int32_t rows = static_cast<std::int32_t>(cells.size()) / columns;
  TwoDStringResult grid{rows, columns, cells.data()};
  if (rows != 0 && barhatch::fuzz::IsLargeMatrixFill(rows, columns, settings)) return;
  const CallWatch watch;
  barhatch::Hatcher hatcher;
  FillBufferInfo* fill = hatcher.VectorizeMatrix(grid);
  DemandSound(fill, watch, barhatch::fuzz::MostMatrixBytes(fill, cells.size()));
  if (rows == 0) {
    Demand(fill == nullptr, "no rows, no fill");
  } else if (IsTame(settings)) {
    DemandAsThePlainFill(fill, PlainFill(grid, settings));
  }
  FreeBarcodeData(fill);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  InitBarcode();
  const bool isMatrix = input.Byte() % 2 == 1;
  BarcodeSettings& settings = barhatch::CurrentSettings();
  ReadSettings(input, settings);
  if (isMatrix) {
    Matrix(input, settings);
  } else {
    Linear(input, settings);
  }
  return 0;
}
