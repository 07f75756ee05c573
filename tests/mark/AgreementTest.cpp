// A device mark is what the exports of barhatch.h make, to the last bit, and refused where they
// refuse.
#include <gtest/gtest.h>

#include <cstring>
#include <iostream>
#include <limits>
#include <string>

#include "mark/MarkTesting.h"
#include "mark/RandomJobs.h"

namespace barhatch::test {
namespace {

constexpr int kJobsOfARun = 6600;
#if defined(BARHATCH_AGREEMENT_RUNS)  // an emulator has a minute of work with each
constexpr int kRuns = BARHATCH_AGREEMENT_RUNS;
#else
constexpr int kRuns = 8;
#endif

struct Tally {
  int marks = 0;
  int refusals = 0;
  int disagreements = 0;
};

bool IsSame(const Strokes& exports, const Mark& mark) {
  if (exports.isRefused || !mark.IsOk()) return exports.isRefused != mark.IsOk();
  return exports.kind == mark->kind && exports.coordinates.size() == mark.Doubles() &&
         std::memcmp(exports.coordinates.data(), mark->strokes, sizeof(double) * mark.Doubles()) ==
             0;
}

void Compare(const Strokes& exports, const BarhatchJob& job, const MarkNumbers& numbers,
             Tally& tally) {
  const Mark mark(job);
  ++(mark.IsOk() ? tally.marks : tally.refusals);
  if (IsSame(exports, mark)) return;
  ++tally.disagreements;
  ADD_FAILURE() << "symbology " << numbers.symbology << ", input " << job.input << ", pattern "
                << numbers.pattern << ", " << numbers.rows << "x" << numbers.columns << ", format "
                << numbers.format << ", text " << testing::PrintToString(numbers.text) << ": "
                << mark->status << " " << mark->message;
}

// Empty for text with half of a surrogate pair.
std::string Utf8Of(const std::u16string& text) {
  std::string utf8;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint32_t code = text[i];
    if (code >= 0xDC00 && code < 0xE000) return "";
    if (code >= 0xD800 && code < 0xDC00) {
      if (i + 1 == text.size() || text[i + 1] < 0xDC00 || text[i + 1] >= 0xE000) return "";
      code = 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00u);
    }
    const auto put = [&](std::uint32_t byte) { utf8 += static_cast<char>(byte); };
    if (code < 0x80) {
      put(code);
      continue;
    }
    if (code < 0x800) put(0xC0 | code >> 6);
    if (code >= 0x800 && code < 0x10000) put(0xE0 | code >> 12);
    if (code >= 0x10000) put(0xF0 | code >> 18);
    if (code >= 0x10000) put(0x80 | (code >> 12 & 0x3F));
    if (code >= 0x800) put(0x80 | (code >> 6 & 0x3F));
    put(0x80 | (code & 0x3F));
  }
  return utf8;
}

// Empty for text with a character above 255.
std::string BytesOf(const std::u16string& text) {
  std::string bytes;
  for (const char16_t unit : text) {
    if (unit > 255) return "";
    bytes += static_cast<char>(unit);
  }
  return bytes;
}

void CompareAs(std::int32_t input, const std::string& text, const Strokes& exports,
               const MarkNumbers& numbers, Tally& tally) {
  if (text.empty()) return;
  BarhatchJob job = JobOfNumbers(numbers);
  job.input = input;
  job.text = text.data();
  job.length = text.size();
  Compare(exports, job, numbers, tally);
}

std::int32_t SymbologyOf(int round) { return kMarkSymbologies[round % 24]; }

class Agreement : public testing::TestWithParam<int> {};

TEST_P(Agreement, DeviceMarksAreThoseOfTheExports) {
  RandomJobs random(static_cast<std::uint32_t>(4711 + GetParam()));
  Tally units;
  Tally utf8;
  Tally bytes;
  for (int round = 0; round < kJobsOfARun && units.disagreements < 5; ++round) {
    const MarkNumbers numbers = random.Next(round % 3 == 0 ? 100 : SymbologyOf(round));
    const Strokes exports = StrokesByExports(numbers);
    Compare(exports, JobOfNumbers(numbers), numbers, units);
    CompareAs(BARHATCH_UTF8, Utf8Of(numbers.text), exports, numbers, utf8);
    CompareAs(BARHATCH_BYTES, BytesOf(numbers.text), exports, numbers, bytes);
  }
  std::cout << "agreed: " << units.marks << " marks and " << units.refusals
            << " refusals, as UTF-8 " << utf8.marks << " and " << utf8.refusals << ", as bytes "
            << bytes.marks << " and " << bytes.refusals << "\n";
  EXPECT_GT(units.marks, kJobsOfARun / 3);
  EXPECT_GT(units.refusals, kJobsOfARun / 10);
  EXPECT_GT(utf8.marks, kJobsOfARun / 3);
  EXPECT_GT(utf8.refusals, kJobsOfARun / 10);
  EXPECT_GT(bytes.marks, kJobsOfARun / 3);
  EXPECT_GT(bytes.refusals, kJobsOfARun / 10);
}

