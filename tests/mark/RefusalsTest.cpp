// Every status that this version gives, for each symbology that has it: message, position, extent.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

// "4 at 3+1: sentence"
std::string Refused(const BarhatchJob& job) {
  const Mark mark(job);
  EXPECT_EQ(mark->strokes, nullptr);
  EXPECT_EQ(mark->block, nullptr);
  return PlaceOf(mark) + ": " + mark.Message();
}

std::string Published(std::int32_t symbology, const char* text) {
  return Refused(PublishedJobOf(symbology, text));
}

std::string Device(std::int32_t symbology, const char* text) {
  return Refused(JobOf(symbology, text));
}

std::string OfUnits(std::int32_t symbology, const std::u16string& text,
                    std::int32_t conformance = BARHATCH_DEVICE) {
  BarhatchJob job = JobOf(symbology, nullptr, conformance);
  job.input = BARHATCH_UNITS;
  job.text = text.data();
  job.length = text.size();
  return Refused(job);
}

std::string OfEscapes(std::int32_t symbology, const char* text,
                      std::int32_t conformance = BARHATCH_PUBLISHED) {
  BarhatchJob job = JobOf(symbology, text, conformance);
  job.input = BARHATCH_ESCAPED;
  return Refused(job);
}

BarhatchJob MatrixOf(const char* text, std::int32_t rows, std::int32_t columns,
                     std::uint32_t flags = 0) {
  BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, text);
  job.rows = rows;
  job.columns = columns;
  job.flags = flags;
  return job;
}

std::string Digits(std::size_t count) { return std::string(count, '1'); }

struct CharacterRow {
  std::int32_t symbology;
  const char* text;
  const char* refusal;
};

}  // namespace

TEST(Refusals, CharactersThatASymbologyLacks) {
  const CharacterRow rows[] = {
      {0, "A12x4B",
       "4 at 4+1: character 4 (0x78 'x') is not in Codabar: digits and - $ : / . + between two of "
       "A B C D T N * E"},
      {0, "A1B2C", "4 at 3+1: character 3 (0x42 'B') starts or stops Codabar: not inside"},
      {1, "ABCDe",
       "4 at 5+1: character 5 (0x65 'e') is not in Code 39: digits, A-Z, - . $ / + % and space"},
      {1, "A*B",
       "4 at 2+1: character 2 (0x2A '*') is not in Code 39: digits, A-Z, - . $ / + % and space"},
      {2, "AB\x01",
       "4 at 3+1: character 3 (0x01) is not in Code 93: digits, A-Z, - . $ / + % and space"},
      {3, "95011015310x",
       "4 at 12+1: character 12 (0x78 'x') is not in EAN-13: 12 or 13 digits (and an add-on behind "
       "+)"},
      {4, "-", "4 at 1+1: character 1 (0x2D '-') is not in MSI: digits"},
      {9, "0123456789 ",
       "4 at 11+1: character 11 (0x20) is not in UPC-A: 11 or 12 digits (and an add-on behind +)"},
      {10, "2123456", "4 at 1+1: number system 2 at 1 is none: 0 and 1"},
      {10, "012345a",
       "4 at 7+1: character 7 (0x61 'a') is not in UPC-E: 6, 7, 8, 11 or 12 digits (and an add-on "
       "behind +)"},
      {11, "12+3", "4 at 3+1: character 3 (0x2B '+') is not in Code 11: digits and -"},
      {12, "963850~", "4 at 7+1: character 7 (0x7E '~') is not in EAN-8: 7 or 8 digits"},
      {13, "01234567890a2",
       "4 at 12+1: character 12 (0x61 'a') is not in UPC-A with 2-digit add-on: 11 or 12 digits "
       "and 2 (+ may stand between)"},
      {14, "a123456789051234",
       "4 at 1+1: character 1 (0x61 'a') is not in UPC-A with 5-digit add-on: 11 or 12 digits and "
       "5 (+ may stand between)"},
      {15, "a7713845240112",
       "4 at 1+1: character 1 (0x61 'a') is not in EAN-13 with 2-digit add-on: 12 or 13 digits and "
       "2 (+ may stand between)"},
      {16, "a7807798773054321",
       "4 at 1+1: character 1 (0x61 'a') is not in EAN-13 with 5-digit add-on: 12 or 13 digits and "
       "5 (+ may stand between)"},
      {17, "a50123412",
       "4 at 1+1: character 1 (0x61 'a') is not in EAN-8 with 2-digit add-on: 7 or 8 digits and 2 "
       "(+ may stand between)"},
      {18, "a50123454321",
       "4 at 1+1: character 1 (0x61 'a') is not in EAN-8 with 5-digit add-on: 7 or 8 digits and 5 "
       "(+ may stand between)"},
      {19, "a12345612",
       "4 at 1+1: character 1 (0x61 'a') is not in UPC-E with 2-digit add-on: 7, 8, 11 or 12 "
       "digits and 2 (+ may stand between, also behind 6)"},
      {20, "a12345654321",
       "4 at 1+1: character 1 (0x61 'a') is not in UPC-E with 5-digit add-on: 7, 8, 11 or 12 "
       "digits and 5 (+ may stand between, also behind 6)"},
      {21, "12 4", "4 at 3+1: character 3 (0x20) is not in Interleaved 2 of 5: digits"},
      {22, "A\xC2\x80",
       "4 at 2+2: character 2 (0x80) is not in Code 93, full ASCII: characters from 0 to 127"},
  };
  for (const CharacterRow& row : rows) {
    EXPECT_EQ(Published(row.symbology, row.text), row.refusal);
  }
}

