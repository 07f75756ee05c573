#include "datamatrix/C40Sets.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace barhatch {
namespace {

using Values = std::vector<int>;

Values ValuesIn(CharacterSet set, int byte) {
  const CharacterValues values = ValuesOf(set, byte);
  return Values(values.values, values.values + values.count);
}

// The sets as lists of characters in the order of their values, ISO/IEC 16022.
const std::string kDigits = "0123456789";
const std::string kUpper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string kLower = "abcdefghijklmnopqrstuvwxyz";
const std::string kShift2 = "!\"#$%&'()*+,-./:;<=>?@[\\]^_";

Values ByLists(int byte, const std::string& basic, const std::string& shift3) {
  const char character = static_cast<char>(byte);
  if (byte < 32) return {0, byte};
  const std::size_t inBasic = basic.find(character);
  if (inBasic != std::string::npos) return {3 + static_cast<int>(inBasic)};
  const std::size_t inShift2 = kShift2.find(character);
  if (inShift2 != std::string::npos) return {1, static_cast<int>(inShift2)};
  return {2, static_cast<int>(shift3.find(character))};
}

TEST(C40Sets, EveryC40CharacterHasTheValuesOfTheStandard) {
  for (int byte = 0; byte < 128; ++byte) {
    EXPECT_EQ(ValuesIn(CharacterSet::kC40, byte),
              ByLists(byte, " " + kDigits + kUpper, "`" + kLower + "{|}~\x7F"))
        << byte;
  }
}

TEST(C40Sets, EveryTextCharacterHasTheValuesOfTheStandard) {
  for (int byte = 0; byte < 128; ++byte) {
    EXPECT_EQ(ValuesIn(CharacterSet::kText, byte),
              ByLists(byte, " " + kDigits + kLower, "`" + kUpper + "{|}~\x7F"))
        << byte;
  }
}

TEST(C40Sets, X12HasFortyCharactersAndNoOthers) {
  const std::string characters = "\r*> " + kDigits + kUpper;
  for (int byte = 0; byte < 256; ++byte) {
    const std::size_t at = characters.find(static_cast<char>(byte));
    const Values expected = at == std::string::npos ? Values{} : Values{static_cast<int>(at)};
    EXPECT_EQ(ValuesIn(CharacterSet::kX12, byte), expected) << byte;
  }
}

TEST(C40Sets, CornersOfTheRanges) {
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, '0'), Values({4}));
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, '9'), Values({13}));
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, 'A'), Values({14}));
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, 'Z'), Values({39}));
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, '!'), Values({1, 0}));
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, '_'), Values({1, 26}));
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, '`'), Values({2, 0}));
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, 127), Values({2, 31}));
  EXPECT_EQ(ValuesIn(CharacterSet::kText, 'A'), Values({2, 1}));
  EXPECT_EQ(ValuesIn(CharacterSet::kText, '{'), Values({2, 27}));
}

TEST(C40Sets, BytesAbove127AreTheUpperShiftAndTheByteLess128) {
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, 0xC1), Values({1, 30, 14}));   // 'A' + 128
  EXPECT_EQ(ValuesIn(CharacterSet::kText, 0xE9), Values({1, 30, 22}));  // 'i' + 128
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, 0xE9), Values({1, 30, 2, 9}));
  EXPECT_EQ(ValuesIn(CharacterSet::kC40, 0x80), Values({1, 30, 0, 0}));
  EXPECT_EQ(ValuesIn(CharacterSet::kText, 0xFF), Values({1, 30, 2, 31}));
}

}  // namespace
}  // namespace barhatch
