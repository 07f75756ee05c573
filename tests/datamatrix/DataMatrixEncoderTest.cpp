// Texts are digits or single letters: what they become is beyond doubt in every encodation.
#include "api/DataMatrixEncoder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "api/BarcodeSettings.h"
#include "support/AllocationProbe.h"
#include "support/EccReference.h"
#include "support/GridText.h"
#include "support/OwnedGrid.h"
#include "support/PlacementReference.h"
#include "support/SettingsFixture.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::OwnedGrid;
using test::ReferenceSize;

// Digits that take that many codewords.
std::string Digits(int codewords) {
  std::string digits;
  for (int i = 0; i < codewords; ++i) {
    digits += static_cast<char>('0' + i % 10);
    digits += static_cast<char>('0' + i * 7 % 10);
  }
  return digits;
}

void SetText(const std::string& text) {
  std::u16string wide;
  for (char character : text) wide += static_cast<unsigned char>(character);
  SetDataString(wide.c_str());
}

void SetSize(int matrixSize, int isExpanding) {
  CurrentSettings().MatrixSize = matrixSize;
  CurrentSettings().IsExpanding = isExpanding;
}

OwnedGrid Encode(const std::string& text) {
  SetText(text);
  DataMatrixEncoder encoder;
  return OwnedGrid(encoder.EncodeDataMatrix());
}

OwnedGrid Encode(int codewords, int matrixSize, int isExpanding) {
  SetSize(matrixSize, isExpanding);
  return Encode(Digits(codewords));
}

ReferenceSize SizeOf(const OwnedGrid& grid) {
  for (const ReferenceSize& size : test::ReferenceSizes())
    if (size.rows == grid.Rows() && size.columns == grid.Columns()) return size;
  ADD_FAILURE() << grid.Size();
  return test::ReferenceSquares().front();
}

// The data codewords of a grid without quiet zone, decimal, as the standard prints them.
std::string DataCodewords(const OwnedGrid& grid) {
  const ReferenceSize size = SizeOf(grid);
  const std::vector<int> codewords = test::CodewordsOfGrid(grid.Letters(), size);
  std::string text;
  for (int i = 0; i < size.data; ++i)
    text += (i > 0 ? " " : "") + std::to_string(codewords[static_cast<std::size_t>(i)]);
  return text;
}

class DataMatrixEncoding : public test::SettingsFixture {
 protected:
  DataMatrixEncoding() { SetSize(0, 1); }
};

TEST(SizeRequest, RowsAreBits8To15AndColumnsBits0To7) {
  const SizeRequest request = RequestFromMatrixSize(0x1030, 7);
  EXPECT_EQ(request.rows, 16);
  EXPECT_EQ(request.columns, 48);
  EXPECT_EQ(request.isExpanding, 7);
}

TEST(SizeRequest, HigherBitsHaveNoMeaning) {
  for (std::int32_t matrixSize : {0x00010A0C, 0x7FFF0A0C, static_cast<std::int32_t>(0xFFFF0A0Cu)}) {
    const SizeRequest request = RequestFromMatrixSize(matrixSize, -1);
    EXPECT_EQ(request.rows, 10);
    EXPECT_EQ(request.columns, 12);
    EXPECT_EQ(request.isExpanding, -1);
  }
}

// ISO/IEC 16022: "123456" as 10 x 10, codewords 142 164 186 and 114 25 5 88 102.
TEST_F(DataMatrixEncoding, PublishedExampleIsDrawn) {
  const OwnedGrid grid = Encode("123456");
  ASSERT_EQ(grid.Size(), "10x10");
  EXPECT_EQ(test::CodewordsOfGrid(grid.Letters(), SizeOf(grid)),
            (std::vector<int>{142, 164, 186, 114, 25, 5, 88, 102}));
  EXPECT_EQ(test::FromLetters(grid.Letters(), 10),
            (std::vector<std::string>{"#.#.#.#.#.",  //
                                      "##..#.##.#",  //
                                      "##.....#..",  //
                                      "##...###.#",  //
                                      "##....#...",  //
                                      "#.....####",  //
                                      "###.##....",  //
                                      "####.##..#",  //
                                      "#..###.#..",  //
                                      "##########"}));
}

TEST_F(DataMatrixEncoding, OneToThreeDigitsGiveTheSmallestSquareOfOneHundredLetters) {
  for (const char* text : {"1", "12", "123"}) {
    const OwnedGrid grid = Encode(text);
    EXPECT_EQ(grid.Size(), "10x10");
    EXPECT_EQ(grid.Letters().size(), 100u);
  }
}

TEST_F(DataMatrixEncoding, PadsFollowTheData) {
  EXPECT_EQ(DataCodewords(Encode("123456")), "142 164 186");
  EXPECT_EQ(DataCodewords(Encode("1234")), "142 164 129");
  EXPECT_EQ(DataCodewords(Encode("12")), "142 129 70");
  EXPECT_EQ(DataCodewords(Encode("")), "129 175 70");
}

TEST_F(DataMatrixEncoding, SizeZeroWithoutPermissionToGrowIsRefused) {
  for (int codewords : {0, 1, 3, 4, 1558})
    EXPECT_EQ(Encode(codewords, 0, 0).Size(), "refused") << codewords;
}

