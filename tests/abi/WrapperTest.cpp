#include "barhatch.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/AllocationProbe.h"

namespace {

using namespace std::string_literals;
using barhatch::Conformance;
using barhatch::Flag;
using barhatch::Job;
using barhatch::Pattern;
using barhatch::Result;
using barhatch::Segment;
using barhatch::Status;
using barhatch::Symbology;
using barhatch::Text;
using barhatch::Want;
using barhatch::Warning;

static_assert(!std::is_copy_constructible_v<Result> && !std::is_copy_assignable_v<Result>);
static_assert(std::is_nothrow_move_constructible_v<Result>);
static_assert(std::is_nothrow_move_assignable_v<Result>);
static_assert(noexcept(barhatch::Mark(std::declval<const Job&>())));
static_assert(!std::is_convertible_v<Result, bool>, "a result is no number");

// A range of a result that nobody keeps would read what is released already.
template <typename R, typename = void>
constexpr bool kHasRanges = false;
template <typename R>
constexpr bool kHasRanges<R, std::void_t<decltype(std::declval<R>().Segments())>> = true;
static_assert(kHasRanges<const Result&> && kHasRanges<Result&> && !kHasRanges<Result>);

Job Code39() {
  Job job;
  job.symbology = Symbology::kCode39;
  job.text = "ABC-123";
  job.width = 60.0;
  job.height = 12.0;
  job.gap = 0.5;
  return job;
}

Job Matrix(Pattern pattern) {
  Job job;
  job.symbology = Symbology::kDataMatrix;
  job.conformance = Conformance::kDevice;
  job.text = "123456";
  job.height = 10.0;
  job.gap = 0.5;
  job.pattern = pattern;
  return job;
}

// The same mark by the C interface.
class InC {
 public:
  explicit InC(const Job& job) {
    result_.size = sizeof result_;
    const BarhatchJob record = barhatch::RecordOf(job);
    BarhatchMark(&record, &result_);
  }
  ~InC() { BarhatchRelease(&result_); }
  InC(const InC&) = delete;
  InC& operator=(const InC&) = delete;
  const BarhatchResult* operator->() const { return &result_; }

