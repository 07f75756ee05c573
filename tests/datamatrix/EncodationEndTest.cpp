// The end of the text in C40, Text, X12 and EDIFACT, with 0 to 3 characters left, around every
// square capacity and under every request. Capacities are typed here once more.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "datamatrix/EncodedText.h"
#include "datamatrix/ModeEncodations.h"
#include "support/DataMatrixReader.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::Wide;

constexpr int kSquareCapacities[] = {3,   5,   8,   12,  18,  22,  30,  36,  44,  62,   86,   114,
                                     144, 174, 204, 280, 368, 456, 576, 696, 816, 1050, 1304, 1558};

constexpr Mode kTripleModes[] = {Mode::kC40, Mode::kText, Mode::kX12};

struct Stretch {
  std::string codewords;
  int count;
};

// What is written behind `count` codewords by a stretch in the mode, which takes all of the text.
Stretch StretchOf(Mode mode, int count, const std::u16string& text, const SizeRequest& request) {
  CodewordBuffer buffer;
  for (int i = 0; i < count; ++i) buffer.Append(1);
  test::DeviceState state({text.data(), text.size()}, request, buffer);
  state.mode = mode;
  mode == Mode::kEdifact ? EncodeEdifact(state) : EncodeTriples(state);
  EXPECT_EQ(state.position, text.size());
  const std::vector<int> all = test::CodewordsOf(buffer);
  return {test::InDecimal(std::vector<int>(all.begin() + count, all.end())), buffer.Count()};
}

std::string Ending(Mode mode, int count, const std::string& rest,
                   const SizeRequest& request = test::kSmallestSquare) {
  const Stretch stretch = StretchOf(mode, count, Wide(rest), request);
  return stretch.count > 1558 ? "overflow" : stretch.codewords;
}

bool IsSquareCapacity(int codewords) {
  return std::count(std::begin(kSquareCapacities), std::end(kSquareCapacities), codewords) != 0;
}

TEST(EndOfTriples, NothingLeftUnlatchIsLeftOutOneBelowEverySquareCapacityAlone) {
  for (const Mode mode : kTripleModes) {
    for (int count = 0; count < 1558; ++count) {
      EXPECT_EQ(Ending(mode, count, ""), IsSquareCapacity(count + 1) ? "" : "254") << count;
    }
    EXPECT_EQ(Ending(mode, 1558, ""), "overflow");
  }
}

// Two codewords, values and a pad, that fill a square behind `count` codewords; "" where they do
// not, or X12 has no pad.
std::string Finish(Mode mode, int count, const std::string& codewords) {
  return mode != Mode::kX12 && IsSquareCapacity(count + 2) ? codewords : "";
}

std::string Either(const std::string& finish, const std::string& otherwise) {
  return finish.empty() ? otherwise : finish;
}

// In C40 "A" is one value, in Text two: 2 1 0 = 3241 = 12 169.
TEST(EndOfTriples, OneCharacterLeftNeedsNoUnlatchWhenItFillsTheSymbol) {
  for (const Mode mode : kTripleModes) {
    for (int count = 0; count < 1557; ++count) {
      const std::string finish = mode == Mode::kText ? Finish(mode, count, "12 169") : "";
      EXPECT_EQ(Ending(mode, count, "A"),
                Either(finish, IsSquareCapacity(count + 1) ? "66" : "254 66"))
          << count;
    }
    EXPECT_EQ(Ending(mode, 1557, "A"), "66");
    EXPECT_EQ(Ending(mode, 1558, "A"), "overflow");
  }
}

// In Text the byte is three values, 1 30 22 = 2823 = 11 7, in C40 four.
TEST(EndOfTriples, OneCharacterOfTwoCodewordsIsUnlatchedFor) {
  for (const Mode mode : kTripleModes) {
    for (int count = 0; count <= 1555; ++count) {
      const std::string finish = mode == Mode::kText ? Finish(mode, count, "11 7") : "";
      EXPECT_EQ(Ending(mode, count, "\xE9"), Either(finish, "254 235 105")) << count;
    }
    EXPECT_EQ(Ending(mode, 1556, "\xE9"), mode == Mode::kText ? "11 7" : "overflow");
  }
}

