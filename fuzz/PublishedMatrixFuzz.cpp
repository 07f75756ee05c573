// One Data Matrix by the book: text of every class in every form of input, with all that a symbol
// may begin with, sizes and flags. The codewords that its modules show, read by a plain reader, are
// the bytes that were asked for, no more of them than plain ASCII or Base 256 would take; a job is
// refused for a reason that the target knows.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "MatrixRequest.h"
#include "barhatch_mark.h"
#include "support/DataMatrixReader.h"
#include "support/PlacementReference.h"

namespace {

using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;
using barhatch::fuzz::MatrixRequest;
namespace test = barhatch::test;

constexpr std::size_t kMostBytes = std::size_t{4} << 20;
constexpr std::size_t kMostDigits = 3116;  // of a symbol, which holds no more of anything else
constexpr std::size_t kMostCodewords = 1558;
constexpr int kLargest = 144;

using Items = std::vector<int>;

bool IsByte(int item) { return item < 256; }
bool IsDigit(int item) { return item >= '0' && item <= '9'; }

std::size_t DesignatorCodewords(int item) {
  const int number = item - test::ReadEci(0);
  return number <= 126 ? 2 : number <= 16382 ? 3 : 4;
}

std::size_t AsciiCodewordsOf(const Items& items) {
  std::size_t codewords = 0;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const int item = items[i];
    const bool isDesignator = item >= test::ReadEci(0);
    const bool isAppend = !isDesignator && item >= test::kReadStructuredAppend;
    const bool isUpper = item >= 128 && IsByte(item);
    codewords += isDesignator ? DesignatorCodewords(item) : isAppend ? 4 : isUpper ? 2 : 1;
    if (IsDigit(item) && i + 1 < items.size() && IsDigit(items[i + 1])) ++i;
  }
  return codewords;
}

// Latch and length in front of the bytes, and of a head its codewords.
std::size_t Base256CodewordsOf(const Items& items) {
  const auto bytes = static_cast<std::size_t>(std::count_if(items.begin(), items.end(), IsByte));
  Items others;
  std::copy_if(items.begin(), items.end(), std::back_inserter(others),
               [](int item) { return !IsByte(item); });
  return AsciiCodewordsOf(others) + 1 + (bytes < 250 ? 1 : 2) + bytes;
}

// Whether what is no byte stands in front of all bytes.
bool IsOneRunOfBytes(const Items& items) {
  return std::is_partitioned(items.begin(), items.end(), [](int item) { return !IsByte(item); });
}

Items DataOf(const BarhatchResult& result) {
  return {result.values, result.values + result.capacity};
}

void DemandPads(const BarhatchResult& result) {
  const Items written(result.values, result.values + result.codewords);
  Demand(test::Padded(written, result.capacity) == DataOf(result), "pads behind the text");
}

// Of the sizes that the plain placement knows.
void DemandModules(const BarhatchResult& result) {
  for (const test::ReferenceSize& size : test::ReferenceSizes()) {
    if (size.rows != result.rows || size.columns != result.columns) continue;
    Demand(size.data == result.capacity, "the capacity of the size");
    std::string grid;
    for (int i = 0; i < size.rows * size.columns; ++i)
      grid += (result.modules[i] & BARHATCH_DARK) != 0 ? 'A' : 'a';
    const Items shown = test::CodewordsOfGrid(grid, size);
    const std::size_t alike =
        static_cast<std::size_t>(size.rows == kLargest ? size.data : size.data + size.ecc);
    Demand(shown.size() >= alike && result.values_count >= alike &&
               std::equal(shown.begin(), shown.begin() + static_cast<std::ptrdiff_t>(alike),
                          result.values),
           "the modules show the values");
  }
}

void DemandSize(const BarhatchJob& job, const BarhatchResult& result) {
  if ((job.flags & BARHATCH_MAY_GROW) == 0 && (job.rows != 0 || job.columns != 0)) {
    Demand(result.rows == job.rows && result.columns == job.columns, "the size asked for");
  }
  if (job.rows != 0 || job.columns != 0 || job.shape != BARHATCH_SQUARE) return;
  for (const test::ReferenceSize& size : test::ReferenceSquares()) {
    if (size.rows < result.rows) {
      Demand(size.data < result.codewords, "no smaller square would do");
    }
  }
}

