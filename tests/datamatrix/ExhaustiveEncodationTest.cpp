// The encodation by the book against a search through all sequences of schemes.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "datamatrix/TokensOfTests.h"
#include "support/DataMatrixReader.h"
#include "support/EncodationSearch.h"
#include "support/TextClasses.h"

namespace barhatch {
namespace {

using test::LastCodeword;

// One of each class: digit, capital and small letter, space, X12 sign, EDIFACT sign, control,
// extended byte, and FNC1.
constexpr Token kOneOfEach[] = {'7', 'K', 'q', ' ', '*', '.', 0x05, 0xE9, kFnc1Token};

std::string Describe(const std::vector<Token>& tokens) {
  std::string text;
  for (const Token token : tokens) text += std::to_string(token) + " ";
  return text;
}

// The same codewords are enough, and are the text, in that symbol and in larger ones.
void ExpectRead(const std::vector<Token>& tokens, int least, bool isLooseEnd) {
  for (int capacity = least; capacity < least + 4; ++capacity) {
    const auto codewords = test::CodewordListFor(tokens, capacity, {0, 0, isLooseEnd});
    ASSERT_LE(static_cast<int>(codewords.size()), capacity) << Describe(tokens);
    const test::Reading reading = test::ReadDataCodewords(test::Padded(codewords, capacity));
    ASSERT_TRUE(reading.isSound) << Describe(tokens) << "in " << capacity;
    ASSERT_EQ(reading.items, test::ItemsOf(tokens)) << Describe(tokens) << "in " << capacity;
  }
}

// What fits a capacity fits every larger one, and nothing fits a smaller one.
void ExpectLeast(const std::vector<Token>& tokens, LastCodeword last) {
  const bool isLoose = last == LastCodeword::kLoose;
  const int least = test::LeastFor(tokens, {0, 0, isLoose});
  const std::vector<int> items = test::ItemsOf(tokens);
  for (int capacity = 1; capacity < least + 3; ++capacity) {
    ASSERT_EQ(test::Fits(items, capacity, last), capacity >= least)
        << Describe(tokens) << "in " << capacity;
  }
  ExpectRead(tokens, least, isLoose);
}

// BARHATCH_SEARCH_LENGTH=6 asks for half a million more.
int LongestSequence() {
  const char* const asked = std::getenv("BARHATCH_SEARCH_LENGTH");
  return asked != nullptr ? std::atoi(asked) : 5;
}

class EverySequence : public testing::TestWithParam<int> {};

TEST_P(EverySequence, OfOneCharacterOfEachClassIsAsShortAsAnyOtherWay) {
  const int length = GetParam();
  long sequences = 1;
  for (int i = 0; i < length; ++i) sequences *= 9;
  for (long sequence = 0; sequence < sequences; ++sequence) {
    std::vector<Token> tokens;
    for (long rest = sequence; static_cast<int>(tokens.size()) < length; rest /= 9)
      tokens.push_back(kOneOfEach[rest % 9]);
    ExpectLeast(tokens, sequence % 4 == 0 ? LastCodeword::kLoose : LastCodeword::kStrict);
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(UpToFive, EverySequence, testing::Range(1, LongestSequence() + 1));

// Long enough for every scheme to pay, and for every end.
TEST(RandomTexts, AreAsShortAsAnyOtherWay) {
  std::mt19937 random(21471);
  for (int i = 0; i < 2000; ++i) {
    const std::size_t length = 6 + test::Below(random, 19);
    auto tokens = test::TokensOf(test::RandomText(random, i % test::kTextClassCount, length));
    if (i % 5 == 0) tokens[test::Below(random, length)] = kFnc1Token;
    if (i % 7 == 0) tokens[test::Below(random, length)] = EciToken(26);
    ExpectLeast(tokens, i % 2 == 0 ? LastCodeword::kLoose : LastCodeword::kStrict);
    if (HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace barhatch
