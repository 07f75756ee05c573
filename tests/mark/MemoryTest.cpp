// All memory of a mark comes from the job's own functions, and all of it goes back to them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "mark/MarkTesting.h"
#include "mark/RandomJobs.h"
#include "support/AllocationProbe.h"

namespace barhatch::test {
namespace {

BarhatchResult EmptyResult() {
  BarhatchResult result = {};
  result.size = sizeof result;
  return result;
}

// Every symbology with every pattern, inverted, with a quiet zone of its own.
void ForEachJob(const std::function<void(BarhatchJob&)>& visit) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    for (const std::int32_t pattern : kMarkPatterns) {
      SCOPED_TRACE("symbology " + std::to_string(symbology) + ", pattern " +
                   std::to_string(pattern));
      BarhatchJob job = PlainJobOf(symbology);
      job.pattern = pattern;
      job.invert = pattern % 2;
      job.quiet = 2.5;
      visit(job);
    }
  }
}

// True where the mark was made in spite of it.
bool MarkWithFailure(BarhatchJob job, std::size_t failAt) {
  HostMemory memory(failAt);
  BarhatchResult result = EmptyResult();
  const std::int32_t status = BarhatchMark(&memory.Serve(job), &result);
  if (status == BARHATCH_OK) {
    EXPECT_LT(memory.Allocations(), failAt);
  } else {
    EXPECT_EQ(status, BARHATCH_NO_MEMORY);
    EXPECT_STREQ(result.message, "no memory");
    EXPECT_EQ(memory.LiveBlocks(), 0u) << "allocation " << failAt;
    EXPECT_EQ(result.block, nullptr);
    EXPECT_EQ(result.strokes, nullptr);
    EXPECT_EQ(result.modules, nullptr);
  }
  BarhatchRelease(&result);
  EXPECT_EQ(memory.LiveBlocks(), 0u);
  EXPECT_EQ(memory.Strangers(), 0u);
  return status == BARHATCH_OK;
}

// A host that looks behind the end of each block when it comes back.
class GuardedMemory {
 public:
  BarhatchJob& Serve(BarhatchJob& job) {
    job.allocate = [](void* /*context*/, std::size_t bytes) -> void* {
      auto* const block = static_cast<unsigned char*>(std::malloc(kHead + bytes + kGuard));
      std::memcpy(block, &bytes, sizeof bytes);
      std::memset(block + kHead, 0x5A, bytes + kGuard);
      return block + kHead;
    };
    job.release = [](void* context, void* block) {
      auto* const begin = static_cast<unsigned char*>(block) - kHead;
      std::size_t bytes = 0;
      std::memcpy(&bytes, begin, sizeof bytes);
      const unsigned char* const guard = begin + kHead + bytes;
      const bool isWhole =
          std::all_of(guard, guard + kGuard, [](int byte) { return byte == 0x5A; });
      if (!isWhole) ++static_cast<GuardedMemory*>(context)->overwritten_;
      std::free(begin);
    };
    job.context = this;
    return job;
  }

  int Overwritten() const { return overwritten_; }

 private:
  static constexpr std::size_t kHead = 16;
  static constexpr std::size_t kGuard = 16;

  int overwritten_ = 0;
};

// A random text as units or as UTF-8, by the book or as the device has it.
BarhatchJob RandomJob(RandomJobs& random, std::int32_t symbology, const std::u16string& units) {
  const bool isDevice = random.OneIn(2);
  BarhatchJob job = JobOf(symbology, nullptr, isDevice ? BARHATCH_DEVICE : BARHATCH_PUBLISHED);
  job.input = BARHATCH_UNITS;
  job.text = units.data();
  job.length = units.size();
  job.pattern = kMarkPatterns[random.Below(6)];
  job.invert = random.OneIn(2) ? 1 : 0;
  job.flags = random.OneIn(2) ? BARHATCH_QUIET_INSIDE : 0;
  return job;
}

}  // namespace

TEST(MarkMemory, IsNotWrittenBehindTheEndOfABlock) {
  RandomJobs random(5);
  int made = 0;
  for (int round = 0; round < 6000; ++round) {
    const std::int32_t symbology = kMarkSymbologies[round % 24];
    const std::u16string text =
        symbology == BARHATCH_DATA_MATRIX ? random.MatrixText() : random.LinearText(symbology);
    BarhatchJob job = RandomJob(random, symbology, text);
    GuardedMemory memory;
    {
      const Mark mark(memory.Serve(job));
      made += mark.IsOk() ? 1 : 0;
    }
    ASSERT_EQ(memory.Overwritten(), 0) << round;
  }
  EXPECT_GT(made, 2000);
}