// "AB" is 14 15 0 = 23001 = 89 217 in C40, four values in Text; "12" is 5 6 0 = 8241 = 32 49 in
// both.
TEST(EndOfTriples, TwoCharactersLeftFinishInTheModeOrAreUnlatchedFor) {
  for (const Mode mode : kTripleModes) {
    for (int count = 0; count <= 1555; ++count) {
      const std::string finish = mode == Mode::kC40 ? Finish(mode, count, "89 217") : "";
      EXPECT_EQ(Ending(mode, count, "AB"), Either(finish, "254 66 67")) << count;
      EXPECT_EQ(Ending(mode, count, "12"), Either(Finish(mode, count, "32 49"), "254 142"))
          << count;
    }
    EXPECT_EQ(Ending(mode, 1556, "AB"), mode == Mode::kC40 ? "89 217" : "overflow");
    EXPECT_EQ(Ending(mode, 1556, "12"), mode == Mode::kX12 ? "254 142" : "32 49");
    EXPECT_EQ(Ending(mode, 1557, "12"), "overflow");
  }
}

// The unlatch is implied at the end of the symbol, a rectangle too, and not at a capacity that the
// symbol passes over.
TEST(EndOfTriples, RequestDecidesWhereOneCharacterFillsTheSymbol) {
  for (const Mode mode : kTripleModes) {
    EXPECT_EQ(Ending(mode, 7, "A", {14, 14, 0}), "66");
    EXPECT_EQ(Ending(mode, 7, "A", {16, 16, 0}), "254 66");
    EXPECT_EQ(Ending(mode, 7, "A", {144, 144, 0}), "254 66");
    EXPECT_EQ(Ending(mode, 4, "A", {8, 18, 0}), "66");      // 5 in the rectangle as in 12 x 12
    EXPECT_EQ(Ending(mode, 7, "A", {8, 32, 0}), "254 66");  // 10
    EXPECT_EQ(Ending(mode, 9, "A", {8, 32, 0}), "66");
    EXPECT_EQ(Ending(mode, 15, "A", {12, 26, 0}), "66");     // 16
    EXPECT_EQ(Ending(mode, 21, "A", {12, 36, 0}), "66");     // 22 in both
    EXPECT_EQ(Ending(mode, 31, "A", {16, 36, 0}), "66");     // 32
    EXPECT_EQ(Ending(mode, 48, "A", {16, 48, 0}), "66");     // 49
    EXPECT_EQ(Ending(mode, 61, "A", {8, 18, 1}), "66");      // has become 32 x 32
    EXPECT_EQ(Ending(mode, 61, "A", {8, 18, 2}), "254 66");  // refused
  }
}

TEST(EndOfTriples, RequestDecidesWhereTwoCharactersFillTheSymbol) {
  for (const Mode mode : {Mode::kC40, Mode::kText}) {
    EXPECT_EQ(Ending(mode, 6, "12", {14, 14, 0}), "32 49");
    EXPECT_EQ(Ending(mode, 6, "12", {16, 16, 0}), "254 142");
    EXPECT_EQ(Ending(mode, 6, "12", {8, 32, 0}), "254 142");
    EXPECT_EQ(Ending(mode, 8, "12", {8, 32, 0}), "32 49");
    EXPECT_EQ(Ending(mode, 47, "12", {16, 48, 0}), "32 49");
    EXPECT_EQ(Ending(mode, 60, "12", {8, 18, 1}), "32 49");    // has become 32 x 32
    EXPECT_EQ(Ending(mode, 60, "12", {8, 18, 2}), "254 142");  // refused
  }
}

// In front of a designator nothing ends.
TEST(EndOfTriples, OnlyTheEndOfTheTextIsFinishedInTheMode) {
  EXPECT_EQ(Ending(Mode::kC40, 6, "12"), "32 49");
  CodewordBuffer buffer;
  test::DeviceState state({u"12\u0100", 3}, {14, 14, 1}, buffer);
  state.mode = Mode::kC40;
  EncodeTriples(state);
  EXPECT_EQ(test::InDecimal(test::CodewordsOf(buffer)), "254 142");
}

TEST(EndOfTriples, DroppedByteNeedsTheUnlatch) {
  for (const Mode mode : kTripleModes) EXPECT_EQ(Ending(mode, 7, "\x80"), "254");
}

// Values 14 2 1 | 14 2 1 | 14 ...: what is left over goes out in ASCII with the last character.
TEST(EndOfShiftedTriples, LastCharacterIsTakenBackWhenValuesAreLeftOver) {
  // "AAa": 14 14 2 1, one left over: 'a' back, 14 14 0 = 22961 = 89 177
  EXPECT_EQ(Ending(Mode::kC40, 10, "AAa"), "89 177 254 98");
  // "Aaa": 14 2 1 2 1, two left over: 'a' back, 14 2 1 = 22482 = 87 210
  EXPECT_EQ(Ending(Mode::kC40, 10, "Aaa"), "87 210 254 98");
  // "aaa": 2 1 2 1 2 1, none: 2 1 2 = 3243 = 12 171, 1 2 1 = 1682 = 6 146
  EXPECT_EQ(Ending(Mode::kC40, 10, "aaa"), "12 171 6 146 254");
  // "aAA" the same values the other way round: 2 1 14 = 3255 = 12 183; 'A' back
  EXPECT_EQ(Ending(Mode::kC40, 10, "aAA"), "12 183 254 66");
}

