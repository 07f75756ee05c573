#include "api/ApiTrace.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "api/EntryPoint.h"
#include "barhatch.h"
#include "support/Fills.h"
#include "support/OwnedString.h"
#include "support/SettingsFixture.h"
#include "support/Text16.h"
#include "support/TraceFile.h"

namespace barhatch {
namespace {

using test::OwnedFill;
using test::Text16;
using test::TraceFile;
using test::Widen;

class ApiTraceTest : public test::SettingsFixture {
 protected:
  ApiTraceTest() { AttachApiTrace(file_.Writer()); }
  ~ApiTraceTest() override { CloseApiTrace(); }

  // What the calls made so far have written; every export flushes, so nothing may be missing.
  std::string Written() const { return file_.Text(); }

  TraceFile file_;
};

TEST_F(ApiTraceTest, DoublesAreWrittenWithALiteralF) {
  SetModuleWidth(2.0);
  SetHatchPattern(0.1, 3);
  EXPECT_EQ(Written(), "SetModuleWidth(2.000000f);\nSetHatchPattern(0.100000f,3);\n");
}

TEST_F(ApiTraceTest, EverySetterWritesItsStatement) {
  SetBarcodeType(-7);
  SetPrintRatio(2.5);
  SetImageInversionMode(0x80);
  SetBarcodeSize(1.25, -3.0);
  SetBarcodeHeight(-4);
  SetCodeFormat(2);
  SetMatrixsize(kMatrixSize12x12);
  EXPECT_EQ(Written(),
            "SetBarcodeType(-7);\n"
            "SetPrintRatio(2.500000f);\n"
            "SetImageInversionMode(128);\n"
            "SetBarcodeSize(1.250000f,-3.000000f);\n"
            "SetBarcodeHeight(-4);\n"
            "SetCodeFormat(2);\n"
            "SetMatrixsize(3084);\n");
}

TEST_F(ApiTraceTest, DataStringShowsItsBytesUpToTheFirstZeroByte) {
  SetDataString(Widen("ABC").c_str());
  EXPECT_EQ(Written(), "SetDataString(A);\n");
  const BarhatchChar fullUnits[] = {0x4241, 0x4443, 0x0045, 0};
  SetDataString(fullUnits);
  EXPECT_EQ(Written(), "SetDataString(A);\nSetDataString(ABCDE);\n");
}

TEST_F(ApiTraceTest, TextIsNeverAFormat) {
  SetDataString(Widen("%").c_str());
  HatchBarcodeString("%s%n%d");
  EXPECT_EQ(Written(), "SetDataString(%);\nHatchBarcodeString(%s%n%d);\n");
}

TEST_F(ApiTraceTest, NullTextsShowAsNull) {
  SetDataString(nullptr);
  HatchBarcodeString(nullptr);
  EXPECT_EQ(Written(), "SetDataString((null));\nHatchBarcodeString((null));\n");
}

TEST_F(ApiTraceTest, InitBarcodeAndTestStructWriteNothing) {
  InitBarcode();
  FillBufferInfo* record = TestStruct();
  EXPECT_EQ(Written(), "");
  FreeBarcodeData(record);
}

TEST_F(ApiTraceTest, NestedCallsTraceToo) {
  SetBarcodeType(1);
  SetDataString(Widen("").c_str());
  SetHatchPattern(0.1, 4);
  const std::string before = Written();
  EXPECT_EQ(GenerateVectorizedBarcode(), nullptr);
  EXPECT_EQ(Written().substr(before.size()),
            "GenerateVectorizedBarcode();\nGenerateBarcodeString();\nHatchBarcodeString("
            "AbAaBaBaAaAbAaBaBaA);\n");
}

TEST_F(ApiTraceTest, FreeBarcodeDataWritesTheRecordAndTheArrayAsADoubleWithoutMeaning) {
  FreeBarcodeData(nullptr);
  EXPECT_EQ(Written(), "");
  FreeBarcodeData(TestStruct());
  EXPECT_EQ(Written(),
            "FillBufferInfo* barcodeInfo;\n"
            "barcodeInfo->FillingShapeType = 0;\n"
            "barcodeInfo->BufferLength = 12345;\n"
            "barcodeInfo->FilledArray = 0.000000;\n"
            "FreeBarcodeData(barcodeInfo);\n");
}

constexpr const char* kLinearStatements =
    "\n\n"
    "LinearBarcodeInfo* lBarInfo = new LinearBarcodeInfo();\n"
    "lBarInfo->DataString = A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xEF\xBF\xBD;\n"
    "lBarInfo->height = 0.500000f;\n"
    "lBarInfo->width = 4.000000f;\n"
    "lBarInfo->type = 23;\n"
    "lBarInfo->HatchingType = 2;\n"
    "lBarInfo->LineGap = 0.010000f;\n"
    "lBarInfo->InvertImage = 255;\n"
    "lBarInfo->PrintRatio = 2.250000f;\n"
    "lBarInfo->QuietZone = 1;\n"
    "lBarInfo->QuietZoneSize = -5;\n"
    "lBarInfo->BorderWidth = 6;\n"
    "GenerateLinearBarcode(lBarInfo);\n"
    "\n\n";

LinearBarcodeInfo LinearRecord(const BarhatchChar* text) {
  LinearBarcodeInfo info{};
  info.height = 0.5;
  info.width = 4.0;
  info.type = 23;
  info.DataString = text;
  info.HatchingType = 2;
  info.LineGap = 0.01;
  info.InvertImage = 255;
  info.PrintRatio = 2.25;
  info.QuietZone = 1;
  info.QuietZoneSize = -5;
  info.BorderWidth = 6;
  return info;
}

TEST_F(ApiTraceTest, GenerateLinearBarcodeWritesItsRecordAndTheCallsItMakes) {
  // A, e acute, the euro sign, a face beyond 16 bits, half a pair: the 16-bit text as UTF-8.
  const BarhatchChar text[] = {'A', 0xE9, 0x20AC, 0xD83D, 0xDE00, 0xD83D, 0};
  const LinearBarcodeInfo info = LinearRecord(text);
  EXPECT_EQ(GenerateLinearBarcode(&info), nullptr);
  EXPECT_EQ(Written(), std::string(kLinearStatements) +
                           "GenerateVectorizedBarcode();\nGenerateBarcodeString();\n");
}

// RFC 3629: the last and first code points of each length, around the surrogates and of the pairs;
// half a pair is U+FFFD.
TEST_F(ApiTraceTest, TextIsWrittenAsUtf8AtEveryBoundary) {
  const struct {
    BarhatchChar text[3];
    const char* utf8;
  } rows[] = {{{0x7F, 0}, "\x7F"},
              {{0x80, 0}, "\xC2\x80"},
              {{0x7FF, 0}, "\xDF\xBF"},
              {{0x800, 0}, "\xE0\xA0\x80"},
              {{0xD7FF, 0}, "\xED\x9F\xBF"},
              {{0xE000, 0}, "\xEE\x80\x80"},
              {{0xFFFF, 0}, "\xEF\xBF\xBF"},
              {{0xD800, 0xDC00, 0}, "\xF0\x90\x80\x80"},
              {{0xD83D, 0xDE42, 0}, "\xF0\x9F\x99\x82"},
              {{0xDBFF, 0xDFFF, 0}, "\xF4\x8F\xBF\xBF"},
              {{0xD800, 0}, "\xEF\xBF\xBD"},
              {{0xDFFF, 0}, "\xEF\xBF\xBD"},
              {{0xDC00, 0xD7FF, 0}, "\xEF\xBF\xBD\xED\x9F\xBF"},
              {{0xDBFF, 0xE000, 0}, "\xEF\xBF\xBD\xEE\x80\x80"},
              {{0xD800, 0xDBFF, 0}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
              {{0xDC00, 0xDC00, 0}, "\xEF\xBF\xBD\xEF\xBF\xBD"}};
  for (const auto& row : rows) {
    const LinearBarcodeInfo info = LinearRecord(row.text);
    EXPECT_EQ(GenerateLinearBarcode(&info), nullptr);
    const std::string expected = std::string("lBarInfo->DataString = ") + row.utf8 + ";\n";
    const std::string written = Written();
    const std::size_t last = written.rfind("lBarInfo->DataString");
    ASSERT_NE(last, std::string::npos);
    EXPECT_EQ(written.substr(last, expected.size()), expected);
  }
}

TEST_F(ApiTraceTest, RefusedRecordsAreTracedAndNullRecordsAreNot) {
  EXPECT_EQ(GenerateLinearBarcode(nullptr), nullptr);
  EXPECT_EQ(Written(), "");
  const LinearBarcodeInfo info = LinearRecord(nullptr);
  EXPECT_EQ(GenerateLinearBarcode(&info), nullptr);
  EXPECT_NE(Written().find("lBarInfo->DataString = (null);\n"), std::string::npos);
  EXPECT_EQ(Written().find("GenerateVectorizedBarcode"), std::string::npos);
}

TEST_F(ApiTraceTest, TracingChangesNoResult) {
  SetBarcodeType(1);
  SetDataString(Widen("A1").c_str());
  const auto traced = test::Take(GenerateBarcodeString());
  const OwnedFill tracedFill(GenerateVectorizedBarcode());
  CloseApiTrace();
  EXPECT_EQ(test::Take(GenerateBarcodeString()), traced);
  EXPECT_EQ(test::Doubles(*OwnedFill(GenerateVectorizedBarcode())), test::Doubles(*tracedFill));
}

TEST(ApiTraceAtLoad, ThereIsNoStreamAndNoExportSetsOne) {
  ASSERT_EQ(ApiTrace(), nullptr);
  InitBarcode();
  SetModuleWidth(2.0);
  const OwnedFill fill(GenerateVectorizedBarcode());
  EXPECT_EQ(ApiTrace(), nullptr);
}

TEST(ApiTraceAtLoad, StreamsOfTheHostAreNotFlushed) {
  TraceFile file;
  std::FILE* const host = file.Writer();
  ASSERT_GE(std::fputs("kept in the buffer", host), 0);
  SetModuleWidth(2.0);
  EXPECT_EQ(file.Text(), "");
  ASSERT_EQ(std::fclose(host), 0);
}

TEST(EntryPoint, EveryReasonSucceeds) {
  for (std::uint32_t reason : {0u, 1u, 2u, 3u, 4u, 0xFFFFFFFFu})
    EXPECT_EQ(HandleLoaderReason(reason), 1);
}

TEST(EntryPoint, ProcessAttachForgetsTheStreamWithoutClosingIt) {
  TraceFile file;
  AttachApiTrace(file.Writer());
  HandleLoaderReason(kProcessAttach);
  EXPECT_EQ(ApiTrace(), nullptr);
  EXPECT_GE(std::fputs("still open", file.Writer()), 0);
  std::fclose(file.Writer());
}

TEST(EntryPoint, DetachAndThreadReasonsCloseTheStreamAndLeaveThePointer) {
  for (std::uint32_t reason : {kProcessDetach, kThreadAttach, kThreadDetach}) {
    TraceFile file;
    AttachApiTrace(file.Writer());
    SetModuleWidth(2.0);
    std::fputs("buffered", file.Writer());
    HandleLoaderReason(reason);
    EXPECT_EQ(file.Text(), "SetModuleWidth(2.000000f);\nbuffered") << reason;
    EXPECT_EQ(ApiTrace(), file.Writer()) << reason;
    // Neither a statement nor a second close reaches the closed stream.
    SetModuleWidth(3.0);
    HandleLoaderReason(reason);
    EXPECT_EQ(file.Text(), "SetModuleWidth(2.000000f);\nbuffered") << reason;
    CloseApiTrace();
    EXPECT_EQ(ApiTrace(), nullptr);
  }
}

#if defined(__GLIBC__)
int CountClose(void* closes) {
  ++*static_cast<int*>(closes);
  return 0;
}

TEST(EntryPoint, AStreamIsClosedOnceWhoeverClosesIt) {
  for (const bool byTheLoader : {true, false}) {
    int closes = 0;
    AttachApiTrace(fopencookie(&closes, "w", {nullptr, nullptr, nullptr, CountClose}));
    ASSERT_NE(ApiTrace(), nullptr);
    if (byTheLoader) HandleLoaderReason(kProcessDetach);
    EXPECT_EQ(closes, byTheLoader ? 1 : 0);
    CloseApiTrace();
    EXPECT_EQ(closes, 1);
  }
}
#endif

TEST(EntryPoint, OtherReasonsDoNothing) {
  TraceFile file;
  AttachApiTrace(file.Writer());
  HandleLoaderReason(4);
  SetModuleWidth(2.0);
  EXPECT_EQ(file.Text(), "SetModuleWidth(2.000000f);\n");
  CloseApiTrace();
}

TEST(EntryPoint, WithoutAStreamNothingHappens) {
  ForgetApiTrace();
  HandleLoaderReason(kProcessDetach);
  HandleLoaderReason(kThreadDetach);
  EXPECT_EQ(ApiTrace(), nullptr);
  CloseApiTrace();
}

}  // namespace
}  // namespace barhatch
