// Data Matrix by the book against an independent open-source generator (libzint): every size module
// for module, and never a larger size for a text.
#include <gtest/gtest.h>
#include <zint.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "datamatrix/PublishedMatrix.h"
#include "datamatrix/TokensOfTests.h"
#include "support/TextClasses.h"

namespace barhatch {
namespace {

struct Grid {
  int rows = 0;
  int columns = 0;
  std::string modules;  // '1' and '0'
};

// size: the generator's number, 1 to 24 squares, 25 to 30 rectangles, 31 to 48 DMRE; 0 for the
// smallest square.
Grid GridOfGenerator(const std::string& text, int size) {
  const std::unique_ptr<zint_symbol, void (*)(zint_symbol*)> symbol(ZBarcode_Create(),
                                                                    ZBarcode_Delete);
  symbol->symbology = BARCODE_DATAMATRIX;
  symbol->input_mode = DATA_MODE;
  symbol->option_2 = size;
  if (size == 0) symbol->option_3 = DM_SQUARE;
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  EXPECT_LT(ZBarcode_Encode(symbol.get(), bytes, static_cast<int>(text.size())), ZINT_ERROR)
      << symbol->errtxt;
  Grid grid = {symbol->rows, symbol->width, ""};
  for (int row = 0; row < symbol->rows; ++row) {
    for (int x = 0; x < symbol->width; ++x) {
      grid.modules += ((symbol->encoded_data[row][x / 8] >> (x % 8)) & 1) != 0 ? '1' : '0';
    }
  }
  return grid;
}

Grid GridOf(const std::string& text, const SizeWish& wish, Conformance how) {
  const std::vector<Token> tokens = test::TokensOf(text);
  MatrixSymbol symbol;
  const PublishedText published = {{tokens.data(), tokens.size()}};
  const Refusal refusal =
      EncodePublishedMatrix(published, wish, kNoQuietZone, how, RuntimeMemory(), symbol);
  EXPECT_FALSE(refusal.IsRefused()) << refusal.figure;
  Grid grid = {symbol.rows, symbol.columns, ""};
  for (const char* letter = symbol.letters; letter != nullptr && *letter != '\0'; ++letter)
    grid.modules += *letter == 'A' ? '1' : '0';
  RuntimeMemory().Release(symbol.letters);
  return grid;
}

// As many digits as the size holds leave nothing to choose. The generator writes 144 x 144 in the
// industry's order.
TEST(MatrixGenerator, EverySizeIsItsModuleForModule) {
  for (int size = 1; size <= 48; ++size) {
    const Grid empty = GridOfGenerator("1", size);
    const SymbolSize* const row = FindSize(empty.rows, empty.columns);
    ASSERT_NE(row, nullptr) << empty.rows << "x" << empty.columns;
    std::string digits;
    for (int i = 0; i < 2 * row->dataCodewords; ++i) digits += static_cast<char>('0' + i * i % 10);
    const Grid expected = GridOfGenerator(digits, size);
    const Conformance how = size == 24 ? Conformance::Device() : Conformance::Published();
    const Grid grid = GridOf(digits, {empty.rows, empty.columns, Shape::kSquare, false}, how);
    EXPECT_EQ(grid.rows, expected.rows);
    EXPECT_EQ(grid.columns, expected.columns);
    EXPECT_EQ(grid.modules, expected.modules) << empty.rows << "x" << empty.columns;
    EXPECT_EQ(GridOf("1", {empty.rows, empty.columns, Shape::kSquare, false}, how).modules,
              empty.modules)
        << empty.rows << "x" << empty.columns << " of pads";
  }
}

std::string PartText(std::mt19937& random) {
  static const std::string kCapitals = "ABCDEFGHJKLMNPRSTUVWXYZ";
  std::string text = random() % 2 == 0 ? "SN" : "https://a.example/p/";
  for (int i = 0; i < 6; ++i) {
    text += random() % 3 != 0 ? static_cast<char>('0' + random() % 10)
                              : kCapitals[random() % kCapitals.size()];
    if (random() % 4 == 0) text += "-/. "[random() % 4];
  }
  return text;
}

TEST(MatrixGenerator, NeverASizeThatIsLarger) {
  std::mt19937 random(2011);
  for (int i = 0; i < 20000; ++i) {
    const std::string text =
        i % 4 == 0 ? PartText(random)
                   : test::RandomText(random, i % test::kTextClassCount,
                                      1 + test::Below(random, i % 10 == 0 ? 300 : 60));
    const Grid expected = GridOfGenerator(text, 0);
    const Grid grid = GridOf(text, {0, 0, Shape::kSquare, false}, Conformance::Published());
    ASSERT_LE(grid.rows, expected.rows) << testing::PrintToString(text);
  }
}

// 238, fourteen codewords for 21 stars, 254, the last star and the letter are 18. Versions of the
// generator differ in what they make of it.
TEST(MatrixGenerator, TwentyTwoStarsAndASmallLetterAre18x18) {
  const std::string text = std::string(22, '*') + "a";
  const Grid grid = GridOf(text, {0, 0, Shape::kSquare, false}, Conformance::Published());
  EXPECT_EQ(grid.rows, 18);
  EXPECT_EQ(grid.columns, 18);
}

}  // namespace
}  // namespace barhatch
