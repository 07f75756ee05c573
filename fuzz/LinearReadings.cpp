#include "LinearReadings.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "CallWatch.h"
#include "support/CodabarReader.h"
#include "support/Code11Reader.h"
#include "support/Code128Reader.h"
#include "support/Code93Reader.h"
#include "support/EanUpcReader.h"
#include "support/Interleaved2of5Reader.h"
#include "support/MsiReader.h"

namespace barhatch::fuzz {

namespace {

constexpr std::size_t kSafeCode128 = 78;  // D-128-3: what every type writes whole

bool IsStartOrStop(char character) { return character >= 'A' && character <= 'D'; }

void DemandCodabar(const std::string& text, const std::string& letters) {
  const bool isSafe = text.size() >= 3 && IsStartOrStop(text.front()) && IsStartOrStop(text.back());
  if (isSafe) Demand(test::ReadCodabar(letters) == text, "a reader of Codabar gets the text");
}

void DemandCode93(const std::string& text, const std::string& letters) {
  const bool isAscii =
      std::none_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) != 0; });
  if (isAscii) Demand(test::ReadCode93(letters) == text, "a reader of Code 93 gets the text");
}

void DemandCode11(const std::string& text, const std::string& letters) {
  if (text.size() == 10) return;  // D-11-1
  const test::Code11Checks checks =
      text.size() < 10 ? test::Code11Checks::kC : test::Code11Checks::kCAndK;
  Demand(test::ReadCode11(letters, checks) == text, "a reader of Code 11 gets the text");
}

void DemandInterleaved2of5(const std::string& text, const std::string& letters) {
  Demand(test::ReadInterleaved2of5(letters) == (text.size() % 2 == 0 ? text : "0" + text),
         "a reader of Interleaved 2 of 5 gets the text");
}

void DemandCode128(std::int32_t type, const std::string& text, const std::string& letters) {
  const std::optional<test::Code128Reading> reading = test::ReadCode128(letters);
  Demand(reading.has_value(), "every Code 128 can be read");
  if (text.size() > kSafeCode128) return;
  const std::size_t safe = type == 5 ? text.size() - 1 : text.size();  // D-128-1
  if (type == 6 && text.find('\x7F') != std::string::npos) return;     // D-128-2
  Demand(reading->text.compare(0, safe, text, 0, safe) == 0, "a reader of Code 128 gets the text");
}

struct EanUpcRow {
  std::int32_t type;
  const char* symbol;
  const char* prefix;  // what a reader reports before the text
  std::size_t digits;  // of the main symbol, without its check digit
  std::size_t addon;
};

constexpr EanUpcRow kEanUpcRows[] = {
    {3, "EAN-13", "", 12, 0},  {9, "EAN-13", "0", 11, 0},  {10, "UPC-E", "", 7, 0},
    {12, "EAN-8", "", 7, 0},   {13, "EAN-13", "0", 11, 2}, {14, "EAN-13", "0", 11, 5},
    {15, "EAN-13", "", 12, 2}, {16, "EAN-13", "", 12, 5},  {17, "EAN-8", "", 7, 2},
    {18, "EAN-8", "", 7, 5},   {19, "UPC-E", "", 7, 2},    {20, "UPC-E", "", 7, 5},
};

void DemandEanUpc(const EanUpcRow& row, const std::string& text, const std::string& letters) {
  const std::optional<test::EanUpcReading> reading = test::ReadEanUpc(letters);
  Demand(reading && reading->symbol == row.symbol, "a reader of EAN and UPC finds the symbol");
  Demand(text.size() >= row.digits + row.addon, "digits for the main symbol and the add-on");
  const std::string digits = row.prefix + text.substr(0, row.digits);
  Demand(reading->digits.compare(0, digits.size(), digits) == 0, "the digits of the main symbol");
  Demand(reading->addon == text.substr(text.size() - row.addon), "the digits of the add-on");
}

}  // namespace

void DemandReading(std::int32_t type, const std::string& text, const std::string& letters) {
  if (text.empty()) return;  // the register has a row for each type that takes it
  if (type == 0) DemandCodabar(text, letters);
  if (type == 2 || type == 22) DemandCode93(text, letters);
  if (type == 4) Demand(test::ReadMsi(letters) == text, "a reader of MSI gets the text");
  if (type >= 5 && type <= 8) DemandCode128(type, text, letters);
  if (type == 11) DemandCode11(text, letters);
  if (type == 21) DemandInterleaved2of5(text, letters);
  for (const EanUpcRow& row : kEanUpcRows) {
    if (row.type == type) DemandEanUpc(row, text, letters);
  }
}

}  // namespace barhatch::fuzz
