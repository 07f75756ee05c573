// Memory at the boundary: with the n-th allocation failing for every n, each export gives null or
// the complete result, leaks nothing and the next call works; what is released is released in the
// form it was allocated in. Runs against the shared library, as a host does.
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "barhatch.h"
#include "support/AllocationProbe.h"
#include "support/Fills.h"
#include "support/Text16.h"

namespace barhatch {
namespace {

using test::AllocationProbe;
using test::Text16;
using test::Widen;

// A copy of everything a call gave, so that a result under pressure can be compared with the
// undisturbed one.
using Outcome = std::vector<double>;
constexpr std::size_t kLargestOutcome = 200000;
using Call = std::function<bool(Outcome&)>;  // false when the result was null; releases what it got

bool TakeString(char* letters, Outcome& outcome) {
  if (letters == nullptr) return false;
  outcome.assign(letters, letters + std::strlen(letters));
  delete[] letters;
  return true;
}

bool TakeFill(FillBufferInfo* fill, Outcome& outcome) {
  if (fill == nullptr) return false;
  if (fill->FilledArray != nullptr) {
    outcome.assign(fill->FilledArray, fill->FilledArray + fill->BufferLength);
  }
  FreeBarcodeData(fill);
  return true;
}

void ExpectRobust(const Call& call) {
  Outcome undisturbed, outcome;
  undisturbed.reserve(kLargestOutcome);
  outcome.reserve(kLargestOutcome);
  ASSERT_TRUE(call(undisturbed));
  std::size_t allocations = 0;
  {
    AllocationProbe probe;
    call(outcome);
    allocations = probe.Allocations();
    EXPECT_EQ(probe.LiveBlocks(), 0u);
  }
  ASSERT_GT(allocations, 0u);
  for (std::size_t n = 1; n <= allocations + 1; ++n) {
    outcome.clear();
    bool complete = false;
    {
      AllocationProbe probe(n);
      complete = call(outcome);
      EXPECT_EQ(probe.LiveBlocks(), 0u) << "leak when allocation " << n << " fails";
    }
    EXPECT_EQ(complete, n > allocations) << n;
    if (complete) {
      EXPECT_EQ(outcome, undisturbed) << n;
    }
    EXPECT_TRUE(call(outcome)) << "after allocation " << n << " failed";
    EXPECT_EQ(outcome, undisturbed) << n;
  }
}

class Allocation : public testing::Test {
 protected:
  Allocation() : text_(Widen("ABC-123")) {
    InitBarcode();
    SetBarcodeType(1);
    SetDataString(text_.c_str());
    SetHatchPattern(0.01, 0);
  }
  ~Allocation() override { InitBarcode(); }

  DataMatrixBarcodeInfo MatrixRecord(int pattern) const {
    DataMatrixBarcodeInfo info{};
    info.height = 1.0;
    info.DataString = text_.c_str();
    info.HatchingType = pattern;
    info.LineGap = 0.02;
    info.IsExpanding = 1;
    return info;
  }

