// Weighted check sums of Code 93, Code 11 and MSI: the rightmost character has the first weight,
// each further one to the left the next, and after the last weight the first comes round again.
// The values 1, 2, 3 with weights from 1 to 10 give 3 x 1 + 2 x 2 + 1 x 3 = 10.
#ifndef BARHATCH_SYMBOLOGIES_CYCLICWEIGHTS_H
#define BARHATCH_SYMBOLOGIES_CYCLICWEIGHTS_H

namespace barhatch {

class CyclicWeightedSum {
 public:
  constexpr CyclicWeightedSum(int firstWeight, int lastWeight)
      : firstWeight_(firstWeight), lastWeight_(lastWeight), weight_(firstWeight) {}

  // Takes in the value of the next character, from the right. A character without a value is not
  // added at all, and then uses up no weight. The longest text (6238 values of at most 46 with
  // weights of at most 20) stays below 2^23.
  constexpr void Add(int value) {
    sum_ += value * weight_;
    weight_ = weight_ == lastWeight_ ? firstWeight_ : weight_ + 1;
  }

  constexpr int Modulo(int modulus) const { return sum_ % modulus; }

 private:
  int firstWeight_;
  int lastWeight_;
  int weight_;
  int sum_ = 0;
};

}  // namespace barhatch

#endif
