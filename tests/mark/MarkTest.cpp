// What the result of a mark has: modules, values, readings, deviations, names, and nothing that was
// not wanted.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

// "1010" for dark and light; wide ones as "W" and "w".
std::string ModulesOf(const Mark& mark, std::int32_t row = 0) {
  std::string modules;
  for (std::int32_t i = 0; i < mark->columns; ++i)
    modules += "01wW"[mark->modules[row * mark->columns + i]];
  return modules;
}

std::string ValuesOf(const Mark& mark) {
  std::string values;
  for (std::size_t i = 0; i < mark->values_count; ++i)
    values += (i == 0 ? "" : " ") + std::to_string(mark->values[i]);
  return values;
}

BarhatchJob Wanting(BarhatchJob job, std::int32_t want) {
  job.want = want;
  return job;
}

struct ReadingRow {
  std::int32_t symbology;
  const char* text;
  const char* reading;
  const char* values;
};

}  // namespace

TEST(Mark, HasTheModulesOfEan8) {
  const Mark mark(PublishedJobOf(BARHATCH_EAN_8, "9638507"));
  EXPECT_EQ(mark->rows, 1);
  EXPECT_EQ(mark->columns, 67);
  EXPECT_EQ(ModulesOf(mark),
            "101"
            "0001011"
            "0101111"
            "0111101"
            "0110111"
            "01010"
            "1001110"
            "1110010"
            "1000100"
            "1011100"
            "101");
}

// Start A of Codabar is 0011010, the digit 1 is 0000110; a gap between.
TEST(Mark, HasWideElementsOfCodabar) {
  EXPECT_EQ(ModulesOf(Mark(PublishedJobOf(BARHATCH_CODABAR, "A1A"))),
            "10Ww1w1"
            "0"
            "1010Ww1"
            "0"
            "10Ww1w1");
}

TEST(Mark, HasTheSameModulesWhateverQuietZoneIsDrawn) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    const BarhatchJob plain = PlainJobOf(symbology);
    const Mark mark(plain);
    for (const double quiet : {-1.0, 0.0, 7.0}) {
      BarhatchJob job = plain;
      job.quiet = quiet;
      job.invert = 1;
      job.flags = BARHATCH_QUIET_INSIDE;
      const Mark other(job);
      ASSERT_EQ(other->rows, mark->rows);
      ASSERT_EQ(other->columns, mark->columns);
      EXPECT_EQ(std::memcmp(other->modules, mark->modules,
                            static_cast<std::size_t>(mark->rows * mark->columns)),
                0)
          << symbology;
      EXPECT_EQ(other.Reading(), mark.Reading()) << symbology;
      EXPECT_EQ(ValuesOf(other), ValuesOf(mark)) << symbology;
    }
  }
}

// ISO/IEC 16022 Annex O: "123456" as 142 164 186, then 114 25 5 88 102.
TEST(Mark, HasCodewordsAndModulesOfAMatrix) {
  const Mark mark(JobOf(BARHATCH_DATA_MATRIX, "123456"));
  EXPECT_EQ(mark->rows, 10);
  EXPECT_EQ(mark->columns, 10);
  EXPECT_EQ(mark->codewords, 3);
  EXPECT_EQ(mark->capacity, 3);
  EXPECT_EQ(ValuesOf(mark), "142 164 186 114 25 5 88 102");
  EXPECT_EQ(ModulesOf(mark, 0), "1010101010");
  EXPECT_EQ(ModulesOf(mark, 9), "1111111111");
  EXPECT_EQ(mark->hri, nullptr);
}

TEST(Mark, CountsCodewordsOfTheTextAndThoseOfTheSymbol) {
  BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, "1234");
  job.rows = job.columns = 12;
  const Mark mark(job);
  EXPECT_EQ(mark->codewords, 2);
  EXPECT_EQ(mark->capacity, 5);
  EXPECT_EQ(mark->values_count, 12u);
  EXPECT_EQ(ValuesOf(mark).substr(0, 12), "142 164 129 ") << "then pads";
}

TEST(Mark, OfALinearSymbolHasNoCodewords) {
  const Mark mark(PublishedJobOf(BARHATCH_CODE_39, "A1"));
  EXPECT_EQ(mark->codewords, 0);
  EXPECT_EQ(mark->capacity, 0);
}

