#include "hatch/ElementRows.h"

#include <gtest/gtest.h>

#include <vector>

namespace barhatch {
namespace {

using Corners = std::vector<double>;

std::vector<Corners> CornersOf(const RectList& row) {
  std::vector<Corners> corners;
  for (const HatchRect& r : row) {
    corners.push_back({r.lowerLeft.x, r.lowerLeft.y, r.upperRight.x, r.upperRight.y});
  }
  return corners;
}

// Two rows, the top one first: dark light light, light light light. The dark letter behind them is
// no module.
constexpr ModuleGrid kOneDarkModule = {"AaaaaaA", 2, 3, 0.5};

TEST(ElementRows, OfAMatrixCountTheModulesToBeFilled) {
  EXPECT_EQ(ElementRows(kOneDarkModule, FilledElements::kDark, RuntimeMemory()).Count(), 1u);
  EXPECT_EQ(ElementRows(kOneDarkModule, FilledElements::kLight, RuntimeMemory()).Count(), 5u);
}

TEST(ElementRows, OfAMatrixGoUpFromTheBottom) {
  ElementRows rows(kOneDarkModule, FilledElements::kDark, RuntimeMemory());
  EXPECT_FALSE(rows.HasFailed());
  EXPECT_EQ(rows.Rows(), 2);
  EXPECT_EQ(rows.Right(), 1.5);
  EXPECT_EQ(CornersOf(rows.Row(0)), std::vector<Corners>{});
  EXPECT_EQ(CornersOf(rows.Row(1)), (std::vector<Corners>{{0, 0.5, 0.5, 1.0}}));
  EXPECT_EQ(CornersOf(rows.Row(0)), std::vector<Corners>{});
}

TEST(ElementRows, OfAMatrixHoldItsLightModulesInverted) {
  ElementRows rows(kOneDarkModule, FilledElements::kLight, RuntimeMemory());
  EXPECT_EQ(CornersOf(rows.Row(0)),
            (std::vector<Corners>{{0, 0, 0.5, 0.5}, {0.5, 0, 1.0, 0.5}, {1.0, 0, 1.5, 0.5}}));
  EXPECT_EQ(CornersOf(rows.Row(1)),
            (std::vector<Corners>{{0.5, 0.5, 1.0, 1.0}, {1.0, 0.5, 1.5, 1.0}}));
}

TEST(ElementRows, OfALinearSymbolAreOne) {
  const ElementSizes sizes{1.0, 2.5, 4.0};
  ElementRows rows("AaBa", sizes, FilledElements::kDark, RuntimeMemory());
  EXPECT_FALSE(rows.HasFailed());
  EXPECT_EQ(rows.Rows(), 1);
  EXPECT_EQ(rows.Count(), 2u);
  EXPECT_EQ(rows.Right(), 5.5);
  EXPECT_EQ(CornersOf(rows.Row(0)), (std::vector<Corners>{{0, 0, 1, 4}, {2, 0, 4.5, 4}}));
  ElementRows inverted("AaBa", sizes, FilledElements::kLight, RuntimeMemory());
  EXPECT_EQ(CornersOf(inverted.Row(0)), (std::vector<Corners>{{1, 0, 2, 4}, {4.5, 0, 5.5, 4}}));
}

TEST(ElementRows, OfALinearSymbolLieWhereTheyAreToBegin) {
  ElementRows rows("AaBa", {1.0, 2.5, 4.0}, 3.0, FilledElements::kDark, RuntimeMemory());
  EXPECT_EQ(rows.Rows(), 1);
  EXPECT_EQ(rows.Right(), 5.5);
  EXPECT_EQ(CornersOf(rows.Row(0)), (std::vector<Corners>{{0, 3, 1, 7}, {2, 3, 4.5, 7}}));
}

// A memory that gives so many blocks more.
struct ShortMemory {
  int blocks;
  const Memory memory{[](void* self, std::size_t bytes) -> void* {
                        const bool isThere = static_cast<ShortMemory*>(self)->blocks-- > 0;
                        return isThere ? RuntimeMemory().Allocate(bytes) : nullptr;
                      },
                      [](void*, void* block) { RuntimeMemory().Release(block); }, this};
};

TEST(ElementRows, FailWithoutMemoryAndStillKnowWhereTheyEnd) {
  for (int blocks : {0, 1}) {
    ShortMemory shortage{blocks};
    const ElementRows rows(kOneDarkModule, FilledElements::kDark, shortage.memory);
    EXPECT_TRUE(rows.HasFailed()) << blocks;
    EXPECT_EQ(rows.Right(), 1.5);
  }
  ShortMemory shortage{0};
  const ElementRows rows("AaA", {1.0, 3.0, 1.0}, FilledElements::kDark, shortage.memory);
  EXPECT_TRUE(rows.HasFailed());
  EXPECT_EQ(rows.Right(), 3.0);
}

TEST(ElementRows, TakeOneBlockForALinearSymbolAndTwoForAMatrix) {
  ShortMemory one{1};
  EXPECT_FALSE(ElementRows("AaA", {1.0, 3.0, 1.0}, FilledElements::kDark, one.memory).HasFailed());
  ShortMemory two{2};
  EXPECT_FALSE(ElementRows(kOneDarkModule, FilledElements::kDark, two.memory).HasFailed());
}

}  // namespace
}  // namespace barhatch
