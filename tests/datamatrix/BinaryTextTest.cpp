#include "datamatrix/BinaryText.h"

#include <gtest/gtest.h>

#include <string>

namespace barhatch {
namespace {

const std::string kDiagnostic = "\n\n ERROR! BINARY has only 1 and 0!\n";

struct Outcome {
  int value;
  std::string output;
};

Outcome Convert(const std::string& text) {
  testing::internal::CaptureStdout();
  const int value = BinaryTextToInteger(text.c_str());
  return {value, testing::internal::GetCapturedStdout()};
}

TEST(BinaryText, MostSignificantDigitIsFirst) {
  EXPECT_EQ(Convert("101").value, 5);
  EXPECT_EQ(Convert("10000000").value, 128);
  EXPECT_EQ(Convert("").value, 0);
  EXPECT_EQ(Convert("").output, "");
}

TEST(BinaryText, LeadingZerosOfAFixedWidthDoNotCount) {
  EXPECT_EQ(Convert("00000101").value, 5);
  EXPECT_EQ(Convert("0000000000000000").value, 0);
  EXPECT_EQ(Convert("0000000000000000").output, "");
}

TEST(BinaryText, EverySixteenBitValueComesBack) {
  for (int value = 0; value < 65536; ++value) {
    char digits[17] = {};
    for (int bit = 0; bit < 16; ++bit) digits[bit] = (value >> (15 - bit) & 1) != 0 ? '1' : '0';
    ASSERT_EQ(BinaryTextToInteger(digits), value);
  }
}

TEST(BinaryText, LongestTextIsThirtyOneDigits) {
  EXPECT_EQ(Convert(std::string(31, '1')).value, 0x7FFFFFFF);
}

TEST(BinaryText, OtherCharactersGiveZeroAndTheDiagnostic) {
  for (const std::string text : {"2", "102", "1 0", "11111111x", "-1", "/", " 1", "\xFF"}) {
    const Outcome outcome = Convert(text);
    EXPECT_EQ(outcome.value, 0) << text;
    EXPECT_EQ(outcome.output, kDiagnostic) << text;
  }
}

TEST(BinaryText, StopsAtTheFirstOtherCharacter) {
  EXPECT_EQ(Convert("12345").output, kDiagnostic);  // once, not for each
  EXPECT_EQ(Convert("12" + std::string(100, '1')).value, 0);
}

}  // namespace
}  // namespace barhatch
