// Jobs of the mark interface for tests, their results with an owner, and a host's memory that
// counts and can run out.
#ifndef BARHATCH_TESTS_MARK_MARKTESTING_H
#define BARHATCH_TESTS_MARK_MARKTESTING_H

#include <cstdint>
#include <cstring>
#include <map>
#include <string>

#include "barhatch_mark.h"

namespace barhatch::test {

// Every symbology that this version marks.
constexpr std::int32_t kMarkSymbologies[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11,
                                             12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 100};
constexpr std::int32_t kMarkPatterns[] = {0, 1, 2, 3, 5, 6};

// A text that the symbology takes by the book and on the device.
inline const char* PlainTextOf(std::int32_t symbology) {
  static constexpr const char* kTexts[] = {
      "A40156B",        "ABCD-123",          "ABCD-123",     "950110153100",   "1234567",
      "Lot 123456-A",   "LOT 123456-A",      "Lot 123456-A", "12345678901234", "01234567890",
      "0123456",        "123-45678",         "9501234",      "0123456789012",  "0123456789051234",
      "97713845240112", "97807798773054321", "950123412",    "950123454321",   "012345612",
      "012345654321",   "12345678",          "Lot 12-A"};
  return symbology == BARHATCH_DATA_MATRIX ? "12345678" : kTexts[symbology];
}

// A job of sizes that make sense: 1 a module, 8 high, strokes 0.5 apart. The text outlives it.
inline BarhatchJob JobOf(std::int32_t symbology, const char* text,
                         std::int32_t conformance = BARHATCH_DEVICE) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = symbology;
  job.conformance = conformance;
  job.text = text;
  job.x_dimension = 1.0;
  if (symbology != BARHATCH_DATA_MATRIX) job.height = 8.0;
  job.gap = 0.5;
  return job;
}

inline BarhatchJob PlainJobOf(std::int32_t symbology) {
  return JobOf(symbology, PlainTextOf(symbology));
}

inline BarhatchJob PublishedJobOf(std::int32_t symbology, const char* text) {
  return JobOf(symbology, text, BARHATCH_PUBLISHED);
}

// With a length, for texts with zeros in them.
inline BarhatchJob LongJobOf(std::int32_t symbology, const std::string& text,
                             std::int32_t conformance = BARHATCH_DEVICE) {
  BarhatchJob job = JobOf(symbology, text.data(), conformance);
  job.length = text.size();
  return job;
}

// Marks a job and gives the result back at the end.
class Mark {
 public:
  explicit Mark(const BarhatchJob& job) {
    std::memset(&result_, 0x5A, sizeof result_);  // what the library does not write shows
    result_.size = sizeof result_;
    returned_ = BarhatchMark(&job, &result_);
  }
  ~Mark() { BarhatchRelease(&result_); }
  Mark(const Mark&) = delete;
  Mark& operator=(const Mark&) = delete;

  const BarhatchResult* operator->() const { return &result_; }
  const BarhatchResult& Result() const { return result_; }
  std::int32_t Returned() const { return returned_; }

  bool IsOk() const { return result_.status == BARHATCH_OK; }
  std::string Message() const { return result_.message; }
  std::size_t Doubles() const {
    return result_.strokes_count * (result_.kind == BARHATCH_DOTS ? 2 : 4);
  }

  // "?" where a reader reads nothing.
  std::string Reading() const {
    return result_.reading == nullptr ? "?" : std::string(result_.reading, result_.reading_length);
  }

 private:
  BarhatchResult result_;
  std::int32_t returned_;
};

// "4 at 3+1": status, position and extent.
inline std::string PlaceOf(const Mark& mark) {
  return std::to_string(mark->status) + " at " + std::to_string(mark->position) + "+" +
         std::to_string(mark->extent);
}

// A host's memory: every block that it gives is known to it until it comes back.
class HostMemory {
 public:
  // failAt: the allocation that fails, counted from 1; 0 for none.
  explicit HostMemory(std::size_t failAt = 0) : failAt_(failAt) {}
  ~HostMemory() {
    for (const auto& block : live_) operator delete(block.first);
  }
  HostMemory(const HostMemory&) = delete;
  HostMemory& operator=(const HostMemory&) = delete;

  BarhatchJob& Serve(BarhatchJob& job) {
    job.allocate = [](void* context, std::size_t bytes) {
      return static_cast<HostMemory*>(context)->Allocate(bytes);
    };
    job.release = [](void* context, void* block) {
      static_cast<HostMemory*>(context)->Release(block);
    };
    job.context = this;
    return job;
  }

  std::size_t Allocations() const { return allocations_; }
  std::size_t LiveBlocks() const { return live_.size(); }
  std::size_t LiveBytes() const {
    std::size_t sum = 0;
    for (const auto& block : live_) sum += block.second;
    return sum;
  }
  std::size_t Strangers() const { return strangers_; }  // blocks released that are none of its own

 private:
  void* Allocate(std::size_t bytes) {
    if (++allocations_ == failAt_) return nullptr;
    void* const block = operator new(bytes);
    std::memset(block, 0x5A, bytes);
    live_[block] = bytes;
    return block;
  }

  void Release(void* block) {
    if (live_.erase(block) == 0) {
      ++strangers_;
    } else {
      operator delete(block);
    }
  }

  std::size_t failAt_;
  std::size_t allocations_ = 0;
  std::size_t strangers_ = 0;
  std::map<void*, std::size_t> live_;
};

}  // namespace barhatch::test

#endif
