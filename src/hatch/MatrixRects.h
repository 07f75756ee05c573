// The rectangles of a matrix, one row at a time from the bottom row up: every filled module is a
// square cell.
#ifndef BARHATCH_HATCH_MATRIXRECTS_H
#define BARHATCH_HATCH_MATRIXRECTS_H

#include <cstddef>

#include "barhatch.h"
#include "hatch/BuildRects.h"
#include "hatch/HatchLists.h"

namespace barhatch {

class MatrixRects {
 public:
  // The matrix has at least one row and one column, holds the letters 'A' and 'a' alone and
  // outlives the object. The columns lie at the same x in every row, so they are added up once.
  MatrixRects(const TwoDStringResult& matrix, double cellSize, FilledElements filled);

  bool HasFailed() const { return columns_.HasFailed() || rects_.HasFailed(); }

  // Filled cells of the whole matrix.
  std::size_t Count() const;

  // The x behind the last column.
  double Width() const { return width_; }

  // The filled cells of a row counted from the bottom, left to right, valid until the next call:
  // row r lies between r x cellSize and r x cellSize + cellSize. REQUIRES: !HasFailed().
  const RectList& Row(int rowFromBottom);

 private:
  const TwoDStringResult& matrix_;
  const double cellSize_;
  const char filledLetter_;
  RectList columns_;  // the cells of a row in which every module is filled
  RectList rects_;
  double width_;
};

}  // namespace barhatch

#endif
