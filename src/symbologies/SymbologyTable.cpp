#include "symbologies/SymbologyTable.h"

#include "symbologies/Codabar.h"
#include "symbologies/Code11.h"
#include "symbologies/Code128Policies.h"
#include "symbologies/Code39.h"
#include "symbologies/Code93.h"
#include "symbologies/Ean13UpcA.h"
#include "symbologies/Ean8.h"
#include "symbologies/EanUpcElements.h"
#include "symbologies/Interleaved2of5.h"
#include "symbologies/Msi.h"
#include "symbologies/UpcE.h"

namespace barhatch {

namespace {

constexpr Deviation kNoDeviation = Deviation::kNone;
constexpr std::uint16_t kNoClass = 0;
constexpr std::uint16_t kCode39Set = kClassDigits | kClassLettersAndSigns;
constexpr std::uint16_t kCodabarSet = kClassDigits | kClassCodabarSigns | kClassCodabarEnds;

constexpr TextRule Rule(std::uint16_t accepted, std::uint16_t longest, Deviation emptyBy) {
  return {accepted, 1,        longest,      kNoClass,     kNoDeviation,
          emptyBy,  kNoClass, kNoDeviation, kNoDeviation, kNoDeviation,
          nullptr};
}

constexpr TextRule WithMore(TextRule rule, std::uint16_t more, Deviation by, Deviation inFrontBy) {
  rule.more = more;
  rule.moreBy = by;
  rule.moreInFrontBy = inFrontBy;
  return rule;
}

constexpr TextRule WithForm(TextRule rule, FormCheck form) {
  rule.form = form;
  return rule;
}

constexpr TextRule WithPercentPairs(TextRule rule, Deviation by) {
  rule.percentPairBy = by;
  return rule;
}

constexpr TextRule Digits(EanUpcSymbol symbol) {
  const EanUpcLayout& layout = EanUpcLayoutOf(symbol);
  const auto digits = static_cast<std::uint16_t>(layout.mainDigits + layout.addonDigits);
  TextRule rule = Rule(kClassDigits, digits, kNoDeviation);
  rule.shortest = digits;
  return rule;
}

// The device's choice of code sets has neither FNC4 nor shift; set B alone has no control
// characters by the book either.
constexpr TextRule Code128Text(Code128Policy policy) {
  const bool isSetB = policy == Code128Policy::kB;
  TextRule rule = Rule(isSetB ? kClassFromSpace : kClassAscii | kClassAbove127, kLongestLinearText,
                       kNoDeviation);
  rule.planned = kClassFromSpace;
  rule.plannedBy = Deviation::kD128_3;
  return rule;
}

constexpr std::uint8_t Variant(Code128Policy policy) { return static_cast<std::uint8_t>(policy); }
constexpr std::uint8_t Variant(EanUpcSymbol symbol) { return static_cast<std::uint8_t>(symbol); }
constexpr std::uint8_t Variant(MsiCheckScheme scheme) { return static_cast<std::uint8_t>(scheme); }

constexpr SymbologyRow Ean13UpcA(EanUpcSymbol symbol, std::uint8_t left, std::uint8_t right) {
  return {Digits(symbol), EncodeEan13UpcA, Variant(symbol), left, right};
}

constexpr SymbologyRow Ean8(EanUpcSymbol symbol, FormCheck form) {
  return {WithForm(Digits(symbol), form), EncodeEan8, Variant(symbol), 7, 7};
}

constexpr SymbologyRow UpcE(EanUpcSymbol symbol) {
  return {WithForm(Digits(symbol), CheckUpcEForm), EncodeUpcE, Variant(symbol), 9, 7};
}

constexpr SymbologyRow Code128(Code128Policy policy) {
  return {Code128Text(policy), EncodeCode128, Variant(policy), 10, 10};
}

}  // namespace

constexpr SymbologyRow kSymbologies[kSymbologyCount] = {
    // 0 Codabar
    {WithForm(Rule(kCodabarSet, 3116, kNoDeviation), CheckCodabarForm), EncodeCodabar, 0, 10, 10},
    // 1 Code 39
    {WithPercentPairs(WithMore(Rule(kCode39Set, 3114, Deviation::kD39_6), kClassAsterisk,
                               Deviation::kD39_4, Deviation::kD39_4),
                      Deviation::kD39_5),
     EncodeCode39, 0, 10, 10},
    // 2 Code 93
    {Rule(kCode39Set, kLongestLinearText, Deviation::kD93_4), EncodeCode93, 0, 10, 10},
    // 3 EAN-13
    Ean13UpcA(EanUpcSymbol::kEan13, 11, 7),
    // 4 MSI
    {Rule(kClassDigits, kLongestLinearText, Deviation::kDMSI_1), EncodeMsi,
     Variant(MsiCheckScheme::kModulo10), 10, 10},
    // 5 to 8 Code 128
    Code128(Code128Policy::kAuto),
    Code128(Code128Policy::kFromA),
    Code128(Code128Policy::kB),
    Code128(Code128Policy::kFromC),
    // 9 UPC-A
    Ean13UpcA(EanUpcSymbol::kUpcA, 9, 9),
    // 10 UPC-E
    UpcE(EanUpcSymbol::kUpcE),
    // 11 Code 11
    {Rule(kClassDigits | kClassDash, kLongestLinearText, Deviation::kD11_2), EncodeCode11, 0, 10,
     10},
    // 12 EAN-8
    Ean8(EanUpcSymbol::kEan8, nullptr),
    // 13, 14 UPC-A with add-on
    Ean13UpcA(EanUpcSymbol::kUpcAAddon2, 9, 9),
    Ean13UpcA(EanUpcSymbol::kUpcAAddon5, 9, 9),
    // 15, 16 EAN-13 with add-on
    Ean13UpcA(EanUpcSymbol::kEan13Addon2, 11, 7),
    Ean13UpcA(EanUpcSymbol::kEan13Addon5, 11, 7),
    // 17, 18 EAN-8 with add-on
    Ean8(EanUpcSymbol::kEan8Addon2, CheckEan8AddonForm),
    Ean8(EanUpcSymbol::kEan8Addon5, CheckEan8AddonForm),
    // 19, 20 UPC-E with add-on
    UpcE(EanUpcSymbol::kUpcEAddon2),
    UpcE(EanUpcSymbol::kUpcEAddon5),
    // 21 Interleaved 2 of 5
    {Rule(kClassDigits, kLongestLinearText, Deviation::kD25_2), EncodeInterleaved2of5, 0, 10, 10},
    // 22 Code 93, full ASCII
    {WithMore(Rule(kClassAscii, kLongestLinearText, Deviation::kD93_4), kClassAbove127,
              Deviation::kD93_2, Deviation::kD93_3),
     EncodeCode93, 0, 10, 10},
};

}  // namespace barhatch
