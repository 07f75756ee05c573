// The table of docs/symbologies.md tells of each type what the library does: names, accepted text,
// lengths, quiet zones, examples. Beside it, the names of the command line.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Request.h"
#include "Symbologies.h"

namespace preview {

namespace {

constexpr std::int32_t kTypes = 23;

enum Column {
  kType,
  kName,
  kSymbology,
  kByTheBook,
  kByTheDevice,
  kLength,
  kCheck,
  kQuiet,
  kExample
};

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

// "`text`<br>..." as "text".
std::string Code(const std::string& cell) { return cell.substr(1, cell.find('`', 1) - 1); }

// The rows whose first cell is a number.
std::vector<std::vector<std::string>> Rows() {
  std::ifstream page(BARHATCH_SOURCE_DIR "/docs/symbologies.md");
  std::vector<std::vector<std::string>> rows;
  for (std::string line; std::getline(page, line);) {
    const bool isRow = line.size() > 2 && line[0] == '|' && line[2] >= '0' && line[2] <= '9';
    if (isRow) rows.push_back(Cells(line));
  }
  return rows;
}

// "0-3114, ..." or "12".
std::pair<int, int> LengthsOf(const std::string& cell) {
  std::size_t end = 0;
  const int shortest = std::stoi(cell, &end);
  return {shortest, cell[end] == '-' ? std::stoi(cell.substr(end + 1)) : shortest};
}

Request RequestOf(std::int32_t type, const std::string& text, bool device) {
  Request request;
  request.symbology = type;
  request.text = text;
  request.device = device;
  request.permit = !device;
  request.width = 1.0;
  return request;
}

bool DeviceTakesZeros(std::int32_t type, int count) {
  const std::string zeros(static_cast<std::size_t>(count), '0');
  return static_cast<bool>(ResultOf(RequestOf(type, zeros, true)));
}

// "11, 7", or where the two differ "11, 5; on the device 11, 7".
std::string QuietZoneIn(const std::string& cell, bool device) {
  const std::string between = "; on the device ";
  const std::size_t at = cell.find(between);
  if (at == std::string::npos) return cell;
  return device ? cell.substr(at + between.size()) : cell.substr(0, at);
}

std::string QuietZoneOf(const Result& result) {
  const auto modules = [&](double length) {
    return std::to_string(std::lround(length / result.xDimension()));
  };
  return modules(result.symbol().left - result.total().left) + ", " +
         modules(result.total().right - result.symbol().right);
}

class SymbologyPage : public ::testing::TestWithParam<std::int32_t> {
 protected:
  void SetUp() override {
    ASSERT_EQ(Rows().size(), static_cast<std::size_t>(kTypes));
    row_ = Rows()[static_cast<std::size_t>(GetParam())];
    ASSERT_EQ(row_.size(), static_cast<std::size_t>(kExample) + 1);
  }

  std::vector<std::string> row_;
};

}  // namespace

TEST_P(SymbologyPage, HasTheNamesAndTheTextByTheBook) {
  const Result answer = AnswerOf(GetParam(), BARHATCH_PUBLISHED);
  EXPECT_EQ(row_[kType], std::to_string(GetParam()));
  EXPECT_EQ(Code(row_[kName]), NameOf(GetParam()));
  EXPECT_EQ(row_[kSymbology], answer.name());
  EXPECT_EQ(row_[kByTheBook], answer.accepts());
}

TEST_P(SymbologyPage, HasTheLengthsThatTheDeviceTakes) {
  const auto [shortest, longest] = LengthsOf(row_[kLength]);
  EXPECT_TRUE(DeviceTakesZeros(GetParam(), shortest));
  EXPECT_TRUE(shortest == 0 || !DeviceTakesZeros(GetParam(), shortest - 1));
  EXPECT_TRUE(DeviceTakesZeros(GetParam(), longest));
  EXPECT_FALSE(DeviceTakesZeros(GetParam(), longest + 1));
}

TEST_P(SymbologyPage, HasAnExampleThatIsReadAndItsQuietZone) {
  for (const bool device : {false, true}) {
    const Result result = ResultOf(RequestOf(GetParam(), Code(row_[kExample]), device));
    ASSERT_TRUE(result) << result.message();
    EXPECT_FALSE(result.warnings().Has(barhatch::Warning::kUnreadable)) << result.message();
    EXPECT_EQ(QuietZoneIn(row_[kQuiet], device), QuietZoneOf(result));
  }
}

INSTANTIATE_TEST_SUITE_P(EveryType, SymbologyPage, ::testing::Range(0, kTypes));

TEST(Symbologies, AreFoundByNumberAndByNameInAnyCase) {
  EXPECT_EQ(SymbologyFrom("0"), BARHATCH_CODABAR);
  EXPECT_EQ(SymbologyFrom("22"), BARHATCH_CODE_93_FULL);
  EXPECT_EQ(SymbologyFrom("Code39"), BARHATCH_CODE_39);
  EXPECT_EQ(SymbologyFrom("UPCE+5"), BARHATCH_UPC_E_ADDON_5);
  EXPECT_EQ(SymbologyFrom("DataMatrix"), BARHATCH_DATA_MATRIX);
  for (const char* none : {"", "23", "100", "-1", "1x", "code", "code390"}) {
    EXPECT_EQ(SymbologyFrom(none), std::nullopt) << none;
  }
}

TEST(Symbologies, ListAndTableHaveALineForEach) {
  const std::string list = SymbologyList();
  const std::string table = SymbologyTable();
  EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 1 + kTypes + 1);
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 2 + kTypes + 1);
}

}  // namespace preview
