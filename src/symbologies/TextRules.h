// Which texts a symbology takes: one row of data for each, and the one check over it. It is the
// only place that refuses a character; the encoders behind it take every text that it accepts.
#ifndef BARHATCH_SYMBOLOGIES_TEXTRULES_H
#define BARHATCH_SYMBOLOGIES_TEXTRULES_H

#include <cstddef>
#include <cstdint>

#include "job/Deviations.h"
#include "job/Job.h"
#include "job/Refusal.h"

namespace barhatch {

// Classes of characters, one bit each; a rule accepts some of them.
enum CharacterClassBit : std::uint16_t {
  kClassDigits = 1,           // 0 to 9
  kClassLettersAndSigns = 2,  // A to Z - . $ / + % and space: with the digits the set of Code 39
  kClassAsterisk = 4,         // *
  kClassDash = 8,             // -
  kClassCodabarSigns = 16,    // - $ : / . +
  kClassCodabarEnds = 32,     // A B C D T N * E
  kClassFromSpace = 64,       // 32 to 127
  kClassAscii = 128,          // 0 to 127
  kClassAbove127 = 256,       // 128 to 255
};

// The bits of a byte.
std::uint16_t ClassesOf(char character);

// How a symbology writes a text that has the right characters may still ask something of it: start
// and stop characters, a number system. Gives the refusal, if any.
using FormCheck = Refusal (*)(const Characters& text, Conformance& how);

constexpr std::uint16_t kLongestLinearText = 3119;  // what the settings of the device hold

// Lengths are in characters.
struct TextRule {
  std::uint16_t accepted;  // classes that the published symbology has
  std::uint16_t shortest;  // 1 and more
  std::uint16_t longest;
  std::uint16_t planned;  // classes accepted instead where plannedBy, a plan of the device, is in
  Deviation plannedBy;    // force
  Deviation emptyBy;      // takes the empty text; kNone: nothing does
  std::uint16_t more;     // classes accepted besides where moreBy is in force
  Deviation moreBy;
  Deviation moreInFrontBy;  // met instead by those with none of the accepted classes before them
  Deviation percentPairBy;  // makes one '%' of two
  FormCheck form;           // or null
};

// Refuses the text with a reason and, for a character, its position. The text may become shorter,
// see percentPairBy: text is the room that the characters stand in.
Refusal CheckText(const TextRule& rule, char* text, std::size_t& length, Conformance& how);

}  // namespace barhatch

#endif
