// The departures from the published standards that docs/deviations.md lists, as the program knows
// them: which texts they touch, what they do and what a reader makes of it. Sentences and order are
// those of the document, and a test holds the two together.
//
// Worked example: "A/B" of type 1 is touched by D-39-2 alone.
#ifndef BARHATCH_TOOLS_DEPARTURES_H
#define BARHATCH_TOOLS_DEPARTURES_H

#include <vector>

#include "BarcodeText.h"

namespace preview {

// What becomes of the text: a standard reader reports it as it is, or may report something else.
enum class Effect { kReadsAlike, kMayReadOtherwise };

struct Departure {
  const char* id;     // "D-39-2"
  const char* does;   // what the library does
  const char* reads;  // what a standard reader sees
  Effect effect;
};

// All, in the order of the document.
const std::vector<Departure>& Departures();

// Those that touch the text, in the same order; none where the text is refused.
std::vector<const Departure*> DeparturesTouching(const BarcodeText& text);

}  // namespace preview

#endif
