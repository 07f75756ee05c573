// Marks that are asked for in two ways, from a seed: by the records of barhatch.h and by a job of
// the mark interface.
#ifndef BARHATCH_TESTS_MARK_RANDOMJOBS_H
#define BARHATCH_TESTS_MARK_RANDOMJOBS_H

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "barhatch_mark.h"

namespace barhatch::test {

// One mark by its numbers, which both interfaces have in other words.
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

class RandomJobs {
 public:
  explicit RandomJobs(std::uint32_t seed) : random_(seed) {}

  // Sizes make sense; texts, patterns and matrix sizes need not.
  MarkNumbers Next(std::int32_t symbology);

  std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_()) % limit; }
  bool OneIn(std::uint32_t count) { return Below(count) == 0; }

  std::u16string LinearText(std::int32_t type);
  std::u16string MatrixText();

 private:
  double Magnitude(int exponent);
  void SetSizes(MarkNumbers& numbers);
  void SetMatrix(MarkNumbers& numbers);

  std::mt19937 random_;
};

// The strokes of a mark, or none: refused.
struct Strokes {
  bool isRefused = true;
  std::int32_t kind = 0;
  std::vector<double> coordinates;
};

// By GenerateLinearBarcode or GenerateDataMatrixBarcode.
Strokes StrokesByExports(const MarkNumbers& numbers);

// The job that is the same mark; the text is the job's in its own form.
BarhatchJob JobOfNumbers(const MarkNumbers& numbers);

}  // namespace barhatch::test

#endif
