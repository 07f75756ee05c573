// The records themselves: sizes, bytes of later versions, what is null, what is cleared.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

// A job as a host with a later header has it: so many bytes more behind it.
std::vector<unsigned char> LaterRecord(std::size_t more) {
  const BarhatchJob job = PublishedJobOf(BARHATCH_CODE_39, "A1");
  std::vector<unsigned char> bytes(sizeof job + more, 0);
  std::memcpy(bytes.data(), &job, sizeof job);
  const auto size = static_cast<std::uint32_t>(bytes.size());
  std::memcpy(bytes.data(), &size, sizeof size);
  return bytes;
}

std::string StatusOf(const std::vector<unsigned char>& record) {
  alignas(BarhatchJob) unsigned char room[sizeof(BarhatchJob) + 64];
  std::memcpy(room, record.data(), record.size());
  BarhatchResult result = {};
  result.size = sizeof result;
  BarhatchMark(static_cast<const BarhatchJob*>(static_cast<const void*>(room)), &result);
  BarhatchRelease(&result);
  return std::to_string(result.status) + " " + result.message;
}

std::string StatusOfSize(std::uint32_t size) {
  BarhatchJob job = PublishedJobOf(BARHATCH_CODE_39, "A1");
  job.size = size;
  const Mark mark(job);
  return std::to_string(mark->status) + " " + mark.Message();
}

// A refusal without a place: status, sentence and names, and zeros.
BarhatchResult RefusedResult(const Mark& mark, std::int32_t status) {
  BarhatchResult result = {};
  result.size = sizeof result;
  result.status = status;
  std::memcpy(result.message, mark->message, sizeof result.message);
  result.name = mark->name;
  result.accepts = mark->accepts;
  return result;
}

constexpr char kUnknown[] =
    "1 the record has bytes that this library does not know: its header is newer";

}  // namespace

TEST(MarkRecords, OfAnEarlierVersionAreNone) {
  const std::string known = std::to_string(sizeof(BarhatchJob));
  EXPECT_EQ(StatusOfSize(96), "1 the record is 96 bytes, this library knows " + known);
  EXPECT_EQ(StatusOfSize(0), "1 the record is 0 bytes, this library knows " + known);
  EXPECT_EQ(StatusOfSize(sizeof(BarhatchJob) - 1).substr(0, 2), "1 ");
  EXPECT_EQ(StatusOfSize(sizeof(BarhatchJob)), "0 ");
}

TEST(MarkRecords, OfALaterVersionAreTakenWhereItsFieldsAreZero) {
  EXPECT_EQ(StatusOf(LaterRecord(1)), "0 ");
  EXPECT_EQ(StatusOf(LaterRecord(64)), "0 ");
}

TEST(MarkRecords, OfALaterVersionAreRefusedWhereItsFieldsAreSet) {
  for (const std::size_t at : {0u, 7u, 63u}) {
    std::vector<unsigned char> record = LaterRecord(64);
    record[sizeof(BarhatchJob) + at] = 1;
    EXPECT_EQ(StatusOf(record), kUnknown) << at;
  }
}

TEST(MarkRecords, OfALaterVersionAreTakenUpTo64KiB) {
  std::vector<unsigned char> record = LaterRecord(65536 - sizeof(BarhatchJob));
  BarhatchResult result = {};
  result.size = sizeof result;
  const void* const job = record.data();
  EXPECT_EQ(BarhatchMark(static_cast<const BarhatchJob*>(job), &result), BARHATCH_OK);
  BarhatchRelease(&result);
  record.back() = 1;
  EXPECT_EQ(BarhatchMark(static_cast<const BarhatchJob*>(job), &result), BARHATCH_BAD_RECORD);
}

