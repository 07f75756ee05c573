#include "Symbol.h"

#include <fmt/core.h>

#include <cmath>
#include <utility>

#include "Messages.h"
#include "Outputs.h"

namespace preview {

namespace {

constexpr const char* kNoUtf8 = "the text is no UTF-8, or has a NUL in it";

std::string WhyNoStrokes(const Request& request) {
  return fmt::format(
      "pattern {} with a line gap of {:g} fills nothing, or more than a fill buffer holds",
      request.pattern, request.gap);
}

std::string SizeFact(const Symbol& symbol) {
  std::string size = fmt::format("{:.6g} x {:.6g} mm", symbol.drawing.width, symbol.drawing.height);
  if (symbol.request.kind == Kind::kLinear) return size;
  const auto modules = [&](double length) { return std::lround(length / symbol.moduleSize); };
  return size + fmt::format(", {} x {} modules", modules(symbol.drawing.height),
                            modules(symbol.drawing.width));
}

std::string Ids(const std::vector<const Departure*>& departures) {
  std::string ids;
  for (const Departure* departure : departures) {
    ids += ids.empty() ? "" : ", ";
    ids += departure->id;
  }
  return ids;
}

// The resolution of the pictures first. Readers of bars lose thin ones between two pixels, so then
// a module is made of whole pixels.
std::vector<double> ResolutionsToRead(const Symbol& symbol, const Options& options) {
  if (options.pixelsPerUnit > 0.0) return {options.pixelsPerUnit};
  return {0.0, 6.0 / symbol.moduleSize, 4.0 / symbol.moduleSize, 9.0 / symbol.moduleSize};
}

Verdict VerifyAt(const Symbol& symbol, const Options& options, double pixelsPerUnit) {
  Options resolved = options;
  resolved.pixelsPerUnit = pixelsPerUnit;
  std::string reason;
  const Look look = LookOf(options, symbol.drawing.width, symbol.moduleSize);
  const std::optional<Picture> picture = PictureOf(symbol.drawing, look, resolved, reason);
  if (!picture) return {false, false, reason};
  return Judge(TextOf(symbol.request), ReadBack(*picture));
}

// What keeps a reader from seeing the symbol in this picture, where the options tell it.
std::string Advice(const Symbol& symbol, const Options& options) {
  if (symbol.request.invert && !(options.darkPart && symbol.request.quietZone)) {
    return "; inverted marks are read with --dark-part and --quiet-zone";
  }
  if (symbol.drawing.kind == MarkKind::kPoints && symbol.request.kind == Kind::kLinear) {
    return "; points are no bars";
  }
  if (symbol.drawing.kind == MarkKind::kPoints) {
    return fmt::format("; points are read with a --beam of about a module, {:.6g}",
                       symbol.moduleSize);
  }
  return "";
}

// Strokes a gap apart may miss an element that is narrower. Horizontal strokes of a linear symbol
// go through all bars.
bool MayLoseElements(const Symbol& symbol) {
  const bool isPoints = symbol.drawing.kind == MarkKind::kPoints;
  const bool isHorizontal = symbol.request.pattern == 0 || symbol.request.pattern == 2;
  if (isPoints || (symbol.request.kind == Kind::kLinear && isHorizontal)) return false;
  return symbol.request.gap > symbol.moduleSize;
}

std::string Fact(const char* name, const std::string& value) {
  return fmt::format("  {:<14}{}\n", name, value);
}

}  // namespace

std::optional<Symbol> MakeSymbol(const Request& request, std::string& reason) {
  const std::string refused = fmt::format("{} refuses {}: ", NameOf(request), Quoted(request.text));
  if (!ToUnits(request.text)) {
    reason = refused + kNoUtf8;
    return std::nullopt;
  }
  Symbol symbol;
  symbol.request = request;
  symbol.explanation = Explain(TextOf(request));
  if (!symbol.explanation.isAccepted) {
    reason = refused + symbol.explanation.reason;
    return std::nullopt;
  }
  const Fill fill = Generate(request);
  if (!fill) {
    reason = WhyNoStrokes(request);
    return std::nullopt;
  }
  symbol.drawing = DrawingOf(*fill, WidthOf(request, *fill), request.height, request.text);
  symbol.moduleSize = ModuleSizeOf(request, *fill);
  symbol.bufferBytes = static_cast<std::size_t>(fill->BufferLength) * sizeof(double);
  return symbol;
}

std::string Headline(const Symbol& symbol, const Speeds& speeds) {
  return fmt::format("{} {}: {}", NameOf(symbol.request), Quoted(symbol.request.text),
                     CountText(StatisticsOf(symbol.drawing, speeds)));
}

std::string Facts(const Symbol& symbol, const Speeds& speeds) {
  std::string facts = Fact("size", SizeFact(symbol));
  facts += Fact("module", fmt::format("{:.6g} mm (X dimension)", symbol.moduleSize));
  facts += Report(StatisticsOf(symbol.drawing, speeds), speeds);
  facts += Fact("buffer", fmt::format("{} bytes", symbol.bufferBytes));
  if (MayLoseElements(symbol)) {
    facts += Fact("note", "the gap is wider than a module: elements may get no stroke");
  }
  if (!symbol.explanation.departures.empty()) {
    facts += Fact("departures", Ids(symbol.explanation.departures) + " (--explain tells)");
  }
  return facts;
}

std::string ExplanationText(const Request& request) {
  const std::string subject = fmt::format("{} {}: ", NameOf(request), Quoted(request.text));
  if (!ToUnits(request.text)) return subject + "refused, " + kNoUtf8 + "\n";
  const Explanation explanation = Explain(TextOf(request));
  std::string text = subject;
  if (!explanation.isAccepted) {
    text += "refused, " + explanation.reason + "\n";
  } else if (explanation.departures.empty()) {
    text += "accepted, written by the book\n";
  } else {
    text += "accepted, with departures from the standard\n";
  }
  for (const std::string& note : explanation.notes) text += "  " + note + "\n";
  for (const Departure* departure : explanation.departures) {
    text += fmt::format("  {}: {}. A standard reader sees: {}.\n", departure->id, departure->does,
                        departure->reads);
  }
  return text;
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