TEST(EndOfShiftedTriples, CharactersAreTakenBackUntilNoSingleValueIsLeft) {
  // "A" and two bytes of three values: 14 | 1 30 14 | 1 30 14: behind each is a single value.
  EXPECT_EQ(Ending(Mode::kC40, 10, "A\xC1\xC1"), "254 66 235 65 235 65");
  // "AA" and a byte of three values: 14 14 leave two.
  EXPECT_EQ(Ending(Mode::kC40, 10, "AA\xC1"), "89 177 254 235 65");
}

TEST(EndOfShiftedTriples, CharactersLeftBehindTheGroupsComeAfterThoseTakenBack) {
  // "AAa" leaves a single value, "b" is left: 14 14 0, then "ab".
  EXPECT_EQ(Ending(Mode::kC40, 10, "AAab"), "89 177 254 98 99");
  // "Aaa" leaves two, which a pad completes: 87 210, 2 1 0 = 3241 = 12 169, then "b".
  EXPECT_EQ(Ending(Mode::kC40, 10, "Aaab"), "87 210 12 169 254 99");
}

TEST(EndOfShiftedTriples, CharacterTakenBackMayFillTheSymbol) {
  // 9 codewords, 89 177, one more makes 12: the unlatch is implied.
  EXPECT_EQ(Ending(Mode::kC40, 9, "AAa"), "89 177 98");
  EXPECT_EQ(Ending(Mode::kC40, 9, "AAa", {18, 18, 0}), "89 177 254 98");
}

// Values that wait and those of the characters left, where they fill the symbol of 14 x 14.
TEST(EndOfShiftedTriples, ValuesThatWaitFinishWithTheCharactersLeft) {
  // "AAa" leaves 1; "b" has 2 2: 1 2 2 = 1683 = 6 147
  EXPECT_EQ(Ending(Mode::kC40, 4, "AAab"), "89 179 6 147");
  // "AAa" leaves 1; "A" has 14: 1 14 and a pad = 2161 = 8 113
  EXPECT_EQ(Ending(Mode::kC40, 4, "AAaA"), "89 179 8 113");
  // "Aaa" leaves 2 1; "A" has 14: 3255 = 12 183
  EXPECT_EQ(Ending(Mode::kC40, 4, "AaaA"), "87 210 12 183");
  // "Aaa" leaves 2 1; "AA" and "b" are too much
  EXPECT_EQ(Ending(Mode::kC40, 4, "AaaAA"), "87 210 12 169 254 66 66");
  EXPECT_EQ(Ending(Mode::kC40, 4, "Aaab"), "87 210 12 169 254 99");
}

// With no character left nothing is finished: the last one goes out in ASCII, or fills the symbol.
TEST(EndOfShiftedTriples, AGroupThatEndsTheTextIsNotFinished) {
  EXPECT_EQ(Ending(Mode::kC40, 8, "Aaa"), "87 210 254 98");  // 12
  EXPECT_EQ(Ending(Mode::kC40, 9, "Aaa"), "87 210 98");
  EXPECT_EQ(Ending(Mode::kC40, 7, "Aaa", {8, 32, 0}), "87 210 98");
}

TEST(EndOfEdifact, NothingLeftUnlatchIsLeftOutOneBelowEverySquareCapacityAlone) {
  for (int count = 0; count < 1558; ++count) {
    EXPECT_EQ(Ending(Mode::kEdifact, count, ""), IsSquareCapacity(count + 1) ? "" : "124") << count;
  }
  EXPECT_EQ(Ending(Mode::kEdifact, 1558, ""), "overflow");
}

struct Rest {
  const char* characters;
  int asciiCodewords;
  const char* codewords;
};