TEST_F(DataMatrixEncoding, FiveCodewordsIn24x24GetThirtyOnePads) {
  const OwnedGrid grid = Encode(5, 0x1818, 0);
  ASSERT_EQ(grid.Size(), "24x24");
  // "0017243148", the plain pad at position 6 and thirty randomised ones.
  EXPECT_EQ(DataCodewords(grid),
            "130 147 154 161 178 129 161 56 206 101 251 147 42 192 87 237 133 28 178 73 223 118 14 "
            "164 59 209 104 254 150 45 195 90 240 136 31 181");
}

TEST_F(DataMatrixEncoding, TooSmallSquareGrowsOnlyWhenItMay) {
  EXPECT_EQ(Encode(10, 0x0A0A, 0).Size(), "refused");
  EXPECT_EQ(Encode(10, 0x0A0A, 1).Size(), "16x16");
}

TEST_F(DataMatrixEncoding, TooSmallRectangleGrowsOnlyWhenItMay) {
  EXPECT_EQ(Encode(49, 0x0812, 0).Size(), "refused");
  EXPECT_EQ(Encode(49, 0x0812, 1).Size(), "16x48");
}

TEST_F(DataMatrixEncoding, RequestedSizeIsReadFromTheSettingsAsTheyStand) {
  SetMatrixsize(static_cast<enum _matrixSize>(0x1030));
  CurrentSettings().IsExpanding = 0;
  EXPECT_EQ(Encode("12").Size(), "16x48");
}

TEST_F(DataMatrixEncoding, RequestsThatLeadNowhereAreRefused) {
  EXPECT_EQ(Encode(3, 0x0B0B, 1).Size(), "refused");
  EXPECT_EQ(Encode(4, 0x0B0B, 1).Size(), "12x12");
  EXPECT_EQ(Encode(16, 0x0820, 1).Size(), "refused");
  for (int codewords = 6; codewords <= 10; ++codewords)
    EXPECT_EQ(Encode(codewords, 0x0C1A, 0).Size(), "refused") << codewords;
  for (int isExpanding : {0, 1, 2})
    EXPECT_EQ(Encode(50, 0x1030, isExpanding).Size(), "refused") << isExpanding;
  EXPECT_EQ(Encode(50, 0x0812, 0).Size(), "refused");
  EXPECT_EQ(Encode(50, 0x0812, 2).Size(), "refused");
  EXPECT_EQ(Encode(50, 0x0812, 1).Size(), "32x32");
}

TEST_F(DataMatrixEncoding, Holds1558CodewordsAndNoMore) {
  EXPECT_EQ(Encode(std::string(3115, '7')).Size(), "144x144");
  EXPECT_EQ(Encode(std::string(3116, '7')).Size(), "144x144");
  EXPECT_EQ(Encode(std::string(1559, '\x01')).Size(), "refused");  // a codeword each
}

TEST_F(DataMatrixEncoding, TextOf3117CharactersIsRefused) {
  EXPECT_EQ(Encode(std::string(3117, '7')).Size(), "refused");
  EXPECT_EQ(Encode(std::string(3119, '7')).Size(), "refused");
}

// Bytes of 0x80 are dropped, so that the length alone can refuse a text of them.
TEST_F(DataMatrixEncoding, LengthAloneIsReasonToRefuse) {
  EXPECT_EQ(Encode(std::string(3116, '\x80')).Size(), "10x10");
  EXPECT_EQ(Encode(std::string(3117, '\x80')).Size(), "refused");
}

TEST_F(DataMatrixEncoding, TextThatTheSettingsRefusedIsRefused) {
  SetText("12");
  SetDataString(nullptr);
  DataMatrixEncoder encoder;
  EXPECT_TRUE(OwnedGrid(encoder.EncodeDataMatrix()).IsRefused());
  EXPECT_EQ(Encode("12").Size(), "10x10");
  EXPECT_EQ(Encode(std::string(3120, '7')).Size(), "refused");
}

TEST_F(DataMatrixEncoding, QuietZoneIsOneLightModuleOnEverySide) {
  const std::string plain = Encode("123456").Letters();
  for (std::int32_t flag : {1, 255, -1}) {
    CurrentSettings().QuietZone = flag;
    CurrentSettings().QuietZoneSize = 5;  // has no effect
    const OwnedGrid grid = Encode("123456");
    EXPECT_EQ(grid.Size(), "12x12");
    EXPECT_EQ(grid.Letters().size(), 144u);
    EXPECT_EQ(grid.Ring(), std::string(44, 'a'));
    EXPECT_EQ(grid.Inner(), plain);
  }
}

TEST_F(DataMatrixEncoding, QuietZoneOfTheLargestSymbolFits) {
  CurrentSettings().QuietZone = 1;
  const OwnedGrid grid = Encode(1558, 0x9090, 0);
  EXPECT_EQ(grid.Size(), "146x146");
  EXPECT_EQ(grid.Letters().size(), 146u * 146u);
}

