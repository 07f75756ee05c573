// Both Data Matrix readers on every size, in pictures that libdmtx's own encoder draws.
#include <dmtx.h>
#include <gtest/gtest.h>

#include <string>

#include "support/ReaderOracle.h"

namespace barhatch::test {
namespace {

constexpr int kPixels = 4;  // a module
constexpr int kFnc1 = '|';  // stands for an FNC1 in the texts of this file

// Fills the symbol to the last codeword: one ASCII codeword for each of these characters.
std::string FullText(int size) {
  const int codewords = dmtxGetSymbolAttribute(DmtxSymAttribSymbolDataWords, size);
  std::string text;
  for (int i = 0; i < codewords; ++i) text += "ABab!?zK"[(i * i + i / 3) % 8];
  return text;
}

Raster Draw(int size, std::string text) {
  DmtxEncode* encoder = dmtxEncodeCreate();
  dmtxEncodeSetProp(encoder, DmtxPropPixelPacking, DmtxPack8bppK);
  dmtxEncodeSetProp(encoder, DmtxPropModuleSize, kPixels);
  dmtxEncodeSetProp(encoder, DmtxPropMarginSize, kPixels);
  dmtxEncodeSetProp(encoder, DmtxPropSizeRequest, size);
  dmtxEncodeSetProp(encoder, DmtxPropFnc1, kFnc1);
  dmtxEncodeDataMatrix(encoder, static_cast<int>(text.size()),
                       reinterpret_cast<unsigned char*>(text.data()));
  Raster picture(encoder->image->width, encoder->image->height, kLightShade);
  for (int y = 0; y < picture.Height(); ++y) {
    for (int x = 0; x < picture.Width(); ++x) {
      int shade = 0;
      dmtxImageGetPixelValue(encoder->image, x, picture.Height() - 1 - y, 0, &shade);
      if (shade < 128) picture.Fill(x, y, x + 1, y + 1, kDarkShade);
    }
  }
  dmtxEncodeDestroy(&encoder);
  return picture;
}

TEST(DataMatrixReaders, ReadEverySize) {
  for (int size = DmtxSymbol10x10; size <= DmtxSymbol16x48; ++size) {
    const std::string text = FullText(size);
    const Raster picture = Draw(size, text);
    const auto dmtx = Read(Reader::kDmtx, picture, Format::kDataMatrix);
    ASSERT_TRUE(dmtx) << size;
    EXPECT_EQ(dmtx->text, text);
    EXPECT_EQ(dmtx->rows, dmtxGetSymbolAttribute(DmtxSymAttribSymbolRows, size));
    EXPECT_EQ(dmtx->columns, dmtxGetSymbolAttribute(DmtxSymAttribSymbolCols, size));
    const auto zxing = Read(Reader::kZxing, picture, Format::kDataMatrix);
    // libdmtx interleaves the blocks of 144 x 144 in an order of its own.
    EXPECT_EQ(zxing.has_value(), size != DmtxSymbol144x144) << size;
    if (zxing) {
      EXPECT_EQ(zxing->text, text);
    }
  }
}

TEST(DataMatrixReaders, TellWhereAnFnc1Stands) {
  struct {
    const char* text;
    const char* zxing;
    const char* identifier;
    const char* dmtx;
  } const cases[] = {
      {"ABC", "ABC", "]d1", "ABC"},
      {"|ABC", "ABC", "]d2", "\35ABC"},  // \35 is byte 29 in octal
      {"A|BC", "ABC", "]d3", "A\35BC"},
      {"AB|C", "AB\35C", "]d1", "AB\35C"},
  };
  for (const auto& expected : cases) {
    const Raster picture = Draw(DmtxSymbol12x12, expected.text);
    const auto zxing = Read(Reader::kZxing, picture, Format::kDataMatrix);
    const auto dmtx = Read(Reader::kDmtx, picture, Format::kDataMatrix);
    ASSERT_TRUE(zxing && dmtx) << expected.text;
    EXPECT_EQ(zxing->text, expected.zxing);
    EXPECT_EQ(zxing->identifier, expected.identifier);
    EXPECT_EQ(dmtx->text, expected.dmtx);
  }
}

}  // namespace
}  // namespace barhatch::test