TEST(Mark, IsReadAsAStandardReaderReportsIt) {
  const ReadingRow rows[] = {
      {0, "A12B", "12", "16 1 2 17"},
      {1, "A1", "A1", "10 1"},
      {3, "950110153100", "9501101531000", "9 5 0 1 1 0 1 5 3 1 0 0 0"},
      {4, "1234567", "1234567", "1 2 3 4 5 6 7 4"},
      {9, "03600029145", "036000291452", "0 3 6 0 0 0 2 9 1 4 5 2"},
      {12, "9638507", "96385074", "9 6 3 8 5 0 7 4"},
      {15, "97713845240112", "9771384524017 12", "9 7 7 1 3 8 4 5 2 4 0 1 7 1 2"},
      {21, "123", "0123", "0 1 2 3"},
      {2, "A", "A", "10 10 30"},
  };
  for (const ReadingRow& row : rows) {
    const Mark mark(PublishedJobOf(row.symbology, row.text));
    EXPECT_EQ(mark.Reading(), row.reading) << row.symbology;
    EXPECT_EQ(mark->reading[mark->reading_length], '\0');
    EXPECT_EQ(mark->hri == mark->reading, row.symbology != BARHATCH_MSI);
    EXPECT_EQ(ValuesOf(mark), row.values) << row.symbology;
  }
}

TEST(Mark, OfCode128IsReadWithItsStartAndCheckCharacter) {
  const Mark mark(JobOf(BARHATCH_CODE_128_B, "A1"));
  EXPECT_EQ(mark.Reading(), "A1");
  EXPECT_EQ(ValuesOf(mark), "104 33 17 " + std::to_string((104 + 33 + 2 * 17) % 103));
}

// The letters from E on are one and the same pattern on the device.
TEST(Mark, PublishedIsReadWhereTheDevicesIsNot) {
  const Mark published(PublishedJobOf(BARHATCH_CODE_39, "HELLO"));
  EXPECT_EQ(published.Reading(), "HELLO");
  EXPECT_EQ(published->deviations, 0u);
  EXPECT_STREQ(published->deviations_met, "");
  const Mark device(JobOf(BARHATCH_CODE_39, "HELLO"));
  EXPECT_EQ(device.Reading(), "?");
  EXPECT_EQ(device->hri, nullptr);
  EXPECT_EQ(device->reading_length, 0u);
  EXPECT_EQ(device->deviations, 4u);
  EXPECT_EQ(std::string(device->deviations_met).substr(0, 8), "D-39-3: ");
}

TEST(Mark, OfAMatrixIsReadFromItsCodewords) {
  EXPECT_EQ(Mark(JobOf(BARHATCH_DATA_MATRIX, "123456")).Reading(), "123456");
  EXPECT_EQ(Mark(JobOf(BARHATCH_DATA_MATRIX, "")).Reading(), "");
  EXPECT_EQ(Mark(JobOf(BARHATCH_DATA_MATRIX, "12\xD0\x80")).Reading(), "12") << "an ECI";
  const Mark low(JobOf(BARHATCH_DATA_MATRIX, "1\xC3\xA9"));
  EXPECT_EQ(low.Reading(), "1\xE8") << "the byte one lower";
  EXPECT_EQ(low->warnings, BARHATCH_W_UNREADABLE);
}

TEST(Mark, OfAMatrixIsReadWithItsEnvelope) {
  BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, "12");
  job.envelope = 6;
  const Mark mark(job);
  EXPECT_EQ(mark.Reading(),
            "[)>\x1E"
            "06\x1D"
            "12\x1E\x04");
  EXPECT_EQ(mark->warnings, 0u);
}

TEST(Mark, OfAMatrixIsReadWithoutItsFnc1) {
  BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, "1234");
  job.flags = BARHATCH_FNC1_SECOND;
  const Mark mark(job);
  EXPECT_EQ(mark.Reading(), "1234");
  EXPECT_EQ(mark->warnings, 0u);
}

TEST(Mark, ReadsTheBeginningOfATextThatTheDeviceCuts) {
  const std::string text(100, 'A');
  const Mark mark(JobOf(BARHATCH_CODE_128_B, text.c_str()));
  EXPECT_EQ(mark.Reading(), std::string(79, 'A'));
  EXPECT_EQ(mark->warnings, BARHATCH_W_UNREADABLE);
}

TEST(Mark, HasAZeroAmongTheBytesThatAreRead) {
  const Mark mark(LongJobOf(BARHATCH_CODE_93_FULL, std::string("a\0b", 3), BARHATCH_PUBLISHED));
  EXPECT_EQ(mark.Reading(), std::string("a\0b", 3));
  EXPECT_EQ(mark->reading_length, 3u);
}

