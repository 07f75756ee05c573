#include "LinearTypes.h"

#include <charconv>

namespace preview {

namespace {

constexpr const char* kNames[] = {
    "codabar",  "code39", "code93", "ean13",  "msi",    "code128", "code128a",   "code128b",
    "code128c", "upca",   "upce",   "code11", "ean8",   "upca+2",  "upca+5",     "ean13+2",
    "ean13+5",  "ean8+2", "ean8+5", "upce+2", "upce+5", "itf",     "code93full",
};
constexpr std::int32_t kTypes = sizeof(kNames) / sizeof(kNames[0]);

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const char lower = a[i] >= 'A' && a[i] <= 'Z' ? static_cast<char>(a[i] - 'A' + 'a') : a[i];
    if (lower != b[i]) return false;
  }
  return true;
}

}  // namespace

std::optional<std::int32_t> LinearTypeFrom(std::string_view text) {
  for (std::int32_t type = 0; type < kTypes; ++type) {
    if (SameName(text, kNames[type])) return type;
  }
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (number < 0 || number >= kTypes) return std::nullopt;
  return number;
}

std::string LinearTypeName(std::int32_t type) {
  return type >= 0 && type < kTypes ? kNames[type] : "type " + std::to_string(type);
}

std::string LinearTypeList() {
  std::string list = "Types:\n";
  for (std::int32_t type = 0; type < kTypes; ++type) {
    list += (type < 10 ? "   " : "  ") + std::to_string(type) + "  " + kNames[type] + '\n';
  }
  return list + "      datamatrix\n";
}

}  // namespace preview
