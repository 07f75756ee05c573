// The base of every encoder: text of the settings in, module string out. An encoder lives for one
// generating call and keeps no state between calls.
#ifndef BARHATCH_SYMBOLOGIES_SYMBOLOGY_H
#define BARHATCH_SYMBOLOGIES_SYMBOLOGY_H

#include <cstddef>

#include "symbologies/ModuleStringBuilder.h"

namespace barhatch {

// Bytes of a narrowed DataString with its NUL: one for each 16-bit unit the settings hold.
constexpr std::size_t kNarrowTextCapacity = 3120;

// One char per 16-bit unit, its low 8 bits (U+0141 becomes 'A'), up to the first unit that is zero,
// and a NUL. A unit such as U+0100 becomes a zero byte and thereby ends the text for whoever reads
// the copy. REQUIRES: room in destination for the source with its NUL, kNarrowTextCapacity bytes
// for DataString.
void NarrowDataString(const char16_t* source, char* destination);

class Symbology {
 public:
  Symbology() = default;
  virtual ~Symbology() = default;
  Symbology(const Symbology&) = delete;
  Symbology& operator=(const Symbology&) = delete;

  // The module string of the current settings in a new char array, which the caller owns
  // (delete[]); null when the text cannot be encoded or there is no memory. The base encodes
  // nothing and returns null.
  virtual char* GenerateString();

 protected:
  // An encoder proper: a pure function of the narrowed text and the quiet zone flag, with
  // GenerateString's result.
  using Encoder = char* (*)(const char* text, QuietZone quietZone);

  // Runs the encoder on the text and the quiet zone flag of the settings.
  static char* EncodeCurrentText(Encoder encoder);
};

}  // namespace barhatch

#endif
