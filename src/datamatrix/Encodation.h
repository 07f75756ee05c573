// The data codewords of a text (ISO/IEC 16022): "123456" becomes 142 164 186 in ASCII encodation,
// "AIMAIMAIMAIM" the latch 230, 91 11 four times and the unlatch 254. The mode follows the
// look-ahead (LookAhead.h), the modes are in ModeEncodations.h, what lies between them in
// Unlatching.h, with what differs from the standard.
//
// Deviation from the standard (docs/deviations.md):
//   D-DM-6   the FNC1 in second position stands behind the first codeword, whatever that is
#ifndef BARHATCH_DATAMATRIX_ENCODATION_H
#define BARHATCH_DATAMATRIX_ENCODATION_H

#include "datamatrix/CodewordBuffer.h"
#include "job/Deviations.h"
#include "job/Job.h"

namespace barhatch {

// Appends the codewords of the text to what is in the buffer (a macro header or nothing).
//   text     at most 3116 characters: up to 255 data, above an ECI designator
//   header   kFnc1Second puts FNC1 in second position; macro headers are the caller's
//   request  what the symbol size is going to be chosen by: a text may end without an unlatch where
//            the symbol that comes out implies it
//   how      which deviations are in force; those that the symbol contains are met
// A text of more than 1558 codewords leaves the buffer overflowed.
void EncodeText(const TextUnits& text, Header header, const SizeRequest& request, Conformance& how,
                CodewordBuffer& codewords);

}  // namespace barhatch

#endif
