// A mark is proven before it is given: what a finished symbol shows is what was asked for, or there
// is no mark.
#include "mark/Proof.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

#include "mark/DeviationTable.h"
#include "mark/Mark.h"
#include "mark/MarkTesting.h"
#include "mark/RandomJobs.h"
#include "symbologies/SymbologyReaders.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch::test {
namespace {

constexpr std::int32_t kDeviceSymbologies = 23;

#if defined(BARHATCH_AGREEMENT_RUNS)  // an emulator has a minute of work with each
constexpr int kUsualJobs = 2000;
#else
constexpr int kUsualJobs = 20000;
#endif

// A symbol whose letters stand in the memory of the test, and its text.
struct LinearSymbolOf {
  LinearSymbolOf(std::int32_t symbology, const std::string& text) : symbol(RuntimeMemory()) {
    std::string checked = text;
    LinearSymbol drawn;
    Conformance how = Conformance::Device();
    const LinearJob job = {symbology, checked.data(), text.size(), kStandardQuietZone};
    EXPECT_FALSE(DrawLinear(job, 0, symbol.memory, how, drawn).IsRefused()) << symbology;
    symbol.letters = drawn.letters;
    symbol.columns = static_cast<int>(drawn.length);
    symbol.drawnQuiet = {drawn.quietLeft, drawn.quietRight, 0, 0};
    symbol.reading = static_cast<char*>(symbol.memory.Allocate(drawn.length + 1));
    symbol.values = static_cast<std::uint8_t*>(symbol.memory.Allocate(drawn.length + 1));
  }

  // As the mark does it: read between the quiet zones.
  bool ShowsText(std::int32_t symbology, const std::string& text) {
    SymbolReading reading = {symbol.reading, 0, symbol.values, 0};
    const auto inner =
        static_cast<std::size_t>(symbol.columns - symbol.drawnQuiet.left - symbol.drawnQuiet.right);
    symbol.isRead = ReadSymbol(symbology, CheckScheme::kOwn,
                               symbol.letters + symbol.drawnQuiet.left, inner, reading);
    symbol.readingLength = reading.textLength;
    symbol.valuesCount = reading.valuesCount;
    std::string room = text;
    return ShowsItsText(symbology, GivenText(*RowOf(symbology), room.data(), room.size()), symbol);
  }

  MarkedSymbol symbol;
};

constexpr SymbolSize k14x14 = {14, 14, 1, 1, 12, 12, 8, 10, 1};

// A Data Matrix of 14 x 14 from its text, marked as far as its values.
struct MatrixSymbolOf {
  explicit MatrixSymbolOf(const std::u16string& text) : symbol(RuntimeMemory()) {
    const MatrixJob job = {
        {text.data(), text.size()}, kStandardQuietZone, {14, 14, 0}, Header::kNone};
    EXPECT_FALSE(EncodeDataMatrix(job, how, symbol.memory, matrix).IsRefused());
    symbol.letters = matrix.letters;
    symbol.rows = matrix.rows;
    symbol.columns = matrix.columns;
    symbol.drawnQuiet = {1, 1, 1, 1};
    symbol.valuesCount = 18;
    symbol.values = static_cast<std::uint8_t*>(symbol.memory.Allocate(18));
  }

  bool ShowsCodewords() { return ShowsItsCodewords(matrix, how, symbol); }

