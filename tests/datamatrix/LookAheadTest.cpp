#include "datamatrix/LookAhead.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>

#include "support/SlowLookAhead.h"
#include "support/TextClasses.h"

namespace barhatch {
namespace {

using test::Below;
using test::RandomText;
using test::SlowLookAhead;
using test::Wide;

Mode ModeAt(const std::string& text, std::size_t position, Mode current) {
  const std::u16string wide = Wide(text);
  return LookAhead(wide.data(), wide.size()).ModeFor(position, current);
}

ModeCounts Counts(int ascii, int base256, int edifact, int text, int x12, int c40) {
  return {{0, ascii, base256, edifact, text, x12, c40}};
}

// Asks at positions up to `stride` apart, in the given mode or, for 0, in any.
int ExpectSlowModes(const std::string& text, int mode, std::size_t stride, std::mt19937& random) {
  const std::u16string wide = Wide(text);
  LookAhead lookAhead(wide.data(), wide.size());
  int queries = 0;
  for (std::size_t p = 0; p <= text.size() + 1; p += 1 + Below(random, stride)) {
    const int current = mode != 0 ? mode : 1 + static_cast<int>(Below(random, 6));
    const Mode next = lookAhead.ModeFor(p, static_cast<Mode>(current));
    EXPECT_EQ(static_cast<int>(next), SlowLookAhead(text, p, current))
        << testing::PrintToString(text) << " at " << p << " in " << current;
    ++queries;
  }
  return queries;
}

TEST(LookAheadChoice, AsciiWhenNoneIsBelow) {
  EXPECT_EQ(ChooseMode(Counts(3, 3, 3, 3, 3, 3)), Mode::kAscii);
  EXPECT_EQ(ChooseMode(Counts(3, 4, 3, 4, 5, 3)), Mode::kAscii);
}

TEST(LookAheadChoice, EachModeWhenBelowAllOthers) {
  EXPECT_EQ(ChooseMode(Counts(3, 2, 3, 3, 3, 3)), Mode::kBase256);
  EXPECT_EQ(ChooseMode(Counts(3, 3, 2, 3, 3, 3)), Mode::kEdifact);
  EXPECT_EQ(ChooseMode(Counts(3, 3, 3, 2, 3, 3)), Mode::kText);
  EXPECT_EQ(ChooseMode(Counts(3, 3, 3, 3, 2, 3)), Mode::kX12);
  EXPECT_EQ(ChooseMode(Counts(3, 3, 3, 3, 3, 2)), Mode::kC40);
}

TEST(LookAheadChoice, C40ForEveryTieBelowAscii) {
  EXPECT_EQ(ChooseMode(Counts(3, 3, 2, 2, 3, 3)), Mode::kC40);
  EXPECT_EQ(ChooseMode(Counts(3, 3, 3, 2, 2, 3)), Mode::kC40);
  EXPECT_EQ(ChooseMode(Counts(3, 3, 3, 3, 2, 2)), Mode::kC40);
  EXPECT_EQ(ChooseMode(Counts(3, 2, 2, 3, 3, 3)), Mode::kC40);
  EXPECT_EQ(ChooseMode(Counts(4, 3, 3, 2, 3, 2)), Mode::kC40);
}

TEST(LookAhead, CountsOfTheExampleGiveC40) {
  const test::SlowCounts counts = test::SlowLookAheadCounts("AIMAIM", 0, 1);
  EXPECT_EQ(counts.ascii, 6);
  EXPECT_DOUBLE_EQ(counts.c40, 5);
  EXPECT_DOUBLE_EQ(counts.text, 9);
  EXPECT_DOUBLE_EQ(counts.x12, 5);
  EXPECT_EQ(counts.edifact, 5.5);
  EXPECT_EQ(counts.base256, 7);
  EXPECT_EQ(ModeAt("AIMAIM", 0, Mode::kAscii), Mode::kC40);
}

TEST(LookAhead, BeyondTheEndTheModeStays) {
  for (int mode = 1; mode <= 6; ++mode) {
    EXPECT_EQ(ModeAt("ABC", 4, static_cast<Mode>(mode)), static_cast<Mode>(mode));
    EXPECT_EQ(ModeAt("", 1, static_cast<Mode>(mode)), static_cast<Mode>(mode));
  }
}

TEST(LookAhead, AtTheEndTheStartingCountsDecide) {
  for (int mode = 1; mode <= 6; ++mode) {
    EXPECT_EQ(ModeAt("ABC", 3, static_cast<Mode>(mode)), static_cast<Mode>(mode));
    EXPECT_EQ(ModeAt("", 0, static_cast<Mode>(mode)), static_cast<Mode>(mode));
  }
}

TEST(LookAhead, OnlyTheLowByteCounts) {
  const std::u16string text = u"\u0141\u0142\u0143\u0144\u0145\u0146\u0147";  // 'A' to 'G'
  EXPECT_EQ(LookAhead(text.data(), text.size()).ModeFor(0, Mode::kAscii),
            ModeAt("ABCDEFG", 0, Mode::kAscii));
  EXPECT_EQ(ModeAt("ABCDEFG", 0, Mode::kAscii), Mode::kC40);
}

TEST(LookAhead, EverySingleByteAndEveryPairOfBytes) {
  std::mt19937 random(1);
  for (int first = 0; first < 256; ++first) {
    for (int mode = 1; mode <= 6; ++mode) {
      ExpectSlowModes(std::string(1, static_cast<char>(first)), mode, 1, random);
    }
    for (int second = 0; second < 256; ++second) {
      const std::string pair = {static_cast<char>(first), static_cast<char>(second)};
      ExpectSlowModes(pair, 1 + (first + second) % 6, 1, random);
    }
  }
}

// Each byte often enough for its weight in every column to decide.
TEST(LookAhead, EveryByteInRunsBesideEveryClass) {
  const char others[] = {'0', 'A', 'a', ' ', '*', '!', '\r', '\x01'};
  std::mt19937 random(2);
  for (int byte = 0; byte < 256; ++byte) {
    for (const char other : others) {
      for (const std::size_t run : {3u, 8u, 20u}) {
        const std::string text =
            std::string(run, static_cast<char>(byte)) + std::string(20 - run / 2, other);
        ExpectSlowModes(text, 0, 2, random);
      }
    }
  }
}

// One character of each of nine classes; all texts of up to six.
TEST(LookAhead, EveryTextOfUpToSixClasses) {
  const char classes[] = {'0', 'A', 'a', ' ', '*', '!', '\x01', '\xE9', '\r'};
  std::mt19937 random(3);
  int texts = 1;
  for (std::size_t length = 1; length <= 6; ++length) {
    texts *= 9;
    for (int number = 0; number < texts; ++number) {
      std::string text;
      for (int rest = number; text.size() < length; rest /= 9) text += classes[rest % 9];
      const int mode = length == 6 ? 1 : 1 + number % 6;
      const std::u16string wide = Wide(text);
      ASSERT_EQ(
          static_cast<int>(LookAhead(wide.data(), length).ModeFor(0, static_cast<Mode>(mode))),
          SlowLookAhead(text, 0, mode))
          << testing::PrintToString(text);
    }
  }
}

TEST(LookAhead, RandomTextsOfEveryClassInEveryMode) {
  std::mt19937 random(4);
  long queries = 0;
  for (int round = 0; round < 60000; ++round) {
    const std::string text = RandomText(random, round % 9, Below(random, 90));
    queries += ExpectSlowModes(text, round % 7, 4, random);
  }
  EXPECT_GT(queries, 1000000);
}

TEST(LookAhead, LongRandomTexts) {
  std::mt19937 random(5);
  for (int round = 0; round < 54; ++round) {
    ExpectSlowModes(RandomText(random, round % 9, 3116), round % 7, 250, random);
  }
}

// Two characters that cost as much in ASCII as in C40, so that a tie lasts as long as the text,
// with tails that bring the counts to it.
TEST(LookAhead, LongTextsOfLastingTies) {
  std::mt19937 random(6);
  const char partners[] = {'\x01', 'a', '!', '\r', '*'};
  for (const char partner : partners) {
    for (std::size_t tail = 0; tail <= 12; ++tail) {
      std::string text;
      while (text.size() < 3116 - tail) text += text.size() % 2 == 0 ? partner : 'A';
      text += std::string(tail, tail % 2 == 0 ? 'A' : '7');
      ExpectSlowModes(text, 1, 300, random);
      ExpectSlowModes(text, 0, 300, random);
    }
  }
}

// Counted exactly Text would need 7 codewords and be below ASCII's 8; in double precision the seven
// come out a hair above and count 8.
TEST(LookAhead, DoublePrecisionDecidesTheShortestTextThatDependsOnIt) {
  const test::SlowCounts counts = test::SlowLookAheadCounts("0A0 0 aa", 0, 1);
  EXPECT_GT(counts.text, 7);
  EXPECT_LT(counts.text, 7.0000000001);
  EXPECT_EQ(ChooseMode(Counts(8, 9, 12, 7, 12, 8)), Mode::kText);
  EXPECT_EQ(ChooseMode(Counts(8, 9, 12, 8, 12, 8)), Mode::kAscii);
  EXPECT_EQ(ModeAt("0A0 0 aa", 0, Mode::kAscii), Mode::kAscii);

  std::mt19937 random(7);
  for (int mode = 1; mode <= 6; ++mode) ExpectSlowModes("0A0 0 aa", mode, 1, random);
}

TEST(LookAhead, Base256IsNeverChosenFromAnotherMode) {
  std::mt19937 random(8);
  for (int round = 0; round < 20000; ++round) {
    const std::u16string text = Wide(RandomText(random, round % 9, Below(random, 60)));
    LookAhead lookAhead(text.data(), text.size());
    for (std::size_t p = 0; p <= text.size(); ++p) {
      const int mode = 1 + static_cast<int>(Below(random, 6));
      if (mode == 2) continue;
      EXPECT_NE(lookAhead.ModeFor(p, static_cast<Mode>(mode)), Mode::kBase256);
    }
  }
}

// A query at every position, for the texts whose ties last longest: characters looked at per
// character of the text do not grow with it.
TEST(LookAhead, WorkIsLinearInTheText) {
  for (const char partner : {'\x01', 'a', '!', '\r', '7'}) {
    for (std::size_t tail = 0; tail <= 12; ++tail) {
      for (const std::size_t length : {779u, 1558u, 3116u}) {
        std::u16string text;
        while (text.size() < length - tail) {
          text += text.size() % 2 == 0 ? static_cast<char16_t>(partner) : u'A';
        }
        text += std::u16string(tail, u'A');
        LookAhead lookAhead(text.data(), length);
        for (std::size_t p = 0; p <= length; ++p) {
          lookAhead.ModeFor(p, p % 5 == 0 ? Mode::kC40 : Mode::kAscii);
        }
        EXPECT_LT(lookAhead.Work(), 120 * length);
      }
    }
  }
}

TEST(LookAhead, WorkIsLinearInARunOfDigits) {
  for (const std::size_t length : {779u, 1558u, 3116u}) {
    const std::u16string text(length, u'7');
    LookAhead lookAhead(text.data(), length);
    for (std::size_t p = 0; p <= length; ++p) lookAhead.ModeFor(p, Mode::kAscii);
    EXPECT_LT(lookAhead.Work(), 120 * length);
  }
}

}  // namespace
}  // namespace barhatch
