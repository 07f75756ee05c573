// What the EAN/UPC tests share.
#ifndef BARHATCH_TESTS_SYMBOLOGIES_EANUPCTESTING_H
#define BARHATCH_TESTS_SYMBOLOGIES_EANUPCTESTING_H

#include <optional>
#include <string>

#include "symbologies/DrawnSymbol.h"

namespace barhatch::test {

// The types as hosts know them.
enum EanUpcType {
  kEan13 = 3,
  kUpcA = 9,
  kUpcE = 10,
  kEan8 = 12,
  kUpcAAddon2 = 13,
  kUpcAAddon5 = 14,
  kEan13Addon2 = 15,
  kEan13Addon5 = 16,
  kEan8Addon2 = 17,
  kEan8Addon5 = 18,
  kUpcEAddon2 = 19,
  kUpcEAddon5 = 20,
};

template <EanUpcType kType>
std::optional<std::string> Encode(const std::string& text, QuietZone quietZone = QuietZone::kNone) {
  return DrawnByTheDevice(kType, text, quietZone);
}

}  // namespace barhatch::test

#endif
