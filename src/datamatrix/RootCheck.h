// Error correction judged as a reader does: the polynomial of a block, its data and error codewords
// from the highest power down, is 0 at each of the roots 2^1 to 2^n in GF(256) with the polynomial
// 0x12D. These values are the syndromes of the block.
//
// Sixteen roots are tested at once, in two eights: eight are roots where the product of their
// factors divides the polynomial. Products come by shifting and adding, without logarithms.
#ifndef BARHATCH_DATAMATRIX_ROOTCHECK_H
#define BARHATCH_DATAMATRIX_ROOTCHECK_H

#include <cstdint>

namespace barhatch {

// One block in a stream of codewords, each `stride` behind the other.
struct InterleavedBlock {
  const std::uint8_t* data;
  int dataCodewords;
  const std::uint8_t* errors;
  int errorCodewords;
  int stride;
};

class RootCheck {
 public:
  // The first 1 to 16 of sixteen roots: 2^1 to 2^16 are the sixteen 0, 2^65 to 2^80 the last, 4.
  RootCheck(int sixteen, int count);

  // True where all of them are roots of the block.
  bool Divides(const InterleavedBlock& block) const;

 private:
  // The product of up to eight factors without its highest power, times 0 to 15 and times 0, 16,
  // ... 240. The coefficient of the next power is the highest byte. Of no factors all are 0.
  struct EightRoots {
    EightRoots(int eight, int count);

    // The remainder with the next codeword behind it.
    std::uint64_t Next(std::uint64_t remainder, std::uint8_t codeword) const {
      const std::uint64_t leading = remainder >> 56 ^ codeword;
      return remainder << 8 ^ low[leading & 0xF] ^ high[leading >> 4];
    }

    std::uint64_t low[16];
    std::uint64_t high[16];
  };

  struct Remainders {
    std::uint64_t first;
    std::uint64_t second;
  };

  // Two remainders that do not wait for each other.
  Remainders Divide(Remainders left, const std::uint8_t* codewords, int count, int stride) const;

  EightRoots first_;
  EightRoots second_;
};

}  // namespace barhatch

#endif
