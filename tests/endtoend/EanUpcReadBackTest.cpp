// EAN and UPC by the book from the job to the readers: texts with and without check digit, UPC-E in
// its five forms, add-ons behind their sign at every gap of the standard.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "ReadTally.h"
#include "ResultPicture.h"
#include "barhatch_mark.h"
#include "support/EanUpcReader.h"
#include "support/Raster.h"
#include "support/ReaderOracle.h"
#include "support/SeededTexts.h"

namespace barhatch::test {
namespace {

constexpr double kGap = 0.1;
constexpr double kHeight = 12.0;
const std::string kDigits = "0123456789";

struct Kind {
  std::int32_t symbology;
  Format format;
  std::size_t digits;  // without the check digit
  std::int32_t leastGap;
};

constexpr Kind kKinds[] = {
    {BARHATCH_EAN_13, Format::kEan13, 12, 7},
    {BARHATCH_UPC_A, Format::kUpcA, 11, 9},
    {BARHATCH_EAN_8, Format::kEan8, 7, 7},
    {BARHATCH_UPC_E, Format::kUpcE, 7, 9},
};

// One symbol, and a text that asks for it.
struct Wanted {
  std::string text;
  std::string digits;  // as readers report them
  std::string addon;
};

// UPC-E of number system 0, with digits that a UPC-A number has: its last digit is 0, 1 or 2.
Wanted NextWanted(const Kind& kind, SeededTexts& texts) {
  const bool isUpcE = kind.format == Format::kUpcE;
  const std::string digits = isUpcE ? "0" + texts.Next(kDigits, 5, 5) + texts.Next("012", 1, 1)
                                    : texts.Next(kDigits, kind.digits, kind.digits);
  const std::string upcA = isUpcE ? ExpandedUpcE(digits) : "";
  const char check = MissingCheckDigit(isUpcE ? upcA : digits);
  std::vector<std::string> forms = {digits, digits + check};
  if (isUpcE) forms.insert(forms.end(), {digits.substr(1), upcA, upcA + check});
  const auto form = static_cast<std::size_t>(texts.Next(kDigits, 1, 1)[0]) % forms.size();
  Wanted wanted = {forms[form], digits + check, ""};
  const std::size_t addon = std::stoul(texts.Next("025", 1, 1));
  wanted.addon = texts.Next(kDigits, addon, addon);
  if (addon != 0) wanted.text += "+" + wanted.addon;
  return wanted;
}

BarhatchJob JobOf(const Kind& kind, const Wanted& wanted, std::int32_t gap) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = kind.symbology;
  job.text = wanted.text.c_str();
  job.flags = BARHATCH_QUIET_INSIDE | BARHATCH_PERMIT;
  job.addon_gap = gap;
  job.x_dimension = 1.0;
  job.height = kHeight;
  job.gap = kGap;
  return job;
}

// zxing-cpp looks for an add-on no further behind the symbol.
constexpr std::int32_t kMostGapOfZxing = 10;

void ExpectRead(Reader reader, const Kind& kind, const Wanted& wanted, const Raster& picture,
                ReadTally& tally) {
  const char* const name = reader == Reader::kZxing ? "zxing" : "ZBar";
  const auto result =
      Read(reader, picture, kind.format, wanted.addon.empty() ? AddOn::kIgnored : AddOn::kRequired);
  ASSERT_TRUE(result) << name << ": " << wanted.text;
  EXPECT_EQ(result->text, wanted.digits) << name << ": " << wanted.text;
  EXPECT_EQ(result->addOn, wanted.addon) << name << ": " << wanted.text;
  tally.Count(std::string("read_by_") + name);
}

class EanUpcReadBack : public testing::TestWithParam<int> {};

TEST_P(EanUpcReadBack, EveryFormOfTheTextAndEveryGap) {
  const Kind& kind = kKinds[GetParam()];
  SeededTexts texts(static_cast<std::uint32_t>(1500 + GetParam()));
  ReadTally tally;
  for (std::int32_t round = 0; round < 300; ++round) {
    const Wanted wanted = NextWanted(kind, texts);
    const std::int32_t gap = kind.leastGap + round % (13 - kind.leastGap);
    const BarhatchJob job = JobOf(kind, wanted, gap);
    BarhatchResult result = {};
    result.size = sizeof result;
    ASSERT_EQ(BarhatchMark(&job, &result), BARHATCH_OK) << wanted.text << ": " << result.message;
    EXPECT_EQ(result.warnings, 0u) << wanted.text << ": " << result.message;
    EXPECT_EQ(result.hri, wanted.digits + (wanted.addon.empty() ? "" : " " + wanted.addon));
    const Raster picture = PictureOf(result, kGap);
    ExpectRead(Reader::kZbar, kind, wanted, picture, tally);
    if (wanted.addon.empty() || gap <= kMostGapOfZxing) {
      ExpectRead(Reader::kZxing, kind, wanted, picture, tally);
    }
    BarhatchRelease(&result);
  }
}

INSTANTIATE_TEST_SUITE_P(EveryKind, EanUpcReadBack, testing::Range(0, 4));

}  // namespace
}  // namespace barhatch::test
