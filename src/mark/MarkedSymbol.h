// The finished symbol of a job, of either kind, on its way into a result: what was drawn, what a
// standard reader says to it, and its quiet zones.
#ifndef BARHATCH_MARK_MARKEDSYMBOL_H
#define BARHATCH_MARK_MARKEDSYMBOL_H

#include <cstddef>
#include <cstdint>

#include "barhatch_mark.h"
#include "job/Deviations.h"
#include "job/Memory.h"
#include "job/Refusal.h"
#include "mark/InputText.h"

namespace barhatch {

// Modules on the four sides of a symbol.
struct QuietSides {
  int left = 0;
  int right = 0;
  int below = 0;
  int above = 0;
};

struct MarkedSymbol {
  explicit MarkedSymbol(const Memory& itsMemory) : memory(itsMemory) {}
  ~MarkedSymbol() {
    memory.Release(letters);
    memory.Release(reading);
    memory.Release(values);
    memory.Release(people);
  }
  MarkedSymbol(const MarkedSymbol&) = delete;
  MarkedSymbol& operator=(const MarkedSymbol&) = delete;

  const Memory& memory;

  // As drawn, with the quiet zone that is drawn: a module string, or the rows of a grid.
  char* letters = nullptr;
  int rows = 1;
  int columns = 0;  // elements of a linear symbol
  QuietSides drawnQuiet;
  QuietSides quiet;  // around the symbol, drawn or not

  bool isRead = false;
  char* reading = nullptr;  // with a NUL
  std::size_t readingLength = 0;
  std::uint8_t* values = nullptr;
  std::size_t valuesCount = 0;

  char* people = nullptr;  // text for people, with a NUL, where it is not the reading
  std::size_t peopleLength = 0;

  std::uint32_t warnings = 0;
};

// Draws the text and has it read back. `count` is its length in tokens, for the device in units.
// What a refusal names by position is one of them.
Refusal MakeLinearSymbol(const BarhatchJob& job, const InputText& text, std::size_t count,
                         Conformance& how, MarkedSymbol& symbol);
Refusal MakeMatrixSymbol(const BarhatchJob& job, const InputText& text, std::size_t count,
                         Conformance& how, MarkedSymbol& symbol, BarhatchResult& result);

}  // namespace barhatch

#endif
