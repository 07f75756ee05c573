// The marks of a head on a part, in the host's units, and how a picture shows them.
#ifndef BARHATCH_TOOLS_MARKIMAGE_H
#define BARHATCH_TOOLS_MARKIMAGE_H

#include <cstdint>
#include <vector>

#include "Drawing.h"

namespace preview {

enum class Part { kLight, kDark };  // dark marks on a light part, or light marks on a dark one

// Where the mark of a stroke ends: at the stroke's ends, as a controller switches the beam by its
// radius late and early, or half a beam beyond them, as it stays on around the corners of a spiral.
enum class StrokeEnds { kFlush, kProjecting };

// How a picture shows the marks: a margin all around, the width of a stroke or diameter of a dot.
struct Look {
  double margin;
  double beam;
  Part part;
  StrokeEnds ends;
};

// What the head marks, axis-aligned as all strokes of the library are: a stroke covers half a beam
// on either side of its line.
struct Mark {
  double left, bottom, right, top;
};

// The marks in drawing order; a point becomes a disc as wide as the beam, in narrow slices.
std::vector<Mark> MarksOf(const Drawing& drawing, const Look& look);

// An 8-bit grey picture, top row first. Every pixel is as dark (or light) as its area is covered by
// marks.
struct Picture {
  std::uint32_t width;
  std::uint32_t height;
  std::vector<std::uint8_t> pixels;
};
Picture Draw(const Drawing& drawing, const Look& look, double pixelsPerUnit);

}  // namespace preview

#endif
