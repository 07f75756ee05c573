#include "Explanation.h"

#include <fmt/core.h>

#include <string_view>

#include "Messages.h"
#include "Symbologies.h"

namespace preview {

namespace {

// Each line with two spaces in front.
std::string Indented(std::string text) {
  if (!text.empty() && text.back() != '\n') text += '\n';
  std::string indented;
  for (const std::string_view line : barhatch::Lines(text)) indented += fmt::format("  {}\n", line);
  return indented;
}

std::string RefusalLines(const Symbol& symbol) {
  const Result& result = symbol.result;
  std::string lines = fmt::format("refused (status {})\n", static_cast<int>(result.status()));
  if (result.position() > 0) {
    lines += Indented(Pointed(symbol.request.text, static_cast<std::size_t>(result.position() - 1),
                              static_cast<std::size_t>(result.extent())));
  }
  return lines + Indented(std::string(result.message()));
}

std::string SymbolLines(const Symbol& symbol) {
  const Result& result = symbol.result;
  std::string lines = "accepted\n";
  const std::string warning = WarningText(result);
  if (!warning.empty()) lines += Indented("warning: " + warning);
  lines += Indented(std::string(result.DeviationLines().Text()));
  if (result.capacity() > 0) {
    lines += Indented(fmt::format("codewords: {} of {}", result.codewords(), result.capacity()));
  }
  if (result.Hri() && result.Hri() != result.Reading()) {
    lines += Indented("for people: " + Quoted(std::string(*result.Hri())));
  }
  return lines + Indented("a standard reader reads: " + ReadingText(symbol.request, result));
}

}  // namespace

std::string ExplanationText(const Symbol& symbol) {
  const Request& request = symbol.request;
  return fmt::format("{} {}, {}: {}", NameOf(request.job.symbology), Quoted(request.text),
                     ConformanceName(request),
                     symbol.result ? SymbolLines(symbol) : RefusalLines(symbol));
}

}  // namespace preview
