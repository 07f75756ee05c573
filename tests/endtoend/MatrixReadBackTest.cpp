// Data Matrix from the record to the reader, in all thirty sizes and all patterns that fill:
// strokes are marked as a head with a beam as wide as the gap marks them, points as square cells.
//
// zxing-cpp reads every size, 144 x 144 in the order of codewords that the industry writes. libdmtx
// follows another order there and judges the other 29.
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "ReadTally.h"
#include "barhatch.h"
#include "support/DataMatrixReader.h"
#include "support/ExpectedMatrixReading.h"
#include "support/Fills.h"
#include "support/PlacementReference.h"
#include "support/Raster.h"
#include "support/ReaderOracle.h"
#include "support/SeededTexts.h"
#include "support/SymbolSizeReference.h"
#include "support/Text16.h"
#include "support/TextClasses.h"

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
  int codeFormat = 0;
  int asked = -1;  // MatrixSize; that of the size if below 0
  int isExpanding = 1;
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
  info.format = request.codeFormat;
  info.MatrixSize =
      request.asked < 0 ? request.size.rows * 256 + request.size.columns : request.asked;
  // Without permission, 12 x 26 would be refused for texts that 8 x 32 holds.
  info.IsExpanding = static_cast<std::uint8_t>(request.isExpanding);
  info.QuietZone = request.image == Image::kInverted ? 1 : 0;
  return OwnedFill(GenerateDataMatrixBarcode(&info));
}

std::string Describe(const MatrixRequest& request) {
  return std::to_string(request.size.rows) + "x" + std::to_string(request.size.columns) +
         ", pattern " + std::to_string(request.pattern) +
         (request.image == Image::kInverted ? ", inverted, " : ", plain, ") + "format " +
         std::to_string(request.codeFormat) + ", expanding " + std::to_string(request.isExpanding) +
         ", " + Escaped(request.text);
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

class MatrixReadBack : public testing::TestWithParam<int> {};

TEST_P(MatrixReadBack, EveryPatternPlainAndInvertedIsRead) {
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

INSTANTIATE_TEST_SUITE_P(EverySize, MatrixReadBack, testing::Range(0, 30), [](const auto& nameOf) {
  const ReferenceSize size = ReferenceSizes()[static_cast<std::size_t>(nameOf.param)];
  return "Size" + std::to_string(size.rows) + "x" + std::to_string(size.columns);
});

// Error correction hides wrong modules from the readers: the picture itself has to show every one
// of them, so that the damage it can repair is left to the part's life.
TEST(MatrixReadBackOfTheLargestSymbol, EveryModuleOfThePictureIsThatOfThePoints) {
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

// The points of a fill as modules, without a picture: fast enough for every text.
std::string GridOfPoints(const FillBufferInfo& fill, const ReferenceSize& size) {
  std::string grid(static_cast<std::size_t>(size.rows * size.columns), 'a');
  for (int i = 0; i + 1 < fill.BufferLength; i += 2) {
    const int column = static_cast<int>(fill.FilledArray[i]);
    const int row = size.rows - 1 - static_cast<int>(fill.FilledArray[i + 1]);
    grid.at(static_cast<std::size_t>(row * size.columns + column)) = 'A';
  }
  return grid;
}

// The data codewords of one block, or of several in the order of the standard, which leaves data
// in their order.
Reading PlainReadingOfPoints(const FillBufferInfo& fill, const ReferenceSize& size) {
  std::vector<int> codewords = CodewordsOfGrid(GridOfPoints(fill, size), size);
  codewords.resize(static_cast<std::size_t>(size.data));
  return ReadDataCodewords(codewords);
}

// What zxing-cpp makes of the items: an FNC1 behind the first codeword is not in the text, another
// is byte 29; macro headers are written out with their trailer.
std::string TextByZxing(const std::vector<int>& items) {
  std::string text;
  std::string trailer;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i] == kReadMacro05 || items[i] == kReadMacro06) {
      text += items[i] == kReadMacro05 ? "[)>\x1E"
                                         "05\x1D"
                                       : "[)>\x1E"
                                         "06\x1D";
      trailer = "\x1E\x04";
    } else if (items[i] == kReadFnc1) {
      if (i > 2) text += '\x1D';  // a pair of digits is one codeword
    } else {
      text += static_cast<char>(items[i]);
    }
  }
  return text + trailer;
}

enum class Chain { kPoints, kPictureToo };

