// What a standard reader reports of a finished linear symbol. It takes the elements as they are
// drawn, knows nothing of the text they were drawn from, and tests check characters as the
// published standard says: a symbol that deviates from its standard is read as a reader in the
// field would read it, or not at all.
//
// "AaAa BaAbAaAaBb BaA" as Interleaved 2 of 5 is the text 12 with the values 1 and 2.
//
// What is reported of each symbology:
//
//                       text                                   values
//   Codabar             the data between start and stop        0 to 19, all characters, in the
//                                                              order of the standard's table
//   Code 39             as it stands, full ASCII unresolved    0 to 42 of the modulo-43 scheme
//   Code 93             full ASCII, without C and K            0 to 46, with C and K
//   Code 128            all code sets; FNC1 as GS (29), but    start to check character
//                       not in first position, nor in
//                       second behind a letter or a pair of
//                       set C; FNC4 as bytes from 128 on; FNC2
//                       and FNC3 left out
//   Code 11             without C and K                        0 to 10, with C and K
//   MSI                 without the check digit                digits, with the check digit
//   Interleaved 2 of 5  all digits, a leading 0 as drawn       the same digits
//   EAN-13, EAN-8       all digits with the check digit        the same digits, then those of the
//   UPC-A               likewise, 12 digits                    add-on
//   UPC-E               number system, six digits, check digit
//                       an add-on follows behind a space
#ifndef BARHATCH_SYMBOLOGIES_SYMBOLOGYREADERS_H
#define BARHATCH_SYMBOLOGIES_SYMBOLOGYREADERS_H

#include <cstddef>
#include <cstdint>

#include "symbologies/Preparation.h"

namespace barhatch {

// The caller owns both arrays. Their lengths are set by ReadSymbol.
struct SymbolReading {
  char* text;               // room for as many bytes as the symbol has letters and one more
  std::size_t textLength;   // bytes reported, a NUL behind them; a NUL may be among them
  std::uint8_t* values;     // room for as many bytes as the symbol has letters
  std::size_t valuesCount;  // symbol character values
};

// letters: a module string without quiet zones, any bytes and any number of them. The symbol must
// fill them from the first bar to the last; of a type with add-on the add-on must be there, of the
// others of EAN and UPC any may. False for a symbology that there is none and where a standard
// reader finds no symbol of the type, or one without characters: the text is empty then, and values
// are given as far as they were recognised. Code 128 of function characters alone is a symbol whose
// text is empty. Allocates nothing; the time grows with the number of letters.
bool ReadSymbol(std::int32_t symbology, CheckScheme check, const char* letters, std::size_t length,
                SymbolReading& reading);

}  // namespace barhatch

#endif
