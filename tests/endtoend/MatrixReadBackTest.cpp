// Data Matrix from the record to the reader, in all thirty sizes and all patterns that fill:
// strokes are marked as a head with a beam as wide as the gap marks them, points as square cells.
//
// zxing-cpp reads every size, 144 x 144 in the order of codewords that the industry writes. libdmtx
// follows another order there and judges the other 29.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "ReadTally.h"
#include "barhatch.h"
#include "support/DataMatrixReader.h"
#include "support/EccReference.h"
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
constexpr int kStrokePatterns[] = {0, 1, 2, 3, 5};
constexpr double kGap = 0.2;  // a module is one unit
constexpr double kPixelsPerModule = 4.0;
constexpr int kSpiral = 5;

// Texts that go out in C40, Text, X12, EDIFACT, in several modes, and with extended characters.
constexpr const char* kAlphabets[] = {"ABCDEFGH 0123", "abcdefgh 0123", "ABC*>\r01",
                                      "!#%&-=()ABC",   "Aa1!\n",        "Aa1!_\x80\x81\xC4\xFF"};

enum class Image { kPlain, kPlainWithQuietZone, kInverted };
constexpr Image kImages[] = {Image::kPlain, Image::kPlainWithQuietZone, Image::kInverted};

struct MatrixRequest {
  ReferenceSize size;
  std::u16string text;  // units above 255 are ECI designators
  int pattern;
  Image image;
  int codeFormat = 0;
  int asked = -1;  // MatrixSize; that of the size if below 0
  int isExpanding = 1;
};

// Modules of quiet zone on both sides. An inverted symbol has it, light on a dark part.
int BorderOf(const MatrixRequest& request) { return request.image == Image::kPlain ? 0 : 2; }

MarkParameters ParametersOf(const MatrixRequest& request, double pixelsPerModule) {
  const int border = BorderOf(request);
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
  const Text16 text(request.text.begin(), request.text.end());
  DataMatrixBarcodeInfo info{};
  info.height = request.size.rows + BorderOf(request);
  info.DataString = text.c_str();
  info.HatchingType = request.pattern;
  info.LineGap = kGap;
  info.InvertImage = request.image == Image::kInverted ? 1 : 0;
  info.format = request.codeFormat;
  info.MatrixSize =
      request.asked < 0 ? request.size.rows * 256 + request.size.columns : request.asked;
  // Without permission, 12 x 26 would be refused for texts that 8 x 32 holds.
  info.IsExpanding = static_cast<std::uint8_t>(request.isExpanding);
  info.QuietZone = request.image == Image::kPlain ? 0 : 1;
  return OwnedFill(GenerateDataMatrixBarcode(&info));
}

