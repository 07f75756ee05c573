// A linear barcode as a fill buffer: from a module string, from the settings, from one record.
#include "api/ApiTrace.h"
#include "api/BarcodeSettings.h"
#include "api/DataText.h"
#include "api/Hatcher.h"
#include "api/Ownership.h"
#include "barhatch.h"

namespace {

constexpr int32_t kTestLength = 12345;

void CopyRecord(const LinearBarcodeInfo& info, barhatch::BarcodeSettings& settings) {
  settings.height = info.height;
  settings.width = info.width;
  settings.type = info.type;
  barhatch::StoreText(info.DataString, settings);
  settings.HatchingType = info.HatchingType;
  settings.LineGap = info.LineGap;
  settings.InvertImage = info.InvertImage;
  settings.PrintRatio = info.PrintRatio;
  settings.QuietZone = info.QuietZone;
  settings.QuietZoneSize = info.QuietZoneSize;
  settings.BorderWidth = info.BorderWidth;
}

}  // namespace

extern "C" {

FillBufferInfo* HatchBarcodeString(const char* moduleString) {
  barhatch::TraceHatchBarcodeString(moduleString);
  if (moduleString == nullptr) return nullptr;
  barhatch::Hatcher hatcher;
  return hatcher.VectorizeLinear(moduleString);
}

FillBufferInfo* GenerateVectorizedBarcode(void) {
  barhatch::TraceGenerateVectorizedBarcode();
  char* moduleString = GenerateBarcodeString();
  if (moduleString == nullptr) return nullptr;
  FillBufferInfo* fill = HatchBarcodeString(moduleString);
  barhatch::ReleaseModuleString(moduleString);
  return fill;
}

FillBufferInfo* GenerateLinearBarcode(const LinearBarcodeInfo* info) {
  barhatch::TraceGenerateLinearBarcode(info);
  if (info == nullptr || !barhatch::IsStorableText(info->DataString)) return nullptr;
  CopyRecord(*info, barhatch::CurrentSettings());
  return GenerateVectorizedBarcode();
}

FillBufferInfo* TestStruct(void) {
  FillBufferInfo* record = barhatch::NewFillBuffer();
  if (record != nullptr) record->BufferLength = kTestLength;
  return record;
}

}  // extern "C"
