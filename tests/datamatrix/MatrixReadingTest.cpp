// The library's reading against the plain reader, which shares nothing with it: codewords by hand,
// composed, random and encoded ones, sound and broken.
#include "datamatrix/MatrixReading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "datamatrix/ComposedCodewords.h"
#include "datamatrix/EncodedText.h"
#include "support/DataMatrixReader.h"

namespace barhatch {
namespace {

struct BytesRead {
  bool isSound;
  std::string bytes;
};

BytesRead Read(const std::vector<int>& codewords) {
  const std::vector<std::uint8_t> stream(codewords.begin(), codewords.end());
  const int count = static_cast<int>(stream.size());
  std::string out(MostBytesRead(count), '?');
  std::size_t length = 0;
  const bool isSound = ReadCodewords(stream.data(), count, out.data(), out.size(), length);
  EXPECT_LE(length, out.size());
  out.resize(std::min(length, out.size()));
  return {isSound, out};
}

bool IsAsciiOfOneCodeword(int codeword) {
  return (codeword >= 1 && codeword <= 128) || (codeword >= 130 && codeword <= 229) ||
         codeword == 232 || codeword == 234 || codeword == 236 || codeword == 237;
}

// The end of the symbol leads back to ASCII at once.
bool IsLatchWithNothingBehind(const std::vector<int>& codewords) {
  const int latch = codewords[0];
  if (latch == 240) return codewords.size() <= 3;
  return (latch == 230 || latch == 238 || latch == 239) && codewords.size() == 2;
}

// The items of the plain reader that stand for an FNC1 of the first or second codeword; they tell
// the application, and no byte stands for them.
std::vector<std::size_t> SilentItems(const std::vector<int>& codewords) {
  std::vector<std::size_t> silent;
  if (codewords.size() > 3 && codewords[0] == 233) {  // the text begins behind it
    for (const std::size_t item : SilentItems({codewords.begin() + 4, codewords.end()}))
      silent.push_back(item + 1);
    return silent;
  }
  if (!codewords.empty() && codewords[0] == 232) silent.push_back(0);
  if (codewords.size() < 2 || codewords[1] != 232) return silent;
  if (IsAsciiOfOneCodeword(codewords[0])) {
    silent.push_back(codewords[0] >= 130 && codewords[0] <= 229 ? 2 : 1);
  } else if (IsLatchWithNothingBehind(codewords)) {
    silent.push_back(0);
  }
  return silent;
}

BytesRead Expected(const std::vector<int>& codewords) {
  const test::Reading reading = test::ReadDataCodewords(codewords);
  const std::vector<std::size_t> silent = SilentItems(codewords);
  BytesRead expected = {reading.isSound, ""};
  bool isMacro = false;
  for (std::size_t i = 0; i < reading.items.size(); ++i) {
    const int item = reading.items[i];
    const bool isNoText =
        item >= test::kReadStructuredAppend || item == test::kReadReaderProgramming;
    if (std::count(silent.begin(), silent.end(), i) != 0 || isNoText) continue;
    if (item == test::kReadMacro05 || item == test::kReadMacro06) {
      expected.bytes +=
          std::string("[)>\x1E") + (item == test::kReadMacro05 ? "05" : "06") + '\x1D';
      isMacro = true;
    } else {
      expected.bytes += item == test::kReadFnc1 ? '\x1D' : static_cast<char>(item);
    }
  }
  if (isMacro && reading.isSound) expected.bytes += "\x1E\x04";
  return expected;
}

bool ExpectAlike(const std::vector<int>& codewords) {
  const BytesRead expected = Expected(codewords);
  const BytesRead read = Read(codewords);
  EXPECT_EQ(read.isSound, expected.isSound) << test::InDecimal(codewords);
  EXPECT_EQ(read.bytes, expected.bytes) << test::InDecimal(codewords);
  return read.isSound;
}

void ExpectBytes(const std::vector<int>& codewords, const std::string& bytes) {
  const BytesRead read = Read(codewords);
  EXPECT_TRUE(read.isSound) << test::InDecimal(codewords);
  EXPECT_EQ(read.bytes, bytes) << test::InDecimal(codewords);
}

void ExpectBroken(const std::vector<int>& codewords, const std::string& front) {
  const BytesRead read = Read(codewords);
  EXPECT_FALSE(read.isSound) << test::InDecimal(codewords);
  EXPECT_EQ(read.bytes, front) << test::InDecimal(codewords);
}

TEST(MatrixReading, EveryMode) {
  ExpectBytes({}, "");
  ExpectBytes({142, 164, 186}, "123456");  // ISO/IEC 16022
  ExpectBytes({66, 129, 70}, "A");
  ExpectBytes({235, 106}, "\xE9");
  ExpectBytes({230, 91, 11, 254, 67}, "AIMB");
  ExpectBytes({230, 91, 11, 67}, "AIMB");  // one codeword left: ASCII
  ExpectBytes({239, 91, 11, 254, 67}, "aimB");
  ExpectBytes({238, 6, 145, 254, 67}, "*>\rB");
  ExpectBytes({240, 4, 32, 196, 124, 66, 66, 66}, "ABCDAAA");
  ExpectBytes({240, 4, 32, 196, 66, 66}, "ABCDAA");
}

TEST(MatrixReading, WhatIsNoCharacter) {
  ExpectBytes({241, 27, 66}, "A");
  ExpectBytes({241, 128, 195, 66}, "A");
  ExpectBytes({241, 192, 194, 131, 66}, "A");
  ExpectBytes({232, 66, 232, 67},
              "A\x1D"
              "B");
  ExpectBytes({66, 232, 67}, "AB");
  ExpectBytes({142, 232, 67}, "12B");
  ExpectBytes({66, 67, 232, 68},
              "AB\x1D"
              "C");
  ExpectBytes({236, 66},
              "[)>\x1E"
              "05\x1D"
              "A\x1E\x04");
  ExpectBytes({237, 66, 129},
              "[)>\x1E"
              "06\x1D"
              "A\x1E\x04");
  ExpectBytes({66, 254}, "A");
}

TEST(MatrixReading, BrokenCodewordsGiveWhatStandsInFront) {
  ExpectBroken({66, 0}, "A");
  ExpectBroken({66, 233, 66}, "A");  // structured append
  ExpectBroken({233, 66, 1}, "");
  ExpectBroken({66, 234, 66}, "A");  // reader programming
  ExpectBroken({66, 254, 66}, "A");
  ExpectBroken({66, 236}, "A");
  ExpectBroken({236, 66, 0},
               "[)>\x1E"
               "05\x1D"
               "A");
  ExpectBroken({66, 235}, "A");
  ExpectBroken({66, 235, 129}, "A");
  ExpectBroken({66, 241}, "A");
  ExpectBroken({66, 241, 128}, "A");
  ExpectBroken({66, 241, 208, 1, 1}, "A");
  ExpectBroken({66, 231}, "A");
  ExpectBroken({66, 230, 250, 2}, "A");  // 64001
  ExpectBroken({66, 230, 0, 0}, "A");
  ExpectBroken({66, 230, 17, 189}, "A");  // shift 3 has no value 33
}

// 255 states, position by position: a length of 0 reaches to the end, 250 and more take two.
TEST(MatrixReading, LengthsOfBase256) {
  for (const int length : {1, 249, 250, 499, 500, 1555}) {
    std::vector<int> codewords = {231};
    std::string bytes;
    const auto put = [&](int value) {
      const int position = static_cast<int>(codewords.size()) + 1;
      codewords.push_back((value + 149 * position % 255 + 1) % 256);
    };
    if (length >= 250) put(length / 250 + 249);
    put(length % 250);
    for (int i = 0; i < length; ++i) {
      bytes += static_cast<char>(i * 7);
      put(i * 7 % 256);
    }
    ExpectBytes(codewords, bytes);
    EXPECT_TRUE(ExpectAlike(codewords));
    if (length == 1555) continue;
    codewords.push_back(66);
    ExpectBytes(codewords, bytes + 'A');
    codewords.resize(codewords.size() - 2);
    ExpectBroken(codewords, "");
  }
  for (const int length : {1, 249, 250, 600}) {
    std::vector<int> codewords = {231, (149 * 2 % 255 + 1) % 256};
    for (int i = 0; i < length; ++i) codewords.push_back((66 + 149 * (i + 3) % 255 + 1) % 256);
    ExpectBytes(codewords, std::string(static_cast<std::size_t>(length), 'B'));
  }
}

TEST(MatrixReading, RoomIsNeverOverrun) {
  const std::uint8_t codewords[] = {236, 142, 164, 66};
  char out[32];
  for (std::size_t room = 0; room <= 20; ++room) {
    std::fill(std::begin(out), std::end(out), '?');
    std::size_t length = 0;
    EXPECT_TRUE(ReadCodewords(codewords, 4, out, room, length));
    EXPECT_EQ(length, 7u + 5u + 2u);
    const std::string whole =
        "[)>\x1E"
        "05\x1D"
        "1234A\x1E\x04";
    EXPECT_EQ(std::string(out, std::min(room, length)), whole.substr(0, room));
    EXPECT_EQ(std::string(out + std::min(room, length), 4), "????");
  }
}

TEST(MatrixReading, MostBytesAreEnough) {
  EXPECT_EQ(Read(std::vector<int>(1558, 142)).bytes.size(), MostBytesRead(1558) - 9);
  EXPECT_EQ(Read({236}).bytes.size(), 9u);
}

TEST(MatrixReading, ComposedCodewordsAreReadAlike) {
  test::Composer composer(1);
  for (int round = 0; round < 40000; ++round) {
    std::vector<int> codewords = composer.Compose();
    ASSERT_TRUE(ExpectAlike(codewords));
    const std::vector<int> padded =
        test::Padded(codewords, static_cast<int>(codewords.size() + composer.Below(5)));
    ASSERT_TRUE(ExpectAlike(padded));
    if (testing::Test::HasFailure()) return;
  }
}

// Cut off anywhere, or one codeword exchanged.
TEST(MatrixReading, DamagedCodewordsAreReadAlike) {
  test::Composer composer(2);
  int broken = 0;
  for (int round = 0; round < 60000 && !testing::Test::HasFailure(); ++round) {
    std::vector<int> codewords = composer.Compose();
    const std::size_t place = composer.Below(static_cast<int>(codewords.size()));
    if (round % 2 == 0) {
      codewords.resize(place);
    } else {
      codewords[place] = static_cast<int>(composer.Below(256));
    }
    broken += ExpectAlike(codewords) ? 0 : 1;
  }
  EXPECT_GT(broken, 3000);
}

TEST(MatrixReading, StructuredAppendAndReaderProgrammingAreNoText) {
  ExpectBytes({233, 14, 1, 1, 66, 67}, "AB");
  ExpectBytes({233, 14, 1, 1, 232, 142, 232, 66},
              "12\x1D"
              "A");
  ExpectBytes({233, 14, 1, 1, 66, 232, 142}, "A12");
  ExpectBytes({233, 14, 1, 1}, "");
  ExpectBytes({234, 66}, "A");
}

TEST(MatrixReading, RandomCodewordsAreReadAlike) {
  std::mt19937 random(3);
  constexpr int kLatches[] = {230, 231, 232, 235, 238, 239, 240, 241, 254, 236, 233, 234};
  for (int round = 0; round < 60000 && !testing::Test::HasFailure(); ++round) {
    std::vector<int> codewords(random() % 40);
    for (int& codeword : codewords) {
      codeword = random() % 6 == 0 ? kLatches[random() % 12] : static_cast<int>(random() % 256);
    }
    ExpectAlike(codewords);
  }
}

TEST(MatrixReading, EncodedTextsAreReadAlike) {
  std::mt19937 random(4);
  for (int round = 0; round < 30000 && !testing::Test::HasFailure(); ++round) {
    std::u16string text = test::Wide(
        test::RandomText(random, round % test::kTextClassCount, 1 + test::Below(random, 60)));
    if (round % 5 == 0) text[test::Below(random, text.size())] = static_cast<char16_t>(256 + round);
    const auto buffer = test::EncodedBuffer(text, round % 4);
    const std::vector<int> codewords = test::CodewordsOf(*buffer);
    ExpectAlike(codewords);
    ExpectAlike(test::Padded(codewords, static_cast<int>(codewords.size() + random() % 4)));
  }
}

}  // namespace
}  // namespace barhatch
