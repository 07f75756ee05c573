// The symbol sizes by the book and the choice of one: the 30 of ISO/IEC 16022 and the 18 rectangles
// that ISO/IEC 21471 (DMRE) adds.
//
// A size that is asked for is kept or refused, never exchanged. Where none is asked for, the shape
// says which sizes there are; the one of the smallest area that holds the codewords is taken, of
// equal areas the one that is nearer to a square. 20 codewords are 20 x 20 as a square, 12 x 36 as
// a rectangle, 8 x 64 with DMRE too.
#ifndef BARHATCH_DATAMATRIX_PUBLISHEDSIZES_H
#define BARHATCH_DATAMATRIX_PUBLISHEDSIZES_H

#include <cstdint>

#include "datamatrix/SymbolSizes.h"
#include "job/Refusal.h"

namespace barhatch {

enum class Shape : std::uint8_t {
  kSquare,
  kRectangle,      // of ISO/IEC 16022
  kAny,            // squares and these rectangles
  kDmreRectangle,  // rectangles of both standards
  kAnyAndDmre,     // all sizes
};

struct SizeWish {
  int rows;  // both 0 for no size in particular
  int columns;
  Shape shape;   // without a size in particular
  bool mayGrow;  // beyond rows x columns, within the table that these are a row of
};

constexpr int kDmreSizeCount = 18;
extern const SymbolSize kDmreSizes[kDmreSizeCount];

// Null for what is none of the 48.
const SymbolSize* FindSize(int rows, int columns);

bool IsDmre(const SymbolSize& size);

// The size for so many data codewords. `chosen` is unchanged by a refusal, whose figure is the
// codewords:
//   kTooManyCodewords    of the sizes of the shape none holds them
//   kNoSuchSize          rows x columns is none of the 48
//   kNoPermissionToGrow  rows x columns holds fewer
//   kSizeTooSmall        likewise, and of its table none that covers it holds them
Refusal ChoosePublishedSize(int codewords, const SizeWish& wish, SymbolSize& chosen);

// The size that rows x columns would grow to; null where there is none.
const SymbolSize* GrownSize(int codewords, int rows, int columns);

// The smallest size, square for a square, that covers rows x columns; null for none.
const SymbolSize* NextPublishedSize(int rows, int columns);

// The smallest size of a shape for so many codewords, and the one that holds most.
const SymbolSize* SmallestOf(Shape shape, int codewords);
const SymbolSize& LargestOf(Shape shape);

}  // namespace barhatch

#endif
