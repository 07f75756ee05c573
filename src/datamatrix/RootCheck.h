// Error correction judged as a reader does: the polynomial of a block, its data and error codewords
// from the highest power down, is 0 at each of the roots 2^1 to 2^n in GF(256) with the polynomial
// 0x12D. These values are the syndromes of the block.
//
// Eight roots are tested at once: they are roots where the product of their eight factors divides
// the polynomial. Products come by shifting and adding, without logarithms.
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
  // The first 1 to 8 of eight roots: 2^1 to 2^8 are the eight 0, 2^65 to 2^72 the eight 8, the
  // last.
  RootCheck(int eight, int count);

  // True where all of them are roots of the block.
  bool Divides(const InterleavedBlock& block) const;

 private:
  std::uint64_t Divide(std::uint64_t remainder, const std::uint8_t* codewords, int count,
                       int stride) const;

  // The product without its highest power, times 0 to 15 and times 0, 16, ... 240. The coefficient
  // of the next power is the highest byte.
  std::uint64_t low_[16];
  std::uint64_t high_[16];
};

}  // namespace barhatch

#endif
