// A Data Matrix as a fill buffer.
#include "api/ApiTrace.h"
#include "api/BarcodeSettings.h"
#include "api/DataMatrixEncoder.h"
#include "api/DataText.h"
#include "api/Hatcher.h"
#include "barhatch.h"

namespace {

bool IsDataMatrixText(const BarhatchChar* text) {
  return text != nullptr &&
         barhatch::TextLength(text, barhatch::kMaxDataMatrixText) <= barhatch::kMaxDataMatrixText;
}

void CopyRecord(const DataMatrixBarcodeInfo& info, barhatch::BarcodeSettings& settings) {
  settings.height = info.height;
  settings.format = info.format;
  settings.MatrixSize = info.MatrixSize;
  barhatch::StoreText(info.DataString, settings);
  settings.HatchingType = info.HatchingType;
  settings.LineGap = info.LineGap;
  settings.InvertImage = info.InvertImage;
  settings.IsExpanding = info.IsExpanding;
  settings.QuietZone = info.QuietZone;
  settings.QuietZoneSize = info.QuietZoneSize;
  settings.BorderWidth = info.BorderWidth;
}

}  // namespace

extern "C" FillBufferInfo* GenerateDataMatrixBarcode(const DataMatrixBarcodeInfo* info) {
  barhatch::TraceGenerateDataMatrixBarcode(info);
  if (info == nullptr || !IsDataMatrixText(info->DataString)) return nullptr;
  CopyRecord(*info, barhatch::CurrentSettings());

  barhatch::DataMatrixEncoder encoder;
  TwoDStringResult* matrix = encoder.EncodeDataMatrix();
  if (matrix == nullptr) return nullptr;
  FillBufferInfo* fill = nullptr;
  if (matrix->data != nullptr) {
    barhatch::Hatcher hatcher;
    fill = hatcher.VectorizeMatrix(*matrix);
  }
  Free2DBarcodeStringResult(matrix);
  return fill;
}
