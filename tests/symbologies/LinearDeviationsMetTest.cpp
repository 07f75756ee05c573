// Which deviations a linear symbol of the device has met: those that changed it, and no others.
#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>

#include "symbologies/DrawnSymbol.h"

namespace barhatch {
namespace {

std::string Repeat(const std::string& text, int times) {
  std::string repeated;
  for (int i = 0; i < times; ++i) repeated += text;
  return repeated;
}

const std::string kSeventyEight = Repeat("AB", 39);

struct MetBy {
  std::int32_t type;
  std::string text;
  std::initializer_list<Deviation> met;
};

const MetBy kRows[] = {
    {1, "0ABCD", {}},
    {1, "-. $%+", {}},
    {1, "A/B", {Deviation::kD39_2}},
    {1, "AE", {Deviation::kD39_3}},
    {1, "Z", {Deviation::kD39_3}},
    {1, "A%B%", {}},
    {1, "A%%", {Deviation::kD39_5}},
    {2, "AZ-. ", {}},
    {2, "$", {Deviation::kD93_1}},
    {2, "%", {Deviation::kD93_1}},
    {22, "a!", {}},
    {11, "123456789", {}},
    {11, "1234567890", {Deviation::kD11_1}},
    {11, "12345678901", {}},
    // Code 128: a lone character behind pairs, DEL in set A, the limit and the step that reaches
    // it.
    {5, "1234", {}},
    {5, "123", {}},
    {5, "12345", {Deviation::kD128_1}},
    {5, "12345A", {}},
    {5, "A1234", {}},
    {6, "A\x7F", {Deviation::kD128_2}},
    {6, "a\x7F", {}},
    {6, "Aa\x7F", {}},
    {7, kSeventyEight + "A", {}},
    {7, kSeventyEight + "AB", {Deviation::kD128_3}},
    {5, kSeventyEight + "1234", {Deviation::kD128_3, Deviation::kD128_4}},
    {6, kSeventyEight + "a", {Deviation::kD128_3, Deviation::kD128_4}},
    {6, kSeventyEight.substr(1) + "a", {}},
    {8, Repeat("12", 78) + "A", {Deviation::kD128_4}},
    {8, Repeat("12", 77) + "A", {}},
    {8, Repeat("12", 79) + "A", {Deviation::kD128_3}},
    // EAN/UPC: the gap in front of an add-on is by the book beside EAN-13 and EAN-8.
    {9, "03600029145", {}},
    {13, "0360002914505", {Deviation::kDEAN_1}},
    {20, "042526152495", {Deviation::kDEAN_1}},
    {15, "97713845240112", {}},
};

TEST(LinearDeviationsMet, AreThoseThatChangedTheSymbol) {
  for (const MetBy& row : kRows) {
    DeviationSet expected;
    for (const Deviation id : row.met) expected.Add(id);
    const test::DrawnSymbol drawn =
        test::Draw(row.type, row.text, test::QuietZone::kNone, DeviationSet::All());
    EXPECT_TRUE(drawn.letters) << row.type << ' ' << row.text;
    EXPECT_EQ(drawn.met.Bits(), expected.Bits()) << row.type << ' ' << row.text;
  }
}

TEST(LinearDeviationsMet, AreNoneByTheBook) {
  for (const MetBy& row : kRows) {
    EXPECT_EQ(test::Draw(row.type, row.text, test::QuietZone::kNone, DeviationSet()).met.Bits(), 0u)
        << row.type << ' ' << row.text;
  }
}

}  // namespace
}  // namespace barhatch
