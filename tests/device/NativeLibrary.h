// The library as compiled for this computer. An object begins with the library as loaded, every
// setting zero, and leaves it with the defaults.
#ifndef BARHATCH_TESTS_DEVICE_NATIVELIBRARY_H
#define BARHATCH_TESTS_DEVICE_NATIVELIBRARY_H

#include <string>
#include <vector>

#include "device/BarcodeLibrary.h"

namespace barhatch::device {

class NativeLibrary : public BarcodeLibrary {
 public:
  NativeLibrary();
  ~NativeLibrary() override;
  void InitBarcode() override;
  void SetBarcodeType(std::int32_t type) override;
  void SetDataString(const std::u16string& text) override;
  void SetModuleWidth(double moduleWidth) override;
  void SetPrintRatio(double ratio) override;
  void SetImageInversionMode(std::uint8_t invert) override;
  void SetHatchPattern(double lineGap, std::int32_t hatchingType) override;
  void SetBarcodeSize(double width, double height) override;
  void SetBarcodeHeight(std::int32_t height) override;
  void SetCodeFormat(std::int32_t format) override;
  void SetMatrixsize(std::int32_t size) override;
  MaybeText GenerateBarcodeString() override;
  MaybeFill HatchBarcodeString(const std::string& moduleString) override;
  MaybeFill GenerateVectorizedBarcode() override;
  MaybeFill GenerateLinearBarcode(const LinearBarcode& barcode) override;
  MaybeFill GenerateDataMatrixBarcode(const MatrixBarcode& barcode) override;
  std::vector<std::uint8_t> Settings() override;
};

}  // namespace barhatch::device

#endif
