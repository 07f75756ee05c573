#include "symbologies/Codabar.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "api/BarcodeSettings.h"
#include "support/CodabarReader.h"
#include "support/GenerateThroughExports.h"
#include "support/Modules.h"
#include "support/OwnedString.h"
#include "support/SeededTexts.h"
#include "support/SettingsFixture.h"
#include "symbologies/DrawnSymbol.h"

namespace barhatch {
namespace {

using test::Elements;
using test::GenerateThroughExports;
using test::Quiet;
using test::QuietZone;
using test::ReadCodabar;
using test::ReadCodabarCharacters;
using test::Take;

std::optional<std::string> Encode(const std::string& text, QuietZone quietZone = QuietZone::kNone) {
  return test::DrawnByTheDevice(0, text, quietZone);
}

std::optional<std::string> TextOf(const std::optional<std::string>& symbol) {
  return symbol ? ReadCodabar(*symbol) : std::nullopt;
}

const std::string kDataCharacters = "0123456789-$:/.+";
const std::string kStartStopNames = "ABCDTN*E";

// AIM USS Codabar.
const std::string kA = Elements("NNWWNWN");
const std::string kB = Elements("NWNWNNW");
const std::string kC = Elements("NNNWNWW");
const std::string kD = Elements("NNNWWWN");
const std::string kOne = Elements("NNNNWWN");

TEST(Codabar, DataA1BIsThreeCharactersWithGapsBetween) {
  EXPECT_EQ(Encode("A1B"), kA + "a" + kOne + "a" + kB);
  EXPECT_EQ(Encode("A1B"),
            "AaBbAbA"
            "a"
            "AaAaBbA"
            "a"
            "AbAbAaB");
  EXPECT_EQ(Encode("A1B")->size(), 23u);
}

TEST(Codabar, QuietZoneIsTenLightModulesAtEachEnd) {
  EXPECT_EQ(Encode("A1B", QuietZone::kBothEnds), Quiet() + *Encode("A1B") + Quiet());
  EXPECT_EQ(Encode("1", QuietZone::kBothEnds), Quiet() + kOne + Quiet());
}

TEST(Codabar, LetterInAnInnerPositionIsRefused) {
  EXPECT_FALSE(Encode("1A2"));
  for (char name : kStartStopNames) {
    EXPECT_FALSE(Encode(std::string("A") + name + "B")) << name;
    EXPECT_FALSE(Encode(std::string("A1") + name + "2B")) << name;
  }
}

TEST(Codabar, OtherNamesOfStartAndStopCharactersAreWrittenAsAToD) {
  EXPECT_EQ(Encode("T1E"), kA + "a" + kOne + "a" + kD);
  EXPECT_EQ(Encode("N1*"), kB + "a" + kOne + "a" + kC);
  EXPECT_EQ(Encode("E1T"), Encode("D1A"));
  EXPECT_EQ(Encode("*1N"), Encode("C1B"));
}

TEST(Codabar, LowerCaseIsRefused) {
  EXPECT_FALSE(Encode("a1b"));
  for (const char* text : {"a", "b", "c", "d", "e", "n", "t", "a1B", "A1b"}) {
    EXPECT_FALSE(Encode(text)) << text;
  }
}

TEST(Codabar, EmptyTextIsRefused) {
  EXPECT_FALSE(Encode(""));
  EXPECT_FALSE(Encode("", QuietZone::kBothEnds));
}

TEST(Codabar, TheSetIsAcceptedByPositionAndNoOtherByte) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string character(1, static_cast<char>(byte));
    const bool data = kDataCharacters.find(character) != std::string::npos;
    const bool startStop = kStartStopNames.find(character) != std::string::npos;
    EXPECT_EQ(Encode(character).has_value(), data || startStop) << byte;
    EXPECT_EQ(Encode(character + "12").has_value(), data || startStop) << byte;
    EXPECT_EQ(Encode("12" + character).has_value(), data || startStop) << byte;
    EXPECT_EQ(Encode("1" + character + "2").has_value(), data) << byte;
  }
}

TEST(Codabar, EveryPairOfStartAndStopCharactersIsAcceptedAndReadBack) {
  const std::string published = "ABCDABCD";
  for (std::size_t start = 0; start < 8; ++start) {
    for (std::size_t stop = 0; stop < 8; ++stop) {
      const std::string inside = "1-2$3:4/5.6+";
      EXPECT_EQ(TextOf(Encode(kStartStopNames[start] + inside + kStartStopNames[stop])),
                published[start] + inside + published[stop]);
    }
  }
}

TEST(Codabar, RandomTextsReadBack) {
  test::SeededTexts texts(7);
  for (int i = 0; i < 3000; ++i) {
    const std::string text =
        texts.Next("ABCD", 1, 1) + texts.Next(kDataCharacters, 0, 60) + texts.Next("ABCD", 1, 1);
    ASSERT_EQ(TextOf(Encode(text)), text) << "text " << i;
  }
}

