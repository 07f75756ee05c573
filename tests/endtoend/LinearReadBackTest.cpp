// Every linear type from the record to the reader: the text is handed to the export, the strokes
// are marked on a part, and readers that are not ours say what stands there. What they have to say
// comes from ExpectedReading.h: most often the text that was given.
//
// zxing-cpp and ZBar read what they know; a plain reader, written from the published symbology,
// reads every symbol besides, module by module out of the same picture. It is the only one for MSI
// and Code 11, which no reader of Debian knows.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "MarkedSymbol.h"
#include "ReadTally.h"
#include "support/CodabarReader.h"
#include "support/Code11Reader.h"
#include "support/Code128Reader.h"
#include "support/Code39Reader.h"
#include "support/Code93Reader.h"
#include "support/EanUpcReader.h"
#include "support/ExpectedReading.h"
#include "support/Interleaved2of5Reader.h"
#include "support/MsiReader.h"
#include "support/QuietZoneTrim.h"
#include "support/ReaderOracle.h"
#include "support/SeededTexts.h"

namespace barhatch::test {
namespace {

const std::string kDigits = "0123456789";
const std::string kUpper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

std::string BytesFromTo(int first, int last) {
  std::string all;
  for (int byte = first; byte <= last; ++byte) all += static_cast<char>(byte);
  return all;
}

// The longest texts that the types take.
constexpr std::size_t kLongestText = 3119;
constexpr std::size_t kLongestCodabar = 3116;
constexpr std::size_t kLongestCode39 = 3114;

enum class Shape { kFree, kStartAndStop, kFixed, kUpcE };

struct TypeCase {
  int type;
  std::string alphabet;  // every character that the type accepts
  Shape shape;
  std::size_t longest;  // of the texts for all patterns; a fixed length for EAN/UPC
  std::optional<Format> format;
  std::size_t limit;  // of the texts that are sampled by length
};

std::vector<TypeCase> Cases() {
  const std::string all = BytesFromTo(1, 255);
  const std::string ascii = BytesFromTo(32, 127);
  constexpr std::optional<Format> kNoReader;
  return {
      {0, kDigits + "-$:/.+", Shape::kStartAndStop, 16, Format::kCodabar, kLongestCodabar},
      {1, kDigits + kUpper + "-. $/+%*", Shape::kFree, 14, Format::kCode39, kLongestCode39},
      {2, kDigits + kUpper + "-. $/+%", Shape::kFree, 16, Format::kCode93, kLongestText},
      {3, kDigits, Shape::kFixed, 12, Format::kEan13, 0},
      {4, kDigits, Shape::kFree, 20, kNoReader, kLongestText},
      {5, ascii, Shape::kFree, 24, Format::kCode128, 200},
      {6, ascii, Shape::kFree, 24, Format::kCode128, 200},
      {7, ascii, Shape::kFree, 24, Format::kCode128, 200},
      {8, ascii, Shape::kFree, 24, Format::kCode128, 200},
      {9, kDigits, Shape::kFixed, 11, Format::kUpcA, 0},
      {10, kDigits, Shape::kUpcE, 7, Format::kUpcE, 0},
      {11, kDigits + "-", Shape::kFree, 20, kNoReader, kLongestText},
      {12, kDigits, Shape::kFixed, 7, Format::kEan8, 0},
      {13, kDigits, Shape::kFixed, 13, Format::kUpcA, 0},
      {14, kDigits, Shape::kFixed, 16, Format::kUpcA, 0},
      {15, kDigits, Shape::kFixed, 14, Format::kEan13, 0},
      {16, kDigits, Shape::kFixed, 17, Format::kEan13, 0},
      {17, kDigits, Shape::kFixed, 9, Format::kEan8, 0},
      {18, kDigits, Shape::kFixed, 12, Format::kEan8, 0},
      {19, kDigits, Shape::kUpcE, 9, Format::kUpcE, 0},
      {20, kDigits, Shape::kUpcE, 12, Format::kUpcE, 0},
      {21, kDigits, Shape::kFree, 20, Format::kInterleaved2of5, kLongestText},
      {22, all, Shape::kFree, 12, Format::kCode93, kLongestText},
  };
}

// The text in the shape of the type: between start and stop characters, with a number system.
std::string Shaped(const TypeCase& c, std::string text, SeededTexts& texts) {
  if (c.shape == Shape::kUpcE) text[0] = text[0] < '5' ? '0' : '1';
  if (c.shape != Shape::kStartAndStop) return text;
  const std::string names = "ABCDTN*E";
  return texts.Next(names, 1, 1) + text + texts.Next(names, 1, 1);
}

std::string NextText(SeededTexts& texts, const TypeCase& c) {
  const bool hasFixedLength = c.shape == Shape::kFixed || c.shape == Shape::kUpcE;
  return Shaped(c, texts.Next(c.alphabet, hasFixedLength ? c.longest : 1, c.longest), texts);
}

constexpr std::size_t kZbarLongest = 250;

std::string Describe(const MarkRequest& request, const ExpectedReading& expected) {
  return "type " + std::to_string(request.type) + ", pattern " + std::to_string(request.pattern) +
         (request.image == Image::kInverted ? ", inverted, " : ", plain, ") +
         Escaped(request.text) + ", deviations: " + expected.ids;
}

// The habits of readers: why one of them says nothing where the published symbology has a reading.
bool SaysNothing(Reader reader, const MarkRequest& request, const ExpectedReading& expected) {
  const std::string& text = request.text;
  // ZBar gives up behind that many characters, whatever the type.
  if (reader == Reader::kZbar && text.size() > kZbarLongest) return true;
  switch (request.type) {
    case 0:  // zxing-cpp wants two characters between start and stop
      return reader == Reader::kZxing && text.size() < 4;
    case 1:  // behind the stop character, which may stand inside the data, both want a quiet zone
      return text.find('*') != std::string::npos;
    case 10:
    case 19:
    case 20:  // ZBar has no number system 1
      return reader == Reader::kZbar && expected.text->front() != '0';
    case 21:  // zxing-cpp wants six digits
      return reader == Reader::kZxing && expected.text->size() < 6;
    default:
      return false;
  }
}

std::string EanUpcDigits(const EanUpcReading& reading, const ExpectedReading& expected) {
  const bool isUpcA = reading.symbol == "EAN-13" && expected.text->size() == 12;
  return isUpcA && reading.digits[0] == '0' ? reading.digits.substr(1) : reading.digits;
}

std::optional<std::string> PlainReading(const MarkRequest& request, const MarkedSymbol& symbol,
                                        const ExpectedReading& expected) {
  const auto letters = [&](bool twoWidths) { return LettersOfPicture(symbol, twoWidths); };
  switch (request.type) {
    case 0:
      return ReadCodabar(letters(true));
    case 1:
      return ReadCode39(letters(true));
    case 2:
    case 22:
      return ReadCode93(letters(false));
    case 4:
      return ReadMsi(letters(false));
    case 11:
      return ReadCode11(letters(true),
                        request.text.size() < 10 ? Code11Checks::kC : Code11Checks::kCAndK);
    case 21:
      return ReadInterleaved2of5(WithoutQuietZone(letters(true)));
    default:
      break;
  }
  if (request.type >= 5 && request.type <= 8) {
    const auto reading = ReadCode128(letters(false));
    return reading ? std::optional<std::string>(reading->text) : std::nullopt;
  }
  const auto reading = ReadEanUpc(letters(false));
  if (!reading || reading->addon != expected.addOn) return std::nullopt;
  return EanUpcDigits(*reading, expected);
}

void ExpectReadBy(Reader reader, Format format, const MarkRequest& request,
                  const MarkedSymbol& symbol, const ExpectedReading& expected, ReadTally& tally) {
  const auto result = Read(reader, symbol.picture, format,
                           expected.addOn.empty() ? AddOn::kIgnored : AddOn::kRequired);
  const char* const name = reader == Reader::kZxing ? "zxing" : "ZBar";
  if (!expected.text || SaysNothing(reader, request, expected)) {
    EXPECT_FALSE(result) << name << " reads " << Escaped(result->text) << " in "
                         << Describe(request, expected);
    return tally.Count(std::string("nothing_as_expected_") + name);
  }
  ASSERT_TRUE(result) << name << ": " << Describe(request, expected);
  EXPECT_EQ(Escaped(result->text), Escaped(*expected.text))
      << name << ": " << Describe(request, expected);
  EXPECT_EQ(result->addOn, expected.addOn) << name << ": " << Describe(request, expected);
  tally.Count(std::string("read_by_") + name);
}

void ExpectRead(const TypeCase& c, const MarkRequest& request, ReadTally& tally) {
  const ExpectedReading expected = ExpectedLinearReading(request.type, request.text);
  const MarkedSymbol symbol = MarkSymbol(request);
  ASSERT_FALSE(symbol.refused) << Describe(request, expected);
  auto plain = PlainReading(request, symbol, expected);
  if (plain && plain->empty()) plain.reset();  // a symbol without data
  EXPECT_EQ(plain.has_value(), expected.text.has_value()) << Describe(request, expected);
  EXPECT_EQ(Escaped(plain.value_or("")), Escaped(expected.text.value_or("")))
      << Describe(request, expected);
  tally.Count(plain ? "read_by_plain_reader" : "nothing_as_expected_plain_reader");
  if (!expected.ids.empty()) tally.Count("touched_by_a_deviation");
  if (!c.format) return;
  for (const Reader reader : {Reader::kZxing, Reader::kZbar})
    ExpectReadBy(reader, *c.format, request, symbol, expected, tally);
}

constexpr int kReadablePatterns[] = {0, 1, 2, 3, 5};
constexpr int kTextsPerPatternAndImage = 12;

class LinearReadBack : public testing::TestWithParam<int> {
 protected:
  TypeCase Case() const { return Cases()[static_cast<std::size_t>(GetParam())]; }
  SeededTexts texts_{static_cast<std::uint32_t>(100 + GetParam())};
  ReadTally tally_;
};

TEST_P(LinearReadBack, EveryPatternPlainAndInverted) {
  const TypeCase c = Case();
  for (int pattern : kReadablePatterns) {
    for (Image image : {Image::kPlain, Image::kInverted}) {
      for (int i = 0; i < kTextsPerPatternAndImage; ++i) {
        ExpectRead(c, {c.type, NextText(texts_, c), pattern, image}, tally_);
      }
    }
  }
}

// Every character by itself, and every one behind and before every other: "ab", of large alphabets
// "abacad...". Bytes without a Code 93 character stand by themselves and in the random texts.
TEST_P(LinearReadBack, EveryCharacterAndEveryPair) {
  const TypeCase c = Case();
  const bool hasFixedLength = c.shape == Shape::kFixed || c.shape == Shape::kUpcE;
  const std::string alphabet = c.type == 22 ? BytesFromTo(1, 127) : c.alphabet;
  const std::size_t partners = c.alphabet.size() > 50 ? 10 : 1;
  for (char a : hasFixedLength ? std::string() : c.alphabet) {
    ExpectRead(c, {c.type, Shaped(c, std::string(1, a), texts_), 0, Image::kPlain}, tally_);
  }
  for (char a : alphabet) {
    for (std::size_t at = 0; at < alphabet.size(); at += partners * kSampleShare) {
      std::string text;
      for (char b : alphabet.substr(at, partners)) text += std::string({a, b});
      while (hasFixedLength && text.size() < c.longest) text += text[text.size() - 2];
      ExpectRead(c, {c.type, Shaped(c, text, texts_), 0, Image::kPlain}, tally_);
    }
  }
}

// Without the characters that make the whole symbol unreadable, so that the longest symbol is read.
std::string ReadableAlphabet(const TypeCase& c) {
  if (c.type == 1) return kDigits + "ABCD-. $/+%";
  return c.type == 22 ? BytesFromTo(1, 127) : c.alphabet;
}

TEST_P(LinearReadBack, SampledUpToTheLongestText) {
  const TypeCase c = Case();
  // Start and stop characters count as well.
  const std::size_t limit = c.limit - (c.shape == Shape::kStartAndStop ? 2 : 0);
  for (std::size_t length = 8; length < limit; length += 1 + length / 3) {
    const std::string text = texts_.Next(c.alphabet, length, length);
    ExpectRead(c, {c.type, Shaped(c, text, texts_), 0, Image::kPlain}, tally_);
  }
  if (limit == 0) return;
  const std::string text = texts_.Next(ReadableAlphabet(c), limit, limit);
  ExpectRead(c, {c.type, Shaped(c, text, texts_), 0, Image::kPlain}, tally_);
}

INSTANTIATE_TEST_SUITE_P(
    EveryType, LinearReadBack, testing::Range(0, static_cast<int>(Cases().size())),
    [](const auto& nameOf) {
      return "Type" + std::to_string(Cases()[static_cast<std::size_t>(nameOf.param)].type);
    });

// The texts that deviations are about, which random ones seldom are.
TEST(LinearReadBackOfTheRegister, AreReadAsTheRegisterSays) {
  const std::string byte128 = "\x80";
  const MarkRequest requests[] = {
      {0, "12", 0, Image::kPlain},
      {0, "A12", 0, Image::kPlain},
      {0, "AB", 0, Image::kPlain},
      {1, "", 0, Image::kPlain},
      {1, "AB%%%C", 0, Image::kPlain},
      {1, "A/B", 0, Image::kPlain},
      {1, "AB*CD", 0, Image::kPlain},
      {1, "*", 0, Image::kPlain},
      {2, "", 0, Image::kPlain},
      {22, "0" + byte128, 0, Image::kPlain},
      {22, byte128 + "A", 0, Image::kPlain},
      {22, "AB" + byte128, 0, Image::kPlain},
      {4, "", 0, Image::kPlain},
      {5, "12345", 0, Image::kPlain},
      {5, "1234A", 0, Image::kPlain},
      {6, "A\x7F", 0, Image::kPlain},
      {11, "", 0, Image::kPlain},
      {11, "1234567890", 0, Image::kPlain},
      {21, "", 0, Image::kPlain},
  };
  ReadTally tally;
  for (const MarkRequest& request : requests) {
    for (const TypeCase& c : Cases()) {
      if (c.type == request.type) ExpectRead(c, request, tally);
    }
  }
}

TEST(LinearReadBackOfTheRegister, DigitsOfCode128AreReadAsTheRegisterSays) {
  ReadTally tally;
  SeededTexts texts(128);
  for (int type = 5; type <= 8; ++type) {
    const TypeCase c{type, "", Shape::kFree, 0, Format::kCode128, 0};
    for (int i = 0; i < 48 / kSampleShare; ++i) {
      ExpectRead(c, {type, texts.Next(kDigits + "Aa\x7F", 1, 24), 0, Image::kPlain}, tally);
      ExpectRead(c, {type, texts.Next(kDigits, 1, 170), 0, Image::kPlain}, tally);
    }
  }
}

}  // namespace
}  // namespace barhatch::test
