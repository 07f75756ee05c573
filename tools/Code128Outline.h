// How a text fills a Code 128 symbol of the types 5 to 8, counted and not written: how much of it
// is in the symbol, and which departures from ISO/IEC 15417 it meets.
//
// Worked example: "12345" of type 5 is the pairs 12 and 34 and a 5 that is written inside set C.
#ifndef BARHATCH_TOOLS_CODE128OUTLINE_H
#define BARHATCH_TOOLS_CODE128OUTLINE_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace preview {

struct Code128Outline {
  int values = 0;                 // behind the start character, without check character and stop
  std::size_t taken = 0;          // characters of the text in the symbol
  bool endsWithSwitch = false;    // D-128-4
  bool isLastLoneInSetC = false;  // D-128-1
  bool hasDeleteInSetA = false;   // D-128-2
};

constexpr int kFullCode128Symbol = 79;  // values, after which no more text is taken

// REQUIRES: a type from 5 to 8 and a text that it accepts.
Code128Outline Code128OutlineOf(std::int32_t type, std::string_view text);

}  // namespace preview

#endif
