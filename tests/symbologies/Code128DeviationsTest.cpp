// The departures of Code 128 from its standard, by their ids in docs/deviations.md.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "symbologies/Code128Policies.h"
#include "symbologies/Code128Testing.h"

namespace barhatch {
namespace {

using namespace test::code128;

TEST(Code128Deviations, D1281LoneLastCharacterOfTypeFiveIsWrittenInsideSetC) {
  EXPECT_EQ(Values(kAuto, "12345"), "105 12 34 21");
  EXPECT_EQ(Values(kAuto, "1234A"), "105 12 34 33");
  EXPECT_EQ(Values(kAuto, "A1234B"), "104 33 99 12 34 34");
  EXPECT_EQ(Values(kAuto, "A12345B"), "104 33 17 99 23 45 34");
  EXPECT_EQ(Values(kAuto, "1234\x7f"), "105 12 34 95");
}

TEST(Code128Deviations, D1281IsReadAsTwoWrongDigits) {
  EXPECT_EQ(ReadBack(kAuto, "12345"), "123421");
  EXPECT_EQ(ReadBack(kAuto, "1234A"), "123433");
}

TEST(Code128Deviations, D1281LeavesOtherTextsAlone) {
  for (const char* text : {"123", "12345A", "12345AB", "1234AB", "A12345", "AB12C", "A123B"})
    EXPECT_EQ(ReadBack(kAuto, text), text);
  for (Code128Policy policy : {kFromA, kB, kFromC}) EXPECT_EQ(ReadBack(policy, "12345"), "12345");
}

TEST(Code128Deviations, D1282DeleteInSetAIsNinetyFiveWithoutASwitch) {
  EXPECT_EQ(Values(kFromA, "\x7f"), "103 95");
  EXPECT_EQ(Values(kFromA, "A\x7f"), "103 33 95");
  EXPECT_EQ(ReadBack(kFromA, "A\x7f"), "A\x1f");
  EXPECT_EQ(ReadBack(kFromA, "Aa\x7f"), "Aa\x7f");
}

TEST(Code128Deviations, D1283TextBeyondTheLimitIsDropped) {
  const std::string letters = Repeat("ABCDEFGHIJ", 20);
  EXPECT_EQ(ReadBack(kB, letters.substr(0, 78)), letters.substr(0, 78));
  EXPECT_EQ(ReadBack(kB, letters.substr(0, 79)), letters.substr(0, 79));
  for (std::size_t length : {80u, 81u, 200u})
    EXPECT_EQ(ReadBack(kB, letters.substr(0, length)), letters.substr(0, 79)) << length;
  EXPECT_EQ(ValuesWithCheck(kB, letters).size(), 81u);  // start, 79, check
}

TEST(Code128Deviations, D1283SetCHoldsSeventyNinePairs) {
  for (Code128Policy policy : {kAuto, kFromC}) {
    EXPECT_EQ(ReadBack(policy, Repeat("12", 79)), Repeat("12", 79));
    EXPECT_EQ(ReadBack(policy, Repeat("12", 80)), Repeat("12", 79));
    EXPECT_EQ(ReadBack(policy, Repeat("12", 79) + "3"), Repeat("12", 79));
  }
}

TEST(Code128Deviations, D1283SeventyNineCharactersAreWholeInTypesFiveSevenAndEight) {
  std::mt19937 random(79);
  for (int i = 0; i < 500; ++i) {
    const std::string text = RandomText(random, 79);
    for (Code128Policy policy : {kAuto, kB, kFromC})
      ASSERT_EQ(ReadBack(policy, text), ExpectedText(policy, text)) << text;
  }
}

TEST(Code128Deviations, D1283SeventyNineCharactersWithASwitchLoseTheLastInTypeSix) {
  for (std::size_t upper = 0; upper <= 79; ++upper) {
    const std::string text = std::string(upper, 'A') + std::string(79 - upper, 'a');
    const bool switches = upper > 0 && upper < 79;
    EXPECT_EQ(ReadBack(kFromA, text), text.substr(0, switches ? 78 : 79)) << upper;
    EXPECT_EQ(ReadBack(kFromA, text.substr(0, 78)), text.substr(0, 78)) << upper;
    EXPECT_EQ(ReadBack(kFromA, text + "a").size(), switches ? 78u : 79u) << upper;
  }
}

// Start and 80 values, of which the last is `last`, and the check character.
void ExpectOvershoot(Code128Policy policy, const std::string& text, int last,
                     const std::string& reading) {
  const std::vector<int> values = ValuesWithCheck(policy, text);
  ASSERT_EQ(values.size(), 82u) << text;
  EXPECT_EQ(values[80], last) << text;
  EXPECT_EQ(ReadBack(policy, text), reading);
}

TEST(Code128Deviations, D1284LastStepOfTypeFiveMayAddASwitch) {
  const std::string letters(79, 'A');
  ExpectOvershoot(kAuto, letters + "1234", 99, letters);
  ExpectOvershoot(kAuto, letters + "12", 99, letters);
  ExpectOvershoot(kAuto, Repeat("12", 79) + "AB", 100, Repeat("12", 79));
  ExpectOvershoot(kAuto, Repeat("12", 78) + "3AB", '3' - 32, Repeat("12", 78) + "3");
}

TEST(Code128Deviations, D1284LastStepOfTypeSixMayAddASwitch) {
  ExpectOvershoot(kFromA, std::string(79, 'A') + "b", 100, std::string(79, 'A'));
}

TEST(Code128Deviations, D1284LastStepOfTypeEightMayAddASwitch) {
  ExpectOvershoot(kFromC, Repeat("12", 78) + "AB", 'A' - 32, Repeat("12", 78) + "A");
  ExpectOvershoot(kFromC, Repeat("12", 78) + "3", '3' - 32, Repeat("12", 78) + "3");
}

TEST(Code128Deviations, D1284TypeSevenNeverGoesBeyondTheLimit) {
  std::mt19937 random(80);
  for (int i = 0; i < 200; ++i)
    EXPECT_EQ(ValuesWithCheck(kB, RandomText(random, 79 + random() % 9)).size(), 81u);
}

}  // namespace
}  // namespace barhatch
