// The readers themselves, tried on pictures that neither the library nor MarkStrokes had a hand in:
// zxing-cpp's own generator draws them, add-ons are drawn from the published patterns.
#include "support/ReaderOracle.h"

#include <ZXing/BitMatrix.h>
#include <ZXing/MultiFormatWriter.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace barhatch::test {
namespace {

constexpr Reader kReaders[] = {Reader::kZxing, Reader::kZbar, Reader::kDmtx};
constexpr int kPixels = 4;  // a module
constexpr int kMargin = 8;  // pixels around the symbol
constexpr int kRows = 12;   // of pixels of a linear symbol

using Grid = std::vector<std::string>;  // rows of modules from the top, '1' dark

Grid Generate(ZXing::BarcodeFormat format, const std::wstring& text) {
  const ZXing::BitMatrix matrix = ZXing::MultiFormatWriter(format).setMargin(0).encode(text, 0, 0);
  Grid grid;
  const int rows = format == ZXing::BarcodeFormat::DataMatrix ? matrix.height() : 1;
  for (int y = 0; y < rows; ++y) {
    grid.emplace_back();
    for (int x = 0; x < matrix.width(); ++x) grid.back() += matrix.get(x, y) ? '1' : '0';
  }
  return grid;
}

Raster Draw(const Grid& grid) {
  const int rowHeight = grid.size() == 1 ? kRows : kPixels;
  const int columns = static_cast<int>(grid[0].size());
  const int rows = static_cast<int>(grid.size());
  Raster picture(columns * kPixels + 2 * kMargin, rows * rowHeight + 2 * kMargin, kLightShade);
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      if (grid[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] != '1') continue;
      const int x = kMargin + column * kPixels;
      const int y = kMargin + row * rowHeight;
      picture.Fill(x, y, x + kPixels, y + rowHeight, kDarkShade);
    }
  }
  return picture;
}

std::string Text(Reader reader, const Raster& picture, Format format) {
  const auto result = Read(reader, picture, format);
  return result ? result->text : "(nothing)";
}

struct Sample {
  const char* name;
  Format format;
  ZXing::BarcodeFormat generator;
  std::wstring text;
  std::string read;
  std::vector<Reader> readers;
};

void PrintTo(const Sample& sample, std::ostream* out) { *out << sample.name; }

const std::vector<Reader> kLinear = {Reader::kZxing, Reader::kZbar};
const std::vector<Reader> kMatrix = {Reader::kZxing, Reader::kDmtx};

const Sample kSamples[] = {
    {"Codabar", Format::kCodabar, ZXing::BarcodeFormat::Codabar, L"C12-34$:/.+D", "C12-34$:/.+D",
     kLinear},
    {"Code39", Format::kCode39, ZXing::BarcodeFormat::Code39, L"ABC-123 $/+%.", "ABC-123 $/+%.",
     kLinear},
    {"Code93", Format::kCode93, ZXing::BarcodeFormat::Code93, L"ABC-123", "ABC-123", kLinear},
    {"Code93FullAscii", Format::kCode93, ZXing::BarcodeFormat::Code93, L"Ab\u0001%~$", "Ab\x01%~$",
     kLinear},
    {"Code128", Format::kCode128, ZXing::BarcodeFormat::Code128, L"Abc-123456\t", "Abc-123456\t",
     kLinear},
    {"Ean13", Format::kEan13, ZXing::BarcodeFormat::EAN13, L"950110153100", "9501101531000",
     kLinear},
    {"Ean13WithLeadingZero", Format::kEan13, ZXing::BarcodeFormat::EAN13, L"001234567890",
     "0012345678905", kLinear},
    {"Ean8", Format::kEan8, ZXing::BarcodeFormat::EAN8, L"9501234", "95012346", kLinear},
    {"UpcA", Format::kUpcA, ZXing::BarcodeFormat::UPCA, L"01234567890", "012345678905", kLinear},
    {"UpcENumberSystem0", Format::kUpcE, ZXing::BarcodeFormat::UPCE, L"0123456", "01234565",
     kLinear},
    {"UpcENumberSystem1",
     Format::kUpcE,
     ZXing::BarcodeFormat::UPCE,
     L"1123456",
     "11234562",
     {Reader::kZxing}},
    {"Interleaved2of5", Format::kInterleaved2of5, ZXing::BarcodeFormat::ITF, L"307418", "307418",
     kLinear},
    {"Interleaved2of5ThatIsShort",
     Format::kInterleaved2of5,
     ZXing::BarcodeFormat::ITF,
     L"30",
     "30",
     {Reader::kZbar}},
    {"DataMatrix", Format::kDataMatrix, ZXing::BarcodeFormat::DataMatrix,
     L"A1B2C3D4E5F6G7H8I9J0K1L2", "A1B2C3D4E5F6G7H8I9J0K1L2", kMatrix},
    {"DataMatrixOfBytes", Format::kDataMatrix, ZXing::BarcodeFormat::DataMatrix,
     L"\u00e9\u00ff\u0001", "\xe9\xff\x01", kMatrix},
};

