// One text, size and format for a Data Matrix: the codewords that the grid shows against a second
// encodation and a second error correction that share nothing with the encoder, and what a standard
// reader gets from them.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "Results.h"
#include "api/BarcodeSettings.h"
#include "api/DataMatrixEncoder.h"
#include "barhatch.h"
#include "support/DataMatrixReader.h"
#include "support/PlacementReference.h"
#include "support/ReferenceEncodation.h"

namespace {

using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;
namespace test = barhatch::test;

constexpr std::size_t kLongestText = 3200;
// The reference's look-ahead counts anew for each question.
constexpr std::size_t kLongestForTheReference = 400;
constexpr std::size_t kMostModules = 146 * 146;

struct GridRelease {
  void operator()(TwoDStringResult* grid) const { Free2DBarcodeStringResult(grid); }
};
using OwnedGrid = std::unique_ptr<TwoDStringResult, GridRelease>;

DataMatrixBarcodeInfo RecordOf(FuzzInput& input) {
  DataMatrixBarcodeInfo info{};
  const std::uint8_t flags = input.Byte();
  info.IsExpanding = flags & 1;
  info.QuietZone = flags & 2;
  info.InvertImage = flags & 4;
  info.format = input.Byte() % 5;
  const std::vector<test::ReferenceSize> sizes = test::ReferenceSizes();
  const std::uint8_t choice = input.Byte();
  if (choice < sizes.size()) {
    info.MatrixSize = sizes[choice].rows * 256 + sizes[choice].columns;
  } else if (choice < 64) {
    info.MatrixSize = input.Bits<std::int32_t>();
  }
  info.height = 10.0;
  info.HatchingType = 6;
  return info;
}

void DemandTheReading(const std::vector<int>& codewords,
                      const test::ReferenceEncodation& reference) {
  const test::Reading reading = test::ReadDataCodewords(
      std::vector<int>(codewords.begin(), codewords.begin() + reference.capacity));
  if (!reference.isAstray) {
    Demand(reading.isSound && reading.items == reference.reading, "a reader gets the text");
    return;
  }
  Demand(reading.items.size() >= reference.reading.size() &&
             std::equal(reference.reading.begin(), reference.reading.end(), reading.items.begin()),
         "a reader gets the text up to where the register says");
}

void DemandAsTheReference(const OwnedGrid& grid, const std::u16string& text,
                          const DataMatrixBarcodeInfo& info) {
  const auto size = static_cast<std::uint32_t>(info.MatrixSize);  // the higher bits mean nothing
  const test::ReferenceRequest request = {static_cast<int>(size >> 8 & 255),
                                          static_cast<int>(size & 255), info.IsExpanding};
  const test::ReferenceEncodation reference = test::EncodeByReference(text, info.format, request);
  Demand((grid != nullptr) == (reference.capacity != 0), "both refuse or neither");
  if (grid == nullptr) return;
  for (const test::ReferenceSize& row : test::ReferenceSizes()) {
    if (row.rows != grid->numrows || row.columns != grid->numcols) continue;
    Demand(row.data == reference.capacity, "both choose the same size");
    const std::vector<int> codewords = test::CodewordsOfGrid(grid->data, row);
    const std::vector<int> padded = test::Padded(reference.codewords, reference.capacity);
    Demand(std::equal(padded.begin(), padded.end(), codewords.begin()), "the same data codewords");
    return DemandTheReading(codewords, reference);
  }
  Demand(false, "a size of the standard");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  DataMatrixBarcodeInfo info = RecordOf(input);
  const std::u16string text = input.Text(kLongestText);
  info.DataString = text.c_str();

  InitBarcode();
  const CallWatch watch;
  FillBufferInfo* points = GenerateDataMatrixBarcode(&info);
  watch.DemandWithin(barhatch::fuzz::MostMatrixBytes(points, kMostModules));
  barhatch::fuzz::DemandSoundFill(points);
  const bool isMade = points != nullptr;
  FreeBarcodeData(points);

  if (text.size() > barhatch::kMaxDataMatrixText) {
    Demand(!isMade, "text that is too long is refused");
    return 0;
  }
  barhatch::CurrentSettings().QuietZone = 0;
  barhatch::DataMatrixEncoder encoder;
  OwnedGrid grid(encoder.EncodeDataMatrix());
  Demand(grid != nullptr, "there is memory for a grid");
  if (grid->data == nullptr) grid.reset();
  Demand(isMade == (grid != nullptr), "a fill for every symbol");
  if (text.size() <= kLongestForTheReference) DemandAsTheReference(grid, text, info);
  return 0;
}
