// The deviations from the published standards, by id, and the question that the code asks at each
// line that deviates.
//
//   if (character == '/' && how.Deviates(Deviation::kD39_2)) row = '%';
//
// Where the answer is yes the deviation is in force, and the mark has met it: a result can name the
// deviations it contains. A device mark has all of them in force, a published one none.
#ifndef BARHATCH_JOB_DEVIATIONS_H
#define BARHATCH_JOB_DEVIATIONS_H

#include <cstdint>

namespace barhatch {

// The rows of docs/deviations.md, in its order: D-39-1 is kD39_1.
enum class Deviation : std::uint8_t {
  kD39_1,
  kD39_2,
  kD39_3,
  kD39_4,
  kD39_5,
  kD39_6,
  kD128_1,
  kD128_2,
  kD128_3,
  kD128_4,
  kD25_1,
  kD25_2,
  kD93_1,
  kD93_2,
  kD93_3,
  kD93_4,
  kDMSI_1,
  kDCB_1,
  kDCB_2,
  kDCB_3,
  kD11_1,
  kD11_2,
  kDEAN_1,
  kDEAN_2,
  kDEAN_3,
  kDEAN_4,
  kDDM_1,
  kDDM_2,
  kDDM_3,
  kDDM_4,
  kDDM_5,
  kDDM_6,
  kDDM_7,
  kDDM_8,
  kDDM_9,
  kDDM_10,
  kNone,  // no deviation: never in force
};

constexpr int kDeviationCount = static_cast<int>(Deviation::kNone);

// Two words instead of one of 64 bits: the device tests and sets a bit of a word at once.
class DeviationSet {
 public:
  constexpr DeviationSet() = default;
  static constexpr DeviationSet All() {
    DeviationSet all;
    for (int i = 0; i < kDeviationCount; ++i) all.Add(static_cast<Deviation>(i));
    return all;
  }

  constexpr bool Has(Deviation id) const { return (words_[WordOf(id)] & BitOf(id)) != 0; }
  constexpr void Add(Deviation id) { words_[WordOf(id)] |= BitOf(id); }
  constexpr void Remove(Deviation id) { words_[WordOf(id)] &= ~BitOf(id); }

  // Bit n is row n of the register, from 0.
  constexpr std::uint64_t Bits() const { return std::uint64_t{words_[1]} << 32 | words_[0]; }

 private:
  static constexpr int WordOf(Deviation id) { return static_cast<int>(id) / 32; }
  static constexpr std::uint32_t BitOf(Deviation id) { return 1u << static_cast<int>(id) % 32; }

  std::uint32_t words_[2] = {};
};

// By which rules one mark is made, and which deviations it has met so far.
class Conformance {
 public:
  constexpr explicit Conformance(DeviationSet inForce) : inForce_(inForce) {}
  static constexpr Conformance Device() { return Conformance(DeviationSet::All()); }
  static constexpr Conformance Published() { return Conformance(DeviationSet()); }

  // Asked at the line that deviates: true where the deviation is in force, and then it is met.
  constexpr bool Deviates(Deviation id) {
    if (!inForce_.Has(id)) return false;
    met_.Add(id);
    return true;
  }

  // For a choice that is made before it is known whether it touches the mark. Meet says that it
  // did.
  constexpr bool IsInForce(Deviation id) const { return inForce_.Has(id); }
  constexpr void Meet(Deviation id) {
    if (inForce_.Has(id)) met_.Add(id);
  }

  constexpr DeviationSet Met() const { return met_; }

  // What was met on a way that was given up is not in the mark.
  constexpr void ForgetMet() { met_ = DeviationSet(); }

 private:
  DeviationSet inForce_;
  DeviationSet met_;
};

}  // namespace barhatch

#endif
