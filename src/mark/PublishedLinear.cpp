#include "mark/Mark.h"
#include "symbologies/Code128Policies.h"

namespace barhatch {

namespace {

Refusal PrepareText(const SymbologyRow& row, const LinearOptions& options, PreparedText& text,
                    Conformance& how) {
  if (row.prepare != nullptr) return row.prepare(options, text, how);
  return CheckText(row.drawing.text, text.room, text.length, how);
}

QuietModules QuietOf(std::int32_t asked, const QuietModules& standard) {
  return {QuietZoneOf(asked, standard.left), QuietZoneOf(asked, standard.right)};
}

Refusal Finish(SymbolWriter& out, const QuietModules& quiet, LinearSymbol& symbol) {
  symbol = {out.Release(), out.Length(), quiet.left, quiet.right};
  return symbol.letters != nullptr ? Refusal{} : out.WhyNone();
}

}  // namespace

PreparedText GivenText(const SymbologyRow& row, char* room, std::size_t length) {
  const DrawingRow& drawing = row.drawing;
  PreparedText text = {};
  text.rule = &drawing.text;
  text.room = room;
  text.length = length;
  text.encode = drawing.encode;
  text.variant = drawing.variant;
  text.reading = row.reading;
  text.quiet = {drawing.quietLeft, drawing.quietRight};
  return text;
}

Refusal DrawPublished(const SymbologyRow& row, const LinearOptions& options,
                      std::int32_t quietModules, const Memory& memory, Conformance& how,
                      PreparedText& text, LinearSymbol& symbol) {
  const Refusal refusal = PrepareText(row, options, text, how);
  if (refusal.IsRefused()) return refusal;

  const QuietModules quiet = QuietOf(quietModules, text.quiet);
  SymbolWriter out(memory, 0, quiet);
  const bool isRoom = text.drawn.text == nullptr;
  text.encode(isRoom ? Characters{text.room, text.length} : text.drawn, text.variant, how, out);
  return Finish(out, quiet, symbol);
}

Refusal DrawCode128(const SymbologyRow& row, std::int32_t quietModules, const TokenText& text,
                    const Memory& memory, LinearSymbol& symbol) {
  const DrawingRow& drawing = row.drawing;
  const QuietModules quiet = QuietOf(quietModules, {drawing.quietLeft, drawing.quietRight});
  SymbolWriter out(memory, 0, quiet);
  DrawShortestCode128(text, Code128StartOf(drawing.variant), out);
  return Finish(out, quiet, symbol);
}

}  // namespace barhatch
