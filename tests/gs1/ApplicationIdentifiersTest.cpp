#include "gs1/ApplicationIdentifiers.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "gs1/Dictionary.h"

namespace barhatch::test {
namespace {

AiCode CodeOf(const std::string& ai) { return static_cast<AiCode>(std::stoi("1" + ai)); }

std::set<std::string> AssignedIdentifiers() {
  std::set<std::string> assigned;
  for (const DictionaryRow& row : ReadDictionary()) {
    for (const std::string& ai : IdentifiersOf(row)) assigned.insert(ai);
  }
  return assigned;
}

// The checks by their names in the dictionary. Lists and the parts of coupons are left out.
const std::map<std::string, AiCheck> kChecks = {
    {"csum", AiCheck::kCheckDigit},
    {"csumalpha", AiCheck::kCheckPair},
    {"hasnondigit", AiCheck::kHasNonDigit},
    {"yymmdd", AiCheck::kDate},
    {"yymmd0", AiCheck::kDateOrMonth},
    {"yyyymmdd", AiCheck::kLongDate},
    {"hhmi", AiCheck::kHourMinute},
    {"hh", AiCheck::kHour},
    {"mi", AiCheck::kMinute},
    {"ss", AiCheck::kSecond},
    {"zero", AiCheck::kZero},
    {"nonzero", AiCheck::kNotZero},
    {"nozeroprefix", AiCheck::kNoZeroInFront},
    {"yesno", AiCheck::kYesNo},
    {"winding", AiCheck::kWinding},
    {"iso5218", AiCheck::kSex},
    {"hyphen", AiCheck::kHyphens},
    {"pieceoftotal", AiCheck::kPieceOfTotal},
    {"posinseqslash", AiCheck::kPositionOfTotal},
    {"latitude", AiCheck::kLatitude},
    {"longitude", AiCheck::kLongitude},
    {"pcenc", AiCheck::kPercentEscapes},
    {"importeridx", AiCheck::kImporterIndex},
    {"mediatype", AiCheck::kMediaType},
    {"iban", AiCheck::kBankAccount},
};
const std::set<std::string> kListsAndCoupons = {"iso3166",       "iso3166999",  "iso3166alpha2",
                                                "iso4217",       "packagetype", "couponcode",
                                                "couponposoffer"};

struct WrittenComponent {
  bool isOptional;
  char set;
  int shortest;
  int longest;
  std::set<std::string> checks;
};

// "[X..17]", "N13,csum,gcppos1"
WrittenComponent Read(const std::string& written) {
  std::vector<std::string> parts = SplitAt(written, ',');
  std::string format = parts.front();
  const bool isOptional = format.front() == '[';
  if (isOptional) format = format.substr(1, format.size() - 2 + (format.back() == ']' ? 0 : 1));
  const bool isVariable = format.find("..") != std::string::npos;
  const int longest = std::stoi(format.substr(isVariable ? 3 : 1));
  return {isOptional,
          format.front(),
          isVariable ? 1 : longest,
          longest,
          {parts.begin() + 1, parts.end()}};
}

// The check that the table should have for those of the dictionary.
AiCheck CheckFor(const WrittenComponent& written) {
  // Both look for a pair of check characters; the second for more.
  if (written.checks.count("hasnondigit") != 0) return AiCheck::kHasNonDigit;
  AiCheck check = AiCheck::kNone;
  for (const std::string& name : written.checks) {
    if (kListsAndCoupons.count(name) != 0 || name.rfind("gcppos", 0) == 0) continue;
    const auto row = kChecks.find(name);
    EXPECT_NE(row, kChecks.end()) << name;
    EXPECT_EQ(check, AiCheck::kNone) << name;
    if (row != kChecks.end()) check = row->second;
  }
  const bool hasPrefix = written.checks.count("gcppos1") != 0 && written.set != 'N';
  if (check == AiCheck::kNone && hasPrefix) return AiCheck::kCompanyPrefix;
  // Set 64 goes without a name for its padding.
  return written.set == 'Z' ? AiCheck::kPadding : check;
}

}  // namespace

TEST(ApplicationIdentifiers, ThoseOfTheDictionaryAreAssignedAndNoOthers) {
  const std::set<std::string> assigned = AssignedIdentifiers();
  ASSERT_GT(assigned.size(), 500u);
  for (int code = 100; code < kAiCodeEnd; code = code == 199    ? 1000
                                                 : code == 1999 ? 10000
                                                                : code + 1) {
    const std::string ai = std::to_string(code).substr(1);
    EXPECT_EQ(FindAi(static_cast<AiCode>(code)) != nullptr, assigned.count(ai) != 0) << ai;
    EXPECT_EQ(DigitsOf(static_cast<AiCode>(code)), ai.size());
    EXPECT_EQ(FirstTwoOf(static_cast<AiCode>(code)), std::stoi(ai.substr(0, 2))) << ai;
  }
}

TEST(ApplicationIdentifiers, HaveTheFormatsOfTheDictionary) {
  for (const DictionaryRow& row : ReadDictionary()) {
    for (const std::string& ai : IdentifiersOf(row)) {
      SCOPED_TRACE(ai);
      const AiRange* const range = FindAi(CodeOf(ai));
      ASSERT_NE(range, nullptr);
      for (std::size_t i = 0; i < kMostAiComponents; ++i) {
        const AiComponent& component = range->components[i];
        if (i >= row.components.size()) {
          EXPECT_EQ(component.longest, 0);
          continue;
        }
        const WrittenComponent written = Read(row.components[i]);
        EXPECT_EQ("NXYZ"[static_cast<int>(component.characters)], written.set);
        EXPECT_EQ(component.isOptional, written.isOptional);
        EXPECT_EQ(component.shortest, written.shortest);
        EXPECT_EQ(component.longest, written.longest);
        EXPECT_EQ(component.check, CheckFor(written)) << row.components[i];
      }
    }
  }
}

TEST(ApplicationIdentifiers, HavePredefinedLengthsByTheirPrefix) {
  for (const DictionaryRow& row : ReadDictionary()) {
    const AiPrefix prefix = PrefixOf(std::stoi(row.first.substr(0, 2)));
    EXPECT_EQ(prefix.digits, row.first.size()) << row.first;
    EXPECT_EQ(prefix.predefined > 0, row.isPredefined) << row.first;
  }
  // Prefixes that readers know without an identifier of theirs.
  EXPECT_EQ(PrefixOf(4).predefined, 16);
  EXPECT_EQ(PrefixOf(14).predefined, 6);
  EXPECT_EQ(PrefixOf(23).predefined, 0);
  EXPECT_EQ(PrefixOf(55).digits, 0);
}

TEST(ApplicationIdentifiers, EachHasAnIndexOfItsOwn) {
  std::set<std::size_t> indices;
  const std::set<std::string> assigned = AssignedIdentifiers();
  for (const std::string& ai : assigned) indices.insert(IndexOfAi(*FindAi(CodeOf(ai)), CodeOf(ai)));
  EXPECT_EQ(indices.size(), assigned.size());
  EXPECT_EQ(*indices.rbegin(), assigned.size() - 1);
  EXPECT_LT(*indices.rbegin(), kMostAis);
}

TEST(ApplicationIdentifiers, SetsHaveTheirCharactersAndNoOthers) {
  const std::string digits = "0123456789";
  const std::string upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  const std::string lower = "abcdefghijklmnopqrstuvwxyz";
  const std::string sets[] = {digits, "!\"%&'()*+,-./:;<=>?_" + digits + upper + lower,
                              "#-/" + digits + upper, "-_=" + digits + upper + lower};
  for (int set = 0; set < 4; ++set) {
    for (Token token = 0; token < 1000; ++token) {
      const bool isInSet = token < 128 && token != 0 &&
                           sets[set].find(static_cast<char>(token)) != std::string::npos;
      EXPECT_EQ(HasAiCharacter(static_cast<AiCharacters>(set), token), isInSet)
          << set << ' ' << token;
    }
    EXPECT_FALSE(HasAiCharacter(static_cast<AiCharacters>(set), kFnc1Token));
  }
}

TEST(ApplicationIdentifiers, FiguresKeepIdentifierAndDetail) {
  for (const AiCode ai : {AiCode{100}, AiCode{1235}, AiCode{13106}, AiCode{19999}}) {
    for (const std::size_t detail : {std::size_t{0}, std::size_t{9}, std::size_t{0xFFFF}}) {
      const std::int32_t figure = AiFigure(ai, detail);
      EXPECT_EQ(AiOfFigure(figure), ai);
      EXPECT_EQ(DetailOfFigure(figure), static_cast<std::int32_t>(detail));
    }
  }
  EXPECT_EQ(DetailOfFigure(AiFigure(100, 0x110001)), kMostAiDetail);
}

}  // namespace barhatch::test