std::string Describe(const MatrixRequest& request) {
  return std::to_string(request.size.rows) + "x" + std::to_string(request.size.columns) +
         ", pattern " + std::to_string(request.pattern) +
         (request.image == Image::kInverted ? ", inverted" : "") +
         (request.image == Image::kPlain ? "" : ", quiet zone") + ", format " +
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

// Error correction hides wrong modules from the readers: the picture itself has to show every one
// of them, so that the damage it can repair is left to the part's life.
TEST(MatrixReadBackOfTheLargestSymbol, EveryModuleOfThePictureIsThatOfThePoints) {
  for (int size : {8, 29}) {
    const MatrixRequest points{ReferenceSizes()[static_cast<std::size_t>(size)], u"4711 and 0815",
                               6, Image::kPlain};
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

// Data codewords stand in their order, whatever the number of blocks; so do the error codewords of
// up to ten blocks, dealt in turn from the first block on. D-DM-1: in 144 x 144 each round of error
// codewords begins with blocks 8 and 9, which have one data codeword less.
bool HasErrorCodewords(const std::vector<int>& codewords, const ReferenceSize& size) {
  const std::vector<int> data(codewords.begin(), codewords.begin() + size.data);
  const int blocks = BlocksOf(size.rows, size.columns);
  const auto coded = CodedBlocks(data, size.ecc, blocks);
  const int first = size.rows == 144 ? 8 : 0;
  for (int i = 0; i < size.ecc; ++i) {
    const auto& block = coded[static_cast<std::size_t>((i + first) % blocks)];
    const std::size_t at = block.size() - static_cast<std::size_t>(size.ecc / blocks - i / blocks);
    if (codewords[static_cast<std::size_t>(size.data + i)] != block[at]) return false;
  }
  return true;
}

// How far down the chain a text goes, each step with those before it.
enum class Chain { kPoints, kPicture, kEveryReader };

// What zxing-cpp makes of the items: an FNC1 behind the first codeword is not in the text, another
// is byte 29; macro headers are written out with their trailer. ECI designators are left out of the
// text, which is told once more with those that something follows at once, "AB\\001024CD".
struct ReaderText {
  std::string text;
  std::string trailer;
  std::string withEci;  // and with the trailer
  bool hasEci = false;
};

ReaderText TextByZxing(const std::vector<int>& items) {
  ReaderText read;
  std::string designator;
  const auto add = [&read, &designator](const std::string& text) {
    read.withEci += std::exchange(designator, "");
    read.text += text;
    for (const char c : text) read.withEci += c == '\\' ? "\\\\" : std::string(1, c);
  };
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i] == kReadMacro05 || items[i] == kReadMacro06) {
      add(std::string("[)>\x1E") + (items[i] == kReadMacro05 ? "05" : "06") + '\x1D');
      read.trailer = "\x1E\x04";
    } else if (items[i] == kReadFnc1) {
      if (i > 2) add("\x1D");  // a pair of digits is one codeword
    } else if (items[i] >= ReadEci(0)) {
      char digits[16];
      std::snprintf(digits, sizeof digits, "\\%06d", items[i] - ReadEci(0));
      designator = digits;
      read.hasEci = true;
    } else {
      add(std::string(1, static_cast<char>(items[i])));
    }
  }
  if (!read.trailer.empty()) read.withEci += designator + read.trailer;
  return read;
}

// What libdmtx makes of them: the same but for FNC1, which is byte 29 everywhere.
std::string TextByDmtx(std::vector<int> items) {
  std::replace(items.begin(), items.end(), kReadFnc1, 29);
  const ReaderText read = TextByZxing(items);
  return read.text + read.trailer;
}

// libdmtx takes the error codewords of 144 x 144 in another order, and takes an unlatch directly
// behind the latch for data. The library writes one where the first group behind a latch to X12 is
// not of X12.
bool IsForDmtx(const ReferenceSize& size, const std::vector<int>& codewords) {
  const int latchAndUnlatch[] = {238, 254};
  return size.rows != 144 && std::search(codewords.begin(), codewords.end(), latchAndUnlatch,
                                         latchAndUnlatch + 2) == codewords.end();
}

// zxing-cpp puts the symbology identifier in front, and the default designator, ISO 8859-1, where
// none of the symbol's own comes first.
std::string WithoutDefaults(const std::string& eciText) {
  const std::string text = eciText.substr(std::string("]d4").size());
  const std::string byDefault = "\\000003";
  return text.substr(0, byDefault.size()) == byDefault ? text.substr(byDefault.size()) : text;
}

void ExpectTextByZxing(const MatrixRequest& request, const FillBufferInfo& fill,
                       const ReaderText& expected, ReadTally& tally) {
  const auto read =
      Read(Reader::kZxing, MarkStrokes(fill, ParametersOf(request, 3.0)), Format::kDataMatrix);
  const std::string text = expected.text + expected.trailer;
  if (text.empty()) {  // the byte 128 alone: D-DM-4
    EXPECT_FALSE(read && !read->text.empty()) << Describe(request);
    return tally.Count("nothing_as_expected_zxing");
  }
  ASSERT_TRUE(read) << Describe(request);
  ASSERT_EQ(Escaped(read->text), Escaped(text)) << Describe(request);
  if (expected.hasEci) {
    ASSERT_EQ(Escaped(WithoutDefaults(read->eciText)), Escaped(expected.withEci))
        << Describe(request);
    tally.Count("with_designators_by_zxing");
  }
  tally.Count("read_by_zxing");
}

void ExpectTextByDmtx(const MatrixRequest& request, const FillBufferInfo& fill,
                      const std::string& text, ReadTally& tally) {
  const auto read = ReadByDmtx(fill, request);
  ASSERT_TRUE(read) << Describe(request);
  EXPECT_EQ(Escaped(read->text), Escaped(text)) << Describe(request);
  tally.Count("read_by_libdmtx");
}

