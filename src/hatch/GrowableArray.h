// The one growth rule of the hatcher's lists: a full array is replaced by one of twice the
// capacity. There is no shrinking and no upper limit. Whoever can count its elements first gives
// the count as initial capacity and spares both the copies and the slack.
#ifndef BARHATCH_HATCH_GROWABLEARRAY_H
#define BARHATCH_HATCH_GROWABLEARRAY_H

#include <cstddef>
#include <cstdint>
#include <new>

namespace barhatch {

template <typename T>
class GrowableArray {
 public:
  static constexpr std::size_t kInitialCapacity = 16;

  explicit GrowableArray(std::size_t capacity = kInitialCapacity)
      : items_(NewArray(capacity)),
        capacity_(items_ != nullptr ? capacity : 0),
        failed_(items_ == nullptr) {}
  ~GrowableArray() { delete[] items_; }
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
    while (capacity_ - count_ < items) {
      if (!Grow()) return nullptr;
    }
    T* room = items_ + count_;
    count_ += items;
    return room;
  }

  // Forgets the elements behind the first `count` and keeps the capacity. REQUIRES: count <=
  // Count().
  void Shorten(std::size_t count) { count_ = count; }

  // Hands over the array, which the caller releases with delete[]; the list is empty afterwards.
  T* Release() {
    T* released = items_;
    items_ = nullptr;
    capacity_ = 0;
    count_ = 0;
    return released;
  }

 private:
  // Null when there is no memory. The form that does not throw still ends the program where the
  // size in bytes overflows, which on a 32-bit machine a fill of many strokes gets near to.
  static T* NewArray(std::size_t capacity) {
    if (capacity > static_cast<std::size_t>(PTRDIFF_MAX) / sizeof(T)) return nullptr;
    return new (std::nothrow) T[capacity];
  }

  bool Grow() {
    const std::size_t grownCapacity = capacity_ == 0 ? kInitialCapacity : 2 * capacity_;
    T* grown = failed_ ? nullptr : NewArray(grownCapacity);
    if (grown == nullptr) {
      failed_ = true;
      return false;
    }
    for (std::size_t i = 0; i < count_; ++i) grown[i] = items_[i];
    delete[] items_;
    items_ = grown;
    capacity_ = grownCapacity;
    return true;
  }

  T* items_;
  std::size_t capacity_;
  std::size_t count_ = 0;
  bool failed_;
};

}  // namespace barhatch

#endif