void DemandFewCodewords(const Items& items, const BarhatchResult& result) {
  const auto codewords = static_cast<std::size_t>(result.codewords);
  Demand(codewords <= AsciiCodewordsOf(items), "no more codewords than in ASCII");
  if (!IsOneRunOfBytes(items)) return;
  Demand(codewords <= Base256CodewordsOf(items), "no more codewords than in Base 256");
}

void DemandText(const Items& items, const BarhatchResult& result) {
  const test::Reading reading = test::ReadDataCodewords(DataOf(result));
  Demand(reading.isSound, "the codewords are as the standard has them");
  Demand(reading.items == items, "a reader gets what was asked for");
  DemandFewCodewords(items, result);
}

bool IsSurelyHeld(const BarhatchJob& job, const Items& items) {
  const bool isSmallest = job.rows == 0 && job.columns == 0;
  const bool isLargeShape = job.shape != BARHATCH_RECTANGLE && job.shape != BARHATCH_DMRE_RECTANGLE;
  return isSmallest && isLargeShape && IsOneRunOfBytes(items) &&
         Base256CodewordsOf(items) <= kMostCodewords;
}

// Items, but for what is no text.
std::size_t WithoutHead(const Items& items) {
  const bool hasHead = !items.empty() && items[0] > test::kReadFnc1 && items[0] < test::ReadEci(0);
  return items.size() - (hasHead ? 1 : 0);
}

void DemandCause(const MatrixRequest& request, const std::optional<Items>& items,
                 const BarhatchResult& result) {
  Demand(*result.message != '\0', "a refusal has a sentence");
  Demand(result.status != BARHATCH_PROOF_FAILED, "the proof agrees");
  Demand(result.status != BARHATCH_NO_MEMORY, "there is memory");
  if (!items.has_value()) return;
  const bool isOption = result.status == BARHATCH_BAD_OPTION;
  Demand(!isOption || request.hasOddOption, "options that there are");
  const bool isSize = result.status == BARHATCH_NO_SUCH_SIZE;
  Demand(!isSize || request.hasOddOption, "sizes that there are");
  const bool isText = request.job.input != BARHATCH_CODEWORDS;
  const bool isBeyondAll = isText && WithoutHead(*items) > kMostDigits;
  const bool isTooLong = result.status == (isBeyondAll ? BARHATCH_BAD_LENGTH : BARHATCH_TOO_LONG);
  Demand(isOption || isSize || isTooLong, "the text is sound");
  Demand(!isTooLong || !IsSurelyHeld(request.job, *items), "there is room for the text");
}

void DemandCodewordsOfHost(const MatrixRequest& request, const BarhatchResult& result) {
  Demand(static_cast<std::size_t>(result.codewords) == request.bytes.size() &&
             std::equal(request.bytes.begin(), request.bytes.end(), result.values),
         "the codewords of the host");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  MatrixRequest request = barhatch::fuzz::ReadMatrixRequest(input);
  request.job.text = request.bytes.data();

  BarhatchResult result = {};
  result.size = sizeof result;
  const CallWatch watch;
  BarhatchMark(&request.job, &result);
  watch.DemandWithin(kMostBytes);

  const bool isText = request.job.input != BARHATCH_CODEWORDS;
  const std::optional<Items> items = isText ? barhatch::fuzz::ItemsAskedFor(request)
                                            : Items(request.bytes.begin(), request.bytes.end());
  if (result.status != BARHATCH_OK) {
    DemandCause(request, items, result);
    BarhatchRelease(&result);
    return 0;
  }
  Demand(items.has_value(), "what cannot be written is refused");
  Demand(result.deviations == 0 || (request.job.flags & BARHATCH_INDUSTRY_144) != 0, "by the book");
  DemandPads(result);
  DemandModules(result);
  DemandSize(request.job, result);
  if (isText) {
    DemandText(*items, result);
  } else {
    DemandCodewordsOfHost(request, result);
  }
  BarhatchRelease(&result);
  return 0;
}