TEST_F(DataMatrixEncoding, MacroHeadersComeFirst) {
  SetCodeFormat(2);
  EXPECT_EQ(DataCodewords(Encode("A")), "236 66 129");
  SetCodeFormat(3);
  EXPECT_EQ(DataCodewords(Encode("A")), "237 66 129");
  EXPECT_EQ(DataCodewords(Encode("")), "237 129 70");
}

TEST_F(DataMatrixEncoding, OtherFormatsHaveNoHeader) {
  for (int format : {0, 4, 5, -1, 236}) {
    SetCodeFormat(format);
    EXPECT_EQ(DataCodewords(Encode("A")), "66 129 70") << format;
  }
}

TEST_F(DataMatrixEncoding, HeaderCountsAsACodeword) {
  SetCodeFormat(2);
  EXPECT_EQ(Encode(std::string(3114, '7')).Size(), "144x144");
  EXPECT_EQ(Encode(std::string(3116, '7')).Size(), "refused");
}

TEST_F(DataMatrixEncoding, EverySizeHoldsTheTextAndUndamagedBlocks) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    for (int codewords : {1, size.data}) {
      const OwnedGrid grid = Encode(size.rows == 12 && size.columns == 26 ? size.data : codewords,
                                    size.rows * 256 + size.columns, 0);
      ASSERT_EQ(SizeOf(grid).columns, size.columns);
      const std::vector<int> stream = test::CodewordsOfGrid(grid.Letters(), size);
      const std::size_t blocks = static_cast<std::size_t>(test::BlocksOf(size.rows, size.columns));
      for (std::size_t block = 0; block < blocks; ++block) {
        std::vector<int> elements;
        for (std::size_t i = block; i < stream.size(); i += blocks) elements.push_back(stream[i]);
        const int ecc = size.ecc / static_cast<int>(blocks);
        EXPECT_EQ(test::Syndromes(elements, ecc),
                  std::vector<int>(static_cast<std::size_t>(ecc), 0));
      }
      EXPECT_EQ(stream[0], 130);
    }
  }
}

TEST_F(DataMatrixEncoding, NothingIsLeftOverFromALargerSymbol) {
  const std::string alone = Encode("12").Letters();
  EXPECT_EQ(Encode(std::string(3116, '9')).Size(), "144x144");
  EXPECT_EQ(Encode("12").Letters(), alone);
  EXPECT_EQ(Encode(std::string(3117, '9')).Size(), "refused");
  EXPECT_EQ(Encode("12").Letters(), alone);
}

TEST_F(DataMatrixEncoding, SecondCallOnTheSameEncoderAppends) {
  SetText("12");
  DataMatrixEncoder encoder;
  EXPECT_EQ(DataCodewords(OwnedGrid(encoder.EncodeDataMatrix())), "142 129 70");
  EXPECT_EQ(DataCodewords(OwnedGrid(encoder.EncodeDataMatrix())), "142 142 129");
}

TEST_F(DataMatrixEncoding, ModuleStringOfAMatrixIsNull) {
  SetText("12");
  DataMatrixEncoder encoder;
  Symbology& symbology = encoder;
  EXPECT_EQ(symbology.GenerateString(), nullptr);
}

TEST_F(DataMatrixEncoding, SettingsAreNotChanged) {
  SetText("12");
  const BarcodeSettings before = CurrentSettings();
  DataMatrixEncoder encoder;
  EXPECT_EQ(OwnedGrid(encoder.EncodeDataMatrix()).Size(), "10x10");
  EXPECT_EQ(std::u16string(CurrentSettings().DataString), std::u16string(before.DataString));
  EXPECT_EQ(CurrentSettings().MatrixSize, before.MatrixSize);
  EXPECT_EQ(CurrentSettings().FillHeight, before.FillHeight);
  EXPECT_EQ(CurrentSettings().FillWidth, before.FillWidth);
}

TEST_F(DataMatrixEncoding, AllocatesTheResultAndAtMostThreeMore) {
  for (const std::string& text : {std::string("12"), std::string(3116, '7')}) {
    SetText(text);
    DataMatrixEncoder encoder;
    const test::AllocationProbe probe;
    const OwnedGrid grid(encoder.EncodeDataMatrix());
    EXPECT_TRUE(grid.HasData());
    EXPECT_LE(probe.Allocations(), 5u);
  }
}

TEST_F(DataMatrixEncoding, EveryFailedAllocationGivesNull) {
  SetText("12");
  int needed = 0;
  {
    DataMatrixEncoder encoder;
    const test::AllocationProbe probe;
    EXPECT_TRUE(OwnedGrid(encoder.EncodeDataMatrix()).HasData());
    needed = static_cast<int>(probe.Allocations());
  }
  EXPECT_GE(needed, 3);  // the record, its data, the mapping matrix
  for (int failing = 0; failing < needed; ++failing) {
    DataMatrixEncoder encoder;
    const test::AllocationProbe probe(static_cast<std::size_t>(failing + 1));
    EXPECT_TRUE(OwnedGrid(encoder.EncodeDataMatrix()).IsNull()) << failing;
  }
}

}  // namespace
}  // namespace barhatch
