#include "gs1/ElementStrings.h"

#include <gtest/gtest.h>

#include <string>

#include "gs1/ParsedElements.h"

namespace barhatch::test {
namespace {

constexpr ElementOptions kPermitted = {true, kFnc1Token};

// The reason with position and extent: "12 at 3, 2".
struct Refused {
  const char* text;
  Reason reason;
  int position;
  int extent;
};

void ExpectRefused(const Refused& expected, const ElementOptions& options = {}) {
  const Refusal refusal = Parse(expected.text, options).refusal;
  EXPECT_EQ(refusal.reason, expected.reason) << expected.text;
  EXPECT_EQ(refusal.position, expected.position) << expected.text;
  EXPECT_EQ(refusal.extent, expected.extent) << expected.text;
}

}  // namespace

TEST(ElementStrings, BeginWithFnc1) {
  EXPECT_EQ(Parse("(01)09501101530003").tokens, "^0109501101530003");
}

TEST(ElementStrings, SeparateWhatHasNoPredefinedLength) {
  const char* const rows[][2] = {
      {"(01)09501101530003(10)ABC", "^010950110153000310ABC"},
      {"(10)ABC(01)09501101530003", "^10ABC^0109501101530003"},
      {"(10)ABC(21)9", "^10ABC^219"},
      {"(17)261231(3100)000001(410)9501101530003(20)11(37)1",
       "^172612313100000001410950110153000320"
       "11371"},
      {"(402)00000000000000000(422)276(10)A", "^40200000000000000000^422276^10A"},
  };
  for (const auto& row : rows) EXPECT_EQ(Parse(row[0]).tokens, row[1]) << row[0];
}

TEST(ElementStrings, SeparateByGsWhereAskedTo) {
  EXPECT_EQ(Parse("(10)ABC(21)9", {false, kGroupSeparator}).tokens, "^10ABC|219");
}

TEST(ElementStrings, AreTheSameInBothForms) {
  const char* const rows[][2] = {
      {"(01)09501101530003(10)ABC", "010950110153000310ABC"},
      {"(10)ABC(01)09501101530003", "10ABC|0109501101530003"},
      {"(10)ABC(01)09501101530003", "^10ABC^0109501101530003"},
      {"(10)A\\(B)C\\((21)\\(", "10A(B)C(|21("},
      {"(3103)001750(11)261200(8020)a", "3103001750112612008020a"},
  };
  for (const auto& row : rows) {
    const Parsed bracketed = Parse(row[0]);
    const Parsed raw = Parse(row[1]);
    ASSERT_TRUE(bracketed.IsAccepted() && raw.IsAccepted()) << row[0] << ' ' << row[1];
    EXPECT_EQ(bracketed.tokens, raw.tokens);
    EXPECT_EQ(bracketed.text, raw.text);
  }
}

TEST(ElementStrings, IgnoreASeparatorThatMeansNothing) {
  EXPECT_EQ(Parse("0109501101530003|10ABC|").tokens, "^010950110153000310ABC");
  EXPECT_EQ(Parse("^(10)ABC").tokens, "^10ABC");
}

TEST(ElementStrings, AreWrittenForPeopleWithBrackets) {
  EXPECT_EQ(Parse("010950110153000310ABC|21(").text, "(01)09501101530003(10)ABC(21)(");
  EXPECT_EQ(Parse("(10)A)B\\(").text, "(10)A)B(");
}

TEST(ElementStrings, RefuseWhatIsNoElement) {
  const Refused rows[] = {
      {"", Reason::kEmpty, -1, 1},
      {"^", Reason::kEmpty, -1, 1},
      {"A", Reason::kGs1Syntax, 0, 1},
      {"0", Reason::kGs1Syntax, 0, 1},
      {"|10A", Reason::kGs1Syntax, 0, 1},
      {"10A||21B", Reason::kGs1Syntax, 4, 1},
      {"10A|310", Reason::kGs1Syntax, 4, 3},
      {"(", Reason::kGs1Syntax, 0, 1},
      {"(1)A", Reason::kGs1Syntax, 0, 3},
      {"(12345)A", Reason::kGs1Syntax, 0, 6},
      {"(10", Reason::kGs1Syntax, 0, 3},
      {"(1A)B", Reason::kGs1Syntax, 0, 3},
      {"(10)A((21)B", Reason::kGs1Syntax, 5, 2},
      {"(10)A(", Reason::kGs1Syntax, 5, 1},
  };
  for (const Refused& row : rows) ExpectRefused(row);
}

TEST(ElementStrings, RefuseIdentifiersThatAreNotAssigned) {
  const Refused rows[] = {
      {"(9999)A", Reason::kUnknownAi, 1, 4},
      {"(04)1234567890123456", Reason::kUnknownAi, 1, 2},
      {"(10)A(3106)123456", Reason::kUnknownAi, 6, 4},
      {"(010)A", Reason::kUnknownAi, 1, 3},
      {"3106123456", Reason::kUnknownAi, 0, 4},
      {"10A|55A", Reason::kUnknownAi, 4, 2},
  };
  for (const Refused& row : rows) {
    ExpectRefused(row);
    EXPECT_EQ(DetailOfFigure(Parse(row.text).refusal.figure), 0);
  }
  EXPECT_EQ(AiOfFigure(Parse("(04)1").refusal.figure), 104);
  EXPECT_EQ(AiOfFigure(Parse("(3106)1").refusal.figure), 13106);
}

TEST(ElementStrings, WriteIdentifiersThatAreNotAssignedWherePermitted) {
  EXPECT_EQ(Parse("(55)A(3106)123456(10)B", kPermitted).tokens, "^55A^310612345610B");
  EXPECT_EQ(Parse("310612345610B", kPermitted).tokens, "^310612345610B");
  EXPECT_EQ(Parse("(04)1234567890123456(10)B", kPermitted).tokens, "^04123456789012345610B");
  EXPECT_TRUE(Parse("(55)" + std::string(90, 'A'), kPermitted).IsAccepted());
}

TEST(ElementStrings, RefuseIdentifiersThatNoReaderWouldFindEvenIfPermitted) {
  const std::string longer = "(55)" + std::string(91, 'A');
  const Refused rows[] = {
      {"(010)A", Reason::kUnknownAi, 1, 3},          // read as (01)
      {"(100)A", Reason::kUnknownAi, 1, 3},          // read as (10)
      {"(31)123456", Reason::kUnknownAi, 1, 2},      // read as (3112)
      {"(04)123", Reason::kAiTooShort, 1, 6},        // 16 by its first two digits
      {"(3106)1234567", Reason::kAiTooLong, 12, 1},  // 6 by its first two digits
      {"(55)", Reason::kAiTooShort, 1, 3},
      {"(55)A B", Reason::kAiCharacter, 5, 1},
      {"55A", Reason::kUnknownAi, 0, 2},  // how many digits?
      {longer.c_str(), Reason::kAiTooLong, 94, 1},
  };
  for (const Refused& row : rows) ExpectRefused(row, kPermitted);
}

TEST(ElementStrings, RefusalsPointAtWhatIsWrong) {
  const Refused rows[] = {
      {"(10)ABCDEFGHIJKLMNOPQRSTUV", Reason::kAiTooLong, 24, 2},
      {"(01)0950110153000", Reason::kAiTooShort, 1, 16},
      {"(10)(21)A", Reason::kAiTooShort, 1, 3},
      {"(10)A B", Reason::kAiCharacter, 5, 1},
      {"(10)\\(\\( ", Reason::kAiCharacter, 8, 1},
      {"(10)A\\B", Reason::kAiCharacter, 5, 1},
      {"(01)09501101530004", Reason::kAiCheckDigit, 17, 1},
      {"10A|0109501101530004", Reason::kAiCheckDigit, 19, 1},
      {"(8003)009501101530004A", Reason::kAiCheckDigit, 19, 1},
      {"(8013)1987654Ad4X4bL5ttr2310cXX", Reason::kAiCheckPair, 29, 2},
      {"(17)261301", Reason::kAiDate, 6, 2},
      {"(17)260230", Reason::kAiDate, 8, 2},
      {"(7003)2602282460", Reason::kAiDate, 12, 2},
      {"(7003)2602282360", Reason::kAiDate, 14, 2},
      {"(8006)095011015300030201", Reason::kAiValue, 20, 4},
      {"(4300)A%2G", Reason::kAiValue, 7, 3},
      {"(4300)A%2", Reason::kAiValue, 7, 2},
      {"(10)A(21)X(10)B", Reason::kAiRepeated, 11, 4},
  };
  for (const Refused& row : rows) ExpectRefused(row);
}

TEST(ElementStrings, RefusalsSayWhatWouldBeRight) {
  const auto detail = [](const char* text) {
    const Refusal refusal = Parse(text).refusal;
    return DetailOfFigure(refusal.figure);
  };
  EXPECT_EQ(detail("(01)09501101530004"), 3);
  EXPECT_EQ(detail("(8013)1987654Ad4X4bL5ttr2310cXX"), '2' * 256 + 'K');
  EXPECT_EQ(detail("(10)ABCDEFGHIJKLMNOPQRSTUV"), 22);
  EXPECT_EQ(detail("(10)A B"), ' ');
  EXPECT_EQ(detail("(7011)26010112"), 8);
}

TEST(ElementStrings, RepeatAnIdentifierWithItsValue) {
  EXPECT_EQ(Parse("(10)A(10)A").tokens, "^10A^10A");
  EXPECT_EQ(Parse("(10)A(21)A(10)AA").refusal.reason, Reason::kAiRepeated);
  EXPECT_TRUE(Parse("(3100)000001(3110)000002").IsAccepted());
}

TEST(ElementStrings, WarnOfASeparatorThatAnotherOrderSaves) {
  EXPECT_TRUE(Parse("(10)ABC(01)09501101530003").hasNeedlessSeparator);
  EXPECT_FALSE(Parse("(01)09501101530003(10)ABC").hasNeedlessSeparator);
  EXPECT_FALSE(Parse("(10)ABC(01)09501101530003(21)9").hasNeedlessSeparator);
  EXPECT_FALSE(Parse("(01)09501101530003(17)261231").hasNeedlessSeparator);
}

}  // namespace barhatch::test
