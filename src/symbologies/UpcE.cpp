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

constexpr int kSuppressedDigits = 6;

// Six digits that suppressing the zeros of a UPC-A number gives.
bool IsSuppressedForm(const char* six) {
  const char last = six[5];
  if (last == '3') return six[2] > '2';
  if (last == '4') return six[3] != '0';
  return last < '5' || six[4] != '0';
}

// A NUL ends the number.
bool BeginsWith(const char* text, const char* number) {
  for (; *number != '\0'; ++number) {
    if (*text++ != *number) return false;
  }
  return true;
}

// What the six digits that suppress the zeros by the rule of this last digit would be.
void TakeSix(const char* upcA, char last, char* six) {
  for (const char* place = kExpansions[last - '0']; *place != '\0'; ++place, ++upcA) {
    if (*place >= 'a') six[*place - 'a'] = *upcA;
  }
  six[kSuppressedDigits - 1] = last;
}

// As one number.
std::int32_t RightSix(const char* upcE) {
  char upcA[kUpcADigits + 1];
  char right[kUpcEDigits];
  ExpandUpcE(upcE, upcA);
  std::int32_t six = 0;
  if (!SuppressUpcA(upcA, right)) return six;
  for (int i = 1; i < kUpcEDigits; ++i) six = six * 10 + (right[i] - '0');
  return six;
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

// Of several last digits the lowest makes a suppressed form.
bool SuppressUpcA(const char* upcA, char* upcE) {
  upcE[0] = upcA[0];
  for (char last = '0'; last <= '9'; ++last) {
    char number[kUpcADigits + 1];
    TakeSix(upcA, last, upcE + 1);
    ExpandUpcE(upcE, number);
    if (BeginsWith(upcA, number)) return true;
  }
  return false;
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
  return {Reason::kUpcEForm, 1, RightSix(text.text), kUpcESixDigits};
}

void EncodeUpcE(const Characters& text, int variant, Conformance& how, SymbolWriter& out) {
  const EanUpcLayout& layout = EanUpcLayoutOf(variant);
  const char* const digits = text.text;
  const char* parity = UpcEParity(digits[0] - '0', UpcECheckDigit(digits));

  out.Open(MostModules(layout));
  out.AppendModules(kNormalGuard);
  AppendDigits(out, digits + 1, parity);
  out.AppendModules(kUpcEEndGuard);
  AppendAddon(out, variant, digits + layout.workingDigits, how);
}

}  // namespace barhatch
