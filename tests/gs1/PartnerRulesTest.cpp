#include "gs1/PartnerRules.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

#include "gs1/Dictionary.h"
#include "gs1/ParsedElements.h"

namespace barhatch::test {
namespace {

using Identifiers = std::set<std::string>;

AiCode CodeOf(const std::string& ai) { return static_cast<AiCode>(std::stoi("1" + ai)); }

bool Hold(const Identifiers& present) {
  AiPresence presence;
  for (const std::string& ai : present) presence.Add(*FindAi(CodeOf(ai)), CodeOf(ai));
  return HaveTheirPartners(presence);
}

// ---- The dictionary's rules, read plainly ----

bool Fits(const std::string& pattern, const std::string& ai) {
  if (pattern.size() != ai.size()) return false;
  for (std::size_t i = 0; i < ai.size(); ++i) {
    if (pattern[i] != 'n' && pattern[i] != ai[i]) return false;
  }
  return true;
}

bool HasOther(const Identifiers& present, const std::string& pattern, const std::string& than) {
  for (const std::string& ai : present) {
    if (ai != than && Fits(pattern, ai)) return true;
  }
  return false;
}

bool HasAlternative(const Identifiers& present, const std::string& needs) {
  if (needs.empty()) return true;
  for (const std::string& alternative : SplitAt(needs, ',')) {
    bool hasAll = true;
    for (const std::string& pattern : SplitAt(alternative, '+'))
      hasAll = hasAll && HasOther(present, pattern, "");
    if (hasAll) return true;
  }
  return false;
}

bool HoldByTheDictionary(const std::vector<DictionaryRow>& rows, const Identifiers& present) {
  for (const std::string& ai : present) {
    for (const DictionaryRow& row : rows) {
      const bool isOfRow = ai.size() == row.first.size() && ai >= row.first && ai <= row.last;
      if (!isOfRow) continue;
      if (!HasAlternative(present, row.needs)) return false;
      for (const std::string& pattern : SplitAt(row.notWith, ',')) {
        if (HasOther(present, pattern, ai)) return false;
      }
    }
  }
  return true;
}

std::string Written(const Identifiers& present) {
  std::string text;
  for (const std::string& ai : present) text += "(" + ai + ")";
  return text;
}

// One identifier for each n.
std::string OneOf(std::string pattern) {
  for (char& digit : pattern) {
    if (digit == 'n') digit = '0';
  }
  return pattern;
}

}  // namespace

TEST(PartnerRules, AgreeWithTheDictionaryOnEveryPairOfRows) {
  const std::vector<DictionaryRow> rows = ReadDictionary();
  int kept = 0;
  for (const DictionaryRow& one : rows) {
    for (const DictionaryRow& other : rows) {
      const Identifiers present = {one.first, other.last};
      const bool holds = HoldByTheDictionary(rows, present);
      ASSERT_EQ(Hold(present), holds) << Written(present);
      kept += holds ? 1 : 0;
    }
  }
  EXPECT_GT(kept, 500);
}

TEST(PartnerRules, AgreeWithTheDictionaryOnEveryAlternative) {
  const std::vector<DictionaryRow> rows = ReadDictionary();
  int alternatives = 0;
  for (const DictionaryRow& row : rows) {
    for (const std::string& alternative : SplitAt(row.needs, ',')) {
      Identifiers present = {row.last};
      for (const std::string& pattern : SplitAt(alternative, '+')) present.insert(OneOf(pattern));
      EXPECT_EQ(Hold(present), HoldByTheDictionary(rows, present)) << Written(present);
      // and with what most of them need themselves
      for (const char* more : {"01", "21", "00", "415", "8020", "8018", "4302"}) {
        Identifiers larger = present;
        larger.insert(more);
        EXPECT_EQ(Hold(larger), HoldByTheDictionary(rows, larger)) << Written(larger);
      }
      ++alternatives;
    }
  }
  EXPECT_GT(alternatives, 300);
}

TEST(PartnerRules, AgreeWithTheDictionaryOnRandomMessages) {
  const std::vector<DictionaryRow> rows = ReadDictionary();
  std::mt19937 random(13);
  int kept = 0;
  for (int i = 0; i < 20000; ++i) {
    Identifiers present;
    for (std::size_t count = 1 + random() % 4; count > 0; --count) {
      const DictionaryRow& row = rows[random() % rows.size()];
      const std::vector<std::string> ais = IdentifiersOf(row);
      present.insert(ais[random() % ais.size()]);
      if (random() % 2 == 0) present.insert(random() % 2 == 0 ? "01" : "00");
    }
    const bool holds = HoldByTheDictionary(rows, present);
    ASSERT_EQ(Hold(present), holds) << Written(present);
    kept += holds ? 1 : 0;
  }
  EXPECT_GT(kept, 500);
}

TEST(PartnerRules, AreOfTheWholeMessage) {
  EXPECT_TRUE(Parse("(10)ABC").missesPartner);
  EXPECT_FALSE(Parse("(10)ABC(01)09501101530003").missesPartner);
  EXPECT_TRUE(Parse("(01)09501101530003(37)5").missesPartner);
  EXPECT_FALSE(Parse("(02)09501101530003(37)5(00)095011015300000014").missesPartner);
  EXPECT_TRUE(Parse("(01)09501101530003(3100)000001(3102)000001").missesPartner);
  EXPECT_FALSE(Parse("(55)A", {true, kFnc1Token}).missesPartner);
}

}  // namespace barhatch::test
