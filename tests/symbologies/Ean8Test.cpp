#include "symbologies/Ean8.h"

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

// GS1 General Specifications, example of EAN-8: 9501234 and its check digit 6.
TEST(Ean8, PublishedExampleIsDrawnDigitByDigit) {
  EXPECT_EQ(Encode<test::kEan8>("9501234"), Modules("101 0001011 0110001 0001101 0011001 01010 "
                                                    "1101100 1000010 1011100 1010000 101"));
}

TEST(Ean8, SumOfEightySixGivesCheckDigitFour) {
  EXPECT_EQ(CheckDigit("9638507", 7), 4);
  EXPECT_EQ(Encode<test::kEan8>("9638507"), Modules("101 0001011 0101111 0111101 0110111 01010 "
                                                    "1001110 1110010 1000100 1011100 101"));
}

TEST(Ean8, SumThatIsAMultipleOfTenGivesCheckDigitZero) {
  EXPECT_EQ(ReadEanUpc(*Encode<test::kEan8>("0000000"))->digits, "00000000");
  EXPECT_EQ(ReadEanUpc(*Encode<test::kEan8>("1000007"))->digits, "10000076");
  EXPECT_EQ(ReadEanUpc(*Encode<test::kEan8>("3000007"))->digits, "30000070");
}

TEST(Ean8, IsSixtySevenModulesWithoutQuietZone) {
  EXPECT_EQ(Encode<test::kEan8>("9638507")->size(), 67u);
}

TEST(Ean8, QuietZonesAreSevenModulesBehindAnAddonToo) {
  EXPECT_EQ(Encode<test::kEan8>("9638507", QuietZone::kBothEnds),
            Quiet(7) + *Encode<test::kEan8>("9638507") + Quiet(7));
  EXPECT_EQ(Encode<test::kEan8Addon2>("963850712", QuietZone::kBothEnds),
            Quiet(7) + *Encode<test::kEan8Addon2>("963850712") + Quiet(7));
  EXPECT_EQ(Encode<test::kEan8Addon5>("963850752495", QuietZone::kBothEnds),
            Quiet(7) + *Encode<test::kEan8Addon5>("963850752495") + Quiet(7));
}

TEST(Ean8, WithTwoDigitAddonTakesNineDigits) {
  EXPECT_FALSE(Encode<test::kEan8Addon2>("96385071"));
  EXPECT_TRUE(Encode<test::kEan8Addon2>("963850712"));
  EXPECT_FALSE(Encode<test::kEan8Addon2>("9638507123"));
}

TEST(Ean8, NumberWithItsCheckDigitIsRefused) { EXPECT_FALSE(Encode<test::kEan8>("96385074")); }

TEST(EanUpcDeviations, DEan2AddonsAreDrawnBesideEan8) {
  const std::string plain = *Encode<test::kEan8>("9638507");
  EXPECT_EQ(Encode<test::kEan8Addon2>("963850703"),
            plain + Modules("00000000 1011 0100111 01 0100001"));
  EXPECT_EQ(Encode<test::kEan8Addon5>("963850752495"),
            plain + Modules("00000000 1011 0111001 01 0010011 01 0011101 01 0001011 01 0110001"));
}

}  // namespace
}  // namespace barhatch
