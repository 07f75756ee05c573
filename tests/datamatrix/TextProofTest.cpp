#include "datamatrix/TextProof.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace barhatch::test {
namespace {

using Codewords = std::vector<std::uint8_t>;
using Tokens = std::vector<Token>;

constexpr Token kFnc1 = kFnc1Token;

bool Says(const Codewords& codewords, const Tokens& tokens, MatrixHead head = MatrixHead::kNone,
          const StructuredAppend& append = {}) {
  PublishedText text;
  text.text = {tokens.data(), tokens.size()};
  text.head = head;
  text.append = append;
  return SaysText(codewords.data(), static_cast<int>(codewords.size()), text);
}

Tokens Bytes(const std::string& text) {
  Tokens tokens;
  for (const char byte : text) tokens.push_back(static_cast<unsigned char>(byte));
  return tokens;
}

}  // namespace

// The examples of ISO/IEC 16022: "123456" in ASCII, "AIM" in C40.
TEST(TextProof, BytesAreComparedToTheLast) {
  EXPECT_TRUE(Says({142, 164, 186}, Bytes("123456")));
  EXPECT_TRUE(Says({142, 164, 186, 129, 70}, Bytes("123456")));
  EXPECT_TRUE(Says({230, 91, 11, 254, 67}, Bytes("AIMB")));
  EXPECT_FALSE(Says({142, 164, 186}, Bytes("123457")));
  EXPECT_FALSE(Says({142, 164, 186}, Bytes("12345")));
  EXPECT_FALSE(Says({142, 164, 186}, Bytes("1234567")));
  EXPECT_FALSE(Says({142, 164, 186}, Bytes("")));
  EXPECT_TRUE(Says({129}, Bytes("")));
}

TEST(TextProof, Fnc1IsNoGroupSeparator) {
  EXPECT_TRUE(Says({66, 67, 232, 68}, {'A', 'B', kFnc1, 'C'}));
  EXPECT_FALSE(Says({66, 67, 232, 68}, {'A', 'B', 29, 'C'}));
  EXPECT_TRUE(Says({66, 67, 30, 68}, {'A', 'B', 29, 'C'}));
  EXPECT_FALSE(Says({66, 67, 30, 68}, {'A', 'B', kFnc1, 'C'}));
}

TEST(TextProof, Fnc1InFrontIsWhereReadersLookForIt) {
  EXPECT_TRUE(Says({232, 142, 66}, {kFnc1, '1', '2', 'A'}));
  EXPECT_FALSE(Says({142, 66}, {kFnc1, '1', '2', 'A'}));
  EXPECT_FALSE(Says({232, 142, 66}, Bytes("12A")));
  EXPECT_TRUE(Says({66, 232, 67}, {'A', kFnc1, 'B'}));
  EXPECT_TRUE(Says({142, 232, 67}, {'1', '2', kFnc1, 'B'}));
  EXPECT_FALSE(Says({50, 51, 232, 67}, {'1', '2', kFnc1, 'B'})) << "two codewords for two digits";
  // C40: shift 2, value 27, and A; it separates there.
  EXPECT_FALSE(Says({230, 10, 191, 254}, {kFnc1, 'A'}));
}

TEST(TextProof, DesignatorsHaveTheirNumbersAndTheirPlaces) {
  const struct {
    std::int32_t number;
    Codewords codewords;
  } rows[] = {
      {0, {241, 1}},
      {3, {241, 4}},
      {26, {241, 27}},
      {126, {241, 127}},
      {127, {241, 128, 1}},
      {16382, {241, 191, 254}},
      {16383, {241, 192, 1, 1}},
      {999999, {241, 207, 63, 129}},
  };
  for (const auto& row : rows) {
    Codewords codewords = row.codewords;
    codewords.push_back(66);
    EXPECT_TRUE(Says(codewords, {EciToken(row.number), 'A'})) << row.number;
    EXPECT_FALSE(Says(codewords, {EciToken(row.number ^ 1), 'A'})) << row.number;
    EXPECT_FALSE(Says(codewords, {'A', EciToken(row.number)})) << row.number;
    EXPECT_FALSE(Says(codewords, {'A'})) << row.number;
    codewords.insert(codewords.begin(), 66);
    EXPECT_TRUE(Says(codewords, {'A', EciToken(row.number), 'A'})) << row.number;
  }
  EXPECT_FALSE(Says({66}, {EciToken(3), 'A'}));
}

TEST(TextProof, HeadsAreTheAskedOnes) {
  const MatrixHead heads[] = {MatrixHead::kNone, MatrixHead::kMacro05, MatrixHead::kMacro06,
                              MatrixHead::kReaderProgramming};
  const Codewords rows[] = {{66}, {236, 66}, {237, 66}, {234, 66}};
  for (int asked = 0; asked < 4; ++asked) {
    for (int drawn = 0; drawn < 4; ++drawn) {
      EXPECT_EQ(Says(rows[drawn], {'A'}, heads[asked]), asked == drawn) << asked << " " << drawn;
    }
  }
}

// The second of three symbols: 1 x 16 + 14; identification 254 x 2 + 6.
TEST(TextProof, StructuredAppendHasItsNumbers) {
  const Codewords codewords = {233, 30, 3, 7, 66};
  const auto says = [&](const StructuredAppend& append) {
    return Says(codewords, {'A'}, MatrixHead::kStructuredAppend, append);
  };
  EXPECT_TRUE(says({2, 3, 514}));
  EXPECT_FALSE(says({1, 3, 514}));
  EXPECT_FALSE(says({2, 4, 514}));
  EXPECT_FALSE(says({2, 3, 513}));
  EXPECT_FALSE(Says(codewords, {'A'}));
  EXPECT_FALSE(Says({66}, {'A'}, MatrixHead::kStructuredAppend, {2, 3, 514}));
  EXPECT_TRUE(
      Says({233, 30, 3, 7, 232, 66}, {kFnc1, 'A'}, MatrixHead::kStructuredAppend, {2, 3, 514}));
}

TEST(TextProof, BrokenCodewordsSayNothing) {
  EXPECT_FALSE(Says({66, 241}, {'A'}));
  EXPECT_FALSE(Says({66, 235}, {'A'}));
  EXPECT_FALSE(Says({66, 236}, {'A'}));
  EXPECT_FALSE(Says({66, 255}, {'A'}));
}

}  // namespace barhatch::test