TEST(Refusals, CharactersThatTheDeviceLacks) {
  const char* const rest = ": characters from 32 to 127";
  const char* const names[] = {"Code 128", "Code 128 from set A", "Code 128 set B",
                               "Code 128 from set C"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(Device(5 + i, "1\x1F"),
              std::string("4 at 2+1: character 2 (0x1F) is not in ") + names[i] + rest);
  }
  EXPECT_EQ(Device(1, "ABCDe"),
            "4 at 5+1: character 5 (0x65 'e') is not in Code 39: digits, A-Z, - . $ / + % and "
            "space");
}

TEST(Refusals, CharactersOfMoreBytesAreNamedWhole) {
  const char* const rest = " is not in MSI: digits";
  EXPECT_EQ(Published(4, "1\xC3\xA9"), std::string("4 at 2+2: character 2 (0xE9)") + rest);
  EXPECT_EQ(Published(4,
                      "\xC3\xA9"
                      "1x"),
            std::string("4 at 1+2: character 1 (0xE9)") + rest);
  EXPECT_EQ(Published(4, "1\xE2\x82\xAC"), std::string("4 at 2+3: character 2 (0x20AC)") + rest);
  EXPECT_EQ(Published(4, "1\xF0\x9F\x98\x80"),
            std::string("4 at 2+4: character 2 (0x1F600)") + rest);
  EXPECT_EQ(OfUnits(4, u"1\U0001F600", BARHATCH_PUBLISHED),
            std::string("4 at 2+2: character 2 (0x1F600)") + rest);
}

TEST(Refusals, CharactersOfWhichTheDeviceTakesTheLowByteAreNamedAsGiven) {
  EXPECT_EQ(Device(4, "1\xC5\xA1"), "4 at 2+2: character 2 (0x0161) is not in MSI: digits");
}

TEST(Refusals, ZerosAmongTheCharacters) {
  const std::string text("1\0002", 3);
  EXPECT_EQ(Refused(LongJobOf(4, text, BARHATCH_PUBLISHED)),
            "4 at 2+1: character 2 (0x00) is not in MSI: digits");
  EXPECT_TRUE(Mark(LongJobOf(22, text, BARHATCH_PUBLISHED)).IsOk()) << "NUL is in full ASCII";
  for (const std::int32_t symbology : kMarkSymbologies) {
    EXPECT_EQ(Refused(LongJobOf(symbology, text)),
              "4 at 2+1: character 2 is 0, which ends a text of the device")
        << symbology;
  }
}

