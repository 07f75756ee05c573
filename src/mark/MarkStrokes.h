// The strokes of a symbol: counted first, then written into the room that the result has for them.
#ifndef BARHATCH_MARK_MARKSTROKES_H
#define BARHATCH_MARK_MARKSTROKES_H

#include <cstddef>

#include "barhatch_mark.h"
#include "hatch/Hatch.h"
#include "job/Refusal.h"
#include "mark/Extents.h"
#include "mark/MarkedSymbol.h"

namespace barhatch {

class MarkStrokes {
 public:
  // REQUIRES: a checked job that wants strokes; all three outlive the object.
  MarkStrokes(const BarhatchJob& job, const MarkedSymbol& symbol, const Extents& extents);

  // The most doubles that the strokes take, or why there is no such number.
  Refusal Count(std::size_t& doubles);

  // Writes the strokes, and into the result what they are and how long. REQUIRES: Count was not
  // refused, and room for its doubles.
  Refusal Write(double* room, std::size_t doubles, BarhatchResult& result);

 private:
  // Of the symbol from end to end, its lower side at y = bottom.
  ElementRows BearerAt(double bottom, const Memory& memory) const;
  void Describe(const double* strokes, std::size_t doubles, BarhatchResult& result) const;

  const BarhatchJob& job_;
  const Extents& extents_;
  const Filling filling_;
  ElementRows rows_;
  ElementRows lowerBearer_;  // without elements where there is none
  ElementRows upperBearer_;
  ElementRows* const bands_[3];  // all three from the bottom
};

}  // namespace barhatch

#endif