TEST(MarkMemory, RunsOutAtEveryAllocationAndNothingIsLost) {
  ForEachJob([](const BarhatchJob& job) {
    std::size_t failAt = 1;
    while (!MarkWithFailure(job, failAt)) ++failAt;
    EXPECT_GT(failAt, 3u);
    EXPECT_LT(failAt, 20u);
  });
}

TEST(MarkMemory, ComesFromTheHostAlone) {
  ForEachJob([](BarhatchJob& job) {
    HostMemory memory;
    memory.Serve(job);
    BarhatchResult result = EmptyResult();
    std::size_t ofTheHost = 0;
    {
      const AllocationProbe probe;
      BarhatchMark(&job, &result);
      ofTheHost = probe.Allocations();
    }
    // The host's own memory takes two of its runtime for each: the block and its entry.
    EXPECT_EQ(ofTheHost, 2 * memory.Allocations());
    EXPECT_EQ(memory.LiveBlocks(), 1u);
    BarhatchRelease(&result);
    EXPECT_EQ(memory.LiveBlocks(), 0u);
    EXPECT_EQ(memory.Strangers(), 0u);
  });
}

TEST(MarkMemory, OfTheRuntimeIsMallocAndNotOperatorNew) {
  ForEachJob([](const BarhatchJob& job) {
    BarhatchResult result = EmptyResult();
    const AllocationProbe probe;
    BarhatchMark(&job, &result);
    BarhatchRelease(&result);
    EXPECT_EQ(probe.Allocations(), 0u);
  });
}

TEST(MarkMemory, IsTheSameMarkWhereverItComesFrom) {
  ForEachJob([](BarhatchJob& job) {
    const Mark plain(job);
    HostMemory memory;
    const Mark served(memory.Serve(job));
    ASSERT_EQ(plain.Doubles(), served.Doubles());
    EXPECT_EQ(std::memcmp(plain->strokes, served->strokes, sizeof(double) * plain.Doubles()), 0);
  });
}

TEST(MarkMemory, NeedNotBeZeroForAZeroBehindTheReading) {
  ForEachJob([](BarhatchJob& job) {
    HostMemory memory;
    const Mark mark(memory.Serve(job));
    EXPECT_TRUE(mark->reading == nullptr || mark->reading[mark->reading_length] == '\0');
  });
}

// The way to give it back takes 16 bytes, and nothing has a place for a quiet zone.
TEST(MarkMemory, OfAResultIsThatOfItsPartsAlone) {
  ForEachJob([](BarhatchJob& job) {
    HostMemory memory;
    job.invert = 1;
    const Mark mark(memory.Serve(job));
    const auto modules = static_cast<std::size_t>(mark->rows * mark->columns);
    const std::size_t reading = mark->reading == nullptr ? 0 : mark->reading_length + 1;
    const std::size_t text = std::strlen(mark->deviations_met) + 1;
    const std::size_t parts = modules + mark->values_count + reading + text;
    const std::size_t most = memory.LiveBytes() - 16 - parts;
    EXPECT_GE(most, sizeof(double) * mark.Doubles());
    job.want = 63 & ~BARHATCH_WANT_STROKES;
    const Mark without(job);
    EXPECT_EQ(memory.LiveBytes(), 16 + parts + most + 16 + parts);
  });
}

TEST(MarkMemory, OfARefusedMarkIsGivenBackBeforeTheReturn) {
  for (const char* const text : {"A\xC3", "a", "", "ABC"}) {
    BarhatchJob job = PublishedJobOf(BARHATCH_EAN_13, text);
    HostMemory memory;
    BarhatchResult result = EmptyResult();
    EXPECT_NE(BarhatchMark(&memory.Serve(job), &result), BARHATCH_OK);
    EXPECT_EQ(memory.LiveBlocks(), 0u);
    EXPECT_EQ(result.block, nullptr);
  }
}

TEST(MarkMemory, OfARefusedFillIsGivenBackToo) {
  BarhatchJob job = PlainJobOf(BARHATCH_CODE_39);
  job.pattern = BARHATCH_VERTICAL_LINES;
  job.gap = 1000.0;
  job.quiet = 600.0;
  job.flags = BARHATCH_QUIET_INSIDE;
  HostMemory memory;
  BarhatchResult result = EmptyResult();
  EXPECT_EQ(BarhatchMark(&memory.Serve(job), &result), BARHATCH_NOTHING_TO_MARK);
  EXPECT_EQ(memory.LiveBlocks(), 0u);
  EXPECT_EQ(result.block, nullptr);
}

