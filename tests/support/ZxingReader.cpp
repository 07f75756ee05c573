#define ZX_USE_UTF8
#include <ZXing/ReadBarcode.h>

#include "support/ReaderBackends.h"

namespace barhatch::test {

namespace {

ZXing::BarcodeFormat Format(Symbology symbology) {
  switch (symbology) {
    case Symbology::kCodabar:
      return ZXing::BarcodeFormat::Codabar;
    case Symbology::kCode39:
      return ZXing::BarcodeFormat::Code39;
    case Symbology::kCode93:
      return ZXing::BarcodeFormat::Code93;
    case Symbology::kCode128:
      return ZXing::BarcodeFormat::Code128;
    case Symbology::kEan13:
      return ZXing::BarcodeFormat::EAN13;
    case Symbology::kEan8:
      return ZXing::BarcodeFormat::EAN8;
    case Symbology::kUpcA:
      return ZXing::BarcodeFormat::UPCA;
    case Symbology::kUpcE:
      return ZXing::BarcodeFormat::UPCE;
    case Symbology::kInterleaved2of5:
      return ZXing::BarcodeFormat::ITF;
    case Symbology::kDataMatrix:
      return ZXing::BarcodeFormat::DataMatrix;
  }
  return ZXing::BarcodeFormat::None;
}

// The picture has two shades, so nothing is gained by adapting to it: the threshold is fixed and
// rotation, scaling down and the shortcuts for computer-made pictures are off.
ZXing::DecodeHints Hints(Symbology symbology, AddOn addOn) {
  return ZXing::DecodeHints()
      .setFormats(Format(symbology))
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

std::optional<ReadResult> ReadWithZxing(const Raster& picture, Symbology symbology, AddOn addOn) {
  const ZXing::Result found = ZXing::ReadBarcode(
      {picture.Pixels(), picture.Width(), picture.Height(), ZXing::ImageFormat::Lum},
      Hints(symbology, addOn));
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
