// A finished Data Matrix decoded again: from the letters of its grid, as they go to the hatcher,
// back to the codewords that a reader takes out of them. Everything in them is looked at:
//
//   quiet zone          light
//   frame               finder, clock tracks of every region, fixed pattern of the corner
//   placement           ShownCodewords.h
//   error correction    RootCheck.h: nothing to correct in any block
//
// Nothing is shared with the encoder, the table of sizes included: the proof is there to notice
// where either of the two is wrong.
#ifndef BARHATCH_DATAMATRIX_SYMBOLPROOF_H
#define BARHATCH_DATAMATRIX_SYMBOLPROOF_H

#include <cstdint>

namespace barhatch {

// Rows x columns letters (ModuleString.h), row by row from the top, with so many light modules on
// each side.
struct DrawnGrid {
  const char* letters;
  int rows;
  int columns;
  int quietModules;
};

// Where the error codewords of 144 x 144 stand, whose blocks are not all alike: those of block 0
// first, as the standard says, or those of block 8, as the industry writes them (D-DM-1).
enum class BlockOrder : std::uint8_t { kStandard, kIndustry };

// How many codewords a grid is to show.
struct CodewordCounts {
  int data;
  int error;
};

// Writes the codewords that the grid shows, counts.data and then counts.error. True where they are
// as many as its size has and the grid is, module for module, a symbol of ISO/IEC 16022 or 21471
// with no error in it. Takes time in proportion to the modules and no memory.
bool ReadGrid(const DrawnGrid& grid, BlockOrder order, CodewordCounts counts,
              std::uint8_t* codewords);

}  // namespace barhatch

#endif
