// Module for module against an independent open-source generator (libzint), for data that no
// deviation touches. Built only where the generator is installed.
#include <gtest/gtest.h>
#include <zint.h>

#include <memory>
#include <string>

#include "support/OwnedString.h"
#include "support/SeededTexts.h"
#include "symbologies/CodabarSymbology.h"
#include "symbologies/Code11Symbology.h"
#include "symbologies/Code39Symbology.h"
#include "symbologies/Code93Symbology.h"
#include "symbologies/Ean13UpcASymbologies.h"
#include "symbologies/Ean8Symbologies.h"
#include "symbologies/EanUpcTesting.h"
#include "symbologies/Interleaved2of5Symbology.h"
#include "symbologies/MsiSymbology.h"
#include "symbologies/UpcESymbologies.h"

namespace barhatch {
namespace {

using test::SeededTexts;
using test::Take;

const std::string kDigits = "0123456789";

// The generator's modules as '1' and '0'; its error text when it refuses.
std::string ModulesOfTheGenerator(int symbology, int option, const std::string& text) {
  const std::unique_ptr<zint_symbol, void (*)(zint_symbol*)> symbol(ZBarcode_Create(),
                                                                    ZBarcode_Delete);
  symbol->symbology = symbology;
  symbol->option_2 = option;
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  if (ZBarcode_Encode(symbol.get(), bytes, static_cast<int>(text.size())) >= ZINT_ERROR) {
    return symbol->errtxt;
  }
  std::string modules;
  for (int x = 0; x < symbol->width; ++x) {
    modules += ((symbol->encoded_data[0][x / 8] >> (x % 8)) & 1) != 0 ? '1' : '0';
  }
  return modules;
}

std::string ModulesOf(const std::optional<std::string>& letters, std::size_t wide = 2) {
  std::string modules;
  for (char letter : letters.value_or("")) {
    const bool isWide = letter == 'B' || letter == 'b';
    modules.append(isWide ? wide : 1, letter == 'A' || letter == 'B' ? '1' : '0');
  }
  return modules;
}

TEST(GeneratorComparison, Code93FullAsciiWithoutTheDeviatingSigns) {
  std::string alphabet;
  for (char character = 1; character < 127; ++character) {
    if (std::string("$%+/").find(character) == std::string::npos) alphabet += character;
  }
  alphabet += '\x7F';
  SeededTexts texts(931);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next(alphabet, 1, 50);
    ASSERT_EQ(
        ModulesOf(Take(EncodeCode93(text.c_str(), Code93Input::kFullAscii, QuietZone::kNone))),
        ModulesOfTheGenerator(BARCODE_CODE93, 0, text));
  }
}

TEST(GeneratorComparison, Code93NativeSetWithoutTheDeviatingSigns) {
  SeededTexts texts(932);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. ", 1, 100);
    ASSERT_EQ(
        ModulesOf(Take(EncodeCode93(text.c_str(), Code93Input::kNativeSet, QuietZone::kNone))),
        ModulesOfTheGenerator(BARCODE_CODE93, 0, text));
  }
}

TEST(GeneratorComparison, MsiWithModulo10) {
  SeededTexts texts(4);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next(kDigits, 1, 60);
    ASSERT_EQ(ModulesOf(Take(EncodeMsi(text.c_str(), MsiCheckScheme::kModulo10, QuietZone::kNone))),
              ModulesOfTheGenerator(BARCODE_MSI_PLESSEY, 1, text));
  }
}

// The generator lets the gap stand after the last character too, where the light field follows.
TEST(GeneratorComparison, Codabar) {
  SeededTexts texts(18);
  for (int i = 0; i < 2000; ++i) {
    const std::string text =
        texts.Next("ABCD", 1, 1) + texts.Next("0123456789-$:/.+", 1, 50) + texts.Next("ABCD", 1, 1);
    ASSERT_EQ(ModulesOf(Take(EncodeCodabar(text.c_str(), QuietZone::kNone))) + "0",
              ModulesOfTheGenerator(BARCODE_CODABAR, 0, text));
  }
}

// The generator writes as many check characters as it is told to: one up to nine data characters,
// two above ten. Ten is D-11-1.
TEST(GeneratorComparison, Code11) {
  constexpr int kTwoChecks = 0;
  constexpr int kOneCheck = 1;
  SeededTexts texts(11);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next("0123456789-", 1, 100);
    ASSERT_EQ(
        ModulesOf(Take(EncodeCode11(text.c_str(), Code11CheckScheme::kModulo11, QuietZone::kNone))),
        ModulesOfTheGenerator(BARCODE_CODE11, text.size() < 10 ? kOneCheck : kTwoChecks, text))
        << text;
  }
}

