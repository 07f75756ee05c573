// Reed-Solomon error correction of ECC 200 (ISO/IEC 16022): the field GF(256) with polynomial
// x^8 + x^5 + x^3 + x^2 + 1 (0x12D), generator polynomials with the roots 2^1 to 2^k. The data
// 142 164 186 ("123456") with five error codewords is followed by 114 25 5 88 102.
//
// The tables of the field and the generator polynomials are computed when the library is compiled.
#ifndef BARHATCH_DATAMATRIX_REEDSOLOMON_H
#define BARHATCH_DATAMATRIX_REEDSOLOMON_H

#include <cstdint>

namespace barhatch {

// Writes the error codewords of one block right behind its data.
//   block           codeword i of the block is block[i * stride], so that interleaved blocks are
//                   coded where they stand
//   errorCodewords  as many as a block of some symbol size has (5, 7, 10, 11, 12, 14, 18, 20, 24,
//                   28, 36, 42, 48, 56, 62, 68)
void EncodeBlock(std::uint8_t* block, int dataCodewords, int errorCodewords, int stride);

}  // namespace barhatch

#endif
