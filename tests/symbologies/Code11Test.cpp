#include "symbologies/Code11.h"

#include <gtest/gtest.h>

#include <string>

#include "api/BarcodeSettings.h"
#include "support/Code11Reader.h"
#include "support/GenerateThroughExports.h"
#include "support/Modules.h"
#include "support/OwnedString.h"
#include "support/SeededTexts.h"
#include "support/SettingsFixture.h"
#include "symbologies/DrawnSymbol.h"

namespace barhatch {
namespace {

using test::Code11Checks;
using test::Elements;
using test::GenerateThroughExports;
using test::Quiet;
using test::QuietZone;
using test::ReadCode11;
using test::ReadCode11Characters;
using test::Take;

std::optional<std::string> Encode(const std::string& text, QuietZone quietZone = QuietZone::kNone) {
  return test::DrawnByTheDevice(11, text, quietZone);
}

std::optional<std::string> CharactersOf(const std::optional<std::string>& symbol) {
  return symbol ? ReadCode11Characters(*symbol) : std::nullopt;
}

std::optional<std::string> TextOf(const std::optional<std::string>& symbol, std::size_t length) {
  if (!symbol) return std::nullopt;
  return ReadCode11(*symbol, length < 10 ? Code11Checks::kC : Code11Checks::kCAndK);
}

const std::string kCharacters = "0123456789-";
const std::string kStartStop = Elements("NNWWN");

TEST(Code11, OneTwoThreeHasTheCheckCharacterDashAndNoK) {
  EXPECT_EQ(Encode("123"), kStartStop + "a" + Elements("WNNNW") + "a" + Elements("NWNNW") + "a" +
                               Elements("WWNNN") + "a" + Elements("NNWNN") + "a" + kStartStop);
  EXPECT_EQ(CharactersOf(Encode("123")), "123-");
  EXPECT_EQ(Encode("123")->size(), 35u);
}

// The worked example of the public descriptions of Code 11: the check character of 123-45 is 5.
TEST(Code11, PublishedExampleHasTheCheckCharacterFive) {
  EXPECT_EQ(CharactersOf(Encode("123-45")), "123-455");
}

TEST(Code11, TenDataCharactersHaveBothCheckCharacters) {
  // C = 0 x 1 + 9 x 2 + 8 x 3 + 7 x 4 + 6 x 5 + 5 x 6 + 4 x 7 + 3 x 8 + 2 x 9 + 1 x 10 = 210,
  // modulo 11 is 1; K = 1 x 1 + 0 x 2 + 9 x 3 + 8 x 4 + 7 x 5 + 6 x 6 + 5 x 7 + 4 x 8 + 3 x 9
  // + 2 x 1 + 1 x 2 = 229, modulo 11 is 9.
  EXPECT_EQ(CharactersOf(Encode("1234567890")), "123456789019");
}

TEST(Code11, ElevenDataCharactersHaveBothCheckCharactersAndNineHaveOne) {
  EXPECT_EQ(CharactersOf(Encode("123456789"))->size(), 10u);
  EXPECT_EQ(CharactersOf(Encode("12345678901"))->size(), 13u);
}

TEST(Code11, QuietZoneIsTenLightModulesAtEachEnd) {
  EXPECT_EQ(Encode("123", QuietZone::kBothEnds), Quiet() + *Encode("123") + Quiet());
  EXPECT_EQ(Encode("", QuietZone::kBothEnds), Quiet() + *Encode("") + Quiet());
}

TEST(Code11, DigitsAndDashAreAcceptedAndNoOtherByte) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string character(1, static_cast<char>(byte));
    const bool expected = kCharacters.find(character) != std::string::npos;
    EXPECT_EQ(Encode(character).has_value(), expected) << byte;
    EXPECT_EQ(Encode("1" + character + "2").has_value(), expected) << byte;
  }
}

TEST(Code11, EveryCharacterHasItsPublishedElements) {
  for (char character : kCharacters) {
    const std::string text(1, character);
    EXPECT_EQ(CharactersOf(Encode(text)), text + character);  // C = value x 1
  }
}

