// Symbols by the book under every scheme of check characters: read back by the plain readers and by
// the library's, which tests the scheme, and not read with a wrong character.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "barhatch_mark.h"
#include "mark/Reading.h"
#include "support/CodabarReader.h"
#include "support/Code11Reader.h"
#include "support/Code39Reader.h"
#include "support/Interleaved2of5Reader.h"
#include "support/MsiReader.h"
#include "support/SeededTexts.h"
#include "symbologies/Code39FullAscii.h"
#include "symbologies/DrawnSymbol.h"
#include "symbologies/SymbologyReaders.h"

namespace barhatch {
namespace {

using Text = std::optional<std::string>;

constexpr std::int32_t kItf = BARHATCH_INTERLEAVED_2_OF_5;
const std::string kDigits = "0123456789";

// What the library's reader gives, set to a scheme.
Text Reported(std::int32_t symbology, CheckScheme check, const std::string& letters) {
  std::string text(letters.size() + 1, '\0');
  std::vector<std::uint8_t> values(letters.size() + 1);
  SymbolReading reading = {text.data(), 0, values.data(), 0};
  if (!ReadSymbol(symbology, check, letters.data(), letters.size(), reading)) return std::nullopt;
  return std::string(reading.text, reading.textLength);
}

// All characters that are drawn, of a reader that tests none of them.
Text PlainCharacters(std::int32_t symbology, const std::string& letters) {
  switch (symbology) {
    case BARHATCH_CODABAR:
      return test::ReadCodabarCharacters(letters);
    case BARHATCH_CODE_39:
      return test::ReadCode39(letters);
    case BARHATCH_MSI:
      return test::ReadMsiDigits(letters);
    case BARHATCH_CODE_11:
      return test::ReadCode11Characters(letters);
    default:
      return test::ReadInterleaved2of5(letters);
  }
}

struct Scheme {
  const char* name;
  std::int32_t symbology;
  CheckScheme check;
  std::string alphabet;
  std::size_t checks;    // characters; by length where that says so
  std::size_t shortest;  // texts
  std::size_t longest;
};

const std::string kCode39Set = kDigits + "ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

const Scheme kSchemes[] = {
    {"CodabarNone", BARHATCH_CODABAR, CheckScheme::kNone, kDigits + "-$:/.+", 0, 1, 40},
    {"Codabar16", BARHATCH_CODABAR, CheckScheme::kModulo16, kDigits + "-$:/.+", 1, 1, 40},
    {"Code39None", BARHATCH_CODE_39, CheckScheme::kNone, kCode39Set, 0, 1, 40},
    {"Code39", BARHATCH_CODE_39, CheckScheme::kModulo43, kCode39Set, 1, 1, 40},
    {"MsiNone", BARHATCH_MSI, CheckScheme::kNone, kDigits, 0, 1, 40},
    {"MsiOwn", BARHATCH_MSI, CheckScheme::kOwn, kDigits, 1, 1, 40},
    {"Msi10", BARHATCH_MSI, CheckScheme::kMsi10, kDigits, 1, 1, 40},
    {"Msi10And10", BARHATCH_MSI, CheckScheme::kMsi10And10, kDigits, 2, 1, 40},
    {"Msi11", BARHATCH_MSI, CheckScheme::kMsi11, kDigits, 1, 1, 40},
    {"Msi11And10", BARHATCH_MSI, CheckScheme::kMsi11And10, kDigits, 2, 1, 40},
    {"MsiNcr11", BARHATCH_MSI, CheckScheme::kMsiNcr11, kDigits, 1, 1, 40},
    {"MsiNcr11And10", BARHATCH_MSI, CheckScheme::kMsiNcr11And10, kDigits, 2, 1, 40},
    {"Code11None", BARHATCH_CODE_11, CheckScheme::kNone, kDigits + "-", 0, 1, 40},
    {"Code11C", BARHATCH_CODE_11, CheckScheme::kCode11C, kDigits + "-", 1, 1, 40},
    {"Code11CAndK", BARHATCH_CODE_11, CheckScheme::kCode11CAndK, kDigits + "-", 2, 1, 40},
    {"Code11Short", BARHATCH_CODE_11, CheckScheme::kOwn, kDigits + "-", 1, 1, 10},
    {"Code11Long", BARHATCH_CODE_11, CheckScheme::kOwn, kDigits + "-", 2, 11, 40},
    {"ItfNone", kItf, CheckScheme::kNone, kDigits, 0, 1, 40},
    {"Itf", kItf, CheckScheme::kInterleaved10, kDigits, 1, 1, 40},
    {"Itf14", BARHATCH_ITF_14, CheckScheme::kOwn, kDigits, 1, 13, 13},
};

class EveryScheme : public testing::TestWithParam<Scheme> {
 protected:
  static test::PublishedSymbol Drawn(std::int32_t symbology, const std::string& text,
                                     CheckScheme check) {
    LinearOptions options;
    options.check = check;
    options.addsStartStop = symbology == BARHATCH_CODABAR;
    return test::DrawByTheBook(symbology, text, options);
  }

