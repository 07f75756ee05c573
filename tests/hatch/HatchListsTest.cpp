#include "hatch/HatchLists.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

namespace barhatch {
namespace {

TEST(CoordinateList, SeventeenAppendsDoubleTheCapacityAndKeepTheOrder) {
  CoordinateList list(RuntimeMemory());
  EXPECT_EQ(list.Capacity(), 16u);
  for (int i = 0; i < 16; ++i) list.Append(i);
  EXPECT_EQ(list.Capacity(), 16u);
  list.Append(16);
  EXPECT_EQ(list.Capacity(), 32u);
  ASSERT_EQ(list.Count(), 17u);
  for (std::size_t i = 0; i < 17; ++i) EXPECT_EQ(list[i], static_cast<double>(i));
}

TEST(RectList, SeventeenAppendsDoubleTheCapacityAndKeepTheOrder) {
  RectList list(RuntimeMemory());
  for (int i = 0; i < 17; ++i) list.Append(HatchRect(i, 0.0, i + 1, 1.0));
  EXPECT_EQ(list.Capacity(), 32u);
  ASSERT_EQ(list.Count(), 17u);
  for (std::size_t i = 0; i < 17; ++i) EXPECT_EQ(list[i].lowerLeft.x, static_cast<double>(i));
}

TEST(CoordinateList, SegmentsFollowTheSameGrowthRule) {
  CoordinateList list(RuntimeMemory());
  for (int i = 0; i < 4; ++i) list.AppendSegment(4 * i, 4 * i + 1, 4 * i + 2, 4 * i + 3);
  EXPECT_EQ(list.Capacity(), 16u);
  list.AppendSegment(16, 17, 18, 19);
  EXPECT_EQ(list.Capacity(), 32u);
  ASSERT_EQ(list.Count(), 20u);
  for (std::size_t i = 0; i < 20; ++i) EXPECT_EQ(list[i], static_cast<double>(i));
}

TEST(CoordinateList, CountedCapacityIsTakenAsItIs) {
  CoordinateList list(RuntimeMemory(), 4);
  list.AppendSegment(1, 2, 3, 4);
  EXPECT_EQ(list.Capacity(), 4u);
  EXPECT_FALSE(list.HasFailed());
}

TEST(CoordinateList, CapacityOfNothingStillGrows) {
  CoordinateList list(RuntimeMemory(), 0);
  list.Append(7.0);
  ASSERT_EQ(list.Count(), 1u);
  EXPECT_EQ(list[0], 7.0);
}

TEST(CoordinateList, TooLargeAListFailsAndLosesNothingElse) {
  CoordinateList list(RuntimeMemory(), static_cast<std::size_t>(-1) / 8);
  EXPECT_TRUE(list.HasFailed());
  EXPECT_EQ(list.Capacity(), 0u);
  list.AppendSegment(1, 2, 3, 4);
  EXPECT_TRUE(list.HasFailed());
  EXPECT_EQ(list.Count(), 0u);
}

// One double more than fit all addresses: its bytes, counted in an address, are 8.
TEST(CoordinateList, ACapacityWhoseBytesOverflowIsTooLarge) {
  const CoordinateList list(RuntimeMemory(), static_cast<std::size_t>(-1) / 8 + 2);
  EXPECT_TRUE(list.HasFailed());
  EXPECT_EQ(list.Capacity(), 0u);
}

// Memory that counts its blocks.
struct CountedMemory {
  std::size_t taken = 0;
  std::size_t given = 0;
  const Memory memory{[](void* counts, std::size_t bytes) -> void* {
                        ++static_cast<CountedMemory*>(counts)->taken;
                        return std::malloc(bytes);
                      },
                      [](void* counts, void* block) {
                        ++static_cast<CountedMemory*>(counts)->given;
                        std::free(block);
                      },
                      this};
};

TEST(CoordinateList, TakesItsArraysFromTheMemoryAndGivesThemBack) {
  CountedMemory counts;
  {
    CoordinateList list(counts.memory);
    EXPECT_EQ(counts.taken, 1u);
    for (int i = 0; i < 17; ++i) list.Append(i);
    EXPECT_EQ(counts.taken, 2u);
    EXPECT_EQ(counts.given, 1u);
  }
  EXPECT_EQ(counts.given, 2u);
}

TEST(CoordinateList, ACapacityOfNothingTakesNoMemory) {
  CountedMemory counts;
  {
    const CoordinateList list(counts.memory, 0);
    EXPECT_FALSE(list.HasFailed());
    EXPECT_EQ(list.Capacity(), 0u);
  }
  EXPECT_EQ(counts.taken, 0u);
  EXPECT_EQ(counts.given, 0u);
}

TEST(CoordinateList, InRoomOfTheCallerDoesNotGrow) {
  double room[5] = {7, 7, 7, 7, 7};
  {
    CoordinateList list(room, 4);
    list.AppendSegment(1, 2, 3, 4);
    EXPECT_FALSE(list.HasFailed());
    EXPECT_EQ(list.begin(), room);
    list.Append(5);
    EXPECT_TRUE(list.HasFailed());
    EXPECT_EQ(list.Count(), 4u);
    EXPECT_EQ(list.Capacity(), 4u);
  }
  EXPECT_EQ(room[3], 4);
  EXPECT_EQ(room[4], 7);
}

TEST(CoordinateList, ReleaseHandsTheArrayOverAndEmptiesTheList) {
  CoordinateList list(RuntimeMemory());
  list.AppendSegment(1.5, 2.5, 3.5, 4.5);
  const std::unique_ptr<double[]> array(list.Release());
  EXPECT_EQ(array[1], 2.5);
  EXPECT_EQ(list.Count(), 0u);
  list.Append(5.5);
  EXPECT_EQ(list[0], 5.5);
}

TEST(HatchPoint, HoldsYBeforeX) {
  const HatchPoint point(1.0, 2.0);
  EXPECT_EQ(point.x, 1.0);
  EXPECT_EQ(point.y, 2.0);
  EXPECT_EQ(static_cast<const void*>(&point), &point.y);
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