class ReaderOracle : public testing::TestWithParam<Sample> {
 protected:
  Grid Symbol() const { return Generate(GetParam().generator, GetParam().text); }
};

TEST_P(ReaderOracle, ReadsWhatAnIndependentGeneratorDrew) {
  const Raster picture = Draw(Symbol());
  for (const Reader reader : GetParam().readers) {
    if (!HasReader(reader)) continue;
    EXPECT_EQ(Text(reader, picture, GetParam().format), GetParam().read);
  }
}

TEST_P(ReaderOracle, FindsNothingInADamagedPicture) {
  Raster picture = Draw(Symbol());
  const int middle = picture.Width() / 2;
  picture.Fill(middle - 4 * kPixels, 0, middle + 4 * kPixels, picture.Height(), kLightShade);
  for (const Reader reader : kReaders) {
    EXPECT_EQ(Text(reader, picture, GetParam().format), "(nothing)");
  }
}

TEST_P(ReaderOracle, FindsNothingInTheNegative) {
  Raster picture = Draw(Symbol());
  picture.Invert();
  for (const Reader reader : kReaders) {
    EXPECT_EQ(Text(reader, picture, GetParam().format), "(nothing)");
  }
}

TEST_P(ReaderOracle, FindsNothingInTheMirrorImage) {
  Grid mirrored = Symbol();
  for (std::string& row : mirrored) row = std::string(row.rbegin(), row.rend());
  for (const Reader reader : kReaders) {
    EXPECT_EQ(Text(reader, Draw(mirrored), GetParam().format), "(nothing)");
  }
}

TEST_P(ReaderOracle, FindsNoOtherSymbology) {
  const Raster picture = Draw(Symbol());
  const bool isCode39 = GetParam().format == Format::kCode39;
  const Format other = isCode39 ? Format::kCode128 : Format::kCode39;
  for (const Reader reader : kReaders) EXPECT_EQ(Text(reader, picture, other), "(nothing)");
}

INSTANTIATE_TEST_SUITE_P(EverySymbology, ReaderOracle, testing::ValuesIn(kSamples),
                         [](const auto& sample) { return std::string(sample.param.name); });

TEST(ReaderOracleOrientation, DataMatrixThatIsTurnedOrUpsideDownIsNotRead) {
  const Grid upright = Generate(ZXing::BarcodeFormat::DataMatrix, L"ABC123");
  Grid upsideDown(upright.rbegin(), upright.rend());
  Grid turned(upright);
  Grid halfTurned(upsideDown);
  for (std::size_t y = 0; y < upright.size(); ++y) {
    for (std::size_t x = 0; x < upright.size(); ++x)
      turned[x][upright.size() - 1 - y] = upright[y][x];
  }
  for (std::string& row : halfTurned) row = std::string(row.rbegin(), row.rend());
  for (const Reader reader : {Reader::kZxing, Reader::kDmtx}) {
    if (!HasReader(reader)) continue;
    EXPECT_EQ(Text(reader, Draw(upright), Format::kDataMatrix), "ABC123");
    EXPECT_EQ(Text(reader, Draw(upsideDown), Format::kDataMatrix), "(nothing)");
    EXPECT_EQ(Text(reader, Draw(turned), Format::kDataMatrix), "(nothing)");
    EXPECT_EQ(Text(reader, Draw(halfTurned), Format::kDataMatrix), "(nothing)");
  }
}

