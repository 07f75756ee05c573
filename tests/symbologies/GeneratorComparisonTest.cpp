// Module for module against an independent open-source generator (libzint): marks by the book, and
// those of the device wherever no deviation touches them. Built only where the generator is
// installed.
#include <gtest/gtest.h>
#include <zint.h>

#include <algorithm>
#include <memory>
#include <string>

#include "support/EanUpcReader.h"
#include "support/GeneratorModules.h"
#include "support/SeededTexts.h"
#include "symbologies/DrawnSymbol.h"
#include "symbologies/EanUpcTesting.h"

namespace barhatch {
namespace {

using test::ModulesOfTheGenerator;
using test::SeededTexts;

const std::string kDigits = "0123456789";

std::string ModulesOf(const std::optional<std::string>& letters, std::size_t wide = 2) {
  std::string modules;
  for (char letter : letters.value_or("")) {
    const bool isWide = letter == 'B' || letter == 'b';
    modules.append(isWide ? wide : 1, letter == 'A' || letter == 'B' ? '1' : '0');
  }
  return modules;
}

// By the book, and by the device if nothing of the text is a deviation's.
void ExpectModules(const std::string& expected, int type, const std::string& text,
                   std::size_t wide = 2) {
  const test::DrawnSymbol device =
      test::Draw(type, text, test::QuietZone::kNone, DeviationSet::All());
  EXPECT_EQ(ModulesOf(test::DrawnByTheBook(type, text), wide), expected) << type << " " << text;
  if (device.met.Bits() != 0) return;
  EXPECT_EQ(ModulesOf(device.letters, wide), expected) << type << " " << text;
}

TEST(GeneratorComparison, Code93FullAscii) {
  std::string alphabet;
  for (int character = 0; character < 128; ++character) alphabet += static_cast<char>(character);
  SeededTexts texts(931);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next(alphabet, 1, 50);
    ExpectModules(ModulesOfTheGenerator(BARCODE_CODE93, 0, text), 22, text);
  }
}

TEST(GeneratorComparison, Code93NativeSet) {
  SeededTexts texts(932);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%", 1, 100);
    ExpectModules(ModulesOfTheGenerator(BARCODE_CODE93, 0, text), 2, text);
  }
}

TEST(GeneratorComparison, MsiWithModulo10) {
  SeededTexts texts(4);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next(kDigits, 1, 60);
    ExpectModules(ModulesOfTheGenerator(BARCODE_MSI_PLESSEY, 1, text), 4, text);
  }
}

// The generator lets the gap stand after the last character too, where the light field follows.
TEST(GeneratorComparison, Codabar) {
  SeededTexts texts(18);
  for (int i = 0; i < 2000; ++i) {
    const std::string text =
        texts.Next("ABCD", 1, 1) + texts.Next("0123456789-$:/.+", 1, 50) + texts.Next("ABCD", 1, 1);
    std::string expected = ModulesOfTheGenerator(BARCODE_CODABAR, 0, text);
    expected.pop_back();
    ExpectModules(expected, 0, text);
  }
}

// The generator writes as many check characters as it is told to: one up to ten data characters,
// two above.
TEST(GeneratorComparison, Code11) {
  constexpr int kTwoChecks = 0;
  constexpr int kOneCheck = 1;
  SeededTexts texts(11);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next("0123456789-", 1, 40);
    const int checks = text.size() <= 10 ? kOneCheck : kTwoChecks;
    ExpectModules(ModulesOfTheGenerator(BARCODE_CODE11, checks, text), 11, text);
  }
}

// Both let the gap stand between characters and not after the last.
TEST(GeneratorComparison, Code39) {
  SeededTexts texts(39);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%", 1, 80);
    ExpectModules(ModulesOfTheGenerator(BARCODE_CODE39, 0, text), 1, text);
  }
}

TEST(GeneratorComparison, Interleaved2of5) {
  constexpr std::size_t kWide = 3;
  SeededTexts texts(25);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = texts.Next(kDigits, 1, 80);
    ExpectModules(ModulesOfTheGenerator(BARCODE_C25INTER, 0, text), 21, text, kWide);
  }
}

