// The data codewords of a text (ISO/IEC 16022): "123456" becomes 142 164 186 in ASCII encodation,
// "AIMAIMAIMAIM" the latch 230, 91 11 four times and the unlatch 254. The mode follows the
// look-ahead (LookAhead.h), the modes are in ModeEncodations.h, with what differs from the
// standard.
#ifndef BARHATCH_DATAMATRIX_ENCODATION_H
#define BARHATCH_DATAMATRIX_ENCODATION_H

#include <cstddef>
#include <cstdint>

#include "datamatrix/CodewordBuffer.h"
#include "datamatrix/SymbolSizes.h"

namespace barhatch {

// Appends the codewords of the text to what is in the buffer (a macro header or nothing).
//   text        length characters, not ended by a NUL: up to 255 data, above an ECI designator
//   length      <= 3116
//   codeFormat  1 puts FNC1 behind the first codeword; any other value does nothing here
//   request     what the symbol size is going to be chosen by: a text may end without an unlatch
//               where the symbol that comes out implies it
// A text of more than 1558 codewords leaves the buffer overflowed.
void EncodeText(const char16_t* text, std::size_t length, std::int32_t codeFormat,
                const SizeRequest& request, CodewordBuffer& codewords);

}  // namespace barhatch

#endif
