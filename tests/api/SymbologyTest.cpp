#include "api/Symbology.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "api/SymbologyFactory.h"
#include "support/OwnedString.h"
#include "support/SettingsFixture.h"
#include "support/Text16.h"

namespace barhatch {
namespace {

std::string Narrow(const std::u16string& text) {
  char bytes[kNarrowTextCapacity];
  NarrowDataString(text.c_str(), bytes);
  return bytes;
}

TEST(NarrowDataString, KeepsTheLowByteOfEachUnit) {
  EXPECT_EQ(Narrow({0x0031, 0x0132, 0x0032}), "122");
  EXPECT_EQ(Narrow({0x0141}), "A");
  EXPECT_EQ(Narrow({0x20E9}), "\xE9");
}

TEST(NarrowDataString, AnEmptyTextGivesAnEmptyString) { EXPECT_EQ(Narrow(u""), ""); }

TEST(NarrowDataString, AUnitWithLowByteZeroEndsTheCopyForItsReader) {
  EXPECT_EQ(Narrow({0x0031, 0x0100, 0x0032}), "1");
}

TEST(Symbology, TheBaseEncodesNothing) { EXPECT_EQ(Symbology().GenerateString(), nullptr); }

TEST(SymbologyFactory, GivesNullOutsideTheTable) {
  for (std::int32_t type : {23, -1, std::numeric_limits<std::int32_t>::min(),
                            std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_EQ(SymbologyFactory(type), nullptr) << type;
  }
}

class QuietZones : public test::SettingsFixture {};

TEST_F(QuietZones, WithoutOneTheStringStartsAndEndsWithABar) {
  for (std::int32_t type : {1, 5, 6, 7, 8}) {  // Code 39 and Code 128
    SetBarcodeType(type);
    const auto letters = test::Take(GenerateBarcodeString());
    EXPECT_EQ(letters->front(), 'A') << type;
    EXPECT_EQ(letters->back(), 'A') << type;
  }
}

TEST_F(QuietZones, OfCode39AndCode128AreExactlyTenLightModules) {
  const test::Text16 text = test::Widen("123");
  LinearBarcodeInfo info{};
  info.DataString = text.c_str();
  info.QuietZone = 1;
  for (std::int32_t type : {1, 5, 6, 7, 8}) {
    info.type = type;
    EXPECT_EQ(GenerateLinearBarcode(&info), nullptr);  // no size, but the settings are in force
    const auto letters = test::Take(GenerateBarcodeString());
    EXPECT_EQ(letters->find_first_not_of('a'), 10u) << type;
    EXPECT_EQ(letters->find_last_not_of('a'), letters->size() - 11) << type;
  }
}

}  // namespace
}  // namespace barhatch
