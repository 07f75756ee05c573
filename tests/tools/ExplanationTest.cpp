// The explanation says "accepted" exactly when the library returns a result: over every single
// unit, over texts at both sides of every limit, and over seeded random texts of every type.
#include "Explanation.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <random>
#include <string>
#include <string_view>

#include "TextRules.h"
#include "barhatch.h"

namespace preview {

namespace {

bool LibraryTakes(const BarcodeText& text) {
  InitBarcode();
  const std::basic_string<BarhatchChar> units(text.units.begin(), text.units.end());
  if (text.kind == Kind::kLinear) {
    SetBarcodeType(text.type);
    SetDataString(units.c_str());
    return std::unique_ptr<char[]>(GenerateBarcodeString()) != nullptr;
  }
  DataMatrixBarcodeInfo info{};
  info.height = 1.0;
  info.format = text.format;
  info.DataString = units.c_str();
  info.HatchingType = 6;  // points always fill something
  info.LineGap = 1.0;
  info.MatrixSize = text.matrixSize;
  info.IsExpanding = text.expand ? 1 : 0;
  FillBufferInfo* const fill = GenerateDataMatrixBarcode(&info);
  FreeBarcodeData(fill);
  return fill != nullptr;
}

std::string Shown(const BarcodeText& text) {
  std::string shown =
      "type " + std::to_string(text.type) + " kind " + std::to_string(static_cast<int>(text.kind)) +
      " size " + std::to_string(text.matrixSize) + (text.expand ? " expanding" : "") + " format " +
      std::to_string(text.format) + ", " + std::to_string(text.units.size()) + " units:";
  for (std::size_t i = 0; i < text.units.size() && i < 60; ++i) {
    shown += ' ' + std::to_string(static_cast<unsigned>(text.units[i]));
  }
  return shown;
}

void ExpectAgreement(const BarcodeText& text) {
  const Explanation explanation = Explain(text);
  ASSERT_EQ(explanation.isAccepted, LibraryTakes(text)) << Shown(text);
  ASSERT_EQ(explanation.isAccepted, explanation.reason.empty()) << Shown(text);
  ASSERT_TRUE(explanation.isAccepted || explanation.departures.empty()) << Shown(text);
}

BarcodeText Linear(std::int32_t type, const std::u16string& units) {
  BarcodeText text;
  text.type = type;
  text.units = units;
  return text;
}

BarcodeText Matrix(const std::u16string& units, std::int32_t size, bool expand,
                   std::int32_t format = 0) {
  BarcodeText text;
  text.kind = Kind::kDataMatrix;
  text.units = units;
  text.matrixSize = size;
  text.expand = expand;
  text.format = format;
  return text;
}

constexpr std::u16string_view kAlphabets[] = {
    u"0123456789",
    u"0123456789-",
    u"ABCDENT*0123456789-$:/.+",
    u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%",
    u"01A*%",
    u"AB 01*>\r",
    u"abcXYZ 0189!,?\x7F\x60",
    u"ab\x80\x81\xFF\x1F\x5E\x5F",
    u"A1\x0100\x0141\x0430\xD83D\x20AC",
};

class Dice {
 public:
  explicit Dice(std::uint32_t seed) : random_(seed) {}
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::u16string Text(std::size_t length) {
    std::u16string text;
    const std::u16string_view* alphabet = &kAlphabets[Below(std::size(kAlphabets))];
    while (text.size() < length) {
      if (Below(20) == 0) alphabet = &kAlphabets[Below(std::size(kAlphabets))];
      text += (*alphabet)[Below(alphabet->size())];
    }
    return text;
  }

  std::u16string Digits(std::size_t length) {
    std::u16string text;
    while (text.size() < length) text += static_cast<char16_t>(u'0' + Below(10));
    return text;
  }

