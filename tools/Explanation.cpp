#include "Explanation.h"

#include <fmt/core.h>

#include <sstream>

#include "Messages.h"
#include "Symbologies.h"

namespace preview {

namespace {

// Each line with two spaces in front.
std::string Indented(const std::string& text) {
  std::istringstream lines(text);
  std::string indented;
  for (std::string line; std::getline(lines, line);) indented += "  " + line + '\n';
  return indented;
}

std::string RefusalLines(const Symbol& symbol) {
  const BarhatchResult& result = *symbol.result;
  std::string lines = fmt::format("refused (status {})\n", result.status);
  if (result.position > 0) {
    lines += Indented(Pointed(symbol.request.text, static_cast<std::size_t>(result.position - 1),
                              static_cast<std::size_t>(result.extent)));
  }
  return lines + Indented(result.message);
}

std::string SymbolLines(const BarhatchResult& result) {
  std::string lines = "accepted\n";
  if (result.warnings != 0) lines += Indented("warning: " + WarningText(result));
  lines += Indented(result.deviations_met);
  return lines + Indented("a standard reader reads: " + ReadingText(ReadingOf(result)));
}

}  // namespace

std::string ExplanationText(const Symbol& symbol) {
  const Request& request = symbol.request;
  const bool isMade = symbol.result->status == BARHATCH_OK;
  return fmt::format("{} {}, {}: {}", NameOf(request.symbology), Quoted(request.text),
                     ConformanceName(request),
                     isMade ? SymbolLines(*symbol.result) : RefusalLines(symbol));
}

}  // namespace preview
