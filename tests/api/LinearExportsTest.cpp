#include <gtest/gtest.h>

#include <cstring>
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

using test::Doubles;
using test::OwnedFill;
using test::Text16;
using test::Widen;

class LinearExports : public test::SettingsFixture {
 protected:
  LinearExports() : text_(Widen("A1")) {
    info_.height = 0.25;
    info_.width = 5.0;
    info_.type = 1;
    info_.DataString = text_.c_str();
    info_.HatchingType = 2;
    info_.LineGap = 0.01;
    info_.InvertImage = 3;
    info_.PrintRatio = 2.25;
    info_.QuietZone = 4;
    info_.QuietZoneSize = 5;
    info_.BorderWidth = 6;
  }

  Text16 text_;
  LinearBarcodeInfo info_{};
};

TEST_F(LinearExports, RecordValuesStayInForceAfterTheCall) {
  const OwnedFill first(GenerateLinearBarcode(&info_));
  ASSERT_TRUE(first);
  const BarcodeSettings& s = CurrentSettings();
  EXPECT_EQ(s.height, 0.25);
  EXPECT_EQ(s.width, 5.0);
  EXPECT_EQ(s.type, 1);
  EXPECT_EQ(std::u16string(s.DataString), u"A1");
  EXPECT_EQ(s.HatchingType, 2);
  EXPECT_EQ(s.LineGap, 0.01);
  EXPECT_EQ(s.InvertImage, 3);
  EXPECT_EQ(s.PrintRatio, 2.25);
  EXPECT_EQ(s.QuietZone, 4);
  EXPECT_EQ(s.QuietZoneSize, 5);
  EXPECT_EQ(s.BorderWidth, 6);
  const OwnedFill second(GenerateVectorizedBarcode());
  ASSERT_TRUE(second);
  EXPECT_EQ(Doubles(*second), Doubles(*first));
  EXPECT_EQ(second->FillWidth, first->FillWidth);
}

TEST_F(LinearExports, RecordAndSettersGiveTheSameFill) {
  const OwnedFill byRecord(GenerateLinearBarcode(&info_));
  const OwnedFill again(GenerateVectorizedBarcode());
  const std::unique_ptr<char[]> letters(GenerateBarcodeString());
  const OwnedFill byString(HatchBarcodeString(letters.get()));
  EXPECT_EQ(Doubles(*byRecord), Doubles(*byString));
  EXPECT_EQ(Doubles(*byRecord), Doubles(*again));
}

TEST_F(LinearExports, QuietZoneWithoutQuietZoneModulesShortensTheWidthAllTheSame) {
  info_.InvertImage = 0;
  const OwnedFill with(GenerateLinearBarcode(&info_));
  info_.QuietZone = 0;
  const OwnedFill without(GenerateLinearBarcode(&info_));
  // "*A1*" with a print ratio of 2.25: 4 x (6 + 3 x 2.25) + 3 gaps = 54 modules.
  EXPECT_DOUBLE_EQ(without->FillWidth, 5.0 - 20.0 * 5.0 / 54.0);
  EXPECT_DOUBLE_EQ(with->FillWidth, 5.0 - 20.0 * 5.0 / 74.0);
  EXPECT_EQ(with->FillHeight, 0.25);
}

TEST_F(LinearExports, OverlongOrNullTextChangesNoSetting) {
  const Text16 longest(3119, BarhatchChar{'7'});
  const Text16 tooLong(3120, BarhatchChar{'7'});
  InitBarcode();
  BarcodeSettings before;
  std::memcpy(static_cast<void*>(&before), &CurrentSettings(), sizeof before);
  for (const BarhatchChar* text : {tooLong.c_str(), static_cast<const BarhatchChar*>(nullptr)}) {
    info_.DataString = text;
    EXPECT_EQ(GenerateLinearBarcode(&info_), nullptr);
    EXPECT_EQ(std::memcmp(&before, &CurrentSettings(), sizeof before), 0);
  }
  info_.DataString = longest.c_str();
  EXPECT_EQ(GenerateLinearBarcode(&info_), nullptr);  // too long for Code 39, but stored
  EXPECT_EQ(std::u16string(CurrentSettings().DataString).size(), 3119u);
}

TEST_F(LinearExports, AnAcceptableRecordLiftsAnEarlierRefusal) {
  SetDataString(nullptr);
  EXPECT_TRUE(OwnedFill(GenerateLinearBarcode(&info_)));
  EXPECT_TRUE(OwnedFill(GenerateVectorizedBarcode()));
}

TEST_F(LinearExports, NullPointersAreHarmless) {
  EXPECT_EQ(GenerateLinearBarcode(nullptr), nullptr);
  EXPECT_EQ(HatchBarcodeString(nullptr), nullptr);
  FreeBarcodeData(nullptr);
}

TEST_F(LinearExports, StringsOfTheHostAreHatchedLikeThoseOfTheLibrary) {
  SetBarcodeType(1);
  SetDataString(Widen("A1").c_str());
  SetHatchPattern(0.01, 0);
  const std::unique_ptr<char[]> letters(GenerateBarcodeString());
  const std::string own(letters.get());
  EXPECT_EQ(Doubles(*OwnedFill(HatchBarcodeString(own.c_str()))),
            Doubles(*OwnedFill(HatchBarcodeString(letters.get()))));
  EXPECT_EQ(own, letters.get()) << "the string stays as it was";
}

TEST_F(LinearExports, TestStructShowsTheLayout) {
  const OwnedFill record(TestStruct());
  ASSERT_TRUE(record);
  EXPECT_EQ(record->FillingShapeType, 0);
  EXPECT_EQ(record->BufferLength, 12345);
  EXPECT_EQ(record->FilledArray, nullptr);
}

TEST_F(LinearExports, PatternsWithoutCoordinatesGiveNull) {
  for (int type : {4, 7, -1}) {
    info_.HatchingType = type;
    EXPECT_EQ(GenerateLinearBarcode(&info_), nullptr);
  }
  info_.HatchingType = 0;
  for (double gap : {0.0, -0.1, 1e-12, 5e-324}) {
    info_.LineGap = gap;
    EXPECT_EQ(GenerateLinearBarcode(&info_), nullptr);
  }
}

}  // namespace
}  // namespace barhatch
