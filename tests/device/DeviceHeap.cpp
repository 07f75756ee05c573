#include "device/DeviceHeap.h"

#include <algorithm>
#include <cstring>

namespace barhatch::device {

namespace {

constexpr std::uint8_t kFresh = 0xCD;
constexpr std::uint32_t kFirst = 8;  // 8-byte aligned, not 16
constexpr std::uint32_t kBetween = 32;

}  // namespace

DeviceHeap::DeviceHeap(std::uint32_t start, std::uint32_t size)
    : start_(start), next_(start + kFirst), bytes_(size) {}

std::uint32_t DeviceHeap::Allocate(std::uint32_t size, Form form) {
  ++allocations_;
  if (failFrom_ != 0 && allocations_ >= failFrom_) return 0;
  if (blocks_.empty()) next_ = start_ + kFirst;
  const std::uint64_t taken = (std::uint64_t{size} + kBetween + 15) / 16 * 16;
  if (next_ - start_ + taken > bytes_.size()) return 0;
  const std::uint32_t address = next_;
  next_ += static_cast<std::uint32_t>(taken);
  std::memset(bytes_.data() + (address - start_), kFresh, size);
  blocks_[address] = {size, form};
  liveBytes_ += size;
  peakBytes_ = std::max(peakBytes_, liveBytes_);
  return address;
}

bool DeviceHeap::Release(std::uint32_t address, Form form) {
  const auto block = blocks_.find(address);
  if (block == blocks_.end() || block->second.form != form) return false;
  liveBytes_ -= block->second.size;
  blocks_.erase(block);
  return true;
}

bool DeviceHeap::IsAlive(std::uint32_t address, std::uint32_t size) const {
  auto block = blocks_.upper_bound(address);
  if (block == blocks_.begin()) return false;
  --block;
  return std::uint64_t{address} + size <= std::uint64_t{block->first} + block->second.size;
}

void DeviceHeap::StartWatching() {
  allocations_ = 0;
  peakBytes_ = liveBytes_;
}

}  // namespace barhatch::device
