#include "mark/Mark.h"

namespace barhatch {

namespace {

Refusal PrepareText(const SymbologyRow& row, const LinearOptions& options, PreparedText& text,
                    Conformance& how) {
  if (row.prepare != nullptr) return row.prepare(options, text, how);
  return CheckText(row.drawing.text, text.room, text.length, how);
}

}  // namespace

PreparedText GivenText(const SymbologyRow& row, char* room, std::size_t length) {
  const DrawingRow& drawing = row.drawing;
  return {&drawing.text,   room,        length,
          drawing.variant, row.reading, {drawing.quietLeft, drawing.quietRight}};
}

Refusal DrawPublished(const SymbologyRow& row, const LinearOptions& options,
                      std::int32_t quietModules, const Memory& memory, Conformance& how,
                      PreparedText& text, LinearSymbol& symbol) {
  const Refusal refusal = PrepareText(row, options, text, how);
  if (refusal.IsRefused()) return refusal;

  const QuietModules quiet = {QuietZoneOf(quietModules, text.quiet.left),
                              QuietZoneOf(quietModules, text.quiet.right)};
  SymbolWriter out(memory, 0, quiet);
  row.drawing.encode({text.room, text.length}, text.variant, how, out);
  symbol = {out.Release(), out.Length(), quiet.left, quiet.right};
  return symbol.letters != nullptr ? Refusal{} : out.WhyNone();
}

}  // namespace barhatch
