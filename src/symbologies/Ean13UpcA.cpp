#include "symbologies/Ean13UpcA.h"

#include <cstring>

#include "symbologies/EanUpcElements.h"

namespace barhatch {

void PrefixZero(char* working) {
  std::memmove(working + 1, working, std::strlen(working) + 1);
  working[0] = '0';
}

void EncodeEan13UpcA(const Characters& text, int variant, Conformance& how, SymbolWriter& out) {
  const EanUpcLayout& layout = EanUpcLayoutOf(variant);
  char working[kWorkingCapacity];
  std::memcpy(working, text.text, text.length + 1);
  if (layout.firstDigit == FirstDigit::kBehindZero) PrefixZero(working);
  InsertCheckDigit(layout, working);

  out.Open(MostModules(layout));
  out.AppendModules(kNormalGuard);
  AppendDigits(out, working + 1, FirstDigitParity(working[0]));
  out.AppendModules(kCentreGuard);
  AppendDigits(out, working + 7, 6, NumberSet::kR);
  out.AppendModules(kNormalGuard);
  AppendAddon(out, variant, working + layout.workingDigits, how);
}

}  // namespace barhatch
