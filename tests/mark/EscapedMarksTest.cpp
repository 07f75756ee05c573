// Texts with function characters and bytes by their numbers, as marks.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

BarhatchJob EscapedJob(std::int32_t symbology, const char* text) {
  BarhatchJob job = PublishedJobOf(symbology, text);
  job.input = BARHATCH_ESCAPED;
  return job;
}

std::string ValuesOf(const Mark& mark) {
  std::string values;
  for (std::size_t i = 0; i < mark->values_count; ++i) {
    values += (i == 0 ? "" : " ") + std::to_string(mark->values[i]);
  }
  return values;
}

// ISO/IEC 15417: the start counts once, each value behind it as often as its place says.
std::string WithCheck(const std::vector<int>& values) {
  int sum = values[0];
  std::string text = std::to_string(values[0]);
  for (std::size_t i = 1; i < values.size(); ++i) {
    sum += static_cast<int>(i) * values[i];
    text += " " + std::to_string(values[i]);
  }
  return text + " " + std::to_string(sum % 103);
}

}  // namespace

TEST(EscapedMarks, OfCode128HaveFunctionCharacters) {
  const Mark gs1(EscapedJob(BARHATCH_CODE_128, "^FNC112"));
  EXPECT_EQ(ValuesOf(gs1), WithCheck({105, 102, 12}));
  EXPECT_EQ(gs1.Reading(), "12") << "FNC1 in first position tells the application";
  const Mark separated(EscapedJob(BARHATCH_CODE_128, "^FNC1A^FNC1B"));
  EXPECT_EQ(ValuesOf(separated), WithCheck({104, 102, 33, 102, 34}));
  EXPECT_EQ(separated.Reading(),
            "A\x1D"
            "B");
  const Mark programming(EscapedJob(BARHATCH_CODE_128, "^FNC3a^FNC2"));
  EXPECT_EQ(ValuesOf(programming), WithCheck({104, 96, 65, 97}));
  EXPECT_EQ(programming.Reading(), "a");
  for (const Mark* mark : {&gs1, &separated, &programming}) {
    EXPECT_EQ((*mark)->warnings, 0u);
    EXPECT_TRUE(mark->IsOk());
  }
}

// ISO/IEC 15417: behind one letter or a pair of set C FNC1 says what the text is, and readers
// report ]C2 instead.
TEST(EscapedMarks, OfCode128HaveFnc1InSecondPositionThatIsNoSeparator) {
  const auto readingOf = [](std::int32_t symbology, const char* text) {
    return Mark(EscapedJob(symbology, text)).Reading();
  };
  EXPECT_EQ(readingOf(BARHATCH_CODE_128, "A^FNC1-^FNC1+"), "A-\x1D+");
  EXPECT_EQ(readingOf(BARHATCH_CODE_128, "z^FNC1^FNC1"), "z\x1D");
  EXPECT_EQ(readingOf(BARHATCH_CODE_128_C, "99^FNC112"), "9912");
  EXPECT_EQ(readingOf(BARHATCH_CODE_128, "05^FNC1^001"), "05\x01");
  EXPECT_EQ(readingOf(BARHATCH_CODE_128_B, "05^FNC1-"), "05\x1D-") << "two characters of set B";
  EXPECT_EQ(readingOf(BARHATCH_CODE_128, "9^FNC1-"), "9\x1D-");
  EXPECT_EQ(readingOf(BARHATCH_CODE_128, "-^FNC1+"), "-\x1D+");
  EXPECT_EQ(readingOf(BARHATCH_CODE_128, "AZ^FNC1-"), "AZ\x1D-");
  EXPECT_EQ(readingOf(BARHATCH_CODE_128, "A^FNC3^FNC1-"), "A\x1D-");
}

TEST(EscapedMarks, OfCode128BeginInTheSetAskedFor) {
  EXPECT_EQ(ValuesOf(Mark(EscapedJob(BARHATCH_CODE_128_C, "^FNC112"))), WithCheck({105, 102, 12}));
  EXPECT_EQ(Mark(EscapedJob(BARHATCH_CODE_128_A, "^FNC112"))->values[0], 103);
  EXPECT_EQ(Mark(EscapedJob(BARHATCH_CODE_128_B, "^FNC112"))->values[0], 104);
}

TEST(EscapedMarks, OfBytesAreThoseOfTheBytes) {
  for (const std::int32_t symbology : {BARHATCH_CODE_128, BARHATCH_CODE_93_FULL}) {
    BarhatchJob bytes = PublishedJobOf(symbology, "A\x1D^");
    bytes.input = BARHATCH_BYTES;
    const Mark plain(bytes);
    const Mark escaped(EscapedJob(symbology, "^065^029^^"));
    ASSERT_TRUE(plain.IsOk() && escaped.IsOk());
    EXPECT_EQ(ValuesOf(escaped), ValuesOf(plain));
    EXPECT_EQ(escaped.Reading(), "A\x1D^");
  }
}

// A symbol of functions alone is one, whose text is empty; one without anything is none.
TEST(EscapedMarks, OfFunctionsAloneAreRead) {
  const Mark mark(EscapedJob(BARHATCH_CODE_128, "^FNC3"));
  EXPECT_TRUE(mark.IsOk());
  EXPECT_EQ(mark.Reading(), "");
  EXPECT_EQ(mark->warnings, 0u);
}

TEST(EscapedMarks, OfTheDeviceHaveBytesAndNoFunctions) {
  BarhatchJob job = EscapedJob(BARHATCH_CODE_128, "A^066");
  job.conformance = BARHATCH_DEVICE;
  EXPECT_EQ(Mark(job).Reading(), "AB");
}

}  // namespace barhatch::test
