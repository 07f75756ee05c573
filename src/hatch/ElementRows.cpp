#include "hatch/ElementRows.h"

#include "job/ModuleString.h"

namespace barhatch {

namespace {

char LetterOf(FilledElements filled) {
  return filled == FilledElements::kDark ? kNarrowBar : kNarrowSpace;
}

}  // namespace

ElementRows::ElementRows(const char* moduleString, const ElementSizes& sizes, FilledElements filled,
                         const Memory& memory)
    : grid_{moduleString, 1, 0, sizes.barHeight},
      filledLetter_(LetterOf(filled)),
      columns_(memory, 0),
      row_(memory, CountFilled(moduleString, filled)),
      right_(BuildRects(moduleString, sizes, filled, row_)) {}

ElementRows::ElementRows(const char* moduleString, const ElementSizes& sizes, double bottom,
                         FilledElements filled, const Memory& memory)
    : ElementRows(moduleString, sizes, filled, memory) {
  for (std::size_t i = 0; i < row_.Count(); ++i) row_[i].Offset(0.0, bottom);
}

ElementRows::ElementRows(const ModuleGrid& grid, FilledElements filled, const Memory& memory)
    : grid_(grid),
      filledLetter_(LetterOf(filled)),
      columns_(memory, static_cast<std::size_t>(grid.columns)),
      row_(memory, static_cast<std::size_t>(grid.columns)),
      right_(0.0) {
  for (std::int32_t column = 0; column < grid.columns; ++column) {
    const double left = right_;
    right_ = left + grid.cellSize;
    columns_.Append(HatchRect(left, 0.0, right_, grid.cellSize));
  }
}

std::size_t ElementRows::Count() const {
  if (!IsMatrix()) return row_.Count();
  const int modules = grid_.rows * grid_.columns;
  std::size_t count = 0;
  for (int i = 0; i < modules; ++i) count += grid_.letters[i] == filledLetter_ ? 1u : 0u;
  return count;
}

const RectList& ElementRows::Row(int fromBottom) {
  if (IsMatrix()) SelectCells(fromBottom);
  return row_;
}

void ElementRows::SelectCells(int fromBottom) {
  const std::size_t columns = columns_.Count();
  const int fromTop = grid_.rows - 1 - fromBottom;
  const char* letters = grid_.letters + static_cast<std::size_t>(fromTop) * columns;
  HatchRect raised(0.0, 0.0, 0.0, grid_.cellSize);
  raised.Offset(0.0, fromBottom * grid_.cellSize);

  // Every cell is written where the next filled one belongs and stays there if it is filled: dark
  // and light modules follow each other without a pattern that a processor could foresee.
  row_.Shorten(0);
  HatchRect* const first = row_.RoomFor(columns);
  HatchRect* next = first;
  for (std::size_t column = 0; column < columns; ++column) {
    const HatchRect& cell = columns_[column];
    *next = HatchRect(cell.lowerLeft.x, raised.lowerLeft.y, cell.upperRight.x, raised.upperRight.y);
    next += letters[column] == filledLetter_ ? 1 : 0;
  }
  row_.Shorten(static_cast<std::size_t>(next - first));
}

}  // namespace barhatch
