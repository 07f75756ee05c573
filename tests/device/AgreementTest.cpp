// The device and this computer give the same barcodes to the last bit: module strings, strokes,
// extents, and the settings left behind, over seeded cases of every type. A type that is refused
// here is refused there.
#include <gtest/gtest.h>

#include "device/DeviceLibrary.h"
#include "device/LinearCases.h"
#include "device/NativeLibrary.h"

namespace barhatch::device {
namespace {

constexpr int kCasesOfAType = 40;

class Agreement : public testing::TestWithParam<std::int32_t> {
 protected:
  Agreement() {
    native_.InitBarcode();
    device_.InitBarcode();
  }

  void ExpectNothingLeft() {
    EXPECT_EQ(device_.Settings(), native_.Settings());
    EXPECT_EQ(device_.Heap().LiveBlocks(), 0u);
  }

  NativeLibrary native_;
  DeviceLibrary device_;
};

void Configure(BarcodeLibrary& library, const LinearBarcode& barcode) {
  library.SetBarcodeType(barcode.type);
  library.SetDataString(barcode.text);
  library.SetBarcodeSize(barcode.width, barcode.height);
  library.SetHatchPattern(barcode.LineGap, barcode.HatchingType);
  library.SetPrintRatio(barcode.PrintRatio);
  library.SetImageInversionMode(barcode.InvertImage);
}

TEST_P(Agreement, RecordsGiveTheSameFillAndModuleString) {
  LinearCases cases(1000U + static_cast<std::uint32_t>(GetParam()));
  for (int i = 0; i < kCasesOfAType; ++i) {
    const LinearBarcode barcode = cases.Next(GetParam());
    SCOPED_TRACE(testing::Message() << "case " << i << ": " << barcode);
    const auto fill = native_.GenerateLinearBarcode(barcode);
    EXPECT_EQ(device_.GenerateLinearBarcode(barcode), fill);
    EXPECT_EQ(device_.GenerateBarcodeString(), native_.GenerateBarcodeString());
    ExpectNothingLeft();
    if (HasFailure()) break;
  }
}

TEST_P(Agreement, SettersGiveTheSameFill) {
  LinearCases cases(2000U + static_cast<std::uint32_t>(GetParam()));
  for (int i = 0; i < kCasesOfAType / 4; ++i) {
    const LinearBarcode barcode = cases.Next(GetParam());
    SCOPED_TRACE(testing::Message() << "case " << i << ": " << barcode);
    Configure(native_, barcode);
    Configure(device_, barcode);
    EXPECT_EQ(device_.GenerateVectorizedBarcode(), native_.GenerateVectorizedBarcode());
    ExpectNothingLeft();
    if (HasFailure()) break;
  }
}

TEST_P(Agreement, EveryPatternFillsTheTypicalTextAlike) {
  LinearBarcode barcode;
  barcode.type = GetParam();
  barcode.text = Wide(KindOf(GetParam()).typical);
  barcode.width = 40.0;
  barcode.height = 10.0;
  for (barcode.HatchingType = -1; barcode.HatchingType <= 7; ++barcode.HatchingType) {
    SCOPED_TRACE(barcode.HatchingType);
    EXPECT_EQ(device_.GenerateLinearBarcode(barcode), native_.GenerateLinearBarcode(barcode));
    ExpectNothingLeft();
  }
}

std::string TypeName(const testing::TestParamInfo<std::int32_t>& info) {
  return "Type" + std::to_string(info.param);
}
INSTANTIATE_TEST_SUITE_P(Types, Agreement, testing::Range(0, kTypes), TypeName);

// Strings of the host's own, with letters that mean nothing among them.
TEST(AgreementOfHatching, ModuleStringsOfAnyContentAreFilledAlike) {
  NativeLibrary native;
  DeviceLibrary device;
  std::mt19937 random(3000);
  for (int i = 0; i < 200; ++i) {
    LinearCases cases(4000U + static_cast<std::uint32_t>(i));
    const LinearBarcode barcode = cases.Next(0);
    std::string letters;
    for (auto n = random() % 60; n > 0; --n) letters += "AaBbAaBbAaBbxZ"[random() % 14];
    SCOPED_TRACE(testing::Message() << letters << ' ' << barcode);
    Configure(native, barcode);
    Configure(device, barcode);
    EXPECT_EQ(device.HatchBarcodeString(letters), native.HatchBarcodeString(letters));
    EXPECT_EQ(device.Heap().LiveBlocks(), 0u);
    if (testing::Test::HasFailure()) break;
  }
}

// The comparison above is worth something only if most cases are barcodes.
TEST(LinearCasesOfTheAgreement, MostCasesOfASupportedTypeAreBarcodes) {
  NativeLibrary native;
  for (std::int32_t type = 0; type < kTypes; ++type) {
    LinearBarcode typical;
    typical.type = type;
    typical.text = Wide(KindOf(type).typical);
    if (!native.GenerateLinearBarcode(typical)) continue;
    LinearCases cases(1000U + static_cast<std::uint32_t>(type));
    int barcodes = 0;
    for (int i = 0; i < kCasesOfAType; ++i) {
      barcodes += native.GenerateLinearBarcode(cases.Next(type)).has_value() ? 1 : 0;
    }
    EXPECT_GE(barcodes, kCasesOfAType * 2 / 5) << "type " << type;
    EXPECT_LT(barcodes, kCasesOfAType) << "type " << type << ": refusals are compared as well";
  }
}

}  // namespace
}  // namespace barhatch::device
