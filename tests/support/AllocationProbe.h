// Replaces the program's operator new and delete by ones that count, that can fail on request, and
// that end the program when memory is released in another form (scalar, array) than it was
// allocated in. Link it into programs of its own.
#ifndef BARHATCH_TESTS_SUPPORT_ALLOCATIONPROBE_H
#define BARHATCH_TESTS_SUPPORT_ALLOCATIONPROBE_H

#include <cstddef>

namespace barhatch::test {

// Memory that has run out, or one block that was too large for what was left.
enum class Shortage { kFromThereOn, kThatOneOnly };

// Watches the allocations of its lifetime. Allocations made outside are left alone.
class AllocationProbe {
 public:
  // failAt: the allocation that fails, counted from 1, alone or with all after it; 0 lets all
  // succeed.
  explicit AllocationProbe(std::size_t failAt = 0, Shortage shortage = Shortage::kFromThereOn);
  ~AllocationProbe();
  AllocationProbe(const AllocationProbe&) = delete;
  AllocationProbe& operator=(const AllocationProbe&) = delete;

  std::size_t Allocations() const;  // attempted while watching
  std::size_t LiveBlocks() const;   // allocated while watching and not yet released
  std::size_t LiveBytes() const;    // the bytes of the live blocks
  std::size_t PeakBytes() const;    // most bytes that lived at once
};

}  // namespace barhatch::test

#endif
