// Module placement of ECC 200 (ISO/IEC 16022): eight modules for each codeword, swept in diagonals
// over the mapping matrix, that is the symbol without its finder, clock and alignment patterns.
//
// A codeword is an L of eight modules (the "utah" shape), numbered from the most significant bit; a
// shape that leaves the matrix at the top or on the left comes in again on the opposite side. The
// walk starts in row 4, column 0:
//
//      1 2                      row 4 up to the right, then back down to the left, ...
//      3 4 5
//      6 7 8  <- the module that names the place of the shape
//
// Four corner cases replace the shape where the walk meets the lower left corner in a certain way.
// In 12 x 12, 16 x 16, 20 x 20 and 24 x 24 the four modules of the lower right corner are left over
// and filled with a fixed pattern.
#ifndef BARHATCH_DATAMATRIX_PLACEMENT_H
#define BARHATCH_DATAMATRIX_PLACEMENT_H

#include <cstdint>

namespace barhatch {

// Fills the mapping matrix with the letters of ModuleString.h, row by row from the top.
//   codewords  rows x columns / 8 of them
//   mapping    room for rows x columns; what it holds before does not matter
// rows and columns: those of a row of the size tables.
void PlaceCodewords(const std::uint8_t* codewords, int rows, int columns, char* mapping);

// The same for the rectangles of ISO/IEC 21471, in which a shape may also leave at the bottom and
// then comes in at the top.
void PlaceDmreCodewords(const std::uint8_t* codewords, int rows, int columns, char* mapping);

}  // namespace barhatch

#endif
