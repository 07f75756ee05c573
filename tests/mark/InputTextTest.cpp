#include "mark/InputText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace barhatch {
namespace {

BarhatchJob JobOf(std::int32_t input, const void* text, std::size_t length,
                  std::int32_t conformance = BARHATCH_PUBLISHED) {
  BarhatchJob job = {};
  job.input = input;
  job.conformance = conformance;
  job.text = text;
  job.length = length;
  return job;
}

InputText Utf8(const std::string& bytes, std::int32_t conformance = BARHATCH_PUBLISHED) {
  return InputText(JobOf(BARHATCH_UTF8, bytes.data(), bytes.size(), conformance));
}

InputText Units(const std::u16string& units, std::int32_t conformance) {
  return InputText(JobOf(BARHATCH_UNITS, units.data(), units.size(), conformance));
}

InputText EscapedText(const std::string& bytes, std::int32_t conformance = BARHATCH_PUBLISHED) {
  return InputText(JobOf(BARHATCH_ESCAPED, bytes.data(), bytes.size(), conformance));
}

// "no character at 3"; empty where there is nothing to refuse.
std::string Broken(const InputText& text, std::size_t& count) {
  TextPlace broken = {0, 0};
  const Refusal refusal = text.Count(count, broken);
  if (!refusal.IsRefused()) return "";
  EXPECT_EQ(refusal.position, -1);
  const char* const what = refusal.reason == Reason::kNoUtf8     ? "no character"
                           : refusal.reason == Reason::kNoEscape ? "no escape"
                           : refusal.reason == Reason::kFunction ? "a function"
                                                                 : "?";
  return std::string(what) + " at " + std::to_string(broken.begin) + "+" +
         std::to_string(broken.extent);
}

std::string Broken(const InputText& text) {
  std::size_t count = 0;
  return Broken(text, count);
}

// The code points of a text by the book.
std::u32string TokensOf(const InputText& text) {
  std::size_t count = 7;  // of a text before
  const std::string broken = Broken(text, count);
  if (!broken.empty()) return std::u32string(broken.begin(), broken.end());
  std::vector<Token> tokens(count);
  text.CopyTokens(tokens.data(), count);
  return std::u32string(tokens.begin(), tokens.end());
}

// The units of a text of the device.
std::u16string UnitsOf(const InputText& text) {
  std::size_t count = 0;
  EXPECT_EQ(Broken(text, count), "");
  std::u16string units(count, u'?');
  text.CopyUnits(units.data(), count);
  return units;
}

// "3+2": the place of a token in a text.
std::string PlaceOf(const InputText& text, std::size_t token) {
  const TextPlace place = text.PlaceOf(token);
  return std::to_string(place.begin) + "+" + std::to_string(place.extent);
}

}  // namespace

TEST(InputText, NullIsTheEmptyText) {
  for (const std::int32_t input : {BARHATCH_UTF8, BARHATCH_BYTES, BARHATCH_UNITS}) {
    EXPECT_EQ(TokensOf(InputText(JobOf(input, nullptr, 0))), U"");
  }
}

TEST(InputText, WithoutALengthEndsAtItsFirstZero) {
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_UTF8, "AB\0C", 0))), U"AB");
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_BYTES, "AB\0C", 0))), U"AB");
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_UNITS, u"A\u0100\0C", 0))), U"A\u0100");
  EXPECT_EQ(InputText(JobOf(BARHATCH_UNITS, u"A\u0100\0C", 0)).Length(), 2u);
}

TEST(InputText, WithALengthHasZerosAmongItsCharacters) {
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_UTF8, "AB\0C", 4))), std::u32string(U"AB\0C", 4));
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_BYTES, "AB\0C", 4))), std::u32string(U"AB\0C", 4));
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_UNITS, u"A\0B", 3))), std::u32string(U"A\0B", 3));
}

TEST(InputText, BytesAreCharactersUpTo255) {
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_BYTES, "\x80\xFF", 2))), U"\u0080\u00FF");
}

TEST(InputText, UnitsNeedNotBeAligned) {
  const char16_t units[] = {u'A', 0xFFFF, u'B'};
  std::vector<char> bytes(1 + sizeof units, '\0');
  std::memcpy(bytes.data() + 1, units, sizeof units);
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_UNITS, bytes.data() + 1, 3))), U"A\uFFFFB");
}

TEST(InputText, SurrogatePairsAreOneCharacterByTheBook) {
  EXPECT_EQ(TokensOf(Units(u"A\U00010000\U0010FFFF", BARHATCH_PUBLISHED)),
            U"A\U00010000\U0010FFFF");
  EXPECT_EQ(PlaceOf(Units(u"A\U00010000B", BARHATCH_PUBLISHED), 1), "1+2");
  EXPECT_EQ(PlaceOf(Units(u"A\U00010000B", BARHATCH_PUBLISHED), 2), "3+1");
}

