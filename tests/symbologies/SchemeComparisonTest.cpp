// Check characters and full ASCII by the book, module for module against an independent open-source
// generator (libzint). Built only where the generator is installed.
#include <gtest/gtest.h>
#include <zint.h>

#include <memory>
#include <string>

#include "barhatch_mark.h"
#include "support/GeneratorModules.h"
#include "support/SeededTexts.h"
#include "symbologies/DrawnSymbol.h"

namespace barhatch {
namespace {

using test::ModulesOfTheGenerator;
using test::SeededTexts;

const std::string kDigits = "0123456789";
const std::string kCode39Set = kDigits + "ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

// What the generator does otherwise, and how its symbol becomes ours.
enum class Difference {
  kNone,
  kGapBehind,   // the gap stands behind the last character of Codabar too
  kTenAsDigits  // a check of 10 modulo 11 is written as the digits 1 and 0: we refuse it
};

struct Comparison {
  const char* name;
  int theirs;
  int option;
  std::int32_t symbology;
  CheckScheme check;
  std::string alphabet;
  std::size_t shortest;
  std::size_t longest;
  std::size_t wide;  // modules of a wide element
  Difference difference;
};

const std::string kAscii = [] {
  std::string alphabet;
  for (int character = 0; character < 128; ++character) alphabet += static_cast<char>(character);
  return alphabet;
}();

const Comparison kComparisons[] = {
    {"MsiNone", BARCODE_MSI_PLESSEY, 0, 4, CheckScheme::kNone, kDigits, 1, 60, 2, {}},
    {"Msi10", BARCODE_MSI_PLESSEY, 1, 4, CheckScheme::kMsi10, kDigits, 1, 60, 2, {}},
    {"Msi10And10", BARCODE_MSI_PLESSEY, 2, 4, CheckScheme::kMsi10And10, kDigits, 1, 60, 2, {}},
    {"Msi11", BARCODE_MSI_PLESSEY, 3, 4, CheckScheme::kMsi11, kDigits, 1, 55, 2,
     Difference::kTenAsDigits},
    {"Msi11And10", BARCODE_MSI_PLESSEY, 4, 4, CheckScheme::kMsi11And10, kDigits, 1, 55, 2,
     Difference::kTenAsDigits},
    {"MsiNcr11", BARCODE_MSI_PLESSEY, 5, 4, CheckScheme::kMsiNcr11, kDigits, 1, 55, 2,
     Difference::kTenAsDigits},
    {"MsiNcr11And10", BARCODE_MSI_PLESSEY, 6, 4, CheckScheme::kMsiNcr11And10, kDigits, 1, 55, 2,
     Difference::kTenAsDigits},
    {"Code11CAndK", BARCODE_CODE11, 0, 11, CheckScheme::kCode11CAndK, kDigits + "-", 1, 100, 2, {}},
    {"Code11C", BARCODE_CODE11, 1, 11, CheckScheme::kCode11C, kDigits + "-", 1, 100, 2, {}},
    {"Code11None", BARCODE_CODE11, 2, 11, CheckScheme::kNone, kDigits + "-", 1, 100, 2, {}},
    {"Code39", BARCODE_CODE39, 1, 1, CheckScheme::kModulo43, kCode39Set, 1, 80, 2, {}},
    {"Code39FullAscii", BARCODE_EXCODE39, 0, 102, CheckScheme::kOwn, kAscii, 1, 40, 2, {}},
    {"Code39FullAsciiChecked",
     BARCODE_EXCODE39,
     1,
     102,
     CheckScheme::kModulo43,
     kAscii,
     1,
     40,
     2,
     {}},
    {"Codabar", BARCODE_CODABAR, 1, 0, CheckScheme::kModulo16, kDigits + "-$:/.+", 1, 50, 2,
     Difference::kGapBehind},
    {"Interleaved2of5",
     BARCODE_C25INTER,
     1,
     21,
     CheckScheme::kInterleaved10,
     kDigits,
     1,
     80,
     3,
     {}},
    {"Itf14", BARCODE_ITF14, 0, 101, CheckScheme::kOwn, kDigits, 13, 13, 3, {}},
};

std::string ModulesOf(const std::string& letters, std::size_t wide) {
  std::string modules;
  for (const char letter : letters) {
    const bool isWide = letter == 'B' || letter == 'b';
    modules.append(isWide ? wide : 1, letter == 'A' || letter == 'B' ? '1' : '0');
  }
  return modules;
}

class SchemeComparison : public testing::TestWithParam<Comparison> {
 protected:
  static std::string Text(SeededTexts& texts) {
    const Comparison& comparison = GetParam();
    const std::string data =
        texts.Next(comparison.alphabet, comparison.shortest, comparison.longest);
    if (comparison.symbology != BARHATCH_CODABAR) return data;
    return texts.Next("ABCD", 1, 1) + data + texts.Next("ABCD", 1, 1);
  }
};

TEST_P(SchemeComparison, EveryBarIsTheGenerators) {
  const Comparison& comparison = GetParam();
  LinearOptions options;
  options.check = comparison.check;
  SeededTexts texts(static_cast<std::uint32_t>(comparison.theirs * 10 + comparison.option));
  int drawn = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string text = Text(texts);
    const test::PublishedSymbol symbol = test::DrawByTheBook(comparison.symbology, text, options);
    if (!symbol.letters) {
      ASSERT_EQ(comparison.difference, Difference::kTenAsDigits) << text;
      ASSERT_EQ(symbol.refusal.reason, Reason::kNoCheck) << text;
      continue;
    }
    std::string expected = ModulesOfTheGenerator(comparison.theirs, comparison.option, text);
    if (comparison.difference == Difference::kGapBehind) expected.pop_back();
    ASSERT_EQ(ModulesOf(*symbol.letters, comparison.wide), expected) << text;
    ++drawn;
  }
  EXPECT_GT(drawn, 2500);
}

INSTANTIATE_TEST_SUITE_P(Schemes, SchemeComparison, testing::ValuesIn(kComparisons),
                         [](const auto& comparison) { return comparison.param.name; });

}  // namespace
}  // namespace barhatch
