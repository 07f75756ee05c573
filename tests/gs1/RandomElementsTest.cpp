// What holds for every text, whether it is an element string or not.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "gs1/Dictionary.h"
#include "gs1/ParsedElements.h"

namespace barhatch::test {
namespace {

// Counts blocks, and gives none from the failAt-th on.
struct CountedBlocks {
  int failAt = 0;
  int asked = 0;
  int live = 0;

  Memory Functions() {
    return {[](void* self, std::size_t bytes) {
              return static_cast<CountedBlocks*>(self)->Take(bytes);
            },
            [](void* self, void* block) {
              --static_cast<CountedBlocks*>(self)->live;
              std::free(block);
            },
            this};
  }

  void* Take(std::size_t bytes) {
    if (++asked >= failAt && failAt > 0) return nullptr;
    ++live;
    return std::malloc(bytes);
  }
};

// kept: the blocks that the element string is left with.
Refusal ParseIn(CountedBlocks& blocks, const std::string& text, int& kept) {
  const std::vector<Token> given = TokensOf(text);
  const Memory memory = blocks.Functions();
  ElementString found;
  const Refusal refusal = ParseElements({given.data(), given.size()}, {}, memory, found);
  EXPECT_EQ(found.tokens == nullptr, refusal.IsRefused());
  kept = blocks.live;
  memory.Release(found.tokens);
  memory.Release(found.text);
  return refusal;
}

// Looks like an element string often enough.
class RandomTexts {
 public:
  explicit RandomTexts(std::uint32_t seed) : random_(seed) {
    for (const DictionaryRow& row : ReadDictionary()) identifiers_.push_back(row.first);
  }

  std::string Next() {
    const bool isBracketed = Below(2) == 0;
    std::string text = Below(9) == 0 ? "^" : "";
    for (std::size_t elements = 1 + Below(4); elements > 0; --elements) {
      const std::string ai = identifiers_[Below(identifiers_.size())];
      text += isBracketed ? "(" + ai + ")" : ai;
      const std::size_t length = Below(3) == 0 ? Below(100) : Below(20);
      for (std::size_t i = 0; i < length; ++i) text += Character();
      if (!isBracketed && Below(2) == 0) text += Below(2) == 0 ? '|' : '^';
    }
    return text.substr(0, Below(8) == 0 ? Below(text.size()) : text.size());
  }

 private:
  char Character() {
    switch (Below(16)) {
      case 0:
        return "()|^\\ "[Below(6)];
      case 1:
        return static_cast<char>(Below(256));
      case 2:
        return static_cast<char>('A' + Below(26));
      default:
        return static_cast<char>('0' + Below(10));
    }
  }

  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::mt19937 random_;
  std::vector<std::string> identifiers_;
};

}  // namespace

TEST(RandomElements, AreWrittenSoThatTheyReadBackAsTheyAre) {
  RandomTexts texts(1);
  int accepted = 0;
  for (int i = 0; i < 100000; ++i) {
    const std::string text = texts.Next();
    const Parsed parsed = Parse(text);
    if (!parsed.IsAccepted()) {
      ASSERT_GE(parsed.refusal.extent, 1) << text;
      ASSERT_LE(parsed.refusal.position + parsed.refusal.extent, static_cast<int>(text.size()));
      continue;
    }
    ++accepted;
    ASSERT_EQ(parsed.tokens.front(), '^') << text;
    ASSERT_NE(parsed.tokens.back(), '^') << text;
    const Parsed again = Parse(parsed.tokens);
    ASSERT_TRUE(again.IsAccepted()) << text;
    ASSERT_EQ(again.tokens, parsed.tokens) << text;
    ASSERT_EQ(again.text, parsed.text) << text;
    ASSERT_EQ(again.missesPartner, parsed.missesPartner) << text;
    ASSERT_EQ(again.hasNeedlessSeparator, parsed.hasNeedlessSeparator) << text;
  }
  EXPECT_GT(accepted, 3000);
}

TEST(RandomElements, ReadBackWhereIdentifiersAreNotAssigned) {
  const ElementOptions permitted = {true, kFnc1Token};
  std::mt19937 random(7);
  int accepted = 0;
  for (int i = 0; i < 20000; ++i) {
    const std::string ai = std::to_string(10000 + random() % 10000).substr(1);
    const std::string text = "(" + ai + ")" + std::to_string(100000 + random() % 900000) + "(10)A";
    const Parsed parsed = Parse(text, permitted);
    if (!parsed.IsAccepted()) continue;
    // A reader knows how many digits there are from the first two of them.
    if (PrefixOf(std::stoi(ai.substr(0, 2))).digits == 0) continue;
    ++accepted;
    ASSERT_EQ(Parse(parsed.tokens, permitted).tokens, parsed.tokens) << text;
  }
  EXPECT_GT(accepted, 1000);
}

TEST(RandomElements, TakeNoMemoryWhenTheyAreRefused) {
  RandomTexts texts(2);
  for (int i = 0; i < 2000; ++i) {
    CountedBlocks blocks;
    const std::string text = texts.Next();
    int kept = 0;
    const bool isRefused = ParseIn(blocks, text, kept).IsRefused();
    ASSERT_EQ(kept, isRefused ? 0 : 2) << text;
    ASSERT_EQ(blocks.live, 0) << text;
  }
}

TEST(RandomElements, AreRefusedWithoutMemory) {
  for (int failAt = 1; failAt <= 4; ++failAt) {
    CountedBlocks blocks = {failAt};
    int kept = 0;
    const Refusal refusal = ParseIn(blocks, "(01)09501101530003(10)ABC", kept);
    EXPECT_EQ(refusal.reason, failAt <= 3 ? Reason::kNoMemory : Reason::kNone) << failAt;
    EXPECT_EQ(blocks.live, 0) << failAt;
  }
}

TEST(RandomElements, MayBeMany) {
  std::string text;
  std::string expected = "^";
  for (int i = 0; i < 200000; ++i) {
    text += "(10)A(37)12";
    expected += i > 0 ? "^10A^3712" : "10A^3712";
  }
  const Parsed parsed = Parse(text);
  EXPECT_EQ(parsed.tokens, expected);
  EXPECT_EQ(parsed.text, text);
}

}  // namespace barhatch::test
