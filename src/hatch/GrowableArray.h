// The one growth rule of the hatcher's lists: a full array is replaced by one of twice the
// capacity. There is no shrinking and no upper limit. Whoever can count its elements first gives
// the count as initial capacity and spares both the copies and the slack, or has room of its own
// that the list fills.
#ifndef BARHATCH_HATCH_GROWABLEARRAY_H
#define BARHATCH_HATCH_GROWABLEARRAY_H

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "job/Memory.h"

namespace barhatch {

template <typename T>
class GrowableArray {
  static_assert(std::is_trivially_copyable_v<T>, "elements are neither constructed nor destroyed");

 public:
  static constexpr std::size_t kInitialCapacity = 16;

  // An array of its own, from the memory, which outlives the list. A capacity of 0 takes nothing
  // from it before the first element comes.
  explicit GrowableArray(const Memory& memory, std::size_t capacity = kInitialCapacity)
      : memory_(&memory),
        items_(capacity != 0 ? NewArray(capacity) : nullptr),
        capacity_(items_ != nullptr ? capacity : 0),
        failed_(capacity_ != capacity) {}

  // Room for so many elements that stays the caller's: the list does not grow, and what does not
  // fit is lost.
  GrowableArray(T* room, std::size_t capacity)
      : memory_(nullptr), items_(room), capacity_(capacity), failed_(false) {}

  ~GrowableArray() { ReleaseArray(); }
  GrowableArray(const GrowableArray&) = delete;
  GrowableArray& operator=(const GrowableArray&) = delete;

  std::size_t Count() const { return count_; }
  std::size_t Capacity() const { return capacity_; }

  // True once an element was lost because there was no memory; the list is then of no use.
  bool HasFailed() const { return failed_; }

  T& operator[](std::size_t index) { return items_[index]; }
  const T& operator[](std::size_t index) const { return items_[index]; }
  const T* begin() const { return items_; }
  const T* end() const { return items_ + count_; }

  void Append(const T& item) {
    if (T* room = RoomFor(1)) *room = item;
  }

  // The next `items` elements, already counted, for the caller to write; null when there is no
  // memory.
  T* RoomFor(std::size_t items) {
    if (capacity_ - count_ < items && !GrowFor(items)) return nullptr;
    T* room = items_ + count_;
    count_ += items;
    return room;
  }

  // Forgets the elements behind the first `count` and keeps the capacity. REQUIRES: count <=
  // Count().
  void Shorten(std::size_t count) { count_ = count; }

  // Hands over the array, which the caller releases to the memory it came from; the list is empty
  // afterwards.
  T* Release() {
    T* released = items_;
    items_ = nullptr;
    capacity_ = 0;
    count_ = 0;
    return released;
  }

 private:
  // Null when there is no memory, and where the size in bytes would overflow, which on a 32-bit
  // machine a fill of many strokes gets near to.
  T* NewArray(std::size_t capacity) const {
    if (capacity > static_cast<std::size_t>(PTRDIFF_MAX) / sizeof(T)) return nullptr;
    return static_cast<T*>(memory_->Allocate(capacity * sizeof(T)));
  }

  void ReleaseArray() {
    if (memory_ != nullptr) memory_->Release(items_);
  }

  bool GrowFor(std::size_t items) {
    while (capacity_ - count_ < items) {
      if (!Grow()) return false;
    }
    return true;
  }

  bool Grow() {
    const std::size_t grownCapacity = capacity_ == 0 ? kInitialCapacity : 2 * capacity_;
    T* grown = failed_ || memory_ == nullptr ? nullptr : NewArray(grownCapacity);
    if (grown == nullptr) {
      failed_ = true;
      return false;
    }
    for (std::size_t i = 0; i < count_; ++i) grown[i] = items_[i];
    ReleaseArray();
    items_ = grown;
    capacity_ = grownCapacity;
    return true;
  }

  const Memory* const memory_;  // null: the room is the caller's
  T* items_;
  std::size_t capacity_;
  std::size_t count_ = 0;
  bool failed_;
};

}  // namespace barhatch

#endif
