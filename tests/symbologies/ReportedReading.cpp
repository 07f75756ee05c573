#include "symbologies/ReportedReading.h"

#include <algorithm>

#include "support/CodabarReader.h"
#include "support/Code11Reader.h"
#include "support/Code128Reader.h"
#include "support/Code39Reader.h"
#include "support/Code93Reader.h"
#include "support/EanUpcReader.h"
#include "support/Interleaved2of5Reader.h"
#include "support/MsiReader.h"
#include "symbologies/SymbologyReaders.h"

namespace barhatch::test {

namespace {

struct EanUpcType {
  std::int32_t type;
  const char* symbol;
  std::size_t digits;  // of the text, without the add-on
  std::size_t addon;
};
constexpr EanUpcType kEanUpcTypes[] = {
    {3, "EAN-13", 12, 0}, {15, "EAN-13", 12, 2}, {16, "EAN-13", 12, 5}, {9, "UPC-A", 11, 0},
    {13, "UPC-A", 11, 2}, {14, "UPC-A", 11, 5},  {12, "EAN-8", 7, 0},   {17, "EAN-8", 7, 2},
    {18, "EAN-8", 7, 5},  {10, "UPC-E", 7, 0},   {19, "UPC-E", 7, 2},   {20, "UPC-E", 7, 5},
};

const EanUpcType* EanUpcTypeOf(std::int32_t type) {
  for (const EanUpcType& row : kEanUpcTypes) {
    if (row.type == type) return &row;
  }
  return nullptr;
}

bool IsBar(char letter) { return letter == 'A' || letter == 'B'; }

std::string WithAddon(const std::string& digits, const std::string& addon) {
  return addon.empty() ? digits : digits + " " + addon;
}

std::optional<std::string> PlainCodabar(const std::string& letters) {
  const auto text = ReadCodabar(letters);
  if (!text || text->size() < 3) return std::nullopt;
  return text->substr(1, text->size() - 2);
}

std::optional<std::string> PlainCode128(const std::string& letters) {
  const auto reading = ReadCode128(letters);
  if (!reading || reading->values.size() < 3) return std::nullopt;
  return reading->text;
}

// C alone up to ten data characters, C and K above.
std::optional<std::string> PlainCode11(const std::string& letters) {
  const auto characters = ReadCode11Characters(letters);
  if (!characters) return std::nullopt;
  return ReadCode11(letters, characters->size() > 12 ? Code11Checks::kCAndK : Code11Checks::kC);
}

std::optional<std::string> PlainEanUpc(const EanUpcType& row, const std::string& letters) {
  const auto reading = ReadEanUpc(letters);
  if (!reading || reading->addon.size() != row.addon) return std::nullopt;
  if (row.addon > 0 && (reading->gap < 7 || reading->gap > 12)) return std::nullopt;
  if (row.symbol != std::string("UPC-A")) {
    if (reading->symbol != row.symbol) return std::nullopt;
    return WithAddon(reading->digits, reading->addon);
  }
  if (reading->symbol != "EAN-13" || reading->digits[0] != '0') return std::nullopt;
  return WithAddon(reading->digits.substr(1), reading->addon);
}

std::optional<std::string> PlainText(std::int32_t type, const std::string& letters) {
  if (const EanUpcType* row = EanUpcTypeOf(type)) return PlainEanUpc(*row, letters);
  switch (type) {
    case 0:
      return PlainCodabar(letters);
    case 1:
      return ReadCode39(letters);
    case 2:
    case 22:
      return ReadCode93(letters);
    case 4:
      return ReadMsi(letters);
    case 11:
      return PlainCode11(letters);
    case 21:
      return ReadInterleaved2of5(letters);
    default:
      return PlainCode128(letters);
  }
}

}  // namespace

ReportedReading Report(std::int32_t type, const std::string& letters) {
  std::vector<char> text(letters.size() + 1, '?');
  std::vector<std::uint8_t> values(letters.size());
  const std::vector<char> drawn(letters.begin(), letters.end());
  SymbolReading reading = {text.data(), 0, values.data(), 0};
  const bool isRead = ReadSymbol(type, CheckScheme::kOwn, drawn.data(), drawn.size(), reading);
  ReportedReading reported;
  reported.values.assign(values.begin(),
                         values.begin() + static_cast<std::ptrdiff_t>(reading.valuesCount));
  if (isRead) reported.text = std::string(text.data(), reading.textLength);
  const bool isWhole = text[reading.textLength] == '\0' && (isRead || reading.textLength == 0);
  if (!isWhole) reported.text = "no NUL, or text of no symbol";
  return reported;
}

std::optional<std::string> PlainReading(std::int32_t type, const std::string& letters) {
  if (letters.empty() || !IsBar(letters.front()) || !IsBar(letters.back())) return std::nullopt;
  auto text = PlainText(type, letters);
  if (text && text->empty()) return std::nullopt;
  return text;
}

std::string ReportOf(std::int32_t type, const std::string& text) {
  if (type == 0) return text.substr(1, text.size() - 2);
  if (type == 21) return text.size() % 2 == 0 ? text : "0" + text;
  const EanUpcType* row = EanUpcTypeOf(type);
  if (row == nullptr) return text;
  const std::string main = text.substr(0, row->digits);
  const bool isUpcE = row->symbol == std::string("UPC-E");
  const char check = MissingCheckDigit(isUpcE ? ExpandedUpcE(main) : main);
  return WithAddon(main + check, text.substr(row->digits));
}

}  // namespace barhatch::test