// The prediction says what stands in the symbol. Where it is not sound, by a deviation, readers may
// refuse it or say anything, and the plain reader alone has to find what was predicted.
void ExpectAsPredicted(MatrixRequest request, Chain chain, ReadTally& tally) {
  const int rows = request.asked < 0 ? request.size.rows : request.asked / 256;
  const int columns = request.asked < 0 ? request.size.columns : request.asked % 256;
  const ExpectedMatrixReading expected = ExpectedReadingOfMatrix(
      Wide(request.text), request.codeFormat, {rows, columns, request.isExpanding});
  request.asked = rows * 256 + columns;
  if (expected.size) request.size = *expected.size;
  request.pattern = 6;
  const OwnedFill points = Generate(request);
  ASSERT_EQ(points != nullptr, expected.size.has_value()) << Describe(request);
  if (!points) return tally.Count("refused_as_expected");
  const Reading plain = PlainReadingOfPoints(*points, request.size);
  ASSERT_EQ(plain.items, expected.reading.items) << Describe(request) << " " << expected.ids;
  ASSERT_EQ(plain.isSound, expected.reading.isSound) << Describe(request) << " " << expected.ids;
  tally.Count("read_by_plain_reader");
  if (!expected.ids.empty()) tally.Count("touched_by_a_deviation");
  if (chain == Chain::kPoints) return;
  if (!plain.isSound) return tally.Count("not_sound_as_expected");
  request.pattern = 0;
  const OwnedFill fill = Generate(request);
  ASSERT_TRUE(fill) << Describe(request);
  const auto read =
      Read(Reader::kZxing, MarkStrokes(*fill, ParametersOf(request, 3.0)), Format::kDataMatrix);
  const std::string text = TextByZxing(plain.items);
  if (text.empty()) {  // the byte 128 alone: D-DM-4
    EXPECT_FALSE(read && !read->text.empty()) << Describe(request);
    return tally.Count("nothing_as_expected_zxing");
  }
  ASSERT_TRUE(read) << Describe(request) << " " << expected.ids;
  ASSERT_EQ(Escaped(read->text), Escaped(text)) << Describe(request) << " " << expected.ids;
  tally.Count("read_by_zxing");
}

// Every sequence of the nine classes of up to so many characters: through the picture, and by its
// points. BARHATCH_READ_BACK_LENGTH=6 asks for all of them through the picture.
int LongestThroughThePicture() {
  const char* const asked = std::getenv("BARHATCH_READ_BACK_LENGTH");
  return asked != nullptr ? std::atoi(asked) : kSampleShare > 1 ? 3 : 5;
}
constexpr int kLongestByPoints = kSampleShare > 1 ? 4 : 6;

class MatrixReadBackOfClasses : public testing::TestWithParam<int> {};

TEST_P(MatrixReadBackOfClasses, EverySequenceOfCharacters) {
  const int length = GetParam();
  if (length > kLongestByPoints && length > LongestThroughThePicture()) return;
  const Chain chain = length <= LongestThroughThePicture() ? Chain::kPictureToo : Chain::kPoints;
  std::mt19937 random(static_cast<unsigned>(length));
  ReadTally tally;
  long sequences = 1;
  for (int i = 0; i < length; ++i) sequences *= kTextClassCount;
  for (long sequence = 0; sequence < sequences; ++sequence) {
    std::string text;
    for (long rest = sequence; static_cast<int>(text.size()) < length; rest /= kTextClassCount) {
      const std::string characters = CharactersOfClass(static_cast<int>(rest % kTextClassCount));
      text += characters[Below(random, characters.size())];
    }
    MatrixRequest request{ReferenceSizes()[0], text, 0, Image::kPlain};
    request.asked = 0;
    ExpectAsPredicted(request, chain, tally);
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(UpToSix, MatrixReadBackOfClasses, testing::Range(1, 7));

// The last codewords: texts of one class or of two, as long as leaves 0 to 3 codewords and a little
// more or less, for each size asked for and for the smallest square, in every format.
void ExpectEndsRead(const ReferenceSize& size, int first, int second, ReadTally& tally) {
  std::mt19937 random(static_cast<unsigned>(size.rows * 1000 + size.columns + first * 9 + second));
  const std::string heads = CharactersOfClass(first);
  const std::string tails = CharactersOfClass(second);
  std::string whole;
  for (int i = 0; i < 2 * size.data + 4; ++i) {
    const std::string& from = i < size.data / 2 ? heads : tails;
    whole += from[Below(random, from.size())];
  }
  for (int step = 0; step < 6; ++step) {
    // The longest text that has `step` codewords to spare, by halving.
    std::size_t fits = 1;
    std::size_t fails = whole.size() + 1;
    while (fails - fits > 1) {
      const std::size_t middle = (fits + fails) / 2;
      const auto encoded = EncodeByReference(Wide(whole.substr(0, middle)), 0, {0, 0, 1});
      (static_cast<int>(encoded.codewords.size()) + step <= size.data ? fits : fails) = middle;
    }
    MatrixRequest request{size, whole.substr(0, fits), 0, Image::kPlain};
    request.codeFormat = step % 4;
    for (request.isExpanding = 0; request.isExpanding <= 2; ++request.isExpanding) {
      ExpectAsPredicted(request, Chain::kPictureToo, tally);
    }
    request.isExpanding = 1;
    request.asked = 0;
    request.codeFormat = 0;
    ExpectAsPredicted(request, Chain::kPictureToo, tally);
  }
}

TEST_P(MatrixReadBack, TheLastCodewordsOfEveryClassAndPair) {
  const ReferenceSize size = ReferenceSizes()[static_cast<std::size_t>(GetParam())];
  ReadTally tally;
  const int share = (size.data > 200 ? 27 : size.data > 40 ? 9 : 1) * kSampleShare;
  for (int pair = 0; pair < kTextClassCount * kTextClassCount; ++pair) {
    if ((pair + GetParam()) % share != 0) continue;
    ExpectEndsRead(size, pair / kTextClassCount, pair % kTextClassCount, tally);
    if (HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace barhatch::test
