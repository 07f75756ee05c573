#include "hatch/GrowableArray.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace barhatch {
namespace {

constexpr std::size_t kMoreThanAllMemory = static_cast<std::size_t>(-1) / 2;

TEST(GrowableArray, WithoutMemoryItIsEmptyAndStaysSo) {
  GrowableArray<double> list(kMoreThanAllMemory);
  EXPECT_TRUE(list.HasFailed());
  EXPECT_EQ(list.Capacity(), 0u);
  list.Append(1.0);
  EXPECT_EQ(list.Count(), 0u);
  EXPECT_EQ(list.RoomFor(1), nullptr);
  EXPECT_EQ(list.Release(), nullptr);
}

}  // namespace
}  // namespace barhatch
