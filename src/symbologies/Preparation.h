// What a text by the book goes through before it is drawn: a preparation checks it and writes the
// characters that the encoder draws in its place. It appends a check character or tests the one
// that is there, puts in start and stop, spells full ASCII out, takes an add-on apart.
//
//   Code 39, modulo 43     ABC-123 becomes ABC-123W
//   Codabar, modulo 16     A1234B becomes A12345B
//
// Marks of the device are not prepared: the encoders draw their texts as they stand.
#ifndef BARHATCH_SYMBOLOGIES_PREPARATION_H
#define BARHATCH_SYMBOLOGIES_PREPARATION_H

#include <cstddef>
#include <cstdint>

#include "job/Deviations.h"
#include "job/Job.h"
#include "job/Refusal.h"
#include "symbologies/Encoder.h"
#include "symbologies/SymbolWriter.h"
#include "symbologies/TextRules.h"

namespace barhatch {

// Which check characters a symbol has.
enum class CheckScheme : std::uint8_t {
  kOwn,     // those of the symbology
  kNone,    // none
  kVerify,  // those of the symbology's usual scheme, which the text brings with it
  kModulo43,
  kModulo16,
  kInterleaved10,
  kMsi10,
  kMsi10And10,
  kMsi11,
  kMsi11And10,
  kMsiNcr11,
  kMsiNcr11And10,
  kCode11C,
  kCode11CAndK,
};

// Some of them, one bit each.
using CheckSchemes = std::uint16_t;
constexpr CheckSchemes BitOf(CheckScheme check) {
  return static_cast<CheckSchemes>(1u << static_cast<unsigned>(check));
}

// What a host may choose beside symbology and text.
struct LinearOptions {
  CheckScheme check = CheckScheme::kOwn;
  bool addsStartStop = false;  // where the text has none
  bool permits = false;        // what readers know and the standard leaves out
  std::int32_t addonGap = 0;   // modules in front of an add-on, 0: the usual ones
};

// How what a standard reader reports differs from the characters that were drawn.
struct ReadingForm {
  std::uint8_t inFront = 0;     // characters that it leaves out
  std::uint8_t behind = 0;      // likewise
  std::uint8_t mainDigits = 0;  // not 0: EAN and UPC, whose check digit follows these digits, and a
                                // space the check digit where there is an add-on
  bool inPairs = false;         // an odd number of digits is reported with a 0 in front
};

// The text on its way from the host to the encoder. It begins as the host gave it, with what the
// row of the symbology says; a preparation changes what it has to.
struct PreparedText {
  const TextRule* rule;  // of the symbology
  char* room;            // the characters and a NUL; see PreparationRoom
  std::size_t length;
  Encoder encode;
  int variant;
  ReadingForm reading;  // of the characters in the room
  QuietModules quiet;   // that the standard asks for
  // What the encoder draws where it is something else than the characters; it stands in the room
  // behind them.
  Characters drawn = {nullptr, 0};
  bool isForPeople = false;  // the characters, and not the reading, stand beside the symbol
};

// Bytes of the room of a text of so many characters: for two more of them, a NUL and twice as many
// behind it.
constexpr std::size_t PreparationRoom(std::size_t length) { return 3 * length + 16; }

// The position of a refusal is that of a character of the text as the host gave it. The options are
// such as the symbology has. REQUIRES: room as above.
using Prepare = Refusal (*)(const LinearOptions& options, PreparedText& text, Conformance& how);

// The text as its rule takes it.
Refusal CheckCharacters(PreparedText& text, Conformance& how);

// Puts a character in front of the one at a place, behind all where that is the length.
void Insert(PreparedText& text, std::size_t at, char character);

// Holds the character at a place to the right one.
Refusal VerifyCharacter(const PreparedText& text, std::size_t at, char right);

}  // namespace barhatch

#endif
