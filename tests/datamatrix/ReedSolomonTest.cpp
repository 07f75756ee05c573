#include "datamatrix/ReedSolomon.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <set>
#include <vector>

#include "support/EccReference.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

// The error codewords of a block that lies in every stride-th cell of a larger array, whose other
// cells have to stay as they are.
std::vector<int> Encode(const std::vector<int>& data, int errorCodewords, int stride = 1) {
  constexpr std::uint8_t kUnused = 0xEE;
  const std::size_t step = static_cast<std::size_t>(stride);
  const std::size_t elements = data.size() + static_cast<std::size_t>(errorCodewords);
  std::vector<std::uint8_t> cells(elements * step + 100, kUnused);
  for (std::size_t i = 0; i < data.size(); ++i)
    cells[i * step] = static_cast<std::uint8_t>(data[i]);

  BlockCoder(errorCodewords)
      .Encode(cells.data(), static_cast<int>(data.size()), cells.data() + data.size() * step,
              stride);

  for (std::size_t i = 0; i < cells.size(); ++i) {
    const bool isOfBlock = i % step == 0 && i / step < elements;
    if (!isOfBlock) {
      EXPECT_EQ(cells[i], kUnused) << i;
    }
  }
  std::vector<int> error;
  for (std::size_t i = data.size(); i < elements; ++i) error.push_back(cells[i * step]);
  return error;
}

std::vector<int> RandomCodewords(int count, std::mt19937& random) {
  std::vector<int> codewords;
  for (int i = 0; i < count; ++i) codewords.push_back(static_cast<int>(random() % 256));
  return codewords;
}

std::vector<int> Reversed(const std::vector<int>& values) {
  return {values.rbegin(), values.rend()};
}

// {data, error correction} of one block of each size; the longer ones for 144 x 144.
std::set<std::pair<int, int>> BlocksOfAllSizes() {
  std::set<std::pair<int, int>> blocks = {{156, 62}, {155, 62}};
  for (const test::ReferenceSize& size : test::ReferenceSizes()) {
    const int count = test::BlocksOf(size.rows, size.columns);
    if (size.rows != 144) blocks.insert({size.data / count, size.ecc / count});
  }
  return blocks;
}

// ISO/IEC 16022: the symbol of "123456".
TEST(ReedSolomon, PublishedExampleHasItsErrorCodewords) {
  EXPECT_EQ(Encode({142, 164, 186}, 5), (std::vector<int>{114, 25, 5, 88, 102}));
}

// The remainder of the single codeword 1 is the generator polynomial without its leading 1.
TEST(ReedSolomon, GeneratorsForFiveAndSevenAreThePublishedOnes) {
  EXPECT_EQ(Reversed(Encode({1}, 5)), (std::vector<int>{228, 48, 15, 111, 62}));
  EXPECT_EQ(Reversed(Encode({1}, 7)), (std::vector<int>{23, 68, 144, 134, 240, 92, 254}));
}

TEST(ReedSolomon, FieldPolynomialIs12D) {
  EXPECT_EQ(test::FieldPower(2, 8), 0x2D);
  EXPECT_EQ(test::FieldPower(2, 255), 1);
}

TEST(ReedSolomon, GeneratorsOfAllSizesAreProductsOfTheirRoots) {
  for (const auto& [data, errorCodewords] : BlocksOfAllSizes()) {
    std::vector<int> generator = Reversed(Encode({1}, errorCodewords));
    generator.push_back(1);
    EXPECT_EQ(generator, test::GeneratorPolynomial(errorCodewords)) << errorCodewords;
  }
}

TEST(ReedSolomon, EverySingleCodewordIsMultipliedRight) {
  for (int codeword = 0; codeword < 256; ++codeword)
    EXPECT_EQ(Encode({codeword}, 68), test::ErrorCodewords({codeword}, 68)) << codeword;
}

TEST(ReedSolomon, AllZeroDataHasZeroErrorCodewords) {
  EXPECT_EQ(Encode(std::vector<int>(174, 0), 68), std::vector<int>(68, 0));
}

TEST(ReedSolomon, EqualsTheLongDivisionForTheBlocksOfAllSizes) {
  std::mt19937 random(16022);
  for (const auto& [dataCodewords, errorCodewords] : BlocksOfAllSizes()) {
    const std::vector<int> data = RandomCodewords(dataCodewords, random);
    EXPECT_EQ(Encode(data, errorCodewords), test::ErrorCodewords(data, errorCodewords));
  }
}

TEST(ReedSolomon, SyndromesOfTheBlocksOfAllSizesAreZero) {
  std::mt19937 random(253);
  for (const auto& [dataCodewords, errorCodewords] : BlocksOfAllSizes()) {
    std::vector<int> block = RandomCodewords(dataCodewords, random);
    const std::vector<int> error = Encode(block, errorCodewords);
    block.insert(block.end(), error.begin(), error.end());
    EXPECT_EQ(test::Syndromes(block, errorCodewords),
              std::vector<int>(static_cast<std::size_t>(errorCodewords), 0));
    block[0] ^= 1;
    EXPECT_NE(test::Syndromes(block, errorCodewords),
              std::vector<int>(static_cast<std::size_t>(errorCodewords), 0));
  }
}

TEST(ReedSolomon, StrideLeavesTheOtherBlocksAlone) {
  std::mt19937 random(10);
  const std::vector<int> data = RandomCodewords(155, random);
  for (int stride : {1, 2, 4, 6, 8, 10})
    EXPECT_EQ(Encode(data, 62, stride), test::ErrorCodewords(data, 62)) << stride;
}

}  // namespace
}  // namespace barhatch
