#include "symbologies/SymbologyTable.h"

#include "symbologies/Codabar.h"
#include "symbologies/Code11.h"
#include "symbologies/Code128Policies.h"
#include "symbologies/Code39.h"
#include "symbologies/Code39FullAscii.h"
#include "symbologies/Code93.h"
#include "symbologies/Ean13UpcA.h"
#include "symbologies/Ean8.h"
#include "symbologies/EanUpcElements.h"
#include "symbologies/EanUpcText.h"
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

constexpr TextRule WithShortest(TextRule rule, std::uint16_t shortest) {
  rule.shortest = shortest;
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
  return WithShortest(Rule(kClassDigits, digits, kNoDeviation), digits);
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

constexpr char kCode39Text[] = "digits, A-Z, - . $ / + % and space";
constexpr char kCodabarText[] = "digits and - $ : / . + between two of A B C D T N * E";
constexpr char kBytes[] = "characters from 0 to 255";
constexpr char kFromSpace[] = "characters from 32 to 127";
constexpr char kAscii[] = "characters from 0 to 127";

constexpr char kEan13Text[] = "12 or 13 digits (and an add-on behind +)";
constexpr char kEan13TextAnd2[] = "12 or 13 digits and 2 (+ may stand between)";
constexpr char kEan13TextAnd5[] = "12 or 13 digits and 5 (+ may stand between)";
constexpr char kUpcAText[] = "11 or 12 digits (and an add-on behind +)";
constexpr char kUpcATextAnd2[] = "11 or 12 digits and 2 (+ may stand between)";
constexpr char kUpcATextAnd5[] = "11 or 12 digits and 5 (+ may stand between)";
constexpr char kEan8Text[] = "7 or 8 digits";
constexpr char kEan8TextAnd2[] = "7 or 8 digits and 2 (+ may stand between)";
constexpr char kEan8TextAnd5[] = "7 or 8 digits and 5 (+ may stand between)";
constexpr char kUpcEText[] = "6, 7, 8, 11 or 12 digits (and an add-on behind +)";
constexpr char kUpcETextAnd2[] = "7, 8, 11 or 12 digits and 2 (+ may stand between, also behind 6)";
constexpr char kUpcETextAnd5[] = "7, 8, 11 or 12 digits and 5 (+ may stand between, also behind 6)";

constexpr ReadingForm kAsDrawn = {};
constexpr ReadingForm kBetweenTheEnds = {1, 1, 0, false};
constexpr ReadingForm kInPairs = {0, 0, 0, true};
constexpr ReadingForm WithCheckDigit(EanUpcSymbol symbol) {
  return {0, 0, static_cast<std::uint8_t>(EanUpcLayoutOf(symbol).mainDigits), false};
}

template <typename... Schemes>
constexpr CheckSchemes Checks(Schemes... schemes) {
  return static_cast<CheckSchemes>((BitOf(schemes) | ...));
}
constexpr CheckSchemes kOwnCheck = Checks(CheckScheme::kOwn);
constexpr CheckSchemes kFreeCheck =
    Checks(CheckScheme::kOwn, CheckScheme::kNone, CheckScheme::kVerify);
constexpr CheckSchemes kMsiChecks =
    kFreeCheck | Checks(CheckScheme::kMsi10, CheckScheme::kMsi10And10, CheckScheme::kMsi11,
                        CheckScheme::kMsi11And10, CheckScheme::kMsiNcr11,
                        CheckScheme::kMsiNcr11And10);
constexpr CheckSchemes kCode11Checks =
    kFreeCheck | Checks(CheckScheme::kCode11C, CheckScheme::kCode11CAndK);

// A row whose characters are as the encoder draws them, with 10 modules of quiet zone.
constexpr SymbologyRow Row(std::int32_t symbology, const char* name, const char* accepts,
                           const TextRule& text, Encoder encode, Reader read) {
  return {{name, accepts, nullptr},
          {text, encode, 0, 10, 10},
          read,
          nullptr,
          symbology,
          kAsDrawn,
          kOwnCheck};
}

constexpr SymbologyRow Read(SymbologyRow row, ReadingForm reading) {
  row.reading = reading;
  return row;
}

constexpr SymbologyRow Prepared(SymbologyRow row, Prepare prepare, CheckSchemes checks) {
  row.prepare = prepare;
  row.checks = checks;
  return row;
}

constexpr SymbologyRow WithQuiet(SymbologyRow row, std::uint8_t left, std::uint8_t right) {
  row.drawing.quietLeft = left;
  row.drawing.quietRight = right;
  return row;
}

constexpr SymbologyRow Code128(std::int32_t symbology, const char* name, Code128Policy policy) {
  const bool isSetB = policy == Code128Policy::kB;
  SymbologyRow row = Row(symbology, name, isSetB ? kFromSpace : kBytes, Code128Text(policy),
                         EncodeCode128, ReadCode128);
  row.name.deviceAccepts = isSetB ? nullptr : kFromSpace;
  row.drawing.variant = Variant(policy);
  return row;
}

// What the types of EAN and UPC take by the book and on the device.
struct EanUpcTexts {
  const char* published;
  const char* device;
};

constexpr SymbologyRow EanUpc(SymbologyRow row, const char* deviceAccepts, EanUpcSymbol symbol,
                              std::uint8_t left, std::uint8_t right) {
  row.name.deviceAccepts = deviceAccepts;
  row = Prepared(row, PrepareEanUpc, Checks(CheckScheme::kOwn, CheckScheme::kVerify));
  row.drawing.variant = Variant(symbol);
  return WithQuiet(Read(row, WithCheckDigit(symbol)), left, right);
}

constexpr SymbologyRow Ean13(std::int32_t symbology, const char* name, const EanUpcTexts& texts,
                             EanUpcSymbol symbol) {
  return EanUpc(
      Row(symbology, name, texts.published, Digits(symbol), EncodeEan13UpcA, ReadEan13UpcA),
      texts.device, symbol, 11, 7);
}

constexpr SymbologyRow UpcA(std::int32_t symbology, const char* name, const EanUpcTexts& texts,
                            EanUpcSymbol symbol) {
  return EanUpc(
      Row(symbology, name, texts.published, Digits(symbol), EncodeEan13UpcA, ReadEan13UpcA),
      texts.device, symbol, 9, 9);
}

constexpr SymbologyRow Ean8(std::int32_t symbology, const char* name, const EanUpcTexts& texts,
                            EanUpcSymbol symbol) {
  const FormCheck form = symbol == EanUpcSymbol::kEan8 ? nullptr : CheckEan8AddonForm;
  return EanUpc(
      Row(symbology, name, texts.published, WithForm(Digits(symbol), form), EncodeEan8, ReadEan8),
      texts.device, symbol, 7, 7);
}

constexpr SymbologyRow UpcE(std::int32_t symbology, const char* name, const EanUpcTexts& texts,
                            EanUpcSymbol symbol) {
  return EanUpc(Row(symbology, name, texts.published, WithForm(Digits(symbol), CheckUpcEForm),
                    EncodeUpcE, ReadUpcE),
                texts.device, symbol, 9, 7);
}

constexpr TextRule kCodabarRule = WithForm(Rule(kCodabarSet, 3116, kNoDeviation), CheckCodabarForm);
constexpr TextRule kCode39Rule =
    WithPercentPairs(WithMore(Rule(kCode39Set, 3114, Deviation::kD39_6), kClassAsterisk,
                              Deviation::kD39_4, Deviation::kD39_4),
                     Deviation::kD39_5);
constexpr TextRule kCode93Rule = Rule(kCode39Set, kLongestLinearText, Deviation::kD93_4);
constexpr TextRule kMsiRule = Rule(kClassDigits, kLongestLinearText, Deviation::kDMSI_1);
constexpr TextRule kCode11Rule =
    Rule(kClassDigits | kClassDash, kLongestLinearText, Deviation::kD11_2);
constexpr TextRule kItfRule = Rule(kClassDigits, kLongestLinearText, Deviation::kD25_2);
constexpr TextRule kCode93FullRule =
    WithMore(Rule(kClassAscii, kLongestLinearText, Deviation::kD93_4), kClassAbove127,
             Deviation::kD93_2, Deviation::kD93_3);
constexpr TextRule kItf14Rule = WithShortest(Rule(kClassDigits, 14, kNoDeviation), 13);
constexpr TextRule kCode39FullRule = Rule(kClassAscii, 3114, kNoDeviation);

// clang-format off
constexpr SymbologyRow kRows[] = {
    Prepared(Read(Row(0, "Codabar", kCodabarText, kCodabarRule, EncodeCodabar, ReadCodabar), kBetweenTheEnds),
             PrepareCodabar, kFreeCheck | Checks(CheckScheme::kModulo16)),
    Prepared(Row(1, "Code 39", kCode39Text, kCode39Rule, EncodeCode39, ReadCode39),
             PrepareCode39, kFreeCheck | Checks(CheckScheme::kModulo43)),
    Row(2, "Code 93", kCode39Text, kCode93Rule, EncodeCode93, ReadCode93),
    Ean13(3, "EAN-13", {kEan13Text, "12 digits"}, EanUpcSymbol::kEan13),
    Prepared(Row(4, "MSI", "digits", kMsiRule, EncodeMsi, ReadMsi), PrepareMsi, kMsiChecks),
    Code128(5, "Code 128", Code128Policy::kAuto),
    Code128(6, "Code 128 from set A", Code128Policy::kFromA),
    Code128(7, "Code 128 set B", Code128Policy::kB),
    Code128(8, "Code 128 from set C", Code128Policy::kFromC),
    UpcA(9, "UPC-A", {kUpcAText, "11 digits"}, EanUpcSymbol::kUpcA),
    UpcE(10, "UPC-E", {kUpcEText, "7 digits: number system and six"}, EanUpcSymbol::kUpcE),
    Prepared(Row(11, "Code 11", "digits and -", kCode11Rule, EncodeCode11, ReadCode11), PrepareCode11, kCode11Checks),
    Ean8(12, "EAN-8", {kEan8Text, "7 digits"}, EanUpcSymbol::kEan8),
    UpcA(13, "UPC-A with 2-digit add-on", {kUpcATextAnd2, "13 digits: 11 and 2"}, EanUpcSymbol::kUpcAAddon2),
    UpcA(14, "UPC-A with 5-digit add-on", {kUpcATextAnd5, "16 digits: 11 and 5"}, EanUpcSymbol::kUpcAAddon5),
    Ean13(15, "EAN-13 with 2-digit add-on", {kEan13TextAnd2, "14 digits: 12 and 2"}, EanUpcSymbol::kEan13Addon2),
    Ean13(16, "EAN-13 with 5-digit add-on", {kEan13TextAnd5, "17 digits: 12 and 5"}, EanUpcSymbol::kEan13Addon5),
    Ean8(17, "EAN-8 with 2-digit add-on", {kEan8TextAnd2, "9 digits: 7 and 2"}, EanUpcSymbol::kEan8Addon2),
    Ean8(18, "EAN-8 with 5-digit add-on", {kEan8TextAnd5, "12 digits: 7 and 5"}, EanUpcSymbol::kEan8Addon5),
    UpcE(19, "UPC-E with 2-digit add-on", {kUpcETextAnd2, "9 digits: 7 and 2"}, EanUpcSymbol::kUpcEAddon2),
    UpcE(20, "UPC-E with 5-digit add-on", {kUpcETextAnd5, "12 digits: 7 and 5"}, EanUpcSymbol::kUpcEAddon5),
    Prepared(Read(Row(21, "Interleaved 2 of 5", "digits", kItfRule, EncodeInterleaved2of5, ReadInterleaved2of5), kInPairs),
             PrepareInterleaved2of5, kFreeCheck | Checks(CheckScheme::kInterleaved10)),
    Row(22, "Code 93, full ASCII", kAscii, kCode93FullRule, EncodeCode93, ReadCode93),
    Prepared(Row(101, "ITF-14", "13 or 14 digits", kItf14Rule, EncodeInterleaved2of5, ReadItf14),
             PrepareItf14, Checks(CheckScheme::kOwn, CheckScheme::kVerify)),
    Prepared(Row(102, "Code 39, full ASCII", kAscii, kCode39FullRule, EncodeCode39, ReadCode39FullAscii),
             PrepareCode39FullAscii, kFreeCheck | Checks(CheckScheme::kModulo43)),
};
// clang-format on
constexpr int kRowCount = sizeof kRows / sizeof *kRows;

constexpr bool NumbersAscendFromThoseOfTheDevice() {
  for (int row = 0; row < kRowCount; ++row) {
    if (row < kDeviceTypes && kRows[row].symbology != row) return false;
    if (row > 0 && kRows[row].symbology <= kRows[row - 1].symbology) return false;
  }
  return kRowCount >= kDeviceTypes;
}
static_assert(NumbersAscendFromThoseOfTheDevice(), "the type of the device is the index");

constexpr DeviceDrawings DrawingsOfTheDevice() {
  DeviceDrawings drawings{};
  for (int type = 0; type < kDeviceTypes; ++type) drawings.of[type] = kRows[type].drawing;
  return drawings;
}

}  // namespace

constexpr DeviceDrawings kDeviceDrawings = DrawingsOfTheDevice();

const SymbologyRow* RowOf(std::int32_t symbology) {
  for (const SymbologyRow& row : kRows) {
    if (row.symbology == symbology) return &row;
  }
  return nullptr;
}

}  // namespace barhatch
