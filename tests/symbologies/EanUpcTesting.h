// What the EAN/UPC tests share.
#ifndef BARHATCH_TESTS_SYMBOLOGIES_EANUPCTESTING_H
#define BARHATCH_TESTS_SYMBOLOGIES_EANUPCTESTING_H

#include <optional>
#include <string>

#include "support/OwnedString.h"
#include "symbologies/Symbology.h"

namespace barhatch::test {

template <typename EanUpcClass>
std::optional<std::string> Encode(const std::string& text, QuietZone quietZone = QuietZone::kNone) {
  return Take(EanUpcClass::Encode(text.c_str(), quietZone));
}

}  // namespace barhatch::test

#endif
