#include "datamatrix/SymbolSizes.h"

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::ReferenceSize;

// "16x48" or "refused".
std::string Choice(int codewords, int matrixSize, int isExpanding) {
  SymbolSize chosen{};
  const SizeRequest request = {matrixSize >> 8, matrixSize & 0xFF, isExpanding};
  const Refusal refusal = ChooseSymbolSize(codewords, request, chosen);
  EXPECT_EQ(CapacityUnder(request, codewords), chosen.dataCodewords);
  if (refusal.IsRefused()) return "refused";
  return std::to_string(chosen.symbolRows) + "x" + std::to_string(chosen.symbolColumns);
}

void ExpectRow(const SymbolSize& size, const ReferenceSize& expected) {
  EXPECT_EQ(size.symbolRows, expected.rows);
  EXPECT_EQ(size.symbolColumns, expected.columns);
  EXPECT_EQ(size.dataCodewords, expected.data);
  EXPECT_EQ(size.errorCodewords, expected.ecc);
  EXPECT_EQ(size.mappingRows, expected.mappingRows);
  EXPECT_EQ(size.mappingColumns, expected.mappingColumns);
  EXPECT_EQ(size.regionsDown, test::RegionsOf(expected.rows, expected.columns).down);
  EXPECT_EQ(size.regionsAcross, test::RegionsOf(expected.rows, expected.columns).across);
  EXPECT_EQ(size.blocks, test::BlocksOf(expected.rows, expected.columns));
}

TEST(SymbolSizes, TwentyFourSquaresAreThoseOfTheStandard) {
  ASSERT_EQ(test::ReferenceSquares().size(), 24u);
  ASSERT_EQ(kSquareSizeCount, 24);
  for (std::size_t i = 0; i < 24; ++i) ExpectRow(kSquareSizes[i], test::ReferenceSquares()[i]);
}

TEST(SymbolSizes, SixRectanglesAreThoseOfTheStandard) {
  ASSERT_EQ(test::ReferenceRectangles().size(), 6u);
  ASSERT_EQ(kRectangularSizeCount, 6);
  for (std::size_t i = 0; i < 6; ++i)
    ExpectRow(kRectangularSizes[i], test::ReferenceRectangles()[i]);
}

TEST(SizeChoice, SmallestSquareTakesUpToThreeCodewords) {
  for (int codewords : {0, 1, 2, 3}) EXPECT_EQ(Choice(codewords, 0, 1), "10x10");
  EXPECT_EQ(Choice(4, 0, 1), "12x12");
}

TEST(SizeChoice, SmallestSquareWithoutPermissionToGrowIsAlwaysRefused) {
  for (int codewords = 0; codewords <= 1558; ++codewords)
    EXPECT_EQ(Choice(codewords, 0, 0), "refused") << codewords;
}

TEST(SizeChoice, EverySquareIsTakenUpToItsCapacity) {
  int least = 0;
  for (const ReferenceSize& size : test::ReferenceSquares()) {
    const std::string name = std::to_string(size.rows) + "x" + std::to_string(size.rows);
    EXPECT_EQ(Choice(least, 0, 1), name);
    EXPECT_EQ(Choice(size.data, 0, 1), name);
    EXPECT_EQ(Choice(size.data, size.rows * 256 + size.rows, 0), name);
    EXPECT_EQ(Choice(size.data + 1, size.rows * 256 + size.rows, 0), "refused");
    least = size.data + 1;
  }
}

TEST(SizeChoice, LargerSquareThanNeededIsMade) {
  EXPECT_EQ(Choice(5, 0x1818, 0), "24x24");
  EXPECT_EQ(Choice(5, 0x1818, 1), "24x24");
  EXPECT_EQ(Choice(0, 0x9090, 0), "144x144");
}

TEST(SizeChoice, TooSmallSquareGrowsOnlyWhenItMay) {
  EXPECT_EQ(Choice(10, 0x0A0A, 0), "refused");
  EXPECT_EQ(Choice(10, 0x0A0A, 1), "16x16");
  EXPECT_EQ(Choice(10, 0x0A0A, 2), "16x16");
  EXPECT_EQ(Choice(10, 0x0A0A, -1), "16x16");
}

TEST(SizeChoice, TooSmallRectangleGrowsOnlyWhenItMay) {
  EXPECT_EQ(Choice(49, 0x0812, 0), "refused");
  EXPECT_EQ(Choice(49, 0x0812, 1), "16x48");
  EXPECT_EQ(Choice(49, 0x0812, 2), "16x48");
}

