// Random jobs by the book: each one is refused with its reason, or says what its result promises to
// everybody who reads it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <set>
#include <string>

#include "PublishedReadings.h"
#include "RandomPublishedJobs.h"
#include "ReadTally.h"
#include "support/Code39Reader.h"
#include "support/Raster.h"
#include "support/ReaderOracle.h"

namespace barhatch::test {
namespace {

long JobsAskedFor(const char* variable, long usual) {
  const char* const asked = std::getenv(variable);
  return asked != nullptr ? std::strtol(asked, nullptr, 10) : usual / kSampleShare;
}

class MarkOf {
 public:
  explicit MarkOf(const BarhatchJob& job) : job_(job) {
    std::memset(&result_, 0x5A, sizeof result_);
    result_.size = sizeof result_;
    BarhatchMark(&job_, &result_);
  }
  ~MarkOf() { BarhatchRelease(&result_); }
  MarkOf(const MarkOf&) = delete;
  MarkOf& operator=(const MarkOf&) = delete;

  const BarhatchJob& Job() const { return job_; }
  const BarhatchResult* operator->() const { return &result_; }
  const BarhatchResult& operator*() const { return result_; }

 private:
  const BarhatchJob job_;
  BarhatchResult result_;
};

std::string Described(const PublishedJob& made) {
  const BarhatchJob& job = made.options;
  std::string text = made.units.empty() ? Escaped(made.bytes) : Escaped(made.units);
  for (const auto& [name, number] : std::map<std::string, long>{{"symbology", job.symbology},
                                                                {"input", job.input},
                                                                {"check", job.check},
                                                                {"flags", job.flags},
                                                                {"envelope", job.envelope},
                                                                {"eci", job.eci},
                                                                {"rows", job.rows},
                                                                {"columns", job.columns},
                                                                {"shape", job.shape},
                                                                {"part", job.part},
                                                                {"parts", job.parts},
                                                                {"part_id", job.part_id},
                                                                {"addon_gap", job.addon_gap}}) {
    if (number != 0) text += ", " + name + " " + std::to_string(number);
  }
  return text;
}

const std::set<std::int32_t> kHavePlaces = {BARHATCH_BAD_CHARACTER, BARHATCH_BAD_SYNTAX,
                                            BARHATCH_UNKNOWN_AI, BARHATCH_BAD_AI_DATA};
const std::set<std::int32_t> kHaveNone = {BARHATCH_BAD_OPTION, BARHATCH_EMPTY,
                                          BARHATCH_NO_SUCH_SIZE};
const std::set<std::int32_t> kMayHave = {BARHATCH_BAD_LENGTH, BARHATCH_BAD_CHECK, BARHATCH_TOO_LONG,
                                         BARHATCH_NOT_STANDARD};

void ExpectASentence(const BarhatchResult& result) {
  const std::size_t length = strnlen(result.message, sizeof result.message);
  ASSERT_GE(length, 8u);
  ASSERT_LT(length, sizeof result.message);
  for (const char character : std::string(result.message)) {
    ASSERT_TRUE(character >= ' ' && character <= '~') << result.message;
  }
}

void ExpectRefused(const PublishedJob& made, const MarkOf& mark) {
  EXPECT_FALSE(made.isSound) << mark->message;
  const std::int32_t status = mark->status;
  ASSERT_TRUE(kHavePlaces.count(status) + kHaveNone.count(status) + kMayHave.count(status) == 1)
      << status << ": " << mark->message;
  ExpectASentence(*mark);
  EXPECT_TRUE(kHavePlaces.count(status) == 0 || mark->position >= 1) << mark->message;
  EXPECT_TRUE(kHaveNone.count(status) == 0 || mark->position == 0) << mark->message;
  EXPECT_EQ(mark->position == 0, mark->extent == 0);
  EXPECT_GE(mark->extent, 0);
  if (mark->position != 0) {
    EXPECT_LE(static_cast<std::size_t>(mark->position - 1 + mark->extent), mark.Job().length);
  }
  EXPECT_TRUE(mark->modules == nullptr && mark->strokes == nullptr && mark->reading == nullptr);
}

void ExpectSaid(const PublishedJob& made, const MarkOf& mark, const std::string& letters) {
  ASSERT_NE(mark->reading, nullptr);
  const std::string promised(mark->reading, mark->reading_length);
  const auto read = ReadPlainly(mark.Job(), *mark, letters);
  ASSERT_TRUE(read) << "no symbol; promised: " << Escaped(promised);
  EXPECT_EQ(Escaped(read->text), Escaped(promised));
  const auto expected = ExpectedText(made);
  EXPECT_EQ(Escaped(promised), Escaped(expected.value_or(promised)));
  if (made.options.symbology != BARHATCH_DATA_MATRIX) return;
  EXPECT_EQ(read->items, ExpectedItems(made).value_or(read->items));
}

// zxing-cpp looks for an add-on no further behind the symbol.
constexpr std::int32_t kMostGapOfZxing = 10;

Format FormatOf(std::int32_t symbology) {
  switch (symbology) {
    case BARHATCH_CODABAR:
      return Format::kCodabar;
    case BARHATCH_CODE_39:
    case BARHATCH_CODE_39_FULL:
      return Format::kCode39;
    case BARHATCH_CODE_93:
    case BARHATCH_CODE_93_FULL:
      return Format::kCode93;
    case BARHATCH_INTERLEAVED_2_OF_5:
    case BARHATCH_ITF_14:
      return Format::kInterleaved2of5;
    case BARHATCH_DATA_MATRIX:
      return Format::kDataMatrix;
    case BARHATCH_EAN_13:
    case BARHATCH_EAN_13_ADDON_2:
    case BARHATCH_EAN_13_ADDON_5:
      return Format::kEan13;
    case BARHATCH_UPC_A:
    case BARHATCH_UPC_A_ADDON_2:
    case BARHATCH_UPC_A_ADDON_5:
      return Format::kUpcA;
    case BARHATCH_EAN_8:
    case BARHATCH_EAN_8_ADDON_2:
    case BARHATCH_EAN_8_ADDON_5:
      return Format::kEan8;
    case BARHATCH_UPC_E:
    case BARHATCH_UPC_E_ADDON_2:
    case BARHATCH_UPC_E_ADDON_5:
      return Format::kUpcE;
    default:
      return Format::kCode128;
  }
}

MarkParameters PartOf(const MarkOf& mark) {
  MarkParameters parameters;
  parameters.left = mark->symbol[0];
  parameters.bottom = mark->symbol[1];
  parameters.width = mark->symbol[2] - mark->symbol[0];
  parameters.height = mark->symbol[3] - mark->symbol[1];
  parameters.margin = mark->rows == 1 ? 12.0 : 2.0;
  parameters.pixelsPerUnit = 4.0;
  parameters.beamWidth = mark.Job().gap;
  parameters.cellWidth = parameters.cellHeight = 1.0;
  return parameters;
}

Raster PictureOf(const MarkOf& mark) {
  const bool isDots = mark->kind == BARHATCH_DOTS;
  std::vector<double> strokes(mark->strokes,
                              mark->strokes + (isDots ? 2 : 4) * mark->strokes_count);
  const FillBufferInfo fill = {mark->kind, static_cast<std::int32_t>(strokes.size()),
                               strokes.data(), 0.0, 0.0};
  return MarkStrokes(fill, PartOf(mark));
}

// The modules as the strokes have marked them.
std::string LettersOfPicture(const MarkOf& mark, const Raster& picture) {
  const MarkParameters part = PartOf(mark);
  const int modules = static_cast<int>(part.width + 0.5);
  const std::string sampled = SampleModules(picture, part, mark->rows, modules);
  const bool hasWide = mark->rows == 1 && modules != mark->columns;
  if (!hasWide) return sampled;
  std::string letters;
  for (std::size_t i = 0, end = 0; i < sampled.size(); i = end) {
    while (end < sampled.size() && sampled[end] == sampled[i]) ++end;
    const bool isWide = end - i == 3;
    letters += isWide ? std::string(1, static_cast<char>(sampled[i] + 1))
                      : std::string(end - i, sampled[i]);
  }
  return letters;
}

// zxing-cpp counts the characters in front of an FNC1 in second position, but neither functions nor
// the switch to set C.
bool HasFnc1BehindFunction(const PublishedJob& made) {
  const bool isInSetA = made.options.symbology == BARHATCH_CODE_128_A;
  if (isInSetA && made.says.size() > 2 && made.says[2] == kSaysFnc1) return true;
  bool hasFunction = false;
  for (const std::uint32_t item : made.says) {
    if (hasFunction && item == kSaysFnc1) return true;
    hasFunction |= item >= kSaysFnc1;
  }
  return false;
}

// zxing-cpp reads no MSI and no Code 11, and has least lengths; 144 x 144 it knows in the order of
// the industry alone.
bool IsForZxing(const PublishedJob& made, const MarkOf& mark) {
  const std::int32_t symbology = mark.Job().symbology;
  if (symbology != BARHATCH_DATA_MATRIX && HasFnc1BehindFunction(made)) return false;
  if (symbology == BARHATCH_MSI || symbology == BARHATCH_CODE_11) return false;
  if (symbology == BARHATCH_CODABAR) return mark->reading_length >= 2;
  if (symbology == BARHATCH_INTERLEAVED_2_OF_5) return mark->reading_length >= 6;
  if (mark->rows == 144) return (mark.Job().flags & BARHATCH_INDUSTRY_144) != 0;
  return mark->reading_length > 0 && mark.Job().addon_gap <= kMostGapOfZxing;
}

// It leaves the pairs of Code 39 full ASCII and their check character as they stand.
std::string PromisedToZxing(const MarkOf& mark) {
  const bool isInPairs = mark.Job().symbology == BARHATCH_CODE_39_FULL;
  return isInPairs ? ReadCode39(LettersOf(*mark)).value_or("none")
                   : std::string(mark->reading, mark->reading_length);
}

void ExpectReadByZxing(const MarkOf& mark, const Raster& picture, ReadTally& tally) {
  const Format format = FormatOf(mark.Job().symbology);
  const std::string promised = PromisedToZxing(mark);
  const bool isEanUpc = format == Format::kEan13 || format == Format::kEan8 ||
                        format == Format::kUpcA || format == Format::kUpcE;
  const bool hasAddon = isEanUpc && promised.find(' ') != std::string::npos;
  const auto read =
      Read(Reader::kZxing, picture, format, hasAddon ? AddOn::kRequired : AddOn::kIgnored);
  ASSERT_TRUE(read) << "promised: " << Escaped(promised);
  std::string text = hasAddon ? read->text + " " + read->addOn : read->text;
  if (format == Format::kCodabar) text = text.substr(1, text.size() - 2);
  EXPECT_EQ(Escaped(text), Escaped(promised));
  tally.Count("zxing-cpp");
}

struct Counts {
  long jobs = 0;
  long marks = 0;
};

}  // namespace

// BARHATCH_PUBLISHED_JOBS in the environment says how many.
TEST(PublishedJobs, AreRefusedWithTheirReasonOrSayWhatTheirReadingPromises) {
  RandomPublishedJobs random(16022);
  const long jobs = JobsAskedFor("BARHATCH_PUBLISHED_JOBS", 20000);
  std::map<std::int32_t, Counts> counts;
  std::map<std::int32_t, long> refusals;
  for (long i = 0; i < jobs; ++i) {
    const PublishedJob made = random.Next();
    const MarkOf mark(made.Job());
    Counts& count = counts[made.options.symbology];
    ++count.jobs;
    const bool isMark = mark->status == BARHATCH_OK;
    if (isMark) {
      ++count.marks;
      ExpectSaid(made, mark, LettersOf(*mark));
    } else {
      ++refusals[mark->status];
      ExpectRefused(made, mark);
    }
    if (HasFailure()) FAIL() << "job " << i << ": " << Described(made);
  }
  long marks = 0;
  for (const auto& [symbology, count] : counts) {
    marks += count.marks;
    EXPECT_GT(count.marks, count.jobs / 3) << symbology;
  }
  std::cout << "read back: " << marks << " marks of " << jobs << " jobs; refused";
  for (const auto& [status, count] : refusals) std::cout << ", status " << status << ": " << count;
  std::cout << "\n";
  EXPECT_EQ(counts.size(), 26u);
}

// BARHATCH_PUBLISHED_PICTURES in the environment says how many jobs.
TEST(PublishedJobs, AreReadFromTheStrokesAsTheirReadingPromises) {
  if (!HasReader(Reader::kZxing)) GTEST_SKIP() << "built without the reader";
  RandomPublishedJobs random(15417);
  ReadTally tally;
  const long jobs = JobsAskedFor("BARHATCH_PUBLISHED_PICTURES", 2000);
  for (long i = 0; i < jobs; ++i) {
    PublishedJob made = random.Next();
    made.options.want = 0;
    made.options.x_dimension = 1.0;
    made.options.gap = 0.1;
    if (made.options.symbology != BARHATCH_DATA_MATRIX) made.options.height = 4.0;
    if (made.options.symbology == BARHATCH_DATA_MATRIX && i % 2 == 0)
      made.options.pattern = BARHATCH_POINTS;
    const MarkOf mark(made.Job());
    if (mark->status != BARHATCH_OK) continue;
    const Raster picture = PictureOf(mark);
    const std::string letters = LettersOfPicture(mark, picture);
    EXPECT_EQ(letters, LettersOf(*mark));
    ExpectSaid(made, mark, letters);
    tally.Count("plain");
    if (IsForZxing(made, mark)) ExpectReadByZxing(mark, picture, tally);
    if (HasFailure()) FAIL() << "job " << i << ": " << Described(made);
  }
}

}  // namespace barhatch::test