 private:
  std::mt19937 random_;
};

constexpr std::int32_t kMatrixSizes[] = {
    0,      0x0A0A, 0x0C0C, 0x0E0E, 0x1010, 0x1212, 0x1616, 0x1A1A, 0x2020, 0x3434,
    0x4040, 0x6868, 0x9090, 0x0812, 0x0820, 0x0C1A, 0x0C24, 0x1024, 0x1030, 0x0B0B,
    0xFFFF, 0x1008, 0x0100, 0x0001, 0x0A0C, 0x1140, 0x9091, 0x0808, 0x0D1B,
};

}  // namespace

TEST(Explanation, EverySingleUnitOfEveryLinearType) {
  for (std::int32_t type = 0; type < kLinearTypes; ++type) {
    for (unsigned unit = 1; unit < 0x300; ++unit) {
      ExpectAgreement(Linear(type, std::u16string(1, static_cast<char16_t>(unit))));
    }
    for (const char16_t unit : {u'\xD7FF', u'\xFF00', u'\xFF41', u'\xFFFF'}) {
      ExpectAgreement(Linear(type, {unit}));
    }
  }
}

TEST(Explanation, EverySingleUnitOfADataMatrix) {
  for (const std::int32_t size : {0, 0x0A0A, 0x0812}) {
    for (unsigned unit = 1; unit < 0x10000; unit += unit < 0x200 ? 1 : 251) {
      ExpectAgreement(Matrix(std::u16string(1, static_cast<char16_t>(unit)), size, true));
      ExpectAgreement(Matrix(std::u16string(1, static_cast<char16_t>(unit)), size, false, 1));
    }
  }
}

TEST(Explanation, TheEmptyText) {
  for (std::int32_t type = 0; type < kLinearTypes; ++type) ExpectAgreement(Linear(type, u""));
  for (const std::int32_t size : kMatrixSizes) {
    for (std::int32_t format = 0; format < 4; ++format) {
      ExpectAgreement(Matrix(u"", size, true, format));
      ExpectAgreement(Matrix(u"", size, false, format));
    }
  }
}

TEST(Explanation, DigitsAndOtherTextsAtBothSidesOfEveryLimit) {
  for (std::int32_t type = 0; type < kLinearTypes; ++type) {
    for (const std::size_t limit :
         {7u, 9u, 11u, 12u, 13u, 14u, 16u, 17u, 79u, 158u, 3114u, 3116u, 3119u}) {
      for (const std::size_t length : {limit - 1, limit, limit + 1}) {
        ExpectAgreement(Linear(type, std::u16string(length, u'0')));
        ExpectAgreement(Linear(type, std::u16string(length, u'%')));
        ExpectAgreement(Linear(type, std::u16string(length, u'A')));
      }
    }
  }
}

TEST(Explanation, RandomTextsOfEveryLinearType) {
  Dice dice(1);
  for (std::int32_t type = 0; type < kLinearTypes; ++type) {
    for (int i = 0; i < 3000; ++i) ExpectAgreement(Linear(type, dice.Text(dice.Below(24))));
    for (int i = 0; i < 500; ++i) {
      std::u16string digits = dice.Digits(dice.Below(20));
      ExpectAgreement(Linear(type, digits));
      if (!digits.empty() && dice.Below(4) == 0) digits[dice.Below(digits.size())] = u'x';
      ExpectAgreement(Linear(type, digits));
    }
    for (int i = 0; i < 20; ++i) ExpectAgreement(Linear(type, dice.Text(3100 + dice.Below(30))));
  }
}

TEST(Explanation, RandomTextsOfADataMatrixWithEverySizeAndFormat) {
  Dice dice(2);
  for (int i = 0; i < 20000; ++i) {
    const std::int32_t size = i % 3 == 0 ? 0 : kMatrixSizes[dice.Below(std::size(kMatrixSizes))];
    ExpectAgreement(Matrix(dice.Text(dice.Below(i % 10 == 0 ? 120 : 20)), size, dice.Below(2) == 0,
                           static_cast<std::int32_t>(dice.Below(5))));
  }
}

TEST(Explanation, DataMatrixTextsAroundEveryCapacity) {
  Dice dice(3);
  for (int i = 0; i < 60; ++i) {
    ExpectAgreement(Matrix(dice.Text(1100 + dice.Below(1000)), i % 2 == 0 ? 0 : 0x9090, true));
  }
  for (const char16_t character : {u'7', u'A', u'a', u'*', u'!', u'\x80', u'\x81', u'\x1F'}) {
    for (const std::size_t length :
         {774u,  776u,  778u,  779u,  1040u, 1557u, 1558u, 1559u, 2076u, 2077u,
          2331u, 2332u, 2333u, 2334u, 2335u, 2336u, 2337u, 3115u, 3116u, 3117u}) {
      ExpectAgreement(Matrix(std::u16string(length, character), 0, true));
    }
  }
}

TEST(Explanation, SaysWhyInASentence) {
  EXPECT_EQ(Explain(Linear(1, u"abc")).reason,
            "code39 takes digits, A to Z, - . $ / + % * and space; character 1 is 'a'");
  EXPECT_EQ(Explain(Linear(3, u"123")).reason,
            "ean13 takes 12 digits, besides the check digit, not 3");
  EXPECT_EQ(Explain(Linear(0, u"")).reason, "codabar takes no empty text");
  EXPECT_EQ(Explain(Linear(10, u"2345678")).reason,
            "the number system, the first digit of upce, is 0 or 1, not 2");
  EXPECT_EQ(Explain(Linear(4, std::u16string(3120, u'1'))).reason,
            "the text has 3120 characters, the limit is 3119");
  EXPECT_EQ(Explain(Matrix(u"1234567", 0x0A0A, false)).reason,
            "the text takes 4 codewords and does not fit a Data Matrix of the size asked for, "
            "10x10 with 3");
  EXPECT_EQ(Explain(Matrix(u"123456", 0x0B0B, true)).reason, "there is no Data Matrix of 11x11");
}

TEST(Explanation, TellsWhatBecomesOfWideCharacters) {
  EXPECT_EQ(Explain(Linear(1, u"\x0141")).notes.at(0),
            "of U+0141 the low byte alone is taken, 'A'");
  EXPECT_EQ(Explain(Linear(1,
                           u"A\x0100"
                           u"B"))
                .notes.at(0),
            "the text ends in front of U+0100, whose low byte is zero");
  EXPECT_EQ(Explain(Matrix(u"\x0400"
                           u"A",
                           0, true))
                .notes.at(0),
            "U+0400 is no data: it designates ECI 1024");
  EXPECT_TRUE(Explain(Linear(1, u"ABC-123")).notes.empty());
}

}  // namespace preview
