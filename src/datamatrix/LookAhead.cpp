#include "datamatrix/LookAhead.h"

#include <cassert>

namespace barhatch {

namespace {

constexpr Mode kModeOfColumn[kThirdsColumnCount] = {Mode::kC40, Mode::kText, Mode::kX12};

constexpr int CeilOfQuotient(int dividend, int divisor) {
  return (dividend + divisor - 1) / divisor;
}

// What the modes start from: nothing for the one that is in force, for another the latch and,
// outside ASCII, the unlatch. D-DM-2: published 1 for ASCII from another mode, as it has no latch,
// and a quarter more for Base 256.
constexpr int StartCount(Mode mode, Mode current) {
  if (mode == current) return 0;
  return current == Mode::kAscii ? 1 : 2;
}

bool IsBelowAllOthers(const ModeCounts& counts, Mode candidate) {
  for (int mode = 1; mode <= 6; ++mode) {
    if (mode != static_cast<int>(candidate) && counts.counts[mode] <= counts[candidate]) {
      return false;
    }
  }
  return true;
}

// The ASCII codewords of a text, in halves.
class AsciiHalves {
 public:
  void Add(AsciiRule rule) {
    if (rule == AsciiRule::kHalf) {
      ++halves_;
    } else {
      halves_ = (rule == AsciiRule::kRoundUp ? halves_ + 1 : halves_) / 2 * 2 + 2;
    }
  }
  int RoundedUp() const { return (halves_ + 1) / 2; }

 private:
  int halves_ = 0;
};

}  // namespace

Mode ChooseMode(const ModeCounts& counts) {
  Mode lowest = Mode::kAscii;
  bool isShared = false;
  for (int mode = 2; mode <= 6; ++mode) {
    const int difference = counts.counts[mode] - counts[lowest];
    if (difference < 0) lowest = static_cast<Mode>(mode);
    if (difference <= 0) isShared = difference == 0;
  }
  return isShared && lowest != Mode::kAscii ? Mode::kC40 : lowest;
}

// D-DM-2: the sums run to the end of the text, by the weights of LookAheadWeights.h alone.
LookAhead::LookAhead(const char16_t* text, std::size_t length)
    : text_(text),
      length_(length),
      doubleSums_{
          {text, length, kC40Thirds}, {text, length, kTextThirds}, {text, length, kX12Thirds}} {
  assert(length <= ThirdsSum::kLongestText);
  AsciiHalves ascii;
  for (std::size_t i = 0; i < length; ++i) {
    const LookAheadWeights& weights = WeightsOf(text[i]);
    ascii.Add(weights.ascii);
    for (int column = 0; column < kThirdsColumnCount; ++column) {
      thirds_[column] += weights.thirds[column];
    }
    edifactQuarters_ += weights.edifactQuarters;
  }
  ascii_ = ascii.RoundedUp();
  work_ += static_cast<std::uint32_t>(length);
}

// A run of digits costs half its length, rounded up at the end of the text and by most characters
// behind it, down by the others. So every second digit taken is the one that lowers the sum.
void LookAhead::TakeDigit() {
  while (digitsEnd_ < length_ && ClassOf(text_[digitsEnd_]) == CharacterClass::kDigit) {
    ++digitsEnd_;
    ++work_;
  }
  const bool isRoundedDown =
      digitsEnd_ < length_ && WeightsOf(text_[digitsEnd_]).ascii == AsciiRule::kTruncate;
  const bool isOdd = (digitsEnd_ - position_) % 2 != 0;
  if (isOdd != isRoundedDown) --ascii_;
}

void LookAhead::Take(char16_t character) {
  const LookAheadWeights& weights = WeightsOf(character);
  if (digitsEnd_ < position_) digitsEnd_ = position_;
  if (weights.ascii == AsciiRule::kHalf) {
    TakeDigit();
  } else {
    --ascii_;
  }
  for (int column = 0; column < kThirdsColumnCount; ++column) {
    thirds_[column] -= weights.thirds[column];
  }
  edifactQuarters_ -= weights.edifactQuarters;
  ++position_;
  ++work_;
}

ModeCounts LookAhead::CountsFrom(Mode current) const {
  ModeCounts counts{};
  counts[Mode::kAscii] = StartCount(Mode::kAscii, current) + ascii_;
  counts[Mode::kBase256] =
      StartCount(Mode::kBase256, current) + static_cast<int>(length_ - position_);
  counts[Mode::kEdifact] =
      StartCount(Mode::kEdifact, current) + CeilOfQuotient(edifactQuarters_, 4);
  for (int column = 0; column < kThirdsColumnCount; ++column) {
    const Mode mode = kModeOfColumn[column];
    counts[mode] = StartCount(mode, current) + CeilOfQuotient(thirds_[column], 3);
  }
  return counts;
}

bool LookAhead::IsSettled(const ModeCounts& counts, unsigned whole, Mode mode) {
  ModeCounts behind = counts;
  ++behind[mode];
  if (mode == Mode::kAscii || IsBelowAllOthers(behind, mode)) return true;
  for (unsigned raised = whole; raised != 0; raised = (raised - 1) & whole) {
    ModeCounts raisedCounts = counts;
    for (int column = 0; column < kThirdsColumnCount; ++column) {
      raisedCounts[kModeOfColumn[column]] += static_cast<int>(raised >> column & 1);
    }
    if (ChooseMode(raisedCounts) != mode) return false;
  }
  return true;
}

Mode LookAhead::ModeFor(std::size_t position, Mode current) {
  if (position > length_) return current;
  while (position_ < position) Take(text_[position_]);
  unsigned whole = 0;
  for (int column = 0; column < kThirdsColumnCount; ++column) {
    if (thirds_[column] % 3 == 0) whole |= 1u << column;
  }
  ModeCounts counts = CountsFrom(current);
  const Mode mode = ChooseMode(counts);
  if (IsSettled(counts, whole, mode)) return mode;
  for (int column = 0; column < kThirdsColumnCount; ++column) {
    const Mode ofColumn = kModeOfColumn[column];
    if ((whole >> column & 1) != 0 &&
        doubleSums_[column].ExceedsExactSum(position, StartCount(ofColumn, current))) {
      ++counts[ofColumn];
    }
  }
  return ChooseMode(counts);
}

std::uint32_t LookAhead::Work() const {
  std::uint32_t work = work_;
  for (const ThirdsSum& sum : doubleSums_) work += sum.Work();
  return work;
}

}  // namespace barhatch