// Both let the gap stand between characters and not after the last.
TEST(GeneratorComparison, Code39OfTheSafeCharacters) {
  SeededTexts texts(39);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next("0123456789ABCD-. $+", 1, 80);
    ASSERT_EQ(ModulesOf(Take(EncodeCode39(text.c_str(), QuietZone::kNone))),
              ModulesOfTheGenerator(BARCODE_CODE39, 0, text))
        << text;
  }
}

TEST(GeneratorComparison, Interleaved2of5) {
  constexpr std::size_t kWide = 3;
  SeededTexts texts(25);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next(kDigits, 1, 80);
    ASSERT_EQ(ModulesOf(Take(EncodeInterleaved2of5(text.c_str(), QuietZone::kNone)), kWide),
              ModulesOfTheGenerator(BARCODE_C25INTER, 0, text))
        << text;
  }
}

// The generator refuses the digits of a UPC-E symbol whose UPC-A number has another, preferred
// form.
bool HasAnotherUpcEForm(const std::string& upcE) {
  const char last = upcE[6];
  if (last == '3') return upcE[3] <= '2';
  if (last == '4') return upcE[4] == '0';
  return last >= '5' && upcE[5] == '0';
}

// The generator wants '+' in front of an add-on and is told the modules between it and the symbol.
// For UPC-A it takes nine at least; one of them is cut out again.
std::string EanUpcOfTheGenerator(int symbology, const std::string& symbol,
                                 const std::string& addOn) {
  constexpr int kGap = 8;  // D-EAN-1
  if (addOn.empty()) return ModulesOfTheGenerator(symbology, 0, symbol);
  const std::string text = symbol + '+' + addOn;
  if (symbology != BARCODE_UPCA) return ModulesOfTheGenerator(symbology, kGap, text);
  return ModulesOfTheGenerator(symbology, kGap + 1, text).erase(95, 1);
}

template <typename EanUpcClass>
void CompareEanUpc(int symbology, const std::string& alphabetOfTheFirst, std::size_t digits,
                   std::size_t addOnDigits = 0) {
  SeededTexts texts(13);
  for (int i = 0; i < 1000; ++i) {
    const std::string symbol =
        texts.Next(alphabetOfTheFirst, 1, 1) + texts.Next(kDigits, digits - 1, digits - 1);
    const std::string addOn = texts.Next(kDigits, addOnDigits, addOnDigits);
    if (symbology == BARCODE_UPCE && HasAnotherUpcEForm(symbol)) continue;
    ASSERT_EQ(ModulesOf(test::Encode<EanUpcClass>(symbol + addOn)),
              EanUpcOfTheGenerator(symbology, symbol, addOn))
        << symbol << '+' << addOn;
  }
}

TEST(GeneratorComparison, Ean13) {
  CompareEanUpc<Ean13Symbology>(BARCODE_EANX, kDigits, 12);
  CompareEanUpc<Ean13Addon2Symbology>(BARCODE_EANX, kDigits, 12, 2);
  CompareEanUpc<Ean13Addon5Symbology>(BARCODE_EANX, kDigits, 12, 5);
}

TEST(GeneratorComparison, Ean8) {
  CompareEanUpc<Ean8Symbology>(BARCODE_EANX, kDigits, 7);
  CompareEanUpc<Ean8Addon2Symbology>(BARCODE_EANX, kDigits, 7, 2);
  CompareEanUpc<Ean8Addon5Symbology>(BARCODE_EANX, kDigits, 7, 5);
}

TEST(GeneratorComparison, UpcA) {
  CompareEanUpc<UpcASymbology>(BARCODE_UPCA, kDigits, 11);
  CompareEanUpc<UpcAAddon2Symbology>(BARCODE_UPCA, kDigits, 11, 2);
  CompareEanUpc<UpcAAddon5Symbology>(BARCODE_UPCA, kDigits, 11, 5);
}

TEST(GeneratorComparison, UpcE) {
  CompareEanUpc<UpcESymbology>(BARCODE_UPCE, "01", 7);
  CompareEanUpc<UpcEAddon2Symbology>(BARCODE_UPCE, "01", 7, 2);
  CompareEanUpc<UpcEAddon5Symbology>(BARCODE_UPCE, "01", 7, 5);
}

}  // namespace
}  // namespace barhatch
