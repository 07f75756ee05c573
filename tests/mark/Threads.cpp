// Marks from sixteen threads at once are those that one thread makes. Built by scripts/test-threads
// with ThreadSanitizer, which ends the program where two threads come upon the same memory.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

constexpr std::size_t kThreads = 16;
constexpr int kRounds = 3;

// Accepted and refused, device and published, of every symbology and pattern.
std::vector<BarhatchJob> AllJobs() {
  std::vector<BarhatchJob> jobs;
  for (const std::int32_t symbology : kMarkSymbologies) {
    for (const std::int32_t pattern : kMarkPatterns) {
      BarhatchJob job = PlainJobOf(symbology);
      job.pattern = pattern;
      jobs.push_back(job);
      job.invert = 1;
      job.flags = BARHATCH_QUIET_INSIDE;
      jobs.push_back(job);
      job.conformance = BARHATCH_PUBLISHED;
      jobs.push_back(job);
      job.text = "no text of a symbology: \xC3\xA9 \x80";
      jobs.push_back(job);
    }
  }
  return jobs;
}

// FNV-1a over all that a result has.
class Checksum {
 public:
  void Add(const void* bytes, std::size_t count) {
    for (std::size_t i = 0; bytes != nullptr && i < count; ++i) {
      value_ = (value_ ^ static_cast<const unsigned char*>(bytes)[i]) * 1099511628211U;
    }
  }
  std::uint64_t Value() const { return value_; }

 private:
  std::uint64_t value_ = 14695981039346656037U;
};

std::uint64_t ChecksumOf(const BarhatchJob& job) {
  const Mark mark(job);
  Checksum sum;
  sum.Add(&mark->status, sizeof mark->status);
  sum.Add(mark->message, std::strlen(mark->message));
  sum.Add(mark->strokes, sizeof(double) * mark.Doubles());
  sum.Add(mark->modules, static_cast<std::size_t>(mark->rows * mark->columns));
  sum.Add(mark->values, mark->values_count);
  sum.Add(mark->reading, mark->reading_length);
  sum.Add(&mark->deviations, sizeof mark->deviations);
  return sum.Value();
}

// Each thread begins at another job. Counts the results that are others.
int CountOthers(const std::vector<BarhatchJob>& jobs, const std::vector<std::uint64_t>& expected,
                std::size_t first) {
  int others = 0;
  for (int round = 0; round < kRounds; ++round) {
    for (std::size_t i = 0; i < jobs.size(); ++i) {
      const std::size_t job = (first + i) % jobs.size();
      others += ChecksumOf(jobs[job]) == expected[job] ? 0 : 1;
    }
  }
  return others;
}

int Run() {
  const std::vector<BarhatchJob> jobs = AllJobs();
  std::vector<std::uint64_t> expected;
  for (const BarhatchJob& job : jobs) expected.push_back(ChecksumOf(job));
  std::vector<int> others(kThreads, 0);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < kThreads; ++i) {
    threads.emplace_back([&, i] { others[i] = CountOthers(jobs, expected, i * 37); });
  }
  for (std::thread& thread : threads) thread.join();
  int sum = 0;
  for (const int count : others) sum += count;
  std::printf("threads: %d marks in each of %d, %d others than the serial ones\n",
              static_cast<int>(jobs.size()) * kRounds, static_cast<int>(kThreads), sum);
  return sum == 0 ? 0 : 1;
}

}  // namespace
}  // namespace barhatch::test

int main() { return barhatch::test::Run(); }
