// Reed-Solomon error correction and block interleaving of ECC 200, slow and plain: products by
// shifting and adding, the remainder by long division, blocks as lists. Shares nothing with the
// encoder.
#ifndef BARHATCH_TESTS_SUPPORT_ECCREFERENCE_H
#define BARHATCH_TESTS_SUPPORT_ECCREFERENCE_H

#include <vector>

namespace barhatch::test {

// Product in GF(256) with the polynomial 0x12D.
int FieldProduct(int a, int b);
int FieldPower(int base, int exponent);

// The coefficients of (x + 2^1) ... (x + 2^degree), from x^0 up; the last is 1.
std::vector<int> GeneratorPolynomial(int degree);

// The error codewords of one block.
std::vector<int> ErrorCodewords(const std::vector<int>& data, int errorCodewords);

// The values of the polynomial whose coefficients, the highest first, are the codewords, at 2^1 to
// 2^errorCodewords. All are 0 in an undamaged block.
std::vector<int> Syndromes(const std::vector<int>& codewords, int errorCodewords);

// The blocks of a stream of data codewords, each followed by its error codewords.
std::vector<std::vector<int>> CodedBlocks(const std::vector<int>& data, int errorCodewords,
                                          int blocks);

// One element of every block in turn, first elements first; blocks that have ended are skipped.
std::vector<int> EmittedRoundRobin(const std::vector<std::vector<int>>& blocks);

}  // namespace barhatch::test

#endif
