#include "symbologies/ModuleStringBuilder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

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

TEST(ModuleStringBuilder, TakesACountedPartOfLongerDigits) {
  ModuleStringBuilder builder(100, 5);
  const char* digits = "1101";
  builder.AppendElements<3>(digits);
  builder.AppendModules<2>(digits + 1);
  EXPECT_EQ(Take(builder.Release()), "BbAAa");
}

TEST(ModuleStringBuilder, InterleavesBarsAndSpaces) {
  ModuleStringBuilder builder(100, 6);
  builder.AppendInterleaved<3>("010", "110");
  EXPECT_EQ(Take(builder.Release()), "AbBbAa");
}

TEST(ModuleStringBuilder, HasRoomForWhatWasAnnouncedWhereTheUsualCapacityIsTooSmall) {
  ModuleStringBuilder builder(3, 5);
  builder.AppendModules("11111");
  EXPECT_EQ(Take(builder.Release()), "AAAAA");
}

TEST(ModuleStringBuilder, HasRoomForTheNulWhereTheLettersAloneFillTheUsualCapacity) {
  for (std::size_t usualCapacity : {4u, 5u, 6u, 7u}) {
    ModuleStringBuilder builder(usualCapacity, 5);
    builder.AppendModules("11111");
    EXPECT_EQ(Take(builder.Release()), "AAAAA") << usualCapacity;
  }
}

// The sanitizers see whether a letter more is written.
TEST(ModuleStringBuilder, FillsItsRoomToTheLastLetter) {
  ModuleStringBuilder elements(1, 4);
  elements.AppendElements("0110");
  EXPECT_EQ(Take(elements.Release()), "AbBa");
  ModuleStringBuilder interleaved(1, 6);
  interleaved.AppendInterleaved<3>("010", "110");
  EXPECT_EQ(Take(interleaved.Release()), "AbBbAa");
}

// Builders announced for five letters that get six. The assertions, where they are on, end the
// program; without them there is no string.
bool GivesAStringAfterSixLettersAtOnce() {
  ModuleStringBuilder builder(1, 5);
  builder.AppendSpace(6);
  return Take(builder.Release()).has_value();
}

bool GivesAStringAfterFiveLettersAndOne() {
  ModuleStringBuilder builder(1, 5);
  builder.AppendSpace(5);
  builder.AppendModules("1");
  return Take(builder.Release()).has_value();
}

bool IsRefusal(int status) {
  return testing::ExitedWithCode(EXIT_SUCCESS)(status) || testing::KilledBySignal(SIGABRT)(status);
}

TEST(ModuleStringBuilderDeathTest, MoreLettersThanAnnouncedAreNoString) {
  constexpr const char* kNothingOrTheAssertion = "^$|overflowed_";
  EXPECT_EXIT(std::exit(GivesAStringAfterSixLettersAtOnce() ? EXIT_FAILURE : EXIT_SUCCESS),
              IsRefusal, kNothingOrTheAssertion);
  EXPECT_EXIT(std::exit(GivesAStringAfterFiveLettersAndOne() ? EXIT_FAILURE : EXIT_SUCCESS),
              IsRefusal, kNothingOrTheAssertion);
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
  constexpr std::size_t kHalfOfAllMemory = static_cast<std::size_t>(-1) / 2;
  const ModuleStringBuilder otherHalf(kHalfOfAllMemory, 1);
  ModuleStringBuilder builder(kHalfOfAllMemory, 1);
  builder.AppendModules("1");
  EXPECT_FALSE(Take(builder.Release()));
}

}  // namespace
}  // namespace barhatch
