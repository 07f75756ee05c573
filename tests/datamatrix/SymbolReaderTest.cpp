// Symbols made of chosen codewords, through all stages behind the encodation, read back by
// independent readers.
#include <gtest/gtest.h>

#include <string>

#include "datamatrix/CodewordBuffer.h"
#include "datamatrix/Interleaving.h"
#include "datamatrix/Placement.h"
#include "datamatrix/SizeTesting.h"
#include "support/OwnedGrid.h"
#include "support/ReaderOracle.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::OwnedGrid;
using test::ReferenceSize;

// Two digits a codeword.
std::string Digits(int codewords) {
  std::string digits;
  for (int i = 0; i < codewords; ++i) {
    const int pair = (i * i + 7 * i) % 100;
    digits += static_cast<char>('0' + pair / 10);
    digits += static_cast<char>('0' + pair % 10);
  }
  return digits;
}

OwnedGrid Symbol(const ReferenceSize& reference, const std::string& digits) {
  SymbolSize size{};
  EXPECT_FALSE(
      ChooseSymbolSize(reference.data, {reference.rows, reference.columns, 0}, size).IsRefused());
  CodewordBuffer codewords;
  for (std::size_t i = 0; i < digits.size(); i += 2)
    codewords.Append(130 + 10 * (digits[i] - '0') + (digits[i + 1] - '0'));
  codewords.PadTo(size.dataCodewords);
  Conformance how = Conformance::Device();
  AddErrorCorrection(size, how, codewords.data());
  std::string mapping(static_cast<std::size_t>(size.mappingRows * size.mappingColumns), 'x');
  PlaceCodewords(codewords.data(), size.mappingRows, size.mappingColumns, mapping.data());
  return test::Drawn(size, 1, mapping);
}

// The grid as a picture of four pixels a module.
test::Raster PictureOf(const OwnedGrid& grid) {
  constexpr int kPixels = 4;
  const std::string letters = grid.Letters();
  test::Raster picture(kPixels * grid.Columns(), kPixels * grid.Rows(), test::kLightShade);
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int column = 0; column < grid.Columns(); ++column) {
      if (letters[static_cast<std::size_t>(row * grid.Columns() + column)] != 'A') continue;
      picture.Fill(kPixels * column, kPixels * row, kPixels * (column + 1), kPixels * (row + 1),
                   test::kDarkShade);
    }
  }
  return picture;
}

std::string TextRead(test::Reader reader, const OwnedGrid& grid) {
  const auto result = test::Read(reader, PictureOf(grid), test::Format::kDataMatrix);
  return result ? result->text : "not read";
}

TEST(SymbolReading, ZxingReadsEverySizeFullAndNearlyEmpty) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    for (int codewords : {1, size.data - 1, size.data}) {
      const OwnedGrid grid = Symbol(size, Digits(codewords));
      EXPECT_EQ(TextRead(test::Reader::kZxing, grid), Digits(codewords))
          << size.rows << "x" << size.columns << " with " << codewords;
    }
  }
}

// libdmtx takes the codewords of 144 x 144 in another order (D-DM-1).
TEST(SymbolReading, LibdmtxReadsEverySizeButTheLargest) {
  for (const ReferenceSize& size : test::ReferenceSizes()) {
    if (size.rows == 144) continue;
    const OwnedGrid grid = Symbol(size, Digits(size.data));
    EXPECT_EQ(TextRead(test::Reader::kDmtx, grid), Digits(size.data))
        << size.rows << "x" << size.columns;
  }
}

}  // namespace
}  // namespace barhatch
