#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "api/ApiTrace.h"
#include "api/BarcodeSettings.h"
#include "barhatch.h"
#include "support/Fills.h"
#include "support/PlacementReference.h"
#include "support/SettingsFixture.h"
#include "support/Text16.h"
#include "support/TraceFile.h"

namespace barhatch {
namespace {

using test::Doubles;
using test::OwnedFill;
using test::Text16;
using test::Widen;

constexpr int32_t kSmallestSquare = 0;

class DataMatrixExports : public test::SettingsFixture {
 protected:
  DataMatrixExports() {
    Use("123456");
    info_.height = 10.0;
    info_.HatchingType = 6;
    info_.LineGap = 0.1;
    info_.MatrixSize = kSmallestSquare;
    info_.IsExpanding = 1;
  }

  void Use(const std::string& text) { Use(Widen(text)); }
  void Use(const Text16& text) {
    text_ = text;
    info_.DataString = text_.c_str();
  }

  OwnedFill Generate() const { return OwnedFill(GenerateDataMatrixBarcode(&info_)); }

  Text16 text_;
  DataMatrixBarcodeInfo info_{};
};

// The centres of unit modules as a grid of letters, top row first.
std::string LettersOfPoints(const FillBufferInfo& fill, int rows, int columns) {
  std::string letters(static_cast<std::size_t>(rows * columns), 'a');
  for (int i = 0; i + 1 < fill.BufferLength; i += 2) {
    const int column = static_cast<int>(fill.FilledArray[i]);
    const int rowFromBottom = static_cast<int>(fill.FilledArray[i + 1]);
    letters[static_cast<std::size_t>((rows - 1 - rowFromBottom) * columns + column)] = 'A';
  }
  return letters;
}

// ISO/IEC 16022, the worked example of the standard: "123456" is 142 164 186 and 114 25 5 88 102.
TEST_F(DataMatrixExports, PointsShowTheCodewordsOfThePublishedExample) {
  const OwnedFill fill = Generate();
  ASSERT_TRUE(fill);
  const std::string letters = LettersOfPoints(*fill, 10, 10);
  EXPECT_EQ(letters.substr(0, 10), "AaAaAaAaAa");
  EXPECT_EQ(letters.substr(90), "AAAAAAAAAA");
  EXPECT_EQ(test::CodewordsOfGrid(letters, test::ReferenceSquares().front()),
            (std::vector<int>{142, 164, 186, 114, 25, 5, 88, 102}));
  EXPECT_EQ(fill->FillingShapeType, 2);
  EXPECT_EQ(fill->FillHeight, 8.0);
  EXPECT_EQ(fill->FillWidth, 8.0);
}

TEST_F(DataMatrixExports, RecordValuesStayInForceAndTheOthersKeepTheirs) {
  SetBarcodeType(21);
  SetBarcodeSize(77.0, 1.0);
  SetPrintRatio(2.25);
  info_.format = 2;
  info_.MatrixSize = 0x1818;
  info_.InvertImage = 3;
  info_.IsExpanding = 4;
  info_.QuietZone = 5;
  info_.QuietZoneSize = 6;
  info_.BorderWidth = 7;
  ASSERT_TRUE(Generate());
  const BarcodeSettings& s = CurrentSettings();
  EXPECT_EQ(s.height, 10.0);
  EXPECT_EQ(s.format, 2);
  EXPECT_EQ(s.MatrixSize, 0x1818);
  EXPECT_EQ(std::u16string(s.DataString), u"123456");
  EXPECT_EQ(s.HatchingType, 6);
  EXPECT_EQ(s.LineGap, 0.1);
  EXPECT_EQ(s.InvertImage, 3);
  EXPECT_EQ(s.IsExpanding, 4);
  EXPECT_EQ(s.QuietZone, 5);
  EXPECT_EQ(s.QuietZoneSize, 6);
  EXPECT_EQ(s.BorderWidth, 7);
  EXPECT_EQ(s.type, 21);
  EXPECT_EQ(s.width, 77.0);
  EXPECT_EQ(s.PrintRatio, 2.25);
}

TEST_F(DataMatrixExports, Upto3116CharactersProceedAndMoreChangeNoSetting) {
  Use(std::string(3116, '7'));
  EXPECT_TRUE(Generate());
  BarcodeSettings before;
  std::memcpy(static_cast<void*>(&before), &CurrentSettings(), sizeof before);
  info_.height = 99.0;
  for (std::size_t length : {3117u, 3119u, 3120u, 50000u}) {
    Use(std::string(length, '7'));
    EXPECT_FALSE(Generate()) << length;
    EXPECT_EQ(std::memcmp(&before, &CurrentSettings(), sizeof before), 0) << length;
  }
}

TEST_F(DataMatrixExports, NullPointersAreHarmlessAndChangeNoSetting) {
  BarcodeSettings before;
  std::memcpy(static_cast<void*>(&before), &CurrentSettings(), sizeof before);
  info_.DataString = nullptr;
  EXPECT_FALSE(Generate());
  EXPECT_EQ(GenerateDataMatrixBarcode(nullptr), nullptr);
  Free2DBarcodeStringResult(nullptr);
  FreePdf417BarcodeStringResult(nullptr);
  EXPECT_EQ(std::memcmp(&before, &CurrentSettings(), sizeof before), 0);
}

TEST_F(DataMatrixExports, ARefusedSymbolIsNullAndLeavesTheSettingsInForce) {
  info_.MatrixSize = 0x0A0A;
  info_.IsExpanding = 0;
  Use(std::string(20, '7'));  // ten codewords
  EXPECT_FALSE(Generate());
  EXPECT_EQ(CurrentSettings().MatrixSize, 0x0A0A);
  EXPECT_EQ(CurrentSettings().height, 10.0);
  info_.IsExpanding = 1;
  EXPECT_TRUE(Generate());
}

struct Refusal {
  int codewords;  // of two digits each
  int format;
  int matrixSize;
  int isExpanding;
};

constexpr Refusal kRefusals[] = {
    {1, 0, 0x0000, 0},     // the smallest square is larger than 0 x 0
    {4, 0, 0x0A0A, 0},     // 12 x 12 is larger
    {3, 0, 0x0B0B, 1},     // 11 x 11 is looked up
    {1, 0, 0xFFFF, 1},     // as is 255 x 255
    {6, 0, 0x0C1A, 0},     // 8 x 32 comes first and is wider
    {10, 0, 0x0C1A, 0},    //
    {16, 0, 0x0820, 1},    // looked up, and holds 10
    {50, 0, 0x0812, 0},    // no rectangle holds them, and only 1 makes a square
    {50, 0, 0x0812, 2},    //
    {50, 0, 0x1030, 0},    //
    {50, 0, 0x1030, 1},    // 32 x 32 is narrower than 48 columns
    {1558, 2, 0x0000, 1},  // with the header 1559 codewords
};

TEST_F(DataMatrixExports, EveryRefusalIsNullAndLeavesTheRecordInForce) {
  for (const Refusal& refusal : kRefusals) {
    SCOPED_TRACE(testing::Message() << refusal.codewords << " codewords, " << refusal.matrixSize
                                    << ", expanding " << refusal.isExpanding);
    Use(std::string(static_cast<std::size_t>(2 * refusal.codewords), '7'));
    info_.format = refusal.format;
    info_.MatrixSize = refusal.matrixSize;
    info_.IsExpanding = static_cast<uint8_t>(refusal.isExpanding);
    CurrentSettings().FillHeight = CurrentSettings().FillWidth = -77.0;
    EXPECT_FALSE(Generate());
    const BarcodeSettings& s = CurrentSettings();
    EXPECT_EQ(std::u16string(s.DataString).size(), text_.size());
    EXPECT_EQ(s.MatrixSize, refusal.matrixSize);
    EXPECT_EQ(s.IsExpanding, refusal.isExpanding);
    EXPECT_EQ(s.FillHeight, -77.0);  // nothing was hatched
    EXPECT_EQ(s.FillWidth, -77.0);
  }
}

TEST_F(DataMatrixExports, AFormatThatNamesNothingAddsNothing) {
  const OwnedFill plain = Generate();
  using Limits = std::numeric_limits<std::int32_t>;
  for (const std::int32_t format : {4, 5, -1, Limits::min(), Limits::max()}) {
    info_.format = format;
    const OwnedFill fill = Generate();
    ASSERT_TRUE(fill) << format;
    EXPECT_EQ(Doubles(*fill), Doubles(*plain)) << format;
  }
}

TEST_F(DataMatrixExports, ASmallSymbolAfterTheLargestShowsNoLeftovers) {
  const OwnedFill before = Generate();
  Use(std::string(3116, '7'));
  ASSERT_TRUE(Generate());
  Use("123456");
  EXPECT_EQ(Doubles(*Generate()), Doubles(*before));
}

TEST_F(DataMatrixExports, TheQuietZoneIsOneModuleOnEverySide) {
  const OwnedFill plain = Generate();
  info_.QuietZone = 1;
  info_.height = 12.0;
  const OwnedFill framed = Generate();
  std::vector<double> moved = Doubles(*plain);
  for (double& coordinate : moved) coordinate += 1.0;
  EXPECT_EQ(Doubles(*framed), moved);
  EXPECT_EQ(framed->FillHeight, 10.0);
}

TEST_F(DataMatrixExports, FillsWithoutCoordinatesAreNull) {
  for (int type : {4, 7, -1}) {
    info_.HatchingType = type;
    EXPECT_FALSE(Generate()) << type;
  }
  info_.HatchingType = 0;
  for (double gap : {0.0, -1.0, 1e-12, std::numeric_limits<double>::quiet_NaN()}) {
    info_.LineGap = gap;
    EXPECT_FALSE(Generate()) << gap;
  }
}

TEST_F(DataMatrixExports, RefusedTextOfTheSettersDoesNotMatterToARecord) {
  SetDataString(nullptr);
  EXPECT_TRUE(Generate());
}

TwoDStringResult* NewGrid() {
  auto* grid = new TwoDStringResult{1, 2, new char[3]};
  std::memcpy(grid->data, "Aa", 3);
  return grid;
}

// The sanitizers and the allocation tests see a grid that is not released whole, or in another
// form.
TEST_F(DataMatrixExports, BothReleaseFunctionsTakeAGrid) {
  Free2DBarcodeStringResult(NewGrid());
  FreePdf417BarcodeStringResult(NewGrid());
  Free2DBarcodeStringResult(new TwoDStringResult{0, 0, nullptr});
}

class DataMatrixTrace : public DataMatrixExports {
 protected:
  DataMatrixTrace() { AttachApiTrace(file_.Writer()); }
  ~DataMatrixTrace() override { CloseApiTrace(); }

