#include "symbologies/ModuleStringBuilder.h"

#include <gtest/gtest.h>

#include "support/OwnedString.h"

namespace barhatch {
namespace {

using test::Take;

TEST(ModuleStringBuilder, WritesBarsAndSpacesInTurn) {
  ModuleStringBuilder builder(100, 7);
  builder.AppendElements("0110");
  builder.AppendSpace(1);
  builder.AppendModules("10");
  EXPECT_EQ(Take(builder.Release()), "AbBaaAa");
}

TEST(ModuleStringBuilder, AppendsSingleElementsOfEitherShade) {
  ModuleStringBuilder builder(100, 4);
  builder.AppendElement(Shade::kDark, ElementWidth::kWide);
  builder.AppendElement(Shade::kLight, ElementWidth::kNarrow);
  builder.AppendElement(Shade::kDark, ElementWidth::kNarrow);
  builder.AppendElement(Shade::kLight, ElementWidth::kWide);
  EXPECT_EQ(Take(builder.Release()), "BaAb");
}

TEST(ModuleStringBuilder, HasRoomForWhatWasAnnouncedWhereTheUsualCapacityIsTooSmall) {
  ModuleStringBuilder builder(3, 5);
  builder.AppendModules("11111");
  EXPECT_EQ(Take(builder.Release()), "AAAAA");
}

TEST(ModuleStringBuilder, AnEmptyStringIsAString) {
  ModuleStringBuilder builder(1, 0);
  EXPECT_EQ(Take(builder.Release()), "");
}

TEST(ModuleStringBuilder, IsEmptyOnceReleased) {
  ModuleStringBuilder builder(10, 1);
  builder.AppendModules("1");
  EXPECT_EQ(Take(builder.Release()), "A");
  EXPECT_FALSE(Take(builder.Release()));
}

TEST(ModuleStringBuilder, WithoutMemoryNothingIsReleased) {
  ModuleStringBuilder builder(static_cast<std::size_t>(-1) / 4, 1);
  builder.AppendModules("1");
  EXPECT_FALSE(Take(builder.Release()));
}

}  // namespace
}  // namespace barhatch
