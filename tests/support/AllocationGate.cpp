#include "support/AllocationGate.h"

#include <cstddef>
#include <new>

namespace barhatch::test {

namespace {

constexpr int kNever = std::numeric_limits<int>::max();
int count = 0;
int firstThatFails = kNever;

bool Passes() { return count++ < firstThatFails; }

}  // namespace

AllocationGate::AllocationGate(int firstToFail) {
  count = 0;
  firstThatFails = firstToFail;
}

AllocationGate::~AllocationGate() { firstThatFails = kNever; }

int AllocationGate::Count() const { return count; }

}  // namespace barhatch::test

// Pairs with the unreplaced operators delete: the memory comes from the throwing operators.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return barhatch::test::Passes() ? ::operator new(size) : nullptr;
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return barhatch::test::Passes() ? ::operator new[](size) : nullptr;
}
