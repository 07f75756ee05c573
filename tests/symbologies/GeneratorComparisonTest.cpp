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
#include "symbologies/Code93Symbology.h"
#include "symbologies/MsiSymbology.h"

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

// A module string with wide elements of two modules.
std::string ModulesOf(const std::optional<std::string>& letters) {
  std::string modules;
  for (char letter : letters.value_or("")) {
    if (letter == 'A') modules += "1";
    if (letter == 'B') modules += "11";
    if (letter == 'a') modules += "0";
    if (letter == 'b') modules += "00";
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

}  // namespace
}  // namespace barhatch
