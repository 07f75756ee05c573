// Tally, a symbology that nobody uses: a digit is as many bars as it says, 1 to 9, and a space of
// two modules stands between digits. "31" is AaAaA aa A.
#ifndef BARHATCH_SYMBOLOGIES_TALLY_H
#define BARHATCH_SYMBOLOGIES_TALLY_H

#include "symbologies/Encoder.h"
#include "symbologies/FamilyReaders.h"

namespace barhatch {

// REQUIRES: digits. A 0 is drawn as ten bars. There is one variant.
void EncodeTally(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

bool ReadTally(const char* letters, std::size_t length, ReaderSetting setting,
               SymbolReading& reading);

}  // namespace barhatch

#endif
