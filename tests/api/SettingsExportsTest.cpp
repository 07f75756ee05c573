#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <memory>
#include <string>

#include "api/BarcodeSettings.h"
#include "barhatch.h"
#include "support/Fills.h"
#include "support/OwnedString.h"
#include "support/SettingsFixture.h"
#include "support/Text16.h"

namespace barhatch {
namespace {

using test::Take;
using test::Text16;
using test::Widen;

class Settings : public test::SettingsFixture {
 protected:
  static void UseCode39(const std::string& text) {
    SetBarcodeType(1);
    SetDataString(Widen(text).c_str());
  }
};

class TextLimit : public Settings {};

// The settings as the loader leaves them. The test programs share one process, so the state is made
// by hand.
TEST(SettingsBeforeInit, AllZeroSettingsGenerateByThem) {
  std::memset(static_cast<void*>(&CurrentSettings()), 0, sizeof(BarcodeSettings));
  EXPECT_EQ(GenerateBarcodeString(), nullptr);  // type 0, Codabar, has no symbol without text
  EXPECT_EQ(GenerateVectorizedBarcode(), nullptr);
  SetBarcodeType(1);
  EXPECT_EQ(Take(GenerateBarcodeString()), "AbAaBaBaAaAbAaBaBaA");  // the empty text
  EXPECT_EQ(GenerateVectorizedBarcode(),
            nullptr);  // width, height and line gap of zero fill nothing
  SetHatchPattern(0.0, 6);
  const test::OwnedFill points(GenerateVectorizedBarcode());
  ASSERT_TRUE(points);
  for (double coordinate : test::Doubles(*points)) EXPECT_EQ(coordinate, 0.0);
  InitBarcode();
}

TEST(SettingsBeforeInit, StaticBlockIsZeroInitialised) {
  // The block that every program starts with has no start-up code: a second one of the same kind
  // proves the form.
  static BarcodeSettings fresh;
  EXPECT_EQ(fresh.type, 0);
  EXPECT_EQ(fresh.DataString[0], u'\0');
  EXPECT_EQ(fresh.width, 0.0);
  EXPECT_EQ(fresh.PrintRatio, 0.0);
  EXPECT_FALSE(fresh.DataStringRefused);
}

void ExpectDefaults() {
  const BarcodeSettings& s = CurrentSettings();
  EXPECT_EQ(s.type, 0);
  EXPECT_EQ(std::u16string(s.DataString), u"123");
  EXPECT_FALSE(s.DataStringRefused);
  EXPECT_EQ(s.width, 1.0);
  EXPECT_EQ(s.height, 0.5);
  EXPECT_EQ(s.ModuleWidth, 2.0);
  EXPECT_EQ(s.PrintRatio, 3.0);
  EXPECT_EQ(s.InvertImage, 0);
  EXPECT_EQ(s.HatchingType, 0);
  EXPECT_EQ(s.LineGap, 0.0001);
  EXPECT_EQ(s.QuietZone, 0);
  EXPECT_EQ(s.QuietZoneSize, 1);
  EXPECT_EQ(s.BorderWidth, 0);
  EXPECT_EQ(s.MatrixSize, 0x0C0C);
  EXPECT_EQ(s.MatrixSize, 3084);
  EXPECT_EQ(s.format, 0);
  EXPECT_EQ(s.IsExpanding, 0);
  EXPECT_EQ(s.FillHeight, 0.5);
  EXPECT_EQ(s.FillWidth, 1.0);
  EXPECT_EQ(s.ReservedInteger3, 3);
  EXPECT_EQ(s.ReservedInteger90, 90);
  EXPECT_EQ(s.ReservedDouble, 0.0);
}

TEST_F(Settings, InitBarcodeRestoresEveryDefault) {
  std::memset(static_cast<void*>(&CurrentSettings()), 0x55, sizeof(BarcodeSettings));
  InitBarcode();
  ExpectDefaults();
  SetDataString(nullptr);
  InitBarcode();
  ExpectDefaults();
}

TEST_F(Settings, EverySetterWritesItsFields) {
  SetBarcodeType(21);
  SetDataString(Widen("42").c_str());
  SetModuleWidth(9.0);
  SetPrintRatio(2.5);
  SetImageInversionMode(7);
  SetHatchPattern(0.25, 5);
  SetBarcodeSize(11.0, 12.0);
  SetCodeFormat(3);
  SetMatrixsize(static_cast<_matrixSize>(0x1030));
  const BarcodeSettings& s = CurrentSettings();
  EXPECT_EQ(s.type, 21);
  EXPECT_EQ(std::u16string(s.DataString), u"42");
  EXPECT_EQ(s.ModuleWidth, 9.0);
  EXPECT_EQ(s.PrintRatio, 2.5);
  EXPECT_EQ(s.InvertImage, 7);
  EXPECT_EQ(s.LineGap, 0.25);
  EXPECT_EQ(s.HatchingType, 5);
  EXPECT_EQ(s.width, 11.0);
  EXPECT_EQ(s.height, 12.0);
  EXPECT_EQ(s.format, 3);
  EXPECT_EQ(s.MatrixSize, 0x1030);
}

TEST_F(Settings, SetBarcodeHeightStoresTheIntegerAndLeavesTheWidthAlone) {
  SetBarcodeHeight(7);
  EXPECT_EQ(CurrentSettings().height, 7.0);
  EXPECT_EQ(CurrentSettings().width, 1.0);
}

TEST_F(Settings, SetBarcodeHeightKeepsNegativeValues) {
  SetBarcodeHeight(-3);
  EXPECT_EQ(CurrentSettings().height, -3.0);
}

TEST_F(Settings, SettersAcceptAnyValue) {
  SetMatrixsize(static_cast<_matrixSize>(std::numeric_limits<int32_t>::min()));
  SetCodeFormat(std::numeric_limits<int32_t>::max());
  EXPECT_EQ(CurrentSettings().MatrixSize, std::numeric_limits<int32_t>::min());
  EXPECT_EQ(CurrentSettings().format, std::numeric_limits<int32_t>::max());
}

TEST_F(Settings, SetModuleWidthLeavesEveryOutputUnchanged) {
  UseCode39("A1");
  const auto letters = Take(GenerateBarcodeString());
  const test::OwnedFill fill(GenerateVectorizedBarcode());
  for (double width : {0.0, -1.0, 1e300}) {
    SetModuleWidth(width);
    EXPECT_EQ(Take(GenerateBarcodeString()), letters);
    const test::OwnedFill again(GenerateVectorizedBarcode());
    EXPECT_EQ(test::Doubles(*again), test::Doubles(*fill));
  }
}

TEST_F(Settings, TypesBeyondTheTableAreAcceptedAndGenerateNothing) {
  for (int32_t type :
       {23, -1, std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()}) {
    SetBarcodeType(type);
    EXPECT_EQ(CurrentSettings().type, type);
    EXPECT_EQ(GenerateBarcodeString(), nullptr);
    EXPECT_EQ(GenerateVectorizedBarcode(), nullptr);
  }
}

TEST_F(Settings, TwoCallsGiveTwoEqualStringsOfTheirOwn) {
  UseCode39("A1");
  const std::unique_ptr<char[]> first(GenerateBarcodeString());
  const std::unique_ptr<char[]> second(GenerateBarcodeString());
  ASSERT_NE(first.get(), second.get());
  EXPECT_STREQ(first.get(), second.get());
}

TEST_F(Settings, RefusedDataGivesNull) {
  UseCode39("abc");
  EXPECT_EQ(GenerateBarcodeString(), nullptr);
  EXPECT_EQ(GenerateVectorizedBarcode(), nullptr);
}

TEST_F(Settings, LinearTextKeepsTheLowByteOfEachUnit) {
  SetBarcodeType(1);
  const BarhatchChar text[] = {0x0141, 0x3031, 0};  // low bytes 'A' and '1'
  SetDataString(text);
  const auto narrowed = Take(GenerateBarcodeString());
  UseCode39("A1");
  EXPECT_EQ(narrowed, Take(GenerateBarcodeString()));
}

TEST_F(Settings, AUnitWithLowByteZeroEndsTheNarrowedText) {
  SetBarcodeType(1);
  const BarhatchChar text[] = {'1', 0x0100, '2', 0};
  SetDataString(text);
  const auto ended = Take(GenerateBarcodeString());
  UseCode39("1");
  EXPECT_EQ(ended, Take(GenerateBarcodeString()));
}

TEST_F(TextLimit, UpTo3119UnitsAreStoredAsTheyAre) {
  for (std::size_t length : {0u, 1u, 3116u, 3117u, 3118u, 3119u}) {
    SetDataString(Text16(length, BarhatchChar{'7'}).c_str());
    EXPECT_EQ(std::u16string(CurrentSettings().DataString).size(), length);
    EXPECT_FALSE(CurrentSettings().DataStringRefused);
  }
}

TEST_F(TextLimit, EmptyTextEndsAtItsFirstUnitWhateverStandsBehind) {
  Text16 units(kDataStringCapacity + 1, BarhatchChar{'7'});
  units[0] = 0;
  UseCode39("B");
  SetDataString(units.c_str());
  EXPECT_EQ(Take(GenerateBarcodeString()), "AbAaBaBaAaAbAaBaBaA");
}

TEST_F(TextLimit, From3120UnitsOnTextIsRefusedUntilAnAcceptableOneIsSet) {
  for (std::size_t length : {3120u, 3121u, 100000u}) {
    UseCode39("7");
    ASSERT_TRUE(Take(GenerateBarcodeString()));
    SetDataString(Text16(length, BarhatchChar{'7'}).c_str());
    EXPECT_EQ(GenerateBarcodeString(), nullptr);
    EXPECT_EQ(GenerateVectorizedBarcode(), nullptr);
    EXPECT_EQ(GenerateBarcodeString(), nullptr) << "still refused";
    SetDataString(Widen("7").c_str());
    EXPECT_TRUE(Take(GenerateBarcodeString()));
  }
}

TEST_F(TextLimit, NothingOfARefusedTextOrOfTheOneBeforeIsKept) {
  UseCode39("7");
  SetDataString(Text16(3120, BarhatchChar{'8'}).c_str());
  EXPECT_EQ(std::u16string(CurrentSettings().DataString), u"");
}

TEST_F(TextLimit, NullTextIsHarmlessAndRefused) {
  UseCode39("7");
  SetDataString(nullptr);
  EXPECT_EQ(GenerateBarcodeString(), nullptr);
  InitBarcode();
  UseCode39("7");
  EXPECT_TRUE(Take(GenerateBarcodeString()));
}

TEST_F(TextLimit, ATextWithoutEndInSightIsReadNoFurtherThanTheLimit) {
  // Exactly as many units as the library may look at, none of them zero: reading on would leave the
  // array.
  const std::unique_ptr<BarhatchChar[]> text(new BarhatchChar[kDataStringCapacity + 1]);
  for (std::size_t i = 0; i <= kDataStringCapacity; ++i) text[i] = '7';
  SetDataString(text.get());
  EXPECT_EQ(GenerateBarcodeString(), nullptr);
}

}  // namespace
}  // namespace barhatch
