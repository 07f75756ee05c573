#include "symbologies/Symbology.h"

#include "api/BarcodeSettings.h"

namespace barhatch {

static_assert(kNarrowTextCapacity == kDataStringCapacity, "one byte for each unit of the text");

void NarrowDataString(const char16_t* source, char* destination) {
  for (; *source != u'\0'; ++source) *destination++ = static_cast<char>(*source & 0xFF);
  *destination = '\0';
}

char* Symbology::GenerateString() { return nullptr; }

char* Symbology::EncodeCurrentText(Encoder encoder) {
  char text[kNarrowTextCapacity];
  NarrowDataString(CurrentSettings().DataString, text);
  return encoder(text, CurrentSettings().QuietZone != 0 ? QuietZone::kBothEnds : QuietZone::kNone);
}

}  // namespace barhatch