  Conformance how = Conformance::Device();
  MatrixSymbol matrix;
  MarkedSymbol symbol;
};

std::string Judged(const BarhatchJob& job, bool isAsGiven, DeviationSet met) {
  std::uint32_t warnings = BARHATCH_W_GAP;
  const Refusal refusal = JudgeReading(job, isAsGiven, met, warnings);
  if (refusal.reason == Reason::kProof) return "proof failed";
  EXPECT_FALSE(refusal.IsRefused());
  return warnings == BARHATCH_W_GAP ? "nothing" : "warning";
}

DeviationSet Only(Deviation deviation) {
  DeviationSet met;
  met.Add(deviation);
  return met;
}

// What a Data Matrix by the book has beside: heads, shapes, all 48 sizes by their shape.
void VaryMatrix(RandomJobs& random, BarhatchJob& job) {
  constexpr std::int32_t kShapes[] = {BARHATCH_SQUARE, BARHATCH_RECTANGLE, BARHATCH_ANY_SHAPE,
                                      BARHATCH_DMRE, BARHATCH_DMRE | BARHATCH_RECTANGLE};
  constexpr std::int32_t kEnvelopes[] = {0, 0, 0, 5, 6, 12, BARHATCH_ENVELOPE_DD};
  constexpr std::uint32_t kFlags[] = {BARHATCH_FNC1_SECOND, BARHATCH_GS_SEPARATORS,
                                      BARHATCH_LOOSE_END, BARHATCH_INDUSTRY_144,
                                      BARHATCH_READER_PROGRAMMING};
  job.flags = 0;
  job.rows = job.columns = 0;
  job.shape = kShapes[random.Below(5)];
  job.envelope = kEnvelopes[random.Below(7)];
  if (random.OneIn(2)) job.flags |= kFlags[random.Below(5)];
  if (random.OneIn(4)) job.eci = static_cast<std::int32_t>(random.Below(30000));
  if (random.OneIn(6)) {
    job.part = 1 + static_cast<std::int32_t>(random.Below(3));
    job.parts = 3;
    job.part_id = 1 + static_cast<std::int32_t>(random.Below(254));
  }
  if (random.OneIn(9)) job.rows = job.columns = 144;
}

// What marks by the book have beside; many of the jobs are refused for it.
void Vary(RandomJobs& random, BarhatchJob& job) {
  if (job.symbology == BARHATCH_DATA_MATRIX) return VaryMatrix(random, job);
  if (job.symbology == BARHATCH_INTERLEAVED_2_OF_5 && random.OneIn(4)) {
    job.symbology = BARHATCH_ITF_14;
  }
  if (job.symbology == BARHATCH_CODE_93_FULL && random.OneIn(2)) {
    job.symbology = BARHATCH_CODE_39_FULL;
  }
  if (random.OneIn(2)) job.check = static_cast<std::int32_t>(random.Below(14));
  if (random.OneIn(4)) job.flags |= BARHATCH_PERMIT;
  if (random.OneIn(4)) job.flags |= BARHATCH_ADD_START_STOP;
}

long JobsToProve() {
  const char* const asked = std::getenv("BARHATCH_PROOF_JOBS");
  return asked != nullptr ? std::strtol(asked, nullptr, 10) : kUsualJobs;
}

}  // namespace

TEST(Proof, SymbolsOfEveryTypeShowTheirText) {
  for (std::int32_t symbology = 0; symbology < kDeviceSymbologies; ++symbology) {
    const std::string text = PlainTextOf(symbology);
    EXPECT_TRUE(LinearSymbolOf(symbology, text).ShowsText(symbology, text)) << symbology;
  }
}

TEST(Proof, EverySingleLetterOfLinearSymbolsMatters) {
  for (std::int32_t symbology = 0; symbology < kDeviceSymbologies; ++symbology) {
    const std::string text = PlainTextOf(symbology);
    LinearSymbolOf drawn(symbology, text);
    for (int at = 0; at < drawn.symbol.columns; ++at) {
      const char right = drawn.symbol.letters[at];
      for (const char other : {'A', 'B', 'a', 'b', 'x'}) {
        if (other == right) continue;
        drawn.symbol.letters[at] = other;
        EXPECT_FALSE(drawn.ShowsText(symbology, text))
            << symbology << ", " << other << " at " << at;
      }
      drawn.symbol.letters[at] = right;
    }
  }
}

TEST(Proof, TheTextOfAnotherMarkIsNotShown) {
  for (std::int32_t symbology = 0; symbology < kDeviceSymbologies; ++symbology) {
    const std::string text = PlainTextOf(symbology);
    LinearSymbolOf drawn(symbology, text);
    std::string other = text;
    char& changed = other[other.size() / 2];
    changed = changed == '1' ? '2' : '1';
    EXPECT_FALSE(drawn.ShowsText(symbology, other)) << symbology;
    EXPECT_FALSE(drawn.ShowsText(symbology, text + "1")) << symbology;
  }
}

// Readers leave them out; the proof does not.
TEST(Proof, StartAndStopOfCodabarAreLookedAt) {
  LinearSymbolOf drawn(BARHATCH_CODABAR, "A1234B");
  EXPECT_TRUE(drawn.ShowsText(BARHATCH_CODABAR, "A1234B"));
  EXPECT_TRUE(drawn.ShowsText(BARHATCH_CODABAR, "T1234N"));
  EXPECT_FALSE(drawn.ShowsText(BARHATCH_CODABAR, "C1234B"));
  EXPECT_FALSE(drawn.ShowsText(BARHATCH_CODABAR, "A1234D"));
}

TEST(Proof, EverySingleModuleOfAMatrixMatters) {
  MatrixSymbolOf drawn(u"PART 4711");
  EXPECT_TRUE(drawn.ShowsCodewords());
  EXPECT_EQ(std::memcmp(drawn.symbol.values, drawn.matrix.codewords.data(), 18), 0);
  for (int at = 0; at < 16 * 16; ++at) {
    char& letter = drawn.symbol.letters[at];
    letter = letter == 'A' ? 'a' : 'A';
    EXPECT_FALSE(drawn.ShowsCodewords()) << at;
    letter = letter == 'A' ? 'a' : 'A';
  }
  EXPECT_TRUE(drawn.ShowsCodewords());
}

