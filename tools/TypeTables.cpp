#include "TypeTables.h"

#include <fmt/core.h>

#include <algorithm>

#include "Departures.h"
#include "TextRules.h"

namespace preview {

namespace {

std::string WithoutMarkup(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), '`'), text.end());
  return text;
}

std::string LengthText(const TypeRule& rule) {
  if (rule.shortest == rule.longest) return fmt::format("{}", rule.longest);
  return fmt::format("{}-{}", rule.shortest, rule.longest);
}

std::string CheckText(const TypeRule& rule) {
  const std::string text = rule.checkDigit;
  return text == "none" ? "none" : "added";
}

std::string ListLine(const std::string& number, const char* name, const char* title,
                     const std::string& length, const std::string& check,
                     const std::string& accepted) {
  return fmt::format("{:>4}  {:<10}  {:<36}  {:<7}  {:<5}  {}\n", number, name, title, length,
                     check, accepted);
}

}  // namespace

std::string TypeList() {
  std::string list = ListLine("type", "name", "symbology", "length", "check", "text");
  for (std::int32_t type = 0; type < kLinearTypes; ++type) {
    const TypeRule& rule = RuleOf(type);
    list += ListLine(std::to_string(type), rule.name, rule.title, LengthText(rule), CheckText(rule),
                     WithoutMarkup(rule.accepted));
  }
  return list + ListLine("", "datamatrix", "Data Matrix ECC 200", "0-3116", "added",
                         "every byte; a character above U+00FF designates an ECI");
}

std::string TypeTable() {
  std::string table =
      "| type | name | symbology | accepted | check digit | quiet zone | capacity | example |\n"
      "|---|---|---|---|---|---|---|---|\n";
  for (std::int32_t type = 0; type < kLinearTypes; ++type) {
    const TypeRule& rule = RuleOf(type);
    table += fmt::format(
        "| {0} | `{1}` | {2} | {3} | {4} | {5}, {6} | {7} | `{8}`<br>![{2}](images/type{0:02}.svg) "
        "|\n",
        type, rule.name, rule.title, rule.accepted, rule.checkDigit, rule.leftQuietModules,
        rule.rightQuietModules, rule.capacity, rule.example);
  }
  return table;
}

std::string DepartureTable() {
  std::string table =
      "| id | what the library does | what a standard reader sees |\n"
      "|---|---|---|\n";
  for (const Departure& departure : Departures()) {
    table += fmt::format("| {} | {} | {} |\n", departure.id, departure.does, departure.reads);
  }
  return table;
}

}  // namespace preview
