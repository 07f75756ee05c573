// The look-ahead's count of one mode whose weights are thirds (C40, Text or X12), over the rest of
// the text.
//
// The count is defined as a sum of 2/3, 4/3 and 10/3 in double precision, character by character,
// rounded up at the end. None of the three is a double, so a sum that should be whole may come out
// a hair above and be rounded up to one more: 1.0 and nine times 2/3 make 7 + 8.9e-16, which
// becomes 8. Such sums decide between modes, so symbols depend on them ("0A0 0 aa" is the shortest
// text).
//
// Hence two figures. The exact sum, in integers, tells the rounded count unless the sum is whole:
// the error of the sum in doubles stays below 1e-7, far from the 1/3 to the next whole number. Only
// for a whole sum the order of the additions matters, and then their result is found without making
// them all: as long as a sum stays between two powers of two, every addition of 2/3 adds the same
// double, 2/3 rounded to the spacing of the doubles there (and so do 4/3 and 10/3). What lies
// between two powers of two is therefore added with one multiplication for each of the three
// weights, only the characters at a power of two one by one. Where a sum passes a power of two
// moves on with the position; the places are kept and follow it, which makes the cost linear in the
// text for any series of positions, whereas adding up the rest at every position is quadratic.
#ifndef BARHATCH_DATAMATRIX_THIRDSSUM_H
#define BARHATCH_DATAMATRIX_THIRDSSUM_H

#include <cstddef>
#include <cstdint>

#include "datamatrix/LookAheadWeights.h"

namespace barhatch {

class ThirdsSum {
 public:
  // 2 + 4800 x 10/3 = 16002 < 2^14
  static constexpr std::size_t kLongestText = 4800;

  // REQUIRES: length <= kLongestText. The text is not copied.
  ThirdsSum(const char16_t* text, std::size_t length, ThirdsColumn column)
      : text_(text), length_(length), column_(column) {}

  // True when `start` and the weights of the characters from `position` to the end of the text,
  // added one by one in double precision, come out above the whole number that they should be.
  // `start`: 0, 1 or 2. REQUIRES: the exact sum is whole; positions do not decrease from call to
  // call; position <= length.
  bool ExceedsExactSum(std::size_t position, int start);

  // Characters looked at so far, each as often as it was looked at.
  std::uint32_t Work() const { return work_; }

 private:
  // Sums below 2^3 are added up one by one: two doubles may be equally near there, so that the
  // result of an addition depends on more than the weight. No sum reaches 2^14.
  static constexpr int kFirstPower = 3;
  static constexpr int kLastPower = 14;
  static constexpr int kPassCount = kLastPower - kFirstPower + 1;

  // Characters by weight.
  struct Tally {
    std::uint16_t singles = 0;  // 2/3
    std::uint16_t doubles = 0;  // 4/3
    std::uint16_t leaves = 0;   // 10/3
    int Thirds() const { return 2 * singles + 4 * doubles + 10 * leaves; }
  };

  // The characters from begin to end bring the sum above a power of two, and one less would not; or
  // end is the end of the text, where the sum does not get so far.
  struct Pass {
    std::uint16_t begin = 0;
    std::uint16_t end = 0;
    Tally tally;
  };

  int ThirdsAt(std::size_t index) const { return WeightsOf(text_[index]).thirds[column_]; }
  void Count(Tally& tally, std::size_t index, int sign);
  void MoveBegin(Pass& pass, std::size_t position);
  void MoveEnd(Pass& pass, int limitThirds);
  const Pass& MovePass(int power, std::size_t position, int start, const Pass& before);
  double AddOneByOne(double sum, std::size_t begin, std::size_t end);
  double AddBetween(double sum, const Pass& from, const Pass& to);

  const char16_t* text_;
  std::size_t length_;
  ThirdsColumn column_;
  std::uint32_t work_ = 0;
  Pass passes_[kPassCount];
};

}  // namespace barhatch

#endif
