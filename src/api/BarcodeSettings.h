// The parameters of the next barcode: one block for the whole process, written by the exports, read
// by the encoders and the hatcher of this room at the moment of a generating call. Nobody locks it;
// hosts serialise their calls.
//
// The block lives in zero-initialised storage: until the host calls InitBarcode every field is
// zero. It is the business of this room alone: what lies below gets values.
#ifndef BARHATCH_API_BARCODESETTINGS_H
#define BARHATCH_API_BARCODESETTINGS_H

#include <cstddef>
#include <cstdint>

namespace barhatch {

// Units of DataString with its NUL; hosts were built against this figure.
constexpr std::size_t kDataStringCapacity = 3120;

// Lengths are in the host's unit. Field names are those of the boundary records where a record
// carries the field.
struct BarcodeSettings {
  std::int32_t type;                         // BarcodeType, 0..22 make a barcode
  char16_t DataString[kDataStringCapacity];  // NUL-terminated
  bool DataStringRefused;      // the last text was too long or null: linear generators return null
  double width;                // of the whole linear symbol
  double height;               // bar height, or height of the whole matrix
  double ModuleWidth;          // read by nothing: the module size follows from width
  double PrintRatio;           // width of a wide element, in modules
  std::uint8_t InvertImage;    // non-zero: the light elements are filled; the byte is kept as given
  std::int32_t HatchingType;   // 0..6
  double LineGap;              // pitch of the strokes
  std::int32_t QuietZone;      // non-zero: encoders add their quiet zones
  std::int32_t QuietZoneSize;  // read by nothing
  std::int32_t BorderWidth;    // read by nothing
  std::int32_t MatrixSize;     // rows x 256 + columns
  std::int32_t format;         // Data Matrix code format
  std::int32_t IsExpanding;    // Data Matrix may grow beyond MatrixSize
  double FillHeight;           // extents of the last fill, written by the hatcher
  double FillWidth;
  std::int32_t ReservedInteger3;  // the reserved fields have a default and no reader
  std::int32_t ReservedInteger90;
  double ReservedDouble;
};

BarcodeSettings& CurrentSettings();

// Puts every field to its default.
void ResetSettings(BarcodeSettings& settings);

}  // namespace barhatch

#endif
