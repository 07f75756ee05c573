// Texts whose codewords have changed, under the rule that was changed. "before" is what the library
// wrote until version 0.1, taken from that version: hosts that keep codewords find their texts
// here.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "datamatrix/EncodedText.h"
#include "support/DataMatrixReader.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::ItemsOf;

constexpr int kRefused = 0;  // data codewords of no symbol

struct Change {
  const char* text;
  SizeRequest request;
  const char* before;
  const char* after;
  int capacityBefore;  // data codewords of the symbol
  int capacityAfter;
};

std::vector<int> FromDecimal(const std::string& text) {
  std::vector<int> codewords;
  for (std::size_t begin = 0; begin < text.size(); begin = text.find(' ', begin) + 1) {
    codewords.push_back(std::stoi(text.substr(begin)));
    if (text.find(' ', begin) == std::string::npos) break;
  }
  return codewords;
}

int CapacityOf(const std::string& codewords, const SizeRequest& request) {
  const int count = static_cast<int>(FromDecimal(codewords).size());
  const auto size = test::ReferenceChoice(count, request.rows, request.columns,
                                          static_cast<int>(request.isExpanding));
  return size ? size->data : kRefused;
}

bool IsRead(const std::string& codewords, int capacity, const std::string& text) {
  const test::Reading reading =
      test::ReadDataCodewords(test::Padded(FromDecimal(codewords), capacity));
  return reading.isSound && reading.items == ItemsOf(text);
}

void ExpectChange(const Change& change) {
  EXPECT_STRNE(change.before, change.after) << change.text;
  EXPECT_EQ(test::Encoded(change.text, 0, change.request), change.after) << change.text;
  EXPECT_EQ(CapacityOf(change.before, change.request), change.capacityBefore) << change.text;
  EXPECT_EQ(CapacityOf(change.after, change.request), change.capacityAfter) << change.text;
}

constexpr SizeRequest kAnySquare = test::kSmallestSquare;

// Where fewer characters were left than a group, the look-ahead was not consulted.
// clang-format off
constexpr Change kLookAheadBehindEveryGroup[] = {
    // 124 and 239 for the three characters left
    {"A-1/B-2/C-3/D-4/E-5/5 m", kAnySquare,
     "240 6 220 111 10 220 175 14 220 239 18 221 47 22 221 111 124 54 33 110",
     "240 6 220 111 10 220 175 14 220 239 18 221 47 22 221 111 124 239 56 211 254", 22, 22},
    // the two characters in the last codewords had no unlatch in front of them
    {"A-1/B-2/C-3/D-4/E-5/ x", kAnySquare,
     "240 6 220 111 10 220 175 14 220 239 18 221 47 22 221 111 33 121",
     "240 6 220 111 10 220 175 14 220 239 18 221 47 22 221 111 124 33 121", 18, 22},
    // ASCII behind whole groups one below 12: no unlatch (D-DM-7), and the 1a is read as X12
    {"A*B1C>D1E*F1G>H1a", kAnySquare,
     "238 87 184 33 195 107 27 9 62 125 102 254 50 98",
     "238 87 184 33 195 107 27 9 62 125 102 50 98", 18, 18},
};

// One or two characters left were always unlatched for, but for one in the last codeword of a
// square.
constexpr Change kFinishingInTheMode[] = {
    // two values and a pad
    {"12AIMAIMAI", kAnySquare,
     "142 230 91 11 91 11 254 66 74",
     "142 230 91 11 91 11 90 241", 12, 8},
    {"12aimaimai", kAnySquare,
     "142 239 91 11 91 11 254 98 106",
     "142 239 91 11 91 11 90 241", 12, 8},
    {"859VK3FLWO", kAnySquare,
     "215 230 86 209 46 210 254 88 80",
     "215 230 86 209 46 210 229 97", 12, 8},
    {"Order DATE 47181batch", kAnySquare,
     "80 239 196 123 194 59 25 82 15 163 31 193 69 149 33 167 254 117 100 105",
     "80 239 196 123 194 59 25 82 15 163 31 193 69 149 33 167 208 214", 22, 18},
    // three values: one that waits, and two characters
    {"Serial TYPE 3850order", kAnySquare,
     "84 239 117 111 91 108 15 163 156 161 13 76 45 170 29 128 254 101 102 115",
     "84 239 117 111 91 108 15 163 156 161 13 76 45 170 29 128 109 48", 22, 18},
    // one character of two values, in as many codewords as the unlatch and ASCII
    {"11aa1 bbcc1 1aA", kAnySquare,
     "141 239 89 182 21 40 102 134 19 151 254 66",
     "141 239 89 182 21 40 102 134 19 151 12 169", 12, 12},
    // one character in ASCII in the last codeword of a rectangle
    {"AIMAIMAIMAIMA", {8, 32, 0},
     "230 91 11 91 11 91 11 91 11 254 66",
     "230 91 11 91 11 91 11 91 11 66", kRefused, 10},
    {"5RJSS547HBITS", {8, 32, 0},
     "230 61 48 205 10 51 206 97 82 254 84",
     "230 61 48 205 10 51 206 97 82 84", kRefused, 10},
    {"serial Model", {8, 18, 1},
     "239 202 240 139 202 19 30 177 187 254 109",
     "239 202 240 139 202 19 30 177 187 109", 16, 10},
};

// Where a value was missing and a pad stood for it, no unlatch followed one below a capacity.
constexpr Change kPadIsNoWholeGroup[] = {
    {"Serial Date type type MADE", kAnySquare,
     "239 15 139 197 63 156 187 27 82 113 26 242 27 24 15 184 17 230 22 223 254 69 70",
     "239 15 139 197 63 156 187 27 82 113 26 242 27 24 15 184 17 254 230 22 223 254 69 70", 30, 30},
    {"Valve Germany valve item STEEL", kAnySquare,
     "239 15 255 161 203 19 24 117 115 91 223 24 71 161 203 22 49 230 15 163 31 158 23 226 115 106 254",
     "239 15 255 161 203 19 24 117 115 91 223 24 71 161 203 22 49 254 230 15 163 31 158 23 226 115 106 254", 30, 30},
};
// clang-format on

TEST(EncodationChanges, LookAheadIsConsultedBehindEveryGroup) {
  for (const Change& change : kLookAheadBehindEveryGroup) {
    ExpectChange(change);
    EXPECT_TRUE(IsRead(change.before, change.capacityBefore, change.text)) << change.text;
  }
}

TEST(EncodationChanges, OneOrTwoCharactersFinishInTheModeWhereTheyFillTheSymbol) {
  for (const Change& change : kFinishingInTheMode) {
    ExpectChange(change);
    EXPECT_TRUE(IsRead(change.after, change.capacityAfter, change.text)) << change.text;
    EXPECT_TRUE(change.capacityBefore == kRefused || change.capacityAfter <= change.capacityBefore);
  }
}

TEST(EncodationChanges, MixedCaseThatWasGarbledIsRead) {
  for (const Change& change : kPadIsNoWholeGroup) {
    ExpectChange(change);
    EXPECT_FALSE(IsRead(change.before, change.capacityBefore, change.text)) << change.text;
    EXPECT_TRUE(IsRead(change.after, change.capacityAfter, change.text)) << change.text;
  }
}

}  // namespace
}  // namespace barhatch
