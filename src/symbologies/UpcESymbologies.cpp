#include "symbologies/UpcESymbologies.h"

namespace barhatch {

namespace {

// The UPC-A number by the last digit of UPC-E: ISO/IEC 15420. N is the number system, a to f the
// six digits, 0 a suppressed zero.
constexpr char kExpansions[10][kUpcADigits + 1] = {
    "Nabf0000cde",  // 0
    "Nabf0000cde",  // 1
    "Nabf0000cde",  // 2
    "Nabc00000de",  // 3  D-EAN-4: c is 3 to 9 where zeros were suppressed by the book
    "Nabcd00000e",  // 4  D-EAN-4: d is not 0
    "Nabcde0000f",  // 5  D-EAN-4: e is not 0, likewise below
    "Nabcde0000f",  // 6
    "Nabcde0000f",  // 7
    "Nabcde0000f",  // 8
    "Nabcde0000f",  // 9
};

constexpr char kUpcEEndGuard[] = "010101";

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

char* EncodeUpcE(const EanUpcLayout& layout, const char* text, QuietZone quietZone) {
  if (!ValidateDigits(layout, text)) return nullptr;

  const int numberSystem = text[0] - '0';
  const char* parity = UpcEParity(numberSystem, UpcECheckDigit(text));

  ModuleStringBuilder builder(layout.capacity, ModuleCount(layout, quietZone));
  builder.AppendSpace(QuietModules(quietZone, layout.leftQuietModules));
  builder.AppendModules(kNormalGuard);
  AppendDigits(builder, text + 1, parity);
  builder.AppendModules(kUpcEEndGuard);
  AppendAddon(builder, text + layout.workingDigits, layout.addonDigits);
  builder.AppendSpace(QuietModules(quietZone, layout.rightQuietModules));
  return builder.Release();
}

}  // namespace barhatch
