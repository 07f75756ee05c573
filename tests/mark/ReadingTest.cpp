#include "mark/Reading.h"

#include <gtest/gtest.h>

#include <string>

#include "barhatch_mark.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {
namespace {

bool IsLinear(std::int32_t symbology, const std::string& text, const std::string& reading) {
  return IsReadingOfLinear(RowOf(symbology)->reading, {text.data(), text.size()},
                           {reading.data(), reading.size()});
}

bool IsMatrix(const std::u16string& text, const std::string& reading,
              Header header = Header::kNone) {
  return IsReadingOfMatrix({text.data(), text.size()}, header, {reading.data(), reading.size()});
}

const std::string kHead05 =
    "[)>\x1E"
    "05\x1D";
const std::string kHead06 =
    "[)>\x1E"
    "06\x1D";
const std::string kTrailer = "\x1E\x04";

}  // namespace

TEST(Reading, IsTheTextItselfOfMostSymbologies) {
  for (const std::int32_t symbology : {1, 2, 4, 5, 6, 7, 8, 11, 22}) {
    EXPECT_TRUE(IsLinear(symbology, "1234", "1234")) << symbology;
    EXPECT_FALSE(IsLinear(symbology, "1234", "1235")) << symbology;
    EXPECT_FALSE(IsLinear(symbology, "1234", "123")) << symbology;
    EXPECT_FALSE(IsLinear(symbology, "1234", "12345")) << symbology;
    EXPECT_FALSE(IsLinear(symbology, "1234", "")) << symbology;
  }
}

TEST(Reading, ComparesBeyondAZero) {
  EXPECT_TRUE(IsLinear(BARHATCH_CODE_93_FULL, std::string("a\0b", 3), std::string("a\0b", 3)));
  EXPECT_FALSE(IsLinear(BARHATCH_CODE_93_FULL, std::string("a\0b", 3), std::string("a\0c", 3)));
}

TEST(Reading, LeavesOutStartAndStopOfCodabar) {
  EXPECT_TRUE(IsLinear(BARHATCH_CODABAR, "A12B", "12"));
  EXPECT_FALSE(IsLinear(BARHATCH_CODABAR, "A12B", "A12B"));
  EXPECT_TRUE(IsLinear(BARHATCH_CODABAR, "AB", ""));
  EXPECT_FALSE(IsLinear(BARHATCH_CODABAR, "A", ""));
  EXPECT_FALSE(IsLinear(BARHATCH_CODABAR, "", ""));
}

TEST(Reading, HasTheLeadingZeroOfInterleaved2of5) {
  EXPECT_TRUE(IsLinear(BARHATCH_INTERLEAVED_2_OF_5, "1234", "1234"));
  EXPECT_TRUE(IsLinear(BARHATCH_INTERLEAVED_2_OF_5, "123", "0123"));
  EXPECT_FALSE(IsLinear(BARHATCH_INTERLEAVED_2_OF_5, "123", "123"));
  EXPECT_FALSE(IsLinear(BARHATCH_INTERLEAVED_2_OF_5, "123", "1123"));
  EXPECT_FALSE(IsLinear(BARHATCH_INTERLEAVED_2_OF_5, "123", "0124"));
  EXPECT_FALSE(IsLinear(BARHATCH_INTERLEAVED_2_OF_5, "1234", "01234"));
  EXPECT_TRUE(IsLinear(BARHATCH_INTERLEAVED_2_OF_5, "", ""));
}

TEST(Reading, HasTheCheckDigitOfEanAndUpc) {
  EXPECT_TRUE(IsLinear(BARHATCH_EAN_13, "950110153100", "9501101531000"));
  EXPECT_FALSE(IsLinear(BARHATCH_EAN_13, "950110153100", "950110153100"));
  EXPECT_FALSE(IsLinear(BARHATCH_EAN_13, "950110153100", "9501101531010"));
  EXPECT_TRUE(IsLinear(BARHATCH_UPC_A, "03600029145", "036000291452"));
  EXPECT_TRUE(IsLinear(BARHATCH_UPC_E, "0425261", "04252614"));
  EXPECT_TRUE(IsLinear(BARHATCH_EAN_8, "9638507", "96385074"));
  EXPECT_FALSE(IsLinear(BARHATCH_EAN_8, "9638507", "9638507"));
}

