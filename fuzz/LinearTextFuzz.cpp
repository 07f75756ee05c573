// One text for one linear type: the module string twice, and as many points as it has dark or light
// elements.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "Results.h"
#include "barhatch.h"

namespace {

using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;

constexpr std::int32_t kTypes = 23;
constexpr std::size_t kLongestText = 3200;

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
  return 0;
}
