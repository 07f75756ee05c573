// Data Matrix by the book on its whole road: job, strokes or dots, picture of the marked part,
// independent readers.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "barhatch.h"
#include "barhatch_mark.h"
#include "support/Raster.h"
#include "support/ReaderOracle.h"
#include "support/SymbolSizeReference.h"
#include "support/TextClasses.h"

namespace barhatch::test {
namespace {

constexpr double kGap = 0.1;

struct Size {
  int rows;
  int columns;
  int data;
};

// The thirty sizes of ISO/IEC 16022, then the eighteen of ISO/IEC 21471.
std::vector<Size> AllSizes() {
  std::vector<Size> sizes;
  for (const ReferenceSize& size : ReferenceSizes())
    sizes.push_back({size.rows, size.columns, size.data});
  for (const Size& size : std::vector<Size>{{8, 48, 18},
                                            {8, 64, 24},
                                            {8, 80, 32},
                                            {8, 96, 38},
                                            {8, 120, 49},
                                            {8, 144, 63},
                                            {12, 64, 43},
                                            {12, 88, 64},
                                            {16, 64, 62},
                                            {20, 36, 44},
                                            {20, 44, 56},
                                            {20, 64, 84},
                                            {22, 48, 72},
                                            {24, 48, 80},
                                            {24, 64, 108},
                                            {26, 40, 70},
                                            {26, 48, 90},
                                            {26, 64, 118}}) {
    sizes.push_back(size);
  }
  return sizes;
}
constexpr int kSizesOf16022 = 30;

BarhatchJob JobOf(const std::string& text, const Size& size) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = BARHATCH_DATA_MATRIX;
  job.input = BARHATCH_BYTES;
  job.text = text.data();
  job.length = text.size();
  job.rows = size.rows;
  job.columns = size.columns;
  job.x_dimension = 1.0;
  job.gap = kGap;
  return job;
}

class MarkOf {
 public:
  explicit MarkOf(const BarhatchJob& job) : job_(job) {
    result_.size = sizeof result_;
    BarhatchMark(&job_, &result_);
  }
  ~MarkOf() { BarhatchRelease(&result_); }
  MarkOf(const MarkOf&) = delete;
  MarkOf& operator=(const MarkOf&) = delete;

  const BarhatchResult& Result() const { return result_; }

  // The picture of the part; dots mark their module.
  Raster Picture(double pixelsPerModule) const {
    std::vector<double> strokes(result_.strokes,
                                result_.strokes + Doubles() * result_.strokes_count);
    const FillBufferInfo fill = {result_.kind, static_cast<std::int32_t>(strokes.size()),
                                 strokes.data(), 0.0, 0.0};
    MarkParameters parameters;
    const double* const area = job_.invert != 0 ? result_.total : result_.symbol;
    parameters.left = area[0];
    parameters.bottom = area[1];
    parameters.width = area[2] - area[0];
    parameters.height = area[3] - area[1];
    parameters.margin = 2.0;
    parameters.pixelsPerUnit = pixelsPerModule;
    parameters.beamWidth = kGap;
    parameters.cellWidth = parameters.cellHeight = 1.0;
    parameters.colour = job_.invert != 0 ? MarkColour::kLightOnDark : MarkColour::kDarkOnLight;
    return MarkStrokes(fill, parameters);
  }

 private:
  std::size_t Doubles() const { return result_.kind == BARHATCH_DOTS ? 2 : 4; }

  const BarhatchJob job_;
  BarhatchResult result_ = {};
};

std::string ReadBy(Reader reader, const MarkOf& mark, double pixelsPerModule) {
  const auto read = Read(reader, mark.Picture(pixelsPerModule), Format::kDataMatrix);
  return read ? read->text : "not read";
}

// libdmtx loses its way at some scales and finds it at others.
std::string ReadByDmtx(const MarkOf& mark, const std::string& wanted) {
  std::string read;
  for (const double pixelsPerModule : {4.0, 5.5, 7.0}) {
    read = ReadBy(Reader::kDmtx, mark, pixelsPerModule);
    if (read == wanted) break;
  }
  return read;
}

std::string FullText(const Size& size, int textClass, std::mt19937& random) {
  std::string text = RandomText(random, textClass, static_cast<std::size_t>(2 * size.data));
  for (;; text.pop_back()) {
    const MarkOf mark(JobOf(text, size));
    if (mark.Result().status == BARHATCH_OK) return text;
    if (text.size() > 200) text.resize(text.size() - 20);
  }
}

}  // namespace

