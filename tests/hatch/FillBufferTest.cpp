#include "hatch/FillBuffer.h"

#include <gtest/gtest.h>

#include <memory>

namespace barhatch {
namespace {

TEST(FillBuffer, TakesTheArrayOfTheListOver) {
  CoordinateList list;
  list.AppendSegment(1, 2, 3, 4);
  const double* array = list.begin();
  const std::unique_ptr<FillBufferInfo> fill(MakeFillBuffer(list, 0));
  ASSERT_TRUE(fill);
  const std::unique_ptr<double[]> taken(fill->FilledArray);
  EXPECT_EQ(taken.get(), array);
  EXPECT_EQ(fill->BufferLength, 4);
  EXPECT_EQ(list.Count(), 0u);
}

TEST(FillBuffer, OfAnEmptyListIsNone) {
  CoordinateList list;
  EXPECT_EQ(MakeFillBuffer(list, 0), nullptr);
}

TEST(FillBuffer, OfAListThatLostAStrokeIsNone) {
  CoordinateList list;
  list.AppendSegment(1, 2, 3, 4);
  EXPECT_EQ(list.RoomFor(static_cast<std::size_t>(-1) / 16), nullptr);
  ASSERT_EQ(list.Count(), 4u);
  EXPECT_EQ(MakeFillBuffer(list, 0), nullptr);
}

}  // namespace
}  // namespace barhatch
