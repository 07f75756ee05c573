// Marks that are asked for in two ways, from a seed: by the records of barhatch.h and by a job of
// the mark interface.
#ifndef BARHATCH_TESTS_MARK_RANDOMJOBS_H
#define BARHATCH_TESTS_MARK_RANDOMJOBS_H

#include <cstdint>
#include <random>
#include <string>

#include "barhatch_mark.h"
#include "support/ExportedStrokes.h"

namespace barhatch::test {

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

// The job that is the same mark; the text is the job's in its own form.
BarhatchJob JobOfNumbers(const MarkNumbers& numbers);

}  // namespace barhatch::test

#endif
