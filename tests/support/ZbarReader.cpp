#include <zbar.h>

#include <memory>

#include "support/ReaderBackends.h"

namespace barhatch::test {

namespace {

constexpr unsigned long kGreyFormat = 0x30303859;  // "Y800", one byte a pixel

zbar::zbar_symbol_type_t Type(Format format) {
  switch (format) {
    case Format::kCodabar:
      return zbar::ZBAR_CODABAR;
    case Format::kCode39:
      return zbar::ZBAR_CODE39;
    case Format::kCode93:
      return zbar::ZBAR_CODE93;
    case Format::kCode128:
      return zbar::ZBAR_CODE128;
    case Format::kEan13:
      return zbar::ZBAR_EAN13;
    case Format::kEan8:
      return zbar::ZBAR_EAN8;
    case Format::kUpcA:
      return zbar::ZBAR_UPCA;
    case Format::kUpcE:
      return zbar::ZBAR_UPCE;
    case Format::kInterleaved2of5:
      return zbar::ZBAR_I25;
    case Format::kDataMatrix:
      break;
  }
  return zbar::ZBAR_NONE;
}

using Scanner =
    std::unique_ptr<zbar::zbar_image_scanner_t, decltype(&zbar::zbar_image_scanner_destroy)>;
using Image = std::unique_ptr<zbar::zbar_image_t, decltype(&zbar::zbar_image_destroy)>;

Scanner NewScanner(zbar::zbar_symbol_type_t type, AddOn addOn) {
  Scanner scanner(zbar::zbar_image_scanner_create(), zbar::zbar_image_scanner_destroy);
  const auto configure = [&](zbar::zbar_symbol_type_t which, zbar::zbar_config_t what, int value) {
    zbar::zbar_image_scanner_set_config(scanner.get(), which, what, value);
  };
  configure(zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 0);
  configure(type, zbar::ZBAR_CFG_ENABLE, 1);
  configure(type, zbar::ZBAR_CFG_MIN_LEN, 0);
  if (type == zbar::ZBAR_UPCA) configure(zbar::ZBAR_EAN13, zbar::ZBAR_CFG_ENABLE, 1);
  if (addOn == AddOn::kRequired) {
    configure(zbar::ZBAR_EAN2, zbar::ZBAR_CFG_ENABLE, 1);
    configure(zbar::ZBAR_EAN5, zbar::ZBAR_CFG_ENABLE, 1);
  }
  return scanner;
}

Image NewImage(const Raster& picture) {
  Image image(zbar::zbar_image_create(), zbar::zbar_image_destroy);
  const auto width = static_cast<unsigned>(picture.Width());
  const auto height = static_cast<unsigned>(picture.Height());
  zbar::zbar_image_set_format(image.get(), kGreyFormat);
  zbar::zbar_image_set_size(image.get(), width, height);
  zbar::zbar_image_set_data(image.get(), picture.Pixels(),
                            static_cast<unsigned long>(width) * height, nullptr);
  return image;
}

std::string Text(const zbar::zbar_symbol_t* symbol) {
  return std::string(zbar::zbar_symbol_get_data(symbol), zbar::zbar_symbol_get_data_length(symbol));
}

bool IsAddOn(const zbar::zbar_symbol_t* symbol) {
  const zbar::zbar_symbol_type_t type = zbar::zbar_symbol_get_type(symbol);
  return type == zbar::ZBAR_EAN2 || type == zbar::ZBAR_EAN5;
}

bool IsUpright(const zbar::zbar_symbol_t* symbol) {
  return zbar::zbar_symbol_get_orientation(symbol) == zbar::ZBAR_ORIENT_UP;
}

}  // namespace

// An add-on is reported as a symbol of its own.
std::optional<ReadResult> ReadWithZbar(const Raster& picture, Format format, AddOn addOn) {
  const zbar::zbar_symbol_type_t type = Type(format);
  if (type == zbar::ZBAR_NONE) return std::nullopt;
  const Scanner scanner = NewScanner(type, addOn);
  const Image image = NewImage(picture);
  const int expected = addOn == AddOn::kRequired ? 2 : 1;
  if (zbar::zbar_scan_image(scanner.get(), image.get()) != expected) return std::nullopt;

  ReadResult result;
  for (const zbar::zbar_symbol_t* symbol = zbar::zbar_image_first_symbol(image.get());
       symbol != nullptr; symbol = zbar::zbar_symbol_next(symbol)) {
    if (!IsUpright(symbol)) return std::nullopt;
    if (IsAddOn(symbol)) {
      result.addOn = Text(symbol);
    } else if (zbar::zbar_symbol_get_type(symbol) == type) {
      result.text = Text(symbol);
    }
  }
  if (result.text.empty() || result.addOn.empty() != (addOn == AddOn::kIgnored))
    return std::nullopt;
  return result;
}

}  // namespace barhatch::test