TEST(InputText, HalfOfASurrogatePairIsNoCharacterByTheBook) {
  const char16_t high = 0xD800;
  const char16_t low = 0xDC00;
  EXPECT_EQ(Broken(Units({u'A', high}, BARHATCH_PUBLISHED)), "no character at 1+1") << "at the end";
  EXPECT_EQ(Broken(Units({high, u'A'}, BARHATCH_PUBLISHED)), "no character at 0+1");
  EXPECT_EQ(Broken(Units({high, high, low}, BARHATCH_PUBLISHED)), "no character at 0+1");
  EXPECT_EQ(Broken(Units({low, high}, BARHATCH_PUBLISHED)), "no character at 0+1");
}

// The device has never looked for pairs: each half designates an ECI.
TEST(InputText, TheDeviceTakesUnitsAsTheyAre) {
  const std::u16string units = {u'A', 0xD800, 0xDBFF, u'B', 0xDFFF};
  EXPECT_EQ(UnitsOf(Units(units, BARHATCH_DEVICE)), units);
  EXPECT_EQ(PlaceOf(Units(units, BARHATCH_DEVICE), 4), "4+1");
}

TEST(InputText, OfTheDeviceAreTwoUnitsAboveUFFFF) {
  const std::string text = "A\xF0\x9F\x98\x80Z";
  EXPECT_EQ(UnitsOf(Utf8(text, BARHATCH_DEVICE)), u"A\U0001F600Z");
  EXPECT_EQ(PlaceOf(Utf8(text, BARHATCH_DEVICE), 1), "1+4") << "the first half of the pair";
  EXPECT_EQ(PlaceOf(Utf8(text, BARHATCH_DEVICE), 2), "1+4") << "the second half";
  EXPECT_EQ(PlaceOf(Utf8(text, BARHATCH_DEVICE), 3), "5+1");
  EXPECT_EQ(UnitsOf(Utf8("\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", BARHATCH_DEVICE)),
            u"\uFFFF\U00010000\U0010FFFF");
}

TEST(InputText, EscapesAreBytesByTheirNumbers) {
  EXPECT_EQ(TokensOf(EscapedText("A^029B^000^255")), std::u32string(U"A\x1D"
                                                                    U"B\0\xFF",
                                                                    5));
  EXPECT_EQ(TokensOf(EscapedText("^0011")),
            U"\x01"
            U"1")
      << "three digits, whatever follows";
  EXPECT_EQ(TokensOf(EscapedText("^^029^^")), U"^029^");
  EXPECT_EQ(TokensOf(EscapedText("\xC3\xA9^233")), U"\u00E9\u00E9") << "UTF-8 beside them";
}

TEST(InputText, EscapesNameFunctionsAndEcis) {
  EXPECT_EQ(TokensOf(EscapedText("^FNC1A^FNC2^FNC3")),
            (std::u32string{kFnc1Token, 'A', kFnc2Token, kFnc3Token}));
  EXPECT_EQ(TokensOf(EscapedText("^ECI000026^ECI999999")),
            (std::u32string{EciToken(26), EciToken(999999)}));
  EXPECT_EQ(PlaceOf(EscapedText("A^FNC1^ECI000026B"), 1), "1+5");
  EXPECT_EQ(PlaceOf(EscapedText("A^FNC1^ECI000026B"), 2), "6+10");
  EXPECT_EQ(PlaceOf(EscapedText("A^FNC1^ECI000026B"), 3), "16+1");
}

TEST(InputText, WhatIsNoEscapeIsFoundWhereItBegins) {
  for (const char* text : {"A^", "A^2", "A^25", "A^256", "A^2a5", "A^/00", "A^FNC", "A^FNC4",
                           "A^fnc1", "A^ECI", "A^ECI00002", "A^ECI00002A", "A^x"}) {
    EXPECT_EQ(Broken(EscapedText(text)), "no escape at 1+1") << text;
  }
  EXPECT_EQ(Broken(EscapedText("^029\xC3")), "no character at 4+1");
}

TEST(InputText, ACaretIsACharacterWithoutEscapes) {
  EXPECT_EQ(TokensOf(Utf8("^029^FNC1")), U"^029^FNC1");
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_BYTES, "^^", 2))), U"^^");
}

