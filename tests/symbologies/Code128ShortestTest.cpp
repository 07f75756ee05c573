#include "symbologies/Code128Shortest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "support/SeededTexts.h"
#include "symbologies/DrawnSymbol.h"
#include "symbologies/SymbologyReaders.h"

namespace barhatch {
namespace {

using Tokens = std::vector<Token>;

Tokens TokensOf(const std::string& text) {
  Tokens tokens;
  for (const char byte : text) tokens.push_back(static_cast<unsigned char>(byte));
  return tokens;
}

std::vector<int> ValuesOf(const Tokens& text, Code128Start start = Code128Start::kFree) {
  int count = 0;
  std::uint8_t* const values =
      ShortestCode128Values({text.data(), text.size()}, start, RuntimeMemory(), count);
  std::vector<int> found(values, values + count);
  RuntimeMemory().Release(values);
  return found;
}

std::string Decimal(const std::vector<int>& values) {
  std::string decimal;
  for (const int value : values) decimal += (decimal.empty() ? "" : " ") + std::to_string(value);
  return decimal;
}

std::string Values(const std::string& text, Code128Start start = Code128Start::kFree) {
  return Decimal(ValuesOf(TokensOf(text), start));
}

// What the library's standard reader gives for the drawn symbol of a type.
std::optional<std::string> ReadBack(int type, const std::string& text) {
  const auto letters = test::DrawnByTheBook(type, text);
  if (!letters) return std::nullopt;
  std::string room(letters->size() + 1, '\0');
  std::vector<std::uint8_t> values(letters->size());
  SymbolReading reading = {room.data(), 0, values.data(), 0};
  if (!ReadSymbol(type, CheckScheme::kOwn, letters->data(), letters->size(), reading)) {
    return std::nullopt;
  }
  return std::string(reading.text, reading.textLength);
}

struct Example {
  const char* why;
  std::string text;
  const char* values;
};

TEST(Code128Shortest, WritesTheseTextsSo) {
  const Example examples[] = {
      {"ISO/IEC 15417, annex: two digits alone start in C", "12", "105 12"},
      {"an odd digit is cheapest in B in front", "123", "104 17 18 19"},
      {"four digits are worth C from the start", "1234", "105 12 34"},
      {"of an odd run the first digit stands in B", "12345", "104 17 99 23 45"},
      {"digits inside of letters need six to pay both switches", "A123456B",
       "104 33 99 12 34 56 100 34"},
      {"four inside do not", "A1234B", "104 33 17 18 19 20 34"},
      {"a single control character in lower case is shifted", "a\nb", "104 65 98 74 66"},
      {"control characters alone stand in A", "\n\r\t", "103 74 77 73"},
      {"DEL is in B", "A\x7F", "104 33 95"},
      {"one byte above 127: FNC4", "a\xE9z", "104 65 100 73 90"},
      {"five above 127: latched", "\xE9\xE9\xE9\xE9\xE9", "104 100 100 73 73 73 73 73"},
      {"NUL is in A", std::string("\0", 1), "103 64"},
  };
  for (const Example& e : examples) EXPECT_EQ(Values(e.text), e.values) << e.why;
}

// GS1 General Specifications 5.4: the start C and FNC1 of GS1-128.
TEST(Code128Shortest, Fnc1StandsInEverySet) {
  EXPECT_EQ(Decimal(ValuesOf({kFnc1Token, '1', '2', '3', '4'})), "105 102 12 34");
  EXPECT_EQ(Decimal(ValuesOf({kFnc1Token, '1', '2'}, Code128Start::kPair)), "105 102 12");
  EXPECT_EQ(Decimal(ValuesOf({kFnc1Token, 'A'})), "104 102 33");
  EXPECT_EQ(Decimal(ValuesOf({'\n', kFnc1Token, '\r'})), "103 74 102 77");
  EXPECT_EQ(Decimal(ValuesOf({'1', '2', kFnc1Token, '3', '4'})), "105 12 102 34");
  EXPECT_EQ(Decimal(ValuesOf({'1', '2', '3', kFnc1Token, '4'}, Code128Start::kB)),
            "104 17 18 19 102 20");
}

TEST(Code128Shortest, Fnc2AndFnc3AreMissingFromSetC) {
  EXPECT_EQ(Decimal(ValuesOf({kFnc3Token, 'a'})), "104 96 65");
  EXPECT_EQ(Decimal(ValuesOf({'\n', kFnc2Token})), "103 74 97");
  EXPECT_EQ(Decimal(ValuesOf({'1', '2', '3', '4', kFnc2Token})), "105 12 34 100 97");
  EXPECT_EQ(Decimal(ValuesOf({kFnc3Token, '1', '2', '3', '4'})), "104 96 99 12 34");
}

TEST(Code128Shortest, BeginsAsTheTypeSays) {
  EXPECT_EQ(Values("AB12", Code128Start::kA), "103 33 34 17 18");
  EXPECT_EQ(Values("ab", Code128Start::kA), "103 100 65 66");
  EXPECT_EQ(Values("1234", Code128Start::kB), "104 17 18 19 20");
  EXPECT_EQ(Values("12ab", Code128Start::kPair), "105 12 100 65 66");
  EXPECT_EQ(Values("1ab", Code128Start::kPair), "104 17 65 66");
}

// The same question asked plainly: forwards, over every way to stand at a place, all switches and
// latches written out.
int FewestValues(const std::string& text) {
  using Way = std::pair<char, bool>;  // set, FNC4 latched
  std::map<Way, int> costs = {{{'A', false}, 1}, {{'B', false}, 1}, {{'C', false}, 1}};
  std::vector<std::map<Way, int>> places(text.size() + 2);
  places[0] = costs;
  const auto lower = [](std::map<Way, int>& at, Way way, int cost) {
    const auto [entry, isNew] = at.emplace(way, cost);
    if (!isNew) entry->second = std::min(entry->second, cost);
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    for (int round = 0; round < 4; ++round) {
      for (const auto& [way, cost] : std::map<Way, int>(places[i])) {
        for (const char set : {'A', 'B', 'C'}) {
          if (set != way.first) lower(places[i], {set, way.second}, cost + 1);
        }
        if (way.first != 'C') lower(places[i], {way.first, !way.second}, cost + 2);
      }
    }
    const int byte = static_cast<unsigned char>(text[i]);
    const int low = byte % 128;
    for (const auto& [way, cost] : places[i]) {
      const bool isPair = i + 1 < text.size() && isdigit(byte) != 0 &&
                          isdigit(static_cast<unsigned char>(text[i + 1])) != 0;
      if (way.first == 'C') {
        if (isPair) lower(places[i + 2], way, cost + 1);
        continue;
      }
      const bool isNative = way.first == 'A' ? low < 96 : low >= 32;
      const bool needsFnc4 = (byte >= 128) != way.second;
      lower(places[i + 1], way, cost + 1 + (isNative ? 0 : 1) + (needsFnc4 ? 1 : 0));
    }
  }
  int fewest = 1 << 20;
  for (const auto& [way, cost] : places[text.size()]) fewest = std::min(fewest, cost);
  return fewest;
}

std::string RandomMixture(std::mt19937& random, std::size_t length) {
  const std::string kinds[] = {
      "0123456789",           "ABCXYZ -./",   "abcxyz`~{", std::string("\n\r\0\x1F", 4),
      "\xE4\xF6\xFC\xC4\xE9", "\x80\x85\x9F", "\x7F\xFF"};
  std::string text;
  while (text.size() < length) {
    const std::string& kind = kinds[random() % 7];
    for (std::size_t run = 1 + random() % 6; run > 0 && text.size() < length; --run)
      text += kind[random() % kind.size()];
  }
  return text;
}

TEST(Code128Shortest, IsNeverLongerThanAPlainSearchFinds) {
  std::mt19937 random(128);
  for (int i = 0; i < 3000; ++i) {
    const std::string text = RandomMixture(random, 1 + random() % 40);
    ASSERT_EQ(static_cast<int>(ValuesOf(TokensOf(text)).size()), FewestValues(text)) << i;
  }
}

TEST(Code128Shortest, EveryTextOfUpToSixtyBytesIsReadBack) {
  std::mt19937 random(1281);
  for (int i = 0; i < 4000; ++i) {
    const std::string text = RandomMixture(random, 1 + random() % 60);
    for (const int type : {5, 6, 8}) ASSERT_EQ(ReadBack(type, text), text) << type << " " << i;
  }
}

TEST(Code128Shortest, EveryByteAndPairOfBytesIsReadBack) {
  for (int first = 0; first < 256; ++first) {
    ASSERT_EQ(ReadBack(5, std::string(1, static_cast<char>(first))),
              std::string(1, static_cast<char>(first)));
    for (int second = 0; second < 256; second += 7) {
      const std::string text = {static_cast<char>(first), static_cast<char>(second)};
      ASSERT_EQ(ReadBack(5, text), text) << first << " " << second;
    }
  }
}

TEST(Code128Shortest, SetBAloneTakesItsOwnCharactersAndNoOthers) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    const test::DrawnSymbol drawn = test::Draw(7, text, test::QuietZone::kNone, DeviationSet());
    EXPECT_EQ(drawn.letters.has_value(), byte >= 32 && byte <= 127) << byte;
    EXPECT_EQ(drawn.refusal.position, drawn.letters ? -1 : 0) << byte;
  }
  EXPECT_EQ(ReadBack(7, "Part 4711-08"), "Part 4711-08");
}

TEST(Code128Shortest, TwoThousandValuesAreTheMost) {
  const auto drawn = [](std::size_t digits) {
    return test::Draw(5, std::string(digits, '7'), test::QuietZone::kNone, DeviationSet());
  };
  const std::string letters(1998, 'a');
  EXPECT_EQ(test::DrawnByTheBook(5, letters)->size(), 2001u * 11 + 2);
  const test::DrawnSymbol tooLong =
      test::Draw(5, letters + "a", test::QuietZone::kNone, DeviationSet());
  EXPECT_FALSE(tooLong.letters);
  EXPECT_EQ(tooLong.refusal.reason, Reason::kTooManyValues);
  EXPECT_EQ(tooLong.refusal.figure, 2001);
  EXPECT_TRUE(drawn(3119).letters);  // 1,561 values
}

TEST(Code128Shortest, WithoutMemoryThereIsNothing) {
  const Memory none = {[](void*, std::size_t) -> void* { return nullptr; }, [](void*, void*) {},
                       nullptr};
  int count = 0;
  const Token letter = 'A';
  EXPECT_EQ(ShortestCode128Values({&letter, 1}, Code128Start::kFree, none, count), nullptr);
}

}  // namespace
}  // namespace barhatch
