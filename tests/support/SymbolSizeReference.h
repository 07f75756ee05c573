// The symbol sizes of ECC 200 once more, typed apart from the encoder's table, and the choice of a
// size as the plain list of steps that hosts know. Shares nothing with the encoder.
#ifndef BARHATCH_TESTS_SUPPORT_SYMBOLSIZEREFERENCE_H
#define BARHATCH_TESTS_SUPPORT_SYMBOLSIZEREFERENCE_H

#include <optional>
#include <vector>

namespace barhatch::test {

struct ReferenceSize {
  int rows;
  int columns;
  int data;
  int ecc;
  int mappingRows;
  int mappingColumns;
};

const std::vector<ReferenceSize>& ReferenceSquares();
const std::vector<ReferenceSize>& ReferenceRectangles();

// All thirty: squares, then rectangles.
std::vector<ReferenceSize> ReferenceSizes();

// Empty for a refusal.
std::optional<ReferenceSize> ReferenceChoice(int codewords, int rows, int columns, int isExpanding);

// Data regions of a size: {down, across}.
struct ReferenceRegions {
  int down;
  int across;
};
ReferenceRegions RegionsOf(int rows, int columns);

// Interleaved Reed-Solomon blocks of a size.
int BlocksOf(int rows, int columns);

}  // namespace barhatch::test

#endif