TEST(Mark, HasTheNamesOfItsSymbology) {
  const Mark mark(PublishedJobOf(BARHATCH_MSI, "12"));
  EXPECT_STREQ(mark->name, "MSI");
  EXPECT_STREQ(mark->accepts, "digits");
  const Mark refused(PublishedJobOf(BARHATCH_MSI, "x"));
  EXPECT_STREQ(refused->name, "MSI");
  EXPECT_STREQ(refused->accepts, "digits");
  BarhatchJob unknown = PublishedJobOf(BARHATCH_MSI, "12");
  unknown.symbology = 23;
  EXPECT_EQ(Mark(unknown)->name, nullptr);
  EXPECT_EQ(Mark(unknown)->accepts, nullptr);
}

TEST(Mark, WantedForNothingHasEverything) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    const Mark mark(PlainJobOf(symbology));
    EXPECT_NE(mark->strokes, nullptr) << symbology;
    EXPECT_NE(mark->modules, nullptr) << symbology;
    EXPECT_NE(mark->values, nullptr) << symbology;
    EXPECT_NE(mark->deviations_met, nullptr) << symbology;
  }
}

TEST(Mark, WantedBitByBitHasThatAlone) {
  for (const std::int32_t want : {1, 2, 4, 8, 16, 32, 2 | 16, 4 | 8, 63}) {
    for (const bool isDevice : {false, true}) {
      const Mark mark(Wanting(
          JobOf(BARHATCH_CODE_39, "A%%1", isDevice ? BARHATCH_DEVICE : BARHATCH_PUBLISHED), want));
      EXPECT_TRUE(mark.IsOk());
      EXPECT_EQ(mark->modules != nullptr, (want & 2) != 0);
      EXPECT_EQ(mark->values != nullptr, (want & 4) != 0);
      EXPECT_EQ(mark->values_count != 0, (want & 4) != 0);
      EXPECT_EQ(mark->reading != nullptr, (want & 8) != 0);
      EXPECT_EQ(mark->hri != nullptr, (want & 8) != 0);
      EXPECT_EQ(mark->reading_length != 0, (want & 8) != 0);
      EXPECT_EQ(mark->strokes != nullptr, (want & 16) != 0);
      EXPECT_EQ(mark->strokes_count != 0, (want & 16) != 0);
      EXPECT_EQ(mark->mark_length > 0.0, (want & 16) != 0);
      EXPECT_EQ(mark->deviations_met != nullptr, (want & 32) != 0);
      EXPECT_EQ(mark->deviations, isDevice ? 16u : 0u) << "the bits are always there";
      EXPECT_EQ(mark->warnings, isDevice ? 128u : 0u) << "and the warnings";
    }
  }
}

TEST(Mark, WantedInPartsIsTheWhole) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    const BarhatchJob job = PlainJobOf(symbology);
    const Mark whole(job);
    const Mark strokes(Wanting(job, BARHATCH_WANT_STROKES));
    const Mark values(Wanting(job, BARHATCH_WANT_VALUES));
    ASSERT_EQ(strokes.Doubles(), whole.Doubles());
    EXPECT_EQ(std::memcmp(strokes->strokes, whole->strokes, 8 * whole.Doubles()), 0);
    EXPECT_EQ(ValuesOf(values), ValuesOf(whole));
    EXPECT_EQ(values->columns, whole->columns);
  }
}

TEST(Mark, OfUnitsBytesAndUtf8IsTheSame) {
  const std::u16string units = u"A\u0081\u00FF";
  BarhatchJob job = PlainJobOf(BARHATCH_DATA_MATRIX);
  job.input = BARHATCH_UNITS;
  job.text = units.c_str();
  const Mark ofUnits(job);
  job.input = BARHATCH_BYTES;
  job.text = "A\x81\xFF";
  const Mark ofBytes(job);
  job.input = BARHATCH_UTF8;
  job.text = "A\xC2\x81\xC3\xBF";
  const Mark ofUtf8(job);
  EXPECT_EQ(ValuesOf(ofUnits), ValuesOf(ofBytes));
  EXPECT_EQ(ValuesOf(ofUnits), ValuesOf(ofUtf8));
}

TEST(Mark, OfAMatrixBeginsWithItsHeader) {
  BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, "12");
  EXPECT_EQ(ValuesOf(Mark(job)).substr(0, 4), "142 ");
  job.envelope = 5;
  EXPECT_EQ(ValuesOf(Mark(job)).substr(0, 8), "236 142 ");
  job.envelope = 6;
  EXPECT_EQ(ValuesOf(Mark(job)).substr(0, 8), "237 142 ");
  job.envelope = 0;
  job.flags = BARHATCH_FNC1_SECOND;
  EXPECT_EQ(ValuesOf(Mark(job)).substr(0, 8), "142 232 ");
}

}  // namespace barhatch::test
