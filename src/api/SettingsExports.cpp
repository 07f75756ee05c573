// InitBarcode, the setters and GenerateBarcodeString: each traces itself (InitBarcode does not),
// writes its fields and checks nothing.
#include "api/ApiTrace.h"
#include "api/BarcodeSettings.h"
#include "api/DataText.h"
#include "api/SymbologyFactory.h"
#include "barhatch.h"

using barhatch::CurrentSettings;

extern "C" {

void InitBarcode(void) { barhatch::ResetSettings(CurrentSettings()); }

void SetBarcodeType(int32_t type) {
  barhatch::TraceSetBarcodeType(type);
  CurrentSettings().type = type;
}

void SetDataString(const BarhatchChar* text) {
  barhatch::TraceSetDataString(text);
  barhatch::BarcodeSettings& settings = CurrentSettings();
  if (barhatch::IsStorableText(text)) {
    barhatch::StoreText(text, settings);
  } else {
    settings.DataString[0] = u'\0';
    settings.DataStringRefused = true;
  }
}

void SetModuleWidth(double moduleWidth) {
  barhatch::TraceSetModuleWidth(moduleWidth);
  CurrentSettings().ModuleWidth = moduleWidth;
}

void SetPrintRatio(double ratio) {
  barhatch::TraceSetPrintRatio(ratio);
  CurrentSettings().PrintRatio = ratio;
}

void SetImageInversionMode(uint8_t invert) {
  barhatch::TraceSetImageInversionMode(invert);
  CurrentSettings().InvertImage = invert;
}

void SetHatchPattern(double lineGap, int32_t hatchingType) {
  barhatch::TraceSetHatchPattern(lineGap, hatchingType);
  CurrentSettings().LineGap = lineGap;
  CurrentSettings().HatchingType = hatchingType;
}

void SetBarcodeSize(double width, double height) {
  barhatch::TraceSetBarcodeSize(width, height);
  CurrentSettings().width = width;
  CurrentSettings().height = height;
}

void SetBarcodeHeight(int32_t height) {
  barhatch::TraceSetBarcodeHeight(height);
  CurrentSettings().height = height;
}

void SetCodeFormat(int32_t format) {
  barhatch::TraceSetCodeFormat(format);
  CurrentSettings().format = format;
}

char* GenerateBarcodeString(void) {
  barhatch::TraceGenerateBarcodeString();
  if (CurrentSettings().DataStringRefused) return nullptr;
  barhatch::Symbology* symbology = barhatch::SymbologyFactory(CurrentSettings().type);
  if (symbology == nullptr) return nullptr;
  char* moduleString = symbology->GenerateString();
  delete symbology;
  return moduleString;
}

}  // extern "C"

void SetMatrixsize(enum _matrixSize size) {
  barhatch::TraceSetMatrixsize(size);
  CurrentSettings().MatrixSize = size;
}