// Its encoders have never heard of them.
TEST(InputText, TheDeviceHasNoFunctions) {
  EXPECT_EQ(UnitsOf(EscapedText("A^233^^", BARHATCH_DEVICE)), u"A\u00E9^");
  EXPECT_EQ(Broken(EscapedText("A^FNC1", BARHATCH_DEVICE)), "a function at 1+5");
  EXPECT_EQ(Broken(EscapedText("AB^ECI000026", BARHATCH_DEVICE)), "a function at 2+10");
}

TEST(InputText, Utf8OfEveryLength) {
  EXPECT_EQ(TokensOf(Utf8("A\x7F")), U"A\u007F");
  EXPECT_EQ(TokensOf(Utf8("\xC2\x80\xDF\xBF")), U"\u0080\u07FF");
  EXPECT_EQ(TokensOf(Utf8("\xE0\xA0\x80\xEF\xBF\xBF")), U"\u0800\uFFFF");
  EXPECT_EQ(TokensOf(Utf8("\xED\x9F\xBF\xEE\x80\x80")), U"\uD7FF\uE000");
  EXPECT_EQ(TokensOf(Utf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF")), U"\U00010000\U0010FFFF");
}

TEST(InputText, BrokenUtf8IsFoundWhereItBegins) {
  EXPECT_EQ(TokensOf(Utf8("A\x80")), U"no character at 1+1") << "stray";
  EXPECT_EQ(TokensOf(Utf8("AB\xBF\x80")), U"no character at 2+1") << "stray";
  EXPECT_EQ(TokensOf(Utf8("A\xC3(")), U"no character at 1+1") << "missing";
  EXPECT_EQ(TokensOf(Utf8("A\xE2\x82(")), U"no character at 1+1") << "missing";
  EXPECT_EQ(TokensOf(Utf8("\xF0\x9F\x98(")), U"no character at 0+1") << "missing";
  EXPECT_EQ(TokensOf(Utf8("\xC3\xC3\xA9")), U"no character at 0+1") << "a second begin";
  EXPECT_EQ(TokensOf(Utf8("A\xC3")), U"no character at 1+1") << "cut";
  EXPECT_EQ(TokensOf(Utf8("A\xE2\x82")), U"no character at 1+1") << "cut";
  EXPECT_EQ(TokensOf(Utf8("\xF0\x9F\x98")), U"no character at 0+1") << "cut";
}

TEST(InputText, FormsThatAreTooLongAreBroken) {
  EXPECT_EQ(TokensOf(Utf8("\xC0\x80")), U"no character at 0+1");
  EXPECT_EQ(TokensOf(Utf8("\xC1\xBF")), U"no character at 0+1");
  EXPECT_EQ(TokensOf(Utf8("\xE0\x9F\xBF")), U"no character at 0+1");
  EXPECT_EQ(TokensOf(Utf8("\xF0\x8F\xBF\xBF")), U"no character at 0+1");
}

TEST(InputText, WhatIsNoCodePointIsBroken) {
  EXPECT_EQ(TokensOf(Utf8("\xED\xA0\x80")), U"no character at 0+1") << "U+D800";
  EXPECT_EQ(TokensOf(Utf8("\xED\xBF\xBF")), U"no character at 0+1") << "U+DFFF";
  EXPECT_EQ(TokensOf(Utf8("\xF4\x90\x80\x80")), U"no character at 0+1") << "U+110000";
  EXPECT_EQ(TokensOf(Utf8("\xF5\x80\x80\x80")), U"no character at 0+1");
  EXPECT_EQ(TokensOf(Utf8("\xFF")), U"no character at 0+1");
}

// Whatever stands behind the bytes: a length ends the text for sure.
TEST(InputText, ReadsNothingBehindItsLength) {
  const std::string whole = "A\xC3\xA9";
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_UTF8, whole.data(), 2))), U"no character at 1+1");
  const std::vector<char> exact = {'A', '\xE2'};
  EXPECT_EQ(TokensOf(InputText(JobOf(BARHATCH_UTF8, exact.data(), 2))), U"no character at 1+1");
}

TEST(InputText, PlacesCountBytes) {
  const std::string bytes = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80Z";
  const InputText text = Utf8(bytes);
  EXPECT_EQ(PlaceOf(text, 0), "0+1");
  EXPECT_EQ(PlaceOf(text, 1), "1+2");
  EXPECT_EQ(PlaceOf(text, 2), "3+3");
  EXPECT_EQ(PlaceOf(text, 3), "6+4");
  EXPECT_EQ(PlaceOf(text, 4), "10+1");
  EXPECT_EQ(PlaceOf(text, 5), "11+0") << "behind the end";
}

TEST(InputText, PlacesOfBytesAreTheirNumbers) {
  EXPECT_EQ(PlaceOf(InputText(JobOf(BARHATCH_BYTES, "\xC3\xA9", 2)), 1), "1+1");
}

}  // namespace barhatch