// The grid is sound in itself, but not that of these codewords.
TEST(Proof, ACodewordFlippedBeforeErrorCorrectionIsNoticed) {
  for (int at = 0; at < k14x14.dataCodewords + k14x14.errorCodewords; ++at) {
    MatrixSymbolOf drawn(u"PART 4711");
    drawn.matrix.codewords.data()[at] ^= 0x10;
    EXPECT_FALSE(drawn.ShowsCodewords()) << at;
  }
}

TEST(Proof, ReadingsThatAreTheTextAreNeverAProblem) {
  const BarhatchJob published = PublishedJobOf(BARHATCH_CODE_39, "A");
  EXPECT_EQ(Judged(published, true, {}), "nothing");
  EXPECT_EQ(Judged(JobOf(BARHATCH_CODE_39, "A"), true, DeviationSet::All()), "nothing");
}

TEST(Proof, ReadingsThatAreNotTheTextFailByTheBook) {
  BarhatchJob job = PublishedJobOf(BARHATCH_CODE_39, "A");
  EXPECT_EQ(Judged(job, false, {}), "proof failed");
  job.flags = BARHATCH_PERMIT;
  EXPECT_EQ(Judged(job, false, Only(Deviation::kDEAN_3)), "proof failed");
  job.flags = BARHATCH_NO_PROOF;
  EXPECT_EQ(Judged(job, false, {}), "warning");
}

// The last column of the register says what a reader sees.
TEST(Proof, DeviceMarksFailWhereNoDeviationSaysWhy) {
  const BarhatchJob job = JobOf(BARHATCH_CODE_39, "A");
  EXPECT_EQ(Judged(job, false, {}), "proof failed");
  const std::vector<std::string> readAsGiven = {"D-93-1",  "D-EAN-1", "D-EAN-2", "D-EAN-3",
                                                "D-EAN-4", "D-DM-1",  "D-DM-2",  "D-DM-8"};
  for (int i = 0; i < kDeviationCount; ++i) {
    const std::string id = kDeviationRows[i].id;
    bool isHarmless = false;
    for (const std::string& harmless : readAsGiven) isHarmless |= id == harmless;
    const DeviationSet met = Only(static_cast<Deviation>(i));
    EXPECT_EQ(Judged(job, false, met), isHarmless ? "proof failed" : "warning") << id;
  }
  DeviationSet both = Only(Deviation::kDDM_2);
  both.Add(Deviation::kDDM_7);
  EXPECT_EQ(Judged(job, false, both), "warning");
}

// The flag takes the proof away, and nothing else.
TEST(Proof, LeftOutGivesTheSameMark) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    BarhatchJob job = PlainJobOf(symbology);
    const Mark proven(job);
    job.flags = BARHATCH_NO_PROOF;
    const Mark unproven(job);
    ASSERT_TRUE(proven.IsOk() && unproven.IsOk());
    EXPECT_EQ(proven->warnings, unproven->warnings);
    EXPECT_EQ(proven.Reading(), unproven.Reading());
    ASSERT_EQ(proven->values_count, unproven->values_count);
    EXPECT_EQ(std::memcmp(proven->values, unproven->values, proven->values_count), 0);
    ASSERT_EQ(proven.Doubles(), unproven.Doubles());
    EXPECT_EQ(std::memcmp(proven->strokes, unproven->strokes, sizeof(double) * proven.Doubles()),
              0);
  }
}

// BARHATCH_PROOF_JOBS in the environment says how many.
TEST(Proof, NoRandomJobFailsIt) {
  RandomJobs random(20);
  long marks = 0;
  long unreadable = 0;
  const long jobs = JobsToProve();
  for (long i = 0; i < jobs; ++i) {
    const MarkNumbers numbers =
        random.Next(random.OneIn(3) ? 100 : kMarkSymbologies[random.Below(24)]);
    BarhatchJob job = JobOfNumbers(numbers);
    job.want = BARHATCH_WANT_VALIDATION;
    job.conformance = random.OneIn(2) ? BARHATCH_PUBLISHED : BARHATCH_DEVICE;
    if (job.conformance == BARHATCH_PUBLISHED && random.OneIn(3)) Vary(random, job);
    const Mark mark(job);
    marks += mark.IsOk() ? 1 : 0;
    unreadable += (mark->warnings & BARHATCH_W_UNREADABLE) != 0 ? 1 : 0;
    ASSERT_NE(mark->status, BARHATCH_PROOF_FAILED)
        << "symbology " << job.symbology << ", conformance " << job.conformance << ", "
        << testing::PrintToString(numbers.text);
    if (job.conformance == BARHATCH_PUBLISHED) {
      ASSERT_EQ(mark->warnings & BARHATCH_W_UNREADABLE, 0u) << testing::PrintToString(numbers.text);
    }
  }
  std::cout << "proven: " << marks << " marks of " << jobs << " jobs, " << unreadable
            << " of them unreadable by their deviations\n";
  EXPECT_GT(marks, jobs / 4);
  EXPECT_GT(unreadable, jobs / 100);
}

}  // namespace barhatch::test
