// Bearer bars of Interleaved 2 of 5 and ITF-14. GS1 General Specifications, 5.3.2: they touch the
// bars, reach at least over all of them and are 2 modules high or more.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "mark/MarkTesting.h"
#include "support/Raster.h"

namespace barhatch::test {
namespace {

using Doubles = std::vector<double>;

// "12": start 1010, a pair of 18 modules, stop 5, and 10 light ones on each side. Nine bars.
constexpr double kModules = 4 + 18 + 5;
constexpr std::size_t kBars = 2 + 5 + 2;

BarhatchJob Plain(double gap = 5.0) {
  BarhatchJob job = PublishedJobOf(BARHATCH_INTERLEAVED_2_OF_5, "12");
  job.gap = gap;
  return job;
}

BarhatchJob WithBearers(BarhatchJob job) {
  job.flags |= BARHATCH_BEARER_BARS;
  return job;
}

BarhatchJob Inside(BarhatchJob job) {
  job.flags |= BARHATCH_QUIET_INSIDE;
  return job;
}

BarhatchJob Patterned(BarhatchJob job, std::int32_t pattern) {
  job.pattern = pattern;
  return job;
}

Doubles Stroke(const Mark& mark, std::size_t index) {
  const std::size_t doubles = mark->kind == BARHATCH_DOTS ? 2 : 4;
  const double* const first = mark->strokes + index * doubles;
  return {first, first + doubles};
}

Doubles LastStroke(const Mark& mark) { return Stroke(mark, mark->strokes_count - 1); }

Doubles SymbolOf(const Mark& mark) { return {mark->symbol, mark->symbol + 4}; }
Doubles TotalOf(const Mark& mark) { return {mark->total, mark->total + 4}; }

// What the mark should leave on the part, from the elements of the result.
class ExpectedMark {
 public:
  ExpectedMark(const BarhatchJob& job, const BarhatchResult& result)
      : isInverted_(job.invert != 0),
        left_(result.total[0]),
        right_(result.total[2]),
        bottom_(result.symbol[1] + 5 * result.x_dimension),
        top_(result.symbol[3] - 5 * result.x_dimension),
        lower_(result.symbol[1]),
        upper_(result.symbol[3]) {
    double x = result.symbol[0];
    for (int i = 0; i < result.columns; ++i) {
      const bool isWide = (result.modules[i] & BARHATCH_WIDE) != 0;
      const double end = x + (isWide ? job.ratio : 1.0) * result.x_dimension;
      if ((result.modules[i] & BARHATCH_DARK) != 0) bars_.push_back({x, end});
      x = end;
    }
    EXPECT_NEAR(x, result.symbol[2], 1e-9);
  }

  bool IsMarked(double x, double y) const {
    if (x < left_ || x > right_ || y < lower_ || y > upper_) return false;
    const bool isBearer = y < bottom_ || y > top_;
    return (isBearer || IsBar(x)) != isInverted_;
  }

  // True where all of a neighbourhood is or is not to be marked.
  bool IsClear(double x, double y, double reach) const {
    const bool isMarked = IsMarked(x, y);
    for (const double dx : {-reach, 0.0, reach}) {
      for (const double dy : {-reach, 0.0, reach}) {
        if (IsMarked(x + dx, y + dy) != isMarked) return false;
      }
    }
    return true;
  }

 private:
  struct Bar {
    double from;
    double to;
  };

  bool IsBar(double x) const {
    return std::any_of(bars_.begin(), bars_.end(),
                       [x](const Bar& bar) { return x > bar.from && x < bar.to; });
  }

