#include "symbologies/Ean13UpcA.h"

#include <gtest/gtest.h>

#include <string>

#include "support/EanUpcReader.h"
#include "support/Modules.h"
#include "symbologies/EanUpcElements.h"
#include "symbologies/EanUpcTesting.h"

namespace barhatch {
namespace {

using test::Encode;
using test::Modules;
using test::Quiet;
using test::QuietZone;
using test::ReadEanUpc;

// GS1 General Specifications, example of EAN-13: 9501101531000.
TEST(Ean13, PublishedExampleIsDrawnDigitByDigit) {
  EXPECT_EQ(Encode<test::kEan13>("950110153100"),
            Modules("101 0110001 0100111 0110011 0011001 0100111 0011001 01010 "
                    "1001110 1000010 1100110 1110010 1110010 1110010 101"));
}

// GS1 General Specifications, example of EAN-13 with a two-digit add-on: 9771384524017 and 12.
TEST(Ean13, PublishedExampleWithTwoDigitAddonIsDrawnDigitByDigit) {
  EXPECT_EQ(Encode<test::kEan13Addon2>("97713845240112"),
            Modules("101 0111011 0010001 0110011 0111101 0001001 0100011 01010 "
                    "1001110 1101100 1011100 1110010 1100110 1000100 101 "
                    "00000000 1011 0011001 01 0010011"));
}

// GS1 General Specifications, example of EAN-13 with a five-digit add-on: 9780877799306 and 54321.
TEST(Ean13, PublishedExampleWithFiveDigitAddonIsDrawnDigitByDigit) {
  EXPECT_EQ(Encode<test::kEan13Addon5>("97808777993054321"),
            Modules("101 0111011 0001001 0100111 0110111 0010001 0111011 01010 "
                    "1000100 1110100 1110100 1000010 1110010 1010000 101 "
                    "00000000 1011 0111001 01 0100011 01 0100001 01 0010011 01 0011001"));
}

TEST(Ean13, FirstDigitFourGivesParityLGLLGGAndCheckDigitOne) {
  EXPECT_STREQ(FirstDigitParity('4'), "010011");
  EXPECT_EQ(Encode<test::kEan13>("400638133393"),
            Modules("101 0001101 0100111 0101111 0111101 0001001 0110011 01010 "
                    "1000010 1000010 1000010 1110100 1000010 1100110 101"));
  EXPECT_EQ(ReadEanUpc(*Encode<test::kEan13>("400638133393"))->digits, "4006381333931");
}

TEST(Ean13, EveryFirstDigitIsReadBackFromTheParities) {
  for (char first = '0'; first <= '9'; ++first) {
    const std::string digits = first + std::string("12345678902");
    const auto reading = ReadEanUpc(*Encode<test::kEan13>(digits));
    ASSERT_TRUE(reading) << digits;
    EXPECT_EQ(reading->digits, digits + test::MissingCheckDigit(digits));
  }
}

TEST(Ean13, AddonOfValueTwelveIsDrawnFromLAlone) {
  const std::string drawn = *Encode<test::kEan13Addon2>("40063813339312");
  EXPECT_EQ(drawn.substr(95), Modules("00000000 1011 0011001 01 0010011"));
}

TEST(Ean13, AddonOfCheckValueOneIsDrawnFromGLGLL) {
  EXPECT_STREQ(AddonParity("52495", 5), "10100");
  const std::string drawn = *Encode<test::kEan13Addon5>("40063813339352495");
  EXPECT_EQ(drawn.substr(95),
            Modules("00000000 1011 0111001 01 0010011 01 0011101 01 0001011 01 0110001"));
}

TEST(Ean13, QuietZonesAreElevenAndSevenModules) {
  EXPECT_EQ(Encode<test::kEan13>("950110153100", QuietZone::kBothEnds),
            Quiet(11) + *Encode<test::kEan13>("950110153100") + Quiet(7));
  EXPECT_EQ(Encode<test::kEan13Addon2>("97713845240112", QuietZone::kBothEnds),
            Quiet(11) + *Encode<test::kEan13Addon2>("97713845240112") + Quiet(7));
  EXPECT_EQ(Encode<test::kEan13Addon5>("97808777993054321", QuietZone::kBothEnds),
            Quiet(11) + *Encode<test::kEan13Addon5>("97808777993054321") + Quiet(7));
}

TEST(Ean13, NumberWithItsCheckDigitIsRefusedRightOrWrong) {
  for (char check = '0'; check <= '9'; ++check) {
    EXPECT_FALSE(Encode<test::kEan13>(std::string("950110153100") + check)) << check;
  }
}

TEST(UpcA, IsEan13BehindAZeroButForTheQuietZones) {
  const std::string drawn = *Encode<test::kUpcA>("03600029145");
  EXPECT_EQ(drawn, Encode<test::kEan13>("003600029145"));
  EXPECT_EQ(drawn, Modules("101 0001101 0111101 0101111 0001101 0001101 0001101 01010 "
                           "1101100 1110100 1100110 1011100 1001110 1101100 101"));
  EXPECT_EQ(Encode<test::kUpcA>("03600029145", QuietZone::kBothEnds), Quiet(9) + drawn + Quiet(9));
  EXPECT_EQ(Encode<test::kEan13>("003600029145", QuietZone::kBothEnds),
            Quiet(11) + drawn + Quiet(7));
}

TEST(UpcA, FirstDigitIsDrawnAndNotImplied) {
  for (char first = '0'; first <= '9'; ++first) {
    const std::string digits = first + std::string("2345678901");
    const auto reading = ReadEanUpc(*Encode<test::kUpcA>(digits));
    ASSERT_TRUE(reading) << digits;
    EXPECT_EQ(reading->digits, "0" + digits + test::MissingCheckDigit(digits));
  }
}

TEST(UpcA, AddonFollowsAsBesideEan13) {
  EXPECT_EQ(Encode<test::kUpcAAddon2>("0360002914512"),
            Encode<test::kEan13Addon2>("00360002914512"));
  EXPECT_EQ(Encode<test::kUpcAAddon5>("0360002914552495"),
            Encode<test::kEan13Addon5>("00360002914552495"));
}

TEST(UpcA, QuietZonesBehindAnAddonAreNineModules) {
  EXPECT_EQ(Encode<test::kUpcAAddon2>("0360002914512", QuietZone::kBothEnds),
            Quiet(9) + *Encode<test::kUpcAAddon2>("0360002914512") + Quiet(9));
  EXPECT_EQ(Encode<test::kUpcAAddon5>("0360002914552495", QuietZone::kBothEnds),
            Quiet(9) + *Encode<test::kUpcAAddon5>("0360002914552495") + Quiet(9));
}

TEST(UpcA, WithTwoDigitAddonTakesThirteenDigits) {
  EXPECT_FALSE(Encode<test::kUpcAAddon2>("036000291451"));
  EXPECT_TRUE(Encode<test::kUpcAAddon2>("0360002914512"));
  EXPECT_FALSE(Encode<test::kUpcAAddon2>("03600029145123"));
}

TEST(UpcA, NumberWithItsCheckDigitIsRefused) { EXPECT_FALSE(Encode<test::kUpcA>("036000291452")); }

TEST(UpcA, PrefixZeroMovesTheWholeTextBehindAZero) {
  char working[kWorkingCapacity] = "03600029145";
  PrefixZero(working);
  EXPECT_STREQ(working, "003600029145");
  char withAddon[kWorkingCapacity] = "9876543210954321";
  PrefixZero(withAddon);
  EXPECT_STREQ(withAddon, "09876543210954321");
}

// GS1 General Specifications: 9 to 12 modules between a UPC symbol and its add-on.
TEST(EanUpcDeviations, DEan1GapBeforeAnAddonIsEightModulesBesideUpcToo) {
  EXPECT_EQ(ReadEanUpc(*Encode<test::kUpcAAddon2>("0360002914512"))->gap, 8);
  EXPECT_EQ(ReadEanUpc(*Encode<test::kUpcAAddon5>("0360002914552495"))->gap, 8);
}

}  // namespace
}  // namespace barhatch