INSTANTIATE_TEST_SUITE_P(EveryRun, Agreement, testing::Range(0, kRuns));

MarkNumbers PlainNumbers(std::int32_t symbology) {
  MarkNumbers numbers;
  numbers.symbology = symbology;
  for (const char* c = PlainTextOf(symbology); *c != '\0'; ++c) {
    numbers.text += static_cast<char16_t>(*c);
  }
  numbers.width = 100.0;
  numbers.height = 10.0;
  numbers.gap = 0.5;
  numbers.isExpanding = 1;
  return numbers;
}

TEST(Agreement, LengthsThatAreGivenEndATextAsItsZeroDoes) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    const MarkNumbers numbers = PlainNumbers(symbology);
    BarhatchJob job = JobOfNumbers(numbers);
    job.length = numbers.text.size();
    Tally tally;
    Compare(StrokesByExports(numbers), job, numbers, tally);
    EXPECT_EQ(tally.marks, 1) << symbology;
  }
}

// Stated differences from here on.

TEST(Agreement, SmallestSizeNeedsNoPermissionToGrowHere) {
  MarkNumbers numbers = PlainNumbers(BARHATCH_DATA_MATRIX);
  numbers.isExpanding = 0;
  EXPECT_TRUE(StrokesByExports(numbers).isRefused);
  const Mark mark(JobOfNumbers(numbers));
  EXPECT_TRUE(mark.IsOk());
  numbers.isExpanding = 1;
  EXPECT_TRUE(IsSame(StrokesByExports(numbers), mark));
}

TEST(Agreement, SenselessGeometryIsRefusedWithItsName) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double senseless[] = {-1.5, -infinity, infinity, std::numeric_limits<double>::quiet_NaN()};
  double MarkNumbers::*const fields[] = {&MarkNumbers::width, &MarkNumbers::height,
                                         &MarkNumbers::ratio, &MarkNumbers::gap};
  for (double MarkNumbers::*const field : fields) {
    for (const double value : senseless) {
      MarkNumbers numbers = PlainNumbers(BARHATCH_CODE_39);
      numbers.*field = value;
      const Mark mark(JobOfNumbers(numbers));
      EXPECT_EQ(mark->status, BARHATCH_BAD_GEOMETRY) << value;
      EXPECT_EQ(mark.Message().substr(mark.Message().find(' ')), " must be finite and not below 0");
    }
  }
}

TEST(Agreement, SizesOfZeroAreNoSizes) {
  double MarkNumbers::*const fields[] = {&MarkNumbers::width, &MarkNumbers::height,
                                         &MarkNumbers::gap};
  for (double MarkNumbers::*const field : fields) {
    MarkNumbers numbers = PlainNumbers(BARHATCH_CODE_39);
    numbers.*field = 0.0;
    EXPECT_EQ(Mark(JobOfNumbers(numbers))->status, BARHATCH_BAD_GEOMETRY);
  }
}

TEST(Agreement, RatioOfZeroIsTheUsualOne) {
  MarkNumbers numbers = PlainNumbers(BARHATCH_CODE_39);
  const Strokes usual = StrokesByExports(numbers);
  numbers.ratio = 0.0;
  EXPECT_TRUE(IsSame(usual, Mark(JobOfNumbers(numbers))));
}

// Every value but 0 lets a symbol of the exports grow, but only 1 lets a rectangle become a square.
// A hundred digits are more than any rectangle holds.
TEST(Agreement, GrowingByHalvesIsForTheExportsAlone) {
  MarkNumbers numbers = PlainNumbers(BARHATCH_DATA_MATRIX);
  numbers.text = std::u16string(100, u'1');
  numbers.rows = 8;
  numbers.columns = 18;
  numbers.isExpanding = 2;
  EXPECT_TRUE(StrokesByExports(numbers).isRefused);
  const Mark mark(JobOfNumbers(numbers));
  EXPECT_TRUE(mark.IsOk());
  numbers.isExpanding = 1;
  EXPECT_TRUE(IsSame(StrokesByExports(numbers), mark));
}

TEST(Agreement, PatternsThatFillNothingAreOptionsThatNameNothing) {
  for (const std::int32_t pattern : {4, 7, -1}) {
    MarkNumbers numbers = PlainNumbers(BARHATCH_CODE_39);
    numbers.pattern = pattern;
    EXPECT_TRUE(StrokesByExports(numbers).isRefused);
    EXPECT_EQ(Mark(JobOfNumbers(numbers))->status, BARHATCH_BAD_OPTION);
  }
}

}  // namespace
}  // namespace barhatch::test