TEST(SizeChoice, EveryRectangleIsMadeForItsOwnRequest) {
  EXPECT_EQ(Choice(5, 0x0812, 0), "8x18");
  EXPECT_EQ(Choice(10, 0x0820, 0), "8x32");
  EXPECT_EQ(Choice(16, 0x0C1A, 0), "12x26");
  EXPECT_EQ(Choice(22, 0x0C24, 0), "12x36");
  EXPECT_EQ(Choice(32, 0x1024, 0), "16x36");
  EXPECT_EQ(Choice(49, 0x1030, 0), "16x48");
}

TEST(SizeChoice, RectangleOfFiftyCodewordsAndItsOwnSizeIsRefusedInEveryWay) {
  for (int isExpanding : {0, 1, 2, -1})
    EXPECT_EQ(Choice(50, 0x1030, isExpanding), "refused") << isExpanding;
}

TEST(SizeChoice, RectangleOfFiftyCodewordsBecomesASquareOnlyForTheFlagValueOne) {
  EXPECT_EQ(Choice(50, 0x0812, 1), "32x32");
  EXPECT_EQ(Choice(50, 0x0820, 1), "32x32");
  EXPECT_EQ(Choice(62, 0x0C1A, 1), "32x32");
  EXPECT_EQ(Choice(63, 0x0C24, 1), "36x36");
  EXPECT_EQ(Choice(1558, 0x0812, 1), "144x144");
  for (int isExpanding : {0, 2, -1})
    EXPECT_EQ(Choice(50, 0x0812, isExpanding), "refused") << isExpanding;
}

TEST(SizeChoice, SquareThatDoesNotCoverTheRectangleIsRefused) {
  EXPECT_EQ(Choice(62, 0x0C24, 1), "refused");  // 32 x 32 is narrower than 36 columns
  EXPECT_EQ(Choice(144, 0x1030, 1), "refused");
  EXPECT_EQ(Choice(145, 0x1030, 1), "48x48");
}

TEST(SizeChoice, RectanglesAreTriedByCapacity) {
  EXPECT_EQ(Choice(5, 0x0C1A, 0), "12x26");
  for (int codewords = 6; codewords <= 10; ++codewords) {
    EXPECT_EQ(Choice(codewords, 0x0C1A, 0), "refused") << codewords;  // 8 x 32 comes first
    EXPECT_EQ(Choice(codewords, 0x0C1A, 1), "12x26") << codewords;
  }
  EXPECT_EQ(Choice(11, 0x0C1A, 0), "12x26");
}

TEST(SizeChoice, RequestThatIsNoSizeIsMadeWhereTheSmallestSizeCoversIt) {
  EXPECT_EQ(Choice(4, 0x0B0B, 1), "12x12");
  EXPECT_EQ(Choice(5, 0x0001, 1), "8x18");
}

TEST(SizeChoice, RequestThatIsNoSizeIsRefusedWhereItWouldHaveToBeLookedUp) {
  EXPECT_EQ(Choice(3, 0x0B0B, 0), "refused");
  EXPECT_EQ(Choice(3, 0x0B0B, 1), "refused");
  EXPECT_EQ(Choice(4, 0x0B0B, 0), "refused");
  EXPECT_EQ(Choice(5, 0x0A12, 1), "refused");  // 10 x 18
  EXPECT_EQ(Choice(5, 0x0C12, 0), "refused");  // 12 x 18: the rows exist, the columns do not
  EXPECT_EQ(Choice(5, 0x1208, 1), "refused");  // 18 x 8
  EXPECT_EQ(Choice(5, 0xFFFF, 0), "refused");
  EXPECT_EQ(Choice(5, 0xFFFF, 1), "refused");
}

TEST(SizeChoice, LookedUpRectangleThatHoldsTooLittleIsRefused) {
  EXPECT_EQ(Choice(10, 0x0820, 1), "8x32");
  for (int codewords = 11; codewords <= 16; ++codewords)
    EXPECT_EQ(Choice(codewords, 0x0820, 1), "refused") << codewords;
  EXPECT_EQ(Choice(17, 0x0820, 1), "12x36");
}

TEST(SizeChoice, MoreCodewordsThanAnySymbolHoldsAreRefused) {
  EXPECT_EQ(Choice(1558, 0x9090, 1), "144x144");
  EXPECT_EQ(Choice(1559, 0x9090, 1), "refused");
  EXPECT_EQ(Choice(1559, 0x0812, 1), "refused");
}

Reason Why(int codewords, const SizeRequest& request) {
  SymbolSize chosen{};
  return ChooseSymbolSize(codewords, request, chosen).reason;
}

