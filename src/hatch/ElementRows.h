// The filled elements of a symbol as rectangles, row by row from the bottom: what a pattern fills.
// A linear symbol is one row, whose rectangles are its bars; in a matrix every filled module is a
// square cell. Light elements are filled where the image is inverted.
#ifndef BARHATCH_HATCH_ELEMENTROWS_H
#define BARHATCH_HATCH_ELEMENTROWS_H

#include <cstddef>
#include <cstdint>

#include "hatch/BuildRects.h"
#include "hatch/HatchLists.h"
#include "job/Job.h"
#include "job/Memory.h"

namespace barhatch {

// The modules of a matrix, rows x columns letters, the top row first: 'A' dark, 'a' light.
struct ModuleGrid {
  const char* letters;
  std::int32_t rows;     // 1 and more, as columns
  std::int32_t columns;  //
  double cellSize;       // of a module, in the host's unit
};

class ElementRows {
 public:
  // A linear symbol: its module string, as BuildRects takes it.
  ElementRows(const char* moduleString, const ElementSizes& sizes, FilledElements filled,
              const Memory& memory);

  // The same with its lower side at y = bottom.
  ElementRows(const char* moduleString, const ElementSizes& sizes, double bottom,
              FilledElements filled, const Memory& memory);

  // A matrix. Its letters outlive the object. The columns lie at the same x in every row, so they
  // are added up once.
  ElementRows(const ModuleGrid& grid, FilledElements filled, const Memory& memory);

  // True when there was no memory.
  bool HasFailed() const { return columns_.HasFailed() || row_.HasFailed(); }

  int Rows() const { return grid_.rows; }

  // Filled elements of all rows.
  std::size_t Count() const;

  // The x behind the last element, filled or not.
  double Right() const { return right_; }

  // The filled elements of a row counted from the bottom, left to right, valid until the next call.
  // Row r of a matrix lies between r x cellSize and r x cellSize + cellSize. REQUIRES:
  // !HasFailed().
  const RectList& Row(int fromBottom);

 private:
  bool IsMatrix() const { return grid_.columns != 0; }
  void SelectCells(int fromBottom);

  const ModuleGrid grid_;  // of a linear symbol one row and no columns
  const char filledLetter_;
  RectList columns_;  // the cells of a row in which every module is filled
  RectList row_;
  double right_;
};

}  // namespace barhatch

#endif
