#include "mark/DeviationText.h"

#include <cstring>

#include "mark/DeviationTable.h"

namespace barhatch {

namespace {

template <typename Visit>
void ForEachPiece(DeviationSet met, const Visit& visit) {
  for (int i = 0; i < kDeviationCount; ++i) {
    if (!met.Has(static_cast<Deviation>(i))) continue;
    const DeviationRow& row = kDeviationRows[i];
    const char* const pieces[] = {
        row.id, ": ", row.does, "; a standard reader sees: ", row.reads, "\n"};
    for (const char* piece : pieces) {
      visit(piece, std::strlen(piece));
    }
  }
}

}  // namespace

std::size_t DeviationTextLength(DeviationSet met) {
  std::size_t sum = 0;
  ForEachPiece(met, [&](const char* /*piece*/, std::size_t length) { sum += length; });
  return sum;
}

void WriteDeviationText(DeviationSet met, char* text) {
  ForEachPiece(met, [&](const char* piece, std::size_t length) {
    std::memcpy(text, piece, length);
    text += length;
  });
  *text = '\0';
}

}  // namespace barhatch
