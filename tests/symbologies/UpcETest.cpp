#include "symbologies/UpcE.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
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

std::string Expanded(const std::string& upcE) {
  char upcA[] = "what was there before";
  ExpandUpcE(upcE.c_str(), upcA);
  return upcA;
}

// GS1 General Specifications, example of UPC-E: 0012345 and its check digit 7.
TEST(UpcE, PublishedExampleIsDrawnDigitByDigit) {
  EXPECT_EQ(Encode<test::kUpcE>("0012345"),
            Modules("101 0100111 0011001 0011011 0111101 0011101 0110001 010101"));
}

TEST(UpcE, CheckDigitFourOfNumberSystemZeroGivesGLGGLL) {
  EXPECT_EQ(Expanded("0425261"), "04210000526");
  EXPECT_EQ(UpcECheckDigit("0425261"), 4);
  EXPECT_STREQ(UpcEParity(0, 4), "101100");
  EXPECT_EQ(Encode<test::kUpcE>("0425261"),
            Modules("101 0011101 0010011 0111001 0011011 0101111 0011001 010101"));
}

// The table of the standard; the last digit is the left column.
TEST(UpcE, EveryLastDigitExpandsToItsRunOfZeros) {
  EXPECT_EQ(Expanded("0987650"), "09800000765");
  EXPECT_EQ(Expanded("0987651"), "09810000765");
  EXPECT_EQ(Expanded("0987652"), "09820000765");
  EXPECT_EQ(Expanded("0987653"), "09870000065");
  EXPECT_EQ(Expanded("0987654"), "09876000005");
  EXPECT_EQ(Expanded("0987655"), "09876500005");
  EXPECT_EQ(Expanded("0987656"), "09876500006");
  EXPECT_EQ(Expanded("0987657"), "09876500007");
  EXPECT_EQ(Expanded("0987658"), "09876500008");
  EXPECT_EQ(Expanded("0987659"), "09876500009");
}

TEST(UpcE, ExpansionReadsNothingBehindTheSixDigits) {
  EXPECT_EQ(Expanded("042526199999"), "04210000526");
  EXPECT_EQ(UpcECheckDigit("042526199999"), 4);
}

TEST(UpcE, CheckDigitIsThatOfThePlainExpansionForEveryLastDigitInBothSystems) {
  std::mt19937 random(11);
  std::uniform_int_distribution<int> fiveDigits(0, 99999);
  for (int system = 0; system < 2; ++system) {
    for (int last = 0; last < 10; ++last) {
      for (int round = 0; round < 100; ++round) {
        const std::string five = std::to_string(100000 + fiveDigits(random)).substr(1);
        const std::string upcE = std::to_string(system) + five + std::to_string(last);
        EXPECT_EQ(Expanded(upcE), test::ExpandedUpcE(upcE));
        const char check = test::MissingCheckDigit(test::ExpandedUpcE(upcE));
        EXPECT_EQ(UpcECheckDigit(upcE.c_str()), check - '0') << upcE;
        const auto reading = ReadEanUpc(*Encode<test::kUpcE>(upcE));
        ASSERT_TRUE(reading) << upcE;
        EXPECT_EQ(reading->digits, upcE + check);
      }
    }
  }
}

// The zero suppression of the standard, rule by rule. n: number system, five digits of the
// manufacturer, five of the product.
std::string Suppressed(const std::string& n) {
  const std::string product = n.substr(6);
  if (n[3] <= '2' && n.substr(4, 2) == "00" && product.substr(0, 2) == "00") {
    return n.substr(1, 2) + product.substr(2) + n[3];
  }
  if (n.substr(4, 2) == "00" && product.substr(0, 3) == "000") {
    return n.substr(1, 3) + product.substr(3) + '3';
  }
  if (n[5] == '0' && product.substr(0, 4) == "0000") return n.substr(1, 4) + product[4] + '4';
  return n.substr(1, 5) + product[4];
}

// Digits on both sides of every limit, and all last ones.
TEST(UpcE, ByTheBookSixDigitsAreThoseThatSuppressionGives) {
  const std::string some = "0239";
  for (int i = 0; i < 10 << 10; ++i) {
    std::string text = "0";
    for (int place = 1; place < 1 << 10; place <<= 2) {
      text += some[static_cast<std::size_t>(i / 10 / place % 4)];
    }
    text += static_cast<char>('0' + i % 10);
    Conformance how = Conformance::Published();
    const Refusal refusal = CheckUpcEForm({text.data(), text.size()}, how);
    ASSERT_EQ(refusal.IsRefused(), Suppressed(Expanded(text)) != text.substr(1)) << text;
  }
}

