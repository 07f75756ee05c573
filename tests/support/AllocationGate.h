// Counts the library's allocations, all of which are made with new (std::nothrow), and lets one of
// them fail. Linking AllocationGate.cpp replaces that operator for the whole program.
#ifndef BARHATCH_TESTS_SUPPORT_ALLOCATIONGATE_H
#define BARHATCH_TESTS_SUPPORT_ALLOCATIONGATE_H

#include <limits>

namespace barhatch::test {

class AllocationGate {
 public:
  // While the gate stands, the allocation with that number (from 0) fails, and so do all later
  // ones.
  explicit AllocationGate(int firstToFail = std::numeric_limits<int>::max());
  ~AllocationGate();
  AllocationGate(const AllocationGate&) = delete;
  AllocationGate& operator=(const AllocationGate&) = delete;

  // Allocations that were asked for since the gate was put up.
  int Count() const;
};

}  // namespace barhatch::test

#endif
