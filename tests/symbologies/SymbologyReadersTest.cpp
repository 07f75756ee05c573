#include "symbologies/SymbologyReaders.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "support/Code93Reader.h"
#include "support/Modules.h"
#include "support/SeededTexts.h"
#include "symbologies/Code93Characters.h"
#include "symbologies/DrawnSymbol.h"
#include "symbologies/ReportedReading.h"

namespace barhatch {
namespace {

using test::DrawnByTheBook;
using test::DrawnByTheDevice;
using test::Elements;
using test::Modules;
using test::Report;

using Values = std::vector<int>;
using Text = std::optional<std::string>;

struct Example {
  const char* source;
  std::int32_t type;
  std::string text;
  std::string reported;
  Values values;
};

// Values of EAN/UPC and of the digits of other symbologies.
Values DigitsOf(const std::string& digits) {
  Values values;
  for (const char digit : digits) values.push_back(digit - '0');
  return values;
}

const Example kExamples[] = {
    {"Codabar: A to D are 16 to 19", 0, "A12-3.4B", "12-3.4", {16, 1, 2, 10, 3, 14, 4, 17}},
    {"Codabar: the other names of start and stop", 0, "T9E", "9", {16, 9, 19}},
    {"Code 39: the signs of the modulo-43 scheme",
     1,
     "-. $/+%",
     "-. $/+%",
     {36, 37, 38, 39, 40, 41, 42}},
    {"Code 39: digits and letters of it", 1, "09AZ", "09AZ", {0, 9, 10, 35}},
    {"Code 93: TEST93 has the checks + and 6",
     2,
     "TEST93",
     "TEST93",
     {29, 14, 28, 29, 9, 3, 41, 6}},
    {"Code 93: (+)A; C is 10 + 2 x 46, K is C + 2 x 10 + 3 x 46", 22, "a", "a", {46, 10, 8, 25}},
    {"MSI: 1234 has the check digit 4", 4, "1234", "1234", DigitsOf("12344")},
    {"Code 128: 104 + 1 x 33 is 34 modulo 103", 7, "A", "A", {104, 33, 34}},
    {"Code 128: a switch from C to B", 8, "12A", "12A", {105, 12, 100, 33, 4}},
    {"Code 11: 123-45 has the check character 5", 11, "123-45", "123-45", {1, 2, 3, 10, 4, 5, 5}},
    {"Interleaved 2 of 5: an odd number of digits", 21, "123", "0123", DigitsOf("0123")},
    {"GS1 General Specifications: EAN-13", 3, "950110153100", "9501101531000",
     DigitsOf("9501101531000")},
    {"EAN-13 with a first digit 0 is reported whole", 3, "003600029145", "0036000291452",
     DigitsOf("0036000291452")},
    {"UPC-A: 036000291452", 9, "03600029145", "036000291452", DigitsOf("036000291452")},
    {"GS1 General Specifications: EAN-8", 12, "9501234", "95012346", DigitsOf("95012346")},
    {"UPC-E: 04252614 stands for 042100005264", 10, "0425261", "04252614", DigitsOf("04252614")},
    {"GS1 General Specifications: add-on of two digits", 15, "97713845240112", "9771384524017 12",
     DigitsOf("977138452401712")},
    {"GS1 General Specifications: add-on of five digits", 16, "97808777993054321",
     "9780877799306 54321", DigitsOf("978087779930654321")},
    {"UPC-A with an add-on", 13, "0360002914505", "036000291452 05", DigitsOf("03600029145205")},
    {"UPC-E with an add-on", 20, "042526152495", "04252614 52495", DigitsOf("0425261452495")},
};

TEST(SymbologyReaders, PublishedExamplesHaveTheirTextAndValues) {
  for (const Example& example : kExamples) {
    const Text letters = DrawnByTheBook(example.type, example.text);
    ASSERT_TRUE(letters) << example.source;
    const auto reported = Report(example.type, *letters);
    EXPECT_EQ(reported.text, example.reported) << example.source;
    EXPECT_EQ(reported.values, example.values) << example.source;
  }
}

// What the register says that a standard reader sees of the symbols of the device.
struct Misreading {
  const char* id;
  std::int32_t type;
  std::string text;
  Text reported;
};

Text ReportOfTheDevice(std::int32_t type, const std::string& text) {
  const Text letters = DrawnByTheDevice(type, text);
  return letters ? Report(type, *letters).text : "not drawn";
}

const std::string kManyAs(78, 'A');

const Misreading kMisreadings[] = {
    {"D-39-2", 1, "A/B", "A%B"},
    {"D-39-3", 1, "AE", std::nullopt},
    {"D-39-3", 1, "Z", std::nullopt},
    {"D-39-4", 1, "AB*CD", "AB"},
    {"D-39-4: what stands behind the stop is not read", 1, "AB*EZ", "AB"},
    {"D-39-4: no data", 1, "*AB", std::nullopt},
    {"D-39-5", 1, "A%%B%%%", "A%B%%"},
    {"D-39-6", 1, "", std::nullopt},
    {"D-128-1", 5, "12345", "123421"},
    {"D-128-1", 5, "1234A", "123433"},
    {"D-128-2", 6, "A\x7F", "A\x1F"},
    {"D-128-3", 7, kManyAs + "BC", kManyAs + "B"},
    {"D-128-4: a switch without data behind it", 5, kManyAs + "1234", kManyAs},
    {"D-25-2", 21, "", std::nullopt},
    {"D-93-1", 2, "$%+/", "$%+/"},
    {"D-93-1", 22, "a$%+/b", "a$%+/b"},
    {"D-93-2: the sums do not agree", 22, "A\x80", std::nullopt},
    {"D-93-2: they agree", 22, "0\x80", "00"},
    {"D-93-3", 22,
     "\x80\xFF"
     "AB",
     "AB"},
    {"D-93-4", 22, "", std::nullopt},
    {"D-MSI-1", 4, "", std::nullopt},
    {"D-CB-1", 0, "123", std::nullopt},
    {"D-CB-2: no stop", 0, "A123", std::nullopt},
    {"D-CB-2: no start", 0, "123A", std::nullopt},
    {"D-CB-2: alone", 0, "A", std::nullopt},
    {"D-CB-3", 0, "AB", std::nullopt},
    {"D-11-1: K is 9, where C of the eleven characters is 3", 11, "1234567890", std::nullopt},
    {"D-11-2", 11, "", std::nullopt},
    {"D-EAN-1", 13, "0360002914505", "036000291452 05"},
    {"D-EAN-1", 19, "042526105", "04252614 05"},
    {"D-EAN-2", 17, "950123405", "95012346 05"},
    {"D-EAN-3", 10, "1425261", "14252611"},
    {"D-EAN-4", 10, "0120453", "01204534"},
};

TEST(SymbologyReaders, DeviationsAreReportedAsTheRegisterSays) {
  for (const Misreading& row : kMisreadings)
    EXPECT_EQ(ReportOfTheDevice(row.type, row.text), row.reported) << row.id << ' ' << row.text;
}

// D-11-1: of ten characters C is taken for data and K for C. Where the two agree by chance, a
// character too many is reported.
TEST(SymbologyReaders, TenCharactersOfCode11AreMisreadWhereKHappensToFit) {
  test::SeededTexts texts(1111);
  int misread = 0;
  for (int i = 0; i < 4000; ++i) {
    const std::string text = texts.Next("0123456789-", 10, 10);
    const auto reported = Report(11, *DrawnByTheDevice(11, text));
    ASSERT_EQ(reported.values.size(), 12u);
    if (!reported.text) continue;
    ASSERT_EQ(reported.text->substr(0, 10), text);
    ASSERT_EQ(reported.text->size(), 11u);
    ++misread;
  }
  EXPECT_GT(misread, 200);
  EXPECT_LT(misread, 600);
}

// D-39-1: no text reaches the row of 'W'; its elements are no character.
TEST(SymbologyReaders, TheRowOfWInTheTableOfTheDeviceIsNotRead) {
  const std::string frame = Elements("NWNNWNWNN");
  EXPECT_EQ(Report(1, frame + "a" + Elements("WWWNNNNNN") + "a" + frame).text, "W");
  EXPECT_EQ(Report(1, frame + "a" + Elements("NWWNNNNNN") + "a" + frame).text, std::nullopt);
}

// A symbol that ends too early or too late, and one that is framed wrong, by its letters.
TEST(SymbologyReaders, ValuesAreGivenAsFarAsTheyWereRecognised) {
  const std::string letters = *DrawnByTheBook(7, "ABC");
  EXPECT_EQ(Report(7, letters.substr(0, 33) + letters.substr(34)).values, Values{});
  EXPECT_EQ(Report(7, letters.substr(0, 22) + std::string(11, 'a') + letters.substr(33)).values,
            (Values{104, 33}));
  EXPECT_EQ(Report(1, *DrawnByTheDevice(1, "ABE")).values, (Values{10, 11}));
}

TEST(SymbologyReaders, ASymbolOfAnotherTypeIsNone) {
  EXPECT_EQ(Report(9, *DrawnByTheBook(3, "950110153100")).text, std::nullopt);
  EXPECT_EQ(Report(15, *DrawnByTheBook(3, "977138452401")).text, std::nullopt);
  EXPECT_EQ(Report(15, *DrawnByTheBook(16, "97808777993054321")).text, std::nullopt);
  EXPECT_EQ(Report(12, *DrawnByTheBook(3, "950110153100")).text, std::nullopt);
  EXPECT_EQ(Report(3, *DrawnByTheBook(9, "03600029145")).text, "0036000291452");
}

TEST(SymbologyReaders, AnAddonBesideASymbolOfATypeWithoutIsRead) {
  EXPECT_EQ(Report(3, *DrawnByTheBook(15, "97713845240112")).text, "9771384524017 12");
  EXPECT_EQ(Report(9, *DrawnByTheBook(14, "0360002914552495")).text, "036000291452 52495");
  EXPECT_EQ(Report(10, *DrawnByTheBook(20, "042526152495")).text, "04252614 52495");
  const std::string drawn = *DrawnByTheBook(16, "97808777993054321");
  EXPECT_EQ(Report(3, drawn.substr(0, drawn.size() - 1)).text, std::nullopt);
  EXPECT_EQ(Report(3, drawn + "a").text, std::nullopt);
  EXPECT_EQ(Report(3, drawn.substr(0, 95 + 9)).text, std::nullopt) << "a gap and nothing behind";
}

TEST(SymbologyReaders, TypesOutsideTheTableAreNotRead) {
  const std::string letters = *DrawnByTheBook(1, "A");
  for (const std::int32_t type : {-1, 23, 100, INT32_MIN, INT32_MAX})
    EXPECT_EQ(Report(type, letters).text, std::nullopt);
}

TEST(SymbologyReaders, AnAddonStandsSevenToTwelveModulesBehindTheSymbol) {
  const std::string symbol = *DrawnByTheBook(15, "97713845240112");
  const std::string main = symbol.substr(0, 95);
  const std::string addon = symbol.substr(95 + 9);
  for (std::size_t gap = 0; gap < 20; ++gap) {
    const Text text = Report(15, main + std::string(gap, 'a') + addon).text;
    EXPECT_EQ(text.has_value(), gap >= 7 && gap <= 12) << gap;
  }
}

// A symbol of Code 93 with right check characters, whatever the values.
std::string DrawCode93(Values values) {
  for (const std::size_t longest : {20u, 15u}) {
    std::size_t sum = 0;
    for (std::size_t i = 0; i < values.size(); ++i)
      sum += static_cast<std::size_t>(values[i]) * ((values.size() - 1 - i) % longest + 1);
    values.push_back(static_cast<int>(sum % 47));
  }
  const std::string frame = Modules("101011110");
  std::string letters = frame;
  for (const int value : values) letters += Modules(Code93Modules(value));
  return letters + frame + "A";
}

// Every shift character with every character behind it.
TEST(SymbologyReaders, ShiftPairsOfCode93AreThoseOfFullAscii) {
  int pairs = 0;
  for (int shift = 43; shift < 47; ++shift) {
    EXPECT_EQ(Report(22, DrawCode93({10, shift})).text, std::nullopt);
    for (int value = 0; value < 47; ++value) {
      const std::string letters = DrawCode93({shift, value});
      const Text text = Report(22, letters).text;
      // The plain reader has the published pairs alone; the signs with characters of their own have
      // pairs as well.
      const bool isSign = shift == 45 && (value == 13 || value == 14 || value == 20);
      if (!isSign) {
        EXPECT_EQ(text, test::ReadCode93(letters)) << shift << ' ' << value;
      }
      pairs += text.has_value() ? 1 : 0;
    }
  }
  EXPECT_EQ(pairs, 26 + 23 + 14 + 26);
  EXPECT_EQ(Report(22, DrawCode93({45, 13, 45, 14, 45, 20, 45, 24})).text, "$%+/");
  EXPECT_EQ(Report(22, DrawCode93({39, 42, 41, 40})).text, "$%+/");
  EXPECT_EQ(Report(22, DrawCode93({44, 30})).text, std::string(1, '\0'));
}

}  // namespace
}  // namespace barhatch
