// Texts over nine classes of characters, every request, code format and permission to grow: the
// codewords against the reference encodation, and what a standard reader gets from them against
// what the register of deviations predicts.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "datamatrix/EncodedText.h"
#include "support/DataMatrixReader.h"
#include "support/ReferenceEncodation.h"
#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

using test::Below;
using test::CodewordsOf;
using test::EncodedBuffer;
using test::InDecimal;
using test::Padded;
using test::RandomText;
using test::ReadDataCodewords;
using test::Reading;
using test::ReferenceEncodation;
using test::ReferenceRequest;

struct Tally {
  int texts = 0;
  int read = 0;
  int astray = 0;
};

std::vector<ReferenceRequest> Requests() {
  std::vector<ReferenceRequest> requests = {{0, 0, 0}};
  for (const test::ReferenceSize& size : test::ReferenceSizes()) {
    requests.push_back({size.rows, size.columns, 0});
  }
  return requests;
}

void ExpectAsPredicted(const std::vector<int>& codewords, const ReferenceEncodation& reference) {
  const Reading reading = ReadDataCodewords(Padded(codewords, reference.capacity));
  if (!reference.isAstray) {
    EXPECT_TRUE(reading.isSound);
    EXPECT_EQ(InDecimal(reading.items), InDecimal(reference.reading));
  } else {
    ASSERT_GE(reading.items.size(), reference.reading.size());
    EXPECT_TRUE(
        std::equal(reference.reading.begin(), reference.reading.end(), reading.items.begin()))
        << InDecimal(reading.items) << " does not begin with " << InDecimal(reference.reading);
  }
}

void RoundTrip(const std::u16string& text, int codeFormat, const ReferenceRequest& request,
               Tally& tally) {
  const auto buffer =
      EncodedBuffer(text, codeFormat, {request.rows, request.columns, request.isExpanding});
  const ReferenceEncodation reference = EncodeByReference(text, codeFormat, request);
  ++tally.texts;
  if (reference.codewords.size() > 1558) {
    EXPECT_TRUE(buffer->HasOverflowed());
    return;
  }
  const std::vector<int> codewords = CodewordsOf(*buffer);
  ASSERT_EQ(InDecimal(codewords), InDecimal(reference.codewords));
  if (reference.capacity == 0) return;
  ++tally.read;
  tally.astray += reference.isAstray;
  ExpectAsPredicted(codewords, reference);
}

// Now and then an ECI designator, with any low byte.
std::u16string WithDesignators(std::u16string text, std::mt19937& random) {
  for (char16_t& character : text) {
    if (Below(random, 25) == 0) character = static_cast<char16_t>(256 + Below(random, 65280));
  }
  return text;
}

// Texts that come near the capacity of the request.
std::size_t RandomLength(const ReferenceRequest& request, std::mt19937& random) {
  const std::size_t side = static_cast<std::size_t>(std::max(request.rows, request.columns));
  const std::size_t limit = side == 0 ? 90 : std::min<std::size_t>(4 + side * side / 12, 150);
  return 1 + Below(random, limit);
}

void RoundTripOfRequest(ReferenceRequest request, int isExpanding, Tally& tally) {
  request.isExpanding = isExpanding;
  std::mt19937 random(
      static_cast<unsigned>(request.rows * 1000 + request.columns * 3 + isExpanding));
  for (int round = 0; round < 12; ++round) {
    for (int textClass = 0; textClass < test::kTextClassCount; ++textClass) {
      for (int codeFormat = 0; codeFormat <= 3; ++codeFormat) {
        const std::string bytes = RandomText(random, textClass, RandomLength(request, random));
        std::u16string text = test::Wide(bytes);
        if (round % 4 == 3) text = WithDesignators(text, random);
        SCOPED_TRACE(testing::Message() << request.rows << "x" << request.columns << " format "
                                        << codeFormat << " " << testing::PrintToString(text));
        RoundTrip(text, codeFormat, request, tally);
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

Tally RoundTripOfRequests(int isExpanding) {
  Tally tally;
  for (const ReferenceRequest& request : Requests()) {
    RoundTripOfRequest(request, isExpanding, tally);
    if (testing::Test::HasFailure()) break;
  }
  EXPECT_EQ(tally.texts, 31 * 9 * 4 * 12);
  return tally;
}

TEST(EncodationRoundTrip, SymbolsThatMayNotGrow) {
  const Tally tally = RoundTripOfRequests(0);
  EXPECT_GT(tally.read, 3000);
  EXPECT_LT(tally.astray, tally.read / 2);
}

TEST(EncodationRoundTrip, SymbolsThatMayGrow) {
  const Tally tally = RoundTripOfRequests(1);
  EXPECT_GT(tally.read, 10000);
  EXPECT_LT(tally.astray, tally.read / 2);
}

TEST(EncodationRoundTrip, SymbolsThatMayGrowButNotIntoSquares) {
  const Tally tally = RoundTripOfRequests(2);
  EXPECT_GT(tally.read, 10000);
  EXPECT_LT(tally.astray, tally.read / 2);
}

TEST(EncodationRoundTrip, LongTextsOfEveryClass) {
  Tally tally;
  std::mt19937 random(77);
  for (int textClass = 0; textClass < test::kTextClassCount; ++textClass) {
    for (int round = 0; round < 8; ++round) {
      const std::string bytes = RandomText(random, textClass, 300 + Below(random, 500));
      RoundTrip(test::Wide(bytes), 0, {0, 0, 1}, tally);
    }
  }
  EXPECT_EQ(tally.texts, 72);
}

}  // namespace
}  // namespace barhatch
