// What the encoders of the device never write: symbols of Code 128 made of values, function
// characters and shifts among them, read by the library and by a reader that is not ours.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "support/Code128Reader.h"
#include "support/Raster.h"
#include "support/ReaderOracle.h"
#include "symbologies/ReportedReading.h"

namespace barhatch {
namespace {

using Values = std::vector<int>;
using Text = std::optional<std::string>;

// With check character and stop.
std::string Draw(Values values) {
  int sum = values[0];
  for (std::size_t i = 1; i < values.size(); ++i)
    sum = (sum + values[i] * static_cast<int>(i)) % 103;
  values.push_back(sum % 103);
  values.push_back(106);
  std::string letters;
  for (const int value : values) letters += test::Code128Letters(value);
  return letters + "AA";
}

Text TextOf(const Values& values) { return test::Report(5, Draw(values)).text; }

test::Raster PictureOf(const std::string& letters) {
  constexpr int kModule = 3;
  constexpr int kMargin = 12 * kModule;
  test::Raster picture(2 * kMargin + kModule * static_cast<int>(letters.size()), 20,
                       test::kLightShade);
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const int left = kMargin + kModule * static_cast<int>(i);
    if (letters[i] == 'A') picture.Fill(left, 0, left + kModule, 20, test::kDarkShade);
  }
  return picture;
}

TEST(Code128Reader, SetsAndSwitches) {
  EXPECT_EQ(TextOf({103, 33, 65, 95}), "A\x01\x1F");
  EXPECT_EQ(TextOf({104, 33, 65, 95}), "Aa\x7F");
  EXPECT_EQ(TextOf({105, 0, 7, 99}), "000799");
  EXPECT_EQ(TextOf({103, 65, 100, 65, 99, 65, 101, 65, 99, 1, 100, 65}),
            "\x01"
            "a65\x01"
            "01a");
}

TEST(Code128Reader, TheShiftTouchesOneCharacter) {
  EXPECT_EQ(TextOf({104, 65, 98, 65, 65}),
            "a\x01"
            "a");
  EXPECT_EQ(TextOf({103, 65, 98, 65, 65}),
            "\x01"
            "a\x01");
}

TEST(Code128Reader, Fnc1IsGsButInFirstPosition) {
  EXPECT_EQ(TextOf({105, 102, 12, 34}), "1234");
  EXPECT_EQ(TextOf({105, 102, 12, 102, 34}),
            "12\x1D"
            "34");
  EXPECT_EQ(TextOf({104, 102, 33, 34, 102, 35}),
            "AB\x1D"
            "C");
  EXPECT_EQ(TextOf({103, 33, 34, 102}), "AB\x1D");
}

TEST(Code128Reader, Fnc2AndFnc3AreLeftOut) {
  EXPECT_EQ(TextOf({104, 97, 33, 96, 34}), "AB");
  EXPECT_EQ(TextOf({103, 96, 33, 97}), "A");
}

TEST(Code128Reader, OneFnc4TouchesTheNextCharacterAndTwoAllThatFollow) {
  EXPECT_EQ(TextOf({104, 100, 65, 65}),
            "\xE1"
            "a");
  EXPECT_EQ(TextOf({103, 101, 65, 65}), "\x81\x01");
  EXPECT_EQ(TextOf({104, 100, 100, 65, 65, 100, 65, 65}),
            "\xE1\xE1"
            "a\xE1");
  EXPECT_EQ(TextOf({104, 100, 100, 65, 100, 100, 65}),
            "\xE1"
            "a");
  EXPECT_EQ(TextOf({104, 100, 100, 65, 99, 12, 100, 65}),
            "\xE1"
            "12\xE1");
  EXPECT_EQ(TextOf({104, 100, 98, 65, 65}),
            "\x81"
            "a");
}

// Reader programming, GS1 and switches without data: a symbol, and nothing to report of it.
TEST(Code128Reader, FunctionCharactersAloneAreASymbolOfNoText) {
  const Values functions[] = {{104, 96}, {105, 102}, {103, 100, 99}, {104, 100, 98}};
  for (const Values& values : functions) {
    EXPECT_EQ(TextOf(values), "");
    if (!test::HasReader(test::Reader::kZxing)) continue;
    const auto read =
        test::Read(test::Reader::kZxing, PictureOf(Draw(values)), test::Format::kCode128);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->text, "");
  }
}

