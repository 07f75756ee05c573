#include "Explanation.h"

#include <fmt/core.h>

#include <algorithm>
#include <optional>

#include "MatrixOutline.h"
#include "TextRules.h"

namespace preview {

namespace {

std::string SizeText(const MatrixRequest& size) {
  return fmt::format("{}x{}", size.rows, size.columns);
}

std::string SizeReason(int codewords, const MatrixRequest& request) {
  const std::optional<MatrixSize> asked = MatrixSizeOf(request.rows, request.columns);
  const std::string needs = fmt::format("the text takes {} codewords", codewords);
  if (request.rows == 0 && request.columns == 0) {
    return "the smallest square is chosen only where the symbol may grow beyond the size";
  }
  if (!asked) return fmt::format("there is no Data Matrix of {}", SizeText(request));
  if (asked->dataCodewords < codewords) {
    return fmt::format("{} and does not fit a Data Matrix of the size asked for, {} with {}", needs,
                       SizeText(request), asked->dataCodewords);
  }
  return fmt::format(
      "{} and would fit, but of the rectangles the first that holds them is taken, and that is not "
      "within {}",
      needs, SizeText(request));
}

std::optional<std::string> WhyMatrixRefused(const BarcodeText& text) {
  if (text.units.size() > kLongestMatrixText) {
    return fmt::format("the text has {} characters, the limit is {}", text.units.size(),
                       kLongestMatrixText);
  }
  const MatrixOutline outline = OutlineOf(text);
  if (outline.size) return std::nullopt;
  if (outline.codewords > kMostDataCodewords) {
    return fmt::format("the text takes more than the {} codewords of the largest symbol",
                       kMostDataCodewords);
  }
  return SizeReason(outline.codewords, RequestOf(text));
}

void AddLinearNotes(const BarcodeText& text, std::vector<std::string>& notes) {
  const std::size_t taken = NarrowText(text.units).size();
  const auto wide = std::find_if(text.units.begin(), text.units.end(),
                                 [](char16_t unit) { return unit > 255 && (unit & 0xFF) != 0; });
  if (wide != text.units.end()) {
    notes.push_back(fmt::format("of {} the low byte alone is taken, {}", CharacterName(*wide),
                                CharacterName(static_cast<char16_t>(*wide & 0xFF))));
  }
  if (taken < text.units.size()) {
    notes.push_back(fmt::format("the text ends in front of {}, whose low byte is zero",
                                CharacterName(text.units[taken])));
  }
}

void AddMatrixNotes(const BarcodeText& text, std::vector<std::string>& notes) {
  const auto designator =
      std::find_if(text.units.begin(), text.units.end(), [](char16_t unit) { return unit > 255; });
  if (designator != text.units.end()) {
    notes.push_back(fmt::format("{} is no data: it designates ECI {}", CharacterName(*designator),
                                static_cast<unsigned>(*designator)));
  }
}

}  // namespace

Explanation Explain(const BarcodeText& text) {
  const bool isMatrix = text.kind == Kind::kDataMatrix;
  const std::optional<std::string> reason =
      isMatrix ? WhyMatrixRefused(text) : WhyRefused(text.type, text.units);
  Explanation explanation;
  if (isMatrix) {
    AddMatrixNotes(text, explanation.notes);
  } else {
    AddLinearNotes(text, explanation.notes);
  }
  if (reason) {
    explanation.reason = *reason;
    return explanation;
  }
  explanation.isAccepted = true;
  explanation.departures = DeparturesTouching(text);
  return explanation;
}

}  // namespace preview
