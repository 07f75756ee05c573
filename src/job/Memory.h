// Where memory comes from: the runtime's operator new[] for the exports, the functions of the host
// for a mark. Null is the only failure.
#ifndef BARHATCH_JOB_MEMORY_H
#define BARHATCH_JOB_MEMORY_H

#include <cstddef>
#include <new>
#include <utility>

namespace barhatch {

struct Memory {
  void* (*allocate)(void* context, std::size_t bytes);
  void (*release)(void* context, void* block);  // not called with null
  void* context;

  void* Allocate(std::size_t bytes) const { return allocate(context, bytes); }
  void Release(void* block) const {
    if (block != nullptr) release(context, block);
  }
};

// What it gives is released by delete[]: hosts get arrays of it.
inline const Memory& RuntimeMemory() {
  static constexpr Memory kMemory = {
      [](void*, std::size_t bytes) -> void* { return operator new[](bytes, std::nothrow); },
      [](void*, void* block) { operator delete[](block); }, nullptr};
  return kMemory;
}

// One block with an owner. T is trivial.
template <typename T>
class Block {
 public:
  Block(const Memory& memory, std::size_t count)
      : memory_(memory), items_(static_cast<T*>(memory.Allocate(count * sizeof(T)))) {}
  ~Block() { memory_.Release(items_); }
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;

  T* get() const { return items_; }
  T* Release() { return std::exchange(items_, nullptr); }

 private:
  const Memory& memory_;
  T* items_;
};

}  // namespace barhatch

#endif
