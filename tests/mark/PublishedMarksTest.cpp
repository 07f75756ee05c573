// A published mark is read as it was given, whatever the text: of random ones of every symbology
// that has them, and of each single character.
#include <gtest/gtest.h>

#include <string>

#include "mark/MarkTesting.h"
#include "mark/RandomJobs.h"

namespace barhatch::test {
namespace {

constexpr int kTexts = 20000;

BarhatchJob PublishedJob(std::int32_t symbology, const std::u16string& text) {
  BarhatchJob job = PublishedJobOf(symbology, nullptr);
  job.input = BARHATCH_UNITS;
  job.text = text.data();
  job.length = text.size();
  job.want = BARHATCH_WANT_READING | BARHATCH_WANT_DEVIATIONS;
  if (text.empty()) job.text = nullptr;
  return job;
}

::testing::AssertionResult IsReadAsGiven(std::int32_t symbology, const std::u16string& text,
                                         int& made) {
  const Mark mark(PublishedJob(symbology, text));
  if (!mark.IsOk()) return ::testing::AssertionSuccess();
  ++made;
  const bool isRead = mark->reading != nullptr && (mark->warnings & BARHATCH_W_UNREADABLE) == 0;
  if (isRead && mark->deviations == 0) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << mark->name << " " << testing::PrintToString(text) << " reads " << mark.Reading()
         << ", deviations " << mark->deviations_met;
}

}  // namespace

TEST(PublishedMarks, OfRandomTextsAreReadAsGiven) {
  RandomJobs random(99);
  int made = 0;
  for (int round = 0; round < kTexts; ++round) {
    const std::int32_t symbology = round % 23;
    ASSERT_TRUE(IsReadAsGiven(symbology, random.LinearText(symbology), made));
  }
  EXPECT_GT(made, kTexts / 2);
}

TEST(PublishedMarks, OfEveryCharacterAndPairAreReadAsGiven) {
  for (const std::int32_t symbology : {1, 2, 4, 5, 6, 7, 8, 11, 21, 22}) {
    int made = 0;
    for (char16_t first = 0; first < 256; ++first) {
      ASSERT_TRUE(IsReadAsGiven(symbology, std::u16string(1, first), made));
      for (const char16_t second : {u'1', u'A', u'a', u'%', u'\u0001', u'\u00E9'}) {
        ASSERT_TRUE(IsReadAsGiven(symbology, {first, second}, made));
        ASSERT_TRUE(IsReadAsGiven(symbology, {second, first, first}, made));
      }
    }
    EXPECT_GE(made, 11) << symbology;
  }
}

}  // namespace barhatch::test
