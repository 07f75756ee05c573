// The symbol sizes of ECC 200 (ISO/IEC 16022) and the one that a Data Matrix takes, by the rules of
// docs/datamatrix.md.
#ifndef BARHATCH_TOOLS_MATRIXSIZES_H
#define BARHATCH_TOOLS_MATRIXSIZES_H

#include <optional>

namespace preview {

struct MatrixSize {
  int rows;
  int columns;
  int dataCodewords;
};

struct MatrixRequest {
  int rows;  // 0 x 0 asks for the smallest square
  int columns;
  bool expand;
};

constexpr int kMostDataCodewords = 1558;

// Nothing where the request is refused.
std::optional<MatrixSize> ChooseMatrixSize(int codewords, const MatrixRequest& request);

// The size of these rows and columns; nothing where there is none.
std::optional<MatrixSize> MatrixSizeOf(int rows, int columns);

// Data codewords of the smallest square that holds more than so many; 0 where none does.
int NextSquareCapacity(int codewords);

}  // namespace preview

#endif
