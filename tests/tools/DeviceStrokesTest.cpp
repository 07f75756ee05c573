// What --device shows is what the device marks: the strokes are those of the exports of barhatch.h,
// to the last bit, for every type, pattern and choice of the command line.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "JobOptions.h"
#include "Request.h"
#include "barhatch.h"
#include "support/ExportedStrokes.h"

namespace preview {

namespace {

using barhatch::test::MarkNumbers;
using barhatch::test::Strokes;
using barhatch::test::StrokesByExports;

constexpr const char* kTexts[] = {
    "A12-34B",           "AZ/1%%*",       "CODE $93",         "950110153100",
    "1234567",           "Part 12345",    "AB\x7F",           "Abc-123",
    "12345678",          "03600029145",   "1425261",          "1234567890",
    "9638507",           "0360002914512", "0360002914552495", "97713845240112",
    "97808777993054321", "963850712",     "963850752495",     "042526112",
    "042526152495",      "12345",         "Code 93\xC2\x80!",
};

std::u16string UnitsOf(const std::string& utf8) {
  std::u16string units;
  for (const char c : utf8) {
    if (c != '\xC2') units += static_cast<unsigned char>(c);  // of U+0080 to U+00BF
  }
  return units;
}

MarkNumbers NumbersOf(const Request& request, std::int32_t format) {
  MarkNumbers numbers;
  numbers.symbology = request.job.symbology;
  numbers.text = UnitsOf(request.text);
  numbers.pattern = request.job.pattern;
  numbers.width = request.job.width;
  numbers.height = request.job.height;
  numbers.gap = request.job.gap;
  numbers.ratio = request.job.ratio;
  numbers.isInverted = request.job.invert != 0;
  numbers.hasQuietZone = HasQuietZoneInside(request);
  numbers.format = format;
  numbers.rows = request.job.rows;
  numbers.columns = request.job.columns;
  numbers.isExpanding =
      (request.job.flags & BARHATCH_MAY_GROW) != 0 || request.job.rows == 0 ? 1 : 0;
  return numbers;
}

void ExpectStrokesOfTheExports(const Request& request, std::int32_t format) {
  const Result result = ResultOf(request);
  InitBarcode();
  const Strokes strokes = StrokesByExports(NumbersOf(request, format));
  ASSERT_EQ(!strokes.isRefused, static_cast<bool>(result)) << result.message();
  if (strokes.isRefused) return;
  ASSERT_EQ(strokes.coordinates.size(), result.Segments().size() * 4 + result.Points().size() * 2);
  const std::size_t bytes = strokes.coordinates.size() * sizeof(double);
  EXPECT_EQ(std::memcmp(strokes.coordinates.data(), result.Record().strokes, bytes), 0);
}

// Every pattern, with and without quiet zone, dark and light.
void ExpectStrokesOfEveryPattern(Request request, std::int32_t format = 0) {
  request.device = true;
  for (const std::int32_t pattern : {0, 1, 2, 3, 5, 6}) {
    for (const int choice : {0, 1, 2, 3}) {
      SCOPED_TRACE(request.text + ": pattern " + std::to_string(pattern) + ", choice " +
                   std::to_string(choice));
      request.job.pattern = pattern;
      request.job.invert = choice & 1;
      request.job.flags &= ~std::uint32_t{BARHATCH_QUIET_INSIDE};
      if ((choice & 2) != 0) request.job.flags |= BARHATCH_QUIET_INSIDE;
      ExpectStrokesOfTheExports(request, format);
    }
  }
}

}  // namespace

TEST(DeviceStrokes, OfEveryLinearTypeAreThoseOfTheExports) {
  for (std::int32_t type = 0; type < 23; ++type) {
    Request request;
    request.job.symbology = type;
    request.text = kTexts[type];
    request.job.ratio = type % 2 == 0 ? 3.0 : 2.5;
    request.job.gap = 0.37;
    ExpectStrokesOfEveryPattern(request);
  }
}

TEST(DeviceStrokes, OfDataMatrixAreThoseOfTheExports) {
  struct Size {
    std::int32_t rows, columns;
    bool expand;
  };
  for (const Size& size : {Size{0, 0, false}, Size{16, 48, false}, Size{24, 24, true},
                           Size{10, 10, true}, Size{10, 10, false}, Size{12, 36, false}}) {
    for (std::int32_t format = 0; format < 4; ++format) {
      Request request;
      request.job.symbology = BARHATCH_DATA_MATRIX;
      request.text = "RECTANGLE 12X36";
      request.job.rows = size.rows;
      request.job.columns = size.columns;
      if (size.expand) request.job.flags |= BARHATCH_MAY_GROW;
      SetFormat(request.job, format);
      request.job.gap = 0.37;
      ExpectStrokesOfEveryPattern(request, format);
    }
  }
}

}  // namespace preview