// A size that a host forgot to set: nothing is read behind the record that is there.
TEST(MarkRecords, WithASizeThatIsNoneAreNotReadToItsEnd) {
  for (const std::uint32_t size : {65537u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(StatusOfSize(size), "1 the size of the record is not set") << size;
  }
}

TEST(MarkRecords, NullIsNoJob) {
  BarhatchResult result = {};
  result.size = sizeof result;
  EXPECT_EQ(BarhatchMark(nullptr, &result), BARHATCH_BAD_RECORD);
  EXPECT_EQ(result.status, BARHATCH_BAD_RECORD);
  EXPECT_STREQ(result.message, "the job is null");
  EXPECT_EQ(result.name, nullptr);
}

TEST(MarkRecords, NullIsNoResult) {
  const BarhatchJob job = PlainJobOf(BARHATCH_CODE_39);
  EXPECT_EQ(BarhatchMark(&job, nullptr), BARHATCH_BAD_RECORD);
  EXPECT_EQ(BarhatchMark(nullptr, nullptr), BARHATCH_BAD_RECORD);
}

TEST(MarkRecords, AResultThatIsTooSmallGetsItsStatusAlone) {
  const BarhatchJob job = PlainJobOf(BARHATCH_CODE_39);
  BarhatchResult result;
  std::memset(&result, 0x5A, sizeof result);
  for (const std::uint32_t size : {0u, 8u, static_cast<std::uint32_t>(sizeof result - 1)}) {
    result.size = size;
    BarhatchResult before = result;
    before.status = BARHATCH_BAD_RECORD;
    EXPECT_EQ(BarhatchMark(&job, &result), BARHATCH_BAD_RECORD);
    EXPECT_EQ(std::memcmp(&result, &before, sizeof result), 0);
  }
}

TEST(MarkRecords, OfALaterResultKeepTheirSizeAndWhatIsBehind) {
  const BarhatchJob job = PlainJobOf(BARHATCH_CODE_39);
  struct LaterResult {
    BarhatchResult known;
    unsigned char more[32];
  } later;
  std::memset(&later, 0x5A, sizeof later);
  later.known.size = sizeof later;
  EXPECT_EQ(BarhatchMark(&job, &later.known), BARHATCH_OK);
  EXPECT_EQ(later.known.size, sizeof later);
  for (const unsigned char byte : later.more) EXPECT_EQ(byte, 0x5A);
  BarhatchRelease(&later.known);
}

// The results of the tests are full of 0x5A beforehand.
TEST(MarkRecords, OfARefusedMarkHaveNothingFromBefore) {
  const Mark mark(PublishedJobOf(BARHATCH_CODE_39, "a"));
  BarhatchResult expected = RefusedResult(mark, BARHATCH_BAD_CHARACTER);
  expected.position = 1;
  expected.extent = 1;
  EXPECT_EQ(std::memcmp(&mark.Result(), &expected, sizeof expected), 0);
}

TEST(MarkRecords, OfAMarkRefusedAtItsStrokesHaveNothingOfTheSymbol) {
  BarhatchJob job = PublishedJobOf(BARHATCH_INTERLEAVED_2_OF_5, "123");
  job.gap = 1e-12;
  const Mark linear(job);
  BarhatchResult expected = RefusedResult(linear, BARHATCH_BAD_GEOMETRY);
  EXPECT_EQ(std::memcmp(&linear.Result(), &expected, sizeof expected), 0);
  job = JobOf(BARHATCH_DATA_MATRIX, "123");
  job.gap = 1e-12;
  const Mark matrix(job);
  expected = RefusedResult(matrix, BARHATCH_BAD_GEOMETRY);
  EXPECT_EQ(std::memcmp(&matrix.Result(), &expected, sizeof expected), 0);
}

TEST(MarkRecords, ReturnTheStatusOfTheResult) {
  EXPECT_EQ(Mark(PlainJobOf(BARHATCH_CODE_39)).Returned(), BARHATCH_OK);
  EXPECT_EQ(Mark(PublishedJobOf(BARHATCH_CODE_39, "a")).Returned(), BARHATCH_BAD_CHARACTER);
}

TEST(MarkRecords, OfJobsAreNotWritten) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    const BarhatchJob job = PlainJobOf(symbology);
    BarhatchJob copy;
    std::memcpy(&copy, &job, sizeof job);
    EXPECT_TRUE(Mark(job).IsOk());
    EXPECT_EQ(std::memcmp(&copy, &job, sizeof job), 0);
  }
}

TEST(MarkRecords, VersionIsThatOfTheHeader) { EXPECT_STREQ(BarhatchVersion(), BARHATCH_VERSION); }

}  // namespace barhatch::test
