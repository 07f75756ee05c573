// The exports as one interface with two implementations: the library compiled for this computer,
// and the DLL on the emulated device. Results are copied and released at once, in the library's own
// way, so that they can be compared.
#ifndef BARHATCH_TESTS_DEVICE_BARCODELIBRARY_H
#define BARHATCH_TESTS_DEVICE_BARCODELIBRARY_H

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace barhatch::device {

// A fill buffer. Doubles are kept as bit patterns: the last bit counts, and so does the sign of
// zero. All values that are no number are one value here; their bits carry no meaning and differ
// between processors.
struct Fill {
  std::int32_t FillingShapeType = 0;
  std::int32_t BufferLength = 0;
  std::vector<std::uint64_t> FilledArray;
  std::uint64_t FillHeight = 0;
  std::uint64_t FillWidth = 0;

  bool operator==(const Fill& other) const;
};
std::ostream& operator<<(std::ostream& out, const Fill& fill);

std::uint64_t BitsOf(double value);

// The same for the two settings that the library computes.
void MakeNansAlike(std::vector<std::uint8_t>& settings);

// Input of GenerateLinearBarcode.
struct LinearBarcode {
  double height = 0.5;
  double width = 1.0;
  std::int32_t type = 0;
  std::u16string text;
  std::int32_t HatchingType = 0;
  double LineGap = 0.1;
  std::uint8_t InvertImage = 0;
  double PrintRatio = 3.0;
  std::uint8_t QuietZone = 0;
  std::int32_t QuietZoneSize = 0;
  std::int32_t BorderWidth = 0;
};
std::ostream& operator<<(std::ostream& out, const LinearBarcode& barcode);

// Input of GenerateDataMatrixBarcode.
struct MatrixBarcode {
  double height = 10.0;
  std::int32_t format = 0;
  std::u16string text;
  std::int32_t HatchingType = 0;
  double LineGap = 0.5;
  std::uint8_t InvertImage = 0;
  std::int32_t MatrixSize = 0;
  std::uint8_t IsExpanding = 1;
  std::uint8_t QuietZone = 0;
  std::int32_t QuietZoneSize = 0;
  std::int32_t BorderWidth = 0;
};
std::ostream& operator<<(std::ostream& out, const MatrixBarcode& barcode);

class BarcodeLibrary {
 public:
  using MaybeText = std::optional<std::string>;
  using MaybeFill = std::optional<Fill>;

  BarcodeLibrary() = default;
  virtual ~BarcodeLibrary() = default;
  BarcodeLibrary(const BarcodeLibrary&) = delete;
  BarcodeLibrary& operator=(const BarcodeLibrary&) = delete;

  virtual void InitBarcode() = 0;
  virtual void SetBarcodeType(std::int32_t type) = 0;
  virtual void SetDataString(const std::u16string& text) = 0;
  virtual void SetModuleWidth(double moduleWidth) = 0;
  virtual void SetPrintRatio(double ratio) = 0;
  virtual void SetImageInversionMode(std::uint8_t invert) = 0;
  virtual void SetHatchPattern(double lineGap, std::int32_t hatchingType) = 0;
  virtual void SetBarcodeSize(double width, double height) = 0;
  virtual void SetBarcodeHeight(std::int32_t height) = 0;
  virtual void SetCodeFormat(std::int32_t format) = 0;
  virtual void SetMatrixsize(std::int32_t size) = 0;
  virtual MaybeText GenerateBarcodeString() = 0;
  virtual MaybeFill HatchBarcodeString(const std::string& moduleString) = 0;
  virtual MaybeFill GenerateVectorizedBarcode() = 0;
  virtual MaybeFill GenerateLinearBarcode(const LinearBarcode& barcode) = 0;
  virtual MaybeFill GenerateDataMatrixBarcode(const MatrixBarcode& barcode) = 0;

  // The settings, byte by byte; their layout is the same on both sides.
  virtual std::vector<std::uint8_t> Settings() = 0;
};

}  // namespace barhatch::device

#endif
