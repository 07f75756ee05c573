#include "api/DataText.h"

#include <cassert>

namespace barhatch {

std::size_t TextLength(const BarhatchChar* text, std::size_t limit) {
  std::size_t length = 0;
  while (length <= limit && text[length] != 0) ++length;
  return length;
}

bool IsStorableText(const BarhatchChar* text) {
  return text != nullptr && TextLength(text, kDataStringCapacity) < kDataStringCapacity;
}

void StoreText(const BarhatchChar* text, BarcodeSettings& settings) {
  assert(IsStorableText(text));
  std::size_t length = 0;
  for (; text[length] != 0; ++length)
    settings.DataString[length] = static_cast<char16_t>(text[length]);
  settings.DataString[length] = u'\0';
  settings.DataStringRefused = false;
}

}  // namespace barhatch
