#include "Symbologies.h"

#include <fmt/core.h>

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
};

// The numbers are those of SetBarcodeType, which has none for Data Matrix.
std::string NumberOf(const Symbology& row) {
  return row.symbology == BARHATCH_DATA_MATRIX ? "" : std::to_string(row.symbology);
}

std::string Lowered(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

// The row's number, name, symbology, conformances and accepted text, by the book where it can be
// written so, into the places of a format.
std::string Formatted(const char* format, const Symbology& row) {
  const bool isByTheBook = IsWritten(row.symbology, BARHATCH_PUBLISHED);
  const bool isOfTheDevice = IsWritten(row.symbology, BARHATCH_DEVICE);
  const Result answer = AnswerOf(row.symbology, isByTheBook ? BARHATCH_PUBLISHED : BARHATCH_DEVICE);
  return fmt::format(fmt::runtime(format), NumberOf(row), row.name, answer.name(),
                     isByTheBook ? "yes" : "no", isOfTheDevice ? "yes" : "no", answer.accepts());
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
    if (Lowered(text) == row.name || text == NumberOf(row)) return row.symbology;
  }
  return std::nullopt;
}

const char* NameOf(std::int32_t symbology) {
  const Symbology* row = kSymbologies;
  while (row->symbology != symbology) ++row;
  return row->name;
}

std::string SymbologyList() {
  constexpr const char* kFormat = "{:>4}  {:<10}  {:<26}  {:<11}  {:<6}  {}\n";
  return fmt::format(fmt::runtime(kFormat), "type", "name", "symbology", "by the book", "device",
                     "text") +
         FormattedRows(kFormat);
}

std::string SymbologyTable() {
  return "| type | name | symbology | by the book | as the device writes it | text |\n"
         "|---|---|---|---|---|---|\n" +
         FormattedRows("| {} | `{}` | {} | {} | {} | {} |\n");
}

}  // namespace preview