TEST(Refusals, TheFirstCharacterThatIsNoneIsNamed) {
  EXPECT_EQ(Published(4, "1x\xC5\xA1"), "4 at 2+1: character 2 (0x78 'x') is not in MSI: digits");
  EXPECT_EQ(Published(4, "1\xC5\xA1x"), "4 at 2+2: character 2 (0x0161) is not in MSI: digits");
  EXPECT_EQ(Published(7, "a\n\xC5\xA1"),
            "4 at 2+1: character 2 (0x0A) is not in Code 128 set B: characters from 32 to 127");
}

TEST(Refusals, EscapesThatAreNone) {
  const char* const sentence = ": no escape at 3: ^000 to ^255, ^FNC1 to ^FNC3, ^ECI000000, ^^";
  EXPECT_EQ(OfEscapes(5, "ab^FNC4"), std::string("7 at 3+1") + sentence);
  EXPECT_EQ(OfEscapes(5, "ab^"), std::string("7 at 3+1") + sentence);
  EXPECT_EQ(OfEscapes(5, "ab^", BARHATCH_DEVICE), std::string("7 at 3+1") + sentence);
}

TEST(Refusals, FunctionsThatASymbologyLacks) {
  EXPECT_EQ(OfEscapes(1, "AB^FNC1C"), "4 at 3+5: FNC1 at 3: there is none in Code 39");
  EXPECT_EQ(OfEscapes(22, "AB^FNC3"), "4 at 3+5: FNC3 at 3: there is none in Code 93, full ASCII");
  EXPECT_EQ(OfEscapes(5, "^ECI000026A"), "4 at 1+10: ECI 26 at 1: there is none in Code 128");
  EXPECT_EQ(OfEscapes(5, "A^FNC2", BARHATCH_DEVICE),
            "4 at 2+5: FNC2 at 2: there is none in Code 128 of the device");
}

TEST(Refusals, HalvesOfSurrogatePairs) {
  EXPECT_EQ(OfUnits(5, {u'1', 0xD800}, BARHATCH_PUBLISHED),
            "4 at 2+1: unit 2 is half of a surrogate pair");
}

TEST(Refusals, BytesThatAreNoUtf8) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    EXPECT_EQ(Device(symbology, "1\x80"), "4 at 2+1: byte 2 is not UTF-8") << symbology;
  }
  EXPECT_EQ(Device(1, "\xC3\xA9\xC3"), "4 at 3+1: byte 3 is not UTF-8") << "cut";
  EXPECT_EQ(Device(1, "A\xC0\x80"), "4 at 2+1: byte 2 is not UTF-8") << "too long a form";
  EXPECT_EQ(Device(1, "A\xED\xA0\x80"), "4 at 2+1: byte 2 is not UTF-8") << "a surrogate";
  EXPECT_EQ(Device(1, "A\xF4\x90\x80\x80"), "4 at 2+1: byte 2 is not UTF-8") << "beyond Unicode";
  EXPECT_EQ(Device(1, "A\xE2\x82"), "4 at 2+1: byte 2 is not UTF-8") << "missing";
}

TEST(Refusals, EmptyTexts) {
  for (std::int32_t symbology = 0; symbology < 23; ++symbology) {
    const BarhatchJob job = PublishedJobOf(symbology, "");
    const Mark mark(job);
    EXPECT_EQ(PlaceOf(mark), "3 at 0+0");
    EXPECT_EQ(mark.Message(), std::string(mark->name) + " needs at least one character");
    BarhatchJob null = job;
    null.text = nullptr;
    EXPECT_EQ(Refused(null), Refused(job));
  }
}

