// Error correction of a whole symbol: the data codewords are dealt round-robin into the symbol's
// blocks, each block is coded, and the codewords are emitted round-robin again, a block being read
// as its data followed by its error correction.
//
// Nothing is ever moved: the data is coded where it stands, codeword i of block b at position
// i x blocks + b, and the error codewords are written to their final positions. For 52 x 52 (two
// blocks, 204 data codewords) the blocks' error codewords stand in turn at 204, 205, 206, ...
//
// D-DM-1: in 144 x 144 blocks 8 and 9 have 155 data codewords, one less than the others. The rule
// gives them the positions 1558, 1559, 1568, 1569, ... for their error codewords and blocks 0 to 7
// the positions 1560 to 1567, 1570 to 1577, ...; the standard's text puts the error codewords of
// block 0 at 1558, 1568, ... and so on, as they are written where D-DM-1 is not in force. The
// former is the order that the industry writes and reads.
#ifndef BARHATCH_DATAMATRIX_INTERLEAVING_H
#define BARHATCH_DATAMATRIX_INTERLEAVING_H

#include <cstdint>

#include "datamatrix/SymbolSizes.h"
#include "job/Deviations.h"

namespace barhatch {

// codewords: size.dataCodewords of data, followed by room for size.errorCodewords, which are
// written.
void AddErrorCorrection(const SymbolSize& size, Conformance& how, std::uint8_t* codewords);

}  // namespace barhatch

#endif
