// From module strings to fill buffers, by the settings: scaling to the size the host asked for,
// rectangles, pattern.
#ifndef BARHATCH_API_HATCHER_H
#define BARHATCH_API_HATCHER_H

#include "barhatch.h"

namespace barhatch {

class Hatcher {
 public:
  Hatcher() = default;
  virtual ~Hatcher() = default;
  Hatcher(const Hatcher&) = delete;
  Hatcher& operator=(const Hatcher&) = delete;

  // A linear symbol. The whole string, quiet zones included, spans exactly the width setting;
  // ModuleWidth plays no part. Writes the extents FillHeight (= height) and FillWidth (the width
  // less 20 modules, the two quiet zones that most symbologies have, whether or not this string has
  // them). Null when the string has no module or nothing was filled, when the fill does not fit a
  // fill buffer, and when there is no memory; a string without a module leaves the extents alone.
  FillBufferInfo* VectorizeLinear(const char* moduleString);

  // A matrix, row by row from the bottom, in square cells of height / rows; the width setting plays
  // no part. Every row is filled on its own, so alternating strokes start forward in each. Writes
  // the extents FillHeight and FillWidth, both less two cells, whether or not the matrix has the
  // quiet zone that these are. Null, and the extents left alone, for a matrix without rows, columns
  // or data; null as above where nothing was filled or there is no memory.
  FillBufferInfo* VectorizeMatrix(const TwoDStringResult& matrix);
};

}  // namespace barhatch

#endif
