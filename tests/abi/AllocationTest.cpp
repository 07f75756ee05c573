// Memory at the boundary: with the n-th allocation failing for every n, each export gives null or
// the complete result, leaks nothing and the next call works; what is released is released in the
// form it was allocated in. Runs against the shared library, as a host does.
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <string>
#include <vector>

#include "barhatch.h"
#include "support/AllocationProbe.h"
#include "support/FaultedCalls.h"
#include "support/Text16.h"

namespace barhatch {
namespace {

using test::AllocationProbe;
using test::ExpectRobust;
using test::TakeFill;
using test::TakeString;
using test::Text16;
using test::Widen;

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
  ExpectRobust([] { return TakeString(GenerateBarcodeString()); });
}

TEST_F(Allocation, FailuresOfHatchBarcodeStringAreNullInEveryPattern) {
  for (int pattern : {0, 1, 2, 3, 5, 6}) {
    SetHatchPattern(0.01, pattern);
    ExpectRobust([] { return TakeFill(HatchBarcodeString("AaBbAaBaAbA")); });
  }
}

TEST_F(Allocation, FailuresOfGenerateVectorizedBarcodeAreNull) {
  ExpectRobust([] { return TakeFill(GenerateVectorizedBarcode()); });
}

TEST_F(Allocation, FailuresOfGenerateLinearBarcodeAreNull) {
  LinearBarcodeInfo info{};
  info.height = 1.0;
  info.width = 3.0;
  info.type = 1;
  info.DataString = text_.c_str();
  info.LineGap = 0.01;
  info.PrintRatio = 3.0;
  ExpectRobust([&] { return TakeFill(GenerateLinearBarcode(&info)); });
}

TEST_F(Allocation, FailuresOfGenerateDataMatrixBarcodeAreNullInEveryPattern) {
  for (int pattern : {0, 1, 2, 3, 5, 6}) {
    const DataMatrixBarcodeInfo info = MatrixRecord(pattern);
    ExpectRobust([&] { return TakeFill(GenerateDataMatrixBarcode(&info)); });
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

// The last two allocations are the coordinates and the record of the fill.
TEST_F(Allocation, AMatrixFillThatGetsNoMemoryEndsBeforeItsFirstStroke) {
  for (int pattern : {1, 2, 3, 5}) {
    DataMatrixBarcodeInfo info = MatrixRecord(pattern);
    std::size_t coordinates = 0;
    {
      AllocationProbe probe;
      FreeBarcodeData(GenerateDataMatrixBarcode(&info));
      coordinates = probe.Allocations() - 1;
    }
    info.height = 2e7;  // 100 million strokes and more
    info.LineGap = 1.0;
    const auto start = std::chrono::steady_clock::now();
    FillBufferInfo* fill = nullptr;
    {
      AllocationProbe probe(coordinates);
      fill = GenerateDataMatrixBarcode(&info);
    }
    EXPECT_EQ(fill, nullptr) << pattern;
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(100)) << pattern;
  }
}

TEST_F(Allocation, FailuresOfTestStructAreNull) {
  ExpectRobust([] { return TakeFill(TestStruct()); });
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

TEST_F(Allocation, AReleasedGridTakesItsModulesWithIt) {
  for (const auto release : {Free2DBarcodeStringResult, FreePdf417BarcodeStringResult}) {
    AllocationProbe probe;
    release(new TwoDStringResult{2, 2, new char[4]});
    EXPECT_EQ(probe.LiveBlocks(), 0u);
  }
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

// What hosts have always been given, type by type, however short the text.
struct UsualString {
  std::int32_t type;
  const char* text;
  std::size_t bytes;
};

constexpr UsualString kUsualStrings[] = {
    {0, "1", 24936},                   // Codabar
    {1, "1", 31170},                   // Code 39
    {2, "1", 31170},                   // Code 93
    {3, "123456789012", 28053},        // EAN-13
    {4, "1", 37424},                   // MSI
    {5, "1", 40521},                   // Code 128, four policies
    {6, "1", 40521},                   //
    {7, "1", 40521},                   //
    {8, "1", 40521},                   //
    {9, "12345678901", 18722},         // UPC-A
    {10, "0123456", 21839},            // UPC-E
    {11, "1", 24936},                  // Code 11
    {12, "1234567", 28053},            // EAN-8
    {13, "1234567890112", 21839},      // UPC-A, add-on of two digits
    {14, "1234567890112345", 21859},   // of five
    {15, "12345678901212", 28093},     // EAN-13
    {16, "12345678901212345", 28093},  //
    {17, "123456712", 28073},          // EAN-8
    {18, "123456712345", 28093},       //
    {19, "012345612", 21839},          // UPC-E
    {20, "012345612345", 21859},       //
    {21, "1", 24936},                  // Interleaved 2 of 5
    {22, "1", 31170},                  // Code 93, full ASCII
};

// The bytes of the module string of the current settings, and its letters with the NUL.
struct StringSize {
  std::size_t allocated;
  std::size_t used;
};

StringSize SizeOfString(std::int32_t type, const Text16& text) {
  SetBarcodeType(type);
  SetDataString(text.c_str());
  AllocationProbe probe;
  char* const letters = GenerateBarcodeString();
  if (letters == nullptr) return {0, 0};
  const StringSize size = {probe.LiveBytes(), std::strlen(letters) + 1};
  delete[] letters;
  return size;
}

// Quiet zones can be asked for in a record alone.
void AskForQuietZone(const Text16& text) {
  LinearBarcodeInfo info{};
  info.height = 1.0;
  info.width = 3.0;
  info.type = 1;
  info.DataString = text.c_str();
  info.HatchingType = 6;
  info.PrintRatio = 3.0;
  info.QuietZone = 1;
  FreeBarcodeData(GenerateLinearBarcode(&info));
}

TEST_F(Allocation, AShortModuleStringTakesTheUsualBytesOfItsType) {
  std::int32_t type = 0;
  for (const UsualString& usual : kUsualStrings) {
    ASSERT_EQ(usual.type, type++);
    const StringSize size = SizeOfString(usual.type, Widen(usual.text));
    EXPECT_EQ(size.allocated, usual.bytes) << "type " << usual.type;
    EXPECT_LT(size.used, usual.bytes) << "type " << usual.type;
  }
  EXPECT_EQ(type, 23);
}

TEST_F(Allocation, AModuleStringBeyondTheUsualBytesTakesItsLettersAndTheNul) {
  AskForQuietZone(text_);
  const struct {
    std::int32_t type;
    std::string text;
    std::size_t bytes;
  } longest[] = {
      // quiet zones, letters of the characters, NUL
      {0, std::string(3116, '1'), 20 + 8 * 3116 - 1 + 1},
      {1, std::string(3114, '1'), 20 + 10 * 3116 - 1 + 1},
      {4, std::string(3119, '1'), 20 + 3 + 12 * 3120 + 4 + 1},
      {22, std::string(3119, 'a'), 20 + 9 * (2 * 3119 + 4) + 1 + 1},
  };
  for (const auto& row : longest) {
    const StringSize size = SizeOfString(row.type, Widen(row.text));
    EXPECT_EQ(size.allocated, row.bytes) << "type " << row.type;
    EXPECT_EQ(size.used, row.bytes) << "type " << row.type;
  }
}

}  // namespace
}  // namespace barhatch
