#include "datamatrix/SymbolSizes.h"

#include <cstddef>

namespace barhatch {

// ISO/IEC 16022, attributes of the ECC 200 symbols, in the order of the standard.
// clang-format off
constexpr SymbolSize kSquareSizes[kSquareSizeCount] = {
    // symbol   regions  mapping   codewords   blocks
    //                   matrix    data   ECC
    { 10,  10,  1, 1,    8,   8,     3,    5,   1},
    { 12,  12,  1, 1,   10,  10,     5,    7,   1},
    { 14,  14,  1, 1,   12,  12,     8,   10,   1},
    { 16,  16,  1, 1,   14,  14,    12,   12,   1},
    { 18,  18,  1, 1,   16,  16,    18,   14,   1},
    { 20,  20,  1, 1,   18,  18,    22,   18,   1},
    { 22,  22,  1, 1,   20,  20,    30,   20,   1},
    { 24,  24,  1, 1,   22,  22,    36,   24,   1},
    { 26,  26,  1, 1,   24,  24,    44,   28,   1},
    { 32,  32,  2, 2,   28,  28,    62,   36,   1},
    { 36,  36,  2, 2,   32,  32,    86,   42,   1},
    { 40,  40,  2, 2,   36,  36,   114,   48,   1},
    { 44,  44,  2, 2,   40,  40,   144,   56,   1},
    { 48,  48,  2, 2,   44,  44,   174,   68,   1},
    { 52,  52,  2, 2,   48,  48,   204,   84,   2},
    { 64,  64,  4, 4,   56,  56,   280,  112,   2},
    { 72,  72,  4, 4,   64,  64,   368,  144,   4},
    { 80,  80,  4, 4,   72,  72,   456,  192,   4},
    { 88,  88,  4, 4,   80,  80,   576,  224,   4},
    { 96,  96,  4, 4,   88,  88,   696,  272,   4},
    {104, 104,  4, 4,   96,  96,   816,  336,   6},
    {120, 120,  6, 6,  108, 108,  1050,  408,   6},
    {132, 132,  6, 6,  120, 120,  1304,  496,   8},
    {144, 144,  6, 6,  132, 132,  1558,  620,  10},  // blocks of 156 and 155
};

constexpr SymbolSize kRectangularSizes[kRectangularSizeCount] = {
    {  8,  18,  1, 1,    6,  16,     5,    7,   1},
    {  8,  32,  1, 2,    6,  28,    10,   11,   1},
    { 12,  26,  1, 1,   10,  24,    16,   14,   1},
    { 12,  36,  1, 2,   10,  32,    22,   18,   1},
    { 16,  36,  1, 2,   14,  32,    32,   24,   1},
    { 16,  48,  1, 2,   14,  44,    49,   28,   1},
};
// clang-format on

namespace {

constexpr const SymbolSize& LargestSquare() { return kSquareSizes[kSquareSizeCount - 1]; }
constexpr int kMaxRectangularDataCodewords =
    kRectangularSizes[kRectangularSizeCount - 1].dataCodewords;

template <std::size_t count>
constexpr bool AreConsistentAndAscending(const SymbolSize (&sizes)[count]) {
  for (std::size_t i = 0; i < count; ++i) {
    if (!IsConsistent(sizes[i])) return false;
    if (i > 0 && sizes[i - 1].dataCodewords >= sizes[i].dataCodewords) return false;
  }
  return true;
}

constexpr bool OnlyTheLargestHasUnequalBlocks() {
  for (const SymbolSize& size : kSquareSizes) {
    if ((size.dataCodewords % size.blocks != 0) != (size.symbolRows == 144)) return false;
  }
  return true;
}

static_assert(
    AreConsistentAndAscending(kSquareSizes) && AreConsistentAndAscending(kRectangularSizes),
    "codewords fill the matrix, regions have frames, blocks share alike, capacity ascends");
static_assert(OnlyTheLargestHasUnequalBlocks(), "144 x 144 alone divides its data unequally");
static_assert(LargestSquare().dataCodewords == kMaxDataCodewords, "the limit is that of 144 x 144");
static_assert(LargestSquare().dataCodewords + LargestSquare().errorCodewords == kMaxCodewords,
              "the limit is that of 144 x 144");

template <std::size_t count>
const SymbolSize* SmallestHolding(const SymbolSize (&sizes)[count], int codewords) {
  for (const SymbolSize& size : sizes) {
    if (size.dataCodewords >= codewords) return &size;
  }
  return nullptr;
}

template <std::size_t count>
const SymbolSize* FirstCovering(const SymbolSize (&sizes)[count], const SizeRequest& request) {
  for (const SymbolSize& size : sizes) {
    if (size.symbolRows >= request.rows && size.symbolColumns >= request.columns) return &size;
  }
  return nullptr;
}

bool Covers(const SymbolSize& size, const SizeRequest& request) {
  return request.rows <= size.symbolRows && request.columns <= size.symbolColumns;
}

bool FitsInto(const SymbolSize& size, const SizeRequest& request) {
  return size.symbolRows <= request.rows && size.symbolColumns <= request.columns;
}

// A size, or null and the reason for it.
struct Choice {
  const SymbolSize* size;
  Reason reason = Reason::kNone;
};

constexpr Choice Refused(Reason reason) { return {nullptr, reason}; }

// The size found by capacity where it covers the request, else the one that is the request.
template <std::size_t count>
Choice EnlargeToRequest(const SymbolSize* smallest, const SymbolSize (&sizes)[count], int codewords,
                        const SizeRequest& request) {
  if (Covers(*smallest, request)) return {smallest};
  const SymbolSize* const requested = FirstCovering(sizes, request);
  if (requested == nullptr || !FitsInto(*requested, request)) return Refused(Reason::kNoSuchSize);
  return requested->dataCodewords >= codewords ? Choice{requested} : Refused(Reason::kSizeTooSmall);
}

Choice ChooseSquare(int codewords, const SizeRequest& request) {
  const SymbolSize* const smallest = SmallestHolding(kSquareSizes, codewords);
  if (request.isExpanding == 0 && !FitsInto(*smallest, request)) {
    return Refused(Reason::kNoPermissionToGrow);
  }
  return EnlargeToRequest(smallest, kSquareSizes, codewords, request);
}

// No rectangle holds the codewords.
Choice ChooseSquareForRectangle(int codewords, const SizeRequest& request) {
  if (request.isExpanding != 1) return Refused(Reason::kNoPermissionToGrow);
  const SymbolSize* const smallest = SmallestHolding(kSquareSizes, codewords);
  if (Covers(*smallest, request)) return {smallest};
  const SymbolSize* const requested = FirstCovering(kRectangularSizes, request);
  const bool isSize = requested != nullptr && FitsInto(*requested, request);
  return Refused(isSize ? Reason::kSizeTooSmall : Reason::kNoSuchSize);
}

Choice ChooseRectangle(int codewords, const SizeRequest& request) {
  if (codewords > kMaxRectangularDataCodewords) return ChooseSquareForRectangle(codewords, request);
  const SymbolSize* const smallest = SmallestHolding(kRectangularSizes, codewords);
  if (request.isExpanding == 0 && !FitsInto(*smallest, request)) {
    return Refused(Reason::kNoPermissionToGrow);
  }
  return EnlargeToRequest(smallest, kRectangularSizes, codewords, request);
}

Choice Choose(int codewords, const SizeRequest& request) {
  if (codewords > kMaxDataCodewords) return Refused(Reason::kTooManyCodewords);
  return request.rows == request.columns ? ChooseSquare(codewords, request)
                                         : ChooseRectangle(codewords, request);
}

}  // namespace

Refusal ChooseSymbolSize(int codewords, const SizeRequest& request, SymbolSize& chosen) {
  const Choice choice = Choose(codewords, request);
  if (choice.size == nullptr) return {choice.reason, -1, codewords};
  chosen = *choice.size;
  return {};
}

int CapacityUnder(const SizeRequest& request, int codewords) {
  SymbolSize chosen;
  return ChooseSymbolSize(codewords, request, chosen).IsRefused() ? 0 : chosen.dataCodewords;
}

int SquareCapacityAbove(int codewords) {
  const SymbolSize* const size = SmallestHolding(kSquareSizes, codewords + 1);
  return size != nullptr ? size->dataCodewords : 0;
}

}  // namespace barhatch
