// Which deviations a symbol has met, and what is written where one is not in force.
#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>

#include "datamatrix/EncodedText.h"
#include "datamatrix/ModeEncodations.h"
#include "support/DataMatrixReader.h"
#include "support/ReferenceEncodation.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::EncodedBuffer;
using test::kSmallestSquare;

// "2 8" for D-DM-2 and D-DM-8.
std::string Numbers(const DeviationSet& met) {
  std::string numbers;
  for (int number = 1; number <= 10; ++number) {
    const int id = static_cast<int>(Deviation::kDDM_1) + number - 1;
    if (!met.Has(static_cast<Deviation>(id))) continue;
    numbers += (numbers.empty() ? "" : " ") + std::to_string(number);
  }
  return numbers;
}

std::string Met(const std::u16string& text, const SizeRequest& request = kSmallestSquare,
                int codeFormat = 0) {
  Conformance how = Conformance::Device();
  EncodedBuffer(text, codeFormat, request, how);
  return Numbers(how.Met());
}

DeviationSet AllBut(std::initializer_list<Deviation> ids) {
  DeviationSet set = DeviationSet::All();
  for (const Deviation id : ids) set.Remove(id);
  return set;
}

std::string Without(std::initializer_list<Deviation> ids, const std::u16string& text,
                    const SizeRequest& request = kSmallestSquare, int codeFormat = 0) {
  Conformance how(AllBut(ids));
  const auto buffer = EncodedBuffer(text, codeFormat, request, how);
  for (const Deviation id : ids) EXPECT_FALSE(how.Met().Has(id));
  return test::InDecimal(test::CodewordsOf(*buffer));
}

TEST(DeviationsMet, TextsByTheBookMeetNone) {
  EXPECT_EQ(Met(u""), "");
  EXPECT_EQ(Met(u"123456"), "");
  EXPECT_EQ(Met(u"12", kSmallestSquare, 1), "");
}

TEST(DeviationsMet, LookAheadIsMetWhereItIsConsulted) {
  EXPECT_EQ(Met(u"A"), "2");
  EXPECT_EQ(Met(u"1234A"), "2");
  EXPECT_EQ(Met(u"12\u0400"), "");
}

TEST(DeviationsMet, BytesInAscii) {
  EXPECT_EQ(Met(u"\x81"), "2 3");
  EXPECT_EQ(Met(u"\x80"), "2 4");
  EXPECT_EQ(Met(u"\x7F"), "2");
}

TEST(DeviationsMet, Fnc1BehindALatchOrNotAtAll) {
  EXPECT_EQ(Met(u"AIMAIMAIM", kSmallestSquare, 1), "2 6 8");
  EXPECT_EQ(Met(u"\u040012", kSmallestSquare, 1), "6");
  EXPECT_EQ(Met(u"\xE9", kSmallestSquare, 1), "2 3 6");
  EXPECT_EQ(Met(u"", kSmallestSquare, 1), "");
}

TEST(DeviationsMet, UnlatchLeftOutWhereTheSymbolGoesOn) {
  EXPECT_EQ(Met(u"AIMAIMAIM"), "2");  // 7 in 14 x 14
  EXPECT_EQ(Met(u"AIMAIMAIM", {16, 16, 0}), "2 7");
  EXPECT_EQ(Met(u"A*B1C>D1E*F1G>H1a"), "2 7");
  EXPECT_EQ(Met(u"Serial Date type type MADE"), "2");
}

TEST(DeviationsMet, UnlatchWhereTheSymbolIsFull) {
  EXPECT_EQ(Met(u"AIMAIMAIMAIM", {8, 32, 0}), "2 8");
  EXPECT_EQ(Met(u"AIMAIMAIM", kSmallestSquare, 2), "2 8");
  EXPECT_EQ(Met(u"12AIMAIMAI"), "2");
  EXPECT_EQ(Met(u"11AIMAIMAIMAaa"), "2 8");
  EXPECT_EQ(Met(u"11AIMAIMAIMAaa", {18, 18, 0}), "2");
}

TEST(DeviationsMet, EdifactUnlatchInTheLastTwoCodewords) {
  EXPECT_EQ(Met(u"A-1/B-2/C-3/"), "2 10");             // 10 in 16 x 16
  EXPECT_EQ(Met(u"A-1/B-2/C-3/", {18, 18, 0}), "2");   // 18
  EXPECT_EQ(Met(u"A-1/B-2/C-3/", {8, 32, 1}), "2 8");  // full, then 12 x 26
  EXPECT_EQ(Met(u"A-B/C-D/E-F/G-Ha-I/J-K/L-M"), "2 9");
}

TEST(DeviationsMet, NotInForceAreWrittenByTheBook) {
  EXPECT_EQ(Without({Deviation::kDDM_3}, u"\xE9"), "235 106");
  EXPECT_EQ(Without({Deviation::kDDM_4}, u"\x80"), "235 1");
  EXPECT_EQ(Without({Deviation::kDDM_6}, u"AIMAIMAIM", kSmallestSquare, 1).substr(0, 7), "66 232 ");
  EXPECT_EQ(Without({Deviation::kDDM_6}, u"\u0400", kSmallestSquare, 1), "241 131 136 232");
  EXPECT_EQ(Without({Deviation::kDDM_6}, u"12", kSmallestSquare, 1), "142 232");
  EXPECT_EQ(Without({Deviation::kDDM_6}, u"", kSmallestSquare, 1), "");
}

