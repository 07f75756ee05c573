// Proof of a mark: what the finished letters of its symbol show, as they go to the hatcher, is what
// was asked for. Where it is not, the library has a defect, and the mark is refused with
// Reason::kProof instead of being marked wrong.
#ifndef BARHATCH_MARK_PROOF_H
#define BARHATCH_MARK_PROOF_H

#include <cstdint>

#include "barhatch_mark.h"
#include "datamatrix/DataMatrix.h"
#include "job/Deviations.h"
#include "job/Job.h"
#include "job/Refusal.h"
#include "mark/MarkedSymbol.h"
#include "symbologies/Preparation.h"

namespace barhatch {

// False where the job leaves the proof out.
bool WantsProof(const BarhatchJob& job);

// The frame of the drawn grid, its placement and its error correction are right, and it shows the
// codewords of `matrix`, which are written to symbol.values. Deviations are no excuse: they choose
// codewords and do not draw them otherwise. REQUIRES: letters, size and quiet zone of the symbol,
// and room for all codewords.
bool ShowsItsCodewords(const MatrixSymbol& matrix, const Conformance& how, MarkedSymbol& symbol);

// The quiet zones of the drawn linear symbol are light, and what was read between them is the text
// that was to be drawn.
bool ShowsItsText(std::int32_t symbology, const PreparedText& text, const MarkedSymbol& symbol);

// What a reading that is not the text has to say: kProof where the mark promises that it is, and
// the warning otherwise. Promised it is by the book, and by the device where no deviation was met
// or those alone that leave the reading as it is.
Refusal JudgeReading(const BarhatchJob& job, bool isAsGiven, DeviationSet met,
                     std::uint32_t& warnings);

}  // namespace barhatch

#endif
