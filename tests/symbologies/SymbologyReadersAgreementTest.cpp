// The reader of the library against the plain readers, which have tables of their own, and against
// what the register of deviations predicts: seeded texts, drawn by the device and by the book,
// damaged symbols and letters that are none.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "support/ExpectedReading.h"
#include "support/SeededTexts.h"
#include "symbologies/DrawnSymbol.h"
#include "symbologies/ReportedReading.h"
#include "symbologies/SymbologyReaders.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {
namespace {

using test::PlainReading;
using test::Report;
using Text = std::optional<std::string>;

std::string Bytes(int first, int last) {
  std::string bytes;
  for (int byte = first; byte <= last; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

const std::string kDigits = "0123456789";
const std::string kCode39 = kDigits + "ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

bool IsCode128(std::int32_t type) { return type >= 5 && type <= 8; }
bool IsUpcE(std::int32_t type) { return type == 10 || type == 19 || type == 20; }

// Texts that the published type takes. Those of UPC-E may still be none that zero suppression
// gives.
class PublishedTexts {
 public:
  explicit PublishedTexts(std::int32_t type)
      : type_(type), texts_(static_cast<std::uint32_t>(type)) {}

  std::string Next() {
    const TextRule& rule = RowOf(type_)->drawing.text;
    if (type_ == 0) return Codabar();
    if (type_ == 1 || type_ == 2) return texts_.Next(kCode39, 1, 40);
    if (type_ == 22) return texts_.Next(Bytes(0, 127), 1, 40);
    if (type_ == 11) return texts_.Next(kDigits + "-", 1, 30);
    if (IsUpcE(type_)) return "0" + texts_.Next(kDigits, rule.shortest - 1u, rule.shortest - 1u);
    if (IsCode128(type_)) return Code128();
    return texts_.Next(kDigits, rule.shortest, rule.longest < 40 ? rule.longest : 40);
  }

 private:
  std::string Codabar() {
    const std::string start = texts_.Next("ABCDTN*E", 1, 1);
    const std::string data = texts_.Next(kDigits + "-$:/.+", 1, 30);
    return start + data + texts_.Next("ABCDTN*E", 1, 1);
  }

  // Runs of digits are what the types differ by.
  std::string Code128() {
    std::string text = texts_.Next(kDigits, 0, 9) + texts_.Next(Bytes(32, 127), 1, 20);
    return text + texts_.Next(kDigits, 0, 20) + texts_.Next(Bytes(32, 127), 0, 10);
  }

  std::int32_t type_;
  test::SeededTexts texts_;
};

// Texts that the device takes besides.
std::string DeviceText(std::int32_t type, test::SeededTexts& texts, PublishedTexts& published) {
  if (type == 0) return texts.Next(kDigits + "-$:/.+ABCDTN*E", 1, 4);
  if (type == 1) return texts.Next("ABCD0123%%/*E", 0, 12);
  if (type == 22) return texts.Next(Bytes(120, 130), 0, 12);
  if (IsCode128(type)) return published.Next() + texts.Next(kDigits + "Aa\x7F", 0, 120);
  if (IsUpcE(type)) return texts.Next("01", 1, 1) + published.Next().substr(1);
  return published.Next();
}

class OfEveryType : public testing::TestWithParam<std::int32_t> {};
INSTANTIATE_TEST_SUITE_P(SymbologyReaders, OfEveryType, testing::Range(0, int{kDeviceTypes}));

// How the device writes ten characters of Code 11 is no prediction: see SymbologyReadersTest.
Text Predicted(std::int32_t type, const std::string& text) {
  const test::ExpectedReading expected = test::ExpectedLinearReading(type, text);
  if (!expected.text) return std::nullopt;
  if (type != 0) return *expected.text + (expected.addOn.empty() ? "" : " ") + expected.addOn;
  if (expected.text->size() < 3) return std::nullopt;
  return expected.text->substr(1, expected.text->size() - 2);
}

TEST_P(OfEveryType, TextsDrawnByTheBookAreReportedBack) {
  const std::int32_t type = GetParam();
  PublishedTexts texts(type);
  int drawn = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string text = texts.Next();
    const Text letters = test::DrawnByTheBook(type, text);
    if (!letters) continue;
    ++drawn;
    // The other names of start and stop are no data.
    ASSERT_EQ(Report(type, *letters).text, test::ReportOf(type, text)) << i;
    ASSERT_EQ(PlainReading(type, *letters), test::ReportOf(type, text)) << i;
  }
  // EAN-8 has no add-on by the book, and not every six digits are UPC-E.
  EXPECT_GT(drawn, type == 17 || type == 18 ? -1 : IsUpcE(type) ? 2000 : 2999);
}

TEST_P(OfEveryType, SymbolsOfTheDeviceAreReadAsByThePlainReaderAndAsPredicted) {
  const std::int32_t type = GetParam();
  PublishedTexts published(type);
  test::SeededTexts texts(2300u + static_cast<std::uint32_t>(type));
  int drawn = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string given = DeviceText(type, texts, published);
    const std::string text = given.c_str();
    const Text letters = test::DrawnByTheDevice(type, text);
    if (!letters) continue;
    ++drawn;
    const Text reported = Report(type, *letters).text;
    ASSERT_EQ(reported, PlainReading(type, *letters)) << i << ' ' << text;
    if (type == 11 && text.size() == 10) continue;
    ASSERT_EQ(reported, Predicted(type, text)) << i << ' ' << text;
  }
  EXPECT_GT(drawn, type == 0 ? 500 : 2999);
}

// Each letter becomes each other one, and one that is none.
void ChangeEachLetter(std::int32_t type, const std::string& letters) {
  for (std::size_t at = 0; at < letters.size(); ++at) {
    for (const char letter : {'A', 'B', 'a', 'b', '\0', '\xFF'}) {
      std::string changed = letters;
      changed[at] = letter;
      ASSERT_EQ(Report(type, changed).text, PlainReading(type, changed)) << at << ' ' << letter;
    }
  }
}

TEST_P(OfEveryType, OneChangedLetterIsJudgedAsByThePlainReader) {
  const std::int32_t type = GetParam();
  PublishedTexts texts(type);
  for (int i = 0; i < 8; ++i) {
    const Text letters = test::DrawnByTheDevice(type, texts.Next());
    if (letters) ChangeEachLetter(type, *letters);
  }
}

TEST_P(OfEveryType, CutSymbolsAreJudgedAsByThePlainReader) {
  const std::int32_t type = GetParam();
  const std::string letters = *test::DrawnByTheDevice(type, PublishedTexts(type).Next());
  for (std::size_t length = 0; length < letters.size(); ++length) {
    const std::string front = letters.substr(0, length);
    const std::string back = letters.substr(letters.size() - length);
    ASSERT_EQ(Report(type, front).text, PlainReading(type, front)) << length;
    ASSERT_EQ(Report(type, back).text, PlainReading(type, back)) << length;
  }
}

TEST_P(OfEveryType, WhatStandsBehindTheLettersIsNotRead) {
  const std::int32_t type = GetParam();
  const std::string letters = *test::DrawnByTheDevice(type, PublishedTexts(type).Next());
  std::vector<char> text(letters.size() + 1);
  std::vector<std::uint8_t> values(letters.size());
  for (std::size_t length = 0; length < letters.size(); ++length) {
    SymbolReading reading = {text.data(), 0, values.data(), 0};
    const bool isRead = ReadSymbol(type, CheckScheme::kOwn, letters.data(), length, reading);
    const auto alone = Report(type, letters.substr(0, length));
    ASSERT_EQ(isRead, alone.text.has_value()) << length;
    ASSERT_EQ(reading.valuesCount, alone.values.size()) << length;
  }
}

// Function characters and shifts of Code 128, which the plain reader takes for a defect.
bool HasFunctions(std::int32_t type, const std::vector<int>& values) {
  return IsCode128(type) && std::any_of(values.begin(), values.end() - 1, [](int value) {
           return value >= 96 && value < 103 && value != 99;
         });
}

// Pieces of symbols.
TEST_P(OfEveryType, GarbageIsJudgedAsByThePlainReader) {
  const std::int32_t type = GetParam();
  test::SeededTexts random(4600u + static_cast<std::uint32_t>(type));
  for (int i = 0; i < 4000; ++i) {
    const std::string garbage = random.Next(i % 2 == 0 ? "Aa" : "AaBb", 0, 160);
    ASSERT_EQ(Report(type, garbage).text, PlainReading(type, garbage)) << garbage;
  }
}

TEST_P(OfEveryType, MixedSymbolsAreJudgedAsByThePlainReader) {
  const std::int32_t type = GetParam();
  PublishedTexts texts(type);
  std::mt19937 random(6900u + static_cast<std::uint32_t>(type));
  for (int i = 0; i < 2000; ++i) {
    const std::string one = *test::DrawnByTheDevice(type, texts.Next());
    const std::string other = *test::DrawnByTheDevice(type, texts.Next());
    const std::size_t at = random() % (std::min(one.size(), other.size()) + 1);
    const std::string mixed = one.substr(0, at) + other.substr(at);
    const auto reported = Report(type, mixed);
    if (reported.text && HasFunctions(type, reported.values)) continue;
    ASSERT_EQ(reported.text, PlainReading(type, mixed)) << mixed;
  }
}

TEST_P(OfEveryType, LettersWithoutEndAreNoSymbol) {
  const std::string letters(std::size_t{3} << 20, 'A');
  EXPECT_EQ(Report(GetParam(), letters).text, std::nullopt);
}

}  // namespace
}  // namespace barhatch
