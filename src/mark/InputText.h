// The text of a job as 16-bit units, whatever the host gave it in, and the way back from a unit to
// the host's bytes.
#ifndef BARHATCH_MARK_INPUTTEXT_H
#define BARHATCH_MARK_INPUTTEXT_H

#include <cstddef>
#include <cstdint>

#include "barhatch_mark.h"

namespace barhatch {

// Where something stands in the host's text, in its bytes or units.
struct TextPlace {
  std::size_t begin;  // from 0
  std::size_t extent;
};

class InputText {
 public:
  // Reads text, length and input of the job, which outlives the object. REQUIRES: an input that
  // this version has.
  explicit InputText(const BarhatchJob& job);

  // Bytes or units of the host's text.
  std::size_t Length() const { return length_; }

  // Units that the text has. False for bytes that are no UTF-8, and then `broken` says where.
  bool CountUnits(std::size_t& units, TextPlace& broken) const;

  // Writes so many units. REQUIRES: CountUnits has counted as many and found nothing broken.
  void CopyUnits(char16_t* units, std::size_t count) const;

  // Where the host's text has the unit.
  TextPlace PlaceOf(std::size_t unit) const;

  // The character at a place: a code point of UTF-8, a byte, a unit.
  std::uint32_t CodeAt(const TextPlace& place) const { return At(place.begin).code; }

 private:
  // One character of the text: a code point of UTF-8, a byte, a unit.
  struct Character {
    std::uint32_t code;
    std::size_t extent;
  };

  Character At(std::size_t position) const;

  const void* text_;
  std::size_t length_;
  std::int32_t input_;
};

}  // namespace barhatch

#endif
