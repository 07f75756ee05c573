// Failing allocations, arguments that make no sense and long use, for every export and inputs of
// every kind. Runs against the shared library, as a host does.
#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <string>
#include <vector>

#include "barhatch.h"
#include "support/AllocationProbe.h"
#include "support/FaultedCalls.h"
#include "support/SettingsFixture.h"
#include "support/Text16.h"

namespace barhatch {
namespace {

using test::AllocationProbe;
using test::ExpectRobust;
using test::Outcome;
using test::TakeFill;
using test::TakeString;
using test::Text16;
using test::VisibleSettings;
using test::Widen;

constexpr int kPatterns[] = {0, 1, 2, 3, 5, 6};
constexpr std::uint8_t kOffAndOn[] = {0, 1};

// A text of each type, in the order of the types.
constexpr const char* kLinearTexts[] = {
    "A12:3B",         "ABCD-123",          "ABCD-123",     "950110153100",  "1234567",
    "Lot 123456-A",   "LOT 123456-A",      "Lot 123456-A", "12345678",      "01234567890",
    "0123456",        "123-45678",         "9501234",      "0123456789012", "0123456789051234",
    "97713845240112", "97807798773054321", "950123412",    "950123454321",  "012345612",
    "012345654321",   "12345678",          "Lot 123-a"};
constexpr std::int32_t kTypes = sizeof kLinearTexts / sizeof *kLinearTexts;
static_assert(kTypes == 23);

LinearBarcodeInfo LinearRecord(std::int32_t type, const Text16& text) {
  LinearBarcodeInfo info{};
  info.height = 2.0;
  info.width = 30.0;
  info.type = type;
  info.DataString = text.c_str();
  info.LineGap = 0.3;
  info.PrintRatio = 2.5;
  return info;
}

// Texts for each encodation and changes between them, with designators, short and longest; and a
// size for each policy.
struct MatrixCase {
  Text16 text;
  std::int32_t format;
  std::int32_t size;
  std::uint8_t isExpanding;
  bool isRefused;
};

std::vector<MatrixCase> MatrixCases() {
  const Text16 digits = Widen("123456");
  Text16 designators = Widen("AB");
  designators += static_cast<BarhatchChar>(256 + 26);
  designators += Widen("cd");
  return {{digits, 0, 0x0A0A, 0, false},                                // ASCII, exact
          {digits, 1, 0, 1, false},                                     // smallest square
          {Widen("1"), 0, 0x0A0A, 1, false},                            // shortest
          {Widen("ABCDEFGHIJ KLMNOPQRST"), 2, 0x0A0A, 1, false},        // C40, grows
          {Widen("abcdefghij klmnopqrst"), 3, 0x2020, 0, false},        // Text, larger
          {Widen("ABC*DEF>GHI\rJKL*MNO>"), 0, 0x0C24, 1, false},        // X12, rectangle
          {Widen("?@[\\]^?@[\\]^?@[\\]^"), 0, 0x1030, 0, false},        // EDIFACT
          {Widen("\x80\x9F\xE4\xFF\x80\x9F\xE4\xFF"), 0, 0, 1, false},  // upper shift
          {Widen("12ABCDEFabcdef*>\r*>\r?@[]^?!"), 0, 0, 2, false},     // changes
          {designators, 0, 0, 1, false},                                // ECI
          {Widen(std::string(50, '7') + std::string(30, 'q')), 0, 0x0812, 1, false},  // to a square
          {Widen(std::string(3116, '7')), 0, 0, 1, false},                            // 144 x 144
          {Widen(std::string(1500, 'Q')), 0, 0x9090, 0, false},                       //
          {Widen(std::string(40, 'x')), 0, 0x0A0A, 0, true},                          // no room
          {Widen(std::string(3116, 'x')), 0, 0, 1, true},  // too long for all
          {digits, 0, 0x0B0B, 0, true}};                   // no such size
}

DataMatrixBarcodeInfo MatrixRecord(MatrixCase&&) = delete;  // the record points into the case
DataMatrixBarcodeInfo MatrixRecord(const MatrixCase& matrix) {
  DataMatrixBarcodeInfo info{};
  info.height = 12.0;
  info.format = matrix.format;
  info.DataString = matrix.text.c_str();
  info.LineGap = 0.4;
  info.MatrixSize = matrix.size;
  info.IsExpanding = matrix.isExpanding;
  return info;
}

// The sweeps below are worth something only if the probe refuses what it is asked to refuse.
TEST(ProbeOfTheFaults, RefusesOneAllocationOrThatAndAllLaterOnes) {
  const struct {
    std::size_t failAt;
    test::Shortage shortage;
    bool given[4];
  } rows[] = {{0, test::Shortage::kFromThereOn, {true, true, true, true}},
              {0, test::Shortage::kThatOneOnly, {true, true, true, true}},
              {2, test::Shortage::kFromThereOn, {true, false, false, false}},
              {2, test::Shortage::kThatOneOnly, {true, false, true, true}},
              {4, test::Shortage::kThatOneOnly, {true, true, true, false}}};
  for (const auto& row : rows) {
    const AllocationProbe probe(row.failAt, row.shortage);
    for (const bool given : row.given) {
      char* const memory = new (std::nothrow) char[8];
      EXPECT_EQ(memory != nullptr, given);
      delete[] memory;
    }
    EXPECT_EQ(probe.Allocations(), 4u);
  }
}

using Faults = test::SettingsFixture;

// The encoder and its string; rectangles, coordinates and the record.
constexpr std::size_t kAllocationsOfAString = 2;
constexpr std::size_t kAllocationsOfAFill = 3;

TEST_F(Faults, EveryTypeAndPatternStandsAnyFailedAllocation) {
  for (std::int32_t type = 0; type < kTypes; ++type) {
    const Text16 text = Widen(kLinearTexts[type]);
    LinearBarcodeInfo info = LinearRecord(type, text);
    for (const int pattern : kPatterns) {
      for (const std::uint8_t flag : kOffAndOn) {
        SCOPED_TRACE(testing::Message() << "type " << type << " pattern " << pattern);
        info.HatchingType = pattern;
        info.QuietZone = flag;
        info.InvertImage = flag;
        EXPECT_GE(ExpectRobust([&] { return TakeFill(GenerateLinearBarcode(&info)); }),
                  kAllocationsOfAString + kAllocationsOfAFill);
      }
    }
    EXPECT_GE(ExpectRobust([] { return TakeString(GenerateBarcodeString()); }),
              kAllocationsOfAString);
    EXPECT_GE(ExpectRobust([] { return TakeFill(GenerateVectorizedBarcode()); }),
              kAllocationsOfAString + kAllocationsOfAFill);
  }
}

TEST_F(Faults, EveryModeAndSizeOfADataMatrixStandsAnyFailedAllocation) {
  for (const MatrixCase& matrix : MatrixCases()) {
    SCOPED_TRACE(testing::Message() << matrix.text.size() << " units, size " << matrix.size);
    DataMatrixBarcodeInfo info = MatrixRecord(matrix);
    const bool isLarge = matrix.text.size() > 1000;
    for (const int pattern : kPatterns) {
      if (isLarge && pattern != 6) continue;
      for (const std::uint8_t flag : kOffAndOn) {
        info.HatchingType = pattern;
        info.QuietZone = flag;
        info.InvertImage = flag;
        EXPECT_EQ(TakeFill(GenerateDataMatrixBarcode(&info)).isNull, matrix.isRefused);
        EXPECT_GE(ExpectRobust([&] { return TakeFill(GenerateDataMatrixBarcode(&info)); }),
                  matrix.isRefused ? 1u : 4u);
      }
    }
  }
}

TEST_F(Faults, SettersWorkWithoutAnyMemory) {
  const Text16 text = Widen("12345678");
  std::size_t allocations = 1;
  {
    const AllocationProbe probe(1);
    InitBarcode();
    SetBarcodeType(21);
    SetDataString(text.c_str());
    SetModuleWidth(1.0);
    SetPrintRatio(2.0);
    SetImageInversionMode(1);
    SetHatchPattern(0.5, 6);
    SetBarcodeSize(9.0, 1.0);
    SetBarcodeHeight(4);
    SetCodeFormat(1);
    SetMatrixsize(kMatrixSize10x10);
    allocations = probe.Allocations();
  }
  EXPECT_EQ(allocations, 0u);
  EXPECT_FALSE(TakeFill(GenerateVectorizedBarcode()).isNull);
}

TEST_F(Faults, StringsOfTheHostStandAnyFailedAllocation) {
  const std::string longString(20000, 'A');
  for (const int pattern : kPatterns) {
    SetHatchPattern(0.25, pattern);
    for (const char* letters : {"A", "AaBbAxB", longString.c_str()}) {
      EXPECT_EQ(ExpectRobust([&] { return TakeFill(HatchBarcodeString(letters)); }),
                kAllocationsOfAFill);
    }
  }
}

// The settings that arguments of no sense must not have changed.
void ExpectRefusedWithoutTrace(const test::Call& call) {
  const VisibleSettings before;
  AllocationProbe probe;
  EXPECT_TRUE(call().isNull);
  EXPECT_EQ(probe.LiveBlocks(), 0u);
  EXPECT_TRUE(VisibleSettings() == before);
}

TEST_F(Faults, NullIsRefusedOrIgnoredByEveryExportThatTakesAPointer) {
  ExpectRefusedWithoutTrace([] { return TakeFill(HatchBarcodeString(nullptr)); });
  ExpectRefusedWithoutTrace([] { return TakeFill(GenerateLinearBarcode(nullptr)); });
  ExpectRefusedWithoutTrace([] { return TakeFill(GenerateDataMatrixBarcode(nullptr)); });
  LinearBarcodeInfo linear = LinearRecord(1, Text16());
  linear.DataString = nullptr;
  ExpectRefusedWithoutTrace([&] { return TakeFill(GenerateLinearBarcode(&linear)); });
  DataMatrixBarcodeInfo matrix{};
  matrix.height = 3.0;
  ExpectRefusedWithoutTrace([&] { return TakeFill(GenerateDataMatrixBarcode(&matrix)); });
  ExpectRefusedWithoutTrace([] {
    FreeBarcodeData(nullptr);
    Free2DBarcodeStringResult(nullptr);
    FreePdf417BarcodeStringResult(nullptr);
    return Outcome();
  });
  SetDataString(nullptr);
  EXPECT_EQ(GenerateBarcodeString(), nullptr);
  EXPECT_EQ(GenerateVectorizedBarcode(), nullptr);
}

TEST_F(Faults, OverlongTextIsRefusedByEveryExportThatTakesText) {
  for (const std::size_t length : {std::size_t{3120}, std::size_t{3121}, std::size_t{1000000}}) {
    const Text16 text(length, static_cast<BarhatchChar>('1'));
    const LinearBarcodeInfo linear = LinearRecord(1, text);
    ExpectRefusedWithoutTrace([&] { return TakeFill(GenerateLinearBarcode(&linear)); });
    const MatrixCase tooLong{text, 0, 0, 1, true};
    const DataMatrixBarcodeInfo matrix = MatrixRecord(tooLong);
    ExpectRefusedWithoutTrace([&] { return TakeFill(GenerateDataMatrixBarcode(&matrix)); });
    InitBarcode();
    SetDataString(text.c_str());
    EXPECT_EQ(GenerateBarcodeString(), nullptr);
    EXPECT_EQ(GenerateVectorizedBarcode(), nullptr);
    InitBarcode();
  }
  const MatrixCase shortest{Text16(3117, static_cast<BarhatchChar>('1')), 0, 0, 1, true};
  const DataMatrixBarcodeInfo matrix = MatrixRecord(shortest);
  ExpectRefusedWithoutTrace([&] { return TakeFill(GenerateDataMatrixBarcode(&matrix)); });
}

// What an empty text makes is the business of each symbology; here, that it makes it in peace.
TEST_F(Faults, EmptyTextIsNoDangerToAnyExport) {
  const Text16 empty;
  for (std::int32_t type = -1; type <= kTypes; ++type) {
    SCOPED_TRACE(type);
    const LinearBarcodeInfo info = LinearRecord(type, empty);
    ExpectRobust([&] { return TakeFill(GenerateLinearBarcode(&info)); });
    SetDataString(empty.c_str());
    ExpectRobust([] { return TakeString(GenerateBarcodeString()); });
    ExpectRobust([] { return TakeFill(GenerateVectorizedBarcode()); });
  }
  for (const std::int32_t size : {0, 0x0A0A, 0x0812}) {
    const MatrixCase matrix{empty, 0, size, 1, false};
    const DataMatrixBarcodeInfo info = MatrixRecord(matrix);
    ExpectRobust([&] { return TakeFill(GenerateDataMatrixBarcode(&info)); });
  }
  ExpectRefusedWithoutTrace([] { return TakeFill(HatchBarcodeString("")); });
}

constexpr int kSenselessBytes[] = {0xFF, 0x00, 0x80, 0x7F};

template <typename Record>
Record RecordOf(int byte) {
  Record record;
  std::memset(&record, byte, sizeof record);
  return record;
}

// The pointer cannot be senseless, and a valid type and pattern lead such a record further in.
TEST_F(Faults, RecordsOfOneByteAllOverAreNoDangerToALinearBarcode) {
  const Text16 texts[] = {Text16(), Widen("123"), Widen("012345678905")};
  for (const int byte : kSenselessBytes) {
    SCOPED_TRACE(byte);
    auto info = RecordOf<LinearBarcodeInfo>(byte);
    info.DataString = nullptr;
    ExpectRefusedWithoutTrace([&] { return TakeFill(GenerateLinearBarcode(&info)); });
    for (const Text16& text : texts) {
      info = RecordOf<LinearBarcodeInfo>(byte);
      info.DataString = text.c_str();
      ExpectRobust([&] { return TakeFill(GenerateLinearBarcode(&info)); });
      for (info.type = 0; info.type < kTypes; ++info.type) {
        for (const int pattern : kPatterns) {
          info.HatchingType = pattern;
          ExpectRobust([&] { return TakeFill(GenerateLinearBarcode(&info)); });
        }
      }
    }
  }
}

TEST_F(Faults, RecordsOfOneByteAllOverAreNoDangerToADataMatrix) {
  const Text16 texts[] = {Text16(), Widen("123"), Widen("012345678905")};
  for (const int byte : kSenselessBytes) {
    SCOPED_TRACE(byte);
    auto info = RecordOf<DataMatrixBarcodeInfo>(byte);
    info.DataString = nullptr;
    ExpectRefusedWithoutTrace([&] { return TakeFill(GenerateDataMatrixBarcode(&info)); });
    for (const Text16& text : texts) {
      for (const std::int32_t size : {info.MatrixSize, 0, 0x0C0C}) {
        info = RecordOf<DataMatrixBarcodeInfo>(byte);
        info.DataString = text.c_str();
        ExpectRobust([&] { return TakeFill(GenerateDataMatrixBarcode(&info)); });
        info.MatrixSize = size;
        for (const int pattern : kPatterns) {
          info.HatchingType = pattern;
          ExpectRobust([&] { return TakeFill(GenerateDataMatrixBarcode(&info)); });
        }
      }
    }
  }
}

TEST_F(Faults, RecordsOfOneByteAllOverAreReleased) {
  for (const int byte : kSenselessBytes) {
    AllocationProbe probe;
    for (const std::size_t doubles : {std::size_t{0}, std::size_t{8}}) {
      auto* fill = new FillBufferInfo(RecordOf<FillBufferInfo>(byte));
      fill->FilledArray = doubles == 0 ? nullptr : new double[doubles];
      FreeBarcodeData(fill);
      for (const auto release : {Free2DBarcodeStringResult, FreePdf417BarcodeStringResult}) {
        auto* grid = new TwoDStringResult(RecordOf<TwoDStringResult>(byte));
        grid->data = doubles == 0 ? nullptr : new char[doubles];
        release(grid);
      }
    }
    EXPECT_EQ(probe.Allocations(), 9u);
    EXPECT_EQ(probe.LiveBlocks(), 0u);
  }
}

constexpr int kGenerations = 10000;

// Every type by turns and every seventh a Data Matrix, with changing patterns.
Outcome Generation(int number, const std::vector<Text16>& texts,
                   const std::vector<MatrixCase>& matrices) {
  const auto n = static_cast<std::size_t>(number);
  const int pattern = kPatterns[n % 6];
  if (n % 7 == 6) {
    DataMatrixBarcodeInfo info = MatrixRecord(matrices[n % matrices.size()]);
    info.HatchingType = info.DataString[0] == '7' ? 6 : pattern;
    return TakeFill(GenerateDataMatrixBarcode(&info));
  }
  const std::size_t type = n % texts.size();
  LinearBarcodeInfo info = LinearRecord(static_cast<std::int32_t>(type), texts[type]);
  info.HatchingType = pattern;
  info.QuietZone = static_cast<std::uint8_t>(number & 1);
  return TakeFill(GenerateLinearBarcode(&info));
}

TEST_F(Faults, TenThousandGenerationsLoseNoByteAndKeepTheirResults) {
  std::vector<Text16> texts;
  for (const char* text : kLinearTexts) texts.push_back(Widen(text));
  const std::vector<MatrixCase> matrices = MatrixCases();
  constexpr int kDifferent = 2000;
  std::vector<Outcome> first(kDifferent);
  AllocationProbe probe;
  for (int i = 0; i < kGenerations; ++i) {
    const Outcome outcome = Generation(i % kDifferent, texts, matrices);
    ASSERT_EQ(probe.LiveBytes(), 0u) << "generation " << i;
    Outcome& expected = first[static_cast<std::size_t>(i % kDifferent)];
    if (i < kDifferent) expected = outcome;
    ASSERT_EQ(outcome, expected) << "generation " << i;
  }
  EXPECT_GE(probe.Allocations(), static_cast<std::size_t>(kGenerations) * 4);
}

}  // namespace
}  // namespace barhatch