// A one followed by zeros carries the weight of the leftmost place to C.
TEST(Code11, WeightsOfCComeRoundAfterTen) {
  const auto checkC = [](std::size_t length) {
    return CharactersOf(Encode("1" + std::string(length - 1, '0')))->at(length);
  };
  EXPECT_EQ(checkC(9), '9');
  EXPECT_EQ(checkC(10), '-');
  EXPECT_EQ(checkC(11), '1');
  EXPECT_EQ(checkC(12), '2');
  EXPECT_EQ(checkC(21), '1');
}

// Texts whose last digit brings C to 0: K is the weight of the leftmost place and twice that digit.
TEST(Code11, WeightsOfKComeRoundAfterNine) {
  EXPECT_EQ(CharactersOf(Encode("1000000001")), "100000000104");                  // 2 + 1 x 2
  EXPECT_EQ(CharactersOf(Encode("10000000000000004")), "1000000000000000406");    // 9 + 4 x 2
  EXPECT_EQ(CharactersOf(Encode("100000000000000003")), "10000000000000000307");  // 1 + 3 x 2
}

TEST(Code11, AllTextsOfUpToThreeCharactersReadBack) {
  for (char a : kCharacters) {
    for (char b : kCharacters) {
      for (char c : kCharacters) {
        const std::string text{a, b, c};
        ASSERT_EQ(TextOf(Encode(text), 3), text);
      }
      const std::string text{a, b};
      ASSERT_EQ(TextOf(Encode(text), 2), text);
    }
  }
}

TEST(Code11, RandomTextsReadBack) {
  test::SeededTexts texts(11);
  for (int i = 0; i < 4000; ++i) {
    const std::string text = texts.Next(kCharacters, 1, 60);
    ASSERT_EQ(TextOf(Encode(text), text.size()), text) << "text " << i;
  }
}

TEST(Code11, LongestTextIsWrittenWhole) {
  for (std::size_t length : {3117u, 3118u, 3119u}) {
    const std::string text(length, '-');
    const auto symbol = Encode(text, QuietZone::kBothEnds);
    ASSERT_TRUE(symbol);
    EXPECT_EQ(symbol->size(), 6 * (length + 4) - 1 + 20);
    EXPECT_EQ(TextOf(symbol, length), text);
  }
}

class Code11Exports : public test::SettingsFixture {};

TEST_F(Code11Exports, TypeElevenIsCode11) {
  EXPECT_EQ(GenerateThroughExports(11, u"123-45"), Encode("123-45"));
  EXPECT_EQ(GenerateThroughExports(11, u"12345678901"), Encode("12345678901"));
  EXPECT_EQ(GenerateThroughExports(11, u"12a"), std::nullopt);
  EXPECT_EQ(GenerateThroughExports(11, u"\u0131\u022D"), Encode("1-"));
}

TEST_F(Code11Exports, QuietZoneFollowsTheSetting) {
  CurrentSettings().QuietZone = 1;
  EXPECT_EQ(GenerateThroughExports(11, u"123"), Quiet() + *Encode("123") + Quiet());
}

TEST_F(Code11Exports, LongestTextIsWrittenWhole) {
  EXPECT_EQ(TextOf(GenerateThroughExports(11, std::u16string(3119, u'8')), 3119),
            std::string(3119, '8'));
}

TEST(Code11Deviations, D111KIsWrittenForTenDataCharactersAlready) {
  EXPECT_EQ(CharactersOf(Encode("1234567890")), "123456789019");
  EXPECT_EQ(CharactersOf(Encode("123456789"))->size(), 10u);
  // A reader that expects C alone takes C for data and tests K as C.
  EXPECT_EQ(ReadCode11(*Encode("1234567890"), Code11Checks::kC), std::nullopt);
}

TEST(Code11Deviations, D112EmptyTextIsTheCheckCharacterZeroAlone) {
  EXPECT_EQ(Encode(""), kStartStop + "a" + Elements("NNNNW") + "a" + kStartStop);
}

}  // namespace
}  // namespace barhatch
