#include "mark/InputText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace barhatch {
namespace {

BarhatchJob JobOf(std::int32_t input, const void* text, std::size_t length) {
  BarhatchJob job = {};
  job.input = input;
  job.text = text;
  job.length = length;
  return job;
}

InputText Utf8(const std::string& bytes) {
  return InputText(JobOf(BARHATCH_UTF8, bytes.data(), bytes.size()));
}

// The units, or "broken at 3".
std::u16string UnitsOf(const InputText& text) {
  std::size_t count = 7;  // of a text before
  TextPlace broken = {0, 0};
  if (!text.CountUnits(count, broken)) {
    EXPECT_EQ(broken.extent, 1u);
    return u"broken at " + std::u16string(1, static_cast<char16_t>(u'0' + broken.begin));
  }
  std::u16string units(count, u'?');
  text.CopyUnits(units.data(), count);
  return units;
}

// "3+2": the place of a unit in a text of UTF-8.
std::string PlaceOf(const std::string& bytes, std::size_t unit) {
  const TextPlace place = Utf8(bytes).PlaceOf(unit);
  return std::to_string(place.begin) + "+" + std::to_string(place.extent);
}

}  // namespace

TEST(InputText, NullIsTheEmptyText) {
  for (const std::int32_t input : {BARHATCH_UTF8, BARHATCH_BYTES, BARHATCH_UNITS}) {
    EXPECT_EQ(UnitsOf(InputText(JobOf(input, nullptr, 0))), u"");
  }
}

TEST(InputText, WithoutALengthEndsAtItsFirstZero) {
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_UTF8, "AB\0C", 0))), u"AB");
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_BYTES, "AB\0C", 0))), u"AB");
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_UNITS, u"A\u0100\0C", 0))), u"A\u0100");
  EXPECT_EQ(InputText(JobOf(BARHATCH_UNITS, u"A\u0100\0C", 0)).Length(), 2u);
}

TEST(InputText, WithALengthHasZerosAmongItsCharacters) {
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_UTF8, "AB\0C", 4))), std::u16string(u"AB\0C", 4));
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_BYTES, "AB\0C", 4))), std::u16string(u"AB\0C", 4));
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_UNITS, u"A\0B", 3))), std::u16string(u"A\0B", 3));
}

TEST(InputText, BytesAreCharactersUpTo255) {
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_BYTES, "\x80\xFF", 2))), u"\u0080\u00FF");
}

// Half of a surrogate pair is a unit like any other.
TEST(InputText, UnitsNeedNotBeAligned) {
  const char16_t units[] = {u'A', 0xFFFF, 0xD800};
  std::vector<char> bytes(1 + sizeof units, '\0');
  std::memcpy(bytes.data() + 1, units, sizeof units);
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_UNITS, bytes.data() + 1, 3))),
            std::u16string(units, 3));
}

TEST(InputText, Utf8OfEveryLength) {
  EXPECT_EQ(UnitsOf(Utf8("A\x7F")), u"A\u007F");
  EXPECT_EQ(UnitsOf(Utf8("\xC2\x80\xDF\xBF")), u"\u0080\u07FF");
  EXPECT_EQ(UnitsOf(Utf8("\xE0\xA0\x80\xEF\xBF\xBF")), u"\u0800\uFFFF");
  EXPECT_EQ(UnitsOf(Utf8("\xED\x9F\xBF\xEE\x80\x80")), u"\uD7FF\uE000");
  EXPECT_EQ(UnitsOf(Utf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF")), u"\U00010000\U0010FFFF");
}

TEST(InputText, BrokenUtf8IsFoundWhereItBegins) {
  EXPECT_EQ(UnitsOf(Utf8("A\x80")), u"broken at 1") << "stray";
  EXPECT_EQ(UnitsOf(Utf8("AB\xBF\x80")), u"broken at 2") << "stray";
  EXPECT_EQ(UnitsOf(Utf8("A\xC3(")), u"broken at 1") << "missing";
  EXPECT_EQ(UnitsOf(Utf8("A\xE2\x82(")), u"broken at 1") << "missing";
  EXPECT_EQ(UnitsOf(Utf8("\xF0\x9F\x98(")), u"broken at 0") << "missing";
  EXPECT_EQ(UnitsOf(Utf8("\xC3\xC3\xA9")), u"broken at 0") << "a second begin";
  EXPECT_EQ(UnitsOf(Utf8("A\xC3")), u"broken at 1") << "cut";
  EXPECT_EQ(UnitsOf(Utf8("A\xE2\x82")), u"broken at 1") << "cut";
  EXPECT_EQ(UnitsOf(Utf8("\xF0\x9F\x98")), u"broken at 0") << "cut";
}

TEST(InputText, FormsThatAreTooLongAreBroken) {
  EXPECT_EQ(UnitsOf(Utf8("\xC0\x80")), u"broken at 0");
  EXPECT_EQ(UnitsOf(Utf8("\xC1\xBF")), u"broken at 0");
  EXPECT_EQ(UnitsOf(Utf8("\xE0\x9F\xBF")), u"broken at 0");
  EXPECT_EQ(UnitsOf(Utf8("\xF0\x8F\xBF\xBF")), u"broken at 0");
}

TEST(InputText, WhatIsNoCodePointIsBroken) {
  EXPECT_EQ(UnitsOf(Utf8("\xED\xA0\x80")), u"broken at 0") << "U+D800";
  EXPECT_EQ(UnitsOf(Utf8("\xED\xBF\xBF")), u"broken at 0") << "U+DFFF";
  EXPECT_EQ(UnitsOf(Utf8("\xF4\x90\x80\x80")), u"broken at 0") << "U+110000";
  EXPECT_EQ(UnitsOf(Utf8("\xF5\x80\x80\x80")), u"broken at 0");
  EXPECT_EQ(UnitsOf(Utf8("\xFF")), u"broken at 0");
}

// Whatever stands behind the bytes: a length ends the text for sure.
TEST(InputText, ReadsNothingBehindItsLength) {
  const std::string whole = "A\xC3\xA9";
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_UTF8, whole.data(), 2))), u"broken at 1");
  const std::vector<char> exact = {'A', '\xE2'};
  EXPECT_EQ(UnitsOf(InputText(JobOf(BARHATCH_UTF8, exact.data(), 2))), u"broken at 1");
}

TEST(InputText, PlacesCountBytes) {
  const std::string text = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80Z";
  EXPECT_EQ(PlaceOf(text, 0), "0+1");
  EXPECT_EQ(PlaceOf(text, 1), "1+2");
  EXPECT_EQ(PlaceOf(text, 2), "3+3");
  EXPECT_EQ(PlaceOf(text, 3), "6+4") << "the first half of the pair";
  EXPECT_EQ(PlaceOf(text, 4), "6+4") << "the second half";
  EXPECT_EQ(PlaceOf(text, 5), "10+1");
  EXPECT_EQ(PlaceOf(text, 6), "11+0") << "behind the end";
}

TEST(InputText, PlacesOfBytesAndUnitsAreTheirNumbers) {
  const TextPlace byte = InputText(JobOf(BARHATCH_BYTES, "\xC3\xA9", 2)).PlaceOf(1);
  EXPECT_EQ(byte.begin, 1u);
  EXPECT_EQ(byte.extent, 1u);
  const TextPlace unit = InputText(JobOf(BARHATCH_UNITS, u"\U00010000", 2)).PlaceOf(1);
  EXPECT_EQ(unit.begin, 1u);
  EXPECT_EQ(unit.extent, 1u);
}

}  // namespace barhatch
