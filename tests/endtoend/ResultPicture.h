// What the strokes of a mark's result leave on the part, for readers to look at.
#ifndef BARHATCH_TESTS_ENDTOEND_RESULTPICTURE_H
#define BARHATCH_TESTS_ENDTOEND_RESULTPICTURE_H

#include <cstdint>
#include <vector>

#include "barhatch_mark.h"
#include "support/Raster.h"

namespace barhatch::test {

// The part with the quiet zone of the result around the symbol, and nothing beside it. REQUIRES:
// segments.
inline Raster PictureOf(const BarhatchResult& result, double beamWidth) {
  std::vector<double> strokes(result.strokes, result.strokes + 4 * result.strokes_count);
  FillBufferInfo fill = {};
  fill.BufferLength = static_cast<std::int32_t>(strokes.size());
  fill.FilledArray = strokes.data();
  MarkParameters parameters;
  parameters.left = result.total[0];
  parameters.bottom = result.total[1];
  parameters.width = result.total[2] - result.total[0];
  parameters.height = result.total[3] - result.total[1];
  parameters.pixelsPerUnit = 4.0;
  parameters.beamWidth = beamWidth;
  return MarkStrokes(fill, parameters);
}

}  // namespace barhatch::test

#endif