// The add-ons of the GS1 General Specifications' examples, their elements written out from the
// patterns: guard, digits, 01 between digits.
TEST(ReaderOracleAddOn, IsReadBesideTheSymbol) {
  const std::string two =
      "1011"
      "0011001"
      "01"
      "0010011";
  const std::string five =
      "1011"
      "0111001"
      "01"
      "0100011"
      "01"
      "0100001"
      "01"
      "0010011"
      "01"
      "0011001";
  struct {
    Format format;
    ZXing::BarcodeFormat generator;
    std::wstring digits;
    std::string read;
  } const symbols[] = {
      {Format::kEan13, ZXing::BarcodeFormat::EAN13, L"977138452401", "9771384524017"},
      {Format::kEan8, ZXing::BarcodeFormat::EAN8, L"9501234", "95012346"},
      {Format::kUpcA, ZXing::BarcodeFormat::UPCA, L"01234567890", "012345678905"},
      {Format::kUpcE, ZXing::BarcodeFormat::UPCE, L"0123456", "01234565"},
  };
  for (const auto& symbol : symbols) {
    const std::string main = Generate(symbol.generator, symbol.digits)[0] + "000000000";
    for (const auto& [modules, digits] : {std::pair(two, "12"), std::pair(five, "54321")}) {
      for (const Reader reader : kLinear) {
        if (!HasReader(reader)) continue;
        const auto result = Read(reader, Draw({main + modules}), symbol.format, AddOn::kRequired);
        ASSERT_TRUE(result) << symbol.read << " " << digits;
        EXPECT_EQ(result->text, symbol.read);
        EXPECT_EQ(result->addOn, digits);
        EXPECT_EQ(Text(reader, Draw({main + modules}), symbol.format), symbol.read);
      }
    }
  }
}

TEST(ReaderOracleAddOn, IsMissedWhereThereIsNone) {
  const Raster picture = Draw(Generate(ZXing::BarcodeFormat::EAN13, L"977138452401"));
  for (const Reader reader : kLinear) {
    EXPECT_FALSE(Read(reader, picture, Format::kEan13, AddOn::kRequired));
  }
}

TEST(ReaderOracleDetails, IdentifierTellsOfAnFnc1InFirstPosition) {
  const auto plain = Read(Reader::kZxing, Draw(Generate(ZXing::BarcodeFormat::Code128, L"0112")),
                          Format::kCode128);
  const auto gs1 =
      Read(Reader::kZxing, Draw(Generate(ZXing::BarcodeFormat::Code128, L"\u00f10112\u00f1AB")),
           Format::kCode128);
  ASSERT_TRUE(plain && gs1);
  EXPECT_EQ(plain->identifier, "]C0");
  EXPECT_EQ(gs1->identifier, "]C1");
  EXPECT_EQ(gs1->text,
            "0112\x1D"
            "AB");
}

TEST(ReaderOracleDetails, SizeOfADataMatrixIsReported) {
  if (!HasReader(Reader::kDmtx)) GTEST_SKIP() << "built without the reader";
  const auto result =
      Read(Reader::kDmtx, Draw(Generate(ZXing::BarcodeFormat::DataMatrix, L"123456")),
           Format::kDataMatrix);
  ASSERT_TRUE(result);
  EXPECT_EQ(result->rows, 10);
  EXPECT_EQ(result->columns, 10);
}

TEST(ReaderOracleDetails, PictureOfAPixelOrTwoHoldsNothing) {
  for (const Reader reader : kReaders) {
    for (const int size : {1, 2, 3, 7, 8, 9}) {
      const Raster dot(size, size, kDarkShade);
      EXPECT_EQ(Text(reader, dot, Format::kDataMatrix), "(nothing)");
      EXPECT_EQ(Text(reader, dot, Format::kCode39), "(nothing)");
    }
  }
}

}  // namespace
}  // namespace barhatch::test
