#include "symbologies/CyclicWeights.h"

#include <gtest/gtest.h>

namespace barhatch {
namespace {

TEST(CyclicWeights, NothingAddedIsZero) { EXPECT_EQ(CyclicWeightedSum(1, 20).Modulo(47), 0); }

TEST(CyclicWeights, WeightsRiseFromTheFirstAndComeRoundAfterTheLast) {
  CyclicWeightedSum sum(2, 4);
  int total = 0;
  for (int weight : {2, 3, 4, 2, 3, 4, 2}) {
    sum.Add(10);
    total += 10 * weight;
    EXPECT_EQ(sum.Modulo(1000), total);
  }
}

TEST(CyclicWeights, AValueOfZeroUsesUpAWeight) {
  CyclicWeightedSum sum(1, 9);
  sum.Add(0);
  sum.Add(5);
  EXPECT_EQ(sum.Modulo(1000), 10);
}

TEST(CyclicWeights, RemainderIsThatOfTheWholeSum) {
  CyclicWeightedSum sum(1, 10);
  for (int value : {3, 2, 1}) sum.Add(value);
  EXPECT_EQ(sum.Modulo(11), 10);
  EXPECT_EQ(sum.Modulo(7), 3);
}

TEST(CyclicWeights, LongestTextOfGreatestValuesStaysExact) {
  CyclicWeightedSum sum(1, 20);
  long long total = 0;
  for (int i = 0; i < 6240; ++i) {
    sum.Add(46);
    total += 46LL * (i % 20 + 1);
  }
  EXPECT_EQ(sum.Modulo(1 << 30), total);
}

}  // namespace
}  // namespace barhatch
