#include "hatch/HatchLists.h"

#include <gtest/gtest.h>

#include <memory>

namespace barhatch {
namespace {

TEST(CoordinateList, SeventeenAppendsDoubleTheCapacityAndKeepTheOrder) {
  CoordinateList list;
  EXPECT_EQ(list.Capacity(), 16u);
  for (int i = 0; i < 16; ++i) list.Append(i);
  EXPECT_EQ(list.Capacity(), 16u);
  list.Append(16);
  EXPECT_EQ(list.Capacity(), 32u);
  ASSERT_EQ(list.Count(), 17u);
  for (std::size_t i = 0; i < 17; ++i) EXPECT_EQ(list[i], static_cast<double>(i));
}

TEST(RectList, SeventeenAppendsDoubleTheCapacityAndKeepTheOrder) {
  RectList list;
  for (int i = 0; i < 17; ++i) list.Append(HatchRect(i, 0.0, i + 1, 1.0));
  EXPECT_EQ(list.Capacity(), 32u);
  ASSERT_EQ(list.Count(), 17u);
  for (std::size_t i = 0; i < 17; ++i) EXPECT_EQ(list[i].lowerLeft.x, static_cast<double>(i));
}

TEST(CoordinateList, SegmentsFollowTheSameGrowthRule) {
  CoordinateList list;
  for (int i = 0; i < 4; ++i) list.AppendSegment(4 * i, 4 * i + 1, 4 * i + 2, 4 * i + 3);
  EXPECT_EQ(list.Capacity(), 16u);
  list.AppendSegment(16, 17, 18, 19);
  EXPECT_EQ(list.Capacity(), 32u);
  ASSERT_EQ(list.Count(), 20u);
  for (std::size_t i = 0; i < 20; ++i) EXPECT_EQ(list[i], static_cast<double>(i));
}

TEST(CoordinateList, CountedCapacityIsTakenAsItIs) {
  CoordinateList list(4);
  list.AppendSegment(1, 2, 3, 4);
  EXPECT_EQ(list.Capacity(), 4u);
  EXPECT_FALSE(list.HasFailed());
}

TEST(CoordinateList, CapacityOfNothingStillGrows) {
  CoordinateList list(0);
  list.Append(7.0);
  ASSERT_EQ(list.Count(), 1u);
  EXPECT_EQ(list[0], 7.0);
}

TEST(CoordinateList, TooLargeAListFailsAndLosesNothingElse) {
  CoordinateList list(static_cast<std::size_t>(-1) / 8);
  EXPECT_TRUE(list.HasFailed());
  EXPECT_EQ(list.Capacity(), 0u);
  list.AppendSegment(1, 2, 3, 4);
  EXPECT_TRUE(list.HasFailed());
  EXPECT_EQ(list.Count(), 0u);
}

TEST(CoordinateList, ReleaseHandsTheArrayOverAndEmptiesTheList) {
  CoordinateList list;
  list.AppendSegment(1.5, 2.5, 3.5, 4.5);
  const std::unique_ptr<double[]> array(list.Release());
  EXPECT_EQ(array[1], 2.5);
  EXPECT_EQ(list.Count(), 0u);
  list.Append(5.5);
  EXPECT_EQ(list[0], 5.5);
}

TEST(HatchRect, OffsetMovesBothCorners) {
  HatchRect rect(1.0, 2.0, 3.0, 4.0);
  rect.Offset(10.0, 100.0);
  EXPECT_EQ(rect.lowerLeft.x, 11.0);
  EXPECT_EQ(rect.lowerLeft.y, 102.0);
  EXPECT_EQ(rect.upperRight.x, 13.0);
  EXPECT_EQ(rect.upperRight.y, 104.0);
}

}  // namespace
}  // namespace barhatch
