#include "api/Symbology.h"

#include "api/BarcodeSettings.h"
#include "api/UsualCapacities.h"
#include "mark/Mark.h"

namespace barhatch {

static_assert(kNarrowTextCapacity == kDataStringCapacity, "one byte for each unit of the text");

std::size_t NarrowDataString(const char16_t* source, char* destination) {
  std::size_t length = 0;
  do {
    destination[length] = static_cast<char>(source[length] & 0xFF);
  } while (destination[length++] != '\0');
  return length - 1;
}

char* Symbology::GenerateString() { return nullptr; }

char* TableSymbology::GenerateString() {
  const BarcodeSettings& settings = CurrentSettings();
  char text[kNarrowTextCapacity];
  const std::size_t length = NarrowDataString(settings.DataString, text);
  const LinearJob job = {type_, text, length,
                         settings.QuietZone != 0 ? kStandardQuietZone : kNoQuietZone};
  Conformance how = Conformance::Device();
  LinearSymbol symbol;
  DrawLinear(job, kUsualCapacities[type_], RuntimeMemory(), how, symbol);
  return symbol.letters;
}

}  // namespace barhatch
