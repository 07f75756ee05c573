#include "BarcodeText.h"

#include <fmt/core.h>

namespace preview {

std::string NarrowText(const std::u16string& units) {
  std::string bytes;
  for (const char16_t unit : units) {
    if ((unit & 0xFF) == 0) break;
    bytes += static_cast<char>(unit & 0xFF);
  }
  return bytes;
}

std::string CharacterName(char16_t unit) {
  if (unit > 32 && unit < 127) return fmt::format("'{}'", static_cast<char>(unit));
  if (unit == 32) return "a space";
  return fmt::format("U+{:04X}", static_cast<unsigned>(unit));
}

}  // namespace preview
