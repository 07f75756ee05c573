// Texts of 16-bit units made from bytes, for tests with texts of any length.
#ifndef BARHATCH_TESTS_SUPPORT_TEXT16_H
#define BARHATCH_TESTS_SUPPORT_TEXT16_H

#include <string>

#include "barhatch.h"

namespace barhatch::test {

using Text16 = std::basic_string<BarhatchChar>;

// One unit for each byte, 0x00 to 0xFF.
inline Text16 Widen(const std::string& bytes) {
  Text16 units;
  for (char byte : bytes) units += static_cast<BarhatchChar>(static_cast<unsigned char>(byte));
  return units;
}

}  // namespace barhatch::test

#endif
