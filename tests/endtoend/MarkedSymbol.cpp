#include "MarkedSymbol.h"

#include "barhatch.h"
#include "support/Fills.h"
#include "support/OwnedString.h"
#include "support/Text16.h"

namespace barhatch::test {

namespace {

constexpr double kHeight = 12.0;
constexpr double kGap = 0.1;
constexpr int kWideModules = 3;
constexpr int kSpiral = 5;

int ModulesOf(const std::string& letters) {
  int modules = 0;
  for (char letter : letters) modules += letter == 'B' || letter == 'b' ? kWideModules : 1;
  return modules;
}

LinearBarcodeInfo RecordOf(const MarkRequest& request, const Text16& text) {
  LinearBarcodeInfo info{};
  info.height = kHeight;
  info.width = 1.0;
  info.type = request.type;
  info.DataString = text.c_str();
  info.HatchingType = request.pattern;
  info.LineGap = kGap;
  info.InvertImage = request.image == Image::kInverted ? 1 : 0;
  info.PrintRatio = kWideModules;
  info.QuietZone = request.image == Image::kInverted || text.size() % 2 == 0 ? 1 : 0;
  return info;
}

MarkParameters ParametersOf(const MarkRequest& request, int modules) {
  MarkParameters parameters;
  parameters.width = modules;
  parameters.height = kHeight;
  parameters.margin = 12.0;
  parameters.pixelsPerUnit = 4.0;
  parameters.beamWidth = kGap;
  parameters.ends = request.pattern == kSpiral ? StrokeEnds::kProjecting : StrokeEnds::kFlush;
  parameters.colour =
      request.image == Image::kInverted ? MarkColour::kLightOnDark : MarkColour::kDarkOnLight;
  return parameters;
}

}  // namespace

MarkedSymbol MarkSymbol(const MarkRequest& request) {
  const Text16 text = Widen(request.text);
  LinearBarcodeInfo info = RecordOf(request, text);
  InitBarcode();
  FreeBarcodeData(GenerateLinearBarcode(&info));  // puts the record in force, its quiet zone too
  MarkedSymbol symbol;
  symbol.letters = Take(GenerateBarcodeString()).value_or("");
  symbol.modules = ModulesOf(symbol.letters);
  info.width = symbol.modules;
  const OwnedFill fill(GenerateLinearBarcode(&info));
  InitBarcode();
  if (!fill) {
    symbol.refused = true;
    return symbol;
  }
  symbol.parameters = ParametersOf(request, symbol.modules);
  symbol.picture = MarkStrokes(*fill, symbol.parameters);
  return symbol;
}

std::string LettersOfPicture(const MarkedSymbol& symbol, bool twoWidths) {
  const std::string modules = SampleModules(symbol.picture, symbol.parameters, 1, symbol.modules);
  if (!twoWidths) return modules;
  std::string letters;
  for (std::size_t i = 0; i < modules.size();) {
    std::size_t end = i;
    while (end < modules.size() && modules[end] == modules[i]) ++end;
    const bool wide = end - i == kWideModules;
    letters +=
        wide ? std::string(1, static_cast<char>(modules[i] + 1)) : std::string(end - i, modules[i]);
    i = end;
  }
  return letters;
}

}  // namespace barhatch::test
