// Bearer bars on the part: readers that are not ours read the symbol between them.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "ReadTally.h"
#include "barhatch_mark.h"
#include "support/Raster.h"
#include "support/ReaderOracle.h"
#include "support/SeededTexts.h"

namespace barhatch::test {
namespace {

struct Marked {
  std::string status;
  std::string reading;
  Raster picture{1, 1, kLightShade};
};

// Module, bars 12 high. Light elements are marked on a dark part, quiet zone and all.
Marked MarkOnThePart(const BarhatchJob& job) {
  BarhatchResult result = {};
  result.size = sizeof result;
  if (BarhatchMark(&job, &result) != BARHATCH_OK) return {result.message, "", Raster(1, 1, 0)};
  FillBufferInfo fill = {};
  fill.BufferLength = static_cast<std::int32_t>(4 * result.strokes_count);
  fill.FilledArray = const_cast<double*>(result.strokes);
  MarkParameters part;
  part.left = result.total[0];
  part.bottom = result.total[1];
  part.width = result.total[2] - result.total[0];
  part.height = result.total[3] - result.total[1];
  part.margin = 2.0;
  part.pixelsPerUnit = 4.0;
  part.beamWidth = job.gap;
  if (job.pattern == BARHATCH_SPIRAL) part.ends = StrokeEnds::kProjecting;
  if (job.invert != 0) part.colour = MarkColour::kLightOnDark;
  Marked marked = {"", std::string(result.reading, result.reading_length), MarkStrokes(fill, part)};
  BarhatchRelease(&result);
  return marked;
}

BarhatchJob JobOf(std::int32_t symbology, const std::string& text) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = symbology;
  job.flags = BARHATCH_BEARER_BARS;
  job.text = text.data();
  job.length = text.size();
  job.x_dimension = 1.0;
  job.height = 12.0;
  job.gap = 0.1;
  return job;
}

class BearerBars : public testing::TestWithParam<std::tuple<std::int32_t, double, std::int32_t>> {
 protected:
  BarhatchJob Varied(BarhatchJob job) const {
    job.pattern = std::get<0>(GetParam());
    job.ratio = std::get<1>(GetParam());
    job.invert = std::get<2>(GetParam());
    return job;
  }
};

void ExpectRead(const BarhatchJob& job, ReadTally& tally) {
  const Marked marked = MarkOnThePart(job);
  ASSERT_EQ(marked.status, "");
  for (const Reader reader : {Reader::kZxing, Reader::kZbar}) {
    if (!HasReader(reader)) continue;
    const auto read = Read(reader, marked.picture, Format::kInterleaved2of5);
    ASSERT_TRUE(read) << marked.reading;
    EXPECT_EQ(read->text, marked.reading);
    tally.Count(reader == Reader::kZxing ? "zxing-cpp" : "ZBar");
  }
}

TEST_P(BearerBars, LeaveTheSymbolReadable) {
  ReadTally tally;
  SeededTexts texts(2048);
  for (int i = 0; i < 4; ++i) {
    const std::string text = texts.Next("0123456789", 13, 13);
    ExpectRead(Varied(JobOf(BARHATCH_ITF_14, text)), tally);
    const std::string pairs = texts.Next("0123456789", 6, 20);
    ExpectRead(Varied(JobOf(BARHATCH_INTERLEAVED_2_OF_5, pairs)), tally);
  }
}

INSTANTIATE_TEST_SUITE_P(PatternsRatiosAndBothImages, BearerBars,
                         testing::Combine(testing::Values(0, 1, 2, 3, 5),
                                          testing::Values(2.0, 2.5, 3.0), testing::Values(0, 1)));

}  // namespace
}  // namespace barhatch::test