TEST(Refusals, LengthsThatASymbologyLacks) {
  EXPECT_EQ(Published(3, "95011015310"),
            "5 at 0+0: EAN-13 takes 12 or 13 digits (and an add-on behind +), 11 given");
  EXPECT_EQ(Published(3, "95011015310001"),
            "5 at 0+0: EAN-13 takes 12 or 13 digits (and an add-on behind +), 14 given");
  EXPECT_EQ(Published(9, "1"),
            "5 at 0+0: UPC-A takes 11 or 12 digits (and an add-on behind +), 1 given");
  EXPECT_EQ(Published(10, "012345678"),
            "5 at 0+0: UPC-E takes 6, 7, 8, 11 or 12 digits (and an add-on behind +), 9 given");
  EXPECT_EQ(Published(12, "123456789"), "5 at 0+0: EAN-8 takes 7 or 8 digits, 9 given");
  EXPECT_EQ(Published(16, "9780779877305432101"),
            "5 at 0+0: EAN-13 with 5-digit add-on takes 12 or 13 digits and 5 (+ may stand "
            "between), 19 given");
  EXPECT_EQ(Published(19, "42526112"),
            "5 at 0+0: UPC-E with 2-digit add-on takes 7, 8, 11 or 12 digits and 2 (+ may stand "
            "between, also behind 6), 8 given");
  EXPECT_EQ(Device(13, "012345678901"),
            "5 at 0+0: UPC-A with 2-digit add-on takes 13 digits: 11 and 2, 12 given");
  EXPECT_EQ(Device(3, "9501101530003"), "5 at 0+0: EAN-13 takes 12 digits, 13 given");
  EXPECT_EQ(Published(0, "AB"),
            "5 at 0+0: Codabar takes digits and - $ : / . + between two of A B C D T N * E, 2 "
            "given");
}

TEST(Refusals, TextsThatAreTooLong) {
  const std::string most = Digits(3119);
  const std::string more = Digits(3120);
  EXPECT_TRUE(Mark(PublishedJobOf(4, most.c_str())).IsOk());
  EXPECT_EQ(Published(4, more.c_str()), "5 at 0+0: MSI takes at most 3119 characters, 3120 given");
  EXPECT_EQ(Published(3, more.c_str()),
            "5 at 0+0: EAN-13 takes 12 or 13 digits (and an add-on behind +), 3120 given");
  EXPECT_EQ(Published(1, Digits(3115).c_str()),
            "5 at 0+0: Code 39 takes at most 3114 characters, 3115 given");
  EXPECT_EQ(Published(0, ("A" + Digits(3115) + "B").c_str()),
            "5 at 0+0: Codabar takes at most 3116 characters, 3117 given");
  EXPECT_TRUE(Mark(JobOf(100, Digits(3116).c_str())).IsOk());
  EXPECT_EQ(Device(100, Digits(3117).c_str()),
            "5 at 0+0: Data Matrix takes at most 3116 characters, 3117 given");
}

TEST(Refusals, StartAndStopCharactersThatAreMissing) {
  EXPECT_EQ(Published(0, "123B"), "7 at 1+1: start character missing at 1");
  EXPECT_EQ(Published(0, "A123"), "7 at 4+1: stop character missing at 4");
  EXPECT_EQ(Published(0, "123"), "7 at 1+1: start character missing at 1");
  EXPECT_EQ(Published(0, "A"),
            "5 at 0+0: Codabar takes digits and - $ : / . + between two of A B C D T N * E, 1 "
            "given");
}

TEST(Refusals, TextsOfMoreCodewordsThanThereAre) {
  const std::string letters(2500, '\x7F');
  EXPECT_EQ(Device(100, letters.c_str()),
            "10 at 0+0: the text takes more than the 1558 codewords of the largest size");
}

TEST(Refusals, TextsOfMoreCodewordsThanTheSizeHas) {
  const std::string digits = Digits(94);
  EXPECT_EQ(Refused(MatrixOf(digits.c_str(), 26, 26)),
            "10 at 0+0: 47 codewords, 26x26 holds 44; MAY_GROW allows a larger one");
  EXPECT_TRUE(Mark(MatrixOf(digits.c_str(), 26, 26, BARHATCH_MAY_GROW)).IsOk());
  EXPECT_EQ(Refused(MatrixOf(digits.c_str(), 11, 11)),
            "10 at 0+0: 47 codewords, 11x11 is no size; MAY_GROW allows a larger one");
}

// Where growing does not help either nobody is sent there.
TEST(Refusals, TextsThatNoGrowthHelps) {
  const std::string digits = Digits(100);
  EXPECT_EQ(Refused(MatrixOf(digits.c_str(), 16, 48)), "10 at 0+0: 50 codewords, 16x48 holds 49");
  EXPECT_EQ(Refused(MatrixOf(digits.c_str(), 16, 48, BARHATCH_MAY_GROW)),
            "10 at 0+0: 50 codewords, 16x48 holds 49");
  EXPECT_EQ(Refused(MatrixOf(Digits(32).c_str(), 8, 32, BARHATCH_MAY_GROW)),
            "10 at 0+0: 16 codewords, 8x32 holds 10");
}