TEST(SizeChoice, RefusalHasAReason) {
  for (const int isExpanding : {0, 1, 2}) {
    EXPECT_EQ(Why(1559, {0, 0, isExpanding}), Reason::kTooManyCodewords);
    EXPECT_EQ(Why(1559, {8, 18, isExpanding}), Reason::kTooManyCodewords);
  }
  EXPECT_EQ(Why(3, {0, 0, 0}), Reason::kNoPermissionToGrow);
  EXPECT_EQ(Why(10, {10, 10, 0}), Reason::kNoPermissionToGrow);
  EXPECT_EQ(Why(6, {12, 26, 0}), Reason::kNoPermissionToGrow);  // 8 x 32 is wider
  EXPECT_EQ(Why(50, {8, 18, 0}), Reason::kNoPermissionToGrow);
  EXPECT_EQ(Why(50, {8, 18, 2}), Reason::kNoPermissionToGrow);  // into a square
  EXPECT_EQ(Why(16, {8, 32, 1}), Reason::kSizeTooSmall);
  EXPECT_EQ(Why(50, {16, 48, 1}), Reason::kSizeTooSmall);
  EXPECT_EQ(Why(3, {11, 11, 1}), Reason::kNoSuchSize);
  EXPECT_EQ(Why(3, {255, 255, 1}), Reason::kNoSuchSize);
  EXPECT_EQ(Why(3, {9, 18, 1}), Reason::kNoSuchSize);
  EXPECT_EQ(Why(50, {33, 48, 1}), Reason::kNoSuchSize);
  EXPECT_EQ(Why(50, {16, 40, 1}), Reason::kNoSuchSize);
  EXPECT_EQ(Why(3, {10, 10, 0}), Reason::kNone);
}

TEST(SizeChoice, RefusalLeavesTheResultAlone) {
  SymbolSize chosen{};
  chosen.dataCodewords = 77;
  EXPECT_TRUE(ChooseSymbolSize(10, {10, 10, 0}, chosen).IsRefused());
  EXPECT_EQ(chosen.dataCodewords, 77);
}

// Every request around the edges of the table's sizes and every count around their capacities.
TEST(SizeChoice, EqualsThePlainListOfSteps) {
  std::set<int> lengths = {0, 1, 200, 254, 255};
  std::set<int> counts = {0, 1, 2, 1559};
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    for (int step : {-1, 0, 1}) {
      lengths.insert(size.rows + step);
      lengths.insert(size.columns + step);
      counts.insert(size.data + step);
    }
  }
  int made = 0;
  for (int rows : lengths) {
    for (int columns : lengths) {
      for (int codewords : counts) {
        for (int isExpanding : {0, 1, 2}) {
          const auto expected = test::ReferenceChoice(codewords, rows, columns, isExpanding);
          SymbolSize chosen{};
          const Refusal refusal = ChooseSymbolSize(codewords, {rows, columns, isExpanding}, chosen);
          const bool accepted = !refusal.IsRefused();
          ASSERT_EQ(refusal.figure, accepted ? 0 : codewords);
          ASSERT_EQ(accepted, expected.has_value())
              << rows << "x" << columns << " " << codewords << " " << isExpanding;
          if (!accepted) continue;
          ++made;
          ASSERT_EQ(chosen.symbolRows, expected->rows);
          ASSERT_EQ(chosen.symbolColumns, expected->columns);
          ASSERT_GE(chosen.dataCodewords, codewords);
        }
      }
    }
  }
  EXPECT_GT(made, 10000);
}

TEST(SquareCapacity, IsTheSmallestStrictlyAboveTheCount) {
  EXPECT_EQ(SquareCapacityAbove(0), 3);
  EXPECT_EQ(SquareCapacityAbove(2), 3);
  EXPECT_EQ(SquareCapacityAbove(3), 5);
  EXPECT_EQ(SquareCapacityAbove(4), 5);
  EXPECT_EQ(SquareCapacityAbove(1304), 1558);
  EXPECT_EQ(SquareCapacityAbove(1557), 1558);
  int row = 0;
  for (int codewords = 0; codewords < 1558; ++codewords) {
    const auto& squares = test::ReferenceSquares();
    if (squares[static_cast<std::size_t>(row)].data <= codewords) ++row;
    ASSERT_EQ(SquareCapacityAbove(codewords), squares[static_cast<std::size_t>(row)].data);
  }
}

TEST(SquareCapacity, IsZeroWhenThereIsNone) {
  EXPECT_EQ(SquareCapacityAbove(1558), 0);
  EXPECT_EQ(SquareCapacityAbove(1559), 0);
}

}  // namespace
}  // namespace barhatch