TEST(UpcE, IsFiftyOneModulesAndEndsWithItsOwnGuard) {
  const std::string drawn = *Encode<test::kUpcE>("0425261");
  EXPECT_EQ(drawn.size(), 51u);
  EXPECT_EQ(drawn.substr(45), Modules("010101"));
}

TEST(UpcE, NumberSystemIsZeroOrOne) {
  for (char system = '0'; system <= '9'; ++system) {
    const bool accepted = system <= '1';
    EXPECT_EQ(Encode<test::kUpcE>(system + std::string("425261")).has_value(), accepted);
    EXPECT_EQ(Encode<test::kUpcEAddon2>(system + std::string("42526112")).has_value(), accepted);
    EXPECT_EQ(Encode<test::kUpcEAddon5>(system + std::string("42526152495")).has_value(), accepted);
  }
}

TEST(UpcE, AddonFollowsTheGuardAfterEightModules) {
  const std::string plain = *Encode<test::kUpcE>("0425261");
  EXPECT_EQ(Encode<test::kUpcEAddon2>("042526112"),
            plain + Modules("00000000 1011 0011001 01 0010011"));
  EXPECT_EQ(Encode<test::kUpcEAddon5>("042526152495"),
            plain + Modules("00000000 1011 0111001 01 0010011 01 0011101 01 0001011 01 0110001"));
}

TEST(UpcE, QuietZonesAreNineAndSevenModulesBehindAnAddonToo) {
  EXPECT_EQ(Encode<test::kUpcE>("0425261", QuietZone::kBothEnds),
            Quiet(9) + *Encode<test::kUpcE>("0425261") + Quiet(7));
  EXPECT_EQ(Encode<test::kUpcEAddon2>("042526112", QuietZone::kBothEnds),
            Quiet(9) + *Encode<test::kUpcEAddon2>("042526112") + Quiet(7));
  EXPECT_EQ(Encode<test::kUpcEAddon5>("042526152495", QuietZone::kBothEnds),
            Quiet(9) + *Encode<test::kUpcEAddon5>("042526152495") + Quiet(7));
}

TEST(UpcE, NumberWithItsCheckDigitIsRefused) { EXPECT_FALSE(Encode<test::kUpcE>("04252614")); }

// GS1 General Specifications: 9 to 12 modules between a UPC symbol and its add-on.
TEST(EanUpcDeviations, DEan1GapBeforeAnAddonIsEightModulesBesideUpcE) {
  EXPECT_EQ(ReadEanUpc(*Encode<test::kUpcEAddon2>("042526112"))->gap, 8);
  EXPECT_EQ(ReadEanUpc(*Encode<test::kUpcEAddon5>("042526152495"))->gap, 8);
}

TEST(EanUpcDeviations, DEan3NumberSystemOneIsDrawnWithTheComplementaryParities) {
  EXPECT_EQ(Expanded("1425261"), "14210000526");
  EXPECT_EQ(UpcECheckDigit("1425261"), 1);
  EXPECT_STREQ(UpcEParity(1, 1), "001011");
  EXPECT_EQ(Encode<test::kUpcE>("1425261"),
            Modules("101 0100011 0010011 0111001 0010011 0000101 0110011 010101"));
}

// By the book 01200000045 is suppressed to 0 120450, 01230000005 to 0 123053 and 01234000006 to
// 0 123464.
TEST(EanUpcDeviations, DEan4SixDigitsThatZeroSuppressionWouldNotGiveAreAccepted) {
  EXPECT_EQ(Expanded("0120453"), "01200000045");
  EXPECT_EQ(Expanded("0120450"), "01200000045");
  EXPECT_EQ(ReadEanUpc(*Encode<test::kUpcE>("0120453"))->digits.substr(0, 7), "0120453");
  EXPECT_EQ(Expanded("0123054"), "01230000005");
  EXPECT_EQ(Expanded("0123053"), "01230000005");
  EXPECT_EQ(ReadEanUpc(*Encode<test::kUpcE>("0123054"))->digits.substr(0, 7), "0123054");
  EXPECT_EQ(Expanded("0123406"), "01234000006");
  EXPECT_EQ(Expanded("0123464"), "01234000006");
  EXPECT_EQ(ReadEanUpc(*Encode<test::kUpcE>("0123406"))->digits.substr(0, 7), "0123406");
}

}  // namespace
}  // namespace barhatch
