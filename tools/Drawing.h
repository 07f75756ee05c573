// The strokes or points of one symbol, or of a sheet of them, as all writers take them: in marking
// order, in the host's units, the origin at the lower left corner and y upwards.
#ifndef BARHATCH_TOOLS_DRAWING_H
#define BARHATCH_TOOLS_DRAWING_H

#include <string>
#include <vector>

#include "barhatch.hpp"

namespace preview {

enum class MarkKind { kStrokes, kPoints };

// A point has its place in both ends.
struct Stroke {
  double x0, y0, x1, y1;
};

// A line of text below a symbol, for the pictures that can show it.
struct Caption {
  double x;  // of its left end
  double y;  // of its base line
  double size;
  std::string text;  // UTF-8
};

struct Drawing {
  MarkKind kind = MarkKind::kStrokes;
  double width = 0.0;
  double height = 0.0;
  std::string title;
  std::vector<Stroke> marks;
  std::vector<Caption> captions;
};

// The drawing is as large as the symbol, with the quiet zone where that is a part of it or bearer
// bars reach over it.
Drawing DrawingOf(const barhatch::Result& result, std::string title);

// All drawings in rows of so many, from the top left corner, their titles as captions below them.
// REQUIRES: at least one drawing, all of one kind, and at least one column.
Drawing SheetOf(const std::vector<Drawing>& drawings, std::size_t columns);

double LengthOf(const Stroke& stroke);

// The way from the end of one mark to the beginning of the next.
double TravelBetween(const Stroke& from, const Stroke& to);

}  // namespace preview

#endif
