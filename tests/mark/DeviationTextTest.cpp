#include "mark/DeviationText.h"

#include <gtest/gtest.h>

#include <string>

#include "mark/DeviationTable.h"

namespace barhatch {
namespace {

std::string TextOf(DeviationSet met) {
  std::string text(DeviationTextLength(met) + 1, 'x');
  WriteDeviationText(met, text.data());
  EXPECT_EQ(text.back(), '\0');
  text.pop_back();
  return text;
}

DeviationSet Of(Deviation a, Deviation b) {
  DeviationSet set;
  set.Add(a);
  set.Add(b);
  return set;
}

}  // namespace

TEST(DeviationText, OfNoneIsEmpty) { EXPECT_EQ(TextOf(DeviationSet()), ""); }

TEST(DeviationText, HasALineForEachInTheOrderOfTheRegister) {
  EXPECT_EQ(
      TextOf(Of(Deviation::kDMSI_1, Deviation::kD39_2)),
      "D-39-2: '/' is written with the elements of '%'; a standard reader sees: '%' where '/' "
      "was given: wrong text, no error\n"
      "D-MSI-1: the empty text is accepted: start, the check digit 0, stop; a standard reader "
      "sees: no text, or \"0\" from a reader that does not test check digits\n");
}

TEST(DeviationText, NamesEveryRowOnce) {
  const std::string text = TextOf(DeviationSet::All());
  std::size_t at = 0;
  for (const DeviationRow& row : kDeviationRows) {
    const std::string begin = std::string(row.id) + ": ";
    EXPECT_EQ(text.compare(at, begin.size(), begin), 0) << row.id;
    at = text.find('\n', at) + 1;
  }
  EXPECT_EQ(at, text.size());
}

TEST(DeviationText, RowsArePlainAsciiAndComplete) {
  for (const DeviationRow& row : kDeviationRows) {
    for (const char* cell : {row.id, row.does, row.published, row.touches, row.reads}) {
      ASSERT_NE(cell, nullptr) << row.id;
      EXPECT_NE(*cell, '\0') << row.id;
      for (; *cell != '\0'; ++cell) EXPECT_TRUE(*cell >= ' ' && *cell <= '~') << row.id;
    }
    const bool touchesNone = std::string(row.touches).compare(0, 4, "none") == 0;
    EXPECT_EQ(touchesNone, std::string(row.reads) == "-") << row.id;
  }
}

}  // namespace barhatch
