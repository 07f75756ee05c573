// Symbols made of chosen codewords, through all stages behind the encodation, read back by
// independent readers.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "datamatrix/CodewordBuffer.h"
#include "datamatrix/ComposedCodewords.h"
#include "datamatrix/Interleaving.h"
#include "datamatrix/MatrixReading.h"
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

// Pads and error correction are added to the codewords.
OwnedGrid Symbol(const SymbolSize& size, CodewordBuffer& codewords) {
  codewords.PadTo(size.dataCodewords);
  Conformance how = Conformance::Device();
  AddErrorCorrection(size, how, codewords.data());
  std::string mapping(static_cast<std::size_t>(size.mappingRows * size.mappingColumns), 'x');
  PlaceCodewords(codewords.data(), size.mappingRows, size.mappingColumns, mapping.data());
  return test::Drawn(size, 1, mapping);
}

OwnedGrid Symbol(const ReferenceSize& reference, const std::string& digits) {
  CodewordBuffer codewords;
  for (std::size_t i = 0; i < digits.size(); i += 2)
    codewords.Append(130 + 10 * (digits[i] - '0') + (digits[i + 1] - '0'));
  return Symbol(test::SizeOf(reference), codewords);
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

// Every mode of the standard, ours or not, is read by the library as by a reader: FNC1 and macros,
// which are no characters, included.
TEST(SymbolReading, ZxingReadsComposedCodewordsAsTheLibraryDoes) {
  test::Composer composer(5);
  for (int round = 0; round < 1500; ++round) {
    CodewordBuffer codewords;
    for (const int codeword : composer.Compose()) codewords.Append(codeword);
    SymbolSize size{};
    ASSERT_FALSE(ChooseSymbolSize(codewords.Count(), {0, 0, 1}, size).IsRefused());
    const OwnedGrid grid = Symbol(size, codewords);
    std::string bytes(MostBytesRead(size.dataCodewords), '?');
    std::size_t length = 0;
    ASSERT_TRUE(
        ReadCodewords(codewords.data(), size.dataCodewords, bytes.data(), bytes.size(), length));
    bytes.resize(length);
    ASSERT_EQ(TextRead(test::Reader::kZxing, grid), bytes) << testing::PrintToString(
        std::vector<int>(codewords.data(), codewords.data() + codewords.Count()));
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