TEST(Codabar, LengthLimitIs3116Characters) {
  EXPECT_EQ(Encode(std::string(3115, '7'))->size(), 8u * 3115 - 1);
  EXPECT_EQ(Encode(std::string(3116, '7'))->size(), 8u * 3116 - 1);
  EXPECT_FALSE(Encode(std::string(3117, '7')));
  EXPECT_FALSE(Encode(std::string(3119, '7')));
}

TEST(Codabar, LongestTextWithQuietZoneIsWrittenWhole) {
  const std::string text = "A" + std::string(3114, '+') + "D";
  const auto symbol = Encode(text, QuietZone::kBothEnds);
  ASSERT_TRUE(symbol);
  EXPECT_EQ(symbol->size(), 8u * 3116 - 1 + 20);
  EXPECT_EQ(symbol->substr(symbol->size() - 10), Quiet());
  EXPECT_EQ(ReadCodabar(*symbol), text);
}

class CodabarExports : public test::SettingsFixture {};

TEST_F(CodabarExports, TypeZeroIsCodabar) {
  EXPECT_EQ(GenerateThroughExports(0, u"A1B"), Encode("A1B"));
  EXPECT_EQ(GenerateThroughExports(0, u"\u0141\u0231B"), Encode("A1B"));
  EXPECT_EQ(GenerateThroughExports(0, u"1A2"), std::nullopt);
  EXPECT_EQ(GenerateThroughExports(0, u""), std::nullopt);
}

TEST_F(CodabarExports, QuietZoneFollowsTheSetting) {
  CurrentSettings().QuietZone = -1;
  EXPECT_EQ(GenerateThroughExports(0, u"A1B"), Quiet() + *Encode("A1B") + Quiet());
}

TEST_F(CodabarExports, LengthLimitIs3116Characters) {
  EXPECT_TRUE(GenerateThroughExports(0, std::u16string(3116, u'7')));
  EXPECT_FALSE(GenerateThroughExports(0, std::u16string(3117, u'7')));
}

TEST(CodabarTable, EveryCharacterHasItsPublishedElements) {
  for (char character : kDataCharacters + "ABCD") {
    EXPECT_EQ(ReadCodabarCharacters(*Encode(std::string(1, character))), std::string(1, character));
  }
}

TEST(CodabarTable, RowsAreSevenElementsWithTwoOrThreeWideAndDistinct) {
  std::set<std::string> rows;
  for (char character : kDataCharacters + "ABCD") {
    const std::string elements = CodabarElements(character);
    EXPECT_EQ(elements.size(), 7u) << character;
    int wide = 0;
    for (char element : elements) wide += element == '1';
    const bool two = std::string("0123456789-$").find(character) != std::string::npos;
    EXPECT_EQ(wide, two ? 2 : 3) << character;
    rows.insert(elements);
  }
  EXPECT_EQ(rows.size(), 20u);
}

TEST(CodabarTable, OtherNamesShareTheElements) {
  EXPECT_STREQ(CodabarElements('T'), CodabarElements('A'));
  EXPECT_STREQ(CodabarElements('N'), CodabarElements('B'));
  EXPECT_STREQ(CodabarElements('*'), CodabarElements('C'));
  EXPECT_STREQ(CodabarElements('E'), CodabarElements('D'));
}

TEST(CodabarDeviations, DCB1DataWithoutStartAndStopIsWrittenAsItIs) {
  EXPECT_EQ(Encode("123"),
            Elements("NNNNWWN") + "a" + Elements("NNNWNNW") + "a" + Elements("WWNNNNN"));
  EXPECT_EQ(TextOf(Encode("123")), std::nullopt);
  EXPECT_EQ(ReadCodabarCharacters(*Encode("123")), "123");
}

TEST(CodabarDeviations, DCB2StartWithoutStopAndStopWithoutStartAreAccepted) {
  EXPECT_EQ(ReadCodabarCharacters(*Encode("A12")), "A12");
  EXPECT_EQ(ReadCodabarCharacters(*Encode("12B")), "12B");
  EXPECT_EQ(Encode("D"), kD);
  EXPECT_EQ(TextOf(Encode("A12")), std::nullopt);
  EXPECT_EQ(TextOf(Encode("12B")), std::nullopt);
  EXPECT_EQ(TextOf(Encode("D")), std::nullopt);
}

TEST(CodabarDeviations, DCB3StartAndStopWithoutDataAreAccepted) {
  EXPECT_EQ(Encode("AB"), kA + "a" + kB);
  EXPECT_EQ(Encode("*E"), kC + "a" + kD);
}

}  // namespace
}  // namespace barhatch
