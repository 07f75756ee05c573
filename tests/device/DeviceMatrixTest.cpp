// Data Matrix on the device: the record at its offsets, the release functions, and symbols equal to
// those of this computer to the last bit.
#include <gtest/gtest.h>

#include "device/DeviceLibrary.h"
#include "device/InstructionCounts.h"
#include "device/LinearCases.h"
#include "device/NativeLibrary.h"

namespace barhatch::device {
namespace {

constexpr int kCases = 150;
constexpr std::size_t kMostCharacters = 3116;
constexpr double kMostInstructions = 8000000.0;  // of the largest symbol there is

// Rows x 256 + columns of ISO/IEC 16022's symbol sizes, and some that do not exist.
constexpr std::int32_t kSizes[] = {
    0,      0x0A0A, 0x0C0C, 0x0E0E, 0x1010, 0x1212, 0x1414, 0x1616, 0x1818, 0x1A1A, 0x2020, 0x2424,
    0x2828, 0x2C2C, 0x3030, 0x3434, 0x4040, 0x4848, 0x5050, 0x5858, 0x6060, 0x6868, 0x7878, 0x8484,
    0x9090, 0x0812, 0x0820, 0x0C1A, 0x0C24, 0x1024, 0x1030, 0x0B0B, 0x0A0C, -1};

class DeviceMatrix : public testing::TestWithParam<Placement> {
 protected:
  void SetUp() override {
    native_.InitBarcode();
    device_.InitBarcode();
  }

  void ExpectSame(const MatrixBarcode& barcode) {
    const auto expected = native_.GenerateDataMatrixBarcode(barcode);
    EXPECT_EQ(device_.GenerateDataMatrixBarcode(barcode), expected);
    EXPECT_EQ(device_.Settings(), native_.Settings());
    EXPECT_EQ(device_.Heap().LiveBlocks(), 0u);
  }