TEST(DeviationsMet, UnlatchesByTheBookWhereNotInForce) {
  EXPECT_EQ(Without({Deviation::kDDM_7}, u"AIMAIMAIM", {16, 16, 0}), "230 91 11 91 11 91 11 254");
  EXPECT_EQ(Without({Deviation::kDDM_7}, u"A*B1C>D1E*F1G>H1a"),
            "238 87 184 33 195 107 27 9 62 125 102 254 50 98");
  EXPECT_EQ(Without({Deviation::kDDM_8}, u"AIMAIMAIM", kSmallestSquare, 2),
            "236 230 91 11 91 11 91 11");
  EXPECT_EQ(Without({Deviation::kDDM_8}, u"AIMAIMAIMAIM", {8, 32, 0}),
            "230 91 11 91 11 91 11 91 11");
  EXPECT_EQ(Without({Deviation::kDDM_8}, u"11AIMAIMAIMAaa"),
            "141 230 91 11 91 11 91 11 87 210 12 169");
  EXPECT_EQ(Without({Deviation::kDDM_10}, u"A-1/B-2/C-3/"), "240 6 220 111 10 220 175 14 220 239");
}

// "AAa" leaves a value, "aA" has three, the last of them in ASCII: 4 + 4 and 66 fill 9 of no
// symbol, 5 + 4 and 66 the 10 of 8 x 32.
TEST(DeviationsMet, LastSingleValueGoesOutInAsciiWhereTheSymbolIsFull) {
  const auto ending = [](Conformance how) {
    CodewordBuffer buffer;
    for (int i = 0; i < 5; ++i) buffer.Append(1);
    const std::u16string text = u"AAaaA";
    EncodationState state({text.data(), text.size()}, {8, 32, 0}, how, buffer);
    state.mode = Mode::kC40;
    EncodeTriples(state);
    return test::InDecimal(test::CodewordsOf(buffer)).substr(10) +
           (how.Met().Has(Deviation::kDDM_8) ? " met" : "");
  };
  EXPECT_EQ(ending(Conformance::Device()), "89 177 254 98 98 66 met");
  EXPECT_EQ(ending(Conformance::Published()), "89 179 6 146 66");
}

// Random texts: what changes the reading by the reference has been met, and nothing that changes it
// else has.
class MetByRandomTexts : public testing::TestWithParam<int> {};

TEST_P(MetByRandomTexts, AreThoseThatTheReadingShows) {
  std::mt19937 random(static_cast<unsigned>(GetParam()));
  const std::vector<test::ReferenceSize> sizes = test::ReferenceSizes();
  for (int round = 0; round < 3000; ++round) {
    const std::u16string text =
        test::Wide(test::RandomText(random, GetParam(), 1 + test::Below(random, 40)));
    const test::ReferenceSize size = sizes[test::Below(random, sizes.size())];
    const int isGrowing = static_cast<int>(test::Below(random, 2));
    const int codeFormat = static_cast<int>(test::Below(random, 4));
    const auto reference =
        test::EncodeByReference(text, codeFormat, {size.rows, size.columns, isGrowing});
    if (reference.capacity == 0) continue;
    Conformance how = Conformance::Device();
    EncodedBuffer(text, codeFormat, {size.rows, size.columns, isGrowing}, how);
    std::string shown;
    for (const int number : {3, 4, 6, 7, 9, 10}) {
      const std::string id = "D-DM-" + std::to_string(number);
      if (reference.ids.count(id) != 0) shown += " " + std::to_string(number);
    }
    DeviationSet silent = how.Met();
    for (const Deviation id : {Deviation::kDDM_2, Deviation::kDDM_8}) silent.Remove(id);
    const std::string met = silent.Bits() == 0 ? "" : " " + Numbers(silent);
    if (!reference.isAstray) {
      ASSERT_EQ(met, shown) << testing::PrintToString(text);
    } else {  // behind the place where a reader goes astray nothing shows any more
      ASSERT_GE(met.size(), shown.size()) << testing::PrintToString(text);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EveryClass, MetByRandomTexts, testing::Range(0, test::kTextClassCount));

// Where nothing is in force but the choice of modes, what is written is read as it was given.
TEST(DeviationsMet, PublishedTextsOfAsciiAreReadAsGiven) {
  std::mt19937 random(3);
  const std::vector<test::ReferenceSize> sizes = test::ReferenceSizes();
  int read = 0;
  for (int round = 0; round < 20000; ++round) {
    const std::string bytes =
        test::RandomText(random, round % test::kTextClassCount, 1 + test::Below(random, 40));
    const test::ReferenceSize size = sizes[test::Below(random, sizes.size())];
    Conformance how = Conformance::Published();
    const auto buffer =
        EncodedBuffer(test::Wide(bytes), 0, {size.rows, size.columns, round % 2}, how);
    const auto chosen = test::ReferenceChoice(buffer->Count(), size.rows, size.columns, round % 2);
    EXPECT_EQ(how.Met().Bits(), 0u);
    if (!chosen) continue;
    Conformance device = Conformance::Device();
    EncodedBuffer(test::Wide(bytes), 0, {size.rows, size.columns, round % 2}, device);
    if (device.Met().Has(Deviation::kDDM_9)) continue;  // written whatever is in force
    const test::Reading reading =
        test::ReadDataCodewords(test::Padded(test::CodewordsOf(*buffer), chosen->data));
    ASSERT_TRUE(reading.isSound) << testing::PrintToString(bytes);
    ASSERT_EQ(reading.items, test::ItemsOf(bytes)) << testing::PrintToString(bytes);
    ++read;
  }
  EXPECT_GT(read, 8000);
}

}  // namespace
}  // namespace barhatch
