// A mark by the exports of barhatch.h, from numbers that other ways to ask for it have in other
// words.
#ifndef BARHATCH_TESTS_SUPPORT_EXPORTEDSTROKES_H
#define BARHATCH_TESTS_SUPPORT_EXPORTEDSTROKES_H

#include <cstdint>
#include <string>
#include <vector>

namespace barhatch::test {

// One mark by its numbers.
struct MarkNumbers {
  std::int32_t symbology = 0;
  std::u16string text;
  std::int32_t pattern = 0;
  double width = 0.0;  // of a linear symbol
  double height = 0.0;
  double gap = 0.0;
  double ratio = 3.0;
  bool isInverted = false;
  bool hasQuietZone = false;
  std::int32_t format = 0;  // of a Data Matrix, as all below
  std::int32_t rows = 0;
  std::int32_t columns = 0;
  std::int32_t isExpanding = 0;
};

// The strokes of a mark, or none: refused.
struct Strokes {
  bool isRefused = true;
  std::int32_t kind = 0;
  std::vector<double> coordinates;
};

// By GenerateLinearBarcode or GenerateDataMatrixBarcode.
Strokes StrokesByExports(const MarkNumbers& numbers);

}  // namespace barhatch::test

#endif
