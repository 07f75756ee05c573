// Module placement of ECC 200 in the form of the standard's annex: every cell of the mapping matrix
// is given the number of the codeword and of the bit that it shows. Shares nothing with the
// encoder.
#ifndef BARHATCH_TESTS_SUPPORT_PLACEMENTREFERENCE_H
#define BARHATCH_TESTS_SUPPORT_PLACEMENTREFERENCE_H

#include <string>
#include <vector>

#include "support/SymbolSizeReference.h"

namespace barhatch::test {

constexpr int kFixedLight = 0;
constexpr int kFixedDark = 1;

// Row by row: 10 x codeword + bit, both counted from 1, bit 1 the most significant; kFixedLight and
// kFixedDark in the lower right corner where the codewords leave it over.
std::vector<int> ReferencePlacement(int rows, int columns);

// A mapping matrix of 'A' and 'a' for the codewords.
std::string ReferenceMapping(const std::vector<int>& codewords, int rows, int columns);

// The codewords that a grid of 'A' and 'a' without quiet zone shows, data and error correction.
std::vector<int> CodewordsOfGrid(const std::string& grid, const ReferenceSize& size);

}  // namespace barhatch::test

#endif
