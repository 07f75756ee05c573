#include "symbologies/Code39.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/Modules.h"
#include "support/OwnedString.h"
#include "symbologies/DrawnSymbol.h"

namespace barhatch {
namespace {

using test::Elements;
using test::Quiet;
using test::QuietZone;

std::optional<std::string> Encode(const std::string& text, QuietZone quietZone = QuietZone::kNone) {
  return test::DrawnByTheDevice(1, text, quietZone);
}

std::string DeviceRow(int index) {
  Conformance how = Conformance::Device();
  return Code39TableElements(index, how);
}

const std::string kRowCharacters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ*-$% ./+";

std::string DeviceElements(char character) {
  return DeviceRow(static_cast<int>(kRowCharacters.find(character)));
}

std::string PublishedRow(int index) {
  Conformance how = Conformance::Published();
  return Code39TableElements(index, how);
}

// ISO/IEC 16388: the start/stop character, and "narrow space between characters".
const std::string kStartStop = Elements("NWNNWNWNN");

TEST(Code39, EmptyTextIsStartAndStopOnly) {
  EXPECT_EQ(Encode(""), kStartStop + "a" + kStartStop);
  EXPECT_EQ(Encode(""), "AbAaBaBaAaAbAaBaBaA");
}

TEST(Code39, EmptyTextWithQuietZoneHasTenLightModulesAtEachEnd) {
  EXPECT_EQ(Encode("", QuietZone::kBothEnds), Quiet() + "AbAaBaBaAaAbAaBaBaA" + Quiet());
}

TEST(Code39, LetterAndDigitGiveThirtyNineLetters) {
  const std::string expected =
      kStartStop + "a" + "BaAaAbAaB" + "a" + Elements("WNNWNNNNW") + "a" + kStartStop;
  EXPECT_EQ(Encode("A1"), expected);
  EXPECT_EQ(Encode("A1")->size(), 39u);
}

TEST(Code39, LowerCaseIsRefused) { EXPECT_FALSE(Encode("abc")); }

TEST(Code39, DoubledPercentStandsForOne) { EXPECT_EQ(Encode("50%%"), Encode("50%")); }

TEST(Code39, EverySingleByteIsAcceptedOrRefusedByTheSet) {
  const std::string accepted = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ*-$% ./+";
  for (int byte = 1; byte < 256; ++byte) {
    const char character = static_cast<char>(byte);
    const bool expected = accepted.find(character) != std::string::npos;
    EXPECT_EQ(Encode(std::string(1, character)).has_value(), expected) << byte;
  }
}

TEST(Code39, LengthLimitIs3114Characters) {
  EXPECT_EQ(Encode(std::string(3113, '7'))->size(), 10u * 3115 - 1);
  EXPECT_EQ(Encode(std::string(3114, '7'))->size(), 10u * 3116 - 1);
  EXPECT_FALSE(Encode(std::string(3115, '7')));
}

TEST(Code39, LongestTextWithQuietZoneFits) {
  const auto encoded = Encode(std::string(3114, '7'), QuietZone::kBothEnds);
  ASSERT_TRUE(encoded);
  EXPECT_EQ(encoded->size(), 31179u);  // 31180 bytes with the NUL
  EXPECT_EQ(encoded->substr(31169), Quiet());
}

TEST(Code39, LongestStorableTextThatCollapsesIsAccepted) {
  // 3118 units are 1559 pairs of "%%".
  EXPECT_EQ(Encode(std::string(3118, '%'))->size(), 10u * 1561 - 1);
}

TEST(Code39Table, EveryCharacterHasThreeWideOfNineButTheWOfTheDevice) {
  for (int index = 0; index < 44; ++index) {
    const std::string elements = DeviceRow(index);
    EXPECT_EQ(elements.size(), 9u);
    int wide = 0;
    for (char element : elements) wide += element == '1';
    EXPECT_EQ(wide, index == 32 ? 2 : 3) << "row " << index;
  }
}

// In the published set $ / + % are the four characters whose wide elements are all spaces; all
// others have two wide bars and one wide space.
TEST(Code39Table, WideElementsAreTwoBarsAndOneSpaceOrThreeSpaces) {
  for (int index = 0; index < 44; ++index) {
    if (index == 32) continue;
    const std::string elements = DeviceRow(index);
    int wideBars = 0;
    for (std::size_t i = 0; i < 9; i += 2) wideBars += elements[i] == '1';
    const bool threeSpaces = index == 38 || index == 39 || index == 42 || index == 43;
    EXPECT_EQ(wideBars, threeSpaces ? 0 : 2) << "row " << index;
  }
}

TEST(Code39Table, RowsAreDistinctButForTheSlashOfTheDevice) {
  std::set<std::string> rows;
  for (int index = 0; index < 44; ++index) rows.insert(DeviceRow(index));
  EXPECT_EQ(rows.size(), 43u);
}

// How the published set is made: a character's bars are one of ten two-of-five codes, the same in
// every group of ten, and its group is told by the place of the one wide space. The four signs
// without wide bars have one narrow space instead.
std::string PublishedElements(char character) {
  const std::string bars[] = {"10001", "01001", "11000", "00101", "10100",
                              "01100", "00011", "10010", "01010", "00110"};
  const struct {
    std::string characters;
    std::string spaces;
  } groups[] = {{"1234567890", "0100"},
                {"ABCDEFGHIJ", "0010"},
                {"KLMNOPQRST", "0001"},
                {"UVWXYZ-. *", "1000"}};
  const std::string signs = "$/+%";
  const std::string spacesOfSigns[] = {"1110", "1101", "1011", "0111"};
  const auto weave = [](const std::string& five, const std::string& four) {
    std::string nine;
    for (std::size_t i = 0; i < 4; ++i) nine += {five[i], four[i]};
    return nine + five[4];
  };
  const auto sign = signs.find(character);
  if (sign != std::string::npos) return weave("00000", spacesOfSigns[sign]);
  for (const auto& group : groups) {
    const auto place = group.characters.find(character);
    if (place != std::string::npos) return weave(bars[place], group.spaces);
  }
  return "";
}

TEST(Code39Table, EveryRowIsMadeByThePublishedRuleButTwoOfTheDevice) {
  for (int index = 0; index < 44; ++index) {
    const char character = kRowCharacters[static_cast<std::size_t>(index)];
    const std::string published = PublishedElements(character);
    EXPECT_EQ(PublishedRow(index), published) << character;
    EXPECT_EQ(DeviceRow(index) == published, character != 'W' && character != '/') << character;
  }
}

TEST(Code39, DigitsLettersToDAndSignsAreWrittenAsPublished) {
  for (const char character : std::string("0123456789ABCD*-$% .+"))
    EXPECT_EQ(DeviceElements(character), PublishedElements(character)) << character;
}

TEST(Code39Deviations, D391TableRowOfWIsNotThePublishedOne) {
  EXPECT_EQ(DeviceRow(32), "011000000");  // 0x0C0, published 0x1C0
}

TEST(Code39Deviations, D392SlashIsWrittenAsPercent) {
  EXPECT_EQ(DeviceElements('/'), DeviceElements('%'));
  EXPECT_EQ(Encode("/"), kStartStop + "a" + "AaAbAbAbA" + "a" + kStartStop);
}

TEST(Code39Deviations, D393LettersFromEToZAreAllWrittenAlike) {
  for (char letter = 'E'; letter <= 'Z'; ++letter) {
    EXPECT_EQ(Encode(std::string(1, letter)), kStartStop + "a" + "AbBbBbBbB" + "a" + kStartStop)
        << letter;
  }
}

TEST(Code39Deviations, D394StarInsideTheDataIsWrittenAsStartStop) {
  EXPECT_EQ(Encode("*"), kStartStop + "a" + kStartStop + "a" + kStartStop);
}

TEST(Code39Deviations, D395PercentPairsCollapseFromTheLeft) {
  EXPECT_EQ(Encode("%%%"), kStartStop + "a" + Elements("NNNWNWNWN") + "a" + Elements("NNNWNWNWN") +
                               "a" + kStartStop);
  EXPECT_EQ(Encode("%%%%"), Encode("%%%"));
  EXPECT_EQ(Encode("%"), Encode("%%"));
}

TEST(Code39Deviations, D395UserTextNeverReachesAFormatter) {
  // All of these are plain characters of the set; none is a conversion.
  EXPECT_EQ(Encode("%1$%-5%")->size(), 10u * 9 - 1);
}

TEST(Code39Deviations, D396EmptyTextGivesStartAndStopAlone) {
  EXPECT_EQ(Encode(""), kStartStop + "a" + kStartStop);
}

}  // namespace
}  // namespace barhatch
