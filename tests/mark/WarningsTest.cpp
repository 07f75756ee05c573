// Each warning has a sentence and a mark that it is about, and no mark has one too many.
#include <gtest/gtest.h>

#include <string>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

std::uint32_t WarningsOf(const BarhatchJob& job) { return Mark(job)->warnings; }

// The warnings with the sentence of the first: "2 fewer than 6 digits ...".
std::string Said(const BarhatchJob& job) {
  const Mark mark(job);
  EXPECT_TRUE(mark.IsOk()) << mark.Message();
  return std::to_string(mark->warnings) + " " + mark.Message();
}

BarhatchJob WithQuiet(BarhatchJob job, double quiet, std::int32_t invert = 0) {
  job.quiet = quiet;
  job.invert = invert;
  return job;
}

}  // namespace

TEST(Warnings, PlainMarksHaveNone) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    const Mark mark(PlainJobOf(symbology));
    const bool isRead = mark->reading != nullptr;
    EXPECT_EQ(mark->warnings, isRead ? 0u : 128u) << symbology;
    EXPECT_EQ(mark.Message().empty(), isRead) << symbology;
  }
}

TEST(Warnings, LeadingZeroOfInterleaved2of5) {
  EXPECT_EQ(Said(PublishedJobOf(21, "1234567")),
            "1 a 0 was added in front: Interleaved 2 of 5 writes pairs of digits");
  EXPECT_EQ(Said(PublishedJobOf(21, "12345678")), "0 ");
}

TEST(Warnings, FewDigitsOfInterleaved2of5) {
  EXPECT_EQ(Said(PublishedJobOf(21, "1234")),
            "2 fewer than 6 digits of Interleaved 2 of 5: readers may not accept them");
  EXPECT_EQ(Said(PublishedJobOf(21, "123456")), "0 ");
  EXPECT_EQ(WarningsOf(PublishedJobOf(21, "12345")), BARHATCH_W_LEADING_ZERO);
  EXPECT_EQ(WarningsOf(PublishedJobOf(21, "123")), 3u);
}

TEST(Warnings, CharactersThatDesignateAnEci) {
  BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, "12\xD0\x80");
  const Mark mark(job);
  EXPECT_NE(mark->warnings & BARHATCH_W_ECI, 0u);
  EXPECT_EQ(mark.Message(), "a character above 255 is no data here: it designates an ECI");
  EXPECT_EQ(WarningsOf(JobOf(BARHATCH_DATA_MATRIX, "12\xC3\xBF")) & BARHATCH_W_ECI, 0u);
}

TEST(Warnings, QuietZoneBelowTheStandards) {
  const char* const sentence = "16 the quiet zone is smaller than the standard's";
  EXPECT_EQ(Said(WithQuiet(PublishedJobOf(1, "A1"), 9.0)), sentence);
  EXPECT_EQ(Said(WithQuiet(PublishedJobOf(1, "A1"), 9.5)), "0 ");
  EXPECT_EQ(Said(WithQuiet(PublishedJobOf(1, "A1"), -1.0)), sentence);
  EXPECT_EQ(WarningsOf(WithQuiet(PublishedJobOf(3, "950110153100"), 10.0)), 16u) << "left 11";
  EXPECT_EQ(WarningsOf(WithQuiet(PublishedJobOf(3, "950110153100"), 11.0)), 0u);
  EXPECT_EQ(WarningsOf(WithQuiet(PublishedJobOf(10, "0425261"), 8.0)), 16u) << "left 9, right 7";
}

TEST(Warnings, QuietZoneOfAMatrix) {
  const std::uint32_t quiet = BARHATCH_W_QUIET_ZONE | BARHATCH_W_INVERTED;
  EXPECT_EQ(WarningsOf(WithQuiet(PlainJobOf(100), -1.0)) & quiet, BARHATCH_W_QUIET_ZONE);
  EXPECT_EQ(WarningsOf(WithQuiet(PlainJobOf(100), 0.5)) & quiet, 0u);
  EXPECT_EQ(WarningsOf(WithQuiet(PlainJobOf(100), -1.0, 1)) & quiet, BARHATCH_W_INVERTED);
  EXPECT_EQ(WarningsOf(WithQuiet(PlainJobOf(100), 0.0, 1)) & quiet, 0u);
}

TEST(Warnings, InvertedWithoutAQuietZone) {
  EXPECT_EQ(Said(WithQuiet(PublishedJobOf(1, "A1"), -1.0, 1)),
            "32 the light elements are marked, but no quiet zone around them");
  EXPECT_EQ(WarningsOf(WithQuiet(PublishedJobOf(1, "A1"), 0.0, 1)), 0u);
}

TEST(Warnings, InvertedWithASmallQuietZoneIsASmallQuietZone) {
  EXPECT_EQ(WarningsOf(WithQuiet(PublishedJobOf(1, "A1"), 5.0, 1)), BARHATCH_W_QUIET_ZONE);
}

TEST(Warnings, LowByteOfAUnit) {
  const Mark mark(JobOf(BARHATCH_CODE_39, "A\xC5\x81"));  // U+0141, low byte 'A'
  EXPECT_EQ(mark->warnings, BARHATCH_W_LOW_BYTE | BARHATCH_W_UNREADABLE);
  EXPECT_EQ(mark.Message(),
            "of a character above 255 the device writes the low byte alone; one that is 0 ends the "
            "text");
  const BarhatchJob below = JobOf(BARHATCH_CODE_93_FULL, "A\xC3\xBF");  // U+00FF
  EXPECT_EQ(WarningsOf(below), BARHATCH_W_UNREADABLE);
}

