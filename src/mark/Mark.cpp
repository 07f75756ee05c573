#include "mark/Mark.h"

#include "symbologies/Code128Policies.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {

namespace {

QuietModules QuietOf(const LinearJob& job, const SymbologyRow& row) {
  return {QuietZoneOf(job.quietModules, row.quietLeft),
          QuietZoneOf(job.quietModules, row.quietRight)};
}

Refusal Finish(SymbolWriter& out, const QuietModules& quiet, LinearSymbol& symbol) {
  symbol = {out.Release(), out.Length(), quiet.left, quiet.right};
  return symbol.letters != nullptr ? Refusal{} : out.WhyNone();
}

}  // namespace

Refusal DrawLinear(const LinearJob& job, std::size_t usualCapacity, const Memory& memory,
                   Conformance& how, LinearSymbol& symbol) {
  const SymbologyRow& row = kSymbologies[job.symbology];
  std::size_t length = job.length;
  const Refusal refusal = CheckText(row.text, job.text, length, how);
  if (refusal.IsRefused()) return refusal;

  const QuietModules quiet = QuietOf(job, row);
  SymbolWriter out(memory, usualCapacity, quiet);
  row.encode({job.text, length}, row.variant, how, out);
  return Finish(out, quiet, symbol);
}

Refusal DrawCode128(const LinearJob& job, const TokenText& text, const Memory& memory,
                    LinearSymbol& symbol) {
  const SymbologyRow& row = kSymbologies[job.symbology];
  const QuietModules quiet = QuietOf(job, row);
  SymbolWriter out(memory, 0, quiet);
  DrawShortestCode128(text, Code128StartOf(row.variant), out);
  return Finish(out, quiet, symbol);
}

}  // namespace barhatch
