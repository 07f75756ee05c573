#include "symbologies/Ean13UpcASymbologies.h"

#include <cstring>

namespace barhatch {

void PrefixZero(char* working) {
  std::memmove(working + 1, working, std::strlen(working) + 1);
  working[0] = '0';
}

char* EncodeEan13UpcA(const EanUpcLayout& layout, const char* text, QuietZone quietZone) {
  if (!ValidateDigits(layout, text)) return nullptr;

  char working[kWorkingCapacity];
  std::memcpy(working, text, std::strlen(text) + 1);
  if (layout.firstDigit == FirstDigit::kBehindZero) PrefixZero(working);
  InsertCheckDigit(layout, working);

  ModuleStringBuilder builder(layout.capacity, ModuleCount(layout, quietZone));
  builder.AppendSpace(QuietModules(quietZone, layout.leftQuietModules));
  builder.AppendModules(kNormalGuard);
  AppendDigits(builder, working + 1, FirstDigitParity(working[0]));
  builder.AppendModules(kCentreGuard);
  AppendDigits(builder, working + 7, 6, NumberSet::kR);
  builder.AppendModules(kNormalGuard);
  AppendAddon(builder, working + layout.workingDigits, layout.addonDigits);
  builder.AppendSpace(QuietModules(quietZone, layout.rightQuietModules));
  return builder.Release();
}

}  // namespace barhatch
