// What is told of a text is what the library says of it.
#include "Explanation.h"

#include <gtest/gtest.h>

#include <string>

namespace preview {

namespace {

Request RequestOf(std::int32_t symbology, const std::string& text, bool device = false) {
  Request request;
  request.job.symbology = symbology;
  request.text = text;
  request.device = device;
  return request;
}

std::string Explained(const Request& request) { return ExplanationText(MakeSymbol(request)); }

}  // namespace

TEST(Explanation, ByTheBookTellsTheReading) {
  EXPECT_EQ(Explained(RequestOf(BARHATCH_CODE_39, "XYZ/1")),
            "code39 \"XYZ/1\", by the book: accepted\n  a standard reader reads: \"XYZ/1\"\n");
  EXPECT_EQ(Explained(RequestOf(BARHATCH_UPC_A_ADDON_2, "0360002914512")),
            "upca+2 \"0360002914512\", by the book: accepted\n"
            "  a standard reader reads: \"036000291452 12\"\n");
}

TEST(Explanation, AsTheDeviceWritesItTellsTheDeviations) {
  EXPECT_EQ(Explained(RequestOf(BARHATCH_CODE_39, "A/B", true)),
            "code39 \"A/B\", as the device writes it: accepted\n"
            "  warning: a standard reader reads something else than the text, or nothing\n"
            "  D-39-2: '/' is written with the elements of '%'; a standard reader sees: '%' where "
            "'/' was given: wrong text, no error\n"
            "  a standard reader reads: \"A%B\"\n");
  const std::string unreadable = Explained(RequestOf(BARHATCH_CODE_39, "Z", true));
  EXPECT_NE(unreadable.find("\n  a standard reader reads: nothing\n"), std::string::npos);
}

TEST(Explanation, ARefusalHasStatusPlaceAndSentence) {
  EXPECT_EQ(Explained(RequestOf(BARHATCH_CODE_39, "ABc")),
            "code39 \"ABc\", by the book: refused (status 4)\n"
            "  ABc\n"
            "    ^\n"
            "  character 3 (0x63 'c') is not in Code 39: digits, A-Z, - . $ / + % and space\n");
  EXPECT_EQ(Explained(RequestOf(BARHATCH_EAN_13, "123")),
            "ean13 \"123\", by the book: refused (status 5)\n"
            "  EAN-13 takes 12 or 13 digits (and an add-on behind +), 3 given\n");
  EXPECT_EQ(Explained(RequestOf(BARHATCH_CODE_39, "")),
            "code39 \"\", by the book: refused (status 3)\n"
            "  Code 39 needs at least one character\n");
}

// Of U+0141 the device writes the low byte, A; behind two of them a small letter is the fifth byte
// and stands in the third column.
TEST(Explanation, ThePlaceIsACharacterAndNoByte) {
  const std::string refused = Explained(RequestOf(BARHATCH_CODE_39, "\u0141\u0141a", true));
  EXPECT_NE(refused.find("\n  \u0141\u0141a\n    ^\n"), std::string::npos) << refused;
  const std::string broken = Explained(RequestOf(BARHATCH_CODE_93_FULL, "\u00E9\u00E9\xFF"));
  EXPECT_NE(broken.find("\n  \u00E9\u00E9\\xFF\n    ^^^^\n"), std::string::npos) << broken;
}

TEST(Explanation, CodabarLacksItsStopBehindTheText) {
  const std::string refused = Explained(RequestOf(BARHATCH_CODABAR, "A12"));
  EXPECT_NE(refused.find("refused (status 7)\n  A12\n"), std::string::npos) << refused;
}

// The gravest warning is said: readers that refuse the mark weigh more than a 0 in front.
TEST(Explanation, WarningsAreCountedAndTheGravestIsSaid) {
  Request request = RequestOf(BARHATCH_INTERLEAVED_2_OF_5, "123");
  EXPECT_EQ(
      Explained(request),
      "itf \"123\", by the book: accepted\n"
      "  warning: fewer than 6 digits of Interleaved 2 of 5: readers may not accept them (and 1 "
      "more)\n"
      "  a standard reader reads: \"0123\"\n");
  request.text = "12345678";
  EXPECT_EQ(Explained(request).find("warning"), std::string::npos);
}

TEST(Explanation, PermitTakesWhatTheStandardLeavesOut) {
  Request request = RequestOf(BARHATCH_UPC_E, "1425261");
  EXPECT_NE(Explained(request).find("refused (status 12)"), std::string::npos);
  request.job.flags |= BARHATCH_PERMIT;
  EXPECT_NE(Explained(request).find("accepted"), std::string::npos);
}

}  // namespace preview
