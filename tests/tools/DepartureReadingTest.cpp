// A departure is named exactly where a reader by the published standard reports another text:
// Code 128 symbols of the library read by a plain reader of its own table, Data Matrix codewords by
// a plain re-implementation and a plain reader. The counts of codewords agree as well. What the
// tests of the read-back predict of linear symbols, and what the program says of them, are written
// apart: both name the same rows for random texts of every type.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "Departures.h"
#include "MatrixOutline.h"
#include "barhatch.h"
#include "support/Code128Reader.h"
#include "support/DataMatrixReader.h"
#include "support/ExpectedReading.h"
#include "support/ReferenceEncodation.h"

namespace preview {

namespace {

class Dice {
 public:
  explicit Dice(std::uint32_t seed) : random_(seed) {}
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  // Runs of characters of one alphabet.
  std::u16string Text(const std::vector<std::u16string>& alphabets, std::size_t length) {
    std::u16string text;
    while (text.size() < length) {
      const std::u16string& alphabet = alphabets[Below(alphabets.size())];
      const std::size_t end = std::min(length, text.size() + 1 + Below(9));
      while (text.size() < end) text += alphabet[Below(alphabet.size())];
    }
    return text;
  }

 private:
  std::mt19937 random_;
};

bool IsToldToReadOtherwise(const BarcodeText& text) {
  for (const Departure* departure : DeparturesTouching(text)) {
    if (departure->effect == Effect::kMayReadOtherwise) return true;
  }
  return false;
}

std::string ModuleStringOf(const BarcodeText& text) {
  InitBarcode();
  SetBarcodeType(text.type);
  SetDataString(std::basic_string<BarhatchChar>(text.units.begin(), text.units.end()).c_str());
  const std::unique_ptr<char[]> letters(GenerateBarcodeString());
  return letters != nullptr ? letters.get() : "";
}

bool IsCode128Read(const BarcodeText& text) {
  const auto reading = barhatch::test::ReadCode128(ModuleStringOf(text));
  return reading && reading->text == NarrowText(text.units);
}

// What a reader reports where everything is by the book.
std::vector<int> PublishedItems(const BarcodeText& text) {
  const auto isDigit = [&](std::size_t i) {
    return i < text.units.size() && text.units[i] >= u'0' && text.units[i] <= u'9';
  };
  std::vector<int> items;
  if (text.format == 2) items.push_back(barhatch::test::kReadMacro05);
  if (text.format == 3) items.push_back(barhatch::test::kReadMacro06);
  for (std::size_t i = 0; i < text.units.size(); ++i) {
    const int unit = text.units[i];
    items.push_back(unit > 255 ? barhatch::test::ReadEci(unit) : unit);
    const std::size_t firstEnd = isDigit(0) && isDigit(1) ? 2 : 1;
    if (text.format == 1 && i + 1 == firstEnd) items.push_back(barhatch::test::kReadFnc1);
  }
  return items;
}

constexpr std::int32_t kSizes[] = {0,      0x0C0C, 0x1212, 0x2020, 0x3434, 0x0812,
                                   0x0820, 0x0C1A, 0x0C24, 0x1024, 0x1030};

BarcodeText RandomMatrixText(Dice& dice) {
  BarcodeText text;
  text.kind = Kind::kDataMatrix;
  text.units = dice.Text(
      {u"0123456789", u"ABCDEFGHIJ KLM", u"abcdefghij klm", u"AB*>\r01", u"!\"#$%&'()@[]^",
       u"_\x60~\x1F\t", u"\x81\xFF\xE9", u"\x80", u"\x0400\x0103\x4E00"},
      dice.Below(40));
  text.matrixSize = kSizes[dice.Below(std::size(kSizes))];
  text.expand = dice.Below(4) != 0;
  text.format = static_cast<std::int32_t>(dice.Below(4));
  return text;
}

barhatch::test::ReferenceEncodation ReferenceOf(const BarcodeText& text) {
  const MatrixRequest request = RequestOf(text);
  return barhatch::test::EncodeByReference(text.units, text.format,
                                           {request.rows, request.columns, request.expand ? 1 : 0});
}

std::set<std::string> NamesOf(const std::vector<const Departure*>& departures) {
  std::set<std::string> names;
  for (const Departure* departure : departures) names.insert(std::string(departure->id));
  return names;
}

std::set<std::string> NamesOf(const std::string& ids) {
  std::istringstream words(ids);
  return {std::istream_iterator<std::string>(words), {}};
}

// What a reader reports where no departure touches the text: Codabar's other names of start and
// stop, the digit before an odd number of digits and the check digits are no departures.
bool IsReadAsGiven(int type, const std::string& text, const std::string& reading) {
  if (type == 0) {
    std::string published = text;
    for (char& c : published) {
      const std::size_t at = std::string("TN*E").find(c);
      if (at != std::string::npos) c = "ABCD"[at];
    }
    return reading == published;
  }
  if (type == 21) return reading == (text.size() % 2 != 0 ? "0" + text : text);
  const bool isEanUpc = type == 3 || type == 9 || type == 10 || (type >= 12 && type <= 20);
  if (isEanUpc) return text.compare(0, reading.size() - 1, reading, 0, reading.size() - 1) == 0;
  return reading == text;
}

// Texts that the type accepts, more often of those characters that departures are about.
BarcodeText RandomLinearText(Dice& dice, int type) {
  constexpr std::size_t kEanUpcLengths[] = {12, 11, 7, 0, 7, 13, 16, 14, 17, 9, 12, 9, 12};
  BarcodeText text;
  text.type = type;
  if (type == 3 || (type >= 9 && type <= 20 && type != 11)) {
    text.units = dice.Text({u"0123456789"}, kEanUpcLengths[type == 3 ? 0 : type - 8]);
    if (text.units.size() < 13) text.units[0] = u"01"[dice.Below(2)];
    return text;
  }
  const std::vector<std::u16string> alphabets =
      type == 0 ? std::vector<std::u16string>{u"0123456789-$:/.+", u"ABCDTN*E"}
      : type == 1
          ? std::vector<std::u16string>{u"0123456789", u"ABCD-. $+", u"%", u"/", u"EZ", u"*"}
      : type == 2 ? std::vector<std::u16string>{u"0123456789", u"ABCDEZ-. ", u"$%+/"}
      : type == 22
          ? std::vector<std::u16string>{u"0123456789", u"AZaz-. ", u"$%+/", u"\x80\xFF", u"\x01!?"}
      : type == 11 ? std::vector<std::u16string>{u"0123456789", u"-"}
      : type == 4 || type == 21
          ? std::vector<std::u16string>{u"0123456789"}
          : std::vector<std::u16string>{u"0123456789", u"0123456789", u"ABC -", u"abc~", u"\x7F"};
  text.units = dice.Text(alphabets, dice.Below(type >= 5 && type <= 8 ? 100 : 14));
  return text;
}

}  // namespace

TEST(DepartureReading, OfEveryLinearTypeIsNamedWhereTheReadBackPredictsIt) {
  Dice dice(7);
  for (int type = 0; type < 23; ++type) {
    int touched = 0;
    for (int i = 0; i < 2000; ++i) {
      const BarcodeText text = RandomLinearText(dice, type);
      const std::string given = NarrowText(text.units);
      if (ModuleStringOf(text).empty()) continue;
      const auto expected = barhatch::test::ExpectedLinearReading(type, given);
      // The program names what touches the symbol; the read-back what shows in the reading, which
      // another row may have ended before.
      const std::set<std::string> named = NamesOf(DeparturesTouching(text));
      const std::set<std::string> seen = NamesOf(expected.ids);
      ASSERT_TRUE(std::includes(named.begin(), named.end(), seen.begin(), seen.end()))
          << type << ' ' << given << ' ' << expected.ids;
      ASSERT_TRUE(!seen.empty() || !IsToldToReadOtherwise(text)) << type << ' ' << given;
      const bool isAlike = expected.text && IsReadAsGiven(type, given, *expected.text);
      ASSERT_TRUE(isAlike || IsToldToReadOtherwise(text)) << type << ' ' << given;
      touched += expected.ids.empty() ? 0 : 1;
    }
    RecordProperty("touched_" + std::to_string(type), touched);
  }
}

TEST(DepartureReading, OfCode128IsOtherwiseExactlyWhereADepartureSaysSo) {
  Dice dice(4);
  int otherwise = 0;
  for (int i = 0; i < 20000; ++i) {
    BarcodeText text;
    text.type = static_cast<std::int32_t>(5 + dice.Below(4));
    const std::size_t length = i % 4 == 0 ? 70 + dice.Below(95) : 1 + dice.Below(20);
    text.units = dice.Text({u"0123456789", u"0123456789", u"ABC -", u"abc~", u"\x7F"}, length);
    const bool isTold = IsToldToReadOtherwise(text);
    ASSERT_EQ(IsCode128Read(text), !isTold) << text.type << ' ' << NarrowText(text.units);
    otherwise += isTold ? 1 : 0;
  }
  EXPECT_GT(otherwise, 4000);
  EXPECT_LT(otherwise, 16000);
}

TEST(DepartureReading, OfDataMatrixIsOtherwiseExactlyWhereADepartureSaysSo) {
  Dice dice(5);
  int otherwise = 0;
  int alike = 0;
  for (int i = 0; i < 30000; ++i) {
    const BarcodeText text = RandomMatrixText(dice);
    const auto reference = ReferenceOf(text);
    if (reference.capacity == 0) continue;
    const auto reading = barhatch::test::ReadDataCodewords(
        barhatch::test::Padded(reference.codewords, reference.capacity));
    const bool isRead = reading.isSound && reading.items == PublishedItems(text);
    ASSERT_EQ(isRead, !IsToldToReadOtherwise(text))
        << ::testing::PrintToString(std::vector<unsigned>(text.units.begin(), text.units.end()))
        << " size " << text.matrixSize << " format " << text.format;
    ++(isRead ? alike : otherwise);
  }
  EXPECT_GT(otherwise, 3000);
  EXPECT_GT(alike, 3000);
}

TEST(DepartureReading, CodewordsAreCountedAsTheyAreWritten) {
  Dice dice(6);
  for (int i = 0; i < 20000; ++i) {
    const BarcodeText text = RandomMatrixText(dice);
    const auto reference = ReferenceOf(text);
    const MatrixOutline outline = OutlineOf(text);
    ASSERT_EQ(outline.codewords, static_cast<int>(reference.codewords.size()));
    ASSERT_EQ(outline.size ? outline.size->dataCodewords : 0, reference.capacity);
  }
}

}  // namespace preview