  static std::string GridStatements(int rows, int columns, const std::string& release) {
    const std::string r = std::to_string(rows), c = std::to_string(columns);
    return "TwoDStringResult* stringResult;\nstringResult->numrows = " + r +
           "\nstringResult->numcols = " + c + "\n" + release + "(" + c + "," + r + ");\n";
  }

  static std::string RecordStatements(const std::string& text) {
    return "\n\n"
           "DataMatrixBarcodeInfo* dmBarInfo = new DataMatrixBarcodeInfo();\n"
           "dmBarInfo->DataString = " +
           text +
           ";\n"
           "dmBarInfo->height = 10.000000f;\n"
           "dmBarInfo->format = 0.000000f;\n"
           "dmBarInfo->HatchingType = 6;\n"
           "dmBarInfo->LineGap = 0.100000f;\n"
           "dmBarInfo->InvertImage = 0;\n"
           "dmBarInfo->MatrixSize = 2066;\n"
           "dmBarInfo->IsExpanding = 1;\n"
           "dmBarInfo->QuietZone = 0;\n"
           "dmBarInfo->QuietZoneSize = 5;\n"
           "dmBarInfo->BorderWidth = -6;\n"
           "GenerateDataMatrixBarcode(dmBarInfo);\n"
           "\n\n";
  }

