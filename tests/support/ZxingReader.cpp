#define ZX_USE_UTF8
#include <ZXing/ReadBarcode.h>

#include "support/ReaderBackends.h"

namespace barhatch::test {

namespace {

ZXing::BarcodeFormat ZxingFormat(Format format) {
  switch (format) {
    case Format::kCodabar:
      return ZXing::BarcodeFormat::Codabar;
    case Format::kCode39:
      return ZXing::BarcodeFormat::Code39;
    case Format::kCode93:
      return ZXing::BarcodeFormat::Code93;
    case Format::kCode128:
      return ZXing::BarcodeFormat::Code128;
    case Format::kEan13:
      return ZXing::BarcodeFormat::EAN13;
    case Format::kEan8:
      return ZXing::BarcodeFormat::EAN8;
    case Format::kUpcA:
      return ZXing::BarcodeFormat::UPCA;
    case Format::kUpcE:
      return ZXing::BarcodeFormat::UPCE;
    case Format::kInterleaved2of5:
      return ZXing::BarcodeFormat::ITF;
    case Format::kDataMatrix:
      return ZXing::BarcodeFormat::DataMatrix;
  }
  return ZXing::BarcodeFormat::None;
}

// The picture has two shades, so nothing is gained by adapting to it: the threshold is fixed and
// rotation, scaling down and the shortcuts for computer-made pictures are off.
ZXing::DecodeHints Hints(Format format, AddOn addOn) {
  return ZXing::DecodeHints()
      .setFormats(ZxingFormat(format))
      .setBinarizer(ZXing::Binarizer::FixedThreshold)
      .setTryHarder(true)
      .setTryRotate(false)
      .setTryDownscale(false)
      .setIsPure(false)
      .setReturnCodabarStartEnd(true)
      .setEanAddOnSymbol(addOn == AddOn::kRequired ? ZXing::EanAddOnSymbol::Require
                                                   : ZXing::EanAddOnSymbol::Ignore);
}

}  // namespace

std::optional<ReadResult> ReadWithZxing(const Raster& picture, Format format, AddOn addOn) {
  const ZXing::Result found = ZXing::ReadBarcode(
      {picture.Pixels(), picture.Width(), picture.Height(), ZXing::ImageFormat::Lum},
      Hints(format, addOn));
  if (!found.isValid() || found.orientation() != 0 || found.isMirrored()) return std::nullopt;

  ReadResult result;
  result.text = std::string(found.bytes().begin(), found.bytes().end());
  result.identifier = found.symbologyIdentifier();
  const ZXing::ByteArray eciBytes = found.bytesECI();
  result.eciText = std::string(eciBytes.begin(), eciBytes.end());
  if (addOn == AddOn::kRequired) {  // "9771384524017 12"
    const std::size_t blank = result.text.find(' ');
    if (blank == std::string::npos) return std::nullopt;
    result.addOn = result.text.substr(blank + 1);
    result.text.resize(blank);
  }
  return result;
}

}  // namespace barhatch::test