TEST(MarkMemory, OfAMarkThatIsRefusedWithItsStrokesIsGivenBackToo) {
  BarhatchJob job = PlainJobOf(BARHATCH_CODE_39);
  job.mark_speed = 1e-308;
  job.jump_speed = 1.0;
  HostMemory memory;
  BarhatchResult result = EmptyResult();
  EXPECT_EQ(BarhatchMark(&memory.Serve(job), &result), BARHATCH_BAD_GEOMETRY);
  EXPECT_EQ(memory.LiveBlocks(), 0u);
  EXPECT_EQ(result.block, nullptr);
}

TEST(MarkMemory, ReleasedTwiceIsReleasedOnce) {
  BarhatchJob job = PlainJobOf(BARHATCH_CODE_39);
  HostMemory memory;
  BarhatchResult result = EmptyResult();
  BarhatchMark(&memory.Serve(job), &result);
  const std::size_t strokes = result.strokes_count;
  BarhatchRelease(&result);
  BarhatchRelease(&result);
  EXPECT_EQ(memory.Strangers(), 0u);
  EXPECT_GT(strokes, 0u);
  EXPECT_EQ(result.strokes_count, 0u);
}

TEST(MarkMemory, ReleaseTakesNull) { BarhatchRelease(nullptr); }

TEST(MarkMemory, ReleaseClearsWhatPointedThereAndKeepsTheNumbers) {
  const BarhatchJob job = PublishedJobOf(BARHATCH_CODE_39, "HELLO");
  BarhatchResult result = EmptyResult();
  BarhatchMark(&job, &result);
  BarhatchRelease(&result);
  for (const void* pointer :
       std::vector<const void*>{result.strokes, result.modules, result.values, result.hri,
                                result.reading, result.deviations_met, result.block}) {
    EXPECT_EQ(pointer, nullptr);
  }
  EXPECT_EQ(result.values_count + result.reading_length + result.strokes_count, 0u);
  EXPECT_STREQ(result.name, "Code 39");
  EXPECT_EQ(result.columns, 69);
  EXPECT_GT(result.mark_length, 0.0);
}

TEST(MarkMemory, ASecondMarkIntoARecordNeedsTheFirstReleased) {
  BarhatchJob job = PlainJobOf(BARHATCH_CODE_39);
  HostMemory memory;
  BarhatchResult result = EmptyResult();
  for (int turn = 0; turn < 3; ++turn) {
    EXPECT_EQ(BarhatchMark(&memory.Serve(job), &result), BARHATCH_OK);
    EXPECT_EQ(memory.LiveBlocks(), 1u);
    BarhatchRelease(&result);
  }
  EXPECT_EQ(memory.LiveBlocks(), 0u);
}

// The context of the release is that of the allocation, also when the host's record is gone.
TEST(MarkMemory, GoesBackToItsOwnHost) {
  HostMemory first;
  HostMemory second;
  BarhatchResult results[2] = {EmptyResult(), EmptyResult()};
  BarhatchJob job = PlainJobOf(BARHATCH_CODE_39);
  BarhatchMark(&first.Serve(job), &results[0]);
  BarhatchMark(&second.Serve(job), &results[1]);
  std::memset(&job, 0, sizeof job);
  BarhatchRelease(&results[0]);
  EXPECT_EQ(first.LiveBlocks(), 0u);
  EXPECT_EQ(second.LiveBlocks(), 1u);
  BarhatchRelease(&results[1]);
  EXPECT_EQ(second.Strangers() + first.Strangers(), 0u);
}

// A little more than 2^29 doubles, whose bytes 32 bits cannot say.
TEST(MarkMemory, MoreStrokesThanTheHostHasRoomForAreNoMemory) {
  BarhatchJob job = PlainJobOf(BARHATCH_CODE_39);
  const Mark plain(job);
  double darkWidth = 0.0;
  for (int i = 0; i < plain->columns; ++i) {
    if (plain->modules[i] & BARHATCH_DARK)
      darkWidth += plain->modules[i] & BARHATCH_WIDE ? 3.0 : 1.0;
  }
  job.pattern = BARHATCH_ALTERNATING_VERTICAL;
  job.gap = darkWidth / (134217728.0 + 10000.0);  // four doubles each
  std::size_t mostBytes = 0;
  job.context = &mostBytes;
  job.allocate = [](void* most, std::size_t bytes) {
    auto* const mostOfAll = static_cast<std::size_t*>(most);
    if (bytes > *mostOfAll) *mostOfAll = bytes;
    return bytes > 1000000 ? nullptr : std::malloc(bytes);
  };
  job.release = [](void* /*most*/, void* block) { std::free(block); };
  EXPECT_EQ(Mark(job)->status, BARHATCH_NO_MEMORY);
  const bool canBeAskedFor = sizeof(std::size_t) > 4;
  EXPECT_EQ(mostBytes > 4000000000u, canBeAskedFor);
}

}  // namespace barhatch::test
