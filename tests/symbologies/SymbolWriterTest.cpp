#include "symbologies/SymbolWriter.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include "support/OwnedString.h"

namespace barhatch {
namespace {

using test::Take;

TEST(SymbolWriter, WritesBarsAndSpacesInTurn) {
  SymbolWriter builder(RuntimeMemory(), 100, {0, 0});
  builder.Open(7);
  builder.AppendElements("0110");
  builder.AppendSpace(1);
  builder.AppendModules("10");
  EXPECT_EQ(Take(builder.Release()), "AbBaaAa");
}

TEST(SymbolWriter, GivesRoomForARunOfLetters) {
  SymbolWriter builder(RuntimeMemory(), 100, {0, 0});
  builder.Open(4);
  CopyLetters<3>(builder.Room(3), "BbAx");
  builder.AppendModules("1");
  EXPECT_EQ(Take(builder.Release()), "BbAA");
}

TEST(SymbolWriter, StandsBetweenItsQuietZones) {
  SymbolWriter builder(RuntimeMemory(), 0, {2, 3});
  builder.Open(1);
  builder.AppendModules("1");
  EXPECT_EQ(Take(builder.Release()), "aaAaaa");
  EXPECT_EQ(builder.Length(), 6u);
}

TEST(SymbolWriter, HasRoomForWhatWasAnnouncedWhereTheUsualCapacityIsTooSmall) {
  SymbolWriter builder(RuntimeMemory(), 3, {0, 0});
  builder.Open(5);
  builder.AppendModules("11111");
  EXPECT_EQ(Take(builder.Release()), "AAAAA");
}

TEST(SymbolWriter, HasRoomForTheNulWhereTheLettersAloneFillTheUsualCapacity) {
  for (std::size_t usualCapacity : {4u, 5u, 6u, 7u}) {
    SymbolWriter builder(RuntimeMemory(), usualCapacity, {0, 0});
    builder.Open(5);
    builder.AppendModules("11111");
    EXPECT_EQ(Take(builder.Release()), "AAAAA") << usualCapacity;
  }
}

// The sanitizers see whether a letter more is written.
TEST(SymbolWriter, FillsItsRoomToTheLastLetter) {
  SymbolWriter elements(RuntimeMemory(), 1, {0, 0});
  elements.Open(4);
  elements.AppendElements("0110");
  EXPECT_EQ(Take(elements.Release()), "AbBa");
}

// Builders announced for five letters that get six. The assertions, where they are on, end the
// program; without them there is no string.
bool GivesAStringAfterSixLettersAtOnce() {
  SymbolWriter builder(RuntimeMemory(), 1, {0, 0});
  builder.Open(5);
  builder.AppendSpace(6);
  return Take(builder.Release()).has_value();
}

bool GivesAStringAfterFiveLettersAndOne() {
  SymbolWriter builder(RuntimeMemory(), 1, {0, 0});
  builder.Open(5);
  builder.AppendSpace(5);
  builder.AppendModules("1");
  return Take(builder.Release()).has_value();
}

bool IsRefusal(int status) {
  return testing::ExitedWithCode(EXIT_SUCCESS)(status) || testing::KilledBySignal(SIGABRT)(status);
}

TEST(SymbolWriterDeathTest, MoreLettersThanAnnouncedAreNoString) {
  constexpr const char* kNothingOrTheAssertion = "^$|overflowed_";
  EXPECT_EXIT(std::exit(GivesAStringAfterSixLettersAtOnce() ? EXIT_FAILURE : EXIT_SUCCESS),
              IsRefusal, kNothingOrTheAssertion);
  EXPECT_EXIT(std::exit(GivesAStringAfterFiveLettersAndOne() ? EXIT_FAILURE : EXIT_SUCCESS),
              IsRefusal, kNothingOrTheAssertion);
}

TEST(SymbolWriter, AnEmptyStringIsAString) {
  SymbolWriter builder(RuntimeMemory(), 1, {0, 0});
  builder.Open(0);
  EXPECT_EQ(Take(builder.Release()), "");
}

TEST(SymbolWriter, IsEmptyOnceReleased) {
  SymbolWriter builder(RuntimeMemory(), 10, {0, 0});
  builder.Open(1);
  builder.AppendModules("1");
  EXPECT_EQ(Take(builder.Release()), "A");
  EXPECT_FALSE(Take(builder.Release()));
}

TEST(SymbolWriter, WithoutMemoryNothingIsReleased) {
  constexpr std::size_t kHalfOfAllMemory = static_cast<std::size_t>(-1) / 2;
  SymbolWriter otherHalf(RuntimeMemory(), kHalfOfAllMemory, {0, 0});
  otherHalf.Open(1);
  SymbolWriter builder(RuntimeMemory(), kHalfOfAllMemory, {0, 0});
  builder.Open(1);
  builder.AppendModules("1");
  EXPECT_FALSE(Take(builder.Release()));
}

}  // namespace
}  // namespace barhatch
