// Which rows of the register a mark has met, and what the same text gives by the book.
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

#include "mark/DeviationTable.h"
#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

// The ids of the bits; those of the lines are the same.
std::string Ids(const Mark& mark) {
  EXPECT_TRUE(mark.IsOk()) << mark.Message();
  std::string ids;
  for (int i = 0; i < kDeviationCount; ++i) {
    if ((mark->deviations >> i & 1) == 0) continue;
    ids += (ids.empty() ? "" : " ") + std::string(kDeviationRows[i].id);
  }
  EXPECT_EQ(mark->deviations >> kDeviationCount, 0u);
  std::string ofLines;
  std::istringstream lines(mark->deviations_met);
  for (std::string line; std::getline(lines, line);) {
    ofLines += (ofLines.empty() ? "" : " ") + line.substr(0, line.find(':'));
  }
  EXPECT_EQ(ofLines, ids);
  return ids;
}

std::string Linear(std::int32_t symbology, const std::string& text) {
  BarhatchJob job = LongJobOf(symbology, text);
  job.input = BARHATCH_BYTES;
  return Ids(Mark(job));
}

struct MatrixText {
  const char16_t* text;
  std::int32_t rows = 0;
  std::int32_t columns = 0;
  std::uint32_t flags = 0;
  std::int32_t envelope = 0;
};

std::string Matrix(const MatrixText& matrix) {
  BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, nullptr);
  job.input = BARHATCH_UNITS;
  job.text = matrix.text;
  job.rows = matrix.rows;
  job.columns = matrix.columns;
  job.flags = matrix.flags;
  job.envelope = matrix.envelope;
  return Ids(Mark(job));
}

struct Row {
  std::int32_t symbology;
  const char* text;
  const char* ids;
};

constexpr Row kLinearRows[] = {
    {1, "ABC-123", ""},
    {1, "A/B", "D-39-2"},
    {1, "E", "D-39-3"},
    {1, "Z", "D-39-3"},
    {1, "A*B", "D-39-4"},
    {1, "*", "D-39-4"},
    {1, "1%%2", "D-39-5"},
    {1, "1%2%", ""},
    {1, "", "D-39-6"},
    {1, "/Z*%%", "D-39-2 D-39-3 D-39-4 D-39-5"},
    {5, "12345", "D-128-1"},
    {5, "1234A", "D-128-1"},
    {5, "1234AB", ""},
    {5, "A12345B", "D-128-1"},
    {5, "123", ""},
    {6, "A\x7F", "D-128-2"},
    {6, "a\x7F", ""},
    {21, "", "D-25-2"},
    {21, "123", ""},
    {2, "A$", "D-93-1"},
    {22, "A/", "D-93-1"},
    {22, "a!", ""},
    {22, "A\x80", "D-93-2"},
    {22,
     "\x80"
     "A",
     "D-93-3"},
    {22,
     "\x80"
     "A\x81",
     "D-93-2 D-93-3"},
    {22, "\x80", "D-93-3"},
    {2, "", "D-93-4"},
    {22, "", "D-93-4"},
    {4, "", "D-MSI-1"},
    {4, "0", ""},
    {0, "A123B", ""},
    {0, "123", "D-CB-1"},
    {0, "1", "D-CB-1"},
    {0, "A123", "D-CB-2"},
    {0, "123*", "D-CB-2"},
    {0, "*", "D-CB-2"},
    {0, "AB", "D-CB-3"},
    {11, "123456789", ""},
    {11, "1234567890", "D-11-1"},
    {11, "12345678901", ""},
    {11, "", "D-11-2"},
    {3, "950110153100", ""},
    {13, "0360002914512", "D-EAN-1"},
    {14, "0360002914512345", "D-EAN-1"},
    {15, "97713845240112", ""},
    {16, "97713845240112345", ""},
    {17, "963850712", "D-EAN-2"},
    {18, "963850712345", "D-EAN-2"},
    {10, "0425261", ""},
    {10, "1425261", "D-EAN-3"},
    {10, "0122453", "D-EAN-4"},
    {10, "0123453", ""},
    {10, "0123044", "D-EAN-4"},
    {10, "0123405", "D-EAN-4"},
    {19, "012345612", "D-EAN-1"},
    {20, "152345652495", "D-EAN-1 D-EAN-3"},
};

constexpr MatrixText Fnc1(const char16_t* text) { return {text, 0, 0, BARHATCH_FNC1_SECOND, 0}; }

struct MatrixRow {
  MatrixText matrix;
  const char* ids;
};

