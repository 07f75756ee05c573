// The linear symbologies: one row for each type that a host can ask for. A new symbology is a file
// pair with its tables and its encoder, and a row here.
#ifndef BARHATCH_SYMBOLOGIES_SYMBOLOGYTABLE_H
#define BARHATCH_SYMBOLOGIES_SYMBOLOGYTABLE_H

#include <cstdint>

#include "symbologies/Encoder.h"
#include "symbologies/TextRules.h"

namespace barhatch {

struct SymbologyRow {
  TextRule text;
  Encoder encode;
  std::uint8_t variant;     // of the encoder
  std::uint8_t quietLeft;   // modules that the standard asks for
  std::uint8_t quietRight;  // behind the add-on where there is one
};

constexpr std::int32_t kSymbologyCount = 23;

// The type is the index of its row.
extern const SymbologyRow kSymbologies[kSymbologyCount];

}  // namespace barhatch

#endif
