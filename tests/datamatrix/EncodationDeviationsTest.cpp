// One test or more for each deviation of docs/deviations.md that the encodation has: what is
// written, and what a standard reader makes of it.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "datamatrix/EncodedText.h"
#include "datamatrix/ModeEncodations.h"
#include "support/DataMatrixReader.h"

namespace barhatch {
namespace {

using test::Encoded;
using test::EncodedBuffer;
using test::ItemsOf;
using test::Padded;
using test::ReadDataCodewords;

std::vector<int> ReadIn(int capacity, const std::string& bytes, int codeFormat = 0,
                        const SizeRequest& request = test::kSmallestSquare) {
  const auto buffer = EncodedBuffer(test::Wide(bytes), codeFormat, request);
  return ReadDataCodewords(Padded(test::CodewordsOf(*buffer), capacity)).items;
}

bool BeginsWith(const std::vector<int>& items, const std::vector<int>& beginning) {
  return items.size() >= beginning.size() &&
         std::vector<int>(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(
                                                             beginning.size())) == beginning;
}

// The published test ends where a mode is ahead by one codeword: that would be ASCII, after a few
// control characters. Here the letters at the end of the text bring C40 from the first character
// on.
TEST(DataMatrixDeviations, DDM2LookAheadCountsToTheEndOfTheText) {
  const std::string controls(9, '\x01');
  EXPECT_EQ(Encoded(controls).substr(0, 4), "2 2 ");
  EXPECT_EQ(Encoded(controls + std::string(20, 'A')).substr(0, 4), "230 ");
}

TEST(DataMatrixDeviations, DDM2BytesAbove127HaveNoExtraWeight) {
  // The published test makes each of them 2 in ASCII and 1 in Base 256.
  EXPECT_EQ(Encoded(std::string(6, '\xE9')), "235 105 235 105 235 105 235 105 235 105 235 105");
}

// Three control characters, asked from C40: two values each, 4 codewords. Counted as published,
// from 1, ASCII would need as many, and it has the tie.
TEST(DataMatrixDeviations, DDM2AsciiStartsAtTwoOutsideAscii) {
  const std::u16string controls(3, u'\x01');
  EXPECT_EQ(LookAhead(controls.data(), 3).ModeFor(0, Mode::kC40), Mode::kC40);
  // 0 1 0 = 41 = 0 41, 1 0 1 = 1602 = 6 66
  EXPECT_EQ(Encoded("AIMAIMAIMAIM\x01\x01\x01"), "230 91 11 91 11 91 11 91 11 0 41 6 66 254");
}

// Six times a digit and a control character, twenty letters: 1 codeword each in ASCII, 26 in all,
// and 27 in C40 with its latch. With the half of each digit rounded up, as published, ASCII would
// need 32.
TEST(DataMatrixDeviations, DDM2HalfACodewordIsDroppedInFrontOfAControlCharacter) {
  std::string pairs;
  for (int i = 0; i < 6; ++i) pairs += "1\x01";
  const std::u16string dropped = test::Wide(pairs + std::string(20, 'A'));
  EXPECT_EQ(LookAhead(dropped.data(), dropped.size()).ModeFor(0, Mode::kAscii), Mode::kAscii);
  for (char16_t other : {u'!', u'a', u'\r'}) {  // what X12 or EDIFACT has, and small letters
    std::u16string roundedUp = dropped;
    for (std::size_t i = 1; i < 12; i += 2) roundedUp[i] = other;
    EXPECT_NE(LookAhead(roundedUp.data(), roundedUp.size()).ModeFor(0, Mode::kAscii), Mode::kAscii);
  }
}

TEST(DataMatrixDeviations, DDM2Base256IsNeverChosen) {
  for (int length = 1; length <= 300; ++length) {
    const auto buffer = EncodedBuffer(std::u16string(static_cast<std::size_t>(length), u'\xFE'));
    for (int i = 0; i < buffer->Count(); i += 2) ASSERT_EQ((*buffer)[i], 235);
  }
}

TEST(DataMatrixDeviations, DDM3ExtendedByteInAsciiIsWrittenOneLower) {
  EXPECT_EQ(Encoded("\xE9"), "235 105");
  EXPECT_EQ(ReadIn(3, "\xE9"), ItemsOf("\xE8"));
  for (int byte = 129; byte <= 255; ++byte) {
    EXPECT_EQ(Encoded(std::string(1, static_cast<char>(byte))),
              "235 " + std::to_string(byte - 128));
    EXPECT_EQ(ReadIn(3, std::string(1, static_cast<char>(byte))), std::vector<int>{byte - 1});
  }
}

TEST(DataMatrixDeviations, DDM3ExtendedByteInC40IsThePublishedOne) {
  const std::string text =
      "AIMAIMAIM\xC1"
      "AIMAIMAIMAIMAI";
  EXPECT_EQ(Encoded(text).substr(0, 3), "230");
  const auto buffer = EncodedBuffer(test::Wide(text));
  EXPECT_EQ(ReadDataCodewords(Padded(test::CodewordsOf(*buffer), 22)).items, ItemsOf(text));
}

TEST(DataMatrixDeviations, DDM4Byte128IsDroppedInAscii) {
  EXPECT_EQ(Encoded("\x80"), "");
  EXPECT_EQ(Encoded("A\x80"
                    "B"),
            "66 67");
  EXPECT_EQ(ReadIn(3,
                   "A\x80"
                   "B"),
            ItemsOf("AB"));
}

TEST(DataMatrixDeviations, DDM5Base256WritesNothing) {
  CodewordBuffer buffer;
  test::DeviceState state({u"\x01\x02\x03", 3}, test::kSmallestSquare, buffer);
  state.mode = Mode::kBase256;
  EncodeBase256(state);
  EXPECT_EQ(buffer.Count(), 0);
  EXPECT_EQ(state.position, 3u);
}

TEST(DataMatrixDeviations, DDM5Base256IsLeftForTheModeOfTheLookAhead) {
  CodewordBuffer buffer;
  const std::u16string text = u"\x01" + std::u16string(30, u'A') + u"\u0100";
  test::DeviceState state({text.data(), text.size()}, test::kSmallestSquare, buffer);
  state.mode = Mode::kBase256;
  EncodeBase256(state);
  EXPECT_EQ(test::InDecimal(test::CodewordsOf(buffer)), "230");
  EXPECT_EQ(state.position, 1u);
  EXPECT_EQ(state.mode, Mode::kC40);
}

TEST(DataMatrixDeviations, DDM6Fnc1StandsBehindALatch) {
  EXPECT_EQ(Encoded("AIMAIMAIM", 1), "230 232 91 11 91 11 91 11 254");
  // 232 91 is read as the first group.
  EXPECT_FALSE(BeginsWith(ReadIn(12, "AIMAIMAIM", 1), ItemsOf("A")));
}

TEST(DataMatrixDeviations, DDM6FirstCharacterOfTwoCodewordsLeavesNoPlaceForFnc1) {
  EXPECT_EQ(Encoded("\xE9"
                    "A",
                    1),
            "235 105 66");
  EXPECT_EQ(Encoded(u"\u0100A", 1), "241 128 130 66");
}

TEST(DataMatrixDeviations, DDM6DroppedByteDoesNotCount) {
  EXPECT_EQ(Encoded("\x80"
                    "A",
                    1),
            "66 232");
  EXPECT_EQ(Encoded("A\x80", 1), "66 232");
}

TEST(DataMatrixDeviations, DDM7UnlatchIsLeftOutOneBelowASquareCapacityInALargerSymbol) {
  const std::string text = "AIMAIMAIMAIMAIM";  // 11 codewords, one below 12
  EXPECT_EQ(Encoded(text), "230 91 11 91 11 91 11 91 11 91 11");
  EXPECT_EQ(ReadIn(12, text), ItemsOf(text));
  EXPECT_EQ(Encoded(text, 0, {18, 18, 0}), Encoded(text));
  const std::vector<int> read = ReadIn(18, text, 0, {18, 18, 0});
  EXPECT_TRUE(BeginsWith(read, ItemsOf(text)));  // and the pads behind it as characters
  EXPECT_GT(read.size(), text.size());
}

TEST(DataMatrixDeviations, DDM7UnlatchIsLeftOutOneBelowASquareCapacityInMidText) {
  // 11 codewords of C40, one below 12, then control characters in ASCII.
  const std::string upper = "AIMAIMAIMAIMAIM";
  const std::string text = upper + std::string(6, '\x01');
  EXPECT_EQ(Encoded(text), "230 91 11 91 11 91 11 91 11 91 11 2 2 2 2 2 2");
  EXPECT_TRUE(BeginsWith(ReadIn(18, text), ItemsOf(upper)));
  EXPECT_NE(ReadIn(18, text), ItemsOf(text));
  // Nor in front of the latch of another mode: aaa in Text is 14 14 14 = 89 191.
  EXPECT_EQ(Encoded(upper + "aaaaaa"), "230 91 11 91 11 91 11 91 11 91 11 239 89 191 89 191 254");
}

// 15 139 197 63 156 187 27 82 113 26 242 27 24 15 184 17: the last value of 16 codewords is a pad.
TEST(DataMatrixDeviations, DDM7BehindAPadTheUnlatchIsWrittenAlways) {
  const std::string text = "Serial Date type type MADE";
  EXPECT_EQ(Encoded(text),
            "239 15 139 197 63 156 187 27 82 113 26 242 27 24 15 184 17 254 230 22 223 254 69 70");
  EXPECT_EQ(ReadIn(30, text), ItemsOf(text));
}

TEST(DataMatrixDeviations, DDM8TextThatFillsASymbolGetsItsUnlatchAndTheNextSize) {
  // 236 and 230, three groups: 8 codewords, which would fill 14 x 14.
  EXPECT_EQ(Encoded("AIMAIMAIM", 2), "236 230 91 11 91 11 91 11 254");
  std::vector<int> items = ItemsOf("AIMAIMAIM");
  items.insert(items.begin(), test::kReadMacro05);
  EXPECT_EQ(ReadIn(12, "AIMAIMAIM", 2), items);
}

TEST(DataMatrixDeviations, DDM8UnlatchMayBeTheLastCodewordOfARectangle) {
  // 9 codewords and the unlatch fill 8 x 32, where it would be implied; 10 is no square capacity.
  const std::string text = "AIMAIMAIMAIM";
  EXPECT_EQ(Encoded(text, 0, {8, 32, 0}), "230 91 11 91 11 91 11 91 11 254");
  EXPECT_EQ(ReadIn(10, text, 0, {8, 32, 0}), ItemsOf(text));
}

// "Aaa" is 14 2 1 | 2 1. Published: 14 2 1 and 2 1 0 (a pad), 87 210 12 169, where they fill the
// symbol; the last character goes out in ASCII instead. The symbol is the same, as 254 98 is no
// longer.
TEST(DataMatrixDeviations, DDM8LastCharacterOfAGroupThatLeavesValuesOverIsUnlatchedFor) {
  EXPECT_EQ(Encoded("11AIMAIMAIMAaa"), "141 230 91 11 91 11 91 11 87 210 254 98");
  EXPECT_EQ(ReadIn(12, "11AIMAIMAIMAaa"), ItemsOf("11AIMAIMAIMAaa"));
}

TEST(DataMatrixDeviations, DDM8TextThatFillsTheLargestSymbolOverflows) {
  EXPECT_EQ(Encoded(std::string(3 * 778, 'A'), 2), "overflow");  // 236 230 and 1556
}

TEST(DataMatrixDeviations, DDM9EdifactWritesTheLowSixBits) {
  CodewordBuffer buffer;
  test::DeviceState state({u"AbC\x01", 4}, test::kSmallestSquare, buffer);
  buffer.Append(240);
  state.mode = Mode::kEdifact;
  EncodeEdifact(state);
  // 000001 100010 000011 000001
  EXPECT_EQ(test::InDecimal(test::CodewordsOf(buffer)), "240 6 32 193");
  EXPECT_EQ(ReadDataCodewords(Padded(test::CodewordsOf(buffer), 5)).items, ItemsOf("A\"CA"));
}

TEST(DataMatrixDeviations, DDM9UnderscoreIsReadAsTheUnlatch) {
  CodewordBuffer buffer;
  test::DeviceState state({u"AB_C", 4}, test::kSmallestSquare, buffer);
  buffer.Append(240);
  state.mode = Mode::kEdifact;
  EncodeEdifact(state);
  const std::vector<int> read = ReadDataCodewords(Padded(test::CodewordsOf(buffer), 12)).items;
  EXPECT_EQ(read, ItemsOf("AB"));
}

// The look-ahead keeps EDIFACT for the one small letter; 22 codewords fill 20 x 20.
TEST(DataMatrixDeviations, DDM9SmallLetterAmongSignsIsReadAsASign) {
  const std::string text = "A-B/C-D/E-F/G-Ha-I/J-K/L-M";
  EXPECT_EQ(Encoded(text).substr(0, 4), "240 ");
  EXPECT_EQ(ReadIn(22, text), ItemsOf("A-B/C-D/E-F/G-H!-I/J-K/L-M"));
}

TEST(DataMatrixDeviations, DDM10EdifactUnlatchIsACodewordOfItsOwn) {
  // Published: '.' and the unlatch in one group, 101110 011111 00 = 185 240.
  const std::string text = "....ABCD....ABCD.";
  EXPECT_EQ(Encoded(text), "240 186 235 174 4 32 196 186 235 174 4 32 196 124 47");
  EXPECT_EQ(ReadIn(18, text), ItemsOf(text));
}

TEST(DataMatrixDeviations, DDM10UnlatchInTheLastTwoCodewordsIsReadAsABrace) {
  CodewordBuffer buffer;
  for (int i = 0; i < 6; ++i) buffer.Append('x' + 1);
  buffer.Append(240);
  test::DeviceState state({u"....ABCD....", 12}, test::kSmallestSquare, buffer);
  state.mode = Mode::kEdifact;
  EncodeEdifact(state);
  ASSERT_EQ(buffer.Count(), 17);  // 16 and the unlatch, in 18
  EXPECT_EQ(buffer[16], 124);
  EXPECT_EQ(ReadDataCodewords(Padded(test::CodewordsOf(buffer), 18)).items,
            ItemsOf("xxxxxx....ABCD....{"));
}

// A - 1 / = 000001 101101 110001 101111 = 6 220 111; 10 codewords and the unlatch, in 16 x 16.
TEST(DataMatrixDeviations, DDM10TwelveCharactersOfEdifactAreReadWithABraceBehindThem) {
  EXPECT_EQ(Encoded("A-1/B-2/C-3/"), "240 6 220 111 10 220 175 14 220 239 124");
  EXPECT_EQ(ReadIn(12, "A-1/B-2/C-3/"), ItemsOf("A-1/B-2/C-3/{"));
}

}  // namespace
}  // namespace barhatch
