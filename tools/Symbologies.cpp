#include "Symbologies.h"

#include <fmt/core.h>

#include "JobOptions.h"
#include "Request.h"

namespace preview {

namespace {

struct Symbology {
  std::int32_t symbology;
  const char* name;
};

constexpr Symbology kSymbologies[] = {
    {BARHATCH_CODABAR, "codabar"},
    {BARHATCH_CODE_39, "code39"},
    {BARHATCH_CODE_93, "code93"},
    {BARHATCH_EAN_13, "ean13"},
    {BARHATCH_MSI, "msi"},
    {BARHATCH_CODE_128, "code128"},
    {BARHATCH_CODE_128_A, "code128a"},
    {BARHATCH_CODE_128_B, "code128b"},
    {BARHATCH_CODE_128_C, "code128c"},
    {BARHATCH_UPC_A, "upca"},
    {BARHATCH_UPC_E, "upce"},
    {BARHATCH_CODE_11, "code11"},
    {BARHATCH_EAN_8, "ean8"},
    {BARHATCH_UPC_A_ADDON_2, "upca+2"},
    {BARHATCH_UPC_A_ADDON_5, "upca+5"},
    {BARHATCH_EAN_13_ADDON_2, "ean13+2"},
    {BARHATCH_EAN_13_ADDON_5, "ean13+5"},
    {BARHATCH_EAN_8_ADDON_2, "ean8+2"},
    {BARHATCH_EAN_8_ADDON_5, "ean8+5"},
    {BARHATCH_UPC_E_ADDON_2, "upce+2"},
    {BARHATCH_UPC_E_ADDON_5, "upce+5"},
    {BARHATCH_INTERLEAVED_2_OF_5, "itf"},
    {BARHATCH_CODE_93_FULL, "code93full"},
    {BARHATCH_DATA_MATRIX, "datamatrix"},
    {BARHATCH_ITF_14, "itf14"},
    {BARHATCH_CODE_39_FULL, "code39full"},
};

std::string Lowered(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

std::string AcceptedBy(const Symbology& row, std::int32_t conformance) {
  if (!IsWritten(row.symbology, conformance)) return "-";
  return std::string(AnswerOf(row.symbology, conformance).accepts());
}

// The row's number, name, symbology, texts of both conformances and names of --check, into the
// places of a format.
std::string Formatted(const char* format, const Symbology& row) {
  const Result answer = AnswerOf(row.symbology, BARHATCH_PUBLISHED);
  return fmt::format(fmt::runtime(format), row.symbology, row.name, answer.name(),
                     AcceptedBy(row, BARHATCH_PUBLISHED), AcceptedBy(row, BARHATCH_DEVICE),
                     ChecksOf(row.symbology));
}

std::string FormattedRows(const char* format) {
  std::string rows;
  for (const Symbology& row : kSymbologies) rows += Formatted(format, row);
  return rows;
}

}  // namespace

std::optional<std::int32_t> SymbologyFrom(const std::string& text) {
  if (text.empty()) return std::nullopt;
  for (const Symbology& row : kSymbologies) {
    if (Lowered(text) == row.name || text == std::to_string(row.symbology)) return row.symbology;
  }
  return std::nullopt;
}

const char* NameOf(std::int32_t symbology) {
  const Symbology* row = kSymbologies;
  while (row->symbology != symbology) ++row;
  return row->name;
}

std::vector<std::int32_t> SymbologyNumbers() {
  std::vector<std::int32_t> numbers;
  for (const Symbology& row : kSymbologies) numbers.push_back(row.symbology);
  return numbers;
}

std::string SymbologyList() {
  return FormattedRows(
      "{:>4}  {:<10}  {}\n"
      "                  by the book: {}\n"
      "                  on the device: {}\n"
      "                  --check: {}\n");
}

std::string SymbologyTable() {
  return "| type | name | symbology | text, by the book | text, as the device takes it | `--check` "
         "|\n"
         "|---|---|---|---|---|---|\n" +
         FormattedRows("| {} | `{}` | {} | {} | {} | {} |\n");
}

}  // namespace preview