// zxing-cpp throws where codewords that break the standard end in the middle of something.
std::optional<ReadResult> ReadUnsoundByZxing(const Raster& picture) {
  try {
    return Read(Reader::kZxing, picture, Format::kDataMatrix);
  } catch (const std::out_of_range&) {
    return std::nullopt;
  }
}

// Where a deviation makes codewords that break the standard, zxing-cpp refuses the symbol or goes
// on behind the break with anything; what it says then begins with what stands in front of it.
void ExpectNothingOrTheBeginning(const MatrixRequest& request, const FillBufferInfo& fill,
                                 const std::string& beginning, ReadTally& tally) {
  const auto read = ReadUnsoundByZxing(MarkStrokes(fill, ParametersOf(request, 3.0)));
  if (!read) return tally.Count("not_sound_refused_by_zxing");
  EXPECT_EQ(Escaped(read->text.substr(0, beginning.size())), Escaped(beginning))
      << Describe(request) << ": " << Escaped(read->text);
  tally.Count("not_sound_begun_by_zxing");
}

void ExpectAsPredicted(MatrixRequest request, Chain chain, ReadTally& tally) {
  const int rows = request.asked < 0 ? request.size.rows : request.asked / 256;
  const int columns = request.asked < 0 ? request.size.columns : request.asked % 256;
  const ExpectedMatrixReading expected = ExpectedReadingOfMatrix(
      request.text, request.codeFormat, {rows, columns, request.isExpanding});
  request.asked = rows * 256 + columns;
  if (expected.size) request.size = *expected.size;
  MatrixRequest inPoints = request;
  inPoints.pattern = 6;
  inPoints.image = Image::kPlain;
  const OwnedFill points = Generate(inPoints);
  ASSERT_EQ(points != nullptr, expected.size.has_value()) << Describe(request);
  if (!points) return tally.Count("refused_as_expected");
  std::vector<int> codewords = CodewordsOfGrid(GridOfPoints(*points, request.size), request.size);
  if (chain == Chain::kEveryReader) {
    ASSERT_TRUE(HasErrorCodewords(codewords, request.size)) << Describe(request);
    tally.Count("error_codewords_counted_anew");
  }
  codewords.resize(static_cast<std::size_t>(request.size.data));
  const Reading plain = ReadDataCodewords(codewords);
  ASSERT_EQ(plain.items, expected.reading.items) << Describe(request) << " " << expected.ids;
  ASSERT_EQ(plain.isSound, expected.reading.isSound) << Describe(request) << " " << expected.ids;
  tally.Count("read_by_plain_reader");
  if (!expected.ids.empty()) tally.Count("touched_by_a_deviation");
  if (chain == Chain::kPoints) return;
  const OwnedFill fill = Generate(request);
  ASSERT_TRUE(fill) << Describe(request);
  const ReaderText text = TextByZxing(plain.items);
  if (!plain.isSound) return ExpectNothingOrTheBeginning(request, *fill, text.text, tally);
  ExpectTextByZxing(request, *fill, text, tally);
  if (chain != Chain::kEveryReader) return;
  if (!IsForDmtx(request.size, codewords)) return tally.Count("not_for_libdmtx");
  ExpectTextByDmtx(request, *fill, TextByDmtx(plain.items), tally);
}

class MatrixReadBack : public testing::TestWithParam<int> {};

