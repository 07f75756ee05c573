#include "CallWatch.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#if defined(__SANITIZE_ADDRESS__)
#define BARHATCH_FUZZ_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define BARHATCH_FUZZ_ADDRESS_SANITIZER 1
#endif
#endif

#if defined(BARHATCH_FUZZ_ADDRESS_SANITIZER)
// The sanitizer's interface to its allocator; g++ has the functions without the header.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-*)
extern "C" {
int __sanitizer_install_malloc_and_free_hooks(void (*allocated)(const volatile void*, std::size_t),
                                              void (*released)(const volatile void*));
std::size_t __sanitizer_get_allocated_size(const volatile void* block);
}
// NOLINTEND(bugprone-reserved-identifier,cert-*)
#endif

namespace barhatch::fuzz {

namespace {

std::int64_t liveBytes = 0;
std::int64_t peakBytes = 0;

#if defined(BARHATCH_FUZZ_ADDRESS_SANITIZER)
// A tenth of a second without sanitizers. They slow large fills and long texts down four to eight
// times, the fuzzer's counters twice more: five times is on the strict side.
constexpr double kMostSeconds = 0.5;

void CountAllocation(const volatile void*, std::size_t size) {
  liveBytes += static_cast<std::int64_t>(size);
  if (liveBytes > peakBytes) peakBytes = liveBytes;
}

void CountRelease(const volatile void* block) {
  if (block == nullptr) return;
  liveBytes -= static_cast<std::int64_t>(__sanitizer_get_allocated_size(block));
}

const bool areHooksInstalled =
    __sanitizer_install_malloc_and_free_hooks(CountAllocation, CountRelease) != 0;
#else
constexpr double kMostSeconds = 0.1;
const bool areHooksInstalled = true;
#endif

double ProcessorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

}  // namespace

void Fail(const char* meaning) {
  std::fprintf(stderr, "\nfuzz: does not hold: %s\n", meaning);
  std::abort();
}

CallWatch::CallWatch() : startSeconds_(ProcessorSeconds()) {
  Demand(areHooksInstalled, "memory can be watched");
  liveBytes = 0;
  peakBytes = 0;
}

void CallWatch::DemandWithin(std::size_t mostBytes) const {
  const double seconds = ProcessorSeconds() - startSeconds_;
  if (seconds > kMostSeconds) std::fprintf(stderr, "\nfuzz: %g seconds\n", seconds);
  Demand(seconds <= kMostSeconds, "a call ends soon");
  if (peakBytes > static_cast<std::int64_t>(mostBytes)) {
    std::fprintf(stderr, "\nfuzz: %lld bytes, %zu allowed\n", static_cast<long long>(peakBytes),
                 mostBytes);
  }
  Demand(peakBytes <= static_cast<std::int64_t>(mostBytes),
         "a call holds no more memory than its result needs");
}

void CallWatch::DemandNothingKept() const { Demand(liveBytes <= 0, "a refusal keeps no memory"); }

}  // namespace barhatch::fuzz
