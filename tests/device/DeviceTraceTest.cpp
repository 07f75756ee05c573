// The call trace and the entry point on the device: no export opens a stream, so the tests write
// the library's own pointer.
#include <gtest/gtest.h>

#include "device/DeviceLibrary.h"

namespace barhatch::device {
namespace {

class DeviceTrace : public testing::TestWithParam<Placement> {
 protected:
  DeviceTrace() { device_.AttachTrace(stream_); }

  // What was written since the last call; every export has to leave it flushed.
  std::string Written() {
    EXPECT_TRUE(device_.Runtime().IsFlushed(stream_));
    const std::string all = device_.Runtime().Written(stream_);
    const std::string fresh = all.substr(seen_);
    seen_ = all.size();
    return fresh;
  }

  DeviceLibrary device_{GetParam()};
  const std::uint32_t stream_ = device_.Runtime().OpenStream();
  std::size_t seen_ = 0;
};

TEST_P(DeviceTrace, SettersWriteTheirStatements) {
  device_.InitBarcode();
  EXPECT_EQ(Written(), "");
  device_.SetModuleWidth(2.0);
  EXPECT_EQ(Written(), "SetModuleWidth(2.000000f);\n");
  device_.SetPrintRatio(-2.5);
  EXPECT_EQ(Written(), "SetPrintRatio(-2.500000f);\n");
  device_.SetImageInversionMode(255);
  EXPECT_EQ(Written(), "SetImageInversionMode(255);\n");
  device_.SetBarcodeType(-7);
  EXPECT_EQ(Written(), "SetBarcodeType(-7);\n");
  device_.SetDataString(u"ABC");
  EXPECT_EQ(Written(), "SetDataString(A);\n");
  device_.SetHatchPattern(0.1, 3);
  EXPECT_EQ(Written(), "SetHatchPattern(0.100000f,3);\n");
  device_.SetBarcodeSize(10.5, 0.25);
  EXPECT_EQ(Written(), "SetBarcodeSize(10.500000f,0.250000f);\n");
  device_.SetCodeFormat(2);
  EXPECT_EQ(Written(), "SetCodeFormat(2);\n");
  device_.SetMatrixsize(0x0A0A);
  EXPECT_EQ(Written(), "SetMatrixsize(2570);\n");
  device_.SetBarcodeHeight(-3);
  EXPECT_EQ(Written(), "SetBarcodeHeight(-3);\n");
}

TEST_P(DeviceTrace, ARecordIsWrittenFieldByFieldAndNestedCallsFollow) {
  LinearBarcode barcode;
  barcode.height = 1.0;
  barcode.width = 63.0;
  barcode.type = 1;
  barcode.text = u"A1";
  barcode.HatchingType = 6;
  device_.GenerateLinearBarcode(barcode);
  const std::string text = Written();
  const std::string record =
      "\n\nLinearBarcodeInfo* lBarInfo = new LinearBarcodeInfo();\n"
      "lBarInfo->DataString = A1;\nlBarInfo->height = 1.000000f;\nlBarInfo->width = 63.000000f;\n"
      "lBarInfo->type = 1;\nlBarInfo->HatchingType = 6;\nlBarInfo->LineGap = 0.100000f;\n"
      "lBarInfo->InvertImage = 0;\nlBarInfo->PrintRatio = 3.000000f;\nlBarInfo->QuietZone = 0;\n"
      "lBarInfo->QuietZoneSize = 0;\nlBarInfo->BorderWidth = 0;\n"
      "GenerateLinearBarcode(lBarInfo);\n\n\n"
      "GenerateVectorizedBarcode();\nGenerateBarcodeString();\nHatchBarcodeString(A";
  EXPECT_EQ(text.substr(0, record.size()), record);
  const std::string release =
      ");\nFillBufferInfo* barcodeInfo;\nbarcodeInfo->FillingShapeType = 2;\n"
      "barcodeInfo->BufferLength = 40;\nbarcodeInfo->FilledArray = 0.000000;\n"
      "FreeBarcodeData(barcodeInfo);\n";
  ASSERT_GT(text.size(), release.size());
  EXPECT_EQ(text.substr(text.size() - release.size()), release);
}

TEST_P(DeviceTrace, ReleasingNothingAndTestStructWriteNothing) {
  device_.Call("FreeBarcodeData", Marshal(0));
  const std::uint32_t record = device_.Call("TestStruct", {});
  EXPECT_EQ(Written(), "");
  device_.Call("FreeBarcodeData", Marshal(record));
  EXPECT_NE(Written(), "");
}

TEST_P(DeviceTrace, ProcessAttachForgetsTheStream) {
  EXPECT_EQ(device_.CallEntryPoint(kProcessAttach), 1u);
  EXPECT_EQ(device_.Trace(), 0u);
  EXPECT_TRUE(device_.Runtime().IsOpen(stream_));
  device_.SetBarcodeType(1);
  EXPECT_EQ(Written(), "");
}

TEST_P(DeviceTrace, TheOtherReasonsCloseTheStreamAndKeepThePointer) {
  for (const Reason reason : {kProcessDetach, kThreadAttach, kThreadDetach}) {
    const std::uint32_t stream = device_.Runtime().OpenStream();
    device_.CallEntryPoint(kProcessAttach);
    device_.AttachTrace(stream);
    EXPECT_EQ(device_.CallEntryPoint(reason), 1u);
    EXPECT_FALSE(device_.Runtime().IsOpen(stream));
    EXPECT_EQ(device_.Trace(), stream);
    device_.SetBarcodeType(1);  // would fail if the closed stream were used
    EXPECT_EQ(device_.CallEntryPoint(reason), 1u);
  }
  device_.CallEntryPoint(kProcessAttach);
  device_.AttachTrace(stream_);
  EXPECT_EQ(device_.CallEntryPoint(4), 1u);
  EXPECT_TRUE(device_.Runtime().IsOpen(stream_)) << "any other reason does nothing";
}

TEST_P(DeviceTrace, ADormantTraceCallsNoStreamFunction) {
  DeviceLibrary quiet(GetParam());
  quiet.InitBarcode();
  quiet.Machine().ResetCounts();
  quiet.SetBarcodeType(1);
  quiet.SetHatchPattern(0.1, 3);
  EXPECT_EQ(quiet.Machine().RuntimeCalls(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Placements, DeviceTrace, testing::ValuesIn(kPlacements),
                         [](const auto& placement) { return NameOf(placement.param); });

}  // namespace
}  // namespace barhatch::device
