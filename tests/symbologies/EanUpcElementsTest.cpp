#include "symbologies/EanUpcElements.h"

#include <gtest/gtest.h>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <random>
#include <string>

#include "api/BarcodeSettings.h"
#include "barhatch.h"
#include "support/EanUpcReader.h"
#include "support/Modules.h"
#include "support/OwnedString.h"
#include "support/SettingsFixture.h"

namespace barhatch {
namespace {

using test::EanUpcReading;
using test::Modules;
using test::Quiet;
using test::ReadEanUpc;
using test::Take;

// The twelve types as hosts know them, in the order of the layouts.
struct EanUpcType {
  std::int32_t type;
  const char* symbol;
  std::size_t mainDigits;
  std::size_t addonDigits;
  int leftQuiet;
  int rightQuiet;
  std::size_t modules;           // without quiet zone
  std::size_t modulesWithQuiet;  // with it
  std::size_t capacity;

  std::size_t InputDigits() const { return mainDigits + addonDigits; }
  bool IsUpcA() const { return mainDigits == 11; }
  bool IsUpcE() const { return std::string(symbol) == "UPC-E"; }
};

constexpr EanUpcType kTypes[] = {
    {3, "EAN-13", 12, 0, 11, 7, 95, 113, 28053},   {15, "EAN-13", 12, 2, 11, 7, 123, 141, 28093},
    {16, "EAN-13", 12, 5, 11, 7, 150, 168, 28093}, {9, "EAN-13", 11, 0, 9, 9, 95, 113, 18722},
    {13, "EAN-13", 11, 2, 9, 9, 123, 141, 21839},  {14, "EAN-13", 11, 5, 9, 9, 150, 168, 21859},
    {12, "EAN-8", 7, 0, 7, 7, 67, 81, 28053},      {17, "EAN-8", 7, 2, 7, 7, 95, 109, 28073},
    {18, "EAN-8", 7, 5, 7, 7, 122, 136, 28093},    {10, "UPC-E", 7, 0, 9, 7, 51, 67, 21839},
    {19, "UPC-E", 7, 2, 9, 7, 79, 95, 21839},      {20, "UPC-E", 7, 5, 9, 7, 106, 122, 21859},
};

std::u16string Wide(const std::string& text) {
  std::u16string wide;
  for (char byte : text) wide += static_cast<char16_t>(static_cast<unsigned char>(byte));
  return wide;
}

// Every test goes through the exports, as a host does.
class EanUpcFamily : public test::SettingsFixture {
 protected:
  static char* Generate(const EanUpcType& type, const std::u16string& text, bool quietZone) {
    SetBarcodeType(type.type);
    SetDataString(text.c_str());
    CurrentSettings().QuietZone = quietZone ? 1 : 0;
    return GenerateBarcodeString();
  }
  static std::optional<std::string> Encode(const EanUpcType& type, const std::string& text,
                                           bool quietZone = false) {
    return Take(Generate(type, Wide(text), quietZone));
  }
};

// Digits that every type accepts when there are as many as it asks for.
std::string SampleText(const EanUpcType& type) {
  return std::string("01234567890123456").substr(0, type.InputDigits());
}

std::string ExpectedDigits(const EanUpcType& type, const std::string& text) {
  const std::string given = (type.IsUpcA() ? "0" : "") + text.substr(0, type.mainDigits);
  return given + test::MissingCheckDigit(type.IsUpcE() ? test::ExpandedUpcE(given) : given);
}

TEST_F(EanUpcFamily, EmptyTextIsRefused) {
  for (const EanUpcType& type : kTypes) EXPECT_FALSE(Encode(type, "")) << type.type;
}

TEST_F(EanUpcFamily, EverySingleByteIsRefused) {
  for (const EanUpcType& type : kTypes) {
    for (int byte = 1; byte < 256; ++byte) {
      EXPECT_FALSE(Encode(type, std::string(1, static_cast<char>(byte)))) << type.type;
    }
  }
}

TEST_F(EanUpcFamily, OnlyTheExactLengthIsAccepted) {
  for (const EanUpcType& type : kTypes) {
    for (std::size_t length = 0; length <= 20; ++length) {
      const bool accepted = Encode(type, std::string(length, '0')).has_value();
      EXPECT_EQ(accepted, length == type.InputDigits()) << type.type << " " << length;
    }
    EXPECT_FALSE(Encode(type, std::string(3119, '0'))) << type.type;
  }
}

TEST_F(EanUpcFamily, AnyByteBehindTheRightDigitsIsRefused) {
  for (const EanUpcType& type : kTypes) {
    for (int byte = 1; byte < 256; ++byte) {
      EXPECT_FALSE(Encode(type, SampleText(type) + static_cast<char>(byte)))
          << type.type << " " << byte;
    }
    EXPECT_FALSE(Encode(type, " " + SampleText(type))) << type.type;
    EXPECT_FALSE(Encode(type, SampleText(type) + "\n1")) << type.type;
  }
}

TEST_F(EanUpcFamily, AnyByteButADigitIsRefusedAtEveryPlace) {
  for (const EanUpcType& type : kTypes) {
    for (std::size_t place = 0; place < type.InputDigits(); ++place) {
      for (int byte = 1; byte < 256; ++byte) {
        std::string text = SampleText(type);
        text[place] = static_cast<char>(byte);
        const char highestDigit = type.IsUpcE() && place == 0 ? '1' : '9';
        const bool expected = byte >= '0' && byte <= highestDigit;
        EXPECT_EQ(Encode(type, text).has_value(), expected)
            << "type " << type.type << ", place " << place << ", byte " << byte;
      }
    }
  }
}

TEST_F(EanUpcFamily, TextWithItsCheckDigitIsOneDigitTooLong) {
  for (const EanUpcType& type : kTypes) {
    const std::string text = SampleText(type);
    const std::string addon = text.substr(type.mainDigits);
    const char check = ExpectedDigits(type, text).back();
    EXPECT_FALSE(Encode(type, text.substr(0, type.mainDigits) + check + addon)) << type.type;
  }
}

TEST_F(EanUpcFamily, UnitsAreNarrowedBeforeTheyAreLookedAt) {
  for (const EanUpcType& type : kTypes) {
    const std::string text = SampleText(type);
    std::u16string wide = Wide(text);
    for (char16_t& unit : wide) unit = static_cast<char16_t>(unit | 0x4200);
    EXPECT_EQ(Take(Generate(type, wide, false)), Encode(type, text)) << type.type;
    wide.back() = 0x4200;  // ends the narrowed text one digit early
    EXPECT_FALSE(Take(Generate(type, wide, false))) << type.type;
  }
}

TEST_F(EanUpcFamily, ModuleCountsAreThoseOfTheSymbols) {
  for (const EanUpcType& type : kTypes) {
    EXPECT_EQ(Encode(type, SampleText(type))->size(), type.modules) << type.type;
    EXPECT_EQ(Encode(type, SampleText(type), true)->size(), type.modulesWithQuiet) << type.type;
  }
}

TEST_F(EanUpcFamily, QuietZonesAreLightModulesAroundTheSameSymbol) {
  for (const EanUpcType& type : kTypes) {
    const std::string plain = *Encode(type, SampleText(type));
    EXPECT_EQ(Encode(type, SampleText(type), true),
              Quiet(type.leftQuiet) + plain + Quiet(type.rightQuiet))
        << type.type;
  }
}

TEST_F(EanUpcFamily, WithoutQuietZoneTheFirstAndLastModulesAreDarkAndTheGapRemains) {
  for (const EanUpcType& type : kTypes) {
    std::string text = SampleText(type);
    text.back() = '0';
    const std::string drawn = *Encode(type, text);
    EXPECT_EQ(drawn.front(), 'A') << type.type;
    EXPECT_EQ(drawn.back(), 'A') << type.type;
    const std::size_t gap = drawn.find(Quiet(8) + Modules("1011"));
    EXPECT_EQ(gap != std::string::npos, type.addonDigits > 0) << type.type;
  }
}

TEST_F(EanUpcFamily, QuietZoneSizeChangesNothing) {
  for (const EanUpcType& type : kTypes) {
    const auto expected = Encode(type, SampleText(type), true);
    for (std::int32_t size : {0, 1, 50, -1}) {
      CurrentSettings().QuietZoneSize = size;
      EXPECT_EQ(Encode(type, SampleText(type), true), expected) << type.type;
    }
  }
}

TEST_F(EanUpcFamily, AnyQuietZoneValueButZeroAddsTheQuietZones) {
  SetBarcodeType(3);
  SetDataString(u"950110153100");
  for (std::int32_t flag : {1, 255, -1, 256}) {
    CurrentSettings().QuietZone = flag;
    EXPECT_EQ(Take(GenerateBarcodeString())->size(), 113u) << flag;
  }
}

TEST_F(EanUpcFamily, ArrayHasTheCapacityThatHostsHaveAlwaysBeenGiven) {
  for (const EanUpcType& type : kTypes) {
    for (bool quietZone : {false, true}) {
      const std::unique_ptr<char[]> letters(Generate(type, Wide(SampleText(type)), quietZone));
      ASSERT_TRUE(letters);
#if defined(__GLIBC__)
      const std::size_t usable = malloc_usable_size(letters.get());
      EXPECT_GE(usable, type.capacity) << type.type;
      EXPECT_LT(usable, type.capacity + 16) << type.type;  // rounded up to the heap's alignment
#endif
    }
  }
}

TEST_F(EanUpcFamily, ThousandsOfTextsAreReadBack) {
  std::mt19937 random(20);
  std::uniform_int_distribution<int> digit(0, 9);
  for (const EanUpcType& type : kTypes) {
    for (int round = 0; round < 500; ++round) {
      std::string text;
      while (text.size() < type.InputDigits()) text += static_cast<char>('0' + digit(random));
      if (type.IsUpcE()) text[0] = static_cast<char>('0' + round % 2);
      const bool quietZone = round % 4 < 2;
      const std::optional<EanUpcReading> reading = ReadEanUpc(*Encode(type, text, quietZone));
      ASSERT_TRUE(reading) << type.type << " " << text;
      EXPECT_EQ(reading->symbol, type.symbol);
      EXPECT_EQ(reading->digits, ExpectedDigits(type, text));
      EXPECT_EQ(reading->addon, text.substr(type.mainDigits));
      EXPECT_EQ(reading->gap, type.addonDigits > 0 ? 8 : 0);
      EXPECT_EQ(reading->leftQuiet, quietZone ? type.leftQuiet : 0);
      EXPECT_EQ(reading->rightQuiet, quietZone ? type.rightQuiet : 0);
    }
  }
}

TEST_F(EanUpcFamily, AllTwoDigitAddonsAreReadBackBesideEverySymbol) {
  for (const EanUpcType& type : kTypes) {
    if (type.addonDigits != 2) continue;
    for (int value = 0; value < 100; ++value) {
      const std::string addon = std::to_string(100 + value).substr(1);
      const auto reading =
          ReadEanUpc(*Encode(type, SampleText(type).substr(0, type.mainDigits) + addon));
      ASSERT_TRUE(reading) << type.type << " " << addon;
      EXPECT_EQ(reading->addon, addon);
    }
  }
}

// Addons 0000x have the check values 0, 3, 6, 9, 2, 5, 8, 1, 4, 7: all ten.
TEST_F(EanUpcFamily, AllFiveDigitParitiesAreReadBackBesideEverySymbol) {
  for (const EanUpcType& type : kTypes) {
    if (type.addonDigits != 5) continue;
    for (char last = '0'; last <= '9'; ++last) {
      const std::string addon = std::string("0000") + last;
      const auto reading =
          ReadEanUpc(*Encode(type, SampleText(type).substr(0, type.mainDigits) + addon));
      ASSERT_TRUE(reading) << type.type << " " << addon;
      EXPECT_EQ(reading->addon, addon);
    }
  }
}

TEST(EanUpcLayouts, AnnounceTheLettersOfTheirTypes) {
  ASSERT_EQ(std::size(kEanUpcLayouts), std::size(kTypes));
  for (std::size_t i = 0; i < std::size(kTypes); ++i) {
    const std::size_t widerGap = kTypes[i].addonDigits > 0 ? 12 - 8 : 0;  // by the book
    EXPECT_EQ(MostModules(kEanUpcLayouts[i]), kTypes[i].modules + widerGap) << kTypes[i].type;
  }
}

TEST(EanUpcDigits, SetsAreThePublishedOnes) {
  // Widths of the elements as the standard draws sets A and C; set B has them from right to left.
  const char* const widths[] = {"3211", "2221", "2122", "1411", "1132",
                                "1231", "1114", "1312", "1213", "3112"};
  const auto drawn = [](const std::string& elements, char shade) {
    std::string modules;
    for (char width : elements) {
      modules.append(static_cast<std::size_t>(width - '0'), shade);
      shade = shade == '0' ? '1' : '0';
    }
    return modules;
  };
  for (int digit = 0; digit < 10; ++digit) {
    const std::string elements = widths[digit];
    const char character = static_cast<char>('0' + digit);
    EXPECT_EQ(EncodeDigit(character, NumberSet::kL), drawn(elements, '0'));
    EXPECT_EQ(EncodeDigit(character, NumberSet::kG),
              drawn(std::string(elements.rbegin(), elements.rend()), '0'));
    EXPECT_EQ(EncodeDigit(character, NumberSet::kR), drawn(elements, '1'));
  }
  EXPECT_STREQ(EncodeDigit('0', NumberSet::kL), "0001101");
  EXPECT_STREQ(EncodeDigit('0', NumberSet::kG), "0100111");
  EXPECT_STREQ(EncodeDigit('0', NumberSet::kR), "1110010");
}

TEST(EanUpcParities, OfTheFirstDigitAreThePublishedOnes) {
  const char* const published[] = {"000000", "001011", "001101", "001110", "010011",
                                   "011001", "011100", "010101", "010110", "011010"};
  for (int digit = 0; digit < 10; ++digit) {
    EXPECT_STREQ(FirstDigitParity(static_cast<char>('0' + digit)), published[digit]);
  }
}

TEST(EanUpcParities, OfUpcEAreThePublishedOnesInBothSystems) {
  const char* const published[2][10] = {{"111000", "110100", "110010", "110001", "101100", "100110",
                                         "100011", "101010", "101001", "100101"},
                                        {"000111", "001011", "001101", "001110", "010011", "011001",
                                         "011100", "010101", "010110", "011010"}};
  for (int check = 0; check < 10; ++check) {
    EXPECT_STREQ(UpcEParity(0, check), published[0][check]);
    EXPECT_STREQ(UpcEParity(1, check), published[1][check]);
  }
}

TEST(EanUpcParities, OfUpcEExistForNumberSystemsZeroAndOneOnly) {
  EXPECT_EQ(UpcEParity(2, 0), nullptr);
  EXPECT_EQ(UpcEParity(9, 0), nullptr);
  EXPECT_EQ(UpcEParity(-1, 0), nullptr);
}

TEST(EanUpcParities, OfATwoDigitAddonAreItsValueModuloFour) {
  const char* const byRemainder[] = {"00", "01", "10", "11"};  // LL, LG, GL, GG
  EXPECT_STREQ(AddonParity("00", 2), "00");
  EXPECT_STREQ(AddonParity("01", 2), "01");
  EXPECT_STREQ(AddonParity("02", 2), "10");
  EXPECT_STREQ(AddonParity("03", 2), "11");
  EXPECT_STREQ(AddonParity("04", 2), "00");
  for (int value = 0; value < 100; ++value) {
    const std::string addon = std::to_string(100 + value).substr(1);
    EXPECT_STREQ(AddonParity(addon.c_str(), 2), byRemainder[value % 4]) << addon;
  }
}

TEST(EanUpcParities, OfEveryFiveDigitAddonAreThoseOfItsCheckValue) {
  const char* const published[] = {"11000", "10100", "10010", "10001", "01100",
                                   "00110", "00011", "01010", "01001", "00101"};
  for (int value = 0; value < 100000; ++value) {
    const std::string addon = std::to_string(100000 + value).substr(1);
    const int threes = value % 10 + value / 100 % 10 + value / 10000;
    const int nines = value / 10 % 10 + value / 1000 % 10;
    ASSERT_STREQ(AddonParity(addon.c_str(), 5), published[(3 * threes + 9 * nines) % 10]) << addon;
  }
}

TEST(EanUpcParities, OfAFiveDigitAddonWithCheckValueSevenAreLGLGL) {
  EXPECT_STREQ(AddonParity("00009", 5), "01010");  // 3 * 9 = 27
  SymbolWriter builder(RuntimeMemory(), 0, {0, 0});
  builder.Open(8 + 47);
  Conformance how = Conformance::Device();
  AppendAddon(builder, EanUpcVariant(EanUpcSymbol::kEan13Addon5, 0), "00009", how);
  EXPECT_EQ(Take(builder.Release()),
            Modules("00000000 1011 0001101 01 0100111 01 0001101 01 0100111 01 0001011"));
}

std::string DrawnAddon(EanUpcSymbol symbol, const char* addon, Conformance how, int gap = 0) {
  SymbolWriter out(RuntimeMemory(), 0, {0, 0});
  out.Open(100);
  AppendAddon(out, EanUpcVariant(symbol, gap), addon, how);
  return *Take(out.Release());
}

TEST(EanUpcAddon, OfTwoDigitsIsTwentyModulesAndOfFiveFortySeven) {
  const Conformance device = Conformance::Device();
  EXPECT_EQ(DrawnAddon(EanUpcSymbol::kEan13Addon2, "12", device).size(), 8u + 20u);
  EXPECT_EQ(DrawnAddon(EanUpcSymbol::kEan13Addon5, "52495", device).size(), 8u + 47u);
  EXPECT_EQ(DrawnAddon(EanUpcSymbol::kEan13, "", device), "");
}

TEST(EanUpcAddon, StandsNineModulesAwayByTheBook) {
  const Conformance published = Conformance::Published();
  EXPECT_EQ(DrawnAddon(EanUpcSymbol::kEan13Addon2, "12", published).size(), 9u + 20u);
  EXPECT_EQ(DrawnAddon(EanUpcSymbol::kUpcAAddon5, "52495", published).size(), 9u + 47u);
}

TEST(EanUpcAddon, StandsAsFarAwayAsIsAskedForByTheBook) {
  for (const EanUpcSymbol symbol : {EanUpcSymbol::kEan13Addon2, EanUpcSymbol::kUpcEAddon2}) {
    for (int gap = 7; gap <= 12; ++gap) {
      const std::string addon = DrawnAddon(symbol, "12", Conformance::Published(), gap);
      EXPECT_EQ(addon.find('A'), static_cast<std::size_t>(gap));
      EXPECT_EQ(addon.size(), static_cast<std::size_t>(gap + 20));
      EXPECT_EQ(DrawnAddon(symbol, "12", Conformance::Device(), gap).find('A'), 8u);
    }
  }
}

TEST(EanUpcAddon, TheGapHasItsLeastBesideEanAndUpc) {
  for (const EanUpcLayout& layout : kEanUpcLayouts) {
    const bool isUpc = layout.mainDigits == 11 || layout.symbol >= EanUpcSymbol::kUpcE;
    EXPECT_EQ(LeastAddonGapOf(layout.symbol), isUpc ? 9 : 7);
  }
}

TEST(EanUpcCheckDigit, WeighsThreeFromTheRightmostDigit) {
  EXPECT_EQ(CheckDigit("400638133393", 12), 1);
  EXPECT_EQ(CheckDigit("9638507", 7), 4);
  EXPECT_EQ(CheckDigit("04210000526", 11), 4);
  EXPECT_EQ(CheckDigit("14210000526", 11), 1);
  for (int count : {7, 11, 12}) {
    for (int place = 0; place < count; ++place) {
      for (char digit = '0'; digit <= '9'; ++digit) {
        std::string digits(static_cast<std::size_t>(count), '0');
        digits[static_cast<std::size_t>(place)] = digit;
        EXPECT_EQ(CheckDigit(digits.c_str(), count), test::MissingCheckDigit(digits) - '0')
            << digits;
      }
    }
  }
}

TEST(EanUpcCheckDigit, IsPutBetweenMainAndAddonDigits) {
  char ean13[kWorkingCapacity] = "400638133393";
  InsertCheckDigit(EanUpcLayoutOf(EanUpcSymbol::kEan13), ean13);
  EXPECT_STREQ(ean13, "4006381333931");
  char withTwo[kWorkingCapacity] = "40063813339312";
  InsertCheckDigit(EanUpcLayoutOf(EanUpcSymbol::kEan13Addon2), withTwo);
  EXPECT_STREQ(withTwo, "400638133393112");
  char withFive[kWorkingCapacity] = "40063813339352495";
  InsertCheckDigit(EanUpcLayoutOf(EanUpcSymbol::kEan13Addon5), withFive);
  EXPECT_STREQ(withFive, "400638133393152495");
  char ean8[kWorkingCapacity] = "963850752495";
  InsertCheckDigit(EanUpcLayoutOf(EanUpcSymbol::kEan8Addon5), ean8);
  EXPECT_STREQ(ean8, "9638507452495");
}

// The reader is worth something only if it refuses what is wrong.
TEST(EanUpcReader, ReadsPublishedModulesAndRefusesEveryFlippedOne) {
  const std::string symbols[] = {
      Modules("101 0110001 0100111 0110011 0011001 0100111 0011001 01010 "
              "1001110 1000010 1100110 1110010 1110010 1110010 101"),
      Modules("101 0001011 0110001 0001101 0011001 01010 1101100 1000010 1011100 1010000 101"),
      Modules("101 0100111 0011001 0011011 0111101 0011101 0110001 010101")};
  EXPECT_EQ(ReadEanUpc(symbols[0])->digits, "9501101531000");
  EXPECT_EQ(ReadEanUpc(symbols[1])->digits, "95012346");
  EXPECT_EQ(ReadEanUpc(symbols[2])->digits, "00123457");
  for (const std::string& symbol : symbols) {
    for (std::size_t i = 0; i < symbol.size(); ++i) {
      std::string flipped = symbol;
      flipped[i] = flipped[i] == 'A' ? 'a' : 'A';
      EXPECT_FALSE(ReadEanUpc(flipped)) << flipped;
    }
  }
}

TEST(EanUpcReader, RefusesAnAddonWhoseParityBeliesItsDigits) {
  const std::string symbol =
      Modules("101 0001011 0110001 0001101 0011001 01010 1101100 1000010 1011100 1010000 101");
  EXPECT_EQ(ReadEanUpc(symbol + Modules("00000000 1011 0001101 01 0110011"))->addon, "01");
  EXPECT_FALSE(ReadEanUpc(symbol + Modules("00000000 1011 0001101 01 0011001")));
  EXPECT_FALSE(ReadEanUpc(symbol + Modules("00000000 1011 0001101 11 0110011")));
  EXPECT_FALSE(ReadEanUpc(symbol + Modules("00000000 1101 0001101 01 0110011")));
}

}  // namespace
}  // namespace barhatch
