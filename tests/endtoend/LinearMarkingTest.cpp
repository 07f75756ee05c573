// Every linear type from the record to the reader: the text is handed to the export, the strokes
// are marked on a part, and readers that are not ours say what stands there. Texts that a deviation
// touches are expected as docs/deviations.md says; the others come back as they were given.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "MarkedSymbol.h"
#include "support/Code11Reader.h"
#include "support/Code128Reader.h"
#include "support/EanUpcReader.h"
#include "support/MsiReader.h"
#include "support/ReaderOracle.h"
#include "support/SeededTexts.h"

namespace barhatch::test {
namespace {

const std::string kDigits = "0123456789";
const std::string kUpper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

std::string PrintableAscii() {
  std::string all;
  for (char c = 32; c < 127; ++c) all += c;
  return all;
}

std::string EveryAsciiByte() {
  std::string all;
  for (char c = 1; c < 127; ++c) all += c;
  return all + '\x7F';
}

struct Expectation {
  std::string text;
  std::string addOn;
};

struct MarkingCase {
  int type;
  std::string alphabet;
  std::size_t shortest;
  std::size_t longest;
  Format symbology;
  std::vector<Reader> readers;
  std::function<Expectation(const std::string& text, const MarkedSymbol& symbol)> expected;
};

Expectation AsGiven(const std::string& text, const MarkedSymbol&) { return {text, ""}; }

// D-39-5: each pair of '%' is one.
Expectation WithPercentPairsCollapsed(const std::string& text, const MarkedSymbol&) {
  std::string collapsed;
  for (std::size_t i = 0; i < text.size(); ++i) {
    collapsed += text[i];
    if (text[i] == '%' && i + 1 < text.size() && text[i + 1] == '%') ++i;
  }
  return {collapsed, ""};
}

Expectation WithLeadingZeroIfOdd(const std::string& text, const MarkedSymbol&) {
  return {text.size() % 2 != 0 ? "0" + text : text, ""};
}

// D-128-1 to D-128-3 decide what a standard reader makes of the values; the plain reader of the
// published symbology says what that is, and that the text is the one that was given but for its
// last character.
Expectation AsAStandardReaderSees(const std::string& text, const MarkedSymbol& symbol) {
  const auto reading = ReadCode128(symbol.letters);
  EXPECT_TRUE(reading) << text;
  const std::string seen = reading ? reading->text : "";
  EXPECT_EQ(seen.substr(0, text.size() - 1), text.substr(0, text.size() - 1));
  return {seen, ""};
}

std::function<Expectation(const std::string&, const MarkedSymbol&)> MainAndAddOn(
    std::size_t mainDigits) {
  return [mainDigits](const std::string& text, const MarkedSymbol&) -> Expectation {
    const std::string main = text.substr(0, mainDigits);
    return {main + MissingCheckDigit(main), text.substr(mainDigits)};
  };
}

Expectation OfUpcE(const std::string& text, const MarkedSymbol&) {
  const std::string main = text.substr(0, 7);
  return {main + MissingCheckDigit(ExpandedUpcE(main)), text.substr(7)};
}

const std::vector<Reader> kBoth = {Reader::kZxing, Reader::kZbar};
const std::vector<Reader> kZxingAlone = {Reader::kZxing};

std::vector<MarkingCase> Cases() {
  return {
      {1, kDigits + "ABCD-. $+%", 1, 14, Format::kCode39, kBoth, WithPercentPairsCollapsed},
      {2, kDigits + kUpper + "-. $/+%", 1, 16, Format::kCode93, kBoth, AsGiven},
      {22, EveryAsciiByte(), 1, 12, Format::kCode93, kBoth, AsGiven},
      {3, kDigits, 12, 12, Format::kEan13, kBoth, MainAndAddOn(12)},
      {15, kDigits, 14, 14, Format::kEan13, kBoth, MainAndAddOn(12)},
      {16, kDigits, 17, 17, Format::kEan13, kBoth, MainAndAddOn(12)},
      {9, kDigits, 11, 11, Format::kUpcA, kBoth, MainAndAddOn(11)},
      {13, kDigits, 13, 13, Format::kUpcA, kBoth, MainAndAddOn(11)},
      {14, kDigits, 16, 16, Format::kUpcA, kBoth, MainAndAddOn(11)},
      {12, kDigits, 7, 7, Format::kEan8, kBoth, MainAndAddOn(7)},
      {17, kDigits, 9, 9, Format::kEan8, kBoth, MainAndAddOn(7)},
      {18, kDigits, 12, 12, Format::kEan8, kBoth, MainAndAddOn(7)},
      {10, kDigits, 7, 7, Format::kUpcE, kZxingAlone, OfUpcE},
      {19, kDigits, 9, 9, Format::kUpcE, kZxingAlone, OfUpcE},
      {20, kDigits, 12, 12, Format::kUpcE, kZxingAlone, OfUpcE},
      {5, PrintableAscii(), 2, 24, Format::kCode128, kBoth, AsAStandardReaderSees},
      {5, kDigits + "A", 2, 24, Format::kCode128, kBoth, AsAStandardReaderSees},
      {6, PrintableAscii(), 2, 24, Format::kCode128, kBoth, AsGiven},
      {7, PrintableAscii(), 2, 24, Format::kCode128, kBoth, AsGiven},
      {8, kDigits + "Aa", 2, 24, Format::kCode128, kBoth, AsGiven},
      {21, kDigits, 6, 20, Format::kInterleaved2of5, kBoth, WithLeadingZeroIfOdd},
  };
}

constexpr int kReadablePatterns[] = {0, 1, 2, 3, 5};
constexpr int kTextsPerPatternAndImage = 12;

// A text of the case's kind; UPC-E begins with its number system.
std::string NextText(SeededTexts& texts, const MarkingCase& c) {
  std::string text = texts.Next(c.alphabet, c.shortest, c.longest);
  if (c.symbology == Format::kUpcE) text[0] = text[0] < '5' ? '0' : '1';
  return text;
}

std::string Describe(const MarkRequest& request) {
  return "type " + std::to_string(request.type) + ", pattern " + std::to_string(request.pattern) +
         (request.image == Image::kInverted ? ", inverted, \"" : ", plain, \"") + request.text +
         '"';
}

void ExpectRead(const MarkingCase& c, const MarkRequest& request) {
  const MarkedSymbol symbol = MarkSymbol(request);
  ASSERT_FALSE(symbol.refused) << Describe(request);
  const Expectation expected = c.expected(request.text, symbol);
  for (Reader reader : c.readers) {
    const auto result = Read(reader, symbol.picture, c.symbology,
                             expected.addOn.empty() ? AddOn::kIgnored : AddOn::kRequired);
    ASSERT_TRUE(result) << Describe(request);
    EXPECT_EQ(result->text, expected.text) << Describe(request);
    EXPECT_EQ(result->addOn, expected.addOn) << Describe(request);
  }
}

class LinearMarking : public testing::TestWithParam<int> {};

TEST_P(LinearMarking, EveryPatternPlainAndInvertedIsRead) {
  const MarkingCase c = Cases()[static_cast<std::size_t>(GetParam())];
  SeededTexts texts(static_cast<std::uint32_t>(100 + GetParam()));
  for (int pattern : kReadablePatterns) {
    for (Image image : {Image::kPlain, Image::kInverted}) {
      for (int i = 0; i < kTextsPerPatternAndImage; ++i) {
        ExpectRead(c, {c.type, NextText(texts, c), pattern, image});
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EveryType, LinearMarking,
                         testing::Range(0, static_cast<int>(Cases().size())),
                         [](const auto& nameOf) {
                           const MarkingCase c = Cases()[static_cast<std::size_t>(nameOf.param)];
                           return "Case" + std::to_string(nameOf.param) + "Type" +
                                  std::to_string(c.type);
                         });

// Codabar's start and stop characters are part of the text.
TEST(LinearMarkingOfCodabar, EveryPatternPlainAndInvertedIsRead) {
  SeededTexts texts(7);
  for (int pattern : kReadablePatterns) {
    for (Image image : {Image::kPlain, Image::kInverted}) {
      for (int i = 0; i < kTextsPerPatternAndImage; ++i) {
        const std::string text = texts.Next("ABCD", 1, 1) + texts.Next(kDigits + "-$:/.+", 3, 16) +
                                 texts.Next("ABCD", 1, 1);
        ExpectRead({0, "", 0, 0, Format::kCodabar, kBoth, AsGiven}, {0, text, pattern, image});
      }
    }
  }
}

// MSI and Code 11 are read from the picture by decoders written from the published symbologies.
TEST(LinearMarkingOfMsi, EveryPatternPlainAndInvertedIsRead) {
  SeededTexts texts(4);
  for (int pattern : kReadablePatterns) {
    for (Image image : {Image::kPlain, Image::kInverted}) {
      for (int i = 0; i < kTextsPerPatternAndImage; ++i) {
        const MarkRequest request{4, texts.Next(kDigits, 1, 20), pattern, image};
        EXPECT_EQ(ReadMsi(LettersOfPicture(MarkSymbol(request), false)), request.text)
            << Describe(request);
      }
    }
  }
}

TEST(LinearMarkingOfCode11, EveryPatternPlainAndInvertedIsRead) {
  SeededTexts texts(11);
  for (int pattern : kReadablePatterns) {
    for (Image image : {Image::kPlain, Image::kInverted}) {
      for (int i = 0; i < kTextsPerPatternAndImage; ++i) {
        const MarkRequest request{11, texts.Next(kDigits + "-", 1, 20), pattern, image};
        const Code11Checks checks =
            request.text.size() < 10 ? Code11Checks::kC : Code11Checks::kCAndK;
        EXPECT_EQ(ReadCode11(LettersOfPicture(MarkSymbol(request), true), checks), request.text)
            << Describe(request);
      }
    }
  }
}

// D-39-3 and D-39-2: these letters are marked, and no reader may make the given text of them.
TEST(LinearMarkingOfCode39, TextsThatADeviationTouchesAreReadAsPredicted) {
  for (char letter = 'E'; letter <= 'Z'; ++letter) {
    const MarkedSymbol symbol = MarkSymbol({1, std::string("AB") + letter, 0, Image::kPlain});
    ASSERT_FALSE(symbol.refused);
    EXPECT_FALSE(Read(Reader::kZxing, symbol.picture, Format::kCode39)) << letter;
    EXPECT_FALSE(Read(Reader::kZbar, symbol.picture, Format::kCode39)) << letter;
  }
  const MarkedSymbol slash = MarkSymbol({1, "A/B", 0, Image::kPlain});
  EXPECT_EQ(Read(Reader::kZxing, slash.picture, Format::kCode39)->text, "A%B");
  EXPECT_EQ(Read(Reader::kZbar, slash.picture, Format::kCode39)->text, "A%B");
}

}  // namespace
}  // namespace barhatch::test
