// The text of a job character by character, whatever the host gave it in, and the way back from a
// character to the host's bytes.
//
// By the book a character is a token (job/Token.h). The device takes 16-bit units: there a
// character above U+FFFF is two of them, and a function character none.
#ifndef BARHATCH_MARK_INPUTTEXT_H
#define BARHATCH_MARK_INPUTTEXT_H

#include <cstddef>
#include <cstdint>

#include "barhatch_mark.h"
#include "job/Refusal.h"
#include "job/Token.h"

namespace barhatch {

// Where something stands in the host's text, in its bytes or units.
struct TextPlace {
  std::size_t begin;  // from 0
  std::size_t extent;
};

class InputText {
 public:
  // Reads text, length, input and conformance of the job, which outlives the object. REQUIRES: an
  // input that this version has.
  explicit InputText(const BarhatchJob& job);

  // Bytes or units of the host's text.
  std::size_t Length() const { return length_; }

  // Tokens that the text has, or units for the device. Refused, without a position, for what is no
  // character and for an escape that is none; `broken` says where.
  Refusal Count(std::size_t& count, TextPlace& broken) const;

  // Write so many. REQUIRES: Count has counted as many and refused nothing; units for the device.
  void CopyTokens(Token* tokens, std::size_t count) const;
  void CopyUnits(char16_t* units, std::size_t count) const;

  // Where the host's text has the token, or the unit.
  TextPlace PlaceOf(std::size_t index) const;

  // The token at a place.
  Token TokenAt(const TextPlace& place) const { return At(place.begin).token; }

 private:
  // One character of the text, or what stands for one.
  struct Character {
    Token token;
    std::size_t extent;
  };

  Character At(std::size_t position) const;
  Character Utf8At(std::size_t position) const;
  Character EscapedAt(std::size_t position) const;
  Character UnitAt(std::size_t position) const;
  std::size_t CountOf(Token token) const;

  const void* text_;
  std::size_t length_;
  std::int32_t input_;
  bool isDevice_;
};

}  // namespace barhatch

#endif
