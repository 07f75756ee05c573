// Element strings that an independent generator has judged: each row of the dictionary with a value
// that is right, one too long, too short, of a wrong character, with a wrong check digit, on a day
// that there is none; and sequences, with and without an accident. judged-elements.txt says what
// made it; BARHATCH_JUDGED_ELEMENTS in the environment names another file of that form.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

#include "gs1/ParsedElements.h"

namespace barhatch::test {
namespace {

struct Difference {
  const char* why;
  int lines = 0;
};

// The judge refuses them, the library does not.
std::map<std::string, Difference> AcceptedHere() {
  const char* const list = "of countries, currencies and packages the library has no lists";
  const char* const coupon = "of coupons the library does not know the parts";
  return {
      {"GS1aiMissingOpenParen", {"without a bracket in front they are as a reader reports them"}},
      {"GS1coupon", {coupon}},
      {"GS1exclusiveAIs", {"partners are warnings: a label may be spread over several symbols"}},
      {"GS1UnknownCountry", {list}},
      {"GS1UnknownCountryAlpha", {list}},
      {"GS1UnknownCountryOr999", {list}},
      {"GS1UnknownCurrency", {list}},
      {"GS1unknownPackageType", {list}},
  };
}

struct Judged {
  std::string text;
  std::string verdict;
  std::string tokens;
};

Judged Split(const std::string& line) {
  const std::size_t first = line.find('\t');
  const std::size_t second = line.find('\t', first + 1);
  return {line.substr(0, first), line.substr(first + 1, second - first - 1),
          line.substr(second + 1)};
}

// Of its many refusals of coupons one name.
std::string FamilyOf(const std::string& verdict) {
  const std::string coupon = "GS1coupon";
  return verdict.compare(0, coupon.size(), coupon) == 0 ? coupon : verdict;
}

// The judge takes one bracket at the end for nothing.
bool EndsWithBracket(const std::string& text) {
  return text.back() == '(' && (text.size() == 1 || text[text.size() - 2] != '\\');
}

std::string JudgedFile() {
  const char* const other = std::getenv("BARHATCH_JUDGED_ELEMENTS");
  return other != nullptr ? other : BARHATCH_GS1_TESTS "/judged-elements.txt";
}

}  // namespace

TEST(JudgedElements, AreAcceptedAndWrittenAsTheJudgeDoes) {
  std::ifstream file(JudgedFile());
  std::map<std::string, Difference> acceptedHere = AcceptedHere();
  int accepted = 0;
  int refused = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.front() == '#') continue;
    const Judged judged = Split(line);
    const Parsed parsed = Parse(judged.text);
    if (judged.verdict == "ok" && EndsWithBracket(judged.text)) {
      EXPECT_EQ(parsed.refusal.reason, Reason::kGs1Syntax) << line;
    } else if (judged.verdict == "ok") {
      EXPECT_TRUE(parsed.IsAccepted()) << line << ": " << static_cast<int>(parsed.refusal.reason);
      EXPECT_EQ(parsed.tokens, judged.tokens) << line;
      ++accepted;
    } else if (const auto row = acceptedHere.find(FamilyOf(judged.verdict));
               row != acceptedHere.end()) {
      row->second.lines += parsed.IsAccepted() ? 1 : 0;
      if (parsed.IsAccepted() && judged.verdict == "GS1exclusiveAIs") {
        EXPECT_TRUE(parsed.missesPartner) << line;
      }
    } else {
      EXPECT_FALSE(parsed.IsAccepted()) << line;
      ++refused;
    }
  }
  EXPECT_GT(accepted, 300);
  EXPECT_GT(refused, 600);
  for (const auto& [verdict, row] : acceptedHere) {
    EXPECT_GT(row.lines, 0) << verdict << ": " << row.why << ": no line needs this row";
  }
}

}  // namespace barhatch::test
