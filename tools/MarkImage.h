// The marks of a head on a part, in the host's units, and how a picture shows them.
#ifndef BARHATCH_TOOLS_MARKIMAGE_H
#define BARHATCH_TOOLS_MARKIMAGE_H

#include <cstdint>
#include <vector>

#include "barhatch.h"

namespace preview {

enum class Part { kLight, kDark };  // dark marks on a light part, or light marks on a dark one

// Where the mark of a stroke ends: at the stroke's ends, as a controller switches the beam by its
// radius late and early, or half a beam beyond them, as it stays on around the corners of a spiral.
enum class StrokeEnds { kFlush, kProjecting };

// The piece of the part that a picture shows: the symbol with a margin all around.
struct View {
  double width;   // of the symbol
  double height;  // of the symbol
  double margin;  // on every side
  double beam;    // width of a stroke, diameter of a dot
  Part part;
  StrokeEnds ends;
};

// What the head marks, axis-aligned as all strokes of the library are: a stroke covers half a beam
// on either side of its line.
struct Mark {
  double left, bottom, right, top;
};

// The marks of a fill in drawing order; a point becomes a disc as wide as the beam, in narrow
// slices.
std::vector<Mark> MarksOf(const FillBufferInfo& fill, const View& view);

// An 8-bit grey picture, top row first. Every pixel is as dark (or light) as its area is covered by
// marks.
struct Picture {
  std::uint32_t width;
  std::uint32_t height;
  std::vector<std::uint8_t> pixels;
};
Picture Draw(const std::vector<Mark>& marks, const View& view, double pixelsPerUnit);

}  // namespace preview

#endif
