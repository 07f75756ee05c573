#include "symbologies/Ean8.h"

#include <cstring>

#include "symbologies/EanUpcElements.h"

namespace barhatch {

Refusal CheckEan8AddonForm(const Characters& /*text*/, Conformance& how) {
  return {how.Deviates(Deviation::kDEAN_2) ? Reason::kNone : Reason::kNotStandard, -1, 0};
}

void EncodeEan8(const Characters& text, int variant, Conformance& how, SymbolWriter& out) {
  const EanUpcLayout& layout = EanUpcLayoutOf(variant);
  char working[kWorkingCapacity];
  std::memcpy(working, text.text, text.length + 1);
  InsertCheckDigit(layout, working);

  out.Open(MostModules(layout));
  out.AppendModules(kNormalGuard);
  AppendDigits(out, working, 4, NumberSet::kL);
  out.AppendModules(kCentreGuard);
  AppendDigits(out, working + 4, 4, NumberSet::kR);
  out.AppendModules(kNormalGuard);
  AppendAddon(out, variant, working + layout.workingDigits, how);
}

}  // namespace barhatch
