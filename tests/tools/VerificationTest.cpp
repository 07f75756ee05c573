// What a reader is expected to report, by the published examples of the symbologies, and what is
// said where it reports something else.
#include "Verification.h"

#include <gtest/gtest.h>

namespace preview {

namespace {

BarcodeText Linear(std::int32_t type, const std::u16string& units) {
  BarcodeText text;
  text.type = type;
  text.units = units;
  return text;
}

BarcodeText Matrix(const std::u16string& units, std::int32_t format) {
  BarcodeText text;
  text.kind = Kind::kDataMatrix;
  text.units = units;
  text.format = format;
  return text;
}

Reading ReadingOf(const std::string& text) { return {"reader", "Format", text, text}; }

}  // namespace

TEST(Verification, ExpectsWhatTheSymbolCarries) {
  EXPECT_EQ(ExpectedReading(Linear(1, u"ABC-123")), "ABC-123");
  EXPECT_EQ(ExpectedReading(Linear(0, u"A1234B")), "1234");
  EXPECT_EQ(ExpectedReading(Linear(21, u"123")), "0123");
  EXPECT_EQ(ExpectedReading(Linear(3, u"950110153100")), "9501101531000");
  EXPECT_EQ(ExpectedReading(Linear(9, u"03600029145")), "036000291452");
  EXPECT_EQ(ExpectedReading(Linear(12, u"9638507")), "96385074");
  EXPECT_EQ(ExpectedReading(Linear(10, u"0425261")), "04252614");
  EXPECT_EQ(ExpectedReading(Linear(15, u"97713845240112")), "9771384524017 12");
  EXPECT_EQ(ExpectedReading(Linear(16, u"97808777993054321")), "9780877799306 54321");
  EXPECT_EQ(ExpectedReading(Linear(19, u"042526112")), "04252614 12");
}

// The UPC-A numbers are written out by hand from the rule for each last digit; their check digits
// by the weights 3 and 1.
TEST(Verification, ExpectsTheCheckDigitOfTheUpcANumber) {
  EXPECT_EQ(ExpectedReading(Linear(10, u"0123450")), "01234505");  // 0 12000 00345
  EXPECT_EQ(ExpectedReading(Linear(10, u"0123453")), "01234531");  // 0 12300 00045
  EXPECT_EQ(ExpectedReading(Linear(10, u"0123454")), "01234543");  // 0 12340 00005
  EXPECT_EQ(ExpectedReading(Linear(10, u"0123457")), "01234572");  // 0 12345 00007
}

TEST(Verification, ExpectsTheHeaderOfAMacro) {
  EXPECT_EQ(ExpectedReading(Matrix(u"A", 0)), "A");
  EXPECT_EQ(ExpectedReading(Matrix(u"A", 2)),
            "[)>\x1E"
            "05\x1D"
            "A\x1E\x04");
  EXPECT_EQ(ExpectedReading(Matrix(u"A", 3)),
            "[)>\x1E"
            "06\x1D"
            "A\x1E\x04");
  EXPECT_EQ(ExpectedReading(Matrix(u"A\x0400"
                                   u"B",
                                   0)),
            "AB")
      << "a designator is no data";
}

TEST(Verification, NamesTheDepartureThatExplainsADifference) {
  EXPECT_TRUE(Judge(Linear(1, u"A1"), ReadingOf("A1")).isRead);
  EXPECT_EQ(Judge(Linear(1, u"A1"), ReadingOf("A1")).sentence, "reader reads Format \"A1\"");
  const Verdict wrong = Judge(Linear(1, u"A/1"), ReadingOf("A%1"));
  EXPECT_FALSE(wrong.isRead);
  EXPECT_EQ(wrong.sentence,
            "reader reads Format \"A%1\" instead of \"A/1\": D-39-2, '/' is written with the "
            "elements of '%'");
  EXPECT_EQ(Judge(Linear(1, u"A1"), ReadingOf("A2")).sentence,
            "reader reads Format \"A2\" instead of \"A1\"");
  EXPECT_EQ(Judge(Linear(2, u"A$"), std::nullopt).sentence,
            "the reader finds no symbol in the picture")
      << "a departure that readers do not notice is no reason";
}

TEST(Verification, TakesEan13WithALeadingZeroAsUpcA) {
  EXPECT_TRUE(Judge(Linear(3, u"003600029145"), ReadingOf("036000291452")).isRead);
  EXPECT_TRUE(Judge(Linear(3, u"003600029145"), ReadingOf("0036000291452")).isRead);
  EXPECT_FALSE(Judge(Linear(12, u"0123456"), ReadingOf("1234565")).isRead)
      << "EAN-8 has no other name";
}

TEST(Verification, TakesFnc1AndBytesAsTheReaderTellsThem) {
  EXPECT_TRUE(Judge(Matrix(u"12A", 1), ReadingOf("12\x1D"
                                                 "A"))
                  .isRead);
  EXPECT_TRUE(Judge(Matrix(u"12A", 1), ReadingOf("12A")).isRead);
  EXPECT_FALSE(Judge(Matrix(u"12A", 0), ReadingOf("12\x1D"
                                                  "A"))
                   .isRead);
  EXPECT_TRUE(Judge(Matrix(u"\x00E4", 0), Reading{"r", "f", "\xC3\xA4", ""}).isRead);
  EXPECT_TRUE(Judge(Matrix(u"\x00E4", 0), Reading{"r", "f", "?", "\xE4"}).isRead);
}

}  // namespace preview
