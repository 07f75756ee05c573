// From the letters of a module string to the rectangles of its filled elements.
#ifndef BARHATCH_HATCH_BUILDRECTS_H
#define BARHATCH_HATCH_BUILDRECTS_H

#include <cstddef>

#include "hatch/HatchLists.h"
#include "job/Job.h"

namespace barhatch {

// Width in modules: every 'A' or 'a' counts 1.0, every 'B' or 'b' counts printRatio, nothing else
// counts. "ABab" with a print ratio of 2.5 has 7.0 modules.
double ModuleCount(const char* moduleString, double printRatio);

// The number of elements of the row that BuildRects will turn into rectangles.
std::size_t CountFilled(const char* row, FilledElements filled);

// Appends a rectangle from (x, 0) to (x + width, barHeight) for every filled element, left to right
// from x = 0.0; elements of the other shade only advance x, other characters are skipped. Returns
// the x behind the last element. "AaA" with a module size of 1.0 gives (0,0)-(1,1) and (2,0)-(3,1),
// inverted (1,0)-(2,1), and returns 3.0.
double BuildRects(const char* row, const ElementSizes& sizes, FilledElements filled,
                  RectList& rects);

}  // namespace barhatch

#endif
