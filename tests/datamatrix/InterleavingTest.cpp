#include "datamatrix/Interleaving.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "datamatrix/SizeTesting.h"
#include "support/EccReference.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::ReferenceSize;
using test::SizeOf;

std::vector<int> RandomCodewords(int count, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<int> codewords;
  for (int i = 0; i < count; ++i) codewords.push_back(static_cast<int>(random() % 256));
  return codewords;
}

// The stream of data and error codewords; what lies behind it has to stay as it is.
std::vector<int> StreamOf(const std::vector<int>& data, const ReferenceSize& size,
                          Conformance how = Conformance::Device()) {
  constexpr std::uint8_t kUnused = 0xEE;
  std::vector<std::uint8_t> codewords(data.begin(), data.end());
  const std::size_t total = static_cast<std::size_t>(size.data + size.ecc);
  codewords.resize(total + 100, kUnused);
  AddErrorCorrection(SizeOf(size), how, codewords.data());
  for (std::size_t i = total; i < codewords.size(); ++i) EXPECT_EQ(codewords[i], kUnused);
  return std::vector<int>(codewords.begin(),
                          codewords.begin() + static_cast<std::ptrdiff_t>(total));
}

TEST(Interleaving, EqualsDealingCodingAndEmittingForAllSizes) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    const std::vector<int> data = RandomCodewords(size.data, 1u);
    const int blocks = test::BlocksOf(size.rows, size.columns);
    EXPECT_EQ(StreamOf(data, size),
              test::EmittedRoundRobin(test::CodedBlocks(data, size.ecc, blocks)))
        << size.rows << "x" << size.columns;
  }
}

TEST(Interleaving, DataKeepsItsOrder) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    const std::vector<int> data = RandomCodewords(size.data, 2u);
    std::vector<int> stream = StreamOf(data, size);
    stream.resize(data.size());
    EXPECT_EQ(stream, data);
  }
}

// Error codeword j of block b at D + j x blocks + b; in 144 x 144 where D-DM-1 is not in force.
TEST(Interleaving, ErrorCodewordsStandInTheOrderOfTheStandard) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    const std::vector<int> data = RandomCodewords(size.data, 3u);
    const std::vector<int> stream =
        StreamOf(data, size, size.rows == 144 ? Conformance::Published() : Conformance::Device());
    const int blocks = test::BlocksOf(size.rows, size.columns);
    for (int block = 0; block < blocks; ++block) {
      std::vector<int> dataOfBlock;
      for (int i = block; i < size.data; i += blocks)
        dataOfBlock.push_back(data[static_cast<std::size_t>(i)]);
      const std::vector<int> error = test::ErrorCodewords(dataOfBlock, size.ecc / blocks);
      for (int j = 0; j < size.ecc / blocks; ++j)
        EXPECT_EQ(stream[static_cast<std::size_t>(size.data + j * blocks + block)],
                  error[static_cast<std::size_t>(j)]);
    }
  }
}

TEST(DataMatrixDeviations, DDM1ErrorCodewordsOfTheShorterBlocksOf144x144ComeFirst) {
  const ReferenceSize size = test::ReferenceSquares().back();
  ASSERT_EQ(size.rows, 144);
  const std::vector<int> data = RandomCodewords(size.data, 4u);
  const std::vector<int> stream = StreamOf(data, size);
  for (int block = 0; block < 10; ++block) {
    std::vector<int> dataOfBlock;
    for (int i = block; i < 1558; i += 10) dataOfBlock.push_back(data[static_cast<std::size_t>(i)]);
    EXPECT_EQ(dataOfBlock.size(), block < 8 ? 156u : 155u);
    const std::vector<int> error = test::ErrorCodewords(dataOfBlock, 62);
    const int first = block < 8 ? 1560 + block : 1558 + (block - 8);
    for (int j = 0; j < 62; ++j)
      EXPECT_EQ(stream[static_cast<std::size_t>(first + 10 * j)],
                error[static_cast<std::size_t>(j)])
          << block << " " << j;
  }
}

}  // namespace
}  // namespace barhatch