  test::TraceFile file_;
};

TEST_F(DataMatrixTrace, TheRecordIsFollowedByTheReleaseOfTheGridWithColumnsFirst) {
  info_.MatrixSize = 0x0812;
  info_.format = 3;  // printed as the double whose low word it is
  info_.QuietZoneSize = 5;
  info_.BorderWidth = -6;
  const OwnedFill fill(GenerateDataMatrixBarcode(&info_));
  ASSERT_TRUE(fill);
  EXPECT_EQ(file_.Text(),
            RecordStatements("123456") + GridStatements(8, 18, "Free2DBarcodeStringResult"));
}

TEST_F(DataMatrixTrace, ARefusedCallIsTracedAsWell) {
  info_.MatrixSize = 0x0812;
  info_.QuietZoneSize = 5;
  info_.BorderWidth = -6;
  const std::string digits(3117, '7');
  Use(digits);
  EXPECT_FALSE(Generate());
  EXPECT_EQ(file_.Text(), RecordStatements(digits));
}

TEST_F(DataMatrixTrace, TheEmptyGridOfARefusedSymbolIsReleasedAndTraced) {
  info_.MatrixSize = 0x0812;
  info_.format = 2;  // with the header 1559 codewords
  info_.QuietZoneSize = 5;
  info_.BorderWidth = -6;
  const std::string digits(3116, '7');
  Use(digits);
  EXPECT_FALSE(Generate());
  EXPECT_EQ(file_.Text(),
            RecordStatements(digits) + GridStatements(0, 0, "Free2DBarcodeStringResult"));
}

TEST_F(DataMatrixTrace, ReleaseFunctionsTraceGridsButNotNull) {
  Free2DBarcodeStringResult(nullptr);
  FreePdf417BarcodeStringResult(nullptr);
  EXPECT_EQ(GenerateDataMatrixBarcode(nullptr), nullptr);
  EXPECT_EQ(file_.Text(), "");
  FreePdf417BarcodeStringResult(NewGrid());
  EXPECT_EQ(file_.Text(), GridStatements(1, 2, "FreePdf417BarcodeStringResult"));
}

}  // namespace
}  // namespace barhatch
