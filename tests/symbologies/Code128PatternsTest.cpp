#include "symbologies/Code128Patterns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Code128Reader.h"
#include "support/Modules.h"
#include "support/OwnedString.h"

namespace barhatch {
namespace {

using test::Code128Letters;
using test::Modules;
using test::ReadCode128;
using test::Take;

std::optional<std::string> LettersOf(int value) {
  SymbolWriter builder(RuntimeMemory(), 1, {0, 0});
  builder.Open(kCode128CharacterModules);
  const auto one = static_cast<std::uint8_t>(value);
  AppendCode128Characters(builder, &one, 1);
  return Take(builder.Release());
}

int CheckOf(const std::vector<std::uint8_t>& values) {
  return Code128CheckValue(values.data(), static_cast<int>(values.size()));
}

TEST(Code128Patterns, HasTheValuesZeroToOneHundredAndSixAndNoMore) {
  EXPECT_STREQ(Code128Widths(0), "212222");
  EXPECT_STREQ(Code128Widths(106), "233111");
  EXPECT_EQ(Code128Widths(-1), nullptr);
  EXPECT_EQ(Code128Widths(107), nullptr);
}

// The reader's table was typed as modules and is no copy of the widths.
TEST(Code128Patterns, EveryValueHasTheModulesThatAReaderExpects) {
  for (int value = 0; value <= 106; ++value) {
    EXPECT_EQ(LettersOf(value), Code128Letters(value)) << value;
  }
}

TEST(Code128Patterns, NamedValuesAreThePublishedCharacters) {
  EXPECT_EQ(LettersOf(kCode128StartA), Modules("11010000100"));
  EXPECT_EQ(LettersOf(kCode128StartB), Modules("11010010000"));
  EXPECT_EQ(LettersOf(kCode128StartC), Modules("11010011100"));
  EXPECT_EQ(LettersOf(kCode128SwitchToB), Modules("10111101110"));
  EXPECT_EQ(LettersOf(kCode128SwitchToC), Modules("10111011110"));
  EXPECT_EQ(LettersOf(kCode128Stop), Modules("11000111010"));
}

TEST(Code128Patterns, StopIsFollowedByATerminationBarOfTwoModules) {
  SymbolWriter builder(RuntimeMemory(), 1, {0, 0});
  builder.Open(kCode128CharacterModules + kCode128TerminationBarModules);
  AppendCode128Stop(builder);
  EXPECT_EQ(Take(builder.Release()), Modules("11000111010 11"));
}

TEST(Code128CheckValue, CountsTheStartOnceAndEveryOtherValueByItsPosition) {
  EXPECT_EQ(CheckOf({104}), 1);
  EXPECT_EQ(CheckOf({104, 33}), 34);            // (104 + 33) mod 103
  EXPECT_EQ(CheckOf({105, 12, 34}), 82);        // 105 + 12 + 2 x 34 = 185
  EXPECT_EQ(CheckOf({105, 0, 0, 0, 1}), 6);     // 105 + 4 x 1
  EXPECT_EQ(CheckOf({103, 0, 102}), 101);       // 103 + 2 x 102 = 307
  EXPECT_EQ(CheckOf({105, 0, 0, 0, 0, 0}), 2);  // 105
}

// The worked example of the check character that the literature repeats most: PJJ123C from start A.
TEST(Code128CheckValue, IsFiftyFourForTheWorkedExampleOfTheLiterature) {
  EXPECT_EQ(CheckOf({103, 48, 42, 42, 17, 18, 19, 35}), 54);
}

TEST(Code128CheckValue, HoldsForTheLongestSymbolOfTheLargestValues) {
  const std::vector<std::uint8_t> values(81, 102);
  long sum = 102;
  for (long position = 1; position <= 80; ++position) sum += 102 * position;
  EXPECT_EQ(CheckOf(values), sum % 103);
}

const std::string kStartB = Modules("11010010000");
const std::string kLetterA = Modules("10100011000");
const std::string kCheck34 = Modules("10001011000");
const std::string kStop = Modules("11000111010 11");

TEST(Code128Reader, ReadsASymbolTypedFromThePublishedTable) {
  const auto reading = ReadCode128(kStartB + kLetterA + kCheck34 + kStop);
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->values, (std::vector<int>{104, 33, 34}));
  EXPECT_EQ(reading->text, "A");
}

TEST(Code128Reader, RefusesWhatIsNoSymbol) {
  EXPECT_FALSE(ReadCode128(""));
  EXPECT_FALSE(ReadCode128(kStartB + kLetterA + kLetterA + kStop)) << "wrong check character";
  EXPECT_FALSE(ReadCode128(kStartB + kLetterA + kCheck34)) << "no stop";
  EXPECT_FALSE(ReadCode128(kLetterA + kLetterA + kStop)) << "no start";
  EXPECT_FALSE(ReadCode128(kStartB + kLetterA + "A" + kCheck34 + kStop)) << "a module too many";
  EXPECT_FALSE(ReadCode128(kStartB + Modules("11111111100") + kCheck34 + kStop)) << "unknown";
  EXPECT_FALSE(ReadCode128(kStartB + kLetterA + kCheck34 + kStop + "B")) << "no module";
}

TEST(Code128Reader, RefusesFunctionCharactersAndShift) {
  for (int value : {96, 97, 98, 102}) {
    const int check = (104 + value) % 103;
    EXPECT_FALSE(ReadCode128(kStartB + Code128Letters(value) + Code128Letters(check) + kStop))
        << value;
  }
}

}  // namespace
}  // namespace barhatch
