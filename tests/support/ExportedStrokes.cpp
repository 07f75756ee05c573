#include "support/ExportedStrokes.h"

#include "barhatch_mark.h"
#include "support/Text16.h"

namespace barhatch::test {

namespace {

LinearBarcodeInfo LinearRecord(const MarkNumbers& numbers, const Text16& text) {
  LinearBarcodeInfo info{};
  info.height = numbers.height;
  info.width = numbers.width;
  info.type = numbers.symbology;
  info.DataString = text.c_str();
  info.HatchingType = numbers.pattern;
  info.LineGap = numbers.gap;
  info.InvertImage = numbers.isInverted ? 1 : 0;
  info.PrintRatio = numbers.ratio;
  info.QuietZone = numbers.hasQuietZone ? 1 : 0;
  return info;
}

DataMatrixBarcodeInfo MatrixRecord(const MarkNumbers& numbers, const Text16& text) {
  DataMatrixBarcodeInfo info{};
  info.height = numbers.height;
  info.format = numbers.format;
  info.DataString = text.c_str();
  info.HatchingType = numbers.pattern;
  info.LineGap = numbers.gap;
  info.InvertImage = numbers.isInverted ? 1 : 0;
  info.MatrixSize = numbers.rows * 256 + numbers.columns;
  info.IsExpanding = static_cast<std::uint8_t>(numbers.isExpanding);
  info.QuietZone = numbers.hasQuietZone ? 1 : 0;
  return info;
}

FillBufferInfo* Generate(const MarkNumbers& numbers) {
  const Text16 text(numbers.text.begin(), numbers.text.end());
  if (numbers.symbology == BARHATCH_DATA_MATRIX) {
    const DataMatrixBarcodeInfo info = MatrixRecord(numbers, text);
    return GenerateDataMatrixBarcode(&info);
  }
  const LinearBarcodeInfo info = LinearRecord(numbers, text);
  return GenerateLinearBarcode(&info);
}

}  // namespace

Strokes StrokesByExports(const MarkNumbers& numbers) {
  Strokes strokes;
  FillBufferInfo* const fill = Generate(numbers);
  if (fill == nullptr) return strokes;
  strokes.isRefused = false;
  strokes.kind = fill->FillingShapeType;
  strokes.coordinates.assign(fill->FilledArray, fill->FilledArray + fill->BufferLength);
  FreeBarcodeData(fill);
  return strokes;
}

}  // namespace barhatch::test
