// Which departures touch which text: the examples that docs/deviations.md names, and the sentences
// of its rows.
#include "Departures.h"

#include <gtest/gtest.h>

#include <string>

namespace preview {

namespace {

std::string Ids(const BarcodeText& text) {
  std::string ids;
  for (const Departure* departure : DeparturesTouching(text)) {
    if (!ids.empty()) ids += ' ';
    ids += departure->id;
  }
  return ids;
}

std::string Linear(std::int32_t type, const std::u16string& units) {
  BarcodeText text;
  text.type = type;
  text.units = units;
  return Ids(text);
}

std::string Matrix(const std::u16string& units, std::int32_t size = 0, std::int32_t format = 0) {
  BarcodeText text;
  text.kind = Kind::kDataMatrix;
  text.units = units;
  text.matrixSize = size;
  text.format = format;
  return Ids(text);
}

}  // namespace

TEST(Departures, OfCode39) {
  EXPECT_EQ(Linear(1, u"ABC-123"), "");
  EXPECT_EQ(Linear(1, u"A/B"), "D-39-2");
  EXPECT_EQ(Linear(1, u"E"), "D-39-3");
  EXPECT_EQ(Linear(1, u"A*B"), "D-39-4");
  EXPECT_EQ(Linear(1, u"1%%2"), "D-39-5");
  EXPECT_EQ(Linear(1, u"1%2%"), "");
  EXPECT_EQ(Linear(1, u""), "D-39-6");
  EXPECT_EQ(Linear(1, u"/Z*%%"), "D-39-2 D-39-3 D-39-4 D-39-5");
  EXPECT_EQ(Linear(1, u"abc"), "") << "a refused text makes no symbol";
}

TEST(Departures, OfCode128) {
  EXPECT_EQ(Linear(5, u"12345"), "D-128-1");
  EXPECT_EQ(Linear(5, u"1234A"), "D-128-1");
  EXPECT_EQ(Linear(5, u"1234AB"), "");
  EXPECT_EQ(Linear(5, u"A12345B"), "D-128-1");
  EXPECT_EQ(Linear(5, u"123"), "");
  EXPECT_EQ(Linear(6, u"A\x7F"), "D-128-2");
  EXPECT_EQ(Linear(6, u"a\x7F"), "");
  EXPECT_EQ(Linear(7, std::u16string(79, u'A')), "");
  EXPECT_EQ(Linear(7, std::u16string(80, u'A')), "D-128-3");
  EXPECT_EQ(Linear(6, std::u16string(78, u'A') + u"a"), "D-128-3 D-128-4");
  EXPECT_EQ(Linear(8, std::u16string(158, u'1')), "");
  EXPECT_EQ(Linear(8, std::u16string(156, u'1') + u"A"), "D-128-4");
  EXPECT_EQ(Linear(8, std::u16string(160, u'1')), "D-128-3");
}

TEST(Departures, OfTheOtherLinearTypes) {
  EXPECT_EQ(Linear(21, u""), "D-25-2");
  EXPECT_EQ(Linear(21, u"123"), "");
  EXPECT_EQ(Linear(2, u"A$"), "D-93-1");
  EXPECT_EQ(Linear(22, u"A\x80"), "D-93-2");
  EXPECT_EQ(Linear(22,
                   u"\x80"
                   u"A"),
            "D-93-3");
  EXPECT_EQ(Linear(22,
                   u"\x80"
                   u"A\x81"),
            "D-93-2 D-93-3");
  EXPECT_EQ(Linear(2, u""), "D-93-4");
  EXPECT_EQ(Linear(4, u""), "D-MSI-1");
  EXPECT_EQ(Linear(0, u"A123B"), "");
  EXPECT_EQ(Linear(0, u"123"), "D-CB-1");
  EXPECT_EQ(Linear(0, u"A123"), "D-CB-2");
  EXPECT_EQ(Linear(0, u"*"), "D-CB-2");
  EXPECT_EQ(Linear(0, u"1"), "D-CB-1");
  EXPECT_EQ(Linear(0, u"AB"), "D-CB-3");
  EXPECT_EQ(Linear(11, u"123456789"), "");
  EXPECT_EQ(Linear(11, u"1234567890"), "D-11-1");
  EXPECT_EQ(Linear(11, u"12345678901"), "");
  EXPECT_EQ(Linear(11, u""), "D-11-2");
}

TEST(Departures, OfEanAndUpc) {
  EXPECT_EQ(Linear(3, u"950110153100"), "");
  EXPECT_EQ(Linear(13, u"0360002914512"), "D-EAN-1");
  EXPECT_EQ(Linear(15, u"97713845240112"), "");
  EXPECT_EQ(Linear(17, u"963850712"), "D-EAN-2");
  EXPECT_EQ(Linear(10, u"0425261"), "");
  EXPECT_EQ(Linear(10, u"1425261"), "D-EAN-3");
  EXPECT_EQ(Linear(10, u"0122453"), "D-EAN-4");
  EXPECT_EQ(Linear(10, u"0123453"), "");
  EXPECT_EQ(Linear(10, u"0123044"), "D-EAN-4");
  EXPECT_EQ(Linear(10, u"0123405"), "D-EAN-4");
  EXPECT_EQ(Linear(20, u"152345652495"), "D-EAN-1 D-EAN-3");
}

TEST(Departures, OfDataMatrix) {
  EXPECT_EQ(Matrix(u"123456"), "");
  EXPECT_EQ(Matrix(u"12", 0x9090), "D-DM-1");
  EXPECT_EQ(Matrix(u"A"), "D-DM-2");
  EXPECT_EQ(Matrix(u"\x81"), "D-DM-2 D-DM-3");
  EXPECT_EQ(Matrix(u"\x80"), "D-DM-2 D-DM-4");
  EXPECT_EQ(Matrix(u"12", 0, 1), "");
  EXPECT_EQ(Matrix(u"ABCDEFGHI", 0, 1), "D-DM-2 D-DM-6 D-DM-8");
  EXPECT_EQ(Matrix(u"\x0400"
                   u"12",
                   0, 1),
            "D-DM-6");
  EXPECT_EQ(Matrix(u"12AIMAIMAI"), "D-DM-2");  // 8 codewords, by the book
  EXPECT_EQ(Matrix(u"11AIMAIMAIMAaa"), "D-DM-2 D-DM-8");
  EXPECT_EQ(Matrix(u"11AIMAIMAIMAaa", 0x1212), "D-DM-2");
  EXPECT_EQ(Matrix(u"Serial Date type type MADE"), "D-DM-2");
  EXPECT_EQ(Matrix(u"A*B1C>D1E*F1G>H1a"), "D-DM-2 D-DM-7");
  EXPECT_EQ(Matrix(u"AIMAIMAIMAIM", 0x0820), "D-DM-2 D-DM-8");
  EXPECT_EQ(Matrix(u"AIMAIMAIMA"), "D-DM-2");  // no unlatch, as published
  EXPECT_EQ(Matrix(u"Rectangle 12 x 36", 0x0C24).find("D-DM-2"), 0u);
}

}  // namespace preview
