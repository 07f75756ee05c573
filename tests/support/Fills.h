// Fill buffers in tests: owned, and compared as plain vectors of doubles.
#ifndef BARHATCH_TESTS_SUPPORT_FILLS_H
#define BARHATCH_TESTS_SUPPORT_FILLS_H

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "barhatch.h"

namespace barhatch::test {

struct FillRelease {
  void operator()(FillBufferInfo* fill) const { FreeBarcodeData(fill); }
};
using OwnedFill = std::unique_ptr<FillBufferInfo, FillRelease>;

inline std::vector<double> Doubles(const FillBufferInfo& fill) {
  return std::vector<double>(fill.FilledArray, fill.FilledArray + fill.BufferLength);
}

// The doubles as bit patterns, so that 0.0 and -0.0 differ and the last bit counts.
inline std::vector<std::uint64_t> Bits(const std::vector<double>& values) {
  std::vector<std::uint64_t> bits(values.size());
  if (!values.empty()) std::memcpy(bits.data(), values.data(), values.size() * sizeof(double));
  return bits;
}

}  // namespace barhatch::test

#endif
