// The symbol of a job as a result: its sizes, its strokes, and everything that the result points to
// in one block of memory.
//
//   +--------------------+---------+---------+--------+---------+------------+
//   | how to give it back| strokes | modules | values | reading | deviations |
//   +--------------------+---------+---------+--------+---------+------------+
#ifndef BARHATCH_MARK_RESULTBLOCK_H
#define BARHATCH_MARK_RESULTBLOCK_H

#include "barhatch_mark.h"
#include "job/Deviations.h"
#include "job/Refusal.h"
#include "mark/MarkedSymbol.h"

namespace barhatch {

// Fills in what the job wants. Refused, the result holds no block.
Refusal FinishResult(const BarhatchJob& job, const MarkedSymbol& symbol, DeviationSet met,
                     BarhatchResult& result);

// Gives the block back, if there is one, and clears what points into it.
void ReleaseBlock(BarhatchResult& result);

}  // namespace barhatch

#endif