  Text16 text_;
};

TEST_F(Allocation, FailuresOfGenerateBarcodeStringAreNull) {
  ExpectRobust([](Outcome& outcome) { return TakeString(GenerateBarcodeString(), outcome); });
}

TEST_F(Allocation, FailuresOfHatchBarcodeStringAreNullInEveryPattern) {
  for (int pattern : {0, 1, 2, 3, 5, 6}) {
    SetHatchPattern(0.01, pattern);
    ExpectRobust(
        [](Outcome& outcome) { return TakeFill(HatchBarcodeString("AaBbAaBaAbA"), outcome); });
  }
}

TEST_F(Allocation, FailuresOfGenerateVectorizedBarcodeAreNull) {
  ExpectRobust([](Outcome& outcome) { return TakeFill(GenerateVectorizedBarcode(), outcome); });
}

TEST_F(Allocation, FailuresOfGenerateLinearBarcodeAreNull) {
  LinearBarcodeInfo info{};
  info.height = 1.0;
  info.width = 3.0;
  info.type = 1;
  info.DataString = text_.c_str();
  info.LineGap = 0.01;
  info.PrintRatio = 3.0;
  ExpectRobust([&](Outcome& outcome) { return TakeFill(GenerateLinearBarcode(&info), outcome); });
}

TEST_F(Allocation, FailuresOfGenerateDataMatrixBarcodeAreNullInEveryPattern) {
  for (int pattern : {0, 1, 2, 3, 5, 6}) {
    const DataMatrixBarcodeInfo info = MatrixRecord(pattern);
    ExpectRobust(
        [&](Outcome& outcome) { return TakeFill(GenerateDataMatrixBarcode(&info), outcome); });
  }
}

TEST_F(Allocation, ADataMatrixTakesFourAllocationsForItsResultAndAtMostThreeMore) {
  for (int length : {1, 50, 1500}) {
    const Text16 text = Widen(std::string(static_cast<std::size_t>(length), 'a'));
    DataMatrixBarcodeInfo info = MatrixRecord(0);
    info.DataString = text.c_str();
    AllocationProbe probe;
    FillBufferInfo* fill = GenerateDataMatrixBarcode(&info);
    EXPECT_NE(fill, nullptr);
    EXPECT_LE(probe.Allocations(), 4u + 3u);
    FreeBarcodeData(fill);
    EXPECT_EQ(probe.LiveBlocks(), 0u);
  }
}

TEST_F(Allocation, AFillThatGetsNoMemoryEndsBeforeItsFirstStroke) {
  SetBarcodeSize(2e8, 2e8);  // 200 million strokes and more: a second to walk through, or several
  for (int pattern : {0, 1, 2, 3, 5}) {
    SetHatchPattern(1.0, pattern);
    const auto start = std::chrono::steady_clock::now();
    FillBufferInfo* fill = nullptr;
    std::size_t allocations = 0;
    {
      AllocationProbe probe(2);  // the rectangles are there, the coordinates are not
      fill = HatchBarcodeString("A");
      allocations = probe.Allocations();
    }
    EXPECT_EQ(fill, nullptr) << pattern;
    EXPECT_LE(allocations, 2u) << pattern;
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(100)) << pattern;
  }
}

TEST_F(Allocation, FailuresOfTestStructAreNull) {
  ExpectRobust([](Outcome& outcome) { return TakeFill(TestStruct(), outcome); });
}

TEST_F(Allocation, RefusedCallsAllocateNothingThatStays) {
  const Text16 lower = Widen("abc");
  SetDataString(lower.c_str());
  AllocationProbe probe;
  EXPECT_EQ(GenerateBarcodeString(), nullptr);
  EXPECT_EQ(GenerateVectorizedBarcode(), nullptr);
  EXPECT_EQ(HatchBarcodeString(""), nullptr);
  EXPECT_EQ(HatchBarcodeString(nullptr), nullptr);
  EXPECT_EQ(GenerateLinearBarcode(nullptr), nullptr);
  DataMatrixBarcodeInfo tooSmall = MatrixRecord(0);
  tooSmall.MatrixSize = 0x0A0A;
  tooSmall.IsExpanding = 0;
  EXPECT_EQ(GenerateDataMatrixBarcode(&tooSmall), nullptr);
  SetHatchPattern(0.0, 0);
  EXPECT_EQ(HatchBarcodeString("AaA"), nullptr);
  SetHatchPattern(1e-300, 0);
  EXPECT_EQ(HatchBarcodeString("AaA"), nullptr);
  EXPECT_EQ(probe.LiveBlocks(), 0u);
}

TEST_F(Allocation, AFillTakesThreeAllocationsAndLittleMoreThanItsOwnSize) {
  AllocationProbe probe;
  FillBufferInfo* fill = HatchBarcodeString("AaBbAaBaAbA");
  EXPECT_EQ(probe.Allocations(), 3u);  // rectangles, coordinates, record
  const std::size_t ownSize = static_cast<std::size_t>(fill->BufferLength) * sizeof(double);
  EXPECT_LE(probe.PeakBytes(), ownSize + 1024);
  FreeBarcodeData(fill);
  EXPECT_EQ(probe.LiveBlocks(), 0u);
}

}  // namespace
}  // namespace barhatch
