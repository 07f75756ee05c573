// The tables of docs/symbologies.md tell of each type what the library does: names, accepted text,
// check characters, lengths, quiet zones, examples. Beside them, the names of the command line.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "JobOptions.h"
#include "Request.h"
#include "Symbologies.h"

namespace preview {

namespace {

constexpr std::int32_t kTypes = 23;  // of the device

enum Column { kType, kName, kSymbology, kText, kCheck, kCheckDigits, kQuiet, kExample, kColumns };
enum DeviceColumn {
  kTypeOfDevice,
  kTextOfDevice,
  kLength,
  kDigitOfDevice,
  kDeviceQuiet,
  kDeviceColumns
};

enum CheckColumn {
  kCheckName,
  kCheckConstant,
  kCheckMeaning,
  kCheckExample,
  kCheckedText,
  kCheckColumns
};

using Row = std::vector<std::string>;

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

// The rows of so many cells whose first one begins with a character of some.
std::vector<Row> TableOf(std::size_t cells, std::string_view firsts) {
  std::ifstream page(BARHATCH_SOURCE_DIR "/docs/symbologies.md");
  std::vector<Row> rows;
  for (std::string line; std::getline(page, line);) {
    const bool isRow = line.size() > 2 && line[0] == '|' && firsts.find(line[2]) != firsts.npos;
    if (isRow && Cells(line).size() == cells) rows.push_back(Cells(line));
  }
  return rows;
}

std::vector<Row> RowsOf(std::size_t cells) { return TableOf(cells, "0123456789"); }

// "0-3114, ..." or "12".
std::pair<int, int> LengthsOf(const std::string& cell) {
  std::size_t end = 0;
  const int shortest = std::stoi(cell, &end);
  return {shortest, cell[end] == '-' ? std::stoi(cell.substr(end + 1)) : shortest};
}

Request RequestOf(std::int32_t type, const std::string& text, bool device) {
  Request request;
  request.job.symbology = type;
  request.text = text;
  request.device = device;
  if (!device) request.job.flags |= BARHATCH_PERMIT;
  request.job.width = 1.0;
  return request;
}

bool DeviceTakesZeros(std::int32_t type, int count) {
  const std::string zeros(static_cast<std::size_t>(count), '0');
  return static_cast<bool>(ResultOf(RequestOf(type, zeros, true)));
}

std::string QuietZoneOf(const Result& result) {
  const auto modules = [&](double length) {
    return std::to_string(std::lround(length / result.xDimension()));
  };
  return modules(result.symbol().left - result.total().left) + ", " +
         modules(result.total().right - result.symbol().right);
}

std::string NameOfTest(const ::testing::TestParamInfo<Row>& row) { return "Type" + row.param[0]; }

class PublishedTable : public ::testing::TestWithParam<Row> {};

class DeviceTable : public ::testing::TestWithParam<Row> {
 protected:
  std::int32_t Type() const { return std::stoi(GetParam()[kTypeOfDevice]); }
};

}  // namespace

TEST_P(PublishedTable, HasNamesTextAndCheckCharacters) {
  const std::int32_t type = std::stoi(GetParam()[kType]);
  const Result answer = AnswerOf(type, BARHATCH_PUBLISHED);
  EXPECT_EQ(Code(GetParam()[kName]), NameOf(type));
  EXPECT_EQ(GetParam()[kSymbology], answer.name());
  EXPECT_EQ(GetParam()[kText], answer.accepts());
  EXPECT_EQ(GetParam()[kCheck], ChecksOf(type));
}

TEST_P(PublishedTable, HasAnExampleThatIsReadAndItsQuietZone) {
  const std::int32_t type = std::stoi(GetParam()[kType]);
  const Result result = ResultOf(RequestOf(type, Code(GetParam()[kExample]), false));
  ASSERT_TRUE(result) << result.message();
  EXPECT_FALSE(result.warnings().Has(barhatch::Warning::kUnreadable)) << result.message();
  EXPECT_EQ(GetParam()[kQuiet], QuietZoneOf(result));
}

INSTANTIATE_TEST_SUITE_P(EveryType, PublishedTable, ::testing::ValuesIn(RowsOf(kColumns)),
                         NameOfTest);

TEST_P(DeviceTable, HasTheLengthsThatTheDeviceTakes) {
  const auto [shortest, longest] = LengthsOf(GetParam()[kLength]);
  EXPECT_TRUE(DeviceTakesZeros(Type(), shortest));
  EXPECT_TRUE(shortest == 0 || !DeviceTakesZeros(Type(), shortest - 1));
  EXPECT_TRUE(DeviceTakesZeros(Type(), longest));
  EXPECT_FALSE(DeviceTakesZeros(Type(), longest + 1));
}

TEST_P(DeviceTable, HasTheQuietZoneOfTheExample) {
  const Row published = RowsOf(kColumns)[static_cast<std::size_t>(Type())];
  const Result result = ResultOf(RequestOf(Type(), Code(published[kExample]), true));
  ASSERT_TRUE(result) << result.message();
  EXPECT_FALSE(result.warnings().Has(barhatch::Warning::kUnreadable)) << result.message();
  EXPECT_EQ(GetParam()[kDeviceQuiet], QuietZoneOf(result));
}

INSTANTIATE_TEST_SUITE_P(EveryType, DeviceTable, ::testing::ValuesIn(RowsOf(kDeviceColumns)),
                         NameOfTest);

// "`itf` `12345`" and "`123457`".
TEST(SymbologyPage, HasAnExampleOfEveryCheckScheme) {
  std::string names;
  for (const Row& row : TableOf(kCheckColumns, "`")) {
    names += (names.empty() ? "" : ", ") + Code(row[kCheckName]);
    const std::string& example = row[kCheckExample];
    const std::string type = Code(example);
    Request request = RequestOf(*SymbologyFrom(type), Code(example.substr(type.size() + 3)), false);
    SetCheck(request.job, Code(row[kCheckName]));
    const Result result = ResultOf(request);
    ASSERT_TRUE(result) << example << ": " << result.message();
    EXPECT_EQ(Code(row[kCheckedText]), result.Hri()) << example;
  }
  EXPECT_EQ(names, CheckNames());
}

TEST(SymbologyPage, HasARowOfEveryType) {
  std::vector<std::int32_t> numbers;
  for (const Row& row : RowsOf(kColumns)) numbers.push_back(std::stoi(row[kType]));
  std::vector<std::int32_t> written;
  for (const std::int32_t linear : SymbologyNumbers()) {
    const bool isLinear = linear != BARHATCH_DATA_MATRIX;
    if (isLinear && IsWritten(linear, BARHATCH_PUBLISHED)) written.push_back(linear);
  }
  EXPECT_EQ(numbers, written);
  const std::vector<Row> device = RowsOf(kDeviceColumns);
  ASSERT_EQ(device.size(), static_cast<std::size_t>(kTypes));
  for (std::size_t i = 0; i < device.size(); ++i) {
    EXPECT_EQ(device[i][kTypeOfDevice], std::to_string(i));
  }
}

TEST(Symbologies, AreFoundByNumberAndByNameInAnyCase) {
  EXPECT_EQ(SymbologyFrom("0"), BARHATCH_CODABAR);
  EXPECT_EQ(SymbologyFrom("22"), BARHATCH_CODE_93_FULL);
  EXPECT_EQ(SymbologyFrom("101"), BARHATCH_ITF_14);
  EXPECT_EQ(SymbologyFrom("Code39"), BARHATCH_CODE_39);
  EXPECT_EQ(SymbologyFrom("UPCE+5"), BARHATCH_UPC_E_ADDON_5);
  EXPECT_EQ(SymbologyFrom("DataMatrix"), BARHATCH_DATA_MATRIX);
  for (const char* none : {"", "23", "103", "-1", "1x", "code", "code390"}) {
    EXPECT_EQ(SymbologyFrom(none), std::nullopt) << none;
  }
}

TEST(Symbologies, ListAndTableHaveEachOfThem) {
  const std::string list = SymbologyList();
  const std::string table = SymbologyTable();
  const auto lines = static_cast<std::ptrdiff_t>(SymbologyNumbers().size());
  EXPECT_EQ(lines, kTypes + 3);
  EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 4 * lines);
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 2 + lines);
}

}  // namespace preview
