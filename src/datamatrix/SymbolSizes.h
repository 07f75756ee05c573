// The 30 symbol sizes of ECC 200 (ISO/IEC 16022) and the choice of one for a number of data
// codewords and a requested size.
//
// The request has two families. Rows equal to columns, 0 x 0 included, ask for a square; all other
// requests ask for a rectangle. The smallest size of the family that holds the codewords is taken
// and then enlarged to the request. Five codewords and a request of 24 x 24 give the 24 x 24
// symbol; ten codewords and 10 x 10 give 16 x 16 when the symbol may grow and nothing when it may
// not.
//
// Hosts depend on these rules to the letter, also where one would choose differently:
//  - a request that is met by no size is refused only when the enlargement gets to it: four
//    codewords and 11 x 11 become 12 x 12, three are refused
//  - an enlarged size is never exchanged for a larger one: 16 codewords and 8 x 32 are refused
//  - rectangles are tried by capacity: six codewords and 12 x 26 are refused without permission to
//    grow, as 8 x 32 comes first and is wider than the request
//  - a rectangle that has become too small becomes a square, if it may grow and the square covers
//    it: 50 codewords and 8 x 32 become 32 x 32, but 16 x 48 is refused
#ifndef BARHATCH_DATAMATRIX_SYMBOLSIZES_H
#define BARHATCH_DATAMATRIX_SYMBOLSIZES_H

#include "job/Job.h"
#include "job/Refusal.h"

namespace barhatch {

// One row of the standard's table. The mapping matrix is the symbol without finder, clock and
// alignment patterns; regions are counted downwards and across.
struct SymbolSize {
  int symbolRows;
  int symbolColumns;
  int regionsDown;
  int regionsAcross;
  int mappingRows;
  int mappingColumns;
  int dataCodewords;   // of all blocks together
  int errorCodewords;  // of all blocks together
  int blocks;          // interleaved Reed-Solomon blocks
};

// What holds for every row: the codewords fill the mapping matrix, the regions have their frames,
// the blocks share the error codewords alike.
constexpr bool IsConsistent(const SymbolSize& size) {
  return size.dataCodewords + size.errorCodewords == size.mappingRows * size.mappingColumns / 8 &&
         size.symbolRows == size.mappingRows + 2 * size.regionsDown &&
         size.symbolColumns == size.mappingColumns + 2 * size.regionsAcross &&
         size.mappingRows % (2 * size.regionsDown) == 0 &&
         size.mappingColumns % (2 * size.regionsAcross) == 0 && size.mappingRows >= 6 &&
         size.errorCodewords % size.blocks == 0;
}

constexpr int kSquareSizeCount = 24;
constexpr int kRectangularSizeCount = 6;

// By capacity, ascending.
extern const SymbolSize kSquareSizes[kSquareSizeCount];
extern const SymbolSize kRectangularSizes[kRectangularSizeCount];

constexpr int kMaxDataCodewords = 1558;  // 144 x 144
constexpr int kMaxCodewords = 2178;      // 144 x 144: 1558 + 620

// The size that `codewords` data codewords (0 and more) get under the request. `chosen` is
// unchanged when the request is refused, the figure of which is always the codewords:
//   kTooManyCodewords    more than kMaxDataCodewords, whatever is asked for
//   kNoPermissionToGrow  the smallest size for them is larger than the request, or no rectangle
//                        holds them, and the symbol may not grow, or not into a square
//   kSizeTooSmall        the requested size exists and holds fewer
//   kNoSuchSize          the requested size does not exist
Refusal ChooseSymbolSize(int codewords, const SizeRequest& request, SymbolSize& chosen);

// The data codewords of that size; 0 for a refusal.
int CapacityUnder(const SizeRequest& request, int codewords);

// The smallest data capacity of a square that is greater than the count (3 for 2, 5 for 3); 0 when
// there is none, that is from kMaxDataCodewords on.
int SquareCapacityAbove(int codewords);

}  // namespace barhatch

#endif