  const bool isInverted_;
  const double left_;
  const double right_;
  const double bottom_;
  const double top_;
  const double lower_;
  const double upper_;
  std::vector<Bar> bars_;
};

MarkParameters PartOf(const BarhatchJob& job, const BarhatchResult& result) {
  MarkParameters part;
  part.left = result.total[0];
  part.bottom = result.total[1];
  part.width = result.total[2] - result.total[0];
  part.height = result.total[3] - result.total[1];
  part.margin = 2.0;
  part.pixelsPerUnit = 8.0;
  part.beamWidth = job.gap;
  part.ends = job.pattern == BARHATCH_SPIRAL ? StrokeEnds::kProjecting : StrokeEnds::kFlush;
  return part;
}

Raster PictureOf(const Mark& mark, const MarkParameters& part) {
  FillBufferInfo fill = {};
  fill.BufferLength = static_cast<std::int32_t>(mark.Doubles());
  fill.FilledArray = const_cast<double*>(mark->strokes);
  return MarkStrokes(fill, part);
}

// Strokes lie up to a gap and a half beside the edges of what they fill; see Raster.h.
void ExpectMarkedAsDescribed(const BarhatchJob& job) {
  const Mark mark(job);
  ASSERT_TRUE(mark.IsOk()) << mark.Message();
  const ExpectedMark expected(job, mark.Result());
  const MarkParameters part = PartOf(job, mark.Result());
  const Raster picture = PictureOf(mark, part);
  int wrong = 0;
  int compared = 0;
  for (int row = 0; row < picture.Height(); ++row) {
    const double y = part.bottom + part.height + part.margin - (row + 0.5) / part.pixelsPerUnit;
    for (int column = 0; column < picture.Width(); ++column) {
      const double x = part.left - part.margin + (column + 0.5) / part.pixelsPerUnit;
      if (!expected.IsClear(x, y, 2 * job.gap)) continue;
      ++compared;
      const bool isMarked = picture.At(column, row) == kDarkShade;
      wrong += isMarked != expected.IsMarked(x, y) ? 1 : 0;
    }
  }
  EXPECT_EQ(wrong, 0) << "pattern " << job.pattern << ", ratio " << job.ratio;
  EXPECT_GT(compared, picture.Width() * picture.Height() / 2);
}

}  // namespace

TEST(BearerBars, LieBelowAndAboveTheBarsAndOverTheQuietZones) {
  const Mark mark(WithBearers(Plain()));
  ASSERT_EQ(mark->strokes_count, 1 + 2 * kBars + 1);
  EXPECT_EQ(Stroke(mark, 0), (Doubles{-10, 0, kModules + 10, 0}));
  EXPECT_EQ(Stroke(mark, 1), (Doubles{0, 5, 1, 5}));
  EXPECT_EQ(Stroke(mark, 1 + kBars), (Doubles{0, 10, 1, 10}));
  EXPECT_EQ(LastStroke(mark), (Doubles{-10, 15, kModules + 10, 15})) << "between 13 and 18";
}

TEST(BearerBars, CountInTheHeightOfTheSymbolAndNotOfTheJob) {
  const Mark mark(WithBearers(Plain()));
  EXPECT_EQ(SymbolOf(mark), (Doubles{0, 0, kModules, 5 + 8 + 5}));
  EXPECT_EQ(TotalOf(mark), (Doubles{-10, 0, kModules + 10, 18}));
  BarhatchJob large = Plain();
  large.x_dimension = 2.0;
  EXPECT_EQ(SymbolOf(Mark(WithBearers(large))), (Doubles{0, 0, 2 * kModules, 10 + 8 + 10}));
}

TEST(BearerBars, BeginAtTheOriginWhereTheQuietZoneDoes) {
  BarhatchJob job = WithBearers(Inside(Plain()));
  job.x_dimension = 0.0;
  job.width = 2 * (kModules + 20);
  const Mark mark(job);
  EXPECT_EQ(mark->x_dimension, 2.0);
  EXPECT_EQ(SymbolOf(mark), (Doubles{20, 0, 20 + 2 * kModules, 28}));
  EXPECT_EQ(TotalOf(mark), (Doubles{0, 0, job.width, 28}));
  EXPECT_EQ(Stroke(mark, 0), (Doubles{0, 0, job.width, 0}));
  EXPECT_EQ(Stroke(mark, 2), (Doubles{20, 10, 22, 10})) << "two lines in a bearer of 10";
}

TEST(BearerBars, ReachAsFarAsTheQuietZoneAskedFor) {
  BarhatchJob job = WithBearers(Plain());
  job.quiet = 3.5;
  EXPECT_EQ(Stroke(Mark(job), 0), (Doubles{-4, 0, kModules + 4, 0}));
  job.quiet = -1.0;
  EXPECT_EQ(Stroke(Mark(job), 0), (Doubles{0, 0, kModules, 0}));
  EXPECT_EQ(LastStroke(Mark(job)), (Doubles{0, 15, kModules, 15}));
}

TEST(BearerBars, HaveAPointEach) {
  const Mark mark(WithBearers(Patterned(Plain(), BARHATCH_POINTS)));
  EXPECT_EQ(mark->strokes_count, 1 + kBars + 1);
  EXPECT_EQ(Stroke(mark, 0), (Doubles{kModules / 2, 2.5}));
  EXPECT_EQ(Stroke(mark, 1), (Doubles{0.5, 9}));
  EXPECT_EQ(LastStroke(mark), (Doubles{kModules / 2, 15.5}));
}

TEST(BearerBars, AreCoveredByEveryPatternAndNothingBesideThem) {
  for (const std::int32_t pattern : {0, 1, 2, 3, 5}) {
    for (const double ratio : {2.0, 2.5, 3.0}) {
      BarhatchJob job = WithBearers(PublishedJobOf(BARHATCH_ITF_14, "1540014128876"));
      job.pattern = pattern;
      job.ratio = ratio;
      job.gap = 0.0625;
      ExpectMarkedAsDescribed(job);
      ExpectMarkedAsDescribed(Inside(job));
    }
  }
}

TEST(BearerBars, StayBareInAnInvertedMark) {
  for (const std::int32_t pattern : {0, 1, 2, 3, 5}) {
    BarhatchJob job = WithBearers(Patterned(Plain(0.0625), pattern));
    job.ratio = 2.5;
    job.invert = 1;
    ExpectMarkedAsDescribed(job);
    ExpectMarkedAsDescribed(Inside(job));
  }
}

TEST(BearerBars, OfAnInvertedMarkCountInItsExtents) {
  BarhatchJob job = WithBearers(Plain(0.5));
  job.invert = 1;
  const Mark mark(job);
  EXPECT_EQ(SymbolOf(mark), (Doubles{0, 0, kModules, 18}));
  EXPECT_EQ(TotalOf(mark), (Doubles{-10, 0, kModules + 10, 18}));
  EXPECT_EQ(Stroke(mark, 0), (Doubles{-10, 5, -9, 5}));
  EXPECT_EQ(mark->warnings, std::uint32_t{BARHATCH_W_FEW_DIGITS}) << "light sides are marked";
}

TEST(BearerBars, LeaveTheBarsAsTheyAreAndRaiseThem) {
  for (const std::int32_t pattern : {0, 1, 2, 3}) {
    const BarhatchJob job = Patterned(Plain(0.5), pattern);
    const Mark plain(job);
    const Mark mark(WithBearers(job));
    const std::size_t strokes = plain->strokes_count;
    ASSERT_GT(mark->strokes_count, strokes);
    ASSERT_EQ((mark->strokes_count - strokes) % 2, 0u) << "two bearer bars alike";
    const double* const raised = mark->strokes + (mark->strokes_count - strokes) / 2 * 4;
    for (std::size_t i = 0; i < 4 * strokes; ++i) {
      ASSERT_EQ(raised[i], plain->strokes[i] + (i % 2 == 0 ? 0.0 : 5.0)) << pattern;
    }
  }
}

TEST(BearerBars, AreNoModulesAndNoText) {
  const Mark plain(Plain());
  const Mark mark(WithBearers(Plain()));
  EXPECT_EQ(mark->rows, 1);
  ASSERT_EQ(mark->columns, plain->columns);
  const auto modules = static_cast<std::size_t>(plain->columns);
  EXPECT_EQ(std::memcmp(mark->modules, plain->modules, modules), 0);
  EXPECT_EQ(mark.Reading(), "12");
  EXPECT_EQ(mark->x_dimension, plain->x_dimension);
  EXPECT_EQ(mark->narrowest, plain->narrowest);
}

TEST(BearerBars, NeedNoSizeWhereNoStrokesAreWanted) {
  BarhatchJob job = WithBearers(Plain());
  job.want = BARHATCH_WANT_MODULES;
  EXPECT_EQ(SymbolOf(Mark(job)), (Doubles{0, 0, kModules, 18}));
  job.x_dimension = job.height = job.gap = 0.0;
  const Mark mark(job);
  EXPECT_TRUE(mark.IsOk()) << mark.Message();
  EXPECT_EQ(SymbolOf(mark), (Doubles{0, 0, 0, 0}));
}

TEST(BearerBars, AreForPairsOfDigitsByTheBook) {
  const char* const sentence = "BEARER_BARS are for Interleaved 2 of 5 and ITF-14 by the book";
  for (const std::int32_t symbology : kMarkSymbologies) {
    const Mark device(WithBearers(PlainJobOf(symbology)));
    EXPECT_EQ(device->status, BARHATCH_BAD_OPTION) << symbology;
    EXPECT_EQ(device.Message(), sentence);
    if (symbology == BARHATCH_INTERLEAVED_2_OF_5) continue;
    const Mark published(WithBearers(PublishedJobOf(symbology, PlainTextOf(symbology))));
    EXPECT_EQ(published->status, BARHATCH_BAD_OPTION) << symbology;
    EXPECT_EQ(published.Message(), sentence);
  }
  EXPECT_EQ(Mark(WithBearers(PublishedJobOf(BARHATCH_CODE_39_FULL, "a"))).Message(), sentence);
  EXPECT_TRUE(Mark(WithBearers(PublishedJobOf(BARHATCH_ITF_14, "1540014128876"))).IsOk());
}

TEST(BearerBars, MayBeMissedByStrokesFartherApart) {
  for (const std::int32_t pattern : {0, 2}) {
    const auto warnings = [pattern](const BarhatchJob& job) {
      return Mark(Patterned(job, pattern))->warnings & BARHATCH_W_GAP;
    };
    EXPECT_EQ(warnings(WithBearers(Plain(5.0))), 0u);
    EXPECT_NE(warnings(WithBearers(Plain(5.5))), 0u);
    EXPECT_EQ(warnings(Plain(5.5)), 0u) << "the bars alone are hit by every line";
  }
  EXPECT_NE(Mark(WithBearers(Patterned(Plain(1.5), 1)))->warnings & BARHATCH_W_GAP, 0u);
}

TEST(BearerBars, NeedMemoryOrNothingIsLeaked) {
  std::size_t failAt = 1;
  for (;; ++failAt) {
    HostMemory memory(failAt);
    BarhatchJob job = WithBearers(Plain());
    bool isOk = false;
    {
      const Mark mark(memory.Serve(job));
      isOk = mark.IsOk();
      if (!isOk) {
        EXPECT_EQ(mark->status, BARHATCH_NO_MEMORY) << failAt;
      }
    }
    EXPECT_EQ(memory.LiveBlocks(), 0u) << failAt;
    EXPECT_EQ(memory.Strangers(), 0u);
    if (isOk) break;
  }
  HostMemory plain;
  BarhatchJob job = Plain();
  const Mark mark(plain.Serve(job));
  EXPECT_EQ(failAt - 1, plain.Allocations() + 2) << "a block for each bearer bar";
}

}  // namespace barhatch::test