// At most two codewords from the last group to the end of the symbol are ASCII in themselves.
TEST(EndOfEdifact, CharactersLeftNeedNoUnlatchInTheLastTwoCodewordsOfTheSymbol) {
  const Rest rests[] = {{".", 1, "47"},         {"..", 2, "47 47"},     {"12", 1, "142"},
                        {"...", 3, "47 47 47"}, {"12.", 2, "142 47"},   {".12", 2, "47 142"},
                        {"123", 2, "142 52"},   {"1.2", 3, "50 47 51"}, {"\xE9", 2, "235 105"},
                        {"\x7F", 1, "128"},     {"\x81", 2, "235 1"}};
  for (const Rest& rest : rests) {
    for (int count = 0; count + rest.asciiCodewords < 1558; ++count) {
      int capacity = count + rest.asciiCodewords;
      while (!IsSquareCapacity(capacity)) ++capacity;
      const std::string unlatch = capacity - count <= 2 ? "" : "124 ";
      EXPECT_EQ(Ending(Mode::kEdifact, count, rest.characters), unlatch + rest.codewords) << count;
    }
    EXPECT_EQ(Ending(Mode::kEdifact, 1558, rest.characters), "overflow");
  }
}

TEST(EndOfEdifact, RequestDecidesWhereTheSymbolEnds) {
  EXPECT_EQ(Ending(Mode::kEdifact, 10, "..", {16, 16, 0}), "47 47");      // 12
  EXPECT_EQ(Ending(Mode::kEdifact, 10, "..", {18, 18, 0}), "124 47 47");  // 18
  EXPECT_EQ(Ending(Mode::kEdifact, 16, "..", {18, 18, 0}), "47 47");      // 18
  EXPECT_EQ(Ending(Mode::kEdifact, 8, "..", {8, 32, 0}), "47 47");        // 10
  EXPECT_EQ(Ending(Mode::kEdifact, 14, "..", {12, 26, 0}), "47 47");      // 16
  EXPECT_EQ(Ending(Mode::kEdifact, 30, ".", {16, 36, 0}), "47");          // 32
  EXPECT_EQ(Ending(Mode::kEdifact, 48, ".", {16, 48, 0}), "47");          // 49
  EXPECT_EQ(Ending(Mode::kEdifact, 60, "..", {8, 18, 1}), "47 47");       // 62 in 32 x 32
  EXPECT_EQ(Ending(Mode::kEdifact, 60, "..", {8, 18, 2}), "124 47 47");   // refused
}

TEST(EndOfEdifact, DroppedByteTakesNoCodeword) {
  EXPECT_EQ(Ending(Mode::kEdifact, 9, "\x80"), "124");  // three to the end of 12
  EXPECT_EQ(Ending(Mode::kEdifact, 10, "\x80"), "");
  EXPECT_EQ(Ending(Mode::kEdifact, 12, "\x80"), "");
}

// Every ending, in every size: what was put in is read.
void ExpectReadable(Mode mode, const std::string& rest, const SizeRequest& request, int count) {
  const int latch = mode == Mode::kC40    ? 230
                    : mode == Mode::kText ? 239
                    : mode == Mode::kX12  ? 238
                                          : 240;
  CodewordBuffer buffer;
  for (int i = 0; i < count; ++i) buffer.Append('x' + 1);
  buffer.Append(latch);
  const std::u16string text = Wide((mode == Mode::kText ? "aim" : "AIM") +
                                   std::string(mode == Mode::kEdifact ? "." : "") + rest);
  test::DeviceState state({text.data(), text.size()}, request, buffer);
  state.mode = mode;
  mode == Mode::kEdifact ? EncodeEdifact(state) : EncodeTriples(state);
  const auto size =
      test::ReferenceChoice(buffer.Count(), request.rows, request.columns, request.isExpanding);
  if (!size) return;
  const test::Reading reading =
      test::ReadDataCodewords(test::Padded(test::CodewordsOf(buffer), size->data));
  std::vector<int> expected(static_cast<std::size_t>(count), 'x');
  for (const char16_t character : text) expected.push_back(character);
  EXPECT_TRUE(reading.isSound);
  EXPECT_EQ(reading.items, expected) << count << " " << request.rows << "x" << request.columns;
}

TEST(EndOfText, EveryEndingWithCharactersLeftIsReadableInEverySize) {
  for (const Mode mode : {Mode::kC40, Mode::kText, Mode::kX12, Mode::kEdifact}) {
    for (const std::string rest : {"A", "1", "A1", "12", "1A2", "123"}) {
      if (rest.size() == 3 && mode != Mode::kEdifact) continue;
      for (const test::ReferenceSize& size : test::ReferenceSizes()) {
        for (int isExpanding = 0; isExpanding <= 2; ++isExpanding) {
          for (int count = 0; count <= 70; ++count) {
            ExpectReadable(mode, rest, {size.rows, size.columns, isExpanding}, count);
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace barhatch
