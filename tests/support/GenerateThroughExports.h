// A module string the way a host gets it: type and text through the exports.
#ifndef BARHATCH_TESTS_SUPPORT_GENERATETHROUGHEXPORTS_H
#define BARHATCH_TESTS_SUPPORT_GENERATETHROUGHEXPORTS_H

#include <cstdint>
#include <optional>
#include <string>

#include "barhatch.h"
#include "support/OwnedString.h"

namespace barhatch::test {

// The other settings stay as they are.
inline std::optional<std::string> GenerateThroughExports(std::int32_t type,
                                                         const std::u16string& text) {
  std::basic_string<BarhatchChar> units;
  for (char16_t unit : text) units += static_cast<BarhatchChar>(unit);
  SetBarcodeType(type);
  SetDataString(units.c_str());
  return Take(GenerateBarcodeString());
}

}  // namespace barhatch::test

#endif
