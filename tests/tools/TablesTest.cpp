// The tables of the program and of the documents are one: they are compared line by line.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "Departures.h"
#include "TextRules.h"
#include "TypeTables.h"

namespace preview {

namespace {

std::string FileText(const std::string& name) {
  std::ifstream in(std::string(BARHATCH_SOURCE_DIR) + "/" + name);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// What stands between two marks of a document.
std::string Block(const std::string& text, const std::string& begin, const std::string& end) {
  const std::size_t from = text.find(begin);
  const std::size_t to = text.find(end);
  if (from == std::string::npos || to == std::string::npos) return "no marks " + begin;
  return text.substr(from + begin.size(), to - from - begin.size());
}

std::vector<std::string> Cells(const std::string& row) {
  std::vector<std::string> cells;
  for (std::size_t at = row.find("| "); at != std::string::npos;) {
    const std::size_t end = row.find(" |", at + 1);
    if (end == std::string::npos) break;
    cells.push_back(row.substr(at + 2, end - at - 2));
    at = end + 1;
  }
  return cells;
}

// The rows of docs/deviations.md: id, what the library does, what a standard reader sees.
std::string RowsOfTheRegister() {
  std::istringstream lines(FileText("docs/deviations.md"));
  std::string rows;
  for (std::string line; std::getline(lines, line);) {
    if (line.compare(0, 4, "| D-") != 0) continue;
    const std::vector<std::string> cells = Cells(line);
    rows += "| " + cells.at(0) + " | " + cells.at(1) + " | " + cells.at(4) + " |\n";
  }
  return rows;
}

}  // namespace

TEST(Tables, TypesAreThoseOfTheDocument) {
  EXPECT_EQ(Block(FileText("docs/symbologies.md"), "<!-- begin types -->\n", "<!-- end types -->"),
            TypeTable());
}

TEST(Tables, DeparturesAreTheRowsOfTheRegister) {
  EXPECT_EQ("| id | what the library does | what a standard reader sees |\n|---|---|---|\n" +
                RowsOfTheRegister(),
            DepartureTable());
  EXPECT_EQ(Departures().size(), 36u);
}

TEST(Tables, ExamplesAreAccepted) {
  for (std::int32_t type = 0; type < kLinearTypes; ++type) {
    const std::string example = RuleOf(type).example;
    EXPECT_EQ(WhyRefused(type, {example.begin(), example.end()}), std::nullopt) << example;
  }
}

TEST(Tables, ListHasALineForEachType) {
  std::istringstream lines(TypeList());
  int count = 0;
  for (std::string line; std::getline(lines, line);) ++count;
  EXPECT_EQ(count, 1 + 23 + 1);
}

TEST(TextRules, TypesAreFoundByNumberAndByNameInAnyCase) {
  EXPECT_EQ(LinearTypeFrom("0"), 0);
  EXPECT_EQ(LinearTypeFrom("22"), 22);
  EXPECT_EQ(LinearTypeFrom("Code39"), 1);
  EXPECT_EQ(LinearTypeFrom("UPCE+5"), 20);
  for (const char* none : {"", "23", "-1", "1x", "code", "code390", "datamatrix"}) {
    EXPECT_EQ(LinearTypeFrom(none), std::nullopt) << none;
  }
}

}  // namespace preview