TEST(Reading, HasASpaceInFrontOfAnAddon) {
  EXPECT_TRUE(IsLinear(BARHATCH_EAN_8_ADDON_2, "963850712", "96385074 12"));
  EXPECT_TRUE(IsLinear(BARHATCH_UPC_A_ADDON_5, "0360002914552495", "036000291452 52495"));
  EXPECT_FALSE(IsLinear(BARHATCH_EAN_8_ADDON_2, "963850712", "96385074"));
  EXPECT_FALSE(IsLinear(BARHATCH_EAN_8_ADDON_2, "963850712", "96385074-12"));
  EXPECT_FALSE(IsLinear(BARHATCH_EAN_8_ADDON_2, "963850712", "96385074 13"));
  EXPECT_FALSE(IsLinear(BARHATCH_EAN_8_ADDON_2, "963850712", "96385174 12"));
}

TEST(Reading, OfAMatrixIsItsBytes) {
  EXPECT_TRUE(IsMatrix(u"", ""));
  EXPECT_TRUE(IsMatrix(u"A1\u00E9", "A1\xE9"));
  EXPECT_FALSE(IsMatrix(u"A1", "A"));
  EXPECT_FALSE(IsMatrix(u"A", "A1"));
  EXPECT_FALSE(IsMatrix(u"A", "B"));
}

TEST(Reading, OfAMatrixLeavesOutDesignators) {
  EXPECT_TRUE(IsMatrix(u"A\u01A3B\u0400", "AB"));
  EXPECT_TRUE(IsMatrix(u"\u01A3", ""));
  EXPECT_TRUE(IsMatrix(u"\u00FF\u0100", "\xFF"));
}

TEST(Reading, OfAMatrixWritesOutItsEnvelope) {
  EXPECT_TRUE(IsMatrix(u"A1", kHead05 + "A1" + kTrailer, Header::kMacro05));
  EXPECT_TRUE(IsMatrix(u"", kHead06 + kTrailer, Header::kMacro06));
  EXPECT_FALSE(IsMatrix(u"A1", kHead06 + "A1" + kTrailer, Header::kMacro05));
  EXPECT_FALSE(IsMatrix(u"A1", kHead05 + "A1" + kTrailer, Header::kMacro06));
  EXPECT_FALSE(IsMatrix(u"A1", kHead05 + "A1", Header::kMacro05));
  EXPECT_FALSE(IsMatrix(u"A1", kHead05 + "A1\x1E", Header::kMacro05));
  EXPECT_FALSE(IsMatrix(u"A1", kHead05 + "A1" + kTrailer + "x", Header::kMacro05));
  EXPECT_FALSE(IsMatrix(u"A1", kHead05 + "A1" + kTrailer));
  EXPECT_FALSE(IsMatrix(u"A1", "A1", Header::kMacro05));
  EXPECT_FALSE(IsMatrix(u"A1", "A1" + kTrailer, Header::kMacro05));
}

// Behind the first letter or the first two digits, or not reported at all.
TEST(Reading, OfAMatrixMayReportFnc1AsASeparator) {
  EXPECT_TRUE(IsMatrix(u"A1",
                       "A\x1D"
                       "1",
                       Header::kFnc1Second));
  EXPECT_TRUE(IsMatrix(u"A1", "A1", Header::kFnc1Second));
  EXPECT_TRUE(IsMatrix(u"123",
                       "12\x1D"
                       "3",
                       Header::kFnc1Second));
  EXPECT_TRUE(IsMatrix(u"12", "12\x1D", Header::kFnc1Second));
  EXPECT_FALSE(IsMatrix(u"A1",
                        "\x1D"
                        "A1",
                        Header::kFnc1Second));
  EXPECT_FALSE(IsMatrix(u"1234",
                        "123\x1D"
                        "4",
                        Header::kFnc1Second));
  EXPECT_FALSE(IsMatrix(u"A1",
                        "A\x1D\x1D"
                        "1",
                        Header::kFnc1Second));
  EXPECT_FALSE(IsMatrix(u"A1",
                        "A\x1D"
                        "1"));
  EXPECT_FALSE(IsMatrix(u"12", "12\x1D"));
}

TEST(Reading, OfAMatrixKeepsTheSeparatorsOfTheText) {
  EXPECT_TRUE(
      IsMatrix(u"A\x1D"
               u"1",
               "A\x1D"
               "1",
               Header::kFnc1Second));
  EXPECT_TRUE(
      IsMatrix(u"A\x1D"
               u"1",
               "A\x1D\x1D"
               "1",
               Header::kFnc1Second));
  EXPECT_FALSE(
      IsMatrix(u"A\x1D"
               u"1",
               "A1", Header::kFnc1Second));
}

}  // namespace barhatch