// The generator's choice of sets is its own: never shorter than the shortest.
TEST(GeneratorComparison, Code128IsNeverLonger) {
  std::string alphabet = kDigits + kDigits + kDigits + kDigits;
  for (int character = 1; character < 128; ++character) alphabet += static_cast<char>(character);
  SeededTexts texts(128);
  int shorter = 0;
  for (int i = 0; i < 10000; ++i) {
    const std::string text = texts.Next(alphabet, 1, 40);
    const std::string theirs = ModulesOfTheGenerator(BARCODE_CODE128, 0, text);
    const std::string ours = ModulesOf(test::DrawnByTheBook(5, text));
    ASSERT_LE(ours.size(), theirs.size()) << text;
    shorter += ours.size() < theirs.size() ? 1 : 0;
  }
  RecordProperty("shorter", shorter);
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
std::string EanUpcOfTheGenerator(int symbology, const std::string& symbol,
                                 const std::string& addOn) {
  constexpr int kGap = 9;
  return addOn.empty() ? ModulesOfTheGenerator(symbology, 0, symbol)
                       : ModulesOfTheGenerator(symbology, kGap, symbol + '+' + addOn);
}

// The device leaves eight modules in front of an add-on: with one more it is the generator's.
std::string WithGapByTheBook(std::string modules, std::size_t gapAt) {
  return gapAt < modules.size() ? modules.insert(gapAt, 1, '0') : modules;
}

struct EanUpcCase {
  int type;
  int symbology;
  std::size_t digits;
  std::size_t addOnDigits;
  std::size_t mainModules;
};

void CompareEanUpc(const EanUpcCase& c, const std::string& alphabetOfTheFirst) {
  SeededTexts texts(13);
  for (int i = 0; i < 1000; ++i) {
    const std::string symbol =
        texts.Next(alphabetOfTheFirst, 1, 1) + texts.Next(kDigits, c.digits - 1, c.digits - 1);
    const std::string addOn = texts.Next(kDigits, c.addOnDigits, c.addOnDigits);
    if (c.symbology == BARCODE_UPCE && HasAnotherUpcEForm(symbol)) continue;
    const std::string expected = EanUpcOfTheGenerator(c.symbology, symbol, addOn);
    const bool isStandard = c.type != test::kEan8Addon2 && c.type != test::kEan8Addon5 &&
                            !(c.symbology == BARCODE_UPCE && symbol[0] == '1');
    const std::string published = ModulesOf(test::DrawnByTheBook(c.type, symbol + addOn));
    ASSERT_EQ(published, isStandard ? expected : "") << symbol << '+' << addOn;
    ASSERT_EQ(
        WithGapByTheBook(ModulesOf(test::DrawnByTheDevice(c.type, symbol + addOn)), c.mainModules),
        expected)
        << symbol << '+' << addOn;
  }
}

TEST(GeneratorComparison, Ean13) {
  CompareEanUpc({test::kEan13, BARCODE_EANX, 12, 0, 95}, kDigits);
  CompareEanUpc({test::kEan13Addon2, BARCODE_EANX, 12, 2, 95}, kDigits);
  CompareEanUpc({test::kEan13Addon5, BARCODE_EANX, 12, 5, 95}, kDigits);
}

TEST(GeneratorComparison, Ean8) {
  CompareEanUpc({test::kEan8, BARCODE_EANX, 7, 0, 67}, kDigits);
  CompareEanUpc({test::kEan8Addon2, BARCODE_EANX, 7, 2, 67}, kDigits);
  CompareEanUpc({test::kEan8Addon5, BARCODE_EANX, 7, 5, 67}, kDigits);
}

TEST(GeneratorComparison, UpcA) {
  CompareEanUpc({test::kUpcA, BARCODE_UPCA, 11, 0, 95}, kDigits);
  CompareEanUpc({test::kUpcAAddon2, BARCODE_UPCA, 11, 2, 95}, kDigits);
  CompareEanUpc({test::kUpcAAddon5, BARCODE_UPCA, 11, 5, 95}, kDigits);
}

TEST(GeneratorComparison, UpcE) {
  CompareEanUpc({test::kUpcE, BARCODE_UPCE, 7, 0, 51}, "01");
  CompareEanUpc({test::kUpcEAddon2, BARCODE_UPCE, 7, 2, 51}, "01");
  CompareEanUpc({test::kUpcEAddon5, BARCODE_UPCE, 7, 5, 51}, "01");
}

// Texts as hosts have them: with a check digit that is right or wrong, UPC-E in its short forms, an
// add-on behind its sign at any gap.
struct EanUpcKind {
  int type;
  int symbology;
  std::size_t digits;  // without the check digit
  int leastGap;
  std::string firsts;
};

std::string RandomMainDigits(const EanUpcKind& kind, SeededTexts& texts) {
  std::string digits =
      texts.Next(kind.firsts, 1, 1) + texts.Next(kDigits, kind.digits - 1, kind.digits - 1);
  const bool isUpcE = kind.symbology == BARCODE_UPCE;
  switch (texts.Next("0123456789", 1, 1)[0]) {
    case '0':
    case '1':
    case '2':
      return digits;
    case '3':
    case '4':
      return isUpcE && digits[0] == '0' ? digits.substr(1) : digits;
    case '5':
      return digits + texts.Next(kDigits, 1, 1);
    default:
      return digits + test::MissingCheckDigit(isUpcE ? test::ExpandedUpcE(digits) : digits);
  }
}

struct Tally {
  int drawn = 0;
  int refused = 0;
};

// The generator takes eight digits as an EAN-13 with zeros in front: it is asked for the seven that
// a right check digit stands behind.
std::string EanUpcOfTheGeneratorByTheBook(const EanUpcKind& kind, std::string text, int gap) {
  const std::size_t digits = std::min(text.find('+'), text.size());
  if (kind.digits == 7 && kind.symbology == BARCODE_EANX && digits == 8) {
    if (text[7] != test::MissingCheckDigit(text.substr(0, 7))) return "refused";
    text.erase(7, 1);
  }
  const bool hasAddon = text.find('+') != std::string::npos;
  return ModulesOfTheGenerator(kind.symbology, hasAddon ? gap : 0, text);
}

// Both draw the same, or both refuse.
void CompareEanUpcText(const EanUpcKind& kind, const std::string& text, int gap, Tally& tally) {
  DeviationSet permitted;
  permitted.Add(Deviation::kDEAN_2);
  permitted.Add(Deviation::kDEAN_3);
  LinearOptions options;
  options.addonGap = gap;
  const std::string ours = ModulesOf(
      test::DrawByTheBook(kind.type, text, options, test::QuietZone::kNone, permitted).letters);
  const std::string theirs = EanUpcOfTheGeneratorByTheBook(kind, text, gap);
  const bool isDrawn = theirs.find_first_not_of("01") == std::string::npos;
  (isDrawn ? tally.drawn : tally.refused)++;
  ASSERT_EQ(ours, isDrawn ? theirs : "") << kind.type << " " << text << ": " << theirs;
}

void CompareEanUpcTexts(const EanUpcKind& kind) {
  SeededTexts texts(1516);
  Tally tally;
  for (int i = 0; i < 4000; ++i) {
    std::string text = RandomMainDigits(kind, texts);
    if (i % 3 != 0) text += '+' + texts.Next(kDigits, i % 3 == 1 ? 2 : 5, i % 3 == 1 ? 2 : 5);
    CompareEanUpcText(kind, text, kind.leastGap + i % (13 - kind.leastGap), tally);
  }
  EXPECT_GT(tally.drawn, 2000);
  EXPECT_GT(tally.refused, 200) << "wrong check digits";
}

TEST(GeneratorComparison, EanAndUpcAsHostsGiveThem) {
  CompareEanUpcTexts({test::kEan13, BARCODE_EANX, 12, 7, kDigits});
  CompareEanUpcTexts({test::kUpcA, BARCODE_UPCA, 11, 9, kDigits});
  CompareEanUpcTexts({test::kEan8, BARCODE_EANX, 7, 7, kDigits});
  CompareEanUpcTexts({test::kUpcE, BARCODE_UPCE, 7, 9, "01"});
}

}  // namespace
}  // namespace barhatch
