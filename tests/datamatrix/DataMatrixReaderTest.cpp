// The reader that judges the encodation, itself judged by codewords put down by hand from the
// standard's rules.
#include "support/DataMatrixReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace barhatch {
namespace {

using test::ItemsOf;
using test::ReadDataCodewords;
using test::Reading;

void ExpectReading(const std::vector<int>& codewords, const std::vector<int>& items) {
  const Reading reading = ReadDataCodewords(codewords);
  EXPECT_TRUE(reading.isSound);
  EXPECT_EQ(reading.items, items);
}

TEST(DataMatrixReader, AsciiPairsAndPads) {
  ExpectReading({142, 164, 186}, ItemsOf("123456"));
  ExpectReading({66, 129, 70}, ItemsOf("A"));
  ExpectReading({235, 106}, ItemsOf("\xE9"));
  EXPECT_FALSE(ReadDataCodewords({66, 254, 66}).isSound);
  EXPECT_FALSE(ReadDataCodewords({235}).isSound);
}

// Shift 3 has no value 33: 1600 x 2 + 40 x 33 + 20 + 1 = 4541 = 17 x 256 + 189.
TEST(DataMatrixReader, NothingIsReadBehindABreakWithinAGroup) {
  const Reading reading = ReadDataCodewords({66, 230, 17, 189});
  EXPECT_FALSE(reading.isSound);
  EXPECT_EQ(reading.items, ItemsOf("A"));
}

// 1 30 1 = 2802 = 10 x 256 + 242, 27 3 3 = 43324 = 169 x 256 + 60: FNC1 has no upper half.
TEST(DataMatrixReader, AnUpperShiftInFrontOfFnc1IsABreak) {
  const Reading reading = ReadDataCodewords({66, 230, 10, 242, 169, 60});
  EXPECT_FALSE(reading.isSound);
  EXPECT_EQ(reading.items, ItemsOf("A"));
}

TEST(DataMatrixReader, C40OfThePublishedWordAim) {
  // A I M = 14 22 26: 1600 x 14 + 40 x 22 + 26 + 1 = 23307 = 91 x 256 + 11
  ExpectReading({230, 91, 11, 91, 11, 91, 11, 254}, ItemsOf("AIMAIMAIM"));
  ExpectReading({230, 91, 11, 254, 67}, ItemsOf("AIMB"));
  ExpectReading({230, 91, 11, 67}, ItemsOf("AIMB"));  // one codeword left: ASCII
}

TEST(DataMatrixReader, ShiftsOfC40AndText) {
  // 2 1 14 = 3255 = 12 x 256 + 183: shift 3 'a', then 'A'
  ExpectReading({230, 12, 183, 254}, ItemsOf("aA"));
  ExpectReading({239, 12, 183, 254}, ItemsOf("Aa"));
  // 1 30 14 = 2815 = 10 x 256 + 255: 'A' + 128, in Text 'a' + 128
  ExpectReading({230, 10, 255, 254}, ItemsOf("\xC1"));
  ExpectReading({239, 10, 255, 254}, ItemsOf("\xE1"));
  // 1 27 1 = 2682, 15 3 0 = 24121: FNC1, then shift 2 and ':', space, shift 1 over nothing
  ExpectReading({230, 10, 122, 94, 57, 254}, {test::kReadFnc1, ':', ' '});
}

TEST(DataMatrixReader, X12HasNoShifts) {
  // 0 1 2 = 43, 3 4 14 = 4975 = 19 x 256 + 111
  ExpectReading({238, 0, 43, 19, 111, 254}, ItemsOf("\r*> 0A"));
}

TEST(DataMatrixReader, EdifactEndsWithItsUnlatchOrNearTheEndOfTheSymbol) {
  // "ABCD" = 1 2 3 4: 000001 000010 000011 000100
  ExpectReading({240, 4, 32, 196, 124, 66, 66}, ItemsOf("ABCDAA"));
  ExpectReading({240, 4, 32, 196, 66, 66}, ItemsOf("ABCDAA"));
  // "A" and the unlatch in the middle of a group: 000001 011111 0000
  ExpectReading({240, 5, 240, 67, 66}, ItemsOf("ABA"));
}

TEST(DataMatrixReader, DesignatorsAndMacros) {
  ExpectReading({241, 27, 66}, {test::ReadEci(26), 'A'});
  ExpectReading({241, 128, 1, 66}, {test::ReadEci(127), 'A'});
  ExpectReading({241, 191, 254, 66}, {test::ReadEci(16382), 'A'});
  ExpectReading({241, 192, 1, 1, 66}, {test::ReadEci(16383), 'A'});
  ExpectReading({236, 66, 129}, {test::kReadMacro05, 'A'});
  ExpectReading({237, 66, 129}, {test::kReadMacro06, 'A'});
  ExpectReading({66, 232, 129}, {'A', test::kReadFnc1});
}

TEST(DataMatrixReader, Base256IsUnrandomised) {
  // Position 2: 149 x 2 mod 255 + 1 = 44; 1 + 44. Position 3: 149 x 3 mod 255 + 1 = 193; 65 + 193.
  ExpectReading({231, 45, 2, 129}, ItemsOf("A"));
  EXPECT_FALSE(ReadDataCodewords({66, 231}).isSound);  // no length
}

TEST(DataMatrixReader, PadsAreRandomisedByPosition) {
  // 149 x 3 mod 253 + 1 = 195; 129 + 195 - 254 = 70
  EXPECT_EQ(test::Padded({66}, 3), (std::vector<int>{66, 129, 70}));
  EXPECT_EQ(test::Padded({66, 66}, 3), (std::vector<int>{66, 66, 129}));
  EXPECT_EQ(test::Padded({66, 66, 66}, 3), (std::vector<int>{66, 66, 66}));
}

}  // namespace
}  // namespace barhatch
