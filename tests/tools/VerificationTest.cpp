// What is said of a reader's report, held against what the library promises of the symbol.
#include "Verification.h"

#include <gtest/gtest.h>

namespace preview {

namespace {

Request RequestOf(std::int32_t symbology, const std::string& text, bool device = false) {
  Request request;
  request.job.symbology = symbology;
  request.text = text;
  request.device = device;
  return request;
}

Verdict Judged(const Request& request, const std::optional<Reading>& reading) {
  return Judge(request, ResultOf(request), reading);
}

Reading ReadingOf(const std::string& text) { return {"reader", "Format", text, text}; }

}  // namespace

TEST(Verification, AReadingThatIsPromisedAndTheTextIsRead) {
  const Verdict verdict = Judged(RequestOf(BARHATCH_CODE_39, "A1"), ReadingOf("A1"));
  EXPECT_TRUE(verdict.isRead);
  EXPECT_EQ(verdict.sentence, "reader reads Format \"A1\"");
  EXPECT_TRUE(Judged(RequestOf(BARHATCH_INTERLEAVED_2_OF_5, "123"), ReadingOf("0123")).isRead);
}

TEST(Verification, APromisedReadingThatIsNotTheTextNamesTheDeviations) {
  const Verdict verdict = Judged(RequestOf(BARHATCH_CODE_39, "A/1", true), ReadingOf("A%1"));
  EXPECT_FALSE(verdict.isRead);
  EXPECT_FALSE(verdict.isBlank);
  EXPECT_EQ(verdict.sentence,
            "reader reads Format \"A%1\", as the library says, and not \"A/1\": D-39-2");
}

TEST(Verification, AReadingThatIsNotPromisedIsTold) {
  const Verdict verdict = Judged(RequestOf(BARHATCH_CODE_39, "A1"), ReadingOf("A2"));
  EXPECT_FALSE(verdict.isRead);
  EXPECT_EQ(verdict.sentence, "reader reads Format \"A2\", but the library says \"A1\"");
  EXPECT_EQ(Judged(RequestOf(BARHATCH_CODE_39, "Z", true), ReadingOf("A2")).sentence,
            "reader reads Format \"A2\", but the library says nothing");
}

TEST(Verification, NoReadingIsBlankWhereOneIsPromised) {
  const Verdict blank = Judged(RequestOf(BARHATCH_CODE_39, "A1"), std::nullopt);
  EXPECT_TRUE(blank.isBlank);
  EXPECT_EQ(blank.sentence, "the reader finds no symbol in the picture");
  const Verdict promised = Judged(RequestOf(BARHATCH_CODE_39, "Z", true), std::nullopt);
  EXPECT_FALSE(promised.isBlank || promised.isRead);
  EXPECT_EQ(promised.sentence,
            "the reader finds no symbol in the picture, as the library says: D-39-3");
  EXPECT_EQ(Judged(RequestOf(BARHATCH_MSI, "123"), std::nullopt).sentence,
            "cannot verify, the reader does not know this symbology");
}

TEST(Verification, TakesEan13WithALeadingZeroAsUpcA) {
  const Request request = RequestOf(BARHATCH_EAN_13, "003600029145");
  const std::string digits = "036000291452";
  EXPECT_TRUE(Judged(request, Reading{"r", "UPC-A", digits, digits}).isRead);
  EXPECT_TRUE(Judged(request, ReadingOf("0" + digits)).isRead);
  EXPECT_FALSE(Judged(request, Reading{"r", "EAN-13", digits, digits}).isRead);
}

TEST(Verification, TakesFnc1AndBytesAsTheReaderTellsThem) {
  Request request = RequestOf(BARHATCH_DATA_MATRIX, "12A");
  request.job.flags |= BARHATCH_FNC1_SECOND;
  EXPECT_TRUE(Judged(request, ReadingOf("12\x1D"
                                        "A"))
                  .isRead);
  EXPECT_TRUE(Judged(request, ReadingOf("12A")).isRead);
  request.job.flags = 0;
  EXPECT_FALSE(Judged(request, ReadingOf("12\x1D"
                                         "A"))
                   .isRead);
  const Request latin = RequestOf(BARHATCH_CODE_128, "\u00E4");
  EXPECT_TRUE(Judged(latin, Reading{"r", "f", "\u00E4", ""}).isRead);
  EXPECT_TRUE(Judged(latin, Reading{"r", "f", "?", "\xE4"}).isRead);
}

}  // namespace preview
