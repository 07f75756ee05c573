// Sizes, gaps and ratios that make no sense: what the documentation says of each, row by row.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "api/Hatcher.h"
#include "barhatch.h"
#include "support/Fills.h"
#include "support/SettingsFixture.h"

namespace barhatch {
namespace {

using test::Doubles;
using test::OwnedFill;
using Numbers = std::vector<double>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

struct Request {
  double width;
  double height;
  double gap;
  int type;
};

void Use(const Request& request) {
  SetBarcodeSize(request.width, request.height);
  SetHatchPattern(request.gap, request.type);
}

class SenselessValues : public test::SettingsFixture {
 protected:
  static OwnedFill Linear(const Request& request, const char* letters = "AaA") {
    Use(request);
    return OwnedFill(HatchBarcodeString(letters));
  }

  // Two dark modules on the diagonal, the lower one to the right.
  static OwnedFill Matrix(double height, double gap, int type) {
    Use({1.0, height, gap, type});
    char letters[] = "AaaA";
    return OwnedFill(Hatcher().VectorizeMatrix({2, 2, letters}));
  }
};

bool AllFinite(const Numbers& numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [](double v) { return std::isfinite(v); });
}

TEST_F(SenselessValues, VerticalLinesOfAGapWiderThanTheBarsLieBesideThemOrNowhere) {
  for (int type : {1, 3}) {
    SCOPED_TRACE(type);
    EXPECT_EQ(Doubles(*Linear({4, 1, 2.5, type}, "aaAa")), (Numbers{2.5, 0, 2.5, 1}));
    EXPECT_EQ(Doubles(*Linear({4, 1, 50, type}, "aaAa")), (Numbers{0, 0, 0, 1}));
    EXPECT_FALSE(Linear({4, 1, 5, type}, "aaaA"));
  }
}

TEST_F(SenselessValues, HorizontalLinesOfAGapHigherThanTheBarsAreOneAtTheBottom) {
  for (int type : {0, 2}) {
    SCOPED_TRACE(type);
    EXPECT_EQ(Doubles(*Linear({4, 1, 5, type}, "aaaA")), (Numbers{3, 0, 4, 0}));
  }
}

TEST_F(SenselessValues, RowsOfAMatrixMayLoseTheirLineOrHaveItBelow) {
  for (int type : {0, 2}) {
    SCOPED_TRACE(type);
    // The upper row begins at 1: two thirds round to the line at 1.5, a hundredth to that at 0.
    EXPECT_EQ(Doubles(*Matrix(2.0, 1.5, type)), (Numbers{1, 0, 2, 0, 0, 1.5, 1, 1.5}));
    EXPECT_EQ(Doubles(*Matrix(2.0, 100.0, type)), (Numbers{1, 0, 2, 0, 0, 0, 1, 0}));
    // Half rounds up to the line at 2, where the row has ended.
    EXPECT_EQ(Doubles(*Matrix(2.0, 2.0, type)), (Numbers{1, 0, 2, 0}));
  }
}

TEST_F(SenselessValues, ASpiralOfTooWideAGapLeavesTheSymbol) {
  EXPECT_EQ(Doubles(*Linear({4, 1, 5, 5}, "aaaA")),
            (Numbers{10, 0, 10, 0, 10, 0, 5, 0, 5, 0, 5, 0}));
}

TEST_F(SenselessValues, ASpiralLiesUpToHalfAGapOutsideAndOneAndAHalfInside) {
  // The bar begins at 2.5 gaps and ends at 7.5, and is as high: each bound rounds up.
  SetPrintRatio(2.0);
  const Numbers fill = Doubles(*Linear({7.5, 7.5, 1, 5}, "aB"));
  const Numbers first = {4, 0, 4, 8, 4, 8, 8, 8, 8, 8, 8, 0};
  ASSERT_GE(fill.size(), first.size());
  EXPECT_TRUE(std::equal(first.begin(), first.end(), fill.begin()));
}

TEST_F(SenselessValues, HeightsOfZeroOrBelowInALinearSymbol) {
  for (double height : {0.0, -1.0}) {
    SCOPED_TRACE(height);
    EXPECT_FALSE(Linear({2, height, 0.5, 0}, "Aa"));
    EXPECT_FALSE(Linear({2, height, 0.5, 2}, "Aa"));
    EXPECT_EQ(Doubles(*Linear({2, height, 0.5, 1}, "Aa")),
              (Numbers{0, 0, 0, height, 0.5, 0, 0.5, height}));
    EXPECT_EQ(Doubles(*Linear({2, height, 0.5, 3}, "Aa")),
              (Numbers{0, 0, 0, height, 0.5, height, 0.5, 0}));
    EXPECT_TRUE(Linear({2, height, 0.5, 5}, "Aa"));
    EXPECT_EQ(Doubles(*Linear({2, height, 0.5, 6}, "Aa")), (Numbers{0.5, height / 2}));
  }
}

TEST_F(SenselessValues, HeightsOfZeroOrBelowInAMatrixLeaveNoLineInAnyDirection) {
  for (double height : {0.0, -4.0}) {
    for (int type : {0, 1, 2, 3}) EXPECT_FALSE(Matrix(height, 0.5, type)) << height << ' ' << type;
    EXPECT_TRUE(Matrix(height, 0.5, 5)) << height;
    EXPECT_EQ(Doubles(*Matrix(height, 0.5, 6)),
              (Numbers{0.75 * height, 0.25 * height, 0.25 * height, 0.75 * height}));
  }
}

TEST_F(SenselessValues, WidthsOfZeroOrBelow) {
  for (double width : {0.0, -2.0}) {
    SCOPED_TRACE(width);
    for (int type : {1, 3}) EXPECT_FALSE(Linear({width, 1, 0.5, type})) << type;
    EXPECT_EQ(Doubles(*Linear({width, 1, 2, 0}, "Aa")), (Numbers{0, 0, width / 2, 0}));
    EXPECT_EQ(Doubles(*Linear({width, 1, 2, 2}, "Aa")), (Numbers{0, 0, width / 2, 0}));
    EXPECT_TRUE(Linear({width, 1, 0.5, 5}));
    EXPECT_EQ(Doubles(*Linear({width, 1, 0.5, 6}, "Aa")), (Numbers{width / 4, 0.5}));
  }
}

TEST_F(SenselessValues, SizesThatAreNoFiniteNumberAreNullWhereStrokesAreCountedAlongThem) {
  for (double size : {kInfinity, kNoNumber}) {
    SCOPED_TRACE(size);
    for (int type : {0, 2, 5}) EXPECT_FALSE(Linear({3, size, 0.5, type})) << type;
    for (int type : {1, 3, 5}) EXPECT_FALSE(Linear({size, 1, 0.5, type})) << type;
    for (int type : {1, 3, 6}) EXPECT_FALSE(AllFinite(Doubles(*Linear({3, size, 0.5, type}))));
    for (int type : {0, 2, 6}) EXPECT_FALSE(AllFinite(Doubles(*Linear({size, 1, 0.5, type}))));
    for (int type : {0, 1, 2, 3, 5}) EXPECT_FALSE(Matrix(size, 0.5, type)) << type;
    EXPECT_FALSE(AllFinite(Doubles(*Matrix(size, 0.5, 6))));
  }
}

TEST_F(SenselessValues, PrintRatiosThatAreNoNumberGiveWideElementsOfNoKnownWidth) {
  for (double ratio : {kInfinity, kNoNumber}) {
    SCOPED_TRACE(ratio);
    SetPrintRatio(ratio);
    for (int type : {1, 3, 5}) EXPECT_FALSE(Linear({3, 1, 0.5, type}, "AaB")) << type;
    for (int type : {0, 2, 6}) {
      EXPECT_FALSE(AllFinite(Doubles(*Linear({3, 1, 0.5, type}, "AaB")))) << type;
    }
  }
}

TEST_F(SenselessValues, PrintRatiosOfZeroOrBelow) {
  SetPrintRatio(0.0);
  EXPECT_EQ(Doubles(*Linear({4, 1, 2, 0}, "AaB")), (Numbers{0, 0, 2, 0, 4, 0, 4, 0}));
  SetPrintRatio(-1.0);
  EXPECT_EQ(Doubles(*Linear({4, 1, 2, 0}, "AaB")), (Numbers{0, 0, 4, 0, 8, 0, 4, 0}));
  for (int type : {0, 1, 2, 3, 5, 6}) EXPECT_FALSE(Linear({4, 1, 0.5, type}, "AB")) << type;
}

}  // namespace
}  // namespace barhatch