TEST(Code128Reader, StartsAndStopsInsideAreNoSymbol) {
  for (const int value : {103, 104, 105, 106}) {
    EXPECT_EQ(TextOf({104, 33, value, 34}), std::nullopt) << value;
    EXPECT_EQ(TextOf({105, 33, value, 34}), std::nullopt) << value;
  }
  for (const int value : {0, 99, 102, 106}) EXPECT_EQ(TextOf({value, 33, 34}), std::nullopt);
}

TEST(Code128Reader, ThereIsDataAndARightCheckCharacter) {
  EXPECT_EQ(TextOf({104}), std::nullopt);
  const std::string stop = test::Code128Letters(106) + "AA";
  EXPECT_EQ(test::Report(5, stop).text, std::nullopt);
  for (int check = 0; check < 103; ++check) {
    const std::string letters =
        test::Code128Letters(104) + test::Code128Letters(33) + test::Code128Letters(check) + stop;
    EXPECT_EQ(test::Report(5, letters).text.has_value(), check == 34);
  }
}

// The sum of more values than this leaves the integers of the library.
TEST(Code128Reader, SixThousandThreeHundredValuesAreReadAndNoMore) {
  Values values(6299, 33);
  values[0] = 104;
  EXPECT_EQ(TextOf(values), std::string(6298, 'A'));
  values.push_back(33);
  EXPECT_EQ(TextOf(values), std::nullopt);
}

// Data and function characters by turns that mean something: a shift and an FNC4 stand before data,
// and FNC1 stands at the beginning or behind three characters and more.
class RandomValues {
 public:
  explicit RandomValues(std::uint32_t seed) : random_(seed) {}

  Values Next() {
    set_ = Below(3);
    Values values = {103 + set_};
    if (Below(4) == 0) values.push_back(102);
    AddData(values, 4);
    for (int parts = 2 + Below(8); parts > 0; --parts) {
      AddFunction(values);
      AddData(values, 1 + Below(3));
    }
    return values;
  }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  void AddData(Values& values, int count) {
    for (; count > 0; --count) values.push_back(Below(set_ == 2 ? 100 : 96));
  }

  void AddFunction(Values& values) {
    const int part = Below(set_ == 2 ? 2 : 6);
    if (part == 0) {
      values.push_back(102);
    } else if (part == 1) {
      const int to = (set_ + 1 + Below(2)) % 3;
      values.push_back(101 - to);
      set_ = to;
    } else if (part == 2) {
      values.push_back(97);
    } else if (part == 3) {
      values.insert(values.end(), {98, Below(96)});
    } else {
      values.insert(values.end(), static_cast<std::size_t>(part - 3), 101 - set_);
    }
  }

  std::mt19937 random_;
  int set_ = 0;
};

TEST(Code128Reader, ReportsWhatAnotherReaderReports) {
  if (!test::HasReader(test::Reader::kZxing)) GTEST_SKIP() << "built without the reader";
  RandomValues random(128);
  for (int i = 0; i < 1500; ++i) {
    const Values values = random.Next();
    const std::string letters = Draw(values);
    const auto read = test::Read(test::Reader::kZxing, PictureOf(letters), test::Format::kCode128);
    ASSERT_TRUE(read) << testing::PrintToString(values);
    ASSERT_EQ(test::Report(5, letters).text, read->text) << testing::PrintToString(values);
  }
}

}  // namespace
}  // namespace barhatch