TEST(Warnings, UnreadableSymbols) {
  EXPECT_EQ(Said(JobOf(BARHATCH_CODE_39, "HELLO")),
            "128 a standard reader reads something else than the text, or nothing");
  EXPECT_EQ(WarningsOf(JobOf(BARHATCH_CODE_39, "A/1")), BARHATCH_W_UNREADABLE);
  EXPECT_EQ(WarningsOf(PublishedJobOf(BARHATCH_CODE_39, "HELLO/%%")), 0u);
}

TEST(Warnings, GapWiderThanTheNarrowestElement) {
  BarhatchJob job = PublishedJobOf(BARHATCH_CODE_39, "A1");
  job.pattern = BARHATCH_VERTICAL_LINES;
  job.gap = 1.5;
  EXPECT_EQ(Said(job),
            "256 the gap is wide for the narrowest element: strokes may miss it or lie beside it");
  job.gap = 1.0;
  EXPECT_EQ(WarningsOf(job), 0u);
  job.gap = 1.5;
  for (const std::int32_t pattern : {BARHATCH_ALTERNATING_VERTICAL, BARHATCH_SPIRAL}) {
    job.pattern = pattern;
    EXPECT_EQ(WarningsOf(job), BARHATCH_W_GAP) << pattern;
  }
  for (const std::int32_t pattern : {BARHATCH_SCAN_LINES, BARHATCH_ALTERNATING_HORIZONTAL}) {
    job.pattern = pattern;
    EXPECT_EQ(WarningsOf(job), 0u) << "horizontal strokes go through all bars, " << pattern;
  }
  job.pattern = BARHATCH_SPIRAL;
  job.gap = 0.5;
  EXPECT_EQ(WarningsOf(job), 0u);
  job.gap = 0.6;
  EXPECT_EQ(WarningsOf(job), BARHATCH_W_GAP) << "a spiral leaves what is narrower than two gaps";
  job.pattern = BARHATCH_VERTICAL_LINES;
  job.gap = 1.5;
  job.want = BARHATCH_WANT_MODULES;
  EXPECT_EQ(WarningsOf(job), 0u) << "no strokes are wanted";
}

TEST(Warnings, GapWiderThanAModuleOfAMatrixByAnyLines) {
  BarhatchJob job = PlainJobOf(BARHATCH_DATA_MATRIX);
  job.gap = 1.5;
  for (const std::int32_t pattern : {0, 1, 2, 3, 5}) {
    job.pattern = pattern;
    EXPECT_NE(WarningsOf(job) & BARHATCH_W_GAP, 0u) << pattern;
  }
  job.pattern = BARHATCH_POINTS;
  EXPECT_EQ(WarningsOf(job) & BARHATCH_W_GAP, 0u);
}

TEST(Warnings, PointsAreNoBars) {
  BarhatchJob job = PublishedJobOf(BARHATCH_CODE_39, "A1");
  job.pattern = BARHATCH_POINTS;
  EXPECT_EQ(WarningsOf(job), BARHATCH_W_UNREADABLE);
}

TEST(Warnings, WideElementsAsNarrowAsOthersAreNotToldFromThem) {
  BarhatchJob job = PublishedJobOf(BARHATCH_CODE_39, "A1");
  job.ratio = 1.0;
  EXPECT_EQ(WarningsOf(job), BARHATCH_W_UNREADABLE);
  job.ratio = 2.0;
  EXPECT_EQ(WarningsOf(job), 0u);
  job = PublishedJobOf(BARHATCH_CODE_93, "A1");  // single modules
  job.ratio = 1.0;
  EXPECT_EQ(WarningsOf(job), 0u);
}

TEST(Warnings, HalvesOfACharacterDesignateWhatNobodyMeant) {
  const Mark mark(JobOf(BARHATCH_DATA_MATRIX, "a\xF0\x9F\x98\x80"));
  EXPECT_EQ(mark->warnings, BARHATCH_W_ECI | BARHATCH_W_UNREADABLE);
}

TEST(Warnings, HalvesAreFrom0xD800To0xDFFF) {
  for (const int code : {0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000}) {
    const auto unit = static_cast<char16_t>(code);
    BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, nullptr);
    job.input = BARHATCH_UNITS;
    job.text = &unit;
    job.length = 1;
    const bool isHalf = unit != 0xD7FF && unit != 0xE000;
    EXPECT_EQ(WarningsOf(job), isHalf ? BARHATCH_W_ECI | BARHATCH_W_UNREADABLE : BARHATCH_W_ECI)
        << code;
  }
}

TEST(Warnings, AddUpAndTheGravestIsSaid) {
  BarhatchJob job = WithQuiet(PublishedJobOf(21, "123"), 5.0);
  job.pattern = BARHATCH_VERTICAL_LINES;
  job.gap = 1.5;
  EXPECT_EQ(Said(job),
            "275 the gap is wide for the narrowest element: strokes may miss it or lie beside it");
}

}  // namespace barhatch::test
