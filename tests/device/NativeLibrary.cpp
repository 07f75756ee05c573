#include "device/NativeLibrary.h"

#include <cstring>
#include <memory>
#include <type_traits>

#include "api/BarcodeSettings.h"
#include "barhatch.h"

namespace barhatch::device {

namespace {

static_assert(sizeof(BarhatchChar) == sizeof(char16_t));

const BarhatchChar* Pointer(const std::u16string& text) {
  return reinterpret_cast<const BarhatchChar*>(text.c_str());
}

BarcodeLibrary::MaybeFill Take(FillBufferInfo* record) {
  if (record == nullptr) return std::nullopt;
  Fill fill;
  fill.FillingShapeType = record->FillingShapeType;
  fill.BufferLength = record->BufferLength;
  for (std::int32_t i = 0; i < record->BufferLength; ++i) {
    fill.FilledArray.push_back(BitsOf(record->FilledArray[i]));
  }
  fill.FillHeight = BitsOf(record->FillHeight);
  fill.FillWidth = BitsOf(record->FillWidth);
  FreeBarcodeData(record);
  return fill;
}

}  // namespace

NativeLibrary::NativeLibrary() {
  static_assert(std::is_trivially_copyable_v<BarcodeSettings>);
  std::memset(static_cast<void*>(&CurrentSettings()), 0, sizeof(BarcodeSettings));
}
NativeLibrary::~NativeLibrary() { ::InitBarcode(); }

void NativeLibrary::InitBarcode() { ::InitBarcode(); }
void NativeLibrary::SetBarcodeType(std::int32_t type) { ::SetBarcodeType(type); }
void NativeLibrary::SetDataString(const std::u16string& text) { ::SetDataString(Pointer(text)); }
void NativeLibrary::SetModuleWidth(double moduleWidth) { ::SetModuleWidth(moduleWidth); }
void NativeLibrary::SetPrintRatio(double ratio) { ::SetPrintRatio(ratio); }
void NativeLibrary::SetImageInversionMode(std::uint8_t invert) { ::SetImageInversionMode(invert); }
void NativeLibrary::SetHatchPattern(double lineGap, std::int32_t hatchingType) {
  ::SetHatchPattern(lineGap, hatchingType);
}
void NativeLibrary::SetBarcodeSize(double width, double height) { ::SetBarcodeSize(width, height); }
void NativeLibrary::SetBarcodeHeight(std::int32_t height) { ::SetBarcodeHeight(height); }
void NativeLibrary::SetCodeFormat(std::int32_t format) { ::SetCodeFormat(format); }
void NativeLibrary::SetMatrixsize(std::int32_t size) {
  ::SetMatrixsize(static_cast<_matrixSize>(size));
}

BarcodeLibrary::MaybeText NativeLibrary::GenerateBarcodeString() {
  const std::unique_ptr<char[]> letters(::GenerateBarcodeString());
  return letters ? MaybeText(letters.get()) : std::nullopt;
}

BarcodeLibrary::MaybeFill NativeLibrary::HatchBarcodeString(const std::string& moduleString) {
  return Take(::HatchBarcodeString(moduleString.c_str()));
}

BarcodeLibrary::MaybeFill NativeLibrary::GenerateVectorizedBarcode() {
  return Take(::GenerateVectorizedBarcode());
}

BarcodeLibrary::MaybeFill NativeLibrary::GenerateLinearBarcode(const LinearBarcode& barcode) {
  LinearBarcodeInfo info{};
  info.height = barcode.height;
  info.width = barcode.width;
  info.type = barcode.type;
  info.DataString = Pointer(barcode.text);
  info.HatchingType = barcode.HatchingType;
  info.LineGap = barcode.LineGap;
  info.InvertImage = barcode.InvertImage;
  info.PrintRatio = barcode.PrintRatio;
  info.QuietZone = barcode.QuietZone;
  info.QuietZoneSize = barcode.QuietZoneSize;
  info.BorderWidth = barcode.BorderWidth;
  return Take(::GenerateLinearBarcode(&info));
}

BarcodeLibrary::MaybeFill NativeLibrary::GenerateDataMatrixBarcode(const MatrixBarcode& barcode) {
  DataMatrixBarcodeInfo info{};
  info.height = barcode.height;
  info.format = barcode.format;
  info.DataString = Pointer(barcode.text);
  info.HatchingType = barcode.HatchingType;
  info.LineGap = barcode.LineGap;
  info.InvertImage = barcode.InvertImage;
  info.MatrixSize = barcode.MatrixSize;
  info.IsExpanding = barcode.IsExpanding;
  info.QuietZone = barcode.QuietZone;
  info.QuietZoneSize = barcode.QuietZoneSize;
  info.BorderWidth = barcode.BorderWidth;
  return Take(::GenerateDataMatrixBarcode(&info));
}

std::vector<std::uint8_t> NativeLibrary::Settings() {
  std::vector<std::uint8_t> bytes(sizeof(BarcodeSettings));
  std::memcpy(bytes.data(), &CurrentSettings(), bytes.size());
  MakeNansAlike(bytes);
  return bytes;
}

}  // namespace barhatch::device
