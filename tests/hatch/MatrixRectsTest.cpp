#include "hatch/MatrixRects.h"

#include <gtest/gtest.h>

namespace barhatch {
namespace {

// Two rows, the top one first: dark light light, light light light. The dark letter behind them is
// no module.
struct OneDarkModule {
  char letters[7] = {'A', 'a', 'a', 'a', 'a', 'a', 'A'};
  TwoDStringResult matrix{2, 3, letters};
};

TEST(MatrixRects, CountsTheModulesToBeFilled) {
  OneDarkModule symbol;
  EXPECT_EQ(MatrixRects(symbol.matrix, 1.0, FilledElements::kDark).Count(), 1u);
  EXPECT_EQ(MatrixRects(symbol.matrix, 1.0, FilledElements::kLight).Count(), 5u);
}

TEST(MatrixRects, GivesTheRowsFromTheBottom) {
  OneDarkModule symbol;
  MatrixRects rects(symbol.matrix, 0.5, FilledElements::kDark);
  EXPECT_EQ(rects.Row(0).Count(), 0u);
  const RectList& top = rects.Row(1);
  ASSERT_EQ(top.Count(), 1u);
  EXPECT_EQ(top[0].lowerLeft.x, 0.0);
  EXPECT_EQ(top[0].lowerLeft.y, 0.5);
  EXPECT_EQ(top[0].upperRight.x, 0.5);
  EXPECT_EQ(top[0].upperRight.y, 1.0);
  EXPECT_EQ(rects.Width(), 1.5);
}

}  // namespace
}  // namespace barhatch
