#include "mark/Mark.h"

namespace barhatch {

Refusal DrawLinear(const LinearJob& job, std::size_t usualCapacity, const Memory& memory,
                   Conformance& how, LinearSymbol& symbol) {
  const DrawingRow& row = kDeviceDrawings.of[job.symbology];
  std::size_t length = job.length;
  const Refusal refusal = CheckText(row.text, job.text, length, how);
  if (refusal.IsRefused()) return refusal;

  const QuietModules quiet = {QuietZoneOf(job.quietModules, row.quietLeft),
                              QuietZoneOf(job.quietModules, row.quietRight)};
  SymbolWriter out(memory, usualCapacity, quiet);
  row.encode({job.text, length}, row.variant, how, out);
  symbol = {out.Release(), out.Length(), quiet.left, quiet.right};
  return symbol.letters != nullptr ? Refusal{} : out.WhyNone();
}

}  // namespace barhatch
