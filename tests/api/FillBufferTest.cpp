#include "api/FillBuffer.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/Fills.h"

namespace barhatch {
namespace {

TEST(FillBuffer, TakesTheArrayOfTheListOver) {
  CoordinateList list(RuntimeMemory());
  list.AppendSegment(1, 2, 3, 4);
  const double* array = list.begin();
  const std::unique_ptr<FillBufferInfo> fill(MakeFillBuffer(list, FillingShape::kSegments));
  ASSERT_TRUE(fill);
  const std::unique_ptr<double[]> taken(fill->FilledArray);
  EXPECT_EQ(taken.get(), array);
  EXPECT_EQ(fill->BufferLength, 4);
  EXPECT_EQ(list.Count(), 0u);
}

TEST(FillBuffer, NamesTheShapeAsHostsKnowIt) {
  for (FillingShape shape : {FillingShape::kSegments, FillingShape::kPoints}) {
    CoordinateList list(RuntimeMemory());
    list.AppendSegment(1, 2, 3, 4);
    const test::OwnedFill fill(MakeFillBuffer(list, shape));
    ASSERT_TRUE(fill);
    EXPECT_EQ(fill->FillingShapeType, shape == FillingShape::kPoints ? 2 : 0);
  }
}

TEST(FillBuffer, OfAnEmptyListIsNone) {
  CoordinateList list(RuntimeMemory());
  EXPECT_EQ(MakeFillBuffer(list, FillingShape::kSegments), nullptr);
}

TEST(FillBuffer, OfAListThatLostAStrokeIsNone) {
  CoordinateList list(RuntimeMemory());
  list.AppendSegment(1, 2, 3, 4);
  EXPECT_EQ(list.RoomFor(static_cast<std::size_t>(-1) / 16), nullptr);
  ASSERT_EQ(list.Count(), 4u);
  EXPECT_EQ(MakeFillBuffer(list, FillingShape::kSegments), nullptr);
}

}  // namespace
}  // namespace barhatch