TEST(Refusals, RectanglesThatAreTriedByCapacity) {
  const std::string digits = Digits(12);
  EXPECT_EQ(
      Refused(MatrixOf(digits.c_str(), 12, 26)),
      "10 at 0+0: 6 codewords, the first rectangle that holds them does not lie within 12x26; "
      "MAY_GROW allows a larger one");
  EXPECT_TRUE(Mark(MatrixOf(digits.c_str(), 12, 26, BARHATCH_MAY_GROW)).IsOk());
}

TEST(Refusals, SizesThatDoNotExist) {
  EXPECT_EQ(Refused(MatrixOf("123456", 11, 11)), "11 at 0+0: 11x11 is no size; 12x12 is the next");
  EXPECT_EQ(Refused(MatrixOf("123456", 8, 20)), "11 at 0+0: 8x20 is no size; 8x32 is the next");
  EXPECT_EQ(Refused(MatrixOf("123456", 10, 26)), "11 at 0+0: 10x26 is no size; 12x26 is the next");
  EXPECT_EQ(Refused(MatrixOf("123456", 145, 145)), "11 at 0+0: 145x145 is no size");
  EXPECT_EQ(Refused(MatrixOf("123456", 255, 1, BARHATCH_MAY_GROW)), "11 at 0+0: 255x1 is no size");
  EXPECT_TRUE(Mark(MatrixOf("12345678", 11, 11, BARHATCH_MAY_GROW)).IsOk());
}

// The smallest size is asked for by neither.
TEST(Refusals, SizesOfOneSideAlone) {
  const char* const refusal = "10 at 0+0: 3 codewords, ";
  EXPECT_EQ(Refused(MatrixOf("123456", 8, 0)),
            std::string(refusal) + "8x0 is no size; MAY_GROW allows a larger one");
  EXPECT_EQ(Refused(MatrixOf("123456", 0, 18)),
            std::string(refusal) + "0x18 is no size; MAY_GROW allows a larger one");
  EXPECT_TRUE(Mark(MatrixOf("123456", 0, 18, BARHATCH_MAY_GROW)).IsOk());
}

TEST(Refusals, SymbolsThatTheStandardLeavesOut) {
  EXPECT_EQ(Published(10, "1425261"),
            "12 at 1+1: UPC-E of number system 1 is outside ISO/IEC 15420; set PERMIT");
  EXPECT_EQ(Published(17, "963850712"),
            "12 at 8+2: an add-on beside EAN-8 is outside ISO/IEC 15420; set PERMIT");
  EXPECT_EQ(Published(18, "963850712345"),
            "12 at 8+5: an add-on beside EAN-8 is outside ISO/IEC 15420; set PERMIT");
  EXPECT_EQ(Published(12, "9638507+12"),
            "12 at 8+3: an add-on beside EAN-8 is outside ISO/IEC 15420; set PERMIT");
  EXPECT_EQ(Published(10, "0122453"),
            "12 at 2+6: the six digits at 2 are no UPC-A number without its zeros: 120452 are");
  EXPECT_EQ(Published(10, "000009+12"),
            "12 at 1+6: the six digits at 1 are no UPC-A number without its zeros: 000090 are");
  EXPECT_EQ(Published(10, "100003"),
            "12 at 1+6: the six digits at 1 are no UPC-A number without its zeros: 100000 are");
  EXPECT_EQ(Published(20, "012304412345"),
            "12 at 2+6: the six digits at 2 are no UPC-A number without its zeros: 123043 are");
  EXPECT_EQ(Published(10, "012345678905"),
            "12 at 1+11: the UPC-A number at 1 has no zeros that UPC-E could leave out");
}

