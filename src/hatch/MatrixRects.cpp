#include "hatch/MatrixRects.h"

#include "job/ModuleString.h"

namespace barhatch {

MatrixRects::MatrixRects(const TwoDStringResult& matrix, double cellSize, FilledElements filled)
    : matrix_(matrix),
      cellSize_(cellSize),
      filledLetter_(filled == FilledElements::kDark ? kNarrowBar : kNarrowSpace),
      columns_(static_cast<std::size_t>(matrix.numcols)),
      rects_(static_cast<std::size_t>(matrix.numcols)),
      width_(0.0) {
  for (std::int32_t column = 0; column < matrix.numcols; ++column) {
    const double right = width_ + cellSize;
    columns_.AppendRect(width_, 0.0, right, cellSize);
    width_ = right;
  }
}

std::size_t MatrixRects::Count() const {
  const int modules = matrix_.numrows * matrix_.numcols;
  std::size_t count = 0;
  for (int i = 0; i < modules; ++i) count += matrix_.data[i] == filledLetter_ ? 1u : 0u;
  return count;
}

const RectList& MatrixRects::Row(int rowFromBottom) {
  const std::size_t columns = static_cast<std::size_t>(matrix_.numcols);
  const int rowFromTop = matrix_.numrows - 1 - rowFromBottom;
  const char* letters = matrix_.data + static_cast<std::size_t>(rowFromTop) * columns;
  HatchRect raised(0.0, 0.0, 0.0, cellSize_);
  raised.Offset(0.0, rowFromBottom * cellSize_);

  // Every cell is written where the next filled one belongs and stays there if it is filled: dark
  // and light modules follow each other without a pattern that a processor could foresee.
  rects_.Shorten(0);
  HatchRect* const first = rects_.RoomFor(columns);
  HatchRect* next = first;
  for (std::size_t column = 0; column < columns; ++column) {
    const HatchRect& cell = columns_[column];
    next->Set(cell.lowerLeft.x, raised.lowerLeft.y, cell.upperRight.x, raised.upperRight.y);
    next += letters[column] == filledLetter_ ? 1 : 0;
  }
  rects_.Shorten(static_cast<std::size_t>(next - first));
  return rects_;
}

}  // namespace barhatch
