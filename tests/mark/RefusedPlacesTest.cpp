// The place that a refusal names is where the text has to change, and a refusal that names none is
// about no place.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

constexpr int kJobs = 24000;

// What a text may be made of: each symbology takes some of it, none takes all.
constexpr const char* kPieces[] = {"0",
                                   "1",
                                   "5",
                                   "9",
                                   "2",
                                   "+",
                                   "A",
                                   "B",
                                   "D",
                                   "-",
                                   "$",
                                   " ",
                                   "a",
                                   "~",
                                   "*",
                                   "\x01",
                                   "\x7F",
                                   "\xC3\xA9",
                                   "\xC5\xA1",
                                   "\xE2\x82\xAC",
                                   "\xF0\x9F\x98\x80",
                                   "\x80",
                                   "\xC3",
                                   "\xED\xA0\x80",
                                   "\xFF"};
constexpr std::size_t kPieceCount = sizeof kPieces / sizeof *kPieces;

// Mostly the first ones, so that most refusals have something in front of them.
std::string RandomText(std::mt19937& random, std::int32_t symbology) {
  static constexpr std::size_t kLengths[] = {7, 9, 11, 12, 13, 14, 16, 17, 2, 3, 5, 30};
  std::string text = symbology == BARHATCH_CODABAR && random() % 2 == 0 ? "A" : "";
  const std::size_t length = kLengths[random() % 12];
  for (std::size_t i = 0; i < length; ++i) {
    text += kPieces[random() % (random() % 8 == 0 ? kPieceCount : 5)];
  }
  if (symbology == BARHATCH_CODABAR && random() % 2 == 0) text += "B";
  return text;
}

BarhatchJob RandomJob(std::mt19937& random, std::int32_t symbology, const std::string& text) {
  const bool isDevice = random() % 4 == 0;
  BarhatchJob job = LongJobOf(symbology, text, isDevice ? BARHATCH_DEVICE : BARHATCH_PUBLISHED);
  job.input = random() % 4 == 0 ? BARHATCH_BYTES : BARHATCH_UTF8;
  job.want = BARHATCH_WANT_VALIDATION;
  return job;
}

bool HasPlace(std::int32_t status) {
  return status == BARHATCH_BAD_CHARACTER || status == BARHATCH_BAD_SYNTAX ||
         status == BARHATCH_NOT_STANDARD || status == BARHATCH_BAD_CHECK;
}

bool IsOfCharacter(const Mark& mark) {
  return mark.Message().find(" is not in ") != std::string::npos;
}

// True where one of the usual characters instead of the named ones removes the refusal. What is
// left may be another one. Characters that the symbology lacks are named from the left.
bool IsMended(BarhatchJob job, const std::string& text, const Mark& refused) {
  for (const char instead : std::string("10A23456789")) {
    std::string mended = text;
    const auto extent = static_cast<std::size_t>(refused->extent);
    mended.replace(static_cast<std::size_t>(refused->position - 1), extent,
                   extent == 6 ? "234561" : std::string(1, instead));
    job.text = mended.data();
    job.length = mended.size();
    const Mark mark(job);
    const bool isSame = mark->status == refused->status && mark->position == refused->position;
    const bool isEarlier =
        IsOfCharacter(mark) && IsOfCharacter(refused) && mark->position < refused->position;
    if (!isSame && !isEarlier) return true;
  }
  return false;
}

void CheckPlace(const BarhatchJob& job, const std::string& text, const Mark& mark) {
  ASSERT_LE(static_cast<std::size_t>(mark->position - 1 + mark->extent), text.size());
  ASSERT_GE(mark->extent, 1);
  ASSERT_TRUE(IsMended(job, text, mark))
      << mark->name << " " << testing::PrintToString(text) << ": " << mark.Message();
}

TEST(RefusedPlaces, AreWhereTheTextHasToChange) {
  std::mt19937 random(7);
  int placed = 0;
  int unplaced = 0;
  for (int round = 0; round < kJobs; ++round) {
    const std::int32_t symbology = kMarkSymbologies[round % 24];
    const std::string text = RandomText(random, symbology);
    const BarhatchJob job = RandomJob(random, symbology, text);
    const Mark mark(job);
    if (mark->position == 0) {
      EXPECT_EQ(mark->extent, 0);
      EXPECT_NE(mark->status, BARHATCH_BAD_CHARACTER);
      EXPECT_NE(mark->status, BARHATCH_BAD_SYNTAX);
      unplaced += mark.IsOk() ? 0 : 1;
      continue;
    }
    const bool isSign = text[static_cast<std::size_t>(mark->position - 1)] == '+';
    EXPECT_TRUE(HasPlace(mark->status) || (mark->status == BARHATCH_BAD_LENGTH && isSign))
        << mark->status;
    CheckPlace(job, text, mark);
    ++placed;
  }
  EXPECT_GT(placed, kJobs / 4);
  EXPECT_GT(unplaced, kJobs / 10);
}

// A multi-byte character is named from its first byte to its last.
TEST(RefusedPlaces, OfUtf8AreWholeCharacters) {
  std::mt19937 random(11);
  int wide = 0;
  for (int round = 0; round < kJobs / 4; ++round) {
    const std::string text = RandomText(random, BARHATCH_MSI);
    const Mark mark(LongJobOf(BARHATCH_MSI, text, BARHATCH_PUBLISHED));
    if (mark->position == 0) continue;
    const auto at = static_cast<std::size_t>(mark->position - 1);
    const auto first = static_cast<unsigned char>(text[at]);
    const bool isBroken = mark.Message().find("UTF-8") != std::string::npos;
    const int bytes = first < 0x80 || isBroken ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    ASSERT_EQ(mark->extent, bytes) << testing::PrintToString(text) << mark.Message();
    wide += bytes > 1 ? 1 : 0;
  }
  EXPECT_GT(wide, 100);
}

}  // namespace
}  // namespace barhatch::test
