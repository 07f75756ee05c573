// One text for one linear type: the module string twice, as many points as it has dark or light
// elements, and what plain readers get from it.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "LinearReadings.h"
#include "Results.h"
#include "api/BarcodeSettings.h"
#include "barhatch.h"

namespace {

using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;

constexpr std::int32_t kTypes = 23;
constexpr std::size_t kLongestText = 3200;

// The low bytes up to the first that is zero.
std::string Narrowed(const std::u16string& text) {
  std::string narrow;
  for (char16_t unit : text) {
    if ((unit & 0xFF) == 0) break;
    narrow += static_cast<char>(unit & 0xFF);
  }
  return narrow;
}

std::size_t ElementsOf(const std::string& letters, bool light) {
  return static_cast<std::size_t>(std::count_if(letters.begin(), letters.end(), [&](char letter) {
    return (letter == 'a' || letter == 'b') == light;
  }));
}

std::string Letters(std::size_t textLength) {
  const CallWatch watch;
  const std::unique_ptr<char[]> letters(GenerateBarcodeString());
  watch.DemandWithin(barhatch::fuzz::MostLetterBytes(textLength));
  barhatch::fuzz::DemandSoundLetters(letters.get());
  return letters ? letters.get() : "";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  LinearBarcodeInfo info{};
  info.type = input.Byte() % (kTypes + 1);  // and one that is none
  const std::uint8_t flags = input.Byte();
  info.QuietZone = flags & 1;
  info.InvertImage = flags & 2;
  info.width = 10.0;
  info.height = 1.0;
  info.PrintRatio = 3.0;
  info.LineGap = 0.1;
  info.HatchingType = 6;
  const std::u16string text = input.Text(kLongestText);
  info.DataString = text.c_str();

  InitBarcode();
  const CallWatch watch;
  FillBufferInfo* points = GenerateLinearBarcode(&info);
  const std::size_t strokes =
      points == nullptr ? 0 : static_cast<std::size_t>(points->BufferLength) / 2;
  watch.DemandWithin(
      barhatch::fuzz::MostLetterBytes(text.size()) +
      barhatch::fuzz::MostFillBytes(points, points == nullptr ? 40 * text.size() + 100 : strokes));
  if (points == nullptr) watch.DemandNothingKept();
  barhatch::fuzz::DemandSoundFill(points);
  FreeBarcodeData(points);

  if (text.size() >= 3120) {
    Demand(points == nullptr, "text that is too long changes nothing");
    return 0;
  }
  const std::string letters = Letters(text.size());
  Demand(letters == Letters(text.size()), "the same text gives the same string");
  Demand(strokes == ElementsOf(letters, info.InvertImage != 0), "one point an element");
  barhatch::CurrentSettings().QuietZone = 0;
  const std::string inner = Letters(text.size());
  Demand(inner.empty() == letters.empty(), "quiet zones refuse nothing");
  if (!inner.empty()) barhatch::fuzz::DemandReading(info.type, Narrowed(text), inner);
  return 0;
}
