// What the proof adds to a mark: time with it over time without it (BARHATCH_NO_PROOF), medians of
// interleaved batches. By the book; the dots are the cheapest fill there is, one a module. The goal
// is 1.25 at most. Exact counts: valgrind --tool=callgrind --toggle-collect=BarhatchMark.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "barhatch_mark.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kBatches = 201;
constexpr double kBatchNanoseconds = 200000.0;

struct Case {
  std::int32_t size;  // of the square; 0 for Code 128
  std::size_t length;
  std::int32_t pattern;
};

constexpr Case kCases[] = {
    {10, 3, BARHATCH_SCAN_LINES},     {10, 3, BARHATCH_POINTS},       {24, 20, BARHATCH_SCAN_LINES},
    {24, 20, BARHATCH_POINTS},        {52, 150, BARHATCH_SCAN_LINES}, {52, 150, BARHATCH_POINTS},
    {144, 1200, BARHATCH_SCAN_LINES}, {144, 1200, BARHATCH_POINTS},   {0, 20, BARHATCH_SCAN_LINES},
};

BarhatchJob JobOf(const Case& which, const std::string& text) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = which.size != 0 ? BARHATCH_DATA_MATRIX : BARHATCH_CODE_128;
  job.text = text.c_str();
  job.rows = job.columns = which.size;
  job.pattern = which.pattern;
  job.x_dimension = 1.0;
  job.height = which.size != 0 ? 0.0 : 10.0;
  job.gap = 0.25;
  return job;
}

// Nanoseconds of one mark.
double TimeOf(const BarhatchJob& job, int marks) {
  const Clock::time_point begin = Clock::now();
  for (int i = 0; i < marks; ++i) {
    BarhatchResult result = {};
    result.size = sizeof result;
    if (BarhatchMark(&job, &result) != BARHATCH_OK) std::puts(result.message);
    BarhatchRelease(&result);
  }
  return std::chrono::duration<double, std::nano>(Clock::now() - begin).count() / marks;
}

double MedianOf(std::vector<double>& times) {
  std::nth_element(times.begin(), times.begin() + kBatches / 2, times.end());
  return times[kBatches / 2];
}

void Compare(const Case& which) {
  std::string text;
  while (text.size() < which.length) text += "Part 4711-0815 Lot 9; "[text.size() % 22];
  const BarhatchJob proven = JobOf(which, text);
  BarhatchJob unproven = proven;
  unproven.flags = BARHATCH_NO_PROOF;
  const int marks = static_cast<int>(kBatchNanoseconds / TimeOf(proven, 20)) + 1;
  std::vector<double> with;
  std::vector<double> without;
  for (int batch = 0; batch < kBatches; ++batch) {
    with.push_back(TimeOf(proven, marks));
    without.push_back(TimeOf(unproven, marks));
  }
  const double ratio = MedianOf(with) / MedianOf(without);
  std::printf("%-12s %-10s %8.1f us %8.1f us %6.3f\n",
              which.size != 0 ? (std::to_string(which.size) + " square").c_str() : "Code 128",
              which.pattern == BARHATCH_POINTS ? "dots" : "scan lines", MedianOf(with) / 1000.0,
              MedianOf(without) / 1000.0, ratio);
}

}  // namespace

int main() {
  std::puts("symbol       fill         proven    unproven  ratio");
  for (const Case& which : kCases) Compare(which);
  return 0;
}
