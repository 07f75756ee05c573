#include "symbologies/Ean8Symbologies.h"

#include <cstring>

namespace barhatch {

char* EncodeEan8(const EanUpcLayout& layout, const char* text, QuietZone quietZone) {
  if (!ValidateDigits(layout, text)) return nullptr;

  char working[kWorkingCapacity];
  std::memcpy(working, text, std::strlen(text) + 1);
  InsertCheckDigit(layout, working);

  ModuleStringBuilder builder(layout.capacity, ModuleCount(layout, quietZone));
  builder.AppendSpace(QuietModules(quietZone, layout.leftQuietModules));
  builder.AppendModules(kNormalGuard);
  AppendDigits(builder, working, 4, NumberSet::kL);
  builder.AppendModules(kCentreGuard);
  AppendDigits(builder, working + 4, 4, NumberSet::kR);
  builder.AppendModules(kNormalGuard);
  AppendAddon(builder, working + layout.workingDigits, layout.addonDigits);
  builder.AppendSpace(QuietModules(quietZone, layout.rightQuietModules));
  return builder.Release();
}

}  // namespace barhatch