  // Calls back with texts that are drawn, most of them.
  template <typename Judge>
  static void ForTexts(int count, const Judge& judge) {
    const Scheme& scheme = GetParam();
    test::SeededTexts texts(static_cast<std::uint32_t>(scheme.symbology) + 7u);
    int drawn = 0;
    for (int i = 0; i < count; ++i) {
      const std::string text = texts.Next(scheme.alphabet, scheme.shortest, scheme.longest);
      const test::PublishedSymbol symbol = Drawn(scheme.symbology, text, scheme.check);
      if (!symbol.letters) {
        ASSERT_EQ(symbol.refusal.reason, Reason::kNoCheck) << text;
        continue;
      }
      ++drawn;
      judge(text, symbol);
    }
    EXPECT_GT(drawn, count / 10 * 8);
  }
};

std::vector<Scheme> Schemes(bool (*isWanted)(const Scheme&)) {
  std::vector<Scheme> schemes;
  std::copy_if(std::begin(kSchemes), std::end(kSchemes), std::back_inserter(schemes), isWanted);
  return schemes;
}

std::string NameOfScheme(const testing::TestParamInfo<Scheme>& scheme) { return scheme.param.name; }

INSTANTIATE_TEST_SUITE_P(CheckSchemes, EveryScheme, testing::ValuesIn(kSchemes), NameOfScheme);

class SchemeWithCheck : public EveryScheme {};
INSTANTIATE_TEST_SUITE_P(CheckSchemes, SchemeWithCheck,
                         testing::ValuesIn(Schemes([](const Scheme& scheme) {
                           return scheme.checks > 0;
                         })),
                         NameOfScheme);

// Those that a text brings with it where a job asks to verify.
class UsualScheme : public EveryScheme {};
INSTANTIATE_TEST_SUITE_P(CheckSchemes, UsualScheme,
                         testing::ValuesIn(Schemes([](const Scheme& scheme) {
                           return scheme.check == CheckScheme::kOwn ||
                                  scheme.check == CheckScheme::kMsi10 ||
                                  scheme.check == CheckScheme::kModulo16 ||
                                  scheme.check == CheckScheme::kModulo43 ||
                                  scheme.check == CheckScheme::kInterleaved10;
                         })),
                         NameOfScheme);

std::string InPairs(std::int32_t symbology, const std::string& text) {
  return symbology == kItf && text.size() % 2 != 0 ? "0" + text : text;
}

TEST_P(EveryScheme, IsReadBackByThePlainReader) {
  const Scheme& scheme = GetParam();
  ForTexts(1000, [&](const std::string& text, const test::PublishedSymbol& symbol) {
    const std::size_t front = scheme.symbology == BARHATCH_CODABAR ? 1 : 0;
    ASSERT_EQ(symbol.text.size(), text.size() + scheme.checks + 2 * front);
    ASSERT_EQ(symbol.text.substr(front, text.size()), text);
    ASSERT_EQ(PlainCharacters(scheme.symbology, *symbol.letters),
              InPairs(scheme.symbology, symbol.text));
  });
}

TEST_P(EveryScheme, IsReportedByTheReaderThatKnowsIt) {
  const Scheme& scheme = GetParam();
  ForTexts(1000, [&](const std::string& text, const test::PublishedSymbol& symbol) {
    const Text reported = Reported(scheme.symbology, scheme.check, *symbol.letters);
    ASSERT_TRUE(reported) << text;
    ASSERT_TRUE(IsReadingOfLinear(symbol.reading, {symbol.text.data(), symbol.text.size()},
                                  {reported->data(), reported->size()}))
        << text << " " << *reported;
    ASSERT_NE(reported->find(text), std::string::npos);
  });
}

// Each of these check characters finds every single wrong character.
TEST_P(SchemeWithCheck, IsNotReportedWithOneWrongCharacter) {
  const Scheme& scheme = GetParam();
  const std::int32_t symbology = scheme.symbology == BARHATCH_ITF_14 ? kItf : scheme.symbology;
  test::SeededTexts texts(5);
  ForTexts(300, [&](const std::string& text, const test::PublishedSymbol& symbol) {
    const std::size_t front = symbology == BARHATCH_CODABAR ? 1 : 0;
    std::string changed = symbol.text.substr(front, text.size() + scheme.checks);
    const std::size_t at = std::stoul(texts.Next(kDigits, 4, 4)) % changed.size();
    changed[at] = changed[at] == '1' ? '2' : '1';
    const auto wrong = Drawn(symbology, changed, CheckScheme::kNone).letters;
    ASSERT_TRUE(wrong);
    ASSERT_EQ(Reported(scheme.symbology, scheme.check, *wrong), std::nullopt) << changed;
  });
}

TEST_P(UsualScheme, VerifiesWhatItAdds) {
  const Scheme& scheme = GetParam();
  ForTexts(300, [&](const std::string& text, const test::PublishedSymbol& symbol) {
    LinearOptions options;
    options.check = CheckScheme::kVerify;
    const auto verified = test::DrawByTheBook(scheme.symbology, symbol.text, options);
    ASSERT_EQ(verified.letters, symbol.letters) << text;
    ASSERT_EQ(Reported(scheme.symbology, CheckScheme::kVerify, *verified.letters),
              Reported(scheme.symbology, scheme.check, *symbol.letters));
  });
}

// ISO/IEC 16388, full ASCII: by the names of the characters.
TEST(Code39FullAscii, IsSpelledAsTheStandardSays) {
  const std::string row00 = "%U$A$B$C$D$E$F$G$H$I$J$K$L$M$N$O$P$Q$R$S$T$U$V$W$X$Y$Z%A%B%C%D%E";
  const std::string row20 = " /A/B/C/D/E/F/G/H/I/J/K/L-./O0123456789/Z%F%G%H%I%J";
  const std::string row40 = "%VABCDEFGHIJKLMNOPQRSTUVWXYZ%K%L%M%N%O";
  const std::string row60 = "%W+A+B+C+D+E+F+G+H+I+J+K+L+M+N+O+P+Q+R+S+T+U+V+W+X+Y+Z%P%Q%R%S%T";
  std::string ascii;
  for (int character = 0; character < 128; ++character) ascii += static_cast<char>(character);
  const auto symbol = test::DrawByTheBook(BARHATCH_CODE_39_FULL, ascii);
  EXPECT_EQ(test::ReadCode39(*symbol.letters), row00 + row20 + row40 + row60);
  EXPECT_EQ(Reported(BARHATCH_CODE_39_FULL, CheckScheme::kOwn, *symbol.letters), ascii);
}

TEST(Code39FullAscii, IsReportedWithoutTheCheckCharacter) {
  test::SeededTexts texts(102);
  std::string ascii;
  for (int character = 0; character < 128; ++character) ascii += static_cast<char>(character);
  LinearOptions options;
  options.check = CheckScheme::kModulo43;
  for (int i = 0; i < 1000; ++i) {
    const std::string text = texts.Next(ascii, 1, 30);
    const auto symbol = test::DrawByTheBook(BARHATCH_CODE_39_FULL, text, options);
    ASSERT_EQ(Reported(BARHATCH_CODE_39_FULL, CheckScheme::kModulo43, *symbol.letters), text);
    ASSERT_EQ(symbol.text.substr(0, text.size()), text);
    ASSERT_EQ(symbol.text.back(), test::ReadCode39(*symbol.letters)->back());
  }
}

TEST(Code39FullAscii, PairsThatSpellNothingAreNotReported) {
  for (const std::string text : {"A+", "$", "%", "/P", "/Y", "+1", "$-", "%X", "++A", "$/", "+ "}) {
    const auto letters = test::DrawnByTheBook(BARHATCH_CODE_39, text);
    EXPECT_EQ(Reported(BARHATCH_CODE_39_FULL, CheckScheme::kOwn, *letters), std::nullopt) << text;
  }
  // The other spellings of '-' and '.', which readers know.
  const auto letters = test::DrawnByTheBook(BARHATCH_CODE_39, "/M/N");
  EXPECT_EQ(Reported(BARHATCH_CODE_39_FULL, CheckScheme::kOwn, *letters), "-.");
}

TEST(Itf14, IsFourteenDigits) {
  LinearOptions options;
  options.check = CheckScheme::kInterleaved10;
  for (const std::string text : {"12345", "00123456789", "123456789012345"}) {
    const auto itf = test::DrawByTheBook(kItf, text, options);
    EXPECT_EQ(Reported(BARHATCH_ITF_14, CheckScheme::kOwn, *itf.letters), std::nullopt) << text;
  }
  const auto itf = test::DrawByTheBook(kItf, "1540014128876", options);
  EXPECT_EQ(Reported(BARHATCH_ITF_14, CheckScheme::kOwn, *itf.letters), "15400141288763");
}

}  // namespace
}  // namespace barhatch
