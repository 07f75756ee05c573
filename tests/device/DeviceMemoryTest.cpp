// Memory on the device: what a call takes from heap and stack, and what becomes of it when the heap
// gives nothing.
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>

#include "device/DeviceLibrary.h"
#include "device/LinearCases.h"

namespace barhatch::device {
namespace {

constexpr std::uint32_t kDeepestStack = 8 * 1024;  // documented in docs/porting.md

LinearBarcode Typical(std::int32_t type, std::int32_t pattern) {
  LinearBarcode barcode;
  barcode.type = type;
  barcode.text = Wide(KindOf(type).typical);
  barcode.width = 40.0;
  barcode.height = 10.0;
  barcode.HatchingType = pattern;
  return barcode;
}

// Calls with the n-th allocation failing, for every n: null or the complete result, nothing left.
void ExpectRobust(DeviceLibrary& device, const std::function<BarcodeLibrary::MaybeFill()>& call) {
  device.Heap().StartWatching();
  const auto undisturbed = call();
  const std::uint32_t allocations = device.Heap().Allocations();
  for (std::uint32_t n = 1; n <= allocations + 1; ++n) {
    device.Heap().StartWatching();
    device.Heap().FailFrom(n);
    const auto fill = call();
    device.Heap().FailFrom(0);
    EXPECT_EQ(fill, n > allocations ? undisturbed : std::nullopt) << n;
    EXPECT_EQ(device.Heap().LiveBlocks(), 0u) << n;
  }
}

TEST(DeviceMemory, FailedAllocationsGiveNullAndLeaveNothing) {
  DeviceLibrary device;
  device.InitBarcode();
  for (std::int32_t type = 0; type < kTypes; ++type) {
    for (const std::int32_t pattern : {0, 5, 6}) {
      SCOPED_TRACE(testing::Message() << "type " << type << " pattern " << pattern);
      device.GenerateLinearBarcode(Typical(type, pattern));  // its settings stay in force
      ExpectRobust(device, [&] { return device.GenerateVectorizedBarcode(); });
    }
  }
  device.Heap().FailFrom(1);
  EXPECT_EQ(device.Call("TestStruct", {}), 0u);
  EXPECT_EQ(device.Call("GenerateBarcodeString", {}), 0u);
}

// The bytes of 2^29 doubles are more than 32 bits can say; a size that wraps around would be taken
// for a small one.
TEST(DeviceMemory, FillsWhoseSizeExceedsTheAddressSpaceAreNull) {
  DeviceLibrary device;
  device.InitBarcode();
  for (const std::int32_t pattern : {0, 1, 2, 3, 5}) {
    for (const double doubles :
         {268435456.0, 536870912.0, 536870916.0, 536871040.0, 1073741828.0}) {
      SCOPED_TRACE(testing::Message() << "pattern " << pattern << ", " << doubles << " doubles");
      device.SetBarcodeSize(1.0, 1.0);
      device.SetHatchPattern(4.0 / doubles, pattern);
      EXPECT_EQ(device.HatchBarcodeString("A"), std::nullopt);
      EXPECT_EQ(device.Heap().LiveBlocks(), 0u);
    }
  }
}

TEST(DeviceMemory, ACallTakesLittleStack) {
  DeviceLibrary device;
  device.InitBarcode();
  std::uint32_t deepest = 0;
  for (std::int32_t type = 0; type < kTypes; ++type) {
    device.Machine().ResetCounts();
    for (std::int32_t pattern = 0; pattern <= 6; ++pattern) {
      device.GenerateLinearBarcode(Typical(type, pattern));
    }
    deepest = std::max(deepest, device.Machine().DeepestStack());
    std::printf("%-16s %5u bytes of stack\n", KindOf(type).name, device.Machine().DeepestStack());
    EXPECT_LE(device.Machine().DeepestStack(), kDeepestStack) << KindOf(type).name;
  }
  EXPECT_GT(deepest, 0u);
}

TEST(DeviceMemory, AMatrixTakesLittleStackAndHeapBesideItsResult) {
  DeviceLibrary device;
  device.InitBarcode();
  for (const std::size_t length : {10U, 300U, 1500U, 3116U}) {
    MatrixBarcode barcode;
    barcode.text = std::u16string(length, u'7');
    device.Machine().ResetCounts();
    device.Heap().StartWatching();
    const auto fill = device.GenerateDataMatrixBarcode(barcode);
    ASSERT_TRUE(fill) << length;
    const std::uint32_t hosts = 56 + 2 * static_cast<std::uint32_t>(length + 1);
    const std::uint32_t result = 32 + 8 * static_cast<std::uint32_t>(fill->BufferLength);
    const std::uint32_t beside = device.Heap().PeakBytes() - result - hosts;
    const std::uint32_t stack = device.Machine().DeepestStack();
    std::printf("%4zu digits: %5u bytes of stack, %6u of heap beside the result of %u\n", length,
                stack, beside, result);
    EXPECT_LE(stack, kDeepestStack) << length;
    EXPECT_LE(beside, 64u * 1024) << length;
  }
}

// Beside the fill buffer that the host gets, a call needs the module string and the rectangles.
TEST(DeviceMemory, ACallTakesLittleHeapBesideItsResult) {
  DeviceLibrary device;
  device.InitBarcode();
  for (std::int32_t type = 0; type < kTypes; ++type) {
    LinearBarcode barcode = Typical(type, 0);
    barcode.LineGap = 0.01;
    device.Heap().StartWatching();
    const auto fill = device.GenerateLinearBarcode(barcode);
    if (!fill) continue;
    const std::uint32_t result = 32 + 8 * static_cast<std::uint32_t>(fill->BufferLength);
    const std::uint32_t beside = device.Heap().PeakBytes() - result;
    std::printf("%-16s %6u bytes of heap beside the result of %u bytes\n", KindOf(type).name,
                beside, result);
    EXPECT_LE(beside, 64u * 1024) << KindOf(type).name;
  }
}

}  // namespace
}  // namespace barhatch::device
