#include "device/BarcodeLibrary.h"

#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <ostream>

#include "api/BarcodeSettings.h"

namespace barhatch::device {

std::uint64_t BitsOf(double value) {
  if (std::isnan(value)) value = std::numeric_limits<double>::quiet_NaN();
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

void MakeNansAlike(std::vector<std::uint8_t>& settings) {
  for (const std::size_t field :
       {offsetof(BarcodeSettings, FillHeight), offsetof(BarcodeSettings, FillWidth)}) {
    double value = 0.0;
    std::memcpy(&value, settings.data() + field, sizeof value);
    const std::uint64_t bits = BitsOf(value);
    std::memcpy(settings.data() + field, &bits, sizeof bits);
  }
}

bool Fill::operator==(const Fill& other) const {
  return FillingShapeType == other.FillingShapeType && BufferLength == other.BufferLength &&
         FillHeight == other.FillHeight && FillWidth == other.FillWidth &&
         FilledArray == other.FilledArray;
}

std::ostream& operator<<(std::ostream& out, const Fill& fill) {
  out << "shape " << fill.FillingShapeType << ", " << fill.BufferLength << " doubles" << std::hex
      << ", extents " << fill.FillHeight << " x " << fill.FillWidth << ":";
  for (std::size_t i = 0; i < fill.FilledArray.size() && i < 16; ++i) {
    out << ' ' << fill.FilledArray[i];
  }
  return out << std::dec;
}

namespace {

void Print(std::ostream& out, const std::u16string& text) {
  out << '"';
  for (const char16_t unit : text) {
    const bool isPlain = unit >= 32 && unit < 127;
    isPlain ? out << static_cast<char>(unit) : out << '<' << static_cast<unsigned>(unit) << '>';
  }
  out << '"';
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const LinearBarcode& barcode) {
  out << "type " << barcode.type << ' ';
  Print(out, barcode.text);
  return out << ' ' << barcode.width << " x " << barcode.height << " pattern "
             << barcode.HatchingType << " gap " << barcode.LineGap << " ratio "
             << barcode.PrintRatio << " invert " << int{barcode.InvertImage} << " quiet zone "
             << int{barcode.QuietZone};
}

std::ostream& operator<<(std::ostream& out, const MatrixBarcode& barcode) {
  out << "format " << barcode.format << ' ';
  Print(out, barcode.text);
  return out << " size " << (barcode.MatrixSize >> 8) << " x " << (barcode.MatrixSize & 0xFF)
             << (barcode.IsExpanding != 0 ? " or larger" : "") << ", height " << barcode.height
             << " pattern " << barcode.HatchingType << " gap " << barcode.LineGap << " invert "
             << int{barcode.InvertImage} << " quiet zone " << int{barcode.QuietZone};
}

}  // namespace barhatch::device
