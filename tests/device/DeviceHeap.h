// The heap of the emulated device: hands out blocks, knows which are alive, and can be told to run
// out of memory. Blocks lie 8-byte aligned and no better, with room between them that belongs to
// nobody; new memory holds 0xCD, so that nothing works by the luck of a zero.
#ifndef BARHATCH_TESTS_DEVICE_DEVICEHEAP_H
#define BARHATCH_TESTS_DEVICE_DEVICEHEAP_H

#include <cstdint>
#include <map>
#include <vector>

namespace barhatch::device {

enum class Form { kScalar, kArray, kMalloc };  // which allocation function a block came from

class DeviceHeap {
 public:
  DeviceHeap(std::uint32_t start, std::uint32_t size);

  // The block's address, or 0 when there is no memory.
  std::uint32_t Allocate(std::uint32_t size, Form form);

  // False unless a live block of that form begins at the address.
  bool Release(std::uint32_t address, Form form);

  // True when the bytes lie inside one live block.
  bool IsAlive(std::uint32_t address, std::uint32_t size) const;

  std::uint32_t Start() const { return start_; }
  std::uint32_t Size() const { return static_cast<std::uint32_t>(bytes_.size()); }
  std::uint8_t* Bytes() { return bytes_.data(); }

  std::uint32_t LiveBlocks() const { return static_cast<std::uint32_t>(blocks_.size()); }
  std::uint32_t LiveBytes() const { return liveBytes_; }

  // Restarts the two figures below.
  void StartWatching();
  std::uint32_t Allocations() const { return allocations_; }  // attempted
  std::uint32_t PeakBytes() const { return peakBytes_; }      // most bytes that lived at once

  // The allocation, counted from the last StartWatching, that fails, and all after it; 0: none.
  void FailFrom(std::uint32_t allocation) { failFrom_ = allocation; }

 private:
  struct Block {
    std::uint32_t size;
    Form form;
  };

  std::uint32_t start_;
  std::uint32_t next_;
  std::vector<std::uint8_t> bytes_;
  std::map<std::uint32_t, Block> blocks_;
  std::uint32_t liveBytes_ = 0;
  std::uint32_t peakBytes_ = 0;
  std::uint32_t allocations_ = 0;
  std::uint32_t failFrom_ = 0;
};

}  // namespace barhatch::device

#endif
