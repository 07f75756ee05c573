// Data Matrix from the record to the reader, in all thirty sizes and all patterns that fill:
// strokes are marked as a head with a beam as wide as the gap marks them, points as square cells.
//
// zxing-cpp reads every size, 144 x 144 in the order of codewords that the industry writes. libdmtx
// follows another order there and judges the other 29.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "barhatch.h"
#include "support/DataMatrixReader.h"
#include "support/Fills.h"
#include "support/PlacementReference.h"
#include "support/Raster.h"
#include "support/ReaderOracle.h"
#include "support/SeededTexts.h"
#include "support/SymbolSizeReference.h"
#include "support/Text16.h"

namespace barhatch::test {
namespace {

constexpr int kPatterns[] = {0, 1, 2, 3, 5, 6};
constexpr double kGap = 0.2;  // a module is one unit
constexpr double kPixelsPerModule = 4.0;
constexpr int kSpiral = 5;

// Texts that go out in C40, Text, X12, EDIFACT, and in several modes.
constexpr const char* kAlphabets[] = {"ABCDEFGH 0123", "abcdefgh 0123", "ABC*>\r01", "!#%&-=()ABC",
                                      "Aa1!\n"};

enum class Image { kPlain, kInverted };

struct MatrixRequest {
  ReferenceSize size;
  std::string text;
  int pattern;
  Image image;
};

// An inverted symbol carries its quiet zone, light on a dark part.
MarkParameters ParametersOf(const MatrixRequest& request, double pixelsPerModule) {
  const int border = request.image == Image::kInverted ? 2 : 0;
  MarkParameters parameters;
  parameters.width = request.size.columns + border;
  parameters.height = request.size.rows + border;
  parameters.margin = 2.0;
  parameters.pixelsPerUnit = pixelsPerModule;
  parameters.beamWidth = kGap;
  parameters.ends = request.pattern == kSpiral ? StrokeEnds::kProjecting : StrokeEnds::kFlush;
  parameters.cellWidth = parameters.cellHeight = 1.0;
  parameters.colour =
      request.image == Image::kInverted ? MarkColour::kLightOnDark : MarkColour::kDarkOnLight;
  return parameters;
}

OwnedFill Generate(const MatrixRequest& request) {
  const Text16 text = Widen(request.text);
  DataMatrixBarcodeInfo info{};
  info.height = request.size.rows + (request.image == Image::kInverted ? 2 : 0);
  info.DataString = text.c_str();
  info.HatchingType = request.pattern;
  info.LineGap = kGap;
  info.InvertImage = request.image == Image::kInverted ? 1 : 0;
  info.MatrixSize = request.size.rows * 256 + request.size.columns;
  info.IsExpanding = 1;  // else 12 x 26 would be refused for texts that 8 x 32 holds
  info.QuietZone = request.image == Image::kInverted ? 1 : 0;
  return OwnedFill(GenerateDataMatrixBarcode(&info));
}

std::string Describe(const MatrixRequest& request) {
  return std::to_string(request.size.rows) + "x" + std::to_string(request.size.columns) +
         ", pattern " + std::to_string(request.pattern) +
         (request.image == Image::kInverted ? ", inverted, \"" : ", plain, \"") + request.text +
         '"';
}

// libdmtx loses its way in a picture of a certain scale now and then, as it does with pictures that
// are not ours; so it may look twice more, from other distances, as a camera would.
std::optional<ReadResult> ReadByDmtx(const FillBufferInfo& fill, const MatrixRequest& request) {
  std::optional<ReadResult> result;
  for (double pixelsPerModule : {4.0, 5.5, 7.0}) {
    result = Read(Reader::kDmtx, MarkStrokes(fill, ParametersOf(request, pixelsPerModule)),
                  Format::kDataMatrix);
    if (result && result->rows == request.size.rows && result->columns == request.size.columns)
      break;
  }
  return result;
}

// What the plain reader of the standard makes of the modules that the picture shows; nothing where
// it is not the text that was given, because a deviation touches it (docs/deviations.md, D-DM-7 to
// D-DM-10; the round trip of the encodation tests judges those texts). One block alone: up to 48
// x 48.
std::optional<std::string> PlainReading(const FillBufferInfo& fill, const MatrixRequest& request) {
  const MarkParameters parameters = ParametersOf(request, kPixelsPerModule);
  const int border = request.image == Image::kInverted ? 1 : 0;
  const int columns = request.size.columns + 2 * border;
  const std::string framed = SampleModules(MarkStrokes(fill, parameters), parameters,
                                           request.size.rows + 2 * border, columns);
  std::string letters;
  for (int row = border; row < request.size.rows + border; ++row) {
    letters += framed.substr(static_cast<std::size_t>(row * columns + border),
                             static_cast<std::size_t>(request.size.columns));
  }
  std::vector<int> codewords = CodewordsOfGrid(letters, request.size);
  codewords.resize(static_cast<std::size_t>(request.size.data));
  const Reading reading = ReadDataCodewords(codewords);
  if (!reading.isSound) return std::nullopt;
  std::string text;
  for (int item : reading.items) {
    if (item > 255) return std::nullopt;
    text += static_cast<char>(item);
  }
  return text;
}

// The next text that no deviation touches. Most are; a text that ends in C40, Text or X12 one below
// a square capacity is not.
std::string NextUntouchedText(SeededTexts& texts, const std::string& alphabet,
                              MatrixRequest request) {
  for (int tries = 0; tries < 100; ++tries) {
    request.text = texts.Next(alphabet, 1, static_cast<std::size_t>(request.size.data));
    const OwnedFill fill = Generate(request);
    if (fill && PlainReading(*fill, request) == request.text) return request.text;
  }
  ADD_FAILURE() << "no text of " << alphabet << " is untouched in " << Describe(request);
  return "";
}

void ExpectRead(const MatrixRequest& request) {
  const OwnedFill fill = Generate(request);
  ASSERT_TRUE(fill) << Describe(request);
  const Raster picture = MarkStrokes(*fill, ParametersOf(request, kPixelsPerModule));
  const auto byZxing = Read(Reader::kZxing, picture, Format::kDataMatrix);
  ASSERT_TRUE(byZxing) << Describe(request);
  EXPECT_EQ(byZxing->text, request.text) << Describe(request);
  if (request.size.rows == 144) return;
  const auto byDmtx = ReadByDmtx(*fill, request);
  ASSERT_TRUE(byDmtx) << Describe(request);
  EXPECT_EQ(byDmtx->text, request.text) << Describe(request);
}

class MatrixMarking : public testing::TestWithParam<int> {};

TEST_P(MatrixMarking, EveryPatternPlainAndInvertedIsRead) {
  const ReferenceSize size = ReferenceSizes()[static_cast<std::size_t>(GetParam())];
  SeededTexts texts(static_cast<std::uint32_t>(16022 + GetParam()));
  const std::size_t full = static_cast<std::size_t>(size.data);
  for (int pattern : kPatterns) {
    for (Image image : {Image::kPlain, Image::kInverted}) {
      // Digits fill the symbol to the last codeword.
      ExpectRead({size, texts.Next("0123456789", 2 * full, 2 * full), pattern, image});
      if (size.rows >= 52) continue;
      for (const char* alphabet : kAlphabets) {
        MatrixRequest request{size, "", pattern, image};
        request.text = NextUntouchedText(texts, alphabet, request);
        ExpectRead(request);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EverySize, MatrixMarking, testing::Range(0, 30), [](const auto& nameOf) {
  const ReferenceSize size = ReferenceSizes()[static_cast<std::size_t>(nameOf.param)];
  return "Size" + std::to_string(size.rows) + "x" + std::to_string(size.columns);
});

// Error correction hides wrong modules from the readers: the picture itself has to show every one
// of them, so that the damage it can repair is left to the part's life.
TEST(MatrixMarkingOfTheLargestSymbol, EveryModuleOfThePictureIsThatOfThePoints) {
  for (int size : {8, 29}) {
    const MatrixRequest points{ReferenceSizes()[static_cast<std::size_t>(size)], "4711 and 0815", 6,
                               Image::kPlain};
    const auto modules = [](const MatrixRequest& request) {
      const MarkParameters parameters = ParametersOf(request, kPixelsPerModule);
      return SampleModules(MarkStrokes(*Generate(request), parameters), parameters,
                           request.size.rows, request.size.columns);
    };
    const std::string expected = modules(points);
    for (int pattern : kPatterns) {
      MatrixRequest strokes = points;
      strokes.pattern = pattern;
      EXPECT_EQ(modules(strokes), expected) << Describe(strokes);
    }
  }
}

}  // namespace
}  // namespace barhatch::test
