// Reed-Solomon error correction of ECC 200 (ISO/IEC 16022): the field GF(256) with polynomial
// x^8 + x^5 + x^3 + x^2 + 1 (0x12D), generator polynomials with the roots 2^1 to 2^k. The data
// 142 164 186 ("123456") with five error codewords is followed by 114 25 5 88 102.
//
// The tables of the field and the generator polynomials are computed when the library is compiled.
#ifndef BARHATCH_DATAMATRIX_REEDSOLOMON_H
#define BARHATCH_DATAMATRIX_REEDSOLOMON_H

#include <cstdint>

namespace barhatch {

// Codes the blocks of one symbol, which all have the same number of error codewords. The multiples
// of the generator are tabled by the two halves of the leading codeword, so that a step of the
// division is two additions of whole words, four codewords at a time.
class BlockCoder {
 public:
  // errorCodewords: as many as a block of some symbol size has: 5, 7, 10, 11, 12, 14, 18, 20, 24,
  // 28, 36, 42, 48, 56, 62, 68; of the rectangles of ISO/IEC 21471 also 15, 22, 27, 32, 34, 38, 41,
  // 46, 50.
  explicit BlockCoder(int errorCodewords);

  // Writes the error codewords of one block. Codeword i of the data is data[i * stride], error
  // codeword i errors[i * stride], so that interleaved blocks are coded where they stand.
  void Encode(const std::uint8_t* data, int dataCodewords, std::uint8_t* errors, int stride) const;

 private:
  static constexpr int kMaxDegree = 68;
  static constexpr int kMaxWords = kMaxDegree / 4;

  // The coefficients of a polynomial from x^(k-1) down, four to a word, the first in the highest
  // byte; those behind the last one are 0.
  struct Polynomial {
    std::uint32_t words[kMaxWords];
  };

  void Tabulate(Polynomial (&multiples)[16], int lowestFactor) const;

  const int degree_;
  const int words_;
  Polynomial lowMultiples_[16];   // by 0 to 15
  Polynomial highMultiples_[16];  // by 0, 16, ... 240
};

}  // namespace barhatch

#endif