class PublishedMatrixOfSize : public testing::TestWithParam<int> {};

TEST_P(PublishedMatrixOfSize, IsReadFromStrokesAndDotsPlainAndInverted) {
  const Size size = AllSizes()[static_cast<std::size_t>(GetParam())];
  const bool isOf16022 = GetParam() < kSizesOf16022;
  std::mt19937 random(static_cast<unsigned>(GetParam()));
  for (int pattern : {0, 1, 6}) {
    for (int invert : {0, 1}) {
      const std::string text = FullText(size, (pattern + invert) % 3, random);
      BarhatchJob job = JobOf(text, size);
      job.pattern = pattern;
      job.invert = invert;
      job.flags = BARHATCH_INDUSTRY_144;
      const MarkOf mark(job);
      ASSERT_EQ(mark.Result().status, BARHATCH_OK) << mark.Result().message;
      EXPECT_EQ(mark.Result().rows, size.rows);
      EXPECT_EQ(mark.Result().columns, size.columns);
      EXPECT_EQ(ReadBy(Reader::kZxing, mark, 4.0), text)
          << size.rows << "x" << size.columns << " pattern " << pattern << " invert " << invert;
      const bool isForDmtx = isOf16022 && pattern == 6 && size.rows != 144;
      if (!isForDmtx) continue;
      EXPECT_EQ(ReadByDmtx(mark, text), text);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Every, PublishedMatrixOfSize, testing::Range(0, 48),
                         [](const auto& nameOf) {
                           const Size size = AllSizes()[static_cast<std::size_t>(nameOf.param)];
                           return std::to_string(size.rows) + "x" + std::to_string(size.columns);
                         });

// 144 x 144 in the order of the standard is read by libdmtx.
TEST(PublishedMatrixReadBack, LibdmtxReadsTheLargestInTheOrderOfTheStandard) {
  const std::string text(3116, '7');
  const MarkOf mark(JobOf(text, {144, 144, 1558}));
  EXPECT_EQ(ReadByDmtx(mark, text), text);
}

TEST(PublishedMatrixReadBack, TextsOfEveryClassAreRead) {
  std::mt19937 random(16022);
  for (int i = 0; i < 900; ++i) {
    const std::string text = RandomText(random, i % kTextClassCount, 1 + Below(random, 60));
    BarhatchJob job = JobOf(text, {0, 0, 0});
    job.flags = i % 2 == 0 ? BARHATCH_LOOSE_END : 0;
    job.pattern = BARHATCH_POINTS;
    const MarkOf mark(job);
    ASSERT_EQ(mark.Result().status, BARHATCH_OK) << mark.Result().message;
    ASSERT_EQ(ReadBy(Reader::kZxing, mark, 4.0), text) << testing::PrintToString(text);
    if (i % 9 != 0) continue;
    ASSERT_EQ(ReadByDmtx(mark, text), text) << testing::PrintToString(text);
  }
}

std::string IdentifierOf(const BarhatchJob& job, std::string& text) {
  const MarkOf mark(job);
  const auto read = Read(Reader::kZxing, mark.Picture(4.0), Format::kDataMatrix);
  if (!read) return "not read";
  text = read->text;
  return read->identifier;
}

TEST(PublishedMatrixReadBack, WhatASymbolBeginsWithIsReported) {
  std::string text;
  const std::string given = "A12";
  BarhatchJob job = JobOf(given, {0, 0, 0});
  EXPECT_EQ(IdentifierOf(job, text), "]d1");
  job.flags = BARHATCH_FNC1_SECOND;
  EXPECT_EQ(IdentifierOf(job, text), "]d3");
  EXPECT_EQ(text, "A12");
  job.flags = 0;
  job.envelope = BARHATCH_ENVELOPE_05;
  IdentifierOf(job, text);
  EXPECT_EQ(text,
            "[)>\x1E"
            "05\x1D"
            "A12\x1E\x04");
  job.envelope = BARHATCH_ENVELOPE_12;
  IdentifierOf(job, text);
  EXPECT_EQ(text,
            "[)>\x1E"
            "12\x1D"
            "A12\x1E\x04");
  job.envelope = 0;
  job.eci = 26;
  const MarkOf mark(job);
  const auto read = Read(Reader::kZxing, mark.Picture(4.0), Format::kDataMatrix);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->text, "A12");
  EXPECT_EQ(read->eciText, "]d4\\000026A12");
}

}  // namespace barhatch::test
