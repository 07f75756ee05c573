#include "support/AllocationProbe.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace barhatch::test {

namespace {

enum class Form : std::uint32_t {
  kScalar = 0x5CA1A400,
  kArray = 0xA44A4A00,
  kReleased = 0xDEADDEAD
};

struct alignas(16) Header {
  Form form;
  bool watched;
  std::size_t size;
};

bool watching = false;
std::size_t failFrom = 0;  // from this attempt to that one; none when they are 0
std::size_t failUntil = 0;
std::size_t attempted = 0;
std::size_t liveBlocks = 0;
std::size_t liveBytes = 0;
std::size_t peakBytes = 0;

void Count(Header& header) {
  header.watched = watching;
  if (!watching) return;
  ++liveBlocks;
  liveBytes += header.size;
  if (liveBytes > peakBytes) peakBytes = liveBytes;
}

void* Allocate(std::size_t size, Form form) noexcept {
  if (watching && ++attempted >= failFrom && attempted <= failUntil) return nullptr;
  if (size > PTRDIFF_MAX - sizeof(Header)) return nullptr;
  auto* header = static_cast<Header*>(std::malloc(sizeof(Header) + size));
  if (header == nullptr) return nullptr;
  header->form = form;
  header->size = size;
  Count(*header);
  return header + 1;
}

void Release(void* memory, Form form) noexcept {
  if (memory == nullptr) return;
  Header* header = static_cast<Header*>(memory) - 1;
  if (header->form != form) {
    std::fprintf(stderr, "memory released in another form than it was allocated in, or twice\n");
    std::abort();
  }
  header->form = Form::kReleased;
  if (header->watched) {
    --liveBlocks;
    liveBytes -= header->size;
  }
  std::free(header);
}

void* AllocateOrThrow(std::size_t size, Form form) {
  if (void* memory = Allocate(size, form)) return memory;
  throw std::bad_alloc();
}

}  // namespace

AllocationProbe::AllocationProbe(std::size_t failAt, Shortage shortage) {
  const bool goesOn = failAt != 0 && shortage == Shortage::kFromThereOn;
  failFrom = failAt;
  failUntil = goesOn ? SIZE_MAX : failAt;
  attempted = liveBlocks = liveBytes = peakBytes = 0;
  watching = true;
}

AllocationProbe::~AllocationProbe() { watching = false; }

std::size_t AllocationProbe::Allocations() const { return attempted; }
std::size_t AllocationProbe::LiveBlocks() const { return liveBlocks; }
std::size_t AllocationProbe::LiveBytes() const { return liveBytes; }
std::size_t AllocationProbe::PeakBytes() const { return peakBytes; }

}  // namespace barhatch::test

using barhatch::test::Allocate;
using barhatch::test::AllocateOrThrow;
using barhatch::test::Form;
using barhatch::test::Release;

void* operator new(std::size_t size) { return AllocateOrThrow(size, Form::kScalar); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size, Form::kArray); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size, Form::kScalar);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size, Form::kArray);
}
void operator delete(void* memory) noexcept { Release(memory, Form::kScalar); }
void operator delete[](void* memory) noexcept { Release(memory, Form::kArray); }
void operator delete(void* memory, std::size_t) noexcept { Release(memory, Form::kScalar); }
void operator delete[](void* memory, std::size_t) noexcept { Release(memory, Form::kArray); }
void operator delete(void* memory, const std::nothrow_t&) noexcept {
  Release(memory, Form::kScalar);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
  Release(memory, Form::kArray);
}