const MatrixRow kMatrixRows[] = {
    {{u"123456"}, ""},
    {{u"12", 144, 144}, "D-DM-1"},
    {{u"A"}, "D-DM-2"},
    {{u"\u0081"}, "D-DM-2 D-DM-3"},
    {{u"\u0080"}, "D-DM-2 D-DM-4"},
    {Fnc1(u"12"), ""},
    {Fnc1(u"AIMAIMAIM"), "D-DM-2 D-DM-6 D-DM-8"},
    {Fnc1(u"\u0400"
          u"12"),
     "D-DM-6"},
    {{u"AIMAIMAIM"}, "D-DM-2"},
    {{u"AIMAIMAIM", 16, 16}, "D-DM-2 D-DM-7"},
    {{u"AIMAIMAIM", 0, 0, 0, 5}, "D-DM-2 D-DM-8"},
    {{u"AIMAIMAIMAIM", 8, 32, BARHATCH_MAY_GROW}, "D-DM-2 D-DM-8"},
    {{u"A-B/C-D/E-F/G-Ha-I/J-K/L-M"}, "D-DM-2 D-DM-9"},
    {{u"A-1/B-2/C-3/"}, "D-DM-2 D-DM-10"},
};

}  // namespace

TEST(DeviationsOfMarks, AreThoseThatALinearTextMeets) {
  for (const Row& row : kLinearRows) {
    EXPECT_EQ(Linear(row.symbology, row.text), row.ids) << row.symbology << " " << row.text;
  }
}

TEST(DeviationsOfMarks, OfTheLimitOfCode128) {
  EXPECT_EQ(Linear(7, std::string(79, 'A')), "");
  EXPECT_EQ(Linear(7, std::string(80, 'A')), "D-128-3");
  EXPECT_EQ(Linear(6, std::string(78, 'A') + "a"), "D-128-3 D-128-4");
  EXPECT_EQ(Linear(8, std::string(158, '1')), "");
  EXPECT_EQ(Linear(8, std::string(156, '1') + "A"), "D-128-4");
  EXPECT_EQ(Linear(8, std::string(160, '1')), "D-128-3");
}

TEST(DeviationsOfMarks, AreThoseThatAMatrixMeets) {
  for (const MatrixRow& row : kMatrixRows) {
    EXPECT_EQ(Matrix(row.matrix), row.ids) << testing::PrintToString(row.matrix.text);
  }
}

// The others touch no text: D-39-1, D-25-1 and D-DM-5.
TEST(DeviationsOfMarks, HaveATextForEveryRowThatATextCanTouch) {
  std::set<std::string> met;
  const auto add = [&](const std::string& ids) {
    std::istringstream words(ids);
    for (std::string id; words >> id;) met.insert(id);
  };
  for (const Row& row : kLinearRows) add(row.ids);
  for (const MatrixRow& row : kMatrixRows) add(row.ids);
  add("D-128-3 D-128-4");  // OfTheLimitOfCode128
  for (const DeviationRow& row : kDeviationRows) {
    const bool touchesNone = std::string(row.touches).compare(0, 4, "none") == 0;
    EXPECT_EQ(met.count(row.id), touchesNone ? 0u : 1u) << row.id;
  }
}

// By the book each of them is refused, or read as it was given and none is met.
TEST(DeviationsOfMarks, AreNoneByTheBook) {
  for (const Row& row : kLinearRows) {
    const std::string text = row.text;
    BarhatchJob job = LongJobOf(row.symbology, text, BARHATCH_PUBLISHED);
    job.input = BARHATCH_BYTES;
    const Mark mark(job);
    if (!mark.IsOk()) continue;
    EXPECT_EQ(mark->deviations, 0u) << row.text;
    EXPECT_EQ(mark->warnings & BARHATCH_W_UNREADABLE, 0u) << row.symbology << " " << row.text;
  }
}

TEST(DeviationsOfMarks, ThatAreMetAreWhyAReaderReadsSomethingElse) {
  for (const Row& row : kLinearRows) {
    const std::string text = row.text;
    BarhatchJob job = LongJobOf(row.symbology, text);
    job.input = BARHATCH_BYTES;
    const Mark mark(job);
    const bool isReadable = (mark->warnings & BARHATCH_W_UNREADABLE) == 0;
    EXPECT_TRUE(isReadable || *row.ids != '\0') << row.symbology << " " << row.text;
  }
}

TEST(DeviationsOfMarks, OfWhatIsPermittedAreMetThere) {
  BarhatchJob job = PublishedJobOf(BARHATCH_UPC_E_ADDON_2, "142526112");
  job.flags = BARHATCH_PERMIT;
  EXPECT_EQ(Ids(Mark(job)), "D-EAN-3");
  job = PublishedJobOf(BARHATCH_EAN_8_ADDON_2, "963850712");
  job.flags = BARHATCH_PERMIT;
  EXPECT_EQ(Ids(Mark(job)), "D-EAN-2");
  job = PublishedJobOf(BARHATCH_EAN_13, "950110153100");
  job.flags = BARHATCH_PERMIT;
  EXPECT_EQ(Ids(Mark(job)), "");
}

}  // namespace barhatch::test
