// Calls of the exports with failing allocations: each gives null or the complete result, leaks
// nothing, and leaves the settings as the undisturbed call leaves them. Needs AllocationProbe.cpp
// in the program.
#ifndef BARHATCH_TESTS_SUPPORT_FAULTEDCALLS_H
#define BARHATCH_TESTS_SUPPORT_FAULTEDCALLS_H

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <ostream>

#include "barhatch.h"
#include "support/AllocationProbe.h"

namespace barhatch::test {

// What a call gave, without memory of its own: how much, and a checksum (FNV-1a) over all of it.
struct Outcome {
  bool isNull = true;
  std::size_t count = 0;
  std::uint64_t checksum = 14695981039346656037U;

  void Add(const void* bytes, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
      checksum = (checksum ^ static_cast<const unsigned char*>(bytes)[i]) * 1099511628211U;
    }
  }
  bool operator==(const Outcome& other) const {
    return isNull == other.isNull && count == other.count && checksum == other.checksum;
  }
};

inline std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  if (outcome.isNull) return out << "null";
  return out << outcome.count << " items, checksum " << outcome.checksum;
}

// Both copy and release what the library gave.
inline Outcome TakeString(char* letters) {
  Outcome outcome;
  if (letters == nullptr) return outcome;
  outcome.isNull = false;
  outcome.count = std::strlen(letters);
  outcome.Add(letters, outcome.count);
  delete[] letters;
  return outcome;
}

inline Outcome TakeFill(FillBufferInfo* fill) {
  Outcome outcome;
  if (fill == nullptr) return outcome;
  outcome.isNull = false;
  outcome.count = static_cast<std::size_t>(fill->BufferLength);
  outcome.Add(&fill->FillingShapeType, sizeof fill->FillingShapeType);
  if (fill->FilledArray != nullptr) {
    outcome.Add(fill->FilledArray, outcome.count * sizeof(double));
    outcome.Add(&fill->FillHeight, sizeof fill->FillHeight);
    outcome.Add(&fill->FillWidth, sizeof fill->FillWidth);
  }
  FreeBarcodeData(fill);
  return outcome;
}

using Call = std::function<Outcome()>;

// The settings as a host can see them: what they make of the host's own string and of their text.
struct VisibleSettings {
  Outcome text = TakeString(GenerateBarcodeString());
  Outcome hatched = TakeFill(HatchBarcodeString("AaBbA"));

  bool operator==(const VisibleSettings& other) const {
    return text == other.text && hatched == other.hatched;
  }
};

inline std::size_t AllocationsOf(const Call& call, const Outcome& undisturbed) {
  AllocationProbe probe;
  EXPECT_EQ(call(), undisturbed);
  EXPECT_EQ(probe.LiveBlocks(), 0u);
  return probe.Allocations();
}

// Returns the number of allocations that the call makes; each of them has failed, alone and with
// all later ones.
inline std::size_t ExpectRobust(const Call& call) {
  const Outcome undisturbed = call();
  const VisibleSettings settings;
  const std::size_t allocations = AllocationsOf(call, undisturbed);
  for (const Shortage shortage : {Shortage::kFromThereOn, Shortage::kThatOneOnly}) {
    for (std::size_t n = 1; n <= allocations + 1; ++n) {
      SCOPED_TRACE(testing::Message() << "allocation " << n << " of " << allocations);
      Outcome outcome;
      {
        const AllocationProbe probe(n, shortage);
        outcome = call();
        EXPECT_EQ(probe.LiveBlocks(), 0u) << "a leak";
      }
      EXPECT_EQ(outcome, n > allocations ? undisturbed : Outcome{});
      EXPECT_TRUE(VisibleSettings() == settings) << "other settings than without the failure";
      EXPECT_EQ(call(), undisturbed) << "the next call";
    }
  }
  return allocations;
}

}  // namespace barhatch::test

#endif
