#include "datamatrix/Placement.h"

#include <cstddef>
#include <cstring>

#include "job/ModuleString.h"

namespace barhatch {

namespace {

constexpr char kUntouched = '\0';

struct Place {
  signed char row;
  signed char column;
};

// The eight modules of a codeword, most significant bit first.
struct Shape {
  Place places[8];
};

// ISO/IEC 16022, module placement. The utah's places are relative to its eighth module.
// clang-format off
constexpr Shape kUtah = {
    {{-2, -2}, {-2, -1}, {-1, -2}, {-1, -1}, {-1,  0}, { 0, -2}, { 0, -1}, { 0,  0}}
};

// The four corner cases. Negative places count from the bottom and from the right: row -1 is the
// last.
constexpr Shape kCorners[] = {
    {{{-1,  0}, {-1,  1}, {-1,  2}, { 0, -2}, { 0, -1}, { 1, -1}, { 2, -1}, { 3, -1}}},
    {{{-3,  0}, {-2,  0}, {-1,  0}, { 0, -4}, { 0, -3}, { 0, -2}, { 0, -1}, { 1, -1}}},
    {{{-3,  0}, {-2,  0}, {-1,  0}, { 0, -2}, { 0, -1}, { 1, -1}, { 2, -1}, { 3, -1}}},
    {{{-1,  0}, {-1, -1}, { 0, -3}, { 0, -2}, { 0, -1}, { 1, -3}, { 1, -2}, { 1, -1}}},
};
// clang-format on

constexpr char LetterOfBit(int codeword, int bit) {
  return (codeword << bit & 0x80) != 0 ? kNarrowBar : kNarrowSpace;
}

// ISO/IEC 21471 takes a row that wrapping has moved below the matrix back to its top; the sizes of
// ISO/IEC 16022 have none.
template <bool kTakesRowsBack>
class Walk {
 public:
  Walk(const std::uint8_t* codewords, int rows, int columns, char* mapping)
      : codewords_(codewords), rows_(rows), columns_(columns), mapping_(mapping) {}

  void Run() {
    int row = 4;
    int column = 0;
    do {
      PlaceCorner(row, column);
      for (; row >= 0 && column < columns_; row -= 2, column += 2) PlaceUtah(row, column);
      row += 1;
      column += 3;
      for (; row < rows_ && column >= 0; row += 2, column -= 2) PlaceUtah(row, column);
      row += 3;
      column += 1;
    } while (row < rows_ || column < columns_);
    FillLowerRightCorner();
  }

 private:
  char& At(int row, int column) { return mapping_[row * columns_ + column]; }

  // The shape that replaces the utah at a place of the walk, null almost everywhere.
  const Shape* CornerCase(int row, int column) const {
    if (column == 0 && row == rows_) return &kCorners[0];
    if (column == 0 && row == rows_ - 2 && columns_ % 4 != 0) return &kCorners[1];
    if (column == 0 && row == rows_ - 2 && columns_ % 8 == 4) return &kCorners[2];
    if (column == 2 && row == rows_ + 4 && columns_ % 8 == 0) return &kCorners[3];
    return nullptr;
  }

  void PlaceCorner(int row, int column) {
    const Shape* const shape = CornerCase(row, column);
    if (shape == nullptr) return;
    const int codeword = *codewords_++;
    for (int bit = 0; bit < 8; ++bit) {
      const Place place = shape->places[bit];
      At(place.row < 0 ? place.row + rows_ : place.row,
         place.column < 0 ? place.column + columns_ : place.column) = LetterOfBit(codeword, bit);
    }
  }

  void PlaceUtah(int row, int column) {
    if (row < 0 || row >= rows_ || column < 0 || column >= columns_) return;
    if (At(row, column) != kUntouched) return;
    const int codeword = *codewords_++;
    if (row >= 2 && column >= 2) {
      PlaceInnerUtah(&At(row, column), codeword);
    } else {
      PlaceWrappedUtah(row, column, codeword);
    }
  }

  // All eight modules lie inside: by far the most frequent case, and the one that costs the time.
  void PlaceInnerUtah(char* eighth, int codeword) const {
    for (int bit = 0; bit < 8; ++bit) {
      const Place place = kUtah.places[bit];
      eighth[place.row * columns_ + place.column] = LetterOfBit(codeword, bit);
    }
  }

  void PlaceWrappedUtah(int row, int column, int codeword) {
    for (int bit = 0; bit < 8; ++bit) {
      PlaceWrapped(row + kUtah.places[bit].row, column + kUtah.places[bit].column,
                   LetterOfBit(codeword, bit));
    }
  }

  void PlaceWrapped(int row, int column, char letter) {
    if (row < 0) {
      row += rows_;
      column += 4 - (rows_ + 4) % 8;
    }
    if (column < 0) {
      column += columns_;
      row += 4 - (columns_ + 4) % 8;
    }
    if (kTakesRowsBack && row >= rows_) row -= rows_;
    At(row, column) = letter;
  }

  void FillLowerRightCorner() {
    if (At(rows_ - 1, columns_ - 1) != kUntouched) return;
    At(rows_ - 2, columns_ - 2) = kNarrowBar;
    At(rows_ - 2, columns_ - 1) = kNarrowSpace;
    At(rows_ - 1, columns_ - 2) = kNarrowSpace;
    At(rows_ - 1, columns_ - 1) = kNarrowBar;
  }

  const std::uint8_t* codewords_;  // the next one to be placed
  const int rows_;
  const int columns_;
  char* const mapping_;
};

}  // namespace

void PlaceCodewords(const std::uint8_t* codewords, int rows, int columns, char* mapping) {
  std::memset(mapping, kUntouched, static_cast<std::size_t>(rows * columns));
  Walk<false>(codewords, rows, columns, mapping).Run();
}

void PlaceDmreCodewords(const std::uint8_t* codewords, int rows, int columns, char* mapping) {
  std::memset(mapping, kUntouched, static_cast<std::size_t>(rows * columns));
  Walk<true>(codewords, rows, columns, mapping).Run();
}

}  // namespace barhatch
