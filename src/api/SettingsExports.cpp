// InitBarcode, the setters and GenerateBarcodeString: each writes its fields and checks nothing.
#include "api/BarcodeSettings.h"
#include "api/DataText.h"
#include "barhatch.h"
#include "symbologies/SymbologyFactory.h"

using barhatch::CurrentSettings;

extern "C" {

void InitBarcode(void) { barhatch::ResetSettings(CurrentSettings()); }

void SetBarcodeType(int32_t type) { CurrentSettings().type = type; }

void SetDataString(const BarhatchChar* text) {
  barhatch::BarcodeSettings& settings = CurrentSettings();
  if (barhatch::IsStorableText(text)) {
    barhatch::StoreText(text, settings);
  } else {
    settings.DataString[0] = u'\0';
    settings.DataStringRefused = true;
  }
}

void SetModuleWidth(double moduleWidth) { CurrentSettings().ModuleWidth = moduleWidth; }

void SetPrintRatio(double ratio) { CurrentSettings().PrintRatio = ratio; }

void SetImageInversionMode(uint8_t invert) { CurrentSettings().InvertImage = invert; }

void SetHatchPattern(double lineGap, int32_t hatchingType) {
  CurrentSettings().LineGap = lineGap;
  CurrentSettings().HatchingType = hatchingType;
}

void SetBarcodeSize(double width, double height) {
  CurrentSettings().width = width;
  CurrentSettings().height = height;
}

void SetBarcodeHeight(int32_t height) { CurrentSettings().height = height; }

void SetCodeFormat(int32_t format) { CurrentSettings().format = format; }

char* GenerateBarcodeString(void) {
  if (CurrentSettings().DataStringRefused) return nullptr;
  barhatch::Symbology* symbology = barhatch::SymbologyFactory(CurrentSettings().type);
  if (symbology == nullptr) return nullptr;
  char* moduleString = symbology->GenerateString();
  delete symbology;
  return moduleString;
}

}  // extern "C"

void SetMatrixsize(enum _matrixSize size) { CurrentSettings().MatrixSize = size; }