TEST_P(MatrixReadBack, EveryPatternPlainAndInvertedIsRead) {
  const ReferenceSize size = ReferenceSizes()[static_cast<std::size_t>(GetParam())];
  SeededTexts texts(static_cast<std::uint32_t>(16022 + GetParam()));
  const std::size_t full = static_cast<std::size_t>(size.data);
  ReadTally tally;
  for (int pattern : kPatterns) {
    for (Image image : kImages) {
      // Sanitized, each pattern takes one image.
      if (kSampleShare > 1 && (pattern + GetParam()) % 3 != static_cast<int>(image)) continue;
      // Digits fill the symbol to the last codeword.
      ExpectAsPredicted({size, Wide(texts.Next("0123456789", 2 * full, 2 * full)), pattern, image},
                        Chain::kEveryReader, tally);
      for (const char* alphabet : kAlphabets) {
        if (size.rows >= 52 && alphabet != kAlphabets[pattern % 6]) continue;
        ExpectAsPredicted(
            {size, Wide(texts.Next(alphabet, 1, std::min<std::size_t>(full, 200))), pattern, image},
            Chain::kEveryReader, tally);
      }
      if (HasFatalFailure()) return;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EverySize, MatrixReadBack, testing::Range(0, 30), [](const auto& nameOf) {
  const ReferenceSize size = ReferenceSizes()[static_cast<std::size_t>(nameOf.param)];
  return "Size" + std::to_string(size.rows) + "x" + std::to_string(size.columns);
});

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
  const Chain chain = length <= LongestThroughThePicture() ? Chain::kPicture : Chain::kPoints;
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
    MatrixRequest request{ReferenceSizes()[0], Wide(text), 0, Image::kPlain};
    request.asked = 0;
    ExpectAsPredicted(request, chain, tally);
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(UpToSix, MatrixReadBackOfClasses, testing::Range(1, 7));

// One to four designators anywhere, of one codeword to three, between runs of all classes. libdmtx
// takes designators for text, so it is not asked.
TEST(MatrixReadBackOfDesignators, TheirNumbersAndPlacesAreRead) {
  constexpr char16_t kLimits[] = {256, 16382, 16383, 16384, 0xD800, 0xFFFF};
  std::mt19937 random(241);
  ReadTally tally;
  for (int i = 0; i < 4500 / kSampleShare; ++i) {
    std::u16string text = Wide(RandomText(random, i % kTextClassCount, 1 + Below(random, 40)));
    for (int designators = 1 + i % 4; designators > 0; --designators) {
      const auto any = static_cast<char16_t>(256 + Below(random, 0x10000 - 256));
      text.insert(Below(random, text.size() + 1), 1,
                  Below(random, 2) == 0 ? any : kLimits[Below(random, std::size(kLimits))]);
    }
    MatrixRequest request{ReferenceSizes()[0], text, kStrokePatterns[i % 5], kImages[i % 3]};
    request.asked = 0;
    request.codeFormat = i / 5 % 4;
    ExpectAsPredicted(request, Chain::kPicture, tally);
    if (HasFatalFailure()) return;
  }
}

// The last codewords: texts of one class or of two that leave 0 to 6 codewords, of which a header
// or FNC1 takes one, for each size asked for and for the smallest square; in small sizes every
// number that is left with every format.
void ExpectEndsRead(const ReferenceSize& size, int first, int second, ReadTally& tally) {
  std::mt19937 random(static_cast<unsigned>(size.rows * 1000 + size.columns + first * 9 + second));
  const std::string heads = CharactersOfClass(first);
  const std::string tails = CharactersOfClass(second);
  std::string whole;
  for (int i = 0; i < 2 * size.data + 4; ++i) {
    const std::string& from = i < size.data / 2 ? heads : tails;
    whole += from[Below(random, from.size())];
  }
  for (int step = 0; step < 7; ++step) {
    // The longest text that has `step` codewords to spare, by halving.
    std::size_t fits = 1;
    std::size_t fails = whole.size() + 1;
    while (fails - fits > 1) {
      const std::size_t middle = (fits + fails) / 2;
      const auto encoded = EncodeByReference(Wide(whole.substr(0, middle)), 0, {0, 0, 1});
      (static_cast<int>(encoded.codewords.size()) + step <= size.data ? fits : fails) = middle;
    }
    MatrixRequest request{size, Wide(whole.substr(0, fits)), kStrokePatterns[(first + step) % 5],
                          kImages[(second + step) % 3]};
    const int formats = size.data <= 12 ? 4 : 1;
    for (int format = 0; format < formats; ++format) {
      request.codeFormat = (step + format) % 4;
      // libdmtx takes longer and judges a share.
      const int everyReader = (first + second + step + format) % (size.data <= 12 ? 18 : 9);
      for (request.isExpanding = 0; request.isExpanding <= 2; ++request.isExpanding) {
        const bool isForAll = everyReader == request.isExpanding;
        ExpectAsPredicted(request, isForAll ? Chain::kEveryReader : Chain::kPicture, tally);
      }
    }
    request.isExpanding = 1;
    request.asked = 0;
    request.codeFormat = 0;
    ExpectAsPredicted(request, Chain::kPicture, tally);
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
