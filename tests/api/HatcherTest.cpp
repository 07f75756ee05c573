#include "api/Hatcher.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

#include "api/BarcodeSettings.h"
#include "support/Fills.h"
#include "support/PlainHatcher.h"
#include "support/SettingsFixture.h"

namespace barhatch {
namespace {

using test::Bits;
using test::Doubles;
using test::OwnedFill;

class HatcherTest : public test::SettingsFixture {
 protected:
  static OwnedFill Vectorize(const std::string& letters) {
    Hatcher hatcher;
    return OwnedFill(hatcher.VectorizeLinear(letters.c_str()));
  }
};

TEST_F(HatcherTest, ScalesTheWholeStringToTheWidthAndSubtractsTwentyModules) {
  SetBarcodeSize(3.0, 1.0);
  SetHatchPattern(0.5, 0);
  const OwnedFill fill = Vectorize("AaA");
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->FillWidth, -17.0);
  EXPECT_EQ(fill->FillHeight, 1.0);
  EXPECT_EQ(Doubles(*fill),
            (std::vector<double>{0, 0, 1, 0, 2, 0, 3, 0, 0, 0.5, 1, 0.5, 2, 0.5, 3, 0.5}));
}

TEST_F(HatcherTest, ModuleWidthPlaysNoPart) {
  const OwnedFill before = Vectorize("AaBbA");
  SetModuleWidth(123.0);
  const OwnedFill after = Vectorize("AaBbA");
  EXPECT_EQ(Doubles(*before), Doubles(*after));
}

TEST_F(HatcherTest, PointsAreMarkedAsPointsAndStrokesAsStrokes) {
  for (int type : {0, 1, 2, 3, 5, 6}) {
    SetHatchPattern(0.01, type);
    const OwnedFill fill = Vectorize("AaBbA");
    ASSERT_TRUE(fill) << type;
    EXPECT_EQ(fill->FillingShapeType, type == 6 ? 2 : 0) << type;
    EXPECT_EQ(fill->BufferLength % (type == 6 ? 2 : 4), 0) << type;
  }
}

TEST_F(HatcherTest, AFillWithoutCoordinatesIsNullAndStillSetsTheExtents) {
  SetBarcodeSize(4.0, 2.0);
  SetHatchPattern(0.1, 4);
  EXPECT_FALSE(Vectorize("AaA"));
  EXPECT_EQ(CurrentSettings().FillHeight, 2.0);
  EXPECT_EQ(CurrentSettings().FillWidth, 4.0 - 20.0 * (4.0 / 3.0));
}

TEST_F(HatcherTest, AStringWithoutModulesIsNull) {
  EXPECT_FALSE(Vectorize(""));
  EXPECT_FALSE(Vectorize("0110"));
  SetPrintRatio(0.0);
  EXPECT_FALSE(Vectorize("BbB"));
}

TEST_F(HatcherTest, AStringWithoutFilledElementsIsNull) {
  EXPECT_FALSE(Vectorize("aab"));
  SetImageInversionMode(1);
  EXPECT_FALSE(Vectorize("AAB"));
}

TEST_F(HatcherTest, AnyNonZeroInversionByteInverts) {
  SetImageInversionMode(1);
  const OwnedFill one = Vectorize("AaBbA");
  for (int byte : {2, 0x80, 0xFF}) {
    SetImageInversionMode(static_cast<uint8_t>(byte));
    EXPECT_EQ(CurrentSettings().InvertImage, byte);
    EXPECT_EQ(Doubles(*Vectorize("AaBbA")), Doubles(*one)) << byte;
  }
}

TEST_F(HatcherTest, ZeroSizesFillNothingButPointsStay) {
  SetBarcodeSize(0.0, 0.0);
  for (int type : {0, 1, 2, 3}) {
    SetHatchPattern(0.1, type);
    EXPECT_FALSE(Vectorize("AaA")) << type;
  }
  SetHatchPattern(0.1, 6);
  EXPECT_EQ(Vectorize("AaA")->BufferLength, 4);
}

TEST_F(HatcherTest, SettingsOfNoNumberEnd) {
  const double strange[] = {std::numeric_limits<double>::quiet_NaN(),
                            std::numeric_limits<double>::infinity(), -1.0, 5e-324, 1e308};
  for (double value : strange) {
    for (int type = 0; type <= 6; ++type) {
      InitBarcode();
      SetHatchPattern(0.01, type);
      SetBarcodeSize(value, value);
      Vectorize("AaBbA");
      InitBarcode();
      SetHatchPattern(0.01, type);
      SetPrintRatio(value);
      Vectorize("AaBbA");
      InitBarcode();
      SetHatchPattern(value, type);
      Vectorize("AaBbA");
    }
  }
}

TEST_F(HatcherTest, FillsAgreeWithThePlainHatcherToTheLastBit) {
  std::mt19937_64 random(128);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  for (int round = 0; round < 2000; ++round) {
    std::string letters;
    for (std::size_t i = 0; i < 3 + random() % 40; ++i)
      letters += "AaBb"[(i % 2) + 2 * (random() % 2)];
    const test::PlainRequest request{0.5 + 3.0 * unit(random),
                                     0.1 + unit(random),
                                     2.0 + unit(random),
                                     0.01 + 0.1 * unit(random),
                                     static_cast<int>(random() % 7),
                                     random() % 2 == 0};
    SetBarcodeSize(request.width, request.height);
    SetPrintRatio(request.printRatio);
    SetImageInversionMode(request.invert ? 1 : 0);
    SetHatchPattern(request.lineGap, request.hatchingType);
    const auto plain = PlainLinearFill(letters, request);
    const OwnedFill fill = Vectorize(letters);
    ASSERT_EQ(static_cast<bool>(fill), !plain.empty());
    if (fill) {
      ASSERT_EQ(Bits(Doubles(*fill)), Bits(plain)) << letters << " type " << request.hatchingType;
    }
  }
}

}  // namespace
}  // namespace barhatch
