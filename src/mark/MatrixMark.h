// What the two ways to a Data Matrix, the device's and that by the book, have in common.
#ifndef BARHATCH_MARK_MATRIXMARK_H
#define BARHATCH_MARK_MATRIXMARK_H

#include <cstddef>

#include "barhatch_mark.h"
#include "datamatrix/DataMatrix.h"
#include "mark/InputText.h"
#include "mark/MarkedSymbol.h"

namespace barhatch {

constexpr int kStandardQuietModules = 1;

QuietSides OnAllSides(int modules);

// Takes the drawn matrix over, proves that it shows its codewords and has them read back.
Refusal KeepMatrix(const BarhatchJob& job, const MatrixSymbol& matrix, const Conformance& how,
                   MarkedSymbol& symbol, BarhatchResult& result);

// By the book. Of a mask the symbol has rows and columns alone.
Refusal MakePublishedMatrix(const BarhatchJob& job, const InputText& text, std::size_t count,
                            Conformance& how, MarkedSymbol& symbol, BarhatchResult& result);

}  // namespace barhatch

#endif
