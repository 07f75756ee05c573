// Any module string, grid, size, gap and pattern. Where the plain fills of the tests come to an end
// in good time, the library's have to agree with them to the last bit.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "Results.h"
#include "api/BarcodeSettings.h"
#include "barhatch.h"
#include "hatch/Hatcher.h"
#include "support/PlainHatcher.h"

namespace {

using barhatch::BarcodeSettings;
using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;

constexpr std::size_t kMostElements = 300;
constexpr std::size_t kBytesOfAnElement = 128;  // its rectangle, and strokes that come to nothing
constexpr std::size_t kWorkBytes = 4096;

void ReadSettings(FuzzInput& input, BarcodeSettings& settings) {
  settings.HatchingType = input.Byte() % 8;
  settings.InvertImage = input.Byte() % 2;
  settings.width = input.Double();
  settings.height = input.Double();
  settings.LineGap = input.Double();
  settings.PrintRatio = input.Double();
}

void DemandSound(FillBufferInfo* fill, const CallWatch& watch, std::size_t elements) {
  watch.DemandWithin(barhatch::fuzz::BytesOf(fill) + kBytesOfAnElement * elements + kWorkBytes);
  barhatch::fuzz::DemandSoundFill(fill);
}

bool IsTame(double length) { return std::isfinite(length) && length >= 0.0 && length <= 1e4; }

bool IsTame(const BarcodeSettings& settings) {
  return settings.LineGap > 0.0 && settings.PrintRatio > 0.0 && IsTame(settings.width) &&
         IsTame(settings.height) && IsTame(settings.PrintRatio) && IsTame(settings.LineGap) &&
         settings.LineGap * 1e4 >= settings.width + settings.height;
}

void DemandAsThePlainFill(const FillBufferInfo* fill, const std::string& letters,
                          const BarcodeSettings& settings) {
  const std::vector<double> plain = barhatch::test::PlainLinearFill(
      letters, {settings.width, settings.height, settings.PrintRatio, settings.LineGap,
                settings.HatchingType, settings.InvertImage != 0});
  const std::size_t doubles = fill == nullptr ? 0 : static_cast<std::size_t>(fill->BufferLength);
  Demand(doubles == plain.size(), "as many strokes as the plain fill has");
  Demand(doubles == 0 || std::memcmp(fill->FilledArray, plain.data(), 8 * doubles) == 0,
         "the strokes of the plain fill to the last bit");
}

void Linear(FuzzInput& input, const BarcodeSettings& settings) {
  std::string letters;
  while (!input.IsEmpty() && letters.size() < kMostElements) letters += "AaBbx"[input.Byte() % 5];
  if (barhatch::fuzz::IsLargeLinearFill(letters, settings)) return;
  const CallWatch watch;
  FillBufferInfo* fill = HatchBarcodeString(letters.c_str());
  DemandSound(fill, watch, letters.size());
  if (IsTame(settings)) DemandAsThePlainFill(fill, letters, settings);
  FreeBarcodeData(fill);
}

void Matrix(FuzzInput& input, const BarcodeSettings& settings) {
  const std::int32_t columns = 1 + input.Byte() % 32;
  std::string cells;
  while (!input.IsEmpty() && cells.size() < kMostElements) cells += "Aa"[input.Byte() % 2];
  const std::int32_t rows = static_cast<std::int32_t>(cells.size()) / columns;
  TwoDStringResult grid{rows, columns, cells.data()};
  DataMatrixBarcodeInfo info{};
  info.height = rows == 0 ? settings.height : settings.height / rows * 8.0;
  info.LineGap = settings.LineGap;
  info.HatchingType = settings.HatchingType;
  if (barhatch::fuzz::IsLargeMatrixFill(info)) return;
  const CallWatch watch;
  barhatch::Hatcher hatcher;
  FillBufferInfo* fill = hatcher.VectorizeMatrix(grid);
  DemandSound(fill, watch, cells.size());
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
