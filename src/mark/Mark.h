// The library as functions of values: a job in, a symbol or a refusal out. This is the only room
// that opens the doors of the rooms below; the exports and the mark interface are its hosts.
#ifndef BARHATCH_MARK_MARK_H
#define BARHATCH_MARK_MARK_H

#include <cstddef>

#include "datamatrix/DataMatrix.h"  // EncodeDataMatrix: a MatrixJob becomes a grid of modules
#include "hatch/Hatch.h"            // ElementRows, MostDoubles, Fill: elements become strokes
#include "job/Deviations.h"
#include "job/Job.h"
#include "job/Memory.h"
#include "job/Refusal.h"
#include "job/Token.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {

// A module string with its quiet zones. The letters have a NUL behind them, come from the memory of
// the call and belong to the caller.
struct LinearSymbol {
  char* letters = nullptr;
  std::size_t length = 0;
  int quietLeft = 0;  // modules, in the letters
  int quietRight = 0;
};

// As the device draws it. usualCapacity: characters that the letters get room for at least, 0 for
// no more than they need. A refused job has taken no memory. REQUIRES: job.symbology in 0..22.
Refusal DrawLinear(const LinearJob& job, std::size_t usualCapacity, const Memory& memory,
                   Conformance& how, LinearSymbol& symbol);

// A text that nothing has prepared yet. REQUIRES: PreparationRoom(length) bytes that begin with it.
PreparedText GivenText(const SymbologyRow& row, char* room, std::size_t length);

// By the book: the text is prepared and then drawn. It stands in `text` as it was drawn afterwards.
// quietModules: or kNoQuietZone, kStandardQuietZone. A refused job has taken no memory.
Refusal DrawPublished(const SymbologyRow& row, const LinearOptions& options,
                      std::int32_t quietModules, const Memory& memory, Conformance& how,
                      PreparedText& text, LinearSymbol& symbol);

// Code 128 by the book, of a text with function characters. quietModules as above. REQUIRES: a row
// of Code 128; one token or more, at most kLongestLinearText, bytes that the row accepts and FNC1
// to FNC3.
Refusal DrawCode128(const SymbologyRow& row, std::int32_t quietModules, const TokenText& text,
                    const Memory& memory, LinearSymbol& symbol);

}  // namespace barhatch

#endif
