#include "datamatrix/RootCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

#include "support/EccReference.h"

namespace barhatch::test {
namespace {

// How many error codewords the blocks of the 48 sizes have.
constexpr int kDegrees[] = {5,  7,  10, 11, 12, 14, 15, 18, 20, 22, 24, 27, 28,
                            32, 34, 36, 38, 41, 42, 46, 48, 50, 56, 62, 68};

std::vector<int> RandomBlock(std::mt19937& random, int dataCodewords, int degree) {
  std::vector<int> block;
  for (int i = 0; i < dataCodewords; ++i) block.push_back(static_cast<int>(random() % 256));
  const std::vector<int> errors = ErrorCodewords(block, degree);
  block.insert(block.end(), errors.begin(), errors.end());
  return block;
}

// Sixteen by sixteen, as many as there are.
bool HasAllRoots(const std::vector<int>& block, int degree, int stride = 1) {
  std::vector<std::uint8_t> stream(block.size() * static_cast<std::size_t>(stride), 0xA5);
  for (std::size_t i = 0; i < block.size(); ++i) {
    stream[i * static_cast<std::size_t>(stride)] = static_cast<std::uint8_t>(block[i]);
  }
  const int dataCodewords = static_cast<int>(block.size()) - degree;
  const InterleavedBlock interleaved = {stream.data(), dataCodewords,
                                        stream.data() + dataCodewords * stride, degree, stride};
  for (int tested = 0; tested < degree; tested += 16) {
    if (!RootCheck(tested / 16, std::min(16, degree - tested)).Divides(interleaved)) return false;
  }
  return true;
}

}  // namespace

TEST(RootCheck, BlocksOfTheReferenceHaveAllRoots) {
  std::mt19937 random(1);
  for (const int degree : kDegrees) {
    for (const int stride : {1, 2, 10}) {
      EXPECT_TRUE(HasAllRoots(RandomBlock(random, 30, degree), degree, stride)) << degree;
    }
  }
}

TEST(RootCheck, EveryOtherValueOfEveryCodewordIsNoticed) {
  std::mt19937 random(2);
  for (const int degree : {5, 14, 20, 68}) {
    const std::vector<int> block = RandomBlock(random, 11, degree);
    for (std::size_t at = 0; at < block.size(); ++at) {
      for (int change = 1; change < 256; ++change) {
        std::vector<int> damaged = block;
        damaged[at] ^= change;
        EXPECT_FALSE(HasAllRoots(damaged, degree)) << degree << ", codeword " << at;
      }
    }
  }
}

// The generator polynomial without the factor of one root.
TEST(RootCheck, EachRootIsTestedByItself) {
  for (const int degree : kDegrees) {
    for (int missing = 1; missing <= degree; ++missing) {
      std::vector<int> polynomial = {1};
      for (int exponent = 1; exponent <= degree; ++exponent) {
        if (exponent == missing) continue;
        std::vector<int> next(polynomial.size() + 1, 0);
        for (std::size_t i = 0; i < polynomial.size(); ++i) {
          next[i] ^= polynomial[i];
          next[i + 1] ^= FieldProduct(polynomial[i], FieldPower(2, exponent));
        }
        polynomial = next;
      }
      polynomial.insert(polynomial.begin(), 0);
      EXPECT_FALSE(HasAllRoots(polynomial, degree)) << degree << " without 2^" << missing;
    }
  }
}

TEST(RootCheck, AgreesWithSyndromesOfRandomCodewords) {
  std::mt19937 random(3);
  int zeros = 0;
  for (int round = 0; round < 3000; ++round) {
    std::vector<int> block;
    for (int i = 0; i < 6; ++i) block.push_back(static_cast<int>(random() % 256));
    const bool isZero = Syndromes(block, 1) == std::vector<int>{0};
    zeros += isZero ? 1 : 0;
    EXPECT_EQ(HasAllRoots(block, 1), isZero);
  }
  EXPECT_GT(zeros, 3);
}

}  // namespace barhatch::test
