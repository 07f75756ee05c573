// The encodation by the book: texts whose codewords follow from the standard, and every way in
// which a text may end.
#include "datamatrix/ShortestEncodation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "datamatrix/TokensOfTests.h"
#include "support/DataMatrixReader.h"
#include "support/EncodationSearch.h"
#include "support/TextClasses.h"

namespace barhatch {
namespace {

using test::CodewordsFor;
using test::Encoding;
using test::LeastFor;
using test::TokensOf;

// With the fewest codewords that there are.
std::string Shortest(const std::string& bytes) {
  const auto tokens = TokensOf(bytes);
  return CodewordsFor(tokens, LeastFor(tokens));
}

// For a symbol of that capacity.
std::string In(int capacity, const std::string& bytes, Encoding how = {}) {
  return CodewordsFor(TokensOf(bytes), capacity, how);
}

TEST(ShortestEncodation, ExamplesOfTheStandard) {
  EXPECT_EQ(Shortest("123456"), "142 164 186");  // annex O
  EXPECT_EQ(Shortest("AIM"), "66 74 78") << "as short in ASCII";
  EXPECT_EQ(Shortest("AIMAIMAIM"), "230 91 11 91 11 91 11") << "C40 up to the end of the symbol";
  EXPECT_EQ(Shortest("aimaimaim"), "239 91 11 91 11 91 11");
  EXPECT_EQ(Shortest("ABC>ABC123>A"), "238 89 233 14 192 100 207 44 31") << "X12";
}

TEST(ShortestEncodation, AsciiTakesPairsUpperShiftAndControls) {
  EXPECT_EQ(Shortest("1"), "50");
  EXPECT_EQ(Shortest("12a3"), "142 98 52");
  EXPECT_EQ(Shortest("\xE9"), "235 106");
  EXPECT_EQ(Shortest(std::string(1, '\0')), "1");
  EXPECT_EQ(Shortest("\x7F"), "128");
  EXPECT_EQ(Shortest("\x80"), "235 1");
  EXPECT_EQ(Shortest("\xFF"), "235 128");
}

TEST(ShortestEncodation, FunctionsAndDesignators) {
  EXPECT_EQ(CodewordsFor({kFnc1Token, '1', '2'}, 3), "232 142");
  EXPECT_EQ(CodewordsFor({EciToken(0), 'a'}, 9), "241 1 98");
  EXPECT_EQ(CodewordsFor({EciToken(126), 'a'}, 9), "241 127 98");
  EXPECT_EQ(CodewordsFor({EciToken(127), 'a'}, 9), "241 128 1 98");
  EXPECT_EQ(CodewordsFor({EciToken(380), 'a'}, 9), "241 128 254 98");
  EXPECT_EQ(CodewordsFor({EciToken(381), 'a'}, 9), "241 129 1 98");
  EXPECT_EQ(CodewordsFor({EciToken(16382), 'a'}, 9), "241 191 254 98");
  EXPECT_EQ(CodewordsFor({EciToken(16383), 'a'}, 9), "241 192 1 1 98");
  EXPECT_EQ(CodewordsFor({EciToken(80899), 'a'}, 9), "241 193 1 1 98");
  EXPECT_EQ(CodewordsFor({EciToken(999999), 'a'}, 9), "241 207 63 129 98");
}

TEST(ShortestEncodation, Fnc1InC40IsShift2And27) {
  std::vector<Token> tokens = TokensOf("ABCDEFGHI");
  tokens.push_back(kFnc1Token);
  for (const Token token : TokensOf("JKLMNOPQRS")) tokens.push_back(token);
  EXPECT_EQ(LeastFor(tokens), 15) << "21 values: as in ASCII it would take an unlatch and a latch";
  const test::Reading reading = test::ReadDataCodewords(test::CodewordListFor(tokens, 15));
  EXPECT_TRUE(reading.isSound);
  EXPECT_EQ(reading.items, test::ItemsOf(tokens));
}

// (a), with nothing behind whole triples.
TEST(ShortestEncodation, EndAFillsTheSymbol) {
  EXPECT_EQ(In(7, "AIMAIMAIM"), "230 91 11 91 11 91 11");
  EXPECT_EQ(In(9, "AIMAIMAIMAIM"), "230 91 11 91 11 91 11 91 11");
  EXPECT_EQ(In(9, "aimaimaimaim"), "239 91 11 91 11 91 11 91 11");
  EXPECT_EQ(In(9, "A>MA>MA>MA>M").substr(0, 3), "238");
}

// With more room the unlatch is needed, also as the last codeword.
TEST(ShortestEncodation, BehindTriplesThatDoNotFillTheSymbolStandsAnUnlatch) {
  const std::string aim = "230 91 11 91 11 91 11 91 11 91 11 91 11 91 11 91 11";
  EXPECT_EQ(In(18, "AIMAIMAIMAIMAIMAIMAIMAIM"), aim + " 254");
  EXPECT_EQ(In(30, "AIMAIMAIMAIMAIMAIMAIMAIM"), aim + " 254");
}

// Two values and a pad value are as long as two characters of ASCII in front and whole triples.
TEST(ShortestEncodation, EndBSavesNothing) {
  EXPECT_EQ(test::ReadDataCodewords({230, 91, 11, 91, 11, 90, 121}).items,
            test::ItemsOf("AIMAIMAF"))
      << "(b)";
  EXPECT_EQ(LeastFor(TokensOf("AIMAIMAF")), 7);
  EXPECT_EQ(In(7, "AIMAIMAF").substr(0, 9), "66 74 230") << "A and I in ASCII";
}

// One character of one value in the last codeword is as long as one in front.
TEST(ShortestEncodation, EndDSavesNothingWhereItIsStrict) {
  EXPECT_EQ(test::ReadDataCodewords({230, 91, 11, 91, 11, 66}).items, test::ItemsOf("AIMAIMA"));
  EXPECT_EQ(In(6, "AIMAIMA"), "66 230 141 159 141 159") << "A in ASCII, IMA IMA in C40";
  EXPECT_EQ(test::LeastCapacity(test::ItemsOf("AIMAIMA")), 6);
}

TEST(ShortestEncodation, EndDIsStrictUnlessALooseEndIsAskedFor) {
  // A small letter is two values of C40, a pair of digits two characters.
  const std::vector<Token> shifted = TokensOf("AIMAIMAIMg");
  EXPECT_EQ(LeastFor(shifted), 9);
  EXPECT_EQ(LeastFor(shifted, {0, 0, true}), 8);
  EXPECT_EQ(In(8, "AIMAIMAIMg", {0, 0, true}), "230 91 11 91 11 91 11 104");
  EXPECT_EQ(In(9, "AIMAIMAIMg", {0, 0, true}), In(9, "AIMAIMAIMg"));
  const std::vector<Token> pair = TokensOf("AIMAIMAIM12");
  EXPECT_EQ(LeastFor(pair), 9);
  EXPECT_EQ(LeastFor(pair, {0, 0, true}), 8);
  EXPECT_EQ(In(8, "AIMAIMAIM12", {0, 0, true}), "230 91 11 91 11 91 11 142");
}

// EDIFACT: up to two codewords of ASCII behind whole groups, in a symbol that has no room for more.
TEST(ShortestEncodation, EndOfEdifactIsImplied) {
  EXPECT_EQ(In(7, "A.B-C.D-"), "240 6 224 173 14 225 45");
  EXPECT_EQ(In(9, "A.B-C.D-1234"), "240 6 224 173 14 225 45 142 164");
  EXPECT_EQ(In(8, "A.B-C.D-12"), "240 6 224 173 14 225 45 142");
  EXPECT_EQ(In(9, "A.B-C.D-12"), "240 6 224 173 14 225 45 142") << "a pad behind it is ASCII";
  EXPECT_EQ(In(9, "A.B-C.D-"), "240 6 224 173 14 225 45") << "two pads";
}

TEST(ShortestEncodation, EdifactWithMoreRoomHasItsUnlatch) {
  // 000011 101110 000100 011111: C . D and the unlatch; the last - is as short in ASCII.
  EXPECT_EQ(In(22, "A.B-C.D-A.B-C.D-"), "240 6 224 173 14 225 45 6 224 173 14 225 31 46");
  EXPECT_EQ(In(22, "A.B-C.D-A.B-C.D-aa"), "240 6 224 173 14 225 45 6 224 173 14 225 31 46 98 98");
}

// Base 256 with its length, in front of more text and at the end.
TEST(ShortestEncodation, Base256HasItsLength) {
  const std::string bytes = "\x80\x81\x82\x83";
  EXPECT_EQ(In(6, bytes), In(12, bytes)) << "the length stands also where the symbol ends";
  const std::vector<int> codewords = test::CodewordListFor(TokensOf(bytes), 6);
  EXPECT_EQ(codewords[0], 231);
  EXPECT_EQ((codewords[1] - (149 * 2 % 255 + 1) + 256) % 256, 4) << "of 4, randomised by place 2";
  EXPECT_EQ((codewords[2] - (149 * 3 % 255 + 1) + 256) % 256, 0x80);
}

TEST(ShortestEncodation, Base256LengthsAtTheirLimits) {
  for (const std::size_t length : {249u, 250u, 251u, 499u, 500u, 1000u, 1555u}) {
    const std::string bytes(length, '\xE9');
    const std::vector<Token> tokens = TokensOf(bytes);
    const int least = static_cast<int>(length) + 2;
    EXPECT_EQ(LeastFor(tokens), least) << "length 0 saves one in a symbol that it fills";
    for (const int capacity : {least, least + 1, least + 2}) {
      const auto codewords = test::Padded(test::CodewordListFor(tokens, capacity), capacity);
      const test::Reading reading = test::ReadDataCodewords(codewords);
      EXPECT_TRUE(reading.isSound && reading.items == test::ItemsOf(bytes)) << length;
      const int first = (codewords[1] - (149 * 2 % 255 + 1) + 256) % 256;
      const bool isFull = capacity == least && length > 249;
      if (length == 250 && !isFull) continue;  // 249 and one in ASCII are as short
      EXPECT_EQ(first, isFull         ? 0
                       : length > 249 ? 249 + static_cast<int>(length) / 250
                                      : static_cast<int>(length))
          << length;
    }
  }
}

TEST(ShortestEncodation, ALookAheadOfFourCharactersIsNotEnough) {
  const std::vector<Token> tokens = TokensOf(std::string(22, '*') + "a");
  EXPECT_EQ(LeastFor(tokens), 18) << "18x18; generators give it 20x20";
}

TEST(ShortestEncodation, CodewordsInFrontCount) {
  const std::vector<Token> tokens = TokensOf("ABCDEF");
  EXPECT_EQ(LeastFor(tokens), 5);
  EXPECT_EQ(LeastFor(tokens, {0, 4, false}), 9);
}

TEST(ShortestEncodation, TheLeadIsAscii) {
  std::vector<Token> tokens = TokensOf("ABCDEFGHIJKL");
  tokens.insert(tokens.begin() + 1, kFnc1Token);
  EXPECT_EQ(CodewordsFor(tokens, 30, {2, 0, false}).substr(0, 10), "66 232 230");
  tokens = TokensOf("12ABCDEFGHIJKL");
  tokens.insert(tokens.begin() + 2, kFnc1Token);
  EXPECT_EQ(CodewordsFor(tokens, 30, {3, 0, false}).substr(0, 11), "142 232 230");
}

// With 4,096 to a codeword, changes never outweigh one.
TEST(ShortestEncodation, OfEqualCodewordsTheFewestChanges) {
  EXPECT_EQ(Shortest("AAAA"), "66 66 66 66");
  EXPECT_EQ(Shortest("12AB34"), "142 66 67 164");
}

TEST(ShortestEncodation, LongTextsOfEveryClassAreReadBack) {
  std::mt19937 random(16022);
  for (int i = 0; i < 270; ++i) {
    const std::string bytes =
        test::RandomText(random, i % test::kTextClassCount, 1 + test::Below(random, 700));
    const std::vector<Token> tokens = TokensOf(bytes);
    const int least = LeastFor(tokens);
    for (int capacity = least; capacity < least + 4; ++capacity) {
      const auto codewords = test::CodewordListFor(tokens, capacity);
      ASSERT_LE(static_cast<int>(codewords.size()), capacity);
      const test::Reading reading = test::ReadDataCodewords(test::Padded(codewords, capacity));
      ASSERT_TRUE(reading.isSound && reading.items == test::ItemsOf(bytes)) << i;
    }
  }
}

}  // namespace
}  // namespace barhatch
