// The door: jobs by value, refusals with their reason, memory of the caller.
#include "datamatrix/DataMatrix.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace barhatch {
namespace {

// Counts what it gives; refuses from the allocation with the given number on.
struct CountingMemory {
  int given = 0;
  int live = 0;
  int failing = -1;  // from 0; -1 for never

  Memory AsMemory() {
    return {[](void* context, std::size_t bytes) -> void* {
              CountingMemory& self = *static_cast<CountingMemory*>(context);
              if (self.given++ == self.failing) return nullptr;
              ++self.live;
              return std::malloc(bytes);
            },
            [](void* context, void* block) {
              --static_cast<CountingMemory*>(context)->live;
              std::free(block);
            },
            this};
  }
};

MatrixJob JobOf(const std::u16string& text) {
  MatrixJob job{};
  job.text = {text.data(), text.size()};
  job.quietModules = kNoQuietZone;
  job.size = {0, 0, 1};
  return job;
}

class DataMatrixDoor : public testing::Test {
 protected:
  ~DataMatrixDoor() override { RuntimeMemory().Release(symbol_.letters); }

  Refusal Encode(const MatrixJob& job) {
    return EncodeDataMatrix(job, how_, RuntimeMemory(), symbol_);
  }

  Conformance how_ = Conformance::Device();
  MatrixSymbol symbol_;
};

// ISO/IEC 16022: "123456" as 10 x 10.
TEST_F(DataMatrixDoor, SymbolTellsItsCodewordsAndSize) {
  const std::u16string text = u"123456";
  ASSERT_FALSE(Encode(JobOf(text)).IsRefused());
  EXPECT_EQ(symbol_.rows, 10);
  EXPECT_EQ(symbol_.columns, 10);
  EXPECT_EQ(symbol_.quietModules, 0);
  EXPECT_EQ(std::string(symbol_.letters).substr(0, 20), "AaAaAaAaAaAAaaAaAAaA");
  EXPECT_EQ(symbol_.size.dataCodewords, 3);
  EXPECT_EQ(symbol_.codewords.Count(), 3);
  const int expected[] = {142, 164, 186, 114, 25, 5, 88, 102};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(symbol_.codewords[i], expected[i]) << i;
}

TEST_F(DataMatrixDoor, PadsDoNotCount) {
  const std::u16string text = u"12";
  ASSERT_FALSE(Encode(JobOf(text)).IsRefused());
  EXPECT_EQ(symbol_.codewords.Count(), 1);
  EXPECT_EQ(symbol_.codewords[1], 129);
}

TEST_F(DataMatrixDoor, TextNeedsNoZeroBehindIt) {
  const std::u16string text = u"123456";
  MatrixJob job = JobOf(text);
  job.text.length = 2;
  ASSERT_FALSE(Encode(job).IsRefused());
  EXPECT_EQ(symbol_.codewords.Count(), 1);
}

TEST_F(DataMatrixDoor, ZeroIsACharacter) {
  const std::u16string text(1, u'\0');
  ASSERT_FALSE(Encode(JobOf(text)).IsRefused());
  EXPECT_EQ(symbol_.codewords[0], 1);
}

TEST_F(DataMatrixDoor, BordersOfEveryKind) {
  const std::u16string text = u"12";
  struct {
    std::int32_t requested;
    int modules;
  } const borders[] = {{kNoQuietZone, 0}, {-7, 0}, {kStandardQuietZone, 1}, {1, 1}, {2, 2},
                       {40, 40}};
  for (const auto& border : borders) {
    MatrixJob job = JobOf(text);
    job.quietModules = border.requested;
    MatrixSymbol symbol;
    ASSERT_FALSE(EncodeDataMatrix(job, how_, RuntimeMemory(), symbol).IsRefused());
    EXPECT_EQ(symbol.quietModules, border.modules);
    EXPECT_EQ(symbol.rows, 10 + 2 * border.modules);
    EXPECT_EQ(symbol.columns, 10 + 2 * border.modules);
    EXPECT_EQ(std::string(symbol.letters).size(),
              static_cast<std::size_t>(symbol.rows * symbol.columns));
    RuntimeMemory().Release(symbol.letters);
  }
}

TEST_F(DataMatrixDoor, BorderBeyondTheLimitIsRefused) {
  const std::u16string text = u"12";
  MatrixJob job = JobOf(text);
  job.quietModules = kMostQuietModules;
  ASSERT_FALSE(Encode(job).IsRefused());
  job.quietModules = kMostQuietModules + 1;
  MatrixSymbol symbol;
  const Refusal refusal = EncodeDataMatrix(job, how_, RuntimeMemory(), symbol);
  EXPECT_EQ(refusal.reason, Reason::kOption);
  EXPECT_EQ(refusal.figure, kMostQuietModules + 1);
}

TEST_F(DataMatrixDoor, RefusalsCarryReasonAndFigure) {
  const std::u16string long3117(3117, u'7');
  Refusal refusal = Encode(JobOf(long3117));
  EXPECT_EQ(refusal.reason, Reason::kLength);
  EXPECT_EQ(refusal.figure, 3117);

  const std::u16string controls(1559, u'\x01');
  refusal = Encode(JobOf(controls));
  EXPECT_EQ(refusal.reason, Reason::kTooManyCodewords);
  EXPECT_EQ(refusal.figure, 1559);

  const std::u16string text = u"12345678901234567890";
  MatrixJob job = JobOf(text);
  job.size = {10, 10, 0};
  MatrixSymbol symbol;
  refusal = EncodeDataMatrix(job, how_, RuntimeMemory(), symbol);
  EXPECT_EQ(refusal.reason, Reason::kNoPermissionToGrow);
  EXPECT_EQ(refusal.figure, 10);
  EXPECT_EQ(symbol.letters, nullptr);
}

TEST_F(DataMatrixDoor, RefusedSymbolHasMetNothing) {
  const std::u16string text = u"\x81\x81\x81";
  MatrixJob job = JobOf(text);
  job.size = {10, 10, 0};
  EXPECT_TRUE(Encode(job).IsRefused());
  EXPECT_EQ(how_.Met().Bits(), 0u);
}

TEST_F(DataMatrixDoor, LettersAreFromTheMemoryOfTheCaller) {
  const std::u16string text = u"12";
  CountingMemory counting;
  const Memory memory = counting.AsMemory();
  ASSERT_FALSE(EncodeDataMatrix(JobOf(text), how_, memory, symbol_).IsRefused());
  EXPECT_EQ(counting.live, 1);
  memory.Release(symbol_.letters);
  symbol_.letters = nullptr;
  EXPECT_EQ(counting.live, 0);
}

TEST_F(DataMatrixDoor, EveryFailedAllocationIsAReasonAndLeaksNothing) {
  const std::u16string text = u"\x81";
  for (int failing = 0; failing < 2; ++failing) {
    CountingMemory counting;
    counting.failing = failing;
    MatrixSymbol symbol;
    const Refusal refusal = EncodeDataMatrix(JobOf(text), how_, counting.AsMemory(), symbol);
    EXPECT_EQ(refusal.reason, Reason::kNoMemory);
    EXPECT_EQ(symbol.letters, nullptr);
    EXPECT_EQ(counting.live, 0);
    EXPECT_EQ(how_.Met().Bits(), 0u);
  }
}

}  // namespace
}  // namespace barhatch