  NativeLibrary native_;
  DeviceLibrary device_{GetParam()};
};

// Runs of one kind of character, as texts have them; the kinds are those that encodations differ
// in.
std::u16string MixedText(std::mt19937& random, std::size_t length) {
  const std::string kinds[] = {"0123456789", "ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789",
                               "abcdefghijklmnopqrstuvwxyz 0123456789",
                               "ABCDEFGHIJKLMNOPQRSTUVWXYZ\r*> 0123456789",
                               "!\"#$%&'()+,-./:;<=>?@"};
  std::u16string text;
  while (text.size() < length) {
    const auto kind = random() % 7;
    for (auto n = 1 + random() % 12; n > 0; --n) {
      const auto pick = random();
      text += static_cast<char16_t>(
          kind < 5 ? static_cast<unsigned char>(kinds[kind][pick % kinds[kind].size()])
                   : 1 + pick % 255);
    }
  }
  text.resize(length);
  return text;
}

MatrixBarcode NextCase(std::mt19937& random) {
  MatrixBarcode barcode;
  const auto scale = random() % 8;
  barcode.text = MixedText(random, random() % (scale == 0 ? 1600 : scale < 3 ? 200 : 40));
  if (random() % 10 == 0) barcode.text.insert(0, 1, static_cast<char16_t>(256 + random() % 0xFE00));
  barcode.format = static_cast<std::int32_t>(random() % 5);
  barcode.MatrixSize = kSizes[random() % 2 == 0 ? 0 : random() % (sizeof kSizes / sizeof *kSizes)];
  barcode.IsExpanding = static_cast<std::uint8_t>(random() % 4 == 0 ? 0 : 1 + random() % 255);
  barcode.height = 0.01 + static_cast<double>(random() % 100000) / 777.0;
  barcode.HatchingType = static_cast<std::int32_t>(random() % 8);
  barcode.LineGap = barcode.height / (1.0 + static_cast<double>(random() % 2000) / 7.0);
  barcode.InvertImage = static_cast<std::uint8_t>(random() % 4 == 0 ? random() % 256 : 0);
  barcode.QuietZone = static_cast<std::uint8_t>(random() % 2);
  return barcode;
}

TEST_P(DeviceMatrix, EveryFieldOfTheRecordIsReadAtItsOffset) {
  MatrixBarcode barcode;
  barcode.height = 12.5;
  barcode.format = 1;
  barcode.text = u"A1B2C3D4E5F6G7H8I9J0K1L2";
  barcode.HatchingType = 2;
  barcode.LineGap = 0.0625;
  barcode.InvertImage = 3;
  barcode.MatrixSize = 0x1414;
  barcode.IsExpanding = 4;
  barcode.QuietZone = 5;
  barcode.QuietZoneSize = 6;
  barcode.BorderWidth = 7;
  ASSERT_TRUE(native_.GenerateDataMatrixBarcode(barcode));
  ExpectSame(barcode);
}

TEST_P(DeviceMatrix, TheLongestTextIsTakenAndALongerOneChangesNoSetting) {
  MatrixBarcode barcode;
  barcode.text = std::u16string(kMostCharacters, u'7');
  barcode.HatchingType = 6;
  ASSERT_TRUE(native_.GenerateDataMatrixBarcode(barcode));
  ExpectSame(barcode);
  barcode.text += u'7';
  barcode.height = 99.0;
  ExpectSame(barcode);
  EXPECT_EQ(device_.CallGenerateDataMatrixBarcode(barcode), 0u);
}

TEST_P(DeviceMatrix, GridsGoBackThroughBothReleaseFunctions) {
  for (const char* release : {"Free2DBarcodeStringResult", "FreePdf417BarcodeStringResult"}) {
    const std::uint32_t record = device_.Heap().Allocate(12, Form::kScalar);
    const std::uint32_t data = device_.Heap().Allocate(101, Form::kArray);
    const std::uint32_t words[] = {10, 10, data};
    device_.Machine().Write(record, words, sizeof words);
    device_.Call(release, Marshal(record));
    EXPECT_EQ(device_.Heap().LiveBlocks(), 0u) << release;
    device_.Call(release, Marshal(0));
  }
}

TEST_P(DeviceMatrix, ARecordIsTracedFieldByField) {
  const std::uint32_t stream = device_.Runtime().OpenStream();
  device_.AttachTrace(stream);
  MatrixBarcode barcode;
  barcode.text = u"A1";
  barcode.format = 1;
  device_.GenerateDataMatrixBarcode(barcode);
  const std::string expected =
      "\n\nDataMatrixBarcodeInfo* dmBarInfo = new DataMatrixBarcodeInfo();\n"
      "dmBarInfo->DataString = A1;\ndmBarInfo->height = 10.000000f;\n"
      "dmBarInfo->format = 0.000000f;\ndmBarInfo->HatchingType = 0;\n"
      "dmBarInfo->LineGap = 0.500000f;\ndmBarInfo->InvertImage = 0;\ndmBarInfo->MatrixSize = 0;\n"
      "dmBarInfo->IsExpanding = 1;\ndmBarInfo->QuietZone = 0;\ndmBarInfo->QuietZoneSize = 0;\n"
      "dmBarInfo->BorderWidth = 0;\nGenerateDataMatrixBarcode(dmBarInfo);\n\n\n"
      "TwoDStringResult* stringResult;\nstringResult->numrows = 10\nstringResult->numcols = 10\n"
      "Free2DBarcodeStringResult(10,10);\n";
  EXPECT_EQ(device_.Runtime().Written(stream).substr(0, expected.size()), expected);
}

TEST_P(DeviceMatrix, FailedAllocationsGiveNullAndLeaveNothing) {
  MatrixBarcode barcode;
  barcode.text = u"ABC abc 123456 \u00e4";
  for (std::uint32_t n = 3;; ++n) {  // the first two blocks are the host's own
    device_.Heap().StartWatching();
    device_.Heap().FailFrom(n);
    const auto fill = device_.GenerateDataMatrixBarcode(barcode);
    device_.Heap().FailFrom(0);
    EXPECT_EQ(device_.Heap().LiveBlocks(), 0u) << n;
    if (fill) {
      EXPECT_EQ(fill, native_.GenerateDataMatrixBarcode(barcode));
      EXPECT_GT(n, 5u);
      break;
    }
  }
}

TEST_P(DeviceMatrix, SeededCasesGiveTheSameFill) {
  std::mt19937 random(5000);
  for (int i = 0; i < kCases; ++i) {
    const MatrixBarcode barcode = NextCase(random);
    SCOPED_TRACE(testing::Message() << "case " << i << ": " << barcode);
    ExpectSame(barcode);
    if (HasFailure()) break;
  }
}

TEST_P(DeviceMatrix, TheLargestSymbolCostsLessThanEightMillionInstructions) {
  MatrixBarcode barcode;
  barcode.text = std::u16string(kMostCharacters, u'7');
  barcode.HatchingType = 6;
  device_.Machine().ResetCounts();
  device_.TakeFill(device_.CallGenerateDataMatrixBarcode(barcode));
  EXPECT_LT(static_cast<double>(device_.Machine().Instructions()), kMostInstructions);
}

INSTANTIATE_TEST_SUITE_P(Placements, DeviceMatrix, testing::Values(kPlacements[0], kPlacements[3]),
                         [](const auto& placement) { return NameOf(placement.param); });

}  // namespace
}  // namespace barhatch::device
