// What the linear symbologies refuse, and the reason, the position and the figure that they give
// for it; what they take only as the device does, and the deviations that this meets.
#include "symbologies/TextRules.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>

#include "symbologies/DrawnSymbol.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {
namespace {

using test::Draw;
using test::QuietZone;

struct RefusedText {
  std::int32_t type;
  std::string text;
  Reason reason;
  std::int32_t position;
  std::int32_t figure;
};

void ExpectRefused(const RefusedText& row, DeviationSet inForce) {
  const test::DrawnSymbol drawn = Draw(row.type, row.text, QuietZone::kNone, inForce);
  EXPECT_EQ(drawn.refusal.reason, row.reason) << row.type << ' ' << row.text;
  EXPECT_EQ(drawn.refusal.position, row.position) << row.type << ' ' << row.text;
  EXPECT_EQ(drawn.refusal.figure, row.figure) << row.type << ' ' << row.text;
  EXPECT_EQ(drawn.letters, std::nullopt) << row.type << ' ' << row.text;
}

constexpr int kCodabar = 0;
constexpr int kCode39 = 1;
constexpr int kCode93 = 2;
constexpr int kEan13 = 3;
constexpr int kMsi = 4;
constexpr int kCode128 = 5;
constexpr int kCode128SetB = 7;
constexpr int kUpcE = 10;
constexpr int kCode11 = 11;
constexpr int kEan8Addon2 = 17;
constexpr int kUpcEAddon2 = 19;
constexpr int kFullAscii93 = 22;

// By the book and by the device.
const RefusedText kAlwaysRefused[] = {
    {kCodabar, "A1B2C", Reason::kEndInside, 2, 'B'},
    {kCodabar, "AB1C", Reason::kEndInside, 1, 'B'},
    {kCodabar, "A1BC", Reason::kEndInside, 2, 'B'},
    {kCodabar, "1E1", Reason::kEndInside, 1, 'E'},
    {kCodabar, "A1x2C", Reason::kCharacter, 2, 'x'},
    {kCodabar, "", Reason::kEmpty, -1, 0},
    {kCode39, "Ax", Reason::kCharacter, 1, 'x'},
    {kCode93, "A*", Reason::kCharacter, 1, '*'},
    {kCode93, "\xC4", Reason::kCharacter, 0, 0xC4},
    {kEan13, "12345678901a", Reason::kCharacter, 11, 'a'},
    {kEan13, "12345678901", Reason::kLength, -1, 11},
    {kEan13, "1234567890123", Reason::kLength, -1, 13},
    {kEan13, "", Reason::kEmpty, -1, 0},
    {kMsi, "12-", Reason::kCharacter, 2, '-'},
    {kCode128SetB, "ab\x1F", Reason::kCharacter, 2, 0x1F},
    {kCode128SetB, "\x80", Reason::kCharacter, 0, 0x80},
    {kUpcE, "2123456", Reason::kNumberSystem, 0, '2'},
    {kUpcE, "012345", Reason::kLength, -1, 6},
    {kUpcE, "01234567", Reason::kLength, -1, 8},
    {kCode11, "1+", Reason::kCharacter, 1, '+'},
};

TEST(TextRules, WhatNobodyTakesIsRefusedWithItsPlace) {
  for (const RefusedText& row : kAlwaysRefused) {
    ExpectRefused(row, DeviationSet());
    ExpectRefused(row, DeviationSet::All());
  }
}

// The device's plan of code sets lacks what takes a shift or FNC4.
TEST(TextRules, ControlCharactersAndBytesOfCode128AreTakenByTheBookAlone) {
  for (const RefusedText& row : {RefusedText{kCode128, "ab\x1F", Reason::kCharacter, 2, 0x1F},
                                 RefusedText{kCode128, "\x80", Reason::kCharacter, 0, 0x80}}) {
    ExpectRefused(row, DeviationSet::All());
    EXPECT_TRUE(test::DrawnByTheBook(row.type, row.text)) << row.text;
  }
}

struct DeviatingText {
  RefusedText refused;  // by the book
  Deviation by;         // the one that the device takes it by
};

const DeviatingText kTakenByTheDevice[] = {
    {{kCodabar, "123", Reason::kNoStart, 0, 0}, Deviation::kDCB_1},
    {{kCodabar, "1", Reason::kLength, -1, 1}, Deviation::kDCB_1},
    {{kCodabar, "12A", Reason::kNoStart, 0, 0}, Deviation::kDCB_2},
    {{kCodabar, "A123", Reason::kNoStop, 3, 0}, Deviation::kDCB_2},
    {{kCodabar, "A", Reason::kLength, -1, 1}, Deviation::kDCB_2},
    {{kCodabar, "AB", Reason::kLength, -1, 2}, Deviation::kDCB_3},
    {{kCode39, "", Reason::kEmpty, -1, 0}, Deviation::kD39_6},
    {{kCode39, "AB*C", Reason::kCharacter, 2, '*'}, Deviation::kD39_4},
    {{kCode39, "*ABC", Reason::kCharacter, 0, '*'}, Deviation::kD39_4},
    {{kCode93, "", Reason::kEmpty, -1, 0}, Deviation::kD93_4},
    {{kMsi, "", Reason::kEmpty, -1, 0}, Deviation::kDMSI_1},
    {{kUpcE, "1123455", Reason::kNotStandard, 0, 0}, Deviation::kDEAN_3},
    {{kUpcE, "0122453", Reason::kUpcEForm, 1, 120452}, Deviation::kDEAN_4},
    {{kCode11, "", Reason::kEmpty, -1, 0}, Deviation::kD11_2},
    {{kEan8Addon2, "123456712", Reason::kNotStandard, -1, 0}, Deviation::kDEAN_2},
    {{kUpcEAddon2, "112345512", Reason::kNotStandard, 0, 0}, Deviation::kDEAN_3},
    {{kFullAscii93, "AB\x80", Reason::kCharacter, 2, 0x80}, Deviation::kD93_2},
    {{kFullAscii93, "\xFF", Reason::kCharacter, 0, 0xFF}, Deviation::kD93_3},
};

DeviationSet Only(std::initializer_list<Deviation> ids) {
  DeviationSet set;
  for (const Deviation id : ids) set.Add(id);
  return set;
}

DeviationSet AllBut(Deviation id) {
  DeviationSet set = DeviationSet::All();
  set.Remove(id);
  return set;
}

TEST(TextRules, WhatTheDeviceAloneTakesIsRefusedByTheBook) {
  for (const DeviatingText& row : kTakenByTheDevice) {
    ExpectRefused(row.refused, DeviationSet());
    ExpectRefused(row.refused, AllBut(row.by));
  }
}

TEST(TextRules, ADeviationInForceTakesTheTextAndIsMet) {
  for (const DeviatingText& row : kTakenByTheDevice) {
    const test::DrawnSymbol drawn =
        Draw(row.refused.type, row.refused.text, QuietZone::kNone, Only({row.by}));
    EXPECT_TRUE(drawn.letters) << row.refused.type << ' ' << row.refused.text;
    EXPECT_EQ(drawn.met.Bits(), Only({row.by}).Bits())
        << row.refused.type << ' ' << row.refused.text;
  }
}

TEST(TextRules, WhatTheBookTakesMeetsNoDeviationOfItsForm) {
  for (const auto& [type, text] :
       {std::pair{kCodabar, "A1B"}, std::pair{kCodabar, "T+E"}, std::pair{kUpcE, "0123455"},
        std::pair{kUpcE, "0123453"}, std::pair{kUpcE, "0000100"}}) {
    const test::DrawnSymbol drawn = Draw(type, text, QuietZone::kNone, DeviationSet::All());
    EXPECT_TRUE(drawn.letters) << text;
    EXPECT_EQ(drawn.met.Bits(), 0u) << text;
  }
}

// The first characters beyond ASCII have none before them, the later ones have.
TEST(TextRules, BytesInFrontAreMetApartFromThoseBehindACharacter) {
  const auto met = [](const std::string& text) {
    return Draw(kFullAscii93, text, QuietZone::kNone, DeviationSet::All()).met.Bits();
  };
  EXPECT_EQ(met("\x80\x81"), Only({Deviation::kD93_3}).Bits());
  EXPECT_EQ(met("A\x80\x81"), Only({Deviation::kD93_2}).Bits());
  EXPECT_EQ(met("\x80"
                "A\x81"),
            Only({Deviation::kD93_2, Deviation::kD93_3}).Bits());
}

TEST(TextRules, OnlyWhatBelongsToTheTextMakesAPercentPair) {
  char room[] = "%%";
  std::size_t length = 1;
  Conformance how = Conformance::Device();
  EXPECT_FALSE(CheckText(RowOf(kCode39)->drawing.text, room, length, how).IsRefused());
  EXPECT_EQ(length, 1u);
  EXPECT_EQ(how.Met().Bits(), 0u);
}

}  // namespace
}  // namespace barhatch
