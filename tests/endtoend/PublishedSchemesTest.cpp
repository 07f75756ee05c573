// Marks by the book with check characters, from the job to the reader: the strokes are marked on a
// part, and readers that are not ours say what stands there.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "ReadTally.h"
#include "barhatch_mark.h"
#include "support/Raster.h"
#include "support/ReaderOracle.h"
#include "support/SeededTexts.h"

namespace barhatch::test {
namespace {

struct Case {
  const char* name;
  std::int32_t symbology;
  std::int32_t check;
  std::uint32_t flags;
  Format format;
  std::string alphabet;
  std::size_t shortest;
  std::size_t longest;
};

const std::string kDigits = "0123456789";
const std::string kCode39Set = kDigits + "ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

const Case kCases[] = {
    {"Code39", BARHATCH_CODE_39, BARHATCH_CHECK_MOD_43, 0, Format::kCode39, kCode39Set, 1, 14},
    {"Codabar", BARHATCH_CODABAR, BARHATCH_CHECK_MOD_16, BARHATCH_ADD_START_STOP, Format::kCodabar,
     kDigits + "-$:/.+", 2, 16},
    {"Interleaved2of5", BARHATCH_INTERLEAVED_2_OF_5, BARHATCH_CHECK_ITF_10, 0,
     Format::kInterleaved2of5, kDigits, 5, 20},
    {"Itf14", BARHATCH_ITF_14, BARHATCH_CHECK_OWN, 0, Format::kInterleaved2of5, kDigits, 13, 13},
};

// What a job becomes on the part. The host's symbol is 1 a module and 12 high.
struct Marked {
  std::string status;
  std::string reading;
  std::optional<Raster> picture;
};

Marked MarkOnThePart(const Case& c, const std::string& text) {
  BarhatchJob job = {};
  BarhatchResult result = {};
  job.size = sizeof job;
  result.size = sizeof result;
  job.symbology = c.symbology;
  job.check = c.check;
  job.flags = c.flags;
  job.text = text.data();
  job.length = text.size();
  job.x_dimension = 1.0;
  job.height = 12.0;
  job.gap = 0.1;
  Marked marked;
  if (BarhatchMark(&job, &result) != BARHATCH_OK) {
    marked.status = result.message;
    return marked;
  }
  FillBufferInfo fill = {};
  fill.BufferLength = static_cast<std::int32_t>(4 * result.strokes_count);
  fill.FilledArray = const_cast<double*>(result.strokes);
  MarkParameters parameters;
  parameters.width = result.symbol[2];
  parameters.height = result.symbol[3];
  parameters.margin = 12.0;
  parameters.pixelsPerUnit = 4.0;
  parameters.beamWidth = job.gap;
  marked.reading = std::string(result.reading, result.reading_length);
  marked.picture = MarkStrokes(fill, parameters);
  BarhatchRelease(&result);
  return marked;
}

class PublishedSchemes : public testing::TestWithParam<Case> {};

TEST_P(PublishedSchemes, AreReadByIndependentReaders) {
  const Case& c = GetParam();
  ReadTally tally;
  SeededTexts texts(static_cast<std::uint32_t>(c.symbology));
  for (int i = 0; i < 200; i += kSampleShare) {
    const std::string text = texts.Next(c.alphabet, c.shortest, c.longest);
    const Marked marked = MarkOnThePart(c, text);
    ASSERT_TRUE(marked.picture) << text << ": " << marked.status;
    const bool isCodabar = c.symbology == BARHATCH_CODABAR;
    const std::string expected = isCodabar ? "A" + marked.reading + "A" : marked.reading;
    EXPECT_NE(marked.reading.find(text), std::string::npos);
    for (const Reader reader : {Reader::kZxing, Reader::kZbar}) {
      if (!HasReader(reader)) continue;
      const auto read = Read(reader, *marked.picture, c.format);
      ASSERT_TRUE(read) << text;
      EXPECT_EQ(read->text, expected);
      tally.Count(reader == Reader::kZxing ? "zxing-cpp" : "ZBar");
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, PublishedSchemes, testing::ValuesIn(kCases),
                         [](const auto& c) { return c.param.name; });

}  // namespace
}  // namespace barhatch::test
