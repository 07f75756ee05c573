#include "datamatrix/Encodation.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "datamatrix/EncodedText.h"
#include "datamatrix/ModeEncodations.h"

namespace barhatch {
namespace {

using test::Encoded;
using test::EncodedBuffer;

std::string EciSequence(int number) {
  CodewordBuffer buffer;
  AppendEciSequence(buffer, number);
  return test::InDecimal(test::CodewordsOf(buffer));
}

// --- ASCII

TEST(AsciiEncodation, DigitPairsOf123456) { EXPECT_EQ(Encoded("123456"), "142 164 186"); }

TEST(AsciiEncodation, EmptyTextHasNoCodewords) {
  for (int codeFormat = 0; codeFormat <= 1; ++codeFormat) EXPECT_EQ(Encoded("", codeFormat), "");
}

TEST(AsciiEncodation, LoneDigitInFrontOfALetter) { EXPECT_EQ(Encoded("1A"), "50 66"); }

TEST(AsciiEncodation, EveryDigitPair) {
  for (int pair = 0; pair < 100; ++pair) {
    const std::string text = {static_cast<char>('0' + pair / 10),
                              static_cast<char>('0' + pair % 10)};
    EXPECT_EQ(Encoded(text), std::to_string(130 + pair));
  }
}

TEST(AsciiEncodation, OddRunOfDigitsEndsInALoneDigit) {
  EXPECT_EQ(Encoded("123"), "142 52");
  EXPECT_EQ(Encoded("A123B"), "66 142 52 67");
}

TEST(AsciiEncodation, EverySingleByteBelow128IsItsValueAndOne) {
  for (int byte = 0; byte < 128; ++byte) {
    EXPECT_EQ(Encoded(std::string(1, static_cast<char>(byte))), std::to_string(byte + 1));
  }
}

TEST(AsciiEncodation, NeighboursOfTheDigitsMakeNoPair) {
  EXPECT_EQ(Encoded("1/"), "50 48");
  EXPECT_EQ(Encoded(":1"), "59 50");
  EXPECT_EQ(Encoded("/1"), "48 50");
}

TEST(AsciiEncodation, LongestTextIs3116DigitsIn1558Codewords) {
  EXPECT_EQ(EncodedBuffer(std::u16string(3116, u'7'))->Count(), 1558);
  EXPECT_FALSE(EncodedBuffer(std::u16string(3116, u'7'))->HasOverflowed());
  EXPECT_EQ(Encoded(std::string(3115, '7') + "A"), "overflow");
}

// --- ECI designators

TEST(EciDesignator, SequencesAtTheEdgesOfTheThreeForms) {
  EXPECT_EQ(EciSequence(0), "241 1");
  EXPECT_EQ(EciSequence(26), "241 27");
  EXPECT_EQ(EciSequence(126), "241 127");
  EXPECT_EQ(EciSequence(127), "241 128 1");
  EXPECT_EQ(EciSequence(321), "241 128 195");
  EXPECT_EQ(EciSequence(380), "241 128 254");
  EXPECT_EQ(EciSequence(381), "241 129 1");
  EXPECT_EQ(EciSequence(16382), "241 191 254");
  EXPECT_EQ(EciSequence(16383), "241 192 1 1");
  EXPECT_EQ(EciSequence(16383 + 254), "241 192 2 1");
  EXPECT_EQ(EciSequence(65535), "241 192 194 131");  // 49152 = 193 x 254 + 130
}

TEST(EciDesignator, CharactersAbove255AreDesignators) {
  EXPECT_EQ(Encoded(u"\u00FFA"), "235 127 66");
  EXPECT_EQ(Encoded(u"\u0100A"), "241 128 130 66");  // 256 - 127 = 129
}

TEST(EciDesignator, LowByteZeroDoesNotEndTheText) {
  EXPECT_EQ(Encoded(u"A\u0100B"), "66 241 128 130 67");
}

TEST(EciDesignator, LowByteOfADigitMakesNoPair) {
  EXPECT_EQ(Encoded(u"1\u01321"), "50 241 128 180 50");  // 306 - 127 = 179
  EXPECT_EQ(Encoded(u"\u01311"), "241 128 179 50");
}

TEST(EciDesignator, TextOf3116DesignatorsOverflows) {
  const auto buffer = EncodedBuffer(std::u16string(3116, u'\uFFFF'));
  EXPECT_TRUE(buffer->HasOverflowed());
  EXPECT_EQ(buffer->Count(), 1559);
}

TEST(EciDesignator, C40IsLeftBeforeIt) {
  EXPECT_EQ(Encoded(u"AIMAIMAIMAIM\u0100"), "230 91 11 91 11 91 11 91 11 254 241 128 130");
}

// 7 codewords in front of the unlatch are one below the capacity of 14 x 14.
TEST(EciDesignator, UnlatchIsWrittenAlsoOneBelowASquareCapacity) {
  EXPECT_EQ(Encoded(u"AIMAIMAIM"), "230 91 11 91 11 91 11");
  EXPECT_EQ(Encoded(u"AIMAIMAIM\u0100"), "230 91 11 91 11 91 11 254 241 128 130");
}

TEST(EciDesignator, InsideAGroupOfC40TheCharactersBeforeItGoOutInAscii) {
  EXPECT_EQ(Encoded(u"AIMAIMAIMA\u0100"), "230 91 11 91 11 91 11 254 66 241 128 130");
  EXPECT_EQ(Encoded(u"AIMAIMAIMA1\u0100"), "230 91 11 91 11 91 11 254 66 50 241 128 130");
}

// ABCD = 000001 000010 000011 000100 = 4 32 196; .... = 101110 each = 186 235 174; 302 - 127 = 175
TEST(EciDesignator, EdifactIsLeftBeforeIt) {
  EXPECT_EQ(Encoded(u"....ABCD....ABCD\u012E"),
            "240 186 235 174 4 32 196 186 235 174 4 32 196 124 241 128 176");
}

TEST(EciDesignator, InsideAGroupOfEdifactTheCharactersBeforeItGoOutInAscii) {
  EXPECT_EQ(Encoded(u"....ABCD....ABCD.A1\u012E"),
            "240 186 235 174 4 32 196 186 235 174 4 32 196 124 47 66 50 241 128 176");
}

TEST(EciDesignator, EncodingContinuesInAscii) {
  EXPECT_EQ(Encoded(u"AIMAIMAIM\u010012"), "230 91 11 91 11 91 11 254 241 128 130 142");
}

// --- C40, Text, X12, EDIFACT

TEST(C40Encodation, ThreePublishedWordsAim) {
  EXPECT_EQ(Encoded("AIMAIMAIM"), "230 91 11 91 11 91 11");  // 14 x 14 implies the unlatch
  EXPECT_EQ(Encoded("AIMAIMAIMAIM"), "230 91 11 91 11 91 11 91 11 254");
}

TEST(C40Encodation, ModeChangesBehindAGroupWithUnlatchAndLatch) {
  // In Text AIM = 2 1 | 2 9 | 2 13: 2 1 2 = 3243 = 12 171, 9 2 13 = 14494 = 56 158; aaa = 89 191
  EXPECT_EQ(Encoded("AIMAIMAIMAIMAIMaaaaaaaaa"),
            "230 91 11 91 11 91 11 91 11 254 239 12 171 56 158 89 191 89 191 89 191");
}

TEST(C40Encodation, ModeChangesToAsciiWithTheUnlatchAlone) {
  EXPECT_EQ(Encoded("AIMAIMAIMAIMAIM\x01\x01\x01\x01\x01\x01\x01"),
            "230 91 11 91 11 91 11 91 11 254 66 74 78 2 2 2 2 2 2 2");
}

// AIMA!IMAIMAI: 14 22 26 | 14 1 0 | 22 26 14 | 22 26 14 | 22: the last I goes out with "MA" in
// ASCII.
TEST(C40Encodation, ShiftedCharactersQueueAcrossGroups) {
  const auto packed = [](int c1, int c2, int c3) {
    const int value = 1600 * c1 + 40 * c2 + c3 + 1;
    return " " + std::to_string(value / 256) + " " + std::to_string(value % 256);
  };
  EXPECT_EQ(Encoded("AIMA!IMAIMAIMA"), "230" + packed(14, 22, 26) + packed(14, 1, 0) +
                                           packed(22, 26, 14) + packed(22, 26, 14) +
                                           " 254 74 78 66");
}

TEST(TextEncodation, LowerCaseHasTheValuesOfUpperCaseInC40) {
  EXPECT_EQ(Encoded("aimaimaim"), "239 91 11 91 11 91 11");
}

TEST(X12Encodation, SignsAndLetters) {
  // * > CR = 1 2 0: 1681 = 6 145; "A B": 14 3 15 = 22536 = 88 8
  EXPECT_EQ(Encoded("*>\rA B*>\rA B"), "238 6 145 88 8 6 145 88 8 254");
}

TEST(X12Encodation, GroupWithACharacterThatX12LacksGoesOutInAscii) {
  CodewordBuffer buffer;
  test::DeviceState state({u"A!12", 4}, test::kSmallestSquare, buffer);
  state.mode = Mode::kX12;
  EncodeTriples(state);
  EXPECT_EQ(test::InDecimal(test::CodewordsOf(buffer)), "254 66 34 50");
  EXPECT_EQ(state.position, 3u);
  EXPECT_EQ(state.mode, Mode::kAscii);
}

TEST(EdifactEncodation, FourCharactersInThreeCodewords) {
  EXPECT_EQ(Encoded("....ABCD....ABCD"), "240 186 235 174 4 32 196 186 235 174 4 32 196 124");
}

TEST(EdifactEncodation, LeavingInMidTextAlwaysWritesTheUnlatch) {
  CodewordBuffer buffer;
  test::DeviceState state({u"....aimaimaim", 13}, test::kSmallestSquare, buffer);
  state.mode = Mode::kEdifact;
  EncodeEdifact(state);
  EXPECT_EQ(test::InDecimal(test::CodewordsOf(buffer)), "186 235 174 124 239");
  EXPECT_EQ(state.position, 4u);
  EXPECT_EQ(state.mode, Mode::kText);
}

TEST(ModeSwitch, LatchesOfTheStandard) {
  const auto latch = [](Mode mode) {
    CodewordBuffer buffer;
    test::DeviceState state({u"", 0}, test::kSmallestSquare, buffer);
    EnterMode(state, mode);
    EXPECT_EQ(state.mode, mode);
    return test::InDecimal(test::CodewordsOf(buffer));
  };
  EXPECT_EQ(latch(Mode::kAscii), "");
  EXPECT_EQ(latch(Mode::kBase256), "231");
  EXPECT_EQ(latch(Mode::kEdifact), "240");
  EXPECT_EQ(latch(Mode::kText), "239");
  EXPECT_EQ(latch(Mode::kX12), "238");
  EXPECT_EQ(latch(Mode::kC40), "230");
}

// --- Code formats

TEST(CodeFormat, OneOnTheTextAIsAndFnc1) { EXPECT_EQ(Encoded("A", 1), "66 232"); }

TEST(CodeFormat, OnePutsFnc1BehindTheFirstCodeword) {
  EXPECT_EQ(Encoded("AB", 1), "66 232 67");
  EXPECT_EQ(Encoded("12", 1), "142 232");
  EXPECT_EQ(Encoded("1234", 1), "142 232 164");
}

TEST(CodeFormat, TwoAndThreeAddNothingToTheHeaderOfTheFrame) {
  EXPECT_EQ(Encoded("A", 2), "236 66");
  EXPECT_EQ(Encoded("A", 3), "237 66");
}

TEST(CodeFormat, OthersAddNothing) {
  for (const int codeFormat : {-1, 0, 4, 256, 0x7FFFFFFF}) {
    EXPECT_EQ(Encoded("A", codeFormat), "66") << codeFormat;
  }
}

// --- Overflow

TEST(EncodationOverflow, CountStopsAt1559InEveryMode) {
  for (const char* const group : {"!\x01", "AIM", "aim", "*>\r", "....", "\xE9"}) {
    std::string text;
    while (text.size() < 3110) text += group;
    const auto buffer = EncodedBuffer(test::Wide(text));
    EXPECT_EQ(buffer->Count(), 1559) << group;
    EXPECT_TRUE(buffer->HasOverflowed()) << group;
  }
}

TEST(EncodationOverflow, NothingIsWrittenPastTheDataCodewords) {
  for (const char16_t character : {u'A', u'a', u'.', u'\xE9', u'\uFFFF', u'\x01'}) {
    const auto buffer = EncodedBuffer(std::u16string(3116, character));
    EXPECT_TRUE(buffer->HasOverflowed());
    for (int i = 1558; i < kMaxCodewords; ++i) ASSERT_EQ((*buffer)[i], 0) << i;
  }
}

TEST(EncodationOverflow, AsciiTextAroundTheLimit) {
  // Control characters stay in ASCII.
  EXPECT_EQ(EncodedBuffer(std::u16string(1557, u'\x01'))->Count(), 1557);
  EXPECT_EQ(EncodedBuffer(std::u16string(1558, u'\x01'))->Count(), 1558);
  EXPECT_EQ(EncodedBuffer(std::u16string(1559, u'\x01'))->Count(), 1559);
}

// 230 and 2 codewords a group, then 254: 1556 + 1 groups are one too many.
TEST(EncodationOverflow, C40TextAroundTheLimit) {
  const auto count = [](std::size_t groups) {
    return EncodedBuffer(std::u16string(3 * groups, u'A'))->Count();
  };
  EXPECT_EQ(count(777), 1556);  // 1555, unlatch
  EXPECT_EQ(count(778), 1557);  // one below 1558: no unlatch
  EXPECT_EQ(count(779), 1559);
}

// A header more: the codewords of the last group fill the symbol and the unlatch does not fit.
TEST(EncodationOverflow, UnlatchBehindTheLastCodewordOverflows) {
  const auto buffer = EncodedBuffer(std::u16string(3 * 778, u'A'), 2);
  EXPECT_TRUE(buffer->HasOverflowed());
  EXPECT_FALSE(EncodedBuffer(std::u16string(3 * 777, u'A'), 2)->HasOverflowed());
}

}  // namespace
}  // namespace barhatch
