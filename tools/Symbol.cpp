#include "Symbol.h"

#include <fmt/core.h>

#include <algorithm>
#include <utility>

#include "Messages.h"
#include "Outputs.h"
#include "Symbologies.h"

namespace preview {

namespace {

// Of a Data Matrix.
std::string ModulesText(const Result& result) {
  return fmt::format("{} x {} modules", result.rows(), result.columns());
}

std::string SizeFact(const Symbol& symbol) {
  std::string size = fmt::format("{:.6g} x {:.6g} mm", symbol.drawing.width, symbol.drawing.height);
  if (IsMatrix(symbol.request)) {
    size += ", " + ModulesText(symbol.result);
  }
  return size;
}

std::string QuietZoneFact(const Symbol& symbol) {
  const barhatch::Rect inner = symbol.result.symbol();
  const barhatch::Rect outer = symbol.result.total();
  const bool isInside = symbol.drawing.width > inner.right - inner.left;
  const char* const where = isInside ? "inside the size" : "around the symbol";
  return fmt::format("{:.6g} mm left, {:.6g} mm right, {}", inner.left - outer.left,
                     outer.right - inner.right, where);
}

bool HasWideElements(const Result& result) {
  const barhatch::ModuleGrid modules = result.Modules();
  return std::any_of(modules.begin(), modules.end(),
                     [](std::uint8_t module) { return (module & BARHATCH_WIDE) != 0; });
}

// The resolution of the pictures first. Readers of bars lose thin ones between two pixels, so then
// a module is made of whole pixels.
std::vector<double> ResolutionsToRead(const Symbol& symbol, const Options& options) {
  if (options.pixelsPerUnit > 0.0) return {options.pixelsPerUnit};
  const double module = symbol.result.xDimension();
  return {0.0, 6.0 / module, 4.0 / module, 9.0 / module};
}

Verdict VerifyAt(const Symbol& symbol, const Options& options, double pixelsPerUnit) {
  Options resolved = options;
  resolved.pixelsPerUnit = pixelsPerUnit;
  std::string reason;
  const Look look = LookOf(options, symbol.drawing.width, symbol.result.xDimension());
  const std::optional<Picture> picture = PictureOf(symbol.drawing, look, resolved, reason);
  if (!picture) return {false, false, reason};
  const bool isFullAscii = symbol.request.job.symbology == BARHATCH_CODE_39_FULL;
  return Judge(symbol.request, symbol.result, ReadBack(*picture, isFullAscii));
}

// What keeps a reader from seeing the symbol in this picture, where the options tell it.
std::string Advice(const Symbol& symbol, const Options& options) {
  if (symbol.request.job.invert != 0 && !(options.darkPart && HasQuietZoneInside(symbol.request))) {
    return "; inverted marks are read with --dark-part and --quiet-zone";
  }
  if (symbol.result.warnings().Has(barhatch::Warning::k144)) {
    return "; readers that know the industry's order alone need --industry-144";
  }
  if (symbol.drawing.kind != MarkKind::kPoints) return "";
  if (!IsMatrix(symbol.request)) return "; points are no bars";
  return fmt::format("; points are read with a --beam of about a module, {:.6g}",
                     symbol.result.xDimension());
}

std::string Fact(const char* name, const std::string& value) {
  return fmt::format("  {:<14}{}\n", name, value);
}

}  // namespace

Symbol MakeSymbol(const Request& request) {
  Symbol symbol = {request, ResultOf(request), {}};
  if (symbol.result) symbol.drawing = DrawingOf(symbol.result, request.text);
  return symbol;
}

std::optional<Failure> FailureOf(const Symbol& symbol) {
  const Request& request = symbol.request;
  const char* const name = NameOf(request.job.symbology);
  if (!symbol.result) {
    const bool isOption = symbol.result.status() == barhatch::Status::kBadOption;
    return Failure{
        isOption ? kBadArguments : kRefused,
        fmt::format("{} refuses {}: {}", name, Quoted(request.text), symbol.result.message())};
  }
  if (request.job.ratio == 0.0 || HasWideElements(symbol.result)) return std::nullopt;
  return Failure{kBadArguments, fmt::format("--ratio is for wide elements, and {} has none", name)};
}

std::string Headline(const Symbol& symbol) {
  const Request& request = symbol.request;
  std::string headline =
      fmt::format("{} {}: {}", NameOf(request.job.symbology), Quoted(request.text),
                  CountText(StatisticsOf(symbol.drawing, {})));
  if (IsMatrix(request)) headline += fmt::format(", {}", ModulesText(symbol.result));
  return fmt::format("{}, {}", headline, ConformanceName(request));
}

std::string Facts(const Symbol& symbol, const Speeds& speeds) {
  const Result& result = symbol.result;
  std::string facts = Fact("size", SizeFact(symbol));
  facts += Fact("module", fmt::format("{:.6g} mm (X dimension)", result.xDimension()));
  facts += Fact("quiet zone", QuietZoneFact(symbol));
  if (IsMatrix(symbol.request)) {
    facts += Fact("codewords", fmt::format("{} of {}", result.codewords(), result.capacity()));
  }
  facts += Report(StatisticsOf(symbol.drawing, speeds), speeds);
  const std::size_t bytes = result.Segments().size() * sizeof(barhatch::Segment) +
                            result.Points().size() * sizeof(barhatch::Point);
  facts += Fact("buffer", fmt::format("{} bytes", bytes));
  const std::string warning = WarningText(result);
  if (!warning.empty()) facts += Fact("warning", warning);
  const std::string deviations = DeviationIds(result);
  if (!deviations.empty()) facts += Fact("deviations", deviations + " (--explain tells)");
  return facts;
}

Verdict Verify(const Symbol& symbol, const Options& options) {
  if (!CanReadBack()) return {false, false, "built without a reader, cannot verify"};
  std::optional<Verdict> best;
  for (const double resolution : ResolutionsToRead(symbol, options)) {
    Verdict verdict = VerifyAt(symbol, options, resolution);
    if (verdict.isRead) return verdict;
    // What a reader says tells more than that it says nothing.
    if (!best || (best->isBlank && !verdict.isBlank)) best = std::move(verdict);
  }
  if (best->isBlank) best->sentence += Advice(symbol, options);
  return *best;
}

}  // namespace preview
