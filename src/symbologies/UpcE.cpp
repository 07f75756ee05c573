#include "symbologies/UpcE.h"

#include "job/CharacterClasses.h"
#include "symbologies/EanUpcElements.h"

namespace barhatch {

namespace {

// The UPC-A number by the last digit of UPC-E: ISO/IEC 15420. N is the number system, a to f the
// six digits, 0 a suppressed zero.
constexpr char kExpansions[10][kUpcADigits + 1] = {
    "Nabf0000cde",  // 0
    "Nabf0000cde",  // 1
    "Nabf0000cde",  // 2
    "Nabc00000de",  // 3  c is 3 to 9
    "Nabcd00000e",  // 4  d is not 0
    "Nabcde0000f",  // 5  e is not 0, likewise below
    "Nabcde0000f",  // 6
    "Nabcde0000f",  // 7
    "Nabcde0000f",  // 8
    "Nabcde0000f",  // 9
};

// Six digits that suppressing the zeros of a UPC-A number gives.
bool IsSuppressedForm(const char* six) {
  const char last = six[5];
  if (last == '3') return six[2] > '2';
  if (last == '4') return six[3] != '0';
  return last < '5' || six[4] != '0';
}

}  // namespace

void ExpandUpcE(const char* upcE, char* upcA) {
  for (const char* place = kExpansions[upcE[6] - '0']; *place != '\0'; ++place) {
    if (*place == 'N') {
      *upcA++ = upcE[0];
    } else {
      *upcA++ = *place == '0' ? '0' : upcE[1 + (*place - 'a')];
    }
  }
  *upcA = '\0';
}

int UpcECheckDigit(const char* upcE) {
  char upcA[kUpcADigits + 1];
  ExpandUpcE(upcE, upcA);
  return CheckDigit(upcA, kUpcADigits);
}

Refusal CheckUpcEForm(const Characters& text, Conformance& how) {
  const char system = text.text[0];
  if (system > '1') return {Reason::kNumberSystem, 0, static_cast<unsigned char>(system)};
  if (system == '1' && !how.Deviates(Deviation::kDEAN_3)) return {Reason::kNotStandard, 0, 0};
  if (IsSuppressedForm(text.text + 1) || how.Deviates(Deviation::kDEAN_4)) return {};
  return {Reason::kNotStandard, 1, 0};
}

void EncodeUpcE(const Characters& text, int variant, Conformance& how, SymbolWriter& out) {
  const EanUpcLayout& layout = kEanUpcLayouts[variant];
  const char* const digits = text.text;
  const char* parity = UpcEParity(digits[0] - '0', UpcECheckDigit(digits));

  out.Open(MostModules(layout));
  out.AppendModules(kNormalGuard);
  AppendDigits(out, digits + 1, parity);
  out.AppendModules(kUpcEEndGuard);
  AppendAddon(out, layout, digits + layout.workingDigits, how);
}

}  // namespace barhatch
