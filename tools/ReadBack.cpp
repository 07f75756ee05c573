#include "ReadBack.h"

#ifdef BARHATCH_HAVE_ZXING
#define ZX_USE_UTF8 1
#include <ZXing/ReadBarcode.h>
#endif

namespace preview {

#ifdef BARHATCH_HAVE_ZXING

bool CanReadBack() { return true; }

std::optional<Reading> ReadBack(const Picture& picture, bool isFullAscii) {
  const ZXing::ImageView view(picture.pixels.data(), static_cast<int>(picture.width),
                              static_cast<int>(picture.height), ZXing::ImageFormat::Lum);
  ZXing::DecodeHints hints;
  hints.setEanAddOnSymbol(ZXing::EanAddOnSymbol::Read);
  hints.setTryCode39ExtendedMode(isFullAscii);
  const ZXing::Result result = ZXing::ReadBarcode(view, hints);
  if (!result.isValid()) return std::nullopt;
  const std::string bytes(result.bytes().begin(), result.bytes().end());
  return Reading{"zxing-cpp", ZXing::ToString(result.format()), result.text(), bytes};
}

#else

bool CanReadBack() { return false; }

std::optional<Reading> ReadBack(const Picture&, bool) { return std::nullopt; }

#endif

}  // namespace preview
