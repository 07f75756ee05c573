// A linear symbol drawn through the door of the library, by the rules of the device or by the book.
#ifndef BARHATCH_TESTS_SYMBOLOGIES_DRAWNSYMBOL_H
#define BARHATCH_TESTS_SYMBOLOGIES_DRAWNSYMBOL_H

#include <cstdint>
#include <optional>
#include <string>

#include "mark/Mark.h"

namespace barhatch::test {

enum class QuietZone { kNone, kBothEnds };

struct DrawnSymbol {
  Refusal refusal;
  std::optional<std::string> letters;
  DeviationSet met;
};

inline DrawnSymbol Draw(std::int32_t type, std::string text, QuietZone quietZone,
                        DeviationSet inForce) {
  Conformance how(inForce);
  LinearSymbol symbol;
  const LinearJob job = {type, text.data(), text.size(),
                         quietZone == QuietZone::kNone ? kNoQuietZone : kStandardQuietZone};
  DrawnSymbol drawn;
  drawn.refusal = DrawLinear(job, 0, RuntimeMemory(), how, symbol);
  drawn.met = how.Met();
  if (symbol.letters != nullptr) drawn.letters = std::string(symbol.letters, symbol.length);
  RuntimeMemory().Release(symbol.letters);
  return drawn;
}

// Text up to its first NUL, as the exports take it.
inline std::optional<std::string> DrawnByTheDevice(std::int32_t type, const std::string& text,
                                                   QuietZone quietZone = QuietZone::kNone) {
  return Draw(type, text.c_str(), quietZone, DeviationSet::All()).letters;
}

// By the book, with the text as it was drawn.
struct PublishedSymbol {
  Refusal refusal;
  std::optional<std::string> letters;
  std::string text;
  ReadingForm reading;
};

inline PublishedSymbol DrawByTheBook(std::int32_t symbology, const std::string& text,
                                     const LinearOptions& options = {},
                                     QuietZone quietZone = QuietZone::kNone,
                                     DeviationSet permitted = {}) {
  std::string room(PreparationRoom(text.size()), '?');
  room.replace(0, text.size() + 1, text.c_str(), text.size() + 1);
  Conformance how(permitted);
  const SymbologyRow& row = *RowOf(symbology);
  PreparedText prepared = GivenText(row, room.data(), text.size());
  LinearSymbol symbol;
  PublishedSymbol drawn;
  drawn.refusal =
      DrawPublished(row, options, quietZone == QuietZone::kNone ? kNoQuietZone : kStandardQuietZone,
                    RuntimeMemory(), how, prepared, symbol);
  drawn.text = std::string(prepared.room, prepared.length);
  drawn.reading = prepared.reading;
  if (symbol.letters != nullptr) drawn.letters = std::string(symbol.letters, symbol.length);
  RuntimeMemory().Release(symbol.letters);
  return drawn;
}

inline std::optional<std::string> DrawnByTheBook(std::int32_t type, const std::string& text,
                                                 QuietZone quietZone = QuietZone::kNone) {
  return DrawByTheBook(type, text, {}, quietZone).letters;
}

}  // namespace barhatch::test

#endif
