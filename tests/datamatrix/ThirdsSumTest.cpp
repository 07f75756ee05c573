#include "datamatrix/ThirdsSum.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>

#include "support/TextClasses.h"

namespace barhatch {
namespace {

using test::Below;
using test::RandomText;
using test::Wide;

struct PlainSum {
  int thirds;
  double sum;
};

// C40's weights, from the description of the set.
PlainSum SumOfC40(const std::u16string& text, std::size_t position, int start) {
  PlainSum plain = {3 * start, static_cast<double>(start)};
  for (std::size_t i = position; i < text.size(); ++i) {
    const char16_t c = text[i] & 0xFF;
    const bool isBasic = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || c == ' ';
    plain.thirds += isBasic ? 2 : 4;
    plain.sum += isBasic ? 2.0 / 3.0 : 4.0 / 3.0;
  }
  return plain;
}

// Asks at every position where the exact sum is whole, with all starts in turn.
int ExpectEqualSums(const std::u16string& text, std::size_t step) {
  ThirdsSum fast(text.data(), text.size(), kC40Thirds);
  int above = 0;
  for (std::size_t position = 0; position <= text.size(); position += step) {
    for (int start = 0; start <= 2; ++start) {
      const PlainSum plain = SumOfC40(text, position, start);
      if (plain.thirds % 3 != 0) continue;
      const bool isAbove = plain.sum > plain.thirds / 3;
      EXPECT_EQ(fast.ExceedsExactSum(position, start), isAbove) << position << " " << start;
      above += isAbove;
    }
  }
  return above;
}

TEST(ThirdsSum, OneAndNineTimesTwoThirdsComeOutAboveSeven) {
  ThirdsSum sum(u"AAAAAAAAA", 9, kC40Thirds);
  EXPECT_TRUE(sum.ExceedsExactSum(0, 1));
  EXPECT_GT(SumOfC40(u"AAAAAAAAA", 0, 1).sum, 7.0);
}

TEST(ThirdsSum, SixTimesTwoThirdsComeOutBelowFour) {
  ThirdsSum sum(u"AAAAAAAAA", 9, kC40Thirds);
  EXPECT_FALSE(sum.ExceedsExactSum(3, 0));
  EXPECT_LT(SumOfC40(u"AAAAAAAAA", 3, 0).sum, 4.0);
}

TEST(ThirdsSum, NothingAddedIsTheStart) {
  ThirdsSum sum(u"AAA", 3, kC40Thirds);
  for (int start = 0; start <= 2; ++start) EXPECT_FALSE(sum.ExceedsExactSum(3, start));
}

TEST(ThirdsSum, EqualsThePlainSumInEveryShortText) {
  for (int length = 0; length <= 14; ++length) {
    for (int bits = 0; bits < 1 << length; ++bits) {
      std::u16string text;
      for (int i = 0; i < length; ++i) text += (bits >> i & 1) != 0 ? u'a' : u'A';
      ExpectEqualSums(text, length <= 8 ? 1 : text.size() + 1);
    }
  }
}

TEST(ThirdsSum, EqualsThePlainSumInRandomTexts) {
  std::mt19937 random(11);
  int above = 0;
  for (int round = 0; round < 300; ++round) {
    const std::size_t length = Below(random, 400);
    above += ExpectEqualSums(Wide(RandomText(random, round % 9, length)), 1 + Below(random, 3));
  }
  EXPECT_GT(above, 5000);
}

TEST(ThirdsSum, EqualsThePlainSumInLongTexts) {
  std::mt19937 random(12);
  int above = 0;
  for (const std::size_t length : {3116u, 4800u}) {
    for (int textClass = 0; textClass < 9; ++textClass) {
      above += ExpectEqualSums(Wide(RandomText(random, textClass, length)), 37);
    }
  }
  EXPECT_GT(above, 200);
}

// Every character passes the beginning and the end of each stretch once; a few around the powers of
// two are added anew for each position.
TEST(ThirdsSum, WorkIsLinearInTheTextAtEveryPosition) {
  for (const std::size_t length : {390u, 779u, 1558u, 3116u}) {
    std::u16string text;
    for (std::size_t i = 0; i < length; ++i) text += i % 2 == 0 ? u'a' : u'A';
    ThirdsSum sum(text.data(), text.size(), kC40Thirds);
    for (std::size_t position = 0; position < length; position += 2) {
      sum.ExceedsExactSum(position, static_cast<int>(position / 2 % 3));
    }
    EXPECT_LT(sum.Work(), 80 * length);
  }
}

}  // namespace
}  // namespace barhatch
