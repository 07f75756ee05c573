#include "symbologies/Msi.h"

#include <gtest/gtest.h>

#include <string>

#include "api/BarcodeSettings.h"
#include "support/GenerateThroughExports.h"
#include "support/Modules.h"
#include "support/MsiReader.h"
#include "support/OwnedString.h"
#include "support/SeededTexts.h"
#include "support/SettingsFixture.h"
#include "symbologies/DrawnSymbol.h"

namespace barhatch {
namespace {

using test::GenerateThroughExports;
using test::Modules;
using test::PublishedMsiModulo10;
using test::Quiet;
using test::QuietZone;
using test::ReadMsi;
using test::ReadMsiDigits;
using test::Take;

std::optional<std::string> Encode(const std::string& text, QuietZone quietZone = QuietZone::kNone) {
  return test::DrawnByTheDevice(4, text, quietZone);
}

std::optional<std::string> TextOf(const std::optional<std::string>& symbol) {
  return symbol ? ReadMsi(*symbol) : std::nullopt;
}

char Modulo10(const std::string& digits) {
  return MsiModulo10Check({digits.c_str(), digits.size()});
}
int Modulo11(const std::string& digits, int lastWeight = kMsiLastWeight) {
  return MsiModulo11Check({digits.c_str(), digits.size()}, lastWeight);
}

TEST(Msi, OneTwoThreeFourHasTheCheckDigitFour) {
  EXPECT_EQ(Encode("1234"), Modules("110"
                                    "100100100110 100100110100 100100110110 100110100100"
                                    "100110100100 1001"));
  EXPECT_EQ(ReadMsiDigits(*Encode("1234")), "12344");
  EXPECT_EQ(Encode("1234")->size(), 67u);
}

// The worked example of the public descriptions of MSI: 1234567 has the modulo-10 digit 4.
TEST(Msi, PublishedExampleOneToSevenHasTheCheckDigitFour) {
  EXPECT_EQ(ReadMsiDigits(*Encode("1234567")), "12345674");
}

TEST(Msi, NineIsOneZeroZeroOne) {
  // 9 doubled is 18, digit sum 9, check digit 1.
  EXPECT_EQ(Encode("9"), Modules("110 110100100110 100100100110 1001"));
}

TEST(Msi, QuietZoneIsTenLightModulesAtEachEnd) {
  EXPECT_EQ(Encode("1234", QuietZone::kBothEnds), Quiet() + *Encode("1234") + Quiet());
  EXPECT_EQ(Encode("", QuietZone::kBothEnds), Quiet() + *Encode("") + Quiet());
}

TEST(Msi, LetterAmongTheDigitsIsRefused) { EXPECT_FALSE(Encode("12a")); }

TEST(Msi, DigitsAreAcceptedAndNoOtherByte) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string character(1, static_cast<char>(byte));
    const bool expected = byte >= '0' && byte <= '9';
    EXPECT_EQ(Encode(character).has_value(), expected) << byte;
    EXPECT_EQ(Encode("12" + character).has_value(), expected) << byte;
    EXPECT_EQ(Encode(character + "12").has_value(), expected) << byte;
  }
}

TEST(Msi, AllTextsOfUpToFourDigitsReadBack) {
  for (int number = 0; number < 10000; ++number) {
    const std::string digits = std::to_string(number);
    const std::string padded = std::string(4 - digits.size(), '0') + digits;
    ASSERT_EQ(TextOf(Encode(digits)), digits);
    ASSERT_EQ(TextOf(Encode(padded)), padded);
  }
}

TEST(Msi, RandomTextsReadBackAtAnyLength) {
  test::SeededTexts texts(4);
  for (int i = 0; i < 3000; ++i) {
    const std::string text = texts.Next("0123456789", 1, 80);
    ASSERT_EQ(TextOf(Encode(text)), text) << "text " << i;
  }
}

