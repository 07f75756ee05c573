// What calls cost on the device, against the table of budgets: growth is seen.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "device/InstructionCounts.h"
#include "device/LinearCases.h"

namespace barhatch::device {
namespace {

constexpr double kSlack = 1.03;  // compilers of one release differ a little
constexpr double kStale = 0.90;  // a budget far above the cost would let the cost grow back unseen
constexpr double kMostPerStroke = 150.0;

std::map<std::string, double> ReadBudgets() {
  std::map<std::string, double> budgets;
  std::ifstream in(BARHATCH_INSTRUCTION_BUDGETS);
  for (std::string line; std::getline(in, line);) {
    std::istringstream fields(line.substr(0, line.find('#')));
    std::string name;
    double budget = 0.0;
    if (fields >> name >> budget) budgets[name] = budget;
  }
  return budgets;
}

TEST(InstructionBudget, EveryCallKeepsItsBudget) {
  const std::map<std::string, double> budgets = ReadBudgets();
  DeviceLibrary device;
  for (const InstructionCount& count : CountInstructions(device)) {
    const auto budget = budgets.find(count.name);
    ASSERT_NE(budget, budgets.end())
        << "no row in instruction-budgets.txt: " << count.name << ' ' << count.instructions;
    EXPECT_LE(count.instructions, budget->second * kSlack) << count.name;
    EXPECT_GE(count.instructions, budget->second * kStale) << count.name << " deserves a new row";
  }
}

TEST(InstructionBudget, TheSameCallCostsTheSameAlways) {
  DeviceLibrary first({kLinkedBase, 0});
  DeviceLibrary second({kOtherBase, 4});
  first.InitBarcode();
  second.InitBarcode();
  EXPECT_EQ(CountString(first, 1, "ABCD-1234567"), CountString(second, 1, "ABCD-1234567"));
  EXPECT_EQ(CountFill(first, 2, 100.0).instructions, CountFill(second, 2, 100.0).instructions);
}

TEST(InstructionBudget, AStrokeOfTheLinePatternsCostsAtMostOneHundredAndFifty) {
  DeviceLibrary device;
  for (const InstructionCount& count : CountInstructions(device)) {
    for (const char* pattern : {"stroke/0", "stroke/1", "stroke/2", "stroke/3"}) {
      if (count.name == pattern) {
        EXPECT_LE(count.instructions, kMostPerStroke) << pattern;
      }
    }
  }
}

TEST(InstructionBudget, AFillGrowsNoFasterThanItsStrokes) {
  DeviceLibrary device;
  for (const std::int32_t pattern : {0, 1, 2, 3, 5}) {
    const FillCount few = CountFill(device, pattern, 40.0);
    const FillCount many = CountFill(device, pattern, 640.0);
    ASSERT_GT(few.strokes, 0u);
    const double perStroke = static_cast<double>(few.instructions) / few.strokes;
    EXPECT_LE(static_cast<double>(many.instructions), 1.05 * perStroke * many.strokes) << pattern;
  }
}

TEST(InstructionBudget, AMatrixGrowsNoFasterThanItsText) {
  DeviceLibrary device;
  device.InitBarcode();
  for (const char16_t unit : {u'7', u'A', u'a', u'\u00e4', u'?'}) {
    const std::uint64_t quarter = CountMatrix(device, std::u16string(180, unit));
    const std::uint64_t whole = CountMatrix(device, std::u16string(720, unit));
    ASSERT_GT(quarter, 0u);
    ASSERT_GT(whole, 0u);
    EXPECT_LE(static_cast<double>(whole), 4.2 * static_cast<double>(quarter))
        << static_cast<int>(unit);
  }
}

TEST(InstructionBudget, AModuleStringGrowsNoFasterThanItsText) {
  DeviceLibrary device;
  device.InitBarcode();
  for (std::int32_t type = 0; type < kTypes; ++type) {
    const TextKind& kind = KindOf(type);
    if (kind.shortest == kind.longest) continue;
    // Digits, which every type takes; the longest text a symbol of the type is asked for in
    // earnest.
    const std::uint64_t half = CountString(device, type, std::string(kind.longest / 2, '7'));
    const std::uint64_t whole = CountString(device, type, std::string(kind.longest / 2 * 2, '7'));
    EXPECT_LE(static_cast<double>(whole), 2.05 * static_cast<double>(half)) << kind.name;
  }
}

}  // namespace
}  // namespace barhatch::device
