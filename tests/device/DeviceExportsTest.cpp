// Every export of the DLL, called as a host on the device calls it, wherever the DLL is loaded and
// however the stack lies; what a setter stores is what it stores on this computer, byte by byte.
#include <gtest/gtest.h>

#include <limits>

#include "device/DeviceLibrary.h"
#include "device/NativeLibrary.h"

namespace barhatch::device {
namespace {

class DeviceExports : public testing::TestWithParam<Placement> {
 protected:
  // Does the same on both sides and compares the settings afterwards.
  template <typename Act>
  void ExpectSameSettings(Act act) {
    act(static_cast<BarcodeLibrary&>(native_));
    act(static_cast<BarcodeLibrary&>(device_));
    EXPECT_EQ(device_.Settings(), native_.Settings());
    EXPECT_EQ(device_.Heap().LiveBlocks(), 0u);
  }

  NativeLibrary native_;
  DeviceLibrary device_{GetParam()};
};

TEST_P(DeviceExports, EverySettingIsZeroUntilInitBarcode) {
  EXPECT_EQ(device_.Settings(), std::vector<std::uint8_t>(device_.Settings().size(), 0));
  native_.InitBarcode();
  EXPECT_NE(device_.Settings(), native_.Settings()) << "the comparison can fail";
}

TEST_P(DeviceExports, InitBarcodeWritesTheDefaults) {
  ExpectSameSettings([](BarcodeLibrary& library) { library.InitBarcode(); });
}

TEST_P(DeviceExports, IntegersArriveWhole) {
  for (const std::int32_t value : {0, 1, 22, -1, -3, 0x01020304, std::numeric_limits<int>::min()}) {
    ExpectSameSettings([=](BarcodeLibrary& library) {
      library.InitBarcode();
      library.SetBarcodeType(value);
      library.SetBarcodeHeight(value);
      library.SetCodeFormat(value);
      library.SetMatrixsize(value);
    });
  }
}

TEST_P(DeviceExports, DoublesArriveWhole) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double value : {0.0, -0.0, 1.5, 0.1, -1e300, 5e-324, infinity}) {
    ExpectSameSettings([=](BarcodeLibrary& library) {
      library.InitBarcode();
      library.SetModuleWidth(value);
      library.SetPrintRatio(value + 1.0);
      library.SetHatchPattern(value + 2.0, 5);
      library.SetBarcodeSize(value + 3.0, value + 4.0);
    });
  }
}

TEST_P(DeviceExports, OfABooleanTheLowByteAloneCounts) {
  for (const int value : {0, 1, 255}) {
    ExpectSameSettings([=](BarcodeLibrary& library) {
      library.InitBarcode();
      library.SetImageInversionMode(static_cast<std::uint8_t>(value));
    });
  }
  device_.Call("SetImageInversionMode", Marshal(0xFFFFFF00U));
  native_.SetImageInversionMode(0);
  EXPECT_EQ(device_.Settings(), native_.Settings());
}

TEST_P(DeviceExports, TextArrivesUpToItsLimitAndIsRefusedBeyond) {
  for (const std::size_t length : {0U, 1U, 2U, 3118U, 3119U, 3120U, 4000U}) {
    ExpectSameSettings([=](BarcodeLibrary& library) {
      library.InitBarcode();
      library.SetDataString(std::u16string(length, u'\u0416'));
    });
  }
  device_.Call("SetDataString", Marshal(0));
  EXPECT_EQ(device_.GenerateBarcodeString(), std::nullopt);
}

TEST_P(DeviceExports, GenerateBarcodeStringGivesAnArrayOfTheHosts) {
  device_.InitBarcode();
  device_.SetBarcodeType(1);
  device_.SetDataString(u"A");
  const std::uint32_t first = device_.Call("GenerateBarcodeString", {});
  const std::uint32_t second = device_.Call("GenerateBarcodeString", {});
  ASSERT_NE(first, 0u);
  EXPECT_NE(first, second) << "separately owned";
  EXPECT_EQ(device_.Machine().ReadText(first), device_.Machine().ReadText(second));
  EXPECT_EQ(device_.Machine().ReadText(first).size(), 29u) << "three characters, two gaps";
  EXPECT_TRUE(device_.Heap().Release(first, Form::kArray));
  EXPECT_TRUE(device_.Heap().Release(second, Form::kArray));
  device_.SetBarcodeType(23);
  EXPECT_EQ(device_.Call("GenerateBarcodeString", {}), 0u);
  EXPECT_EQ(device_.Heap().LiveBlocks(), 0u);
}