// Texts of 18 digits and fewer double a number of at most nine digits, which 32 bits can hold up to
// 2147483647: these are the longest on either side of that.
TEST(Msi, CheckDigitIsExactOnBothSidesOf32Bits) {
  for (const char* text : {"199999999999999999", "2010407040803060407", "2010407040803060408",
                           "9999999999999999999", "99999999999999999999"}) {
    EXPECT_EQ(Modulo10(text), PublishedMsiModulo10(text)) << text;
  }
  // 999999999 doubled is 1999999998 with the digit sum 81, and nine more nines give 162.
  EXPECT_EQ(Modulo10("999999999999999999"), '8');
  // 9999999999 doubled is 19999999998 with the digit sum 90, and nine more nines give 171.
  EXPECT_EQ(Modulo10("9999999999999999999"), '9');
}

TEST(Msi, LongestTextIsWrittenWholeWithAnExactCheckDigit) {
  for (std::size_t length : {3117u, 3118u, 3119u}) {
    const std::string text(length, '7');
    const auto symbol = Encode(text, QuietZone::kBothEnds);
    ASSERT_TRUE(symbol);
    EXPECT_EQ(symbol->size(), 3 + 12 * (length + 1) + 4 + 20);
    EXPECT_EQ(symbol->substr(symbol->size() - 10), Quiet());
    EXPECT_EQ(ReadMsi(*symbol), text);
  }
}

TEST(MsiReaderItself, DoublesNumbersWithCarry) {
  EXPECT_EQ(test::Doubled(""), "");
  EXPECT_EQ(test::Doubled("24"), "48");
  EXPECT_EQ(test::Doubled("77"), "154");
  EXPECT_EQ(test::Doubled("999999999"), "1999999998");
}

// Weights 2 3 4 5 6 7 from the right: 4 x 2 + 3 x 3 + 2 x 4 + 1 x 5 = 30, and 11 - 8 is 3.
TEST(MsiModulo11, WeightsRiseFromTwoAtTheRight) { EXPECT_EQ(Modulo11("1234"), 3); }

TEST(MsiModulo11, WeightsComeRoundAfterSeven) {
  EXPECT_EQ(Modulo11("100000"), 4);   // 11 - 7
  EXPECT_EQ(Modulo11("1000000"), 9);  // 11 - 2
  EXPECT_EQ(Modulo11("10000000"), 8);
  EXPECT_EQ(Modulo11("1000000000000"), 9);
}

TEST(MsiModulo11, NoRemainderGivesZero) {
  EXPECT_EQ(Modulo11(""), 0);
  EXPECT_EQ(Modulo11("000"), 0);
  EXPECT_EQ(Modulo11("14"), 0);  // 4 x 2 + 1 x 3 = 11
}

TEST(MsiModulo11, CheckOfTenIsTen) {
  EXPECT_EQ(Modulo11("6"), 10);  // 6 x 2 = 12, and 11 - 1 is 10
}

TEST(MsiModulo11, WeightsOfNcrComeRoundAfterNine) {
  EXPECT_EQ(Modulo11("1000000", kMsiLastWeightOfNcr), 3);    // 11 - 8
  EXPECT_EQ(Modulo11("10000000", kMsiLastWeightOfNcr), 2);   // 11 - 9
  EXPECT_EQ(Modulo11("100000000", kMsiLastWeightOfNcr), 9);  // 11 - 2
}

class MsiExports : public test::SettingsFixture {};

TEST_F(MsiExports, TypeFourHasTheModulo10CheckDigit) {
  EXPECT_EQ(GenerateThroughExports(4, u"1234567"), Encode("1234567"));
  EXPECT_EQ(GenerateThroughExports(4, u"12a"), std::nullopt);
  EXPECT_EQ(GenerateThroughExports(4, u"\u0131\u0232"), Encode("12"));
}

TEST_F(MsiExports, QuietZoneFollowsTheSetting) {
  CurrentSettings().QuietZone = 1;
  EXPECT_EQ(GenerateThroughExports(4, u"12"), Quiet() + *Encode("12") + Quiet());
}

TEST_F(MsiExports, LongestTextIsWrittenWhole) {
  CurrentSettings().QuietZone = 1;
  EXPECT_EQ(TextOf(GenerateThroughExports(4, std::u16string(3119, u'9'))), std::string(3119, '9'));
}

TEST(MsiDeviations, DMSI1EmptyTextIsTheCheckDigitZeroAlone) {
  EXPECT_EQ(Encode(""), Modules("110 100100100100 1001"));
  EXPECT_EQ(Encode("")->size(), 19u);
}

}  // namespace
}  // namespace barhatch
