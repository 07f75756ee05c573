#include "mark/Proof.h"

#include <cstddef>
#include <cstring>

#include "datamatrix/SymbolProof.h"
#include "job/ModuleString.h"
#include "mark/Reading.h"

namespace barhatch {

namespace {

// Met, they say nothing against the reading: other codewords or modules for the same text, or what
// a reader reads although the standard leaves it out.
constexpr Deviation kReadAsGiven[] = {
    Deviation::kD93_1,  Deviation::kDEAN_1, Deviation::kDEAN_2, Deviation::kDEAN_3,
    Deviation::kDEAN_4, Deviation::kDDM_1,  Deviation::kDDM_2,  Deviation::kDDM_8,
};

bool MayBeMisread(DeviationSet met) {
  for (const Deviation harmless : kReadAsGiven) met.Remove(harmless);
  return met.Bits() != 0;
}

bool AreLight(const char* letters, int count) {
  for (int i = 0; i < count; ++i) {
    if (letters[i] != kNarrowSpace) return false;
  }
  return true;
}

// The value of A to D, or of T, N, * and E, which are their other names. True for other characters:
// they are a part of what is read.
bool IsCodabarEnd(char character, int value) {
  constexpr int kValueOfA = 16;  // B, C and D follow
  constexpr char kEnds[] = "ABCDTN*E";
  const char* const end = std::strchr(kEnds, character);
  return character == '\0' || end == nullptr || value == kValueOfA + (end - kEnds) % 4;
}

// Start and stop characters are values, but readers do not report them.
bool IsCodabarFrame(const Characters& text, const MarkedSymbol& symbol) {
  return text.length != 0 && symbol.valuesCount != 0 &&
         IsCodabarEnd(text.text[0], symbol.values[0]) &&
         IsCodabarEnd(text.text[text.length - 1], symbol.values[symbol.valuesCount - 1]);
}

}  // namespace

bool WantsProof(const BarhatchJob& job) { return (job.flags & BARHATCH_NO_PROOF) == 0; }

bool ShowsItsCodewords(const MatrixSymbol& matrix, const Conformance& how, MarkedSymbol& symbol) {
  const DrawnGrid grid = {symbol.letters, symbol.rows, symbol.columns, symbol.drawnQuiet.left};
  const BlockOrder order =
      how.IsInForce(Deviation::kDDM_1) ? BlockOrder::kIndustry : BlockOrder::kStandard;
  const CodewordCounts counts = {matrix.size.dataCodewords, matrix.size.errorCodewords};
  return ReadGrid(grid, order, counts, symbol.values) &&
         std::memcmp(symbol.values, matrix.codewords.data(), symbol.valuesCount) == 0;
}

bool ShowsItsText(std::int32_t symbology, const PreparedText& text, const MarkedSymbol& symbol) {
  const Characters drawn = {text.room, text.length};
  const QuietSides& quiet = symbol.drawnQuiet;
  if (!symbol.isRead || !AreLight(symbol.letters, quiet.left) ||
      !AreLight(symbol.letters + symbol.columns - quiet.right, quiet.right)) {
    return false;
  }
  if (symbology == BARHATCH_CODABAR && !IsCodabarFrame(drawn, symbol)) return false;
  return IsReadingOfLinear(text.reading, drawn, {symbol.reading, symbol.readingLength});
}

Refusal JudgeReading(const BarhatchJob& job, bool isAsGiven, DeviationSet met,
                     std::uint32_t& warnings) {
  if (isAsGiven) return {};
  if (WantsProof(job) && !MayBeMisread(met)) return {Reason::kProof};
  warnings |= BARHATCH_W_UNREADABLE;
  return {};
}

}  // namespace barhatch