 private:
  BarhatchResult result_{};
};

std::vector<double> Coordinates(const Result& mark) {
  std::vector<double> all;
  for (const Segment& s : mark.Segments()) all.insert(all.end(), {s.xa, s.ya, s.xb, s.yb});
  for (const barhatch::Point& p : mark.Points()) all.insert(all.end(), {p.x, p.y});
  return all;
}

bool SameBytes(const BarhatchJob& a, const BarhatchJob& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

TEST(Wrapper, AJobOfDefaultsIsARecordOfZeros) {
  BarhatchJob zeros = {};
  zeros.size = sizeof zeros;
  const Job job;
  BarhatchJob record = barhatch::RecordOf(job);
  EXPECT_STREQ(static_cast<const char*>(record.text), "");
  record.text = nullptr;
  EXPECT_TRUE(SameBytes(record, zeros));
}

TEST(Wrapper, EveryChoiceReachesTheRecord) {
  Job job;
  job.symbology = Symbology::kDataMatrix;
  job.conformance = Conformance::kDevice;
  job.text = u"AB";
  job.envelope = barhatch::Envelope::kFormat06;
  job.check = barhatch::Check::kVerify;
  job.eci = 26;
  job.rows = 8;
  job.columns = 18;
  job.shape = barhatch::Shape::kRectangle;
  job.flags = {Flag::kMayGrow, Flag::kPermit};
  job.addonGap = 9;
  job.pattern = Pattern::kSpiral;
  job.profile = 1;
  job.want = {Want::kModules, Want::kStrokes};
  job.invert = true;
  job.dotsPerModule = 2;
  job.order = barhatch::Order::kSerpentine;
  job.part = 1;
  job.parts = 3;
  job.partId = 4711;
  const BarhatchJob made = barhatch::RecordOf(job);
  BarhatchJob record = {};
  record.size = sizeof record;
  record.symbology = BARHATCH_DATA_MATRIX;
  record.conformance = BARHATCH_DEVICE;
  record.input = BARHATCH_UNITS;
  record.text = made.text;
  record.length = 2;
  record.envelope = 6;
  record.check = BARHATCH_CHECK_VERIFY;
  record.eci = 26;
  record.rows = 8;
  record.columns = 18;
  record.shape = BARHATCH_RECTANGLE;
  record.flags = BARHATCH_MAY_GROW | BARHATCH_PERMIT;
  record.addon_gap = 9;
  record.pattern = BARHATCH_SPIRAL;
  record.profile = 1;
  record.want = BARHATCH_WANT_MODULES | BARHATCH_WANT_STROKES;
  record.invert = 1;
  record.dots_per_module = 2;
  record.order = BARHATCH_SERPENTINE;
  record.part = 1;
  record.parts = 3;
  record.part_id = 4711;
  EXPECT_TRUE(SameBytes(made, record));
  EXPECT_EQ(std::memcmp(made.text, u"AB", 6), 0);
}

TEST(Wrapper, EveryLengthReachesTheRecord) {
  Job job;
  double* const lengths[] = {&job.xDimension, &job.width,      &job.height,     &job.ratio,
                             &job.quiet,      &job.gap,        &job.unitsPerMm, &job.beamX,
                             &job.beamY,      &job.dot,        &job.growthX,    &job.growthY,
                             &job.markSpeed,  &job.radius,     &job.jumpSpeed,  &job.tolerance,
                             &job.jumpDelay,  &job.strokeDelay};
  double next = 1.0;
  for (double* length : lengths) *length = next++;
  const BarhatchJob r = barhatch::RecordOf(job);
  const double expected[] = {r.x_dimension, r.width,        r.height,      r.ratio,  r.quiet,
                             r.gap,         r.units_per_mm, r.beam_x,      r.beam_y, r.dot,
                             r.growth_x,    r.growth_y,     r.mark_speed,  r.radius, r.jump_speed,
                             r.tolerance,   r.jump_delay,   r.stroke_delay};
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    EXPECT_EQ(expected[i], static_cast<double>(i + 1));
  }
}

TEST(Wrapper, TextsAreOfEveryInput) {
  const auto recordOf = [](const Text& text) {
    Job job;
    job.text = text;
    const BarhatchJob record = barhatch::RecordOf(job);
    return std::pair(record.input, record.length);
  };
  using Pair = std::pair<std::int32_t, std::size_t>;
  EXPECT_EQ(recordOf("abc"), Pair(BARHATCH_UTF8, 3));
  EXPECT_EQ(recordOf("a\0c"s), Pair(BARHATCH_UTF8, 3));
  EXPECT_EQ(recordOf(std::string_view("abcd").substr(1, 2)), Pair(BARHATCH_UTF8, 2));
  EXPECT_EQ(recordOf(Text::Bytes("\xFF\xFE")), Pair(BARHATCH_BYTES, 2));
  EXPECT_EQ(recordOf(Text::Gs1("(10)ABC")), Pair(BARHATCH_GS1, 7));
  EXPECT_EQ(recordOf(Text::Escaped("^FNC1A")), Pair(BARHATCH_ESCAPED, 6));
  EXPECT_EQ(recordOf(Text::Codewords("\x8E\xA4")), Pair(BARHATCH_CODEWORDS, 2));
  EXPECT_EQ(recordOf(u"abc"), Pair(BARHATCH_UNITS, 3));
  EXPECT_EQ(recordOf(u"a\0"s), Pair(BARHATCH_UNITS, 2));
  EXPECT_EQ(recordOf(std::u16string_view(u"abcd").substr(1)), Pair(BARHATCH_UNITS, 3));
}

// As far as plain fields go.
void ExpectFieldsOf(const Result& mark, const InC& c) {
  EXPECT_EQ(static_cast<std::int32_t>(mark.status()), c->status);
  EXPECT_EQ(static_cast<bool>(mark), c->status == BARHATCH_OK);
  EXPECT_EQ(mark.message(), c->message);
  EXPECT_EQ(std::pair(mark.position(), mark.extent()), std::pair(c->position, c->extent));
  EXPECT_EQ(mark.name(), c->name);
  EXPECT_EQ(mark.accepts(), c->accepts);
  EXPECT_EQ(mark.warnings().Bits(), c->warnings);
  EXPECT_EQ(mark.deviations(), c->deviations);
  EXPECT_EQ(std::pair(mark.rows(), mark.columns()), std::pair(c->rows, c->columns));
  EXPECT_EQ(std::pair(mark.codewords(), mark.capacity()), std::pair(c->codewords, c->capacity));
  EXPECT_EQ(mark.xDimension(), c->x_dimension);
  EXPECT_EQ(mark.narrowest(), c->narrowest);
  EXPECT_EQ(mark.markLength(), c->mark_length);
  EXPECT_EQ(mark.jumpLength(), c->jump_length);
  EXPECT_EQ(mark.seconds(), c->seconds);
  EXPECT_EQ(mark.IsPoints(), c->kind == BARHATCH_DOTS);
}

void ExpectRect(const barhatch::Rect& rect, const double (&c)[4]) {
  EXPECT_EQ((std::vector<double>{rect.left, rect.bottom, rect.right, rect.top}),
            std::vector<double>(c, c + 4));
  EXPECT_EQ(rect.Width(), c[2] - c[0]);
  EXPECT_EQ(rect.Height(), c[3] - c[1]);
}

void ExpectPartsOf(const Result& mark, const InC& c) {
  ExpectRect(mark.symbol(), c->symbol);
  ExpectRect(mark.total(), c->total);
  const std::size_t doubles = c->strokes_count * (mark.IsPoints() ? 2 : 4);
  EXPECT_EQ(Coordinates(mark), std::vector<double>(c->strokes, c->strokes + doubles));
  const std::size_t modules = static_cast<std::size_t>(c->rows * c->columns);
  EXPECT_EQ(std::vector<std::uint8_t>(mark.Modules().begin(), mark.Modules().end()),
            std::vector<std::uint8_t>(c->modules, c->modules + modules));
  EXPECT_EQ(std::vector<std::uint8_t>(mark.Values().begin(), mark.Values().end()),
            std::vector<std::uint8_t>(c->values, c->values + c->values_count));
  EXPECT_EQ(mark.Reading().has_value(), c->reading != nullptr);
  EXPECT_EQ(mark.Hri().has_value(), c->hri != nullptr);
  EXPECT_EQ(mark.DeviationLines().Text(), c->deviations_met);
}

TEST(Wrapper, AMarkHasEverythingOfTheRecord) {
  Job timed = Code39();
  timed.markSpeed = 250.0;
  timed.jumpSpeed = 3000.0;
  timed.flags = Flag::kQuietInside;
  Job inverted = Matrix(Pattern::kSpiral);
  inverted.invert = true;
  for (const Job& job : {Code39(), timed, Matrix(Pattern::kPoints), inverted}) {
    const Result mark = barhatch::Mark(job);
    const InC c(job);
    ASSERT_TRUE(mark) << mark.message();
    ExpectFieldsOf(mark, c);
    ExpectPartsOf(mark, c);
    EXPECT_EQ(mark.Record().strokes_count, c->strokes_count);
  }
}

TEST(Wrapper, AReadingMayHoldAnyByte) {
  Job job = Code39();
  job.symbology = Symbology::kCode93FullAscii;
  job.text = "A\0B"s;
  const Result mark = barhatch::Mark(job);
  ASSERT_TRUE(mark) << mark.message();
  EXPECT_EQ(mark.Reading(), "A\0B"s);
  const Result plain = barhatch::Mark(Code39());
  EXPECT_EQ(plain.Hri(), "ABC-123");
}

TEST(Wrapper, SegmentsCanBeTakenOneByOne) {
  const Result mark = barhatch::Mark(Code39());
  ASSERT_TRUE(mark);
  EXPECT_TRUE(mark.Points().empty());
  EXPECT_EQ(mark.Segments()[1].xa, mark.Record().strokes[4]);
  auto second = mark.Segments().begin();
  EXPECT_EQ((*second++).xa, mark.Record().strokes[0]);
  EXPECT_EQ((*second).xa, mark.Record().strokes[4]);
}

TEST(Wrapper, PointsHaveNoSegments) {
  Job job = Code39();
  job.pattern = Pattern::kPoints;
  const Result mark = barhatch::Mark(job);
  ASSERT_TRUE(mark);
  EXPECT_EQ(mark.Points().size(), 45u);  // nine characters of five bars
  EXPECT_TRUE(mark.Segments().empty());
  for (const barhatch::Point& point : mark.Points()) EXPECT_EQ(point.y, 6.0);
}

TEST(Wrapper, ModulesKnowTheirRowsAndTheirWidth) {
  const Result linear = barhatch::Mark(Code39());
  EXPECT_TRUE(linear.Modules().IsDark(0, 0));
  EXPECT_FALSE(linear.Modules().IsWide(0, 0));
  EXPECT_FALSE(linear.Modules().IsDark(0, 1));  // '*' begins with a narrow bar and a wide space
  EXPECT_TRUE(linear.Modules().IsWide(0, 1));
  const Result matrix = barhatch::Mark(Matrix(Pattern::kPoints));
  ASSERT_EQ(matrix.Modules().size(), 100u);
  std::size_t dark = 0;
  for (std::size_t row = 0; row < 10; ++row) {
    EXPECT_TRUE(matrix.Modules().IsDark(row, 0));  // the finder pattern
    EXPECT_TRUE(matrix.Modules().IsDark(9, row));
    for (std::size_t column = 0; column < 10; ++column)
      dark += matrix.Modules().IsDark(row, column);
  }
  EXPECT_EQ(dark, matrix.Points().size());
}

TEST(Wrapper, WhatIsNotWantedIsEmpty) {
  Job job = Code39();
  job.want = Want::kValidation;
  const Result mark = barhatch::Mark(job);
  ASSERT_TRUE(mark);
  EXPECT_TRUE(mark.Segments().empty() && mark.Points().empty() && mark.Modules().empty());
  EXPECT_TRUE(mark.Values().empty() && mark.DeviationLines().empty());
  EXPECT_EQ(mark.Modules().data(), nullptr);
  EXPECT_FALSE(mark.Reading() || mark.Hri());
  EXPECT_EQ(mark.columns(), 89);  // nine characters of nine elements, a gap between them
}

TEST(Wrapper, ARefusalHasStatusSentenceAndPlace) {
  Job job = Code39();
  job.text = "AB\xC3\xA9";
  const Result refused = barhatch::Mark(job);
  EXPECT_FALSE(refused);
  EXPECT_EQ(refused.status(), Status::kBadCharacter);
  EXPECT_EQ(std::pair(refused.position(), refused.extent()), std::pair(3, 2));
  EXPECT_NE(refused.message().find("Code 39"), std::string_view::npos);
  ExpectFieldsOf(refused, InC(job));
  EXPECT_TRUE(refused.Segments().empty() && refused.Modules().empty());
  EXPECT_FALSE(refused.Reading());

  job.text = "";
  EXPECT_EQ(barhatch::Mark(job).status(), Status::kEmpty);
  job.text = "AB\0C"s;
  EXPECT_EQ(barhatch::Mark(job).position(), 3);
  job = Code39();
  job.gap = 0.0;
  EXPECT_EQ(barhatch::Mark(job).status(), Status::kBadGeometry);
  job = Matrix(Pattern::kPoints);
  job.rows = job.columns = 11;
  EXPECT_EQ(barhatch::Mark(job).status(), Status::kNoSuchSize);
}

TEST(Wrapper, AJobThatNamesNothingHasNoName) {
  Job job;
  job.symbology = static_cast<Symbology>(-1);
  const Result refused = barhatch::Mark(job);
  EXPECT_EQ(refused.status(), Status::kBadOption);
  EXPECT_EQ(refused.name(), "");
  EXPECT_EQ(refused.accepts(), "");
}

TEST(Wrapper, WarningsAreASet) {
  Job job = Code39();
  job.symbology = Symbology::kInterleaved2of5;
  job.text = "123";
  const Result mark = barhatch::Mark(job);
  ASSERT_TRUE(mark);
  EXPECT_TRUE(mark.warnings().Has(Warning::kLeadingZero));
  EXPECT_TRUE(mark.warnings().Has(Warning::kFewDigits));
  EXPECT_FALSE(mark.warnings().Has(Warning::kGap));
  EXPECT_EQ(mark.warnings(), (barhatch::Set{Warning::kLeadingZero, Warning::kFewDigits}));
  EXPECT_NE(mark.warnings(), barhatch::Set(Warning::kLeadingZero));
  EXPECT_FALSE(mark.message().empty());
  EXPECT_TRUE(barhatch::Mark(Code39()).warnings().empty());
}

TEST(Wrapper, DeviationsAreLines) {
  Job job = Code39();
  job.conformance = Conformance::kDevice;
  job.text = "A/E";
  const Result mark = barhatch::Mark(job);
  ASSERT_TRUE(mark) << mark.message();
  std::vector<std::string_view> ids;
  for (std::string_view line : mark.DeviationLines()) ids.push_back(line.substr(0, 7));
  EXPECT_EQ(ids, (std::vector<std::string_view>{"D-39-2:", "D-39-3:"}));
  EXPECT_EQ(mark.deviations(), 6u);
  auto second = mark.DeviationLines().begin();
  EXPECT_EQ((*second++).substr(0, 7), "D-39-2:");
  EXPECT_EQ((*second).substr(0, 7), "D-39-3:");
  const Result none = barhatch::Mark(Code39());
  EXPECT_TRUE(none.DeviationLines().empty());
  EXPECT_EQ(none.DeviationLines().begin(), none.DeviationLines().end());
}

TEST(Wrapper, LinesNeedNoLineFeedAtTheEnd) {
  std::vector<std::string_view> lines;
  for (std::string_view line : barhatch::Lines("a\n\nbc")) lines.push_back(line);
  EXPECT_EQ(lines, (std::vector<std::string_view>{"a", "", "bc"}));
}

// Memory of the host, in which AllocationProbe counts the blocks.
barhatch::HostMemory CountedMemory() {
  return {[](void*, std::size_t bytes) { return ::operator new(bytes, std::nothrow); },
          [](void*, void* block) { ::operator delete(block); }, nullptr};
}

Job Counted(Job job) {
  job.memory = CountedMemory();
  return job;
}

TEST(Wrapper, AResultGivesItsMemoryBackOnce) {
  const Job job = Counted(Matrix(Pattern::kSpiral));
  const barhatch::test::AllocationProbe probe;
  {
    Result mark = barhatch::Mark(job);
    ASSERT_TRUE(mark);
    EXPECT_EQ(probe.LiveBlocks(), 1u);
    const Result moved = std::move(mark);
    EXPECT_EQ(probe.LiveBlocks(), 1u);
    EXPECT_GT(moved.Segments().size(), 0u);
    EXPECT_EQ(mark.status(), Status::kBadRecord);  // NOLINT: what is left of it is defined
    EXPECT_TRUE(!mark && mark.Segments().empty() && mark.message().empty());
  }
  EXPECT_EQ(probe.LiveBlocks(), 0u);
}

TEST(Wrapper, AResultThatGetsAnotherGivesItsOwnBack) {
  const Job linear = Counted(Code39());
  const Job matrix = Counted(Matrix(Pattern::kPoints));
  const barhatch::test::AllocationProbe probe;
  {
    Result mark = barhatch::Mark(linear);
    mark = barhatch::Mark(matrix);
    EXPECT_EQ(probe.LiveBlocks(), 1u);
    EXPECT_EQ(mark.rows(), 10);
    Result& same = mark;
    mark = std::move(same);
    EXPECT_EQ(mark.Modules().size(), 100u);
  }
  EXPECT_EQ(probe.LiveBlocks(), 0u);
}

TEST(Wrapper, NoMemoryIsAStatus) {
  const Job job = Counted(Code39());
  std::size_t allocations = 0;
  {
    const barhatch::test::AllocationProbe probe;
    ASSERT_TRUE(barhatch::Mark(job));
    allocations = probe.Allocations();
  }
  ASSERT_GT(allocations, 0u);
  for (std::size_t failAt = 1; failAt <= allocations; ++failAt) {
    const barhatch::test::AllocationProbe probe(failAt);
    const Result refused = barhatch::Mark(job);
    EXPECT_EQ(refused.status(), Status::kNoMemory);
    EXPECT_EQ(probe.LiveBlocks(), 0u);
  }
}

TEST(Wrapper, TwoThreadsMarkAtOnce) {
  const Job jobs[] = {Code39(), Matrix(Pattern::kSpiral)};
  std::vector<double> alone[2];
  for (int i = 0; i < 2; ++i) alone[i] = Coordinates(barhatch::Mark(jobs[i]));
  int different[2] = {0, 0};
  const auto markOften = [&](int i) {
    for (int times = 0; times < 100; ++times)
      different[i] += Coordinates(barhatch::Mark(jobs[i])) != alone[i];
  };
  std::thread first(markOften, 0);
  std::thread second(markOften, 1);
  first.join();
  second.join();
  EXPECT_EQ(different[0] + different[1], 0);
}

TEST(Wrapper, SymbologiesAreThoseOfTheirNames) {
  const std::pair<Symbology, const char*> names[] = {
      {Symbology::kCodabar, "Codabar"},
      {Symbology::kCode39, "Code 39"},
      {Symbology::kCode93, "Code 93"},
      {Symbology::kEan13, "EAN-13"},
      {Symbology::kMsi, "MSI"},
      {Symbology::kCode128, "Code 128"},
      {Symbology::kCode128FromA, "Code 128 from set A"},
      {Symbology::kCode128B, "Code 128 set B"},
      {Symbology::kCode128FromC, "Code 128 from set C"},
      {Symbology::kUpcA, "UPC-A"},
      {Symbology::kUpcE, "UPC-E"},
      {Symbology::kCode11, "Code 11"},
      {Symbology::kEan8, "EAN-8"},
      {Symbology::kUpcAAddOn2, "UPC-A with 2-digit add-on"},
      {Symbology::kUpcAAddOn5, "UPC-A with 5-digit add-on"},
      {Symbology::kEan13AddOn2, "EAN-13 with 2-digit add-on"},
      {Symbology::kEan13AddOn5, "EAN-13 with 5-digit add-on"},
      {Symbology::kEan8AddOn2, "EAN-8 with 2-digit add-on"},
      {Symbology::kEan8AddOn5, "EAN-8 with 5-digit add-on"},
      {Symbology::kUpcEAddOn2, "UPC-E with 2-digit add-on"},
      {Symbology::kUpcEAddOn5, "UPC-E with 5-digit add-on"},
      {Symbology::kInterleaved2of5, "Interleaved 2 of 5"},
      {Symbology::kCode93FullAscii, "Code 93, full ASCII"},
      {Symbology::kDataMatrix, "Data Matrix"},
      {Symbology::kItf14, "ITF-14"},
      {Symbology::kCode39FullAscii, "Code 39, full ASCII"},
  };
  for (const auto& [symbology, name] : names) {
    Job job;
    job.symbology = symbology;
    EXPECT_EQ(barhatch::Mark(job).name(), name);
  }
}

TEST(Wrapper, TheVersionIsThatOfTheLibrary) { EXPECT_EQ(barhatch::Version(), BARHATCH_VERSION); }

}  // namespace
