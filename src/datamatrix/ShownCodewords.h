// Module placement the other way round (ISO/IEC 16022; ISO/IEC 21471 for the long rectangles): of a
// module of the mapping matrix, which bit of which codeword it shows. Nothing is swept and nothing
// is marked as taken: all of it follows from the place of the module.
//
// The last modules of the shapes stand where column = 3 row + 4 modulo 8, so that the bit and the
// way to the last module follow from the class of a place:
//
//   column + 5 row + 4, modulo 8      0  1  2  3  4  5  6  7
//   bit, 1 the most significant       8  3  4  5  1  2  6  7
//   last module: rows further down    0  1  1  1  2  2  0  0
//                columns to the right 0  2  1  0  2  1  2  1
//
// A last module below the matrix or right of it is that of a shape that leaves the matrix at the
// top or on the left. The diagonals row + column = 4 d are numbered one after the other, each of
// them upwards where d is odd and downwards where it is even. In some matrices one shape is torn
// apart into two corners or three, and shapes whose last module it covers do not exist.
#ifndef BARHATCH_DATAMATRIX_SHOWNCODEWORDS_H
#define BARHATCH_DATAMATRIX_SHOWNCODEWORDS_H

#include <cstdint>
#include <cstring>

#include "job/ModuleString.h"

namespace barhatch {

constexpr int kMostMappingModules = 132;  // of the longest side

// The letters (ModuleString.h) of one row of a mapping matrix between light ones on both sides.
struct ModuleRow {
  static constexpr int kMargin = 8;

  ModuleRow() { std::memset(all, kNarrowSpace, sizeof all); }
  char* Letters() { return all + kMargin; }

  char all[kMargin + kMostMappingModules + kMargin];
};

struct TornShape;

class ShownCodewords {
 public:
  // REQUIRES: the sides of a mapping matrix of the two standards, 6 to 132 and even.
  ShownCodewords(int rows, int columns);

  // Adds what a row shows to the codewords, rows x columns / 8 of them, which are 0 before the
  // first row. The letters are not kept. False for letters that are no modules, and where modules
  // that no codeword has are not as they have to be.
  bool AddRow(int row, ModuleRow& modules, std::uint8_t* codewords) const;

 private:
  // Diagonals 0 to 65 have last modules in them.
  static constexpr int kMostDiagonals = kMostMappingModules / 2;

  void NumberDiagonals();
  int CodewordAt(int lastRow, int lastColumn) const;
  bool TakeFixedCorner(int row, char* letters) const;
  void TakeTornShape(int row, char* letters, std::uint8_t* codewords) const;
  bool AddInside(int row, int first, int end, const char* letters, std::uint8_t* codewords) const;
  bool AddAtSide(int row, int first, int end, const char* letters, std::uint8_t* codewords) const;
  void Add(int lastRow, int lastColumn, int bits, std::uint8_t* codewords) const;

  const int rows_;
  const int columns_;
  const TornShape* const torn_;  // null for none
  int tornCodeword_ = 0;
  // The codeword that a last module of each diagonal in row 0 would have.
  std::int16_t inRow0_[kMostDiagonals] = {};
};

}  // namespace barhatch

#endif
