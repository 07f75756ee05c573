#include "datamatrix/CodewordBuffer.h"

#include <gtest/gtest.h>

#include <string>

#include "support/SymbolSizeReference.h"

namespace barhatch {
namespace {

// The first codewords as the standard prints them.
std::string Text(const CodewordBuffer& codewords, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += (i > 0 ? " " : "") + std::to_string(codewords[i]);
  return text;
}

CodewordBuffer BufferOf(int count, int codeword = 66) {
  CodewordBuffer codewords;
  for (int i = 0; i < count; ++i) codewords.Append(codeword);
  return codewords;
}

TEST(CodewordBuffer, StartsEmptyAndCleared) {
  const CodewordBuffer codewords;
  EXPECT_EQ(codewords.Count(), 0);
  EXPECT_FALSE(codewords.HasOverflowed());
  for (int i = 0; i < kMaxCodewords; ++i) EXPECT_EQ(codewords[i], 0);
}

TEST(CodewordBuffer, AppendsAtTheCount) {
  CodewordBuffer codewords;
  for (int codeword : {0, 142, 255}) codewords.Append(codeword);
  EXPECT_EQ(codewords.Count(), 3);
  EXPECT_EQ(Text(codewords, 4), "0 142 255 0");
}

TEST(CodewordBuffer, Holds1558DataCodewords) {
  EXPECT_EQ(BufferOf(1557).Count(), 1557);
  EXPECT_EQ(BufferOf(1558).Count(), 1558);
  EXPECT_FALSE(BufferOf(1558).HasOverflowed());
  EXPECT_EQ(BufferOf(1558)[1557], 66);
}

TEST(CodewordBuffer, OverflowSetsTheCountTo1559AndWritesNothing) {
  for (int count : {1559, 1560, 5000}) {
    const CodewordBuffer codewords = BufferOf(count);
    EXPECT_EQ(codewords.Count(), 1559);
    EXPECT_TRUE(codewords.HasOverflowed());
    EXPECT_EQ(codewords[1557], 66);
    for (int i = 1558; i < kMaxCodewords; ++i) EXPECT_EQ(codewords[i], 0);
  }
}

TEST(Padding, FullSymbolGetsNoPad) {
  CodewordBuffer codewords = BufferOf(3);
  codewords.PadTo(3);
  EXPECT_EQ(Text(codewords, 4), "66 66 66 0");
}

TEST(Padding, OneFreeCodewordGetsThePlainPad) {
  CodewordBuffer codewords = BufferOf(2);
  codewords.PadTo(3);
  EXPECT_EQ(Text(codewords, 4), "66 66 129 0");
}

TEST(Padding, FurtherPadsAreRandomisedByTheirPosition) {
  CodewordBuffer codewords = BufferOf(1);
  codewords.PadTo(3);
  EXPECT_EQ(Text(codewords, 4), "66 129 70 0");
}

TEST(Padding, DoesNotCount) {
  CodewordBuffer codewords = BufferOf(1);
  codewords.PadTo(8);
  EXPECT_EQ(codewords.Count(), 1);
}

TEST(Padding, EmptyDataIsPaddedFromTheFirstPosition) {
  CodewordBuffer codewords;
  codewords.PadTo(3);
  EXPECT_EQ(Text(codewords, 4), "129 175 70 0");
}

TEST(Padding, FiveCodewordsIn24x24GetThirtyOnePads) {
  CodewordBuffer codewords = BufferOf(5);
  codewords.PadTo(36);
  EXPECT_EQ(codewords[4], 66);
  EXPECT_EQ(codewords[5], 129);
  for (int i = 5; i < 36; ++i) EXPECT_NE(codewords[i], 0);
  EXPECT_EQ(codewords[36], 0);
}

// The standard's "unrandomise 253 state": from the pad and its 1-based position back to 129.
int Unrandomised(int pad, int position) {
  const int pseudoRandom = (149 * position) % 253 + 1;
  const int value = pad - pseudoRandom;
  return value >= 1 ? value : value + 254;
}

TEST(Padding, EveryPadOfEveryCapacityUnrandomisesTo129) {
  for (const test::ReferenceSize& size : test::ReferenceSizes()) {
    for (int count : {0, 1, size.data / 2, size.data - 2, size.data - 1}) {
      CodewordBuffer codewords = BufferOf(count);
      codewords.PadTo(size.data);
      EXPECT_EQ(codewords[count], 129);
      for (int i = count + 1; i < size.data; ++i) {
        EXPECT_EQ(Unrandomised(codewords[i], i + 1), 129);
        EXPECT_GE(codewords[i], 1);
        EXPECT_LE(codewords[i], 254);
      }
      EXPECT_EQ(codewords[size.data], 0);
    }
  }
}

}  // namespace
}  // namespace barhatch