TEST(Refusals, CheckDigitsThatAreWrong) {
  EXPECT_EQ(Published(3, "9501101530004"), "6 at 13+1: check digit 4 at 13 should be 3");
  EXPECT_EQ(Published(3, "9501101530004+12"), "6 at 13+1: check digit 4 at 13 should be 3");
  EXPECT_EQ(Published(9, "036000291459"), "6 at 12+1: check digit 9 at 12 should be 2");
  EXPECT_EQ(Published(12, "96385070"), "6 at 8+1: check digit 0 at 8 should be 4");
  EXPECT_EQ(Published(10, "04252615"), "6 at 8+1: check digit 5 at 8 should be 4");
  EXPECT_EQ(Published(10, "042100005260"), "6 at 12+1: check digit 0 at 12 should be 4");
  EXPECT_EQ(OfUnits(3, u"9501101530004", BARHATCH_PUBLISHED),
            "6 at 13+1: check digit 4 at 13 should be 3");
}

// "^050" is a 2.
TEST(Refusals, DigitsThatAreRefusedTogetherAreCountedInTheHostsText) {
  const auto escaped = [](std::int32_t symbology, const char* text) {
    BarhatchJob job = PublishedJobOf(symbology, text);
    job.input = BARHATCH_ESCAPED;
    return Refused(job);
  };
  EXPECT_EQ(escaped(10, "01^0502453"),
            "12 at 2+9: the six digits at 2 are no UPC-A number without its zeros: 120452 are");
  EXPECT_EQ(escaped(10, "01^05034567890^053"),
            "12 at 1+14: the UPC-A number at 1 has no zeros that UPC-E could leave out");
  EXPECT_EQ(escaped(3, "9501101530^048^048^052"), "6 at 19+4: check digit 4 at 19 should be 3");
  EXPECT_EQ(escaped(12, "9638507^0431^050"),
            "12 at 8+9: an add-on beside EAN-8 is outside ISO/IEC 15420; set PERMIT");
}

TEST(Refusals, SignsOfAddonsAtAWrongPlace) {
  EXPECT_EQ(Published(3, "9501101530003+12+34"),
            "7 at 17+1: a second + at 17: one stands in front of the add-on");
  EXPECT_EQ(Published(3, "9501101530003+"),
            "7 at 14+1: 0 digits behind + at 14: the add-on has 2 or 5");
  EXPECT_EQ(Published(3, "950110153000+1"),
            "7 at 13+2: 1 digit behind + at 13: the add-on has 2 or 5");
  EXPECT_EQ(Published(13, "03600029145+123"),
            "7 at 12+4: 3 digits behind + at 12: the add-on has 2");
  EXPECT_EQ(Published(20, "425261+12"), "7 at 7+3: 2 digits behind + at 7: the add-on has 5");
  EXPECT_EQ(
      Published(9, "+12"),
      "5 at 1+1: UPC-A takes 11 or 12 digits (and an add-on behind +), 0 given in front of + at 1");
  EXPECT_EQ(Published(9, "0360002914+12"),
            "5 at 11+1: UPC-A takes 11 or 12 digits (and an add-on behind +), 10 given in front of "
            "+ at 11");
  EXPECT_EQ(Device(3, "950110153000+12"),
            "4 at 13+1: character 13 (0x2B '+') is not in EAN-13: 12 digits");
}

TEST(Refusals, PermitLetsThemThroughButForDigitsThatAreNoNumber) {
  for (const CharacterRow& row :
       {CharacterRow{10, "1425261", ""}, CharacterRow{17, "963850712", ""},
        CharacterRow{18, "963850712345", ""}, CharacterRow{20, "142526112345", ""}}) {
    BarhatchJob job = PublishedJobOf(row.symbology, row.text);
    job.flags = BARHATCH_PERMIT;
    EXPECT_TRUE(Mark(job).IsOk()) << row.text;
  }
  BarhatchJob job = PublishedJobOf(10, "0122453");
  job.flags = BARHATCH_PERMIT;
  EXPECT_EQ(Mark(job)->status, BARHATCH_NOT_STANDARD);
}

TEST(Refusals, FillsWithoutAStroke) {
  BarhatchJob job = PublishedJobOf(BARHATCH_CODE_39, "A1");
  job.pattern = BARHATCH_VERTICAL_LINES;
  job.gap = 1000.0;
  job.quiet = 600.0;
  job.flags = BARHATCH_QUIET_INSIDE;
  EXPECT_EQ(Refused(job), "14 at 0+0: no stroke lies in any element at this size and gap");
}

}  // namespace barhatch::test
