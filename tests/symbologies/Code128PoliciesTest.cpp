#include "symbologies/Code128Policies.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "api/BarcodeSettings.h"
#include "support/Code128Reader.h"
#include "support/Code128Steps.h"
#include "support/Modules.h"
#include "support/OwnedString.h"
#include "support/SettingsFixture.h"
#include "symbologies/Code128Testing.h"

namespace barhatch {
namespace {

using namespace test::code128;
using test::Code128Reading;
using test::Code128StepValues;
using test::Modules;
using test::Quiet;
using test::QuietZone;
using test::ReadCode128;
using test::Take;

// Every text of the given length over an alphabet.
template <typename Visitor>
void ForEveryText(const std::string& alphabet, std::size_t length, Visitor visit) {
  std::size_t texts = 1;
  for (std::size_t i = 0; i < length; ++i) texts *= alphabet.size();
  for (std::size_t number = 0; number < texts; ++number) {
    std::string text;
    for (std::size_t rest = number; text.size() < length; rest /= alphabet.size())
      text += alphabet[rest % alphabet.size()];
    visit(text);
  }
}

TEST(Code128, LetterAOfTypeSevenIsFortySixLetters) {
  EXPECT_EQ(ValuesWithCheck(kB, "A"), (std::vector<int>{104, 33, 34}));
  const std::string expected = Modules("11010010000 10100011000 10001011000 11000111010 11");
  EXPECT_EQ(Encode(kB, "A"), expected);
  EXPECT_EQ(expected.size(), 46u);
}

TEST(Code128, QuietZoneIsTenLightModulesAtEachEnd) {
  for (const auto& [type, policy] : kTypes) {
    const std::string plain = Encode(policy, "Ab12").value_or("");
    EXPECT_EQ(plain.front(), 'A') << type;
    EXPECT_EQ(plain.back(), 'A') << type;
    EXPECT_EQ(Encode(policy, "Ab12", QuietZone::kBothEnds), Quiet() + plain + Quiet()) << type;
  }
}

TEST(Code128, EverySingleByteIsAcceptedOrRefused) {
  for (const auto& [type, policy] : kTypes) {
    for (int byte = 0; byte < 256; ++byte) {
      const std::string text(1, static_cast<char>(byte));
      const bool accepted = byte >= 32 && byte <= 127;
      EXPECT_EQ(Encode(policy, text).has_value(), accepted) << type << " " << byte;
      const int start = policy != kFromA ? 104 : IsLowerRange(text[0]) ? 104 : 103;
      const std::string expected = std::to_string(start) + " " + std::to_string(byte - 32);
      EXPECT_EQ(Values(policy, text), accepted ? expected : "refused") << type << " " << byte;
    }
  }
}

TEST(Code128, EmptyTextIsRefused) {
  for (const auto& [type, policy] : kTypes) EXPECT_FALSE(Encode(policy, "")) << type;
}

TEST(Code128, ByteOutsideTheRangeIsRefusedAtEveryPlace) {
  for (const auto& [type, policy] : kTypes) {
    for (std::size_t place = 0; place < 100; ++place) {
      for (int byte : {1, 31, 128, 255}) {
        std::string text(100, '1');
        text[place] = static_cast<char>(byte);
        EXPECT_FALSE(Encode(policy, text)) << type << " " << place << " " << byte;
      }
    }
  }
}

TEST(Code128, AllHundredDigitPairsAreOneValueInSetC) {
  for (int pair = 0; pair < 100; ++pair) {
    const std::string text{static_cast<char>('0' + pair / 10), static_cast<char>('0' + pair % 10)};
    EXPECT_EQ(Values(kAuto, text), "105 " + std::to_string(pair));
    EXPECT_EQ(Values(kFromC, text), "105 " + std::to_string(pair));
    EXPECT_EQ(ReadBack(kAuto, text), text);
    EXPECT_EQ(ReadBack(kFromC, text), text);
  }
}

TEST(Code128, EveryCheckValueOccursAndIsRead) {
  std::vector<bool> seen(103, false);
  for (char first = 32; first < 127; ++first) {
    for (char second = 32; second < 127; ++second) {
      const std::string text{first, second};
      const auto reading = ReadCode128(Encode(kB, text).value_or(""));
      ASSERT_TRUE(reading) << text;
      EXPECT_EQ(reading->text, text);
      seen[static_cast<std::size_t>(reading->values.back())] = true;
    }
  }
  EXPECT_EQ(seen, std::vector<bool>(103, true));
}

// The example of the check character that the literature repeats most.
TEST(Code128, WorkedExampleOfTheLiteratureFromStartA) {
  EXPECT_EQ(ValuesWithCheck(kFromA, "PJJ123C"),
            (std::vector<int>{103, 48, 42, 42, 17, 18, 19, 35, 54}));
}

TEST(Code128, SeededTextsAreReadBackAsTheDeviationsPredict) {
  std::mt19937 random(128);
  for (int i = 0; i < 4000; ++i) {
    const std::string text = RandomText(random, 1 + random() % 60);
    for (const auto& [type, policy] : kTypes)
      ASSERT_EQ(ReadBack(policy, text), ExpectedText(policy, text)) << type << " " << text;
  }
}

TEST(Code128, EveryMixOfDigitsAndOthersUpToThirteenFollowsTheSteps) {
  for (std::size_t length = 1; length <= 13; ++length) {
    ForEveryText("7A", length, [](const std::string& text) {
      for (const auto& [type, policy] : {kTypes[0], kTypes[3]})
        ASSERT_EQ(ValuesWithCheck(policy, text), Code128StepValues(type, text)) << type << text;
    });
  }
}

TEST(Code128, EveryMixOfTheRangesOfSetAUpToSevenFollowsTheSteps) {
  for (std::size_t length = 1; length <= 7; ++length) {
    ForEveryText("_`~\x7f", length, [](const std::string& text) {
      ASSERT_EQ(ValuesWithCheck(kFromA, text), Code128StepValues(6, text)) << text;
    });
  }
}

TEST(Code128, EveryTailAroundTheLimitFollowsTheSteps) {
  const auto compare = [](const std::string& text) {
    for (const auto& [type, policy] : kTypes)
      ASSERT_EQ(ValuesWithCheck(policy, text), Code128StepValues(type, text)) << type << text;
  };
  for (int before = 74; before <= 80; ++before) {
    ForEveryText("7Aa", 6, [&](const std::string& tail) {
      compare(std::string(static_cast<std::size_t>(before), 'A') + tail);
      compare(Repeat("70", before) + tail);
    });
  }
}

TEST(Code128, SeededTextsOfAnyLengthFollowTheSteps) {
  std::mt19937 random(15417);
  for (int i = 0; i < 1000; ++i) {
    const std::string text = RandomText(random, 1 + random() % (i % 50 == 0 ? 3119 : 200));
    for (const auto& [type, policy] : kTypes)
      ASSERT_EQ(ValuesWithCheck(policy, text), Code128StepValues(type, text)) << type << text;
  }
}

TEST(Code128, SymbolOfTheLargestCountWithQuietZonesIsRead) {
  const auto encoded = Encode(kFromC, Repeat("70", 78) + "A", QuietZone::kBothEnds);
  ASSERT_TRUE(encoded);
  EXPECT_EQ(encoded->size(), 10u + 82 * 11 + 13 + 10);
  EXPECT_EQ(ReadCode128(*encoded).value_or(Code128Reading{}).text, Repeat("70", 78) + "A");
}

TEST(Code128Auto, StartIsChosenByTheLengthAndTheFirstDigits) {
  EXPECT_EQ(Values(kAuto, "7"), "104 23");
  EXPECT_EQ(Values(kAuto, "77"), "105 77");
  EXPECT_EQ(Values(kAuto, "7A"), "104 23 33");
  EXPECT_EQ(Values(kAuto, "777A"), "104 23 23 23 33");
  EXPECT_EQ(Values(kAuto, "7777"), "105 77 77");
}

TEST(Code128Auto, FourDigitsAreTwoPairs) { EXPECT_EQ(Values(kAuto, "1234"), "105 12 34"); }

TEST(Code128Auto, ThreeDigitsStartInBAndSwitchForTheLastPair) {
  EXPECT_EQ(Values(kAuto, "123"), "104 17 99 23");
}

TEST(Code128Auto, LastTwoDigitsAreWorthASwitch) {
  EXPECT_EQ(Values(kAuto, "A12"), "104 33 99 12");
  EXPECT_EQ(Values(kAuto, "AAAA12"), "104 33 33 33 33 99 12");
  EXPECT_EQ(Values(kAuto, "AAA12A"), "104 33 33 33 17 18 33");
}

TEST(Code128Auto, OddRunGivesItsFirstDigitToSetB) {
  EXPECT_EQ(Values(kAuto, "A12345"), "104 33 17 99 23 45");
  EXPECT_EQ(Values(kAuto, "A1234"), "104 33 99 12 34");
  EXPECT_EQ(Values(kAuto, "A123"), "104 33 17 99 23");
}

TEST(Code128Auto, SetCIsLeftBeforeALetterAndBeforeALoneDigit) {
  EXPECT_EQ(Values(kAuto, "1234AB"), "105 12 34 100 33 34");
  EXPECT_EQ(Values(kAuto, "12345AB"), "105 12 34 100 21 33 34");
  EXPECT_EQ(Values(kAuto, "1234A5678"), "105 12 34 100 33 99 56 78");
}

TEST(Code128A, LowerCaseFirstStartsInSetB) { EXPECT_EQ(Values(kFromA, "ab"), "104 65 66"); }

TEST(Code128A, SwitchesToSetBOnceAndStaysThere) {
  EXPECT_EQ(Values(kFromA, "AbCd"), "103 33 100 66 35 68");
  EXPECT_EQ(Values(kFromA, "Ab"), "103 33 100 66");
  EXPECT_EQ(Values(kFromA, "AB"), "103 33 34");
}

TEST(Code128A, RangeOfSetBIsNinetySixToOneHundredAndTwentySix) {
  EXPECT_EQ(Values(kFromA, "\x5f"), "103 63");
  EXPECT_EQ(Values(kFromA, "\x60"), "104 64");
  EXPECT_EQ(Values(kFromA, "\x7e"), "104 94");
  EXPECT_EQ(Values(kFromA, "A\x5f"), "103 33 63");
  EXPECT_EQ(Values(kFromA, "A\x60"), "103 33 100 64");
  EXPECT_EQ(Values(kFromA, "A\x7e"), "103 33 100 94");
}

TEST(Code128B, WritesEveryCharacterInSetB) {
  EXPECT_EQ(Values(kB, "1234aA\x7f"), "104 17 18 19 20 65 33 95");
}

TEST(Code128C, DigitAndLetterStartInSetB) { EXPECT_EQ(Values(kFromC, "1A"), "104 17 33"); }

TEST(Code128C, OddLastDigitIsWrittenInSetB) {
  EXPECT_EQ(Values(kFromC, "123"), "105 12 100 19");
  EXPECT_EQ(Values(kFromC, "12345"), "105 12 34 100 21");
}

TEST(Code128C, NeverReturnsToSetC) {
  EXPECT_EQ(Values(kFromC, "12A345678"), "105 12 100 33 19 20 21 22 23 24");
  EXPECT_EQ(Values(kFromC, "A1234"), "104 33 17 18 19 20");
}

class Code128Exports : public test::SettingsFixture {
 protected:
  static std::optional<std::string> Generate(int type, const std::u16string& text) {
    SetBarcodeType(type);
    SetDataString(text.c_str());
    return Take(GenerateBarcodeString());
  }
};

TEST_F(Code128Exports, TypesFiveToEightHaveTheirPolicies) {
  for (const auto& [type, policy] : kTypes) {
    EXPECT_EQ(Generate(type, u"12345"), Encode(policy, "12345")) << type;
    EXPECT_EQ(Generate(type, u"Ab"), Encode(policy, "Ab")) << type;
    EXPECT_EQ(Generate(type, u"\x1f"), std::nullopt) << type;
  }
}

TEST_F(Code128Exports, QuietZoneFollowsItsFlagAndNotItsSize) {
  CurrentSettings().QuietZone = 255;
  CurrentSettings().QuietZoneSize = 3;
  for (const auto& [type, policy] : kTypes)
    EXPECT_EQ(Generate(type, u"Ab12"), Encode(policy, "Ab12", QuietZone::kBothEnds)) << type;
}

TEST_F(Code128Exports, TextIsNarrowedToItsLowBytes) {
  for (const auto& [type, policy] : kTypes) {
    EXPECT_EQ(Generate(type, u"1\u0132\u0241"), Encode(policy, "12A")) << type;
    EXPECT_EQ(Generate(type, u"A\u0100B"), Encode(policy, "A")) << type;
    EXPECT_EQ(Generate(type, u"\u0180"), std::nullopt) << type;
  }
}

TEST_F(Code128Exports, LongestStorableTextGivesASymbol) {
  for (const auto& [type, policy] : kTypes)
    EXPECT_EQ(Generate(type, std::u16string(3119, u'x')), Encode(policy, std::string(79, 'x')));
}

}  // namespace
}  // namespace barhatch
