#include "hatch/MatrixRects.h"

#include <cstddef>

namespace barhatch {

MatrixRects::MatrixRects(const TwoDStringResult& matrix, double cellSize, FilledElements filled)
    : matrix_(matrix),
      cellSize_(cellSize),
      filled_(filled),
      columns_(static_cast<std::size_t>(matrix.numcols)),
      rects_(static_cast<std::size_t>(matrix.numcols)),
      width_(0.0) {
  for (std::int32_t column = 0; column < matrix.numcols; ++column) {
    const double right = width_ + cellSize;
    columns_.Append(HatchRect(width_, 0.0, right, cellSize));
    width_ = right;
  }
}

const RectList& MatrixRects::Row(int rowFromBottom) {
  const std::size_t columns = static_cast<std::size_t>(matrix_.numcols);
  const int rowFromTop = matrix_.numrows - 1 - rowFromBottom;
  const char* letters = matrix_.data + static_cast<std::size_t>(rowFromTop) * columns;
  HatchRect raised(0.0, 0.0, 0.0, cellSize_);
  raised.Offset(0.0, rowFromBottom * cellSize_);

  rects_.Clear();
  for (std::size_t column = 0; column < columns; ++column) {
    if (!IsFilled(letters[column], filled_)) continue;
    rects_.Append(HatchRect(columns_[column].lowerLeft.x, raised.lowerLeft.y,
                            columns_[column].upperRight.x, raised.upperRight.y));
  }
  return rects_;
}

}  // namespace barhatch
