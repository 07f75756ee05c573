#include "symbologies/Interleaved2of5.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "api/BarcodeSettings.h"
#include "support/Interleaved2of5Reader.h"
#include "support/Modules.h"
#include "support/OwnedString.h"
#include "support/SettingsFixture.h"
#include "symbologies/DrawnSymbol.h"

namespace barhatch {
namespace {

using test::Elements;
using test::Quiet;
using test::QuietZone;
using test::ReadInterleaved2of5;
using test::Take;

const std::string kStart = Elements("NNNN");
const std::string kStop = Elements("WNN");

std::optional<std::string> Encode(const std::string& text, QuietZone quietZone = QuietZone::kNone) {
  return test::DrawnByTheDevice(21, text, quietZone);
}

char DeviceCheckDigit(const std::string& digits) {
  Conformance how = Conformance::Device();
  return Interleaved2of5CheckDigit({digits.c_str(), digits.size()}, how);
}

char PublishedCheckDigit(const std::string& digits) {
  Conformance how = Conformance::Published();
  return Interleaved2of5CheckDigit({digits.c_str(), digits.size()}, how);
}

// What a reader gives for the text; a lone "?" when it reads nothing.
std::string ReadBack(const std::string& text) {
  const auto encoded = Encode(text);
  return encoded ? ReadInterleaved2of5(*encoded).value_or("?") : "?";
}

std::string RandomDigits(std::size_t length, std::mt19937& random) {
  std::string digits;
  for (std::size_t i = 0; i < length; ++i) digits += static_cast<char>('0' + random() % 10);
  return digits;
}

TEST(Interleaved2of5, EmptyTextWithQuietZoneIsStartAndStopBetweenTenLightModules) {
  EXPECT_EQ(Encode("", QuietZone::kBothEnds), Quiet() + "AaAa" + "BaA" + Quiet());
}

TEST(Interleaved2of5, LoneFiveIsPaddedToZeroFive) {
  EXPECT_EQ(Encode("5"), std::string("AaAa") + "AbAaBbBaAa" + "BaA");
  EXPECT_EQ(Encode("5"), Encode("05"));
}

TEST(Interleaved2of5, TwelveHasOneInBarsAndTwoInSpaces) {
  EXPECT_EQ(Encode("12"), std::string("AaAa") + "BaAbAaAaBb" + "BaA");
}

TEST(Interleaved2of5, DigitAndLetterAreRefused) { EXPECT_FALSE(Encode("1A")); }

TEST(Interleaved2of5, EverySingleByteIsAcceptedOrRefused) {
  EXPECT_TRUE(Encode(std::string(1, '\0')));  // the empty text
  for (int byte = 1; byte < 256; ++byte) {
    const bool isDigit = byte >= 0x30 && byte <= 0x39;
    EXPECT_EQ(Encode(std::string(1, static_cast<char>(byte))).has_value(), isDigit) << byte;
  }
}

TEST(Interleaved2of5, ByteThatIsNoDigitIsRefusedAtEveryPlace) {
  for (std::size_t place = 0; place < 6; ++place) {
    for (int byte : {0x20, 0x2F, 0x3A, 0x41, 0x80, 0xB5, 0xFF}) {
      std::string text = "123456";
      text[place] = static_cast<char>(byte);
      EXPECT_FALSE(Encode(text)) << place << " " << byte;
    }
  }
}

TEST(Interleaved2of5, AllHundredPairsAreReadBack) {
  for (char first = '0'; first <= '9'; ++first) {
    for (char second = '0'; second <= '9'; ++second) {
      const std::string pair{first, second};
      EXPECT_EQ(ReadBack(pair), pair);
      EXPECT_EQ(Encode(pair)->size(), 17u);
    }
  }
}

TEST(Interleaved2of5, PairsFollowEachOtherWithoutAGap) {
  const std::string frame = kStart + kStop;
  EXPECT_EQ(Encode("1212"), kStart + "BaAbAaAaBb" + "BaAbAaAaBb" + kStop);
  EXPECT_EQ(Encode("1212")->size(), frame.size() + 20);
}

TEST(Interleaved2of5, SeededTextsAreReadBackWithTheirPadding) {
  std::mt19937 random(2005);
  for (int i = 0; i < 2000; ++i) {
    const std::string text = RandomDigits(random() % 60, random);
    EXPECT_EQ(ReadBack(text), text.size() % 2 == 0 ? text : "0" + text);
  }
}

TEST(Interleaved2of5, LongestTextsAreReadBack) {
  std::mt19937 random(3119);
  for (std::size_t length : {3116u, 3117u, 3118u, 3119u}) {
    const std::string text = RandomDigits(length, random);
    EXPECT_EQ(ReadBack(text), length % 2 == 0 ? text : "0" + text);
  }
}

TEST(Interleaved2of5, LongestTextWithQuietZoneHasAllItsLetters) {
  const auto encoded = Encode(std::string(3119, '8'), QuietZone::kBothEnds);
  ASSERT_TRUE(encoded);
  EXPECT_EQ(encoded->size(), 10u + 4 + 3120 * 5 + 3 + 10);
  EXPECT_EQ(encoded->substr(0, 14), Quiet() + kStart);
  EXPECT_EQ(encoded->substr(encoded->size() - 13), kStop + Quiet());
}

TEST(Interleaved2of5Table, EveryDigitHasItsPublishedElements) {
  EXPECT_EQ(Elements("NNWWN"), "AaBbA");
  const char* const published[] = {"NNWWN", "WNNNW", "NWNNW", "WWNNN", "NNWNW",
                                   "WNWNN", "NWWNN", "NNNWW", "WNNWN", "NWNWN"};
  for (char digit = '0'; digit <= '9'; ++digit) {
    std::string elements = Interleaved2of5Elements(digit);
    for (char& element : elements) element = element == '1' ? 'W' : 'N';
    EXPECT_EQ(elements, published[digit - '0']) << digit;
  }
}

TEST(Interleaved2of5Table, OtherCharactersHaveNoElements) {
  EXPECT_EQ(Interleaved2of5Elements('/'), nullptr);
  EXPECT_EQ(Interleaved2of5Elements(':'), nullptr);
}

// GS1 General Specifications: "1540014128876" of a shipping container, check digit 3.
TEST(Interleaved2of5Check, WeighsThreeAndOneFromTheRight) {
  EXPECT_EQ(PublishedCheckDigit(""), '0');
  EXPECT_EQ(PublishedCheckDigit("1"), '7');      // 10 - 3
  EXPECT_EQ(PublishedCheckDigit("01"), '7');     // 10 - 3
  EXPECT_EQ(PublishedCheckDigit("12345"), '7');  // 15 + 4 + 9 + 2 + 3 = 33
  EXPECT_EQ(PublishedCheckDigit("1234"), '8');   // 12 + 3 + 6 + 1 = 22
  EXPECT_EQ(PublishedCheckDigit("1540014128876"), '3');
}

TEST(Interleaved2of5Check, WeightedSumWithItIsAMultipleOfTenForAllFourDigitTexts) {
  for (int number = 0; number < 10000; ++number) {
    const int digits[] = {number / 1000, number / 100 % 10, number / 10 % 10, number % 10};
    std::string text;
    for (int digit : digits) text += static_cast<char>('0' + digit);
    const int published = PublishedCheckDigit(text) - '0';
    const int device = DeviceCheckDigit(text) - '0';
    ASSERT_EQ((digits[0] + 3 * digits[1] + digits[2] + 3 * digits[3] + published) % 10, 0) << text;
    ASSERT_EQ((3 * digits[0] + digits[1] + 3 * digits[2] + digits[3] + device) % 10, 0) << text;
    ASSERT_TRUE(published >= 0 && published <= 9 && device >= 0 && device <= 9) << text;
  }
}

TEST(Interleaved2of5Check, HoldsForTheLongestText) {
  EXPECT_EQ(DeviceCheckDigit(std::string(3119, '9')), '9');  // 1560 x 27 + 1559 x 9 = 56151
  EXPECT_EQ(DeviceCheckDigit(std::string(3118, '9')), '6');  // 1559 x 27 + 1559 x 9 = 56124
}

class Interleaved2of5Exports : public test::SettingsFixture {};

TEST_F(Interleaved2of5Exports, TypeTwentyOneAddsNoCheckDigit) {
  SetBarcodeType(21);
  SetDataString(u"1234");
  EXPECT_EQ(ReadInterleaved2of5(Take(GenerateBarcodeString()).value_or("")), "1234");
}

TEST_F(Interleaved2of5Exports, QuietZoneIsTenLightModulesWhateverItsSizeSays) {
  SetBarcodeType(21);
  SetDataString(u"12");
  CurrentSettings().QuietZone = 1;
  CurrentSettings().QuietZoneSize = 4;
  EXPECT_EQ(Take(GenerateBarcodeString()), Quiet() + Encode("12").value_or("") + Quiet());
}

TEST_F(Interleaved2of5Exports, TextIsNarrowedToItsLowBytes) {
  SetBarcodeType(21);
  SetDataString(u"1\u0132\u0233");
  EXPECT_EQ(Take(GenerateBarcodeString()), Encode("123"));
}

TEST_F(Interleaved2of5Exports, LongestStorableTextIsEncoded) {
  SetBarcodeType(21);
  SetDataString(std::u16string(3119, u'4').c_str());
  EXPECT_EQ(ReadInterleaved2of5(Take(GenerateBarcodeString()).value_or("")),
            "0" + std::string(3119, '4'));
}

TEST(Interleaved2of5Deviations, D251CheckDigitWeightIsBoundToTheLeftmostDigit) {
  // Weights from the right, as published, would give 4x3 + 3 + 2x3 + 1 = 22 and so '8'.
  EXPECT_EQ(DeviceCheckDigit("1234"), '2');
  // An odd number of digits has weight 3 at both ends, so both rules agree.
  EXPECT_EQ(DeviceCheckDigit("1540014128876"), '3');
}

TEST(Interleaved2of5Deviations, D252EmptyTextGivesStartAndStopAlone) {
  EXPECT_EQ(Encode(""), "AaAaBaA");
}

}  // namespace
}  // namespace barhatch
