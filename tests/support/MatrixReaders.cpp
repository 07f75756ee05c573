#include "support/MatrixReaders.h"

#include <ZXing/DecodeHints.h>
#include <ZXing/ReadBarcode.h>
#include <dmtx.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace barhatch::test {

namespace {

constexpr int kPixelsPerModule = 5;
constexpr int kMarginModules = 2;

// Grey image, dark 0 and light 255, with a margin around the grid.
struct Image {
  int width;
  int height;
  std::vector<unsigned char> pixels;
};

Image Picture(const std::string& letters, int columns) {
  const int rows = static_cast<int>(letters.size()) / columns;
  Image image{(columns + 2 * kMarginModules) * kPixelsPerModule,
              (rows + 2 * kMarginModules) * kPixelsPerModule,
              {}};
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      const int row = y / kPixelsPerModule - kMarginModules;
      const int column = x / kPixelsPerModule - kMarginModules;
      const bool isInside = row >= 0 && row < rows && column >= 0 && column < columns;
      const bool isDark =
          isInside && letters[static_cast<std::size_t>(row * columns + column)] == 'A';
      image.pixels.push_back(isDark ? 0 : 255);
    }
  }
  return image;
}

template <auto destroy>
struct Destroyer {
  template <typename T>
  void operator()(T* object) const {
    destroy(&object);
  }
};

}  // namespace

std::string ReadWithZxing(const std::string& letters, int columns) {
  const Image image = Picture(letters, columns);
  const ZXing::ImageView view(image.pixels.data(), image.width, image.height,
                              ZXing::ImageFormat::Lum);
  const auto hints =
      ZXing::DecodeHints().setFormats(ZXing::BarcodeFormat::DataMatrix).setIsPure(true);
  const ZXing::Result result = ZXing::ReadBarcode(view, hints);
  if (!result.isValid()) return {};
  return std::string(result.bytes().begin(), result.bytes().end());
}

std::string ReadWithLibdmtx(const std::string& letters, int columns) {
  Image image = Picture(letters, columns);
  const std::unique_ptr<DmtxImage, Destroyer<dmtxImageDestroy>> picture(
      dmtxImageCreate(image.pixels.data(), image.width, image.height, DmtxPack8bppK));
  const std::unique_ptr<DmtxDecode, Destroyer<dmtxDecodeDestroy>> decode(
      dmtxDecodeCreate(picture.get(), 1));
  const std::unique_ptr<DmtxRegion, Destroyer<dmtxRegionDestroy>> region(
      dmtxRegionFindNext(decode.get(), nullptr));
  if (!region) return {};
  const std::unique_ptr<DmtxMessage, Destroyer<dmtxMessageDestroy>> message(
      dmtxDecodeMatrixRegion(decode.get(), region.get(), DmtxUndefined));
  if (!message) return {};
  return std::string(reinterpret_cast<const char*>(message->output),
                     static_cast<std::size_t>(message->outputIdx));
}

}  // namespace barhatch::test
