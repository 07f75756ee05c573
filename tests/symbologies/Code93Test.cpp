#include "symbologies/Code93.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "api/BarcodeSettings.h"
#include "support/Code93Reader.h"
#include "support/GenerateThroughExports.h"
#include "support/Modules.h"
#include "support/OwnedString.h"
#include "support/SeededTexts.h"
#include "support/SettingsFixture.h"
#include "symbologies/Code93Characters.h"
#include "symbologies/DrawnSymbol.h"

namespace barhatch {
namespace {

using test::GenerateThroughExports;
using test::Modules;
using test::Quiet;
using test::QuietZone;
using test::ReadCode93;
using test::ReadCode93Characters;
using test::Take;

using Names = std::vector<std::string>;

constexpr int kNativeType = 2;
constexpr int kFullAsciiType = 22;

std::optional<std::string> Encode(const std::string& text, int type,
                                  QuietZone quietZone = QuietZone::kNone) {
  return test::DrawnByTheDevice(type, text, quietZone);
}
std::optional<std::string> EncodeNative(const std::string& text) {
  return Encode(text, kNativeType);
}
std::optional<std::string> EncodeFullAscii(const std::string& text) {
  return Encode(text, kFullAsciiType);
}

std::optional<Names> CharactersOf(const std::optional<std::string>& symbol) {
  return symbol ? ReadCode93Characters(*symbol) : std::nullopt;
}
std::optional<std::string> TextOf(const std::optional<std::string>& symbol) {
  return symbol ? ReadCode93(*symbol) : std::nullopt;
}

const std::string kNativeSet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

std::string AsciiWithoutNul() {
  std::string ascii;
  for (int character = 1; character < 128; ++character) ascii += static_cast<char>(character);
  return ascii;
}

TEST(Code93, EmptyTextIsStartTwoZerosStopAndTerminationBar) {
  const std::string expected = Modules("101011110  100010100 100010100  101011110 1");
  EXPECT_EQ(EncodeNative(""), expected);
  EXPECT_EQ(EncodeFullAscii(""), expected);
  EXPECT_EQ(expected.size(), 37u);
}

TEST(Code93, LettersAAndBHaveCheckCharactersVAndDash) {
  const std::string expected =
      Modules("101011110  110101000 110100100  110011010 100101110  101011110 1");
  EXPECT_EQ(EncodeNative("AB"), expected);
  EXPECT_EQ(EncodeFullAscii("AB"), expected);
}

// The worked example of the public descriptions of Code 93: TEST93 has the checks + and 6.
TEST(Code93, PublishedExampleTest93HasCheckCharactersPlusAndSix) {
  EXPECT_EQ(EncodeNative("TEST93"),
            Modules("101011110  110100110 110010010 110101100 110100110 100001010 101000010"
                    "101110110 100100010  101011110 1"));
}

TEST(Code93, NativeSetRefusesLowerCaseA) { EXPECT_FALSE(EncodeNative("a")); }

TEST(Code93, FullAsciiWritesLowerCaseAAsPlusShiftAndA) {
  // Values 46 10: C = 10 x 1 + 46 x 2 = 102, modulo 47 is 8; K = 8 x 1 + 10 x 2 + 46 x 3 = 166,
  // modulo 47 is 25 ('P').
  EXPECT_EQ(EncodeFullAscii("a"),
            Modules("101011110  100110010 110101000  100010010 100010110  101011110 1"));
}

TEST(Code93, QuietZoneIsTenLightModulesAtEachEnd) {
  for (const int input : {kNativeType, kFullAsciiType}) {
    for (const char* text : {"", "AB", "$"}) {
      EXPECT_EQ(Encode(text, input, QuietZone::kBothEnds),
                Quiet() + *Encode(text, input) + Quiet());
    }
  }
}

TEST(Code93, NativeSetAcceptsItsFortyThreeCharactersAndNoOtherByte) {
  for (int byte = 1; byte < 256; ++byte) {
    const char character = static_cast<char>(byte);
    const bool expected = kNativeSet.find(character) != std::string::npos;
    EXPECT_EQ(EncodeNative(std::string(1, character)).has_value(), expected) << byte;
    EXPECT_EQ(EncodeNative(std::string("A") + character).has_value(), expected) << byte;
  }
}

TEST(Code93, FullAsciiAcceptsEveryByte) {
  for (int byte = 1; byte < 256; ++byte) {
    EXPECT_TRUE(EncodeFullAscii(std::string(1, static_cast<char>(byte)))) << byte;
  }
}

TEST(Code93, EveryAsciiCharacterIsWrittenAsThePublishedPair) {
  for (int character = 1; character < 128; ++character) {
    const std::string text(1, static_cast<char>(character));
    EXPECT_EQ(CharactersOf(EncodeFullAscii(text)), test::PublishedCode93Pair(character))
        << character;
  }
}

TEST(Code93, BothTypesWriteTheNativeSetAlike) {
  for (char character : kNativeSet) {
    const std::string text = std::string("7") + character + "Z";
    EXPECT_EQ(EncodeNative(text), EncodeFullAscii(text)) << character;
    EXPECT_EQ(TextOf(EncodeNative(text)), text);
  }
}

// A one followed by zeros carries the weight of the leftmost place to C.
TEST(Code93, WeightsOfCComeRoundAfterTwenty) {
  const auto checkC = [](std::size_t length) {
    const auto symbol = EncodeNative("1" + std::string(length - 1, '0'));
    return symbol->substr(symbol->size() - 28, 9);
  };
  EXPECT_EQ(checkC(19), Modules("100110100"));  // 19, 'J'
  EXPECT_EQ(checkC(20), Modules("100011010"));  // 20, 'K'
  EXPECT_EQ(checkC(21), Modules("101001000"));  // 1
  EXPECT_EQ(checkC(41), Modules("101001000"));
}

// The same text carries to K the value of C and the weight of the place, which C moves by one.
TEST(Code93, WeightsOfKComeRoundAfterFifteen) {
  const auto checkK = [](std::size_t length) {
    const auto symbol = EncodeNative("1" + std::string(length - 1, '0'));
    return symbol->substr(symbol->size() - 19, 9);
  };
  EXPECT_EQ(checkK(13), Modules("110110010"));  // 13 + 14 = 27, 'R'
  EXPECT_EQ(checkK(14), Modules("110100110"));  // 14 + 15 = 29, 'T'
  EXPECT_EQ(checkK(15), Modules("101101000"));  // 15 + 1 = 16, 'G'
  EXPECT_EQ(checkK(16), Modules("101100010"));  // 16 + 2 = 18, 'I'
}

TEST(Code93, ReadsBackWhateverTheLength) {
  for (std::size_t length = 0; length < 130; ++length) {
    const std::string text = std::string(length / 2, 'q') + std::string(length - length / 2, 'X');
    EXPECT_EQ(TextOf(EncodeFullAscii(text)), text);
  }
}

TEST(Code93, RandomFullAsciiTextsReadBack) {
  test::SeededTexts texts(93);
  const std::string ascii = AsciiWithoutNul();
  for (int i = 0; i < 3000; ++i) {
    const std::string text = texts.Next(ascii, 0, 60);
    ASSERT_EQ(TextOf(EncodeFullAscii(text)), text) << "text " << i;
  }
}

TEST(Code93, RandomNativeTextsReadBack) {
  test::SeededTexts texts(2);
  for (int i = 0; i < 3000; ++i) {
    const std::string text = texts.Next(kNativeSet, 0, 60);
    ASSERT_EQ(TextOf(EncodeNative(text)), text) << "text " << i;
  }
}

TEST(Code93, LongestNativeTextIsWrittenWhole) {
  for (std::size_t length : {3118u, 3119u}) {
    const auto symbol = Encode(std::string(length, 'Z'), kNativeType, QuietZone::kBothEnds);
    ASSERT_TRUE(symbol);
    EXPECT_EQ(symbol->size(), 9 * (length + 4) + 1 + 20);
    EXPECT_EQ(ReadCode93(*symbol), std::string(length, 'Z'));
  }
}

TEST(Code93, LongestTextOfShiftedBytesIsWrittenWhole) {
  const auto symbol = Encode(std::string(3119, 'z'), kFullAsciiType, QuietZone::kBothEnds);
  ASSERT_TRUE(symbol);
  EXPECT_EQ(symbol->size(), 9u * (6238 + 4) + 1 + 20);
  EXPECT_EQ(ReadCode93(*symbol), std::string(3119, 'z'));
}

TEST(Code93, LongestTextOfBytesWithoutValueIsAccepted) {
  EXPECT_EQ(EncodeFullAscii(std::string(3119, '\xFF')), EncodeFullAscii(""));
}

class Code93Exports : public test::SettingsFixture {};

TEST_F(Code93Exports, TypeTwoTakesTheNativeSetAndTypeTwentyTwoEveryByte) {
  EXPECT_EQ(GenerateThroughExports(2, u"AB-7 $"), EncodeNative("AB-7 $"));
  EXPECT_EQ(GenerateThroughExports(2, u"a"), std::nullopt);
  EXPECT_EQ(GenerateThroughExports(22, u"a\x7F"), EncodeFullAscii("a\x7F"));
  EXPECT_EQ(GenerateThroughExports(22, u"A\u00E9"), EncodeFullAscii("A\xE9"));
}

TEST_F(Code93Exports, OnlyTheLowByteOfAUnitCounts) {
  EXPECT_EQ(GenerateThroughExports(2, u"\u0141"), EncodeNative("A"));
  EXPECT_EQ(GenerateThroughExports(22, u"\u0161\u0100b"), EncodeFullAscii("a"));
}

TEST_F(Code93Exports, QuietZoneFollowsTheSetting) {
  CurrentSettings().QuietZone = 7;
  EXPECT_EQ(GenerateThroughExports(2, u"A"), Quiet() + *EncodeNative("A") + Quiet());
  EXPECT_EQ(GenerateThroughExports(22, u"a"), Quiet() + *EncodeFullAscii("a") + Quiet());
}

TEST_F(Code93Exports, LongestTextOfShiftedUnitsIsWrittenWhole) {
  const auto symbol = GenerateThroughExports(22, std::u16string(3119, u'z'));
  ASSERT_TRUE(symbol);
  EXPECT_EQ(ReadCode93(*symbol), std::string(3119, 'z'));
}

TEST(Code93Table, RowsAreThePublishedCharactersInTheOrderOfTheirValues) {
  Names names;
  for (char character : kNativeSet) names.push_back(std::string(1, character));
  for (const char* name : {"($)", "(%)", "(/)", "(+)", "*"}) names.push_back(name);
  ASSERT_EQ(names.size(), 48u);
  for (std::size_t value = 0; value < 48; ++value) {
    EXPECT_EQ(test::NameOfCode93Character(Code93Modules(static_cast<int>(value))), names[value]);
  }
}

TEST(Code93Table, RowsAreNineModulesInSixRunsDarkFirstLightLastAndDistinct) {
  std::set<std::string> rows;
  for (int value = 0; value < 48; ++value) {
    const std::string modules = Code93Modules(value);
    EXPECT_EQ(modules.size(), 9u) << value;
    EXPECT_EQ(modules.front(), '1') << value;
    EXPECT_EQ(modules.back(), '0') << value;
    int runs = 1;
    for (std::size_t i = 1; i < modules.size(); ++i) runs += modules[i] != modules[i - 1];
    EXPECT_EQ(runs, 6) << value;
    rows.insert(modules);
  }
  EXPECT_EQ(rows.size(), 48u);
}

TEST(Code93Table, ValuesOutsideTheTableHaveNoPattern) {
  EXPECT_EQ(Code93Modules(-1), nullptr);
  EXPECT_EQ(Code93Modules(48), nullptr);
}

TEST(Code93Table, BytesOf128AndAboveHaveNoValue) {
  Conformance how = Conformance::Device();
  for (int byte = 128; byte < 256; ++byte) {
    const Code93Expansion& expansion = ExpandCode93(static_cast<char>(byte), how);
    EXPECT_EQ(expansion.count, 1) << byte;
    EXPECT_EQ(expansion.values[0], kCode93NoValue) << byte;
  }
}

// AIM USS Code 93, full ASCII: NUL is (%)U, values 44 and 30.
TEST(Code93Table, NulIsAPair) {
  Conformance how = Conformance::Published();
  const Code93Expansion& expansion = ExpandCode93('\0', how);
  EXPECT_EQ(expansion.count, 2);
  EXPECT_EQ(expansion.values[0], 44);
  EXPECT_EQ(expansion.values[1], 30);
}

TEST(Code93Deviations, D931SignsWithNativeCharactersAreWrittenAsShiftPairs) {
  // Values 45 13: C = 13 x 1 + 45 x 2 = 103, modulo 47 is 9; K = 9 x 1 + 13 x 2 + 45 x 3 = 170,
  // modulo 47 is 29 ('T').
  EXPECT_EQ(EncodeNative("$"),
            Modules("101011110  111010110 110010100  100001010 110100110  101011110 1"));
  EXPECT_EQ(CharactersOf(EncodeNative("$")), (Names{"(/)", "D"}));
  EXPECT_EQ(CharactersOf(EncodeNative("%")), (Names{"(/)", "E"}));
  EXPECT_EQ(CharactersOf(EncodeNative("+")), (Names{"(/)", "K"}));
  EXPECT_EQ(CharactersOf(EncodeNative("/")), (Names{"(/)", "O"}));
}

TEST(Code93Deviations, D931AReaderReportsTheSameText) {
  EXPECT_EQ(TextOf(EncodeNative("$1/2+3%4")), "$1/2+3%4");
  EXPECT_EQ(TextOf(EncodeFullAscii("$1/2+3%4")), "$1/2+3%4");
}

TEST(Code93Deviations, D932ByteWithoutValueRepeatsTheCharacterBeforeAndIsInNoCheckSum) {
  // A A B with the check characters of A B: V and -.
  EXPECT_EQ(EncodeFullAscii("A\xC4"
                            "B"),
            Modules("101011110  110101000 110101000 110100100  110011010 100101110  101011110 1"));
  // Every byte without a value once more.
  EXPECT_EQ(EncodeFullAscii("A\x80\xFF"
                            "B"),
            Modules("101011110  110101000 110101000 110101000 110100100"
                    "110011010 100101110  101011110 1"));
  // At the end of the text: A B B with the checks of A B.
  EXPECT_EQ(EncodeFullAscii("AB\x9F"),
            Modules("101011110  110101000 110100100 110100100  110011010 100101110  101011110 1"));
}

TEST(Code93Deviations, D932OfAShiftPairTheLetterIsRepeated) {
  // (+) A A with the check characters of (+) A: 8 and P.
  EXPECT_EQ(EncodeFullAscii("a\x80"),
            Modules("101011110  100110010 110101000 110101000  100010010 100010110  101011110 1"));
}

TEST(Code93Deviations, D932EveryByteFrom128OnIsTreatedAlike) {
  for (int byte = 129; byte < 256; ++byte) {
    EXPECT_EQ(EncodeFullAscii(std::string("A") + static_cast<char>(byte)), EncodeFullAscii("A\x80"))
        << byte;
  }
}

TEST(Code93Deviations, D932AReaderRefusesTheSymbolUnlessTheSumsHappenToAgree) {
  EXPECT_EQ(TextOf(EncodeFullAscii("A\x80")), std::nullopt);
  EXPECT_EQ(TextOf(EncodeFullAscii("AB\xE9")), std::nullopt);
  EXPECT_EQ(TextOf(EncodeFullAscii("0\x80")), "00");
}

TEST(Code93Deviations, D933LeadingByteWithoutValueWritesNothing) {
  EXPECT_EQ(EncodeFullAscii("\x80"
                            "AB"),
            EncodeFullAscii("AB"));
  EXPECT_EQ(EncodeFullAscii("\xFF\x80"), EncodeFullAscii(""));
}

TEST(Code93Deviations, D934EmptyTextMakesASymbolWithoutData) {
  EXPECT_EQ(CharactersOf(EncodeNative("")), Names{});
}

}  // namespace
}  // namespace barhatch