TEST_P(DeviceExports, FillBuffersHaveTheirFieldsAtTheOffsetsOfTheDevice) {
  device_.InitBarcode();
  device_.SetBarcodeSize(3.0, 2.0);
  device_.SetHatchPattern(1.0, 6);
  const std::uint32_t letters = device_.Place(std::string("AaA"));
  const std::uint32_t fill = device_.Call("HatchBarcodeString", Marshal(letters));
  ASSERT_NE(fill, 0u);
  std::vector<std::uint8_t> record(32);
  device_.Machine().Read(fill, record.data(), record.size());
  EXPECT_FALSE(device_.Heap().IsAlive(fill, 33)) << "the record has 32 bytes";
  const std::uint32_t array = device_.Machine().ReadWord(fill + 8);
  // Bytes 12 to 15 belong to no field.
  std::vector<std::uint8_t> padding(record.begin() + 12, record.begin() + 16);
  // Two points; three modules of one unit each: less twenty of them the width is -17.
  const std::vector<std::uint8_t> expected = RecordWriter(32)
                                                 .Put(0, std::int32_t{2})
                                                 .Put(4, std::int32_t{4})
                                                 .Put(8, array)
                                                 .Put(12, padding[0])
                                                 .Put(13, padding[1])
                                                 .Put(14, padding[2])
                                                 .Put(15, padding[3])
                                                 .Put(16, 2.0)
                                                 .Put(24, -17.0)
                                                 .Bytes();
  EXPECT_EQ(record, expected);
  const double points[] = {0.5, 1.0, 2.5, 1.0};
  std::vector<double> found(4);
  device_.Machine().Read(array, found.data(), sizeof points);
  EXPECT_EQ(found, std::vector<double>(std::begin(points), std::end(points)));
  EXPECT_FALSE(device_.Heap().IsAlive(array, sizeof points + 1));
  device_.Call("FreeBarcodeData", Marshal(fill));
  device_.Remove(letters);
  EXPECT_EQ(device_.Heap().LiveBlocks(), 0u);
}

TEST_P(DeviceExports, TestStructShowsTheLayout) {
  const std::uint32_t record = device_.Call("TestStruct", {});
  ASSERT_NE(record, 0u);
  EXPECT_EQ(device_.Machine().ReadWord(record), 0u);
  EXPECT_EQ(device_.Machine().ReadWord(record + 4), 12345u);
  EXPECT_EQ(device_.Machine().ReadWord(record + 8), 0u);
  EXPECT_TRUE(device_.Heap().IsAlive(record, 32));
  EXPECT_FALSE(device_.Heap().IsAlive(record, 33));
  device_.Call("FreeBarcodeData", Marshal(record));
  EXPECT_EQ(device_.Heap().LiveBlocks(), 0u);
}

TEST_P(DeviceExports, GenerateLinearBarcodeReadsEveryFieldAtItsOffset) {
  LinearBarcode barcode;
  barcode.height = 0.25;
  barcode.width = 5.0;
  barcode.type = 1;
  barcode.text = u"A1";
  barcode.HatchingType = 2;
  barcode.LineGap = 0.0625;
  barcode.InvertImage = 3;
  barcode.PrintRatio = 2.25;
  barcode.QuietZone = 4;
  barcode.QuietZoneSize = 5;
  barcode.BorderWidth = 6;
  native_.InitBarcode();
  device_.InitBarcode();
  const auto expected = native_.GenerateLinearBarcode(barcode);
  ASSERT_TRUE(expected);
  EXPECT_EQ(device_.GenerateLinearBarcode(barcode), expected);
  EXPECT_EQ(device_.Settings(), native_.Settings());
  EXPECT_EQ(device_.GenerateVectorizedBarcode(), expected) << "the values stay in force";
  EXPECT_EQ(device_.Heap().LiveBlocks(), 0u);
}

TEST_P(DeviceExports, NullPointersAreHarmless) {
  EXPECT_EQ(device_.Call("GenerateLinearBarcode", Marshal(0)), 0u);
  EXPECT_EQ(device_.Call("HatchBarcodeString", Marshal(0)), 0u);
  device_.Call("FreeBarcodeData", Marshal(0));
  EXPECT_EQ(device_.Heap().LiveBlocks(), 0u);
}

TEST_P(DeviceExports, TheEntryPointReportsSuccessForEveryReason) {
  device_.InitBarcode();
  const auto settings = device_.Settings();
  for (const std::uint32_t reason :
       {kThreadAttach, kThreadDetach, kProcessDetach, kProcessAttach}) {
    EXPECT_EQ(device_.CallEntryPoint(reason), 1u);
  }
  EXPECT_EQ(device_.CallEntryPoint(4), 1u);
  EXPECT_EQ(device_.CallEntryPoint(0xFFFFFFFF), 1u);
  EXPECT_EQ(device_.Settings(), settings);
}

TEST_P(DeviceExports, TheImageIsRelocated) {
  EXPECT_EQ(device_.Machine().Base(), GetParam().base);
  EXPECT_GT(device_.Image().relocations.size(), 50u);
}

INSTANTIATE_TEST_SUITE_P(Placements, DeviceExports, testing::ValuesIn(kPlacements),
                         [](const auto& placement) { return NameOf(placement.param); });

}  // namespace
}  // namespace barhatch::device
