#include "PngWriter.h"

#include <png.h>

#include <cstring>

namespace preview {

bool WritePng(const std::string& path, const Picture& picture) {
  png_image image;
  std::memset(&image, 0, sizeof image);
  image.version = PNG_IMAGE_VERSION;
  image.width = picture.width;
  image.height = picture.height;
  image.format = PNG_FORMAT_GRAY;
  return png_image_write_to_file(&image, path.c_str(), 0, picture.pixels.data(), 0, nullptr) != 0;
}

}  // namespace preview
