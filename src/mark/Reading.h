// Whether what a standard reader reports of a symbol is the text that was asked for.
#ifndef BARHATCH_MARK_READING_H
#define BARHATCH_MARK_READING_H

#include <cstddef>

#include "job/Job.h"
#include "symbologies/Preparation.h"

namespace barhatch {

// text: as it was drawn. Readers leave out the start and stop characters of Codabar, add the
// leading zero of Interleaved 2 of 5, the check digit of EAN and UPC and a space in front of an
// add-on: the form says it.
bool IsReadingOfLinear(const ReadingForm& form, const Characters& text, const Characters& reading);

// Readers leave out ECI designators, write out the macro headers and report FNC1 in second position
// as GS or not at all.
bool IsReadingOfMatrix(const TextUnits& text, Header header, const Characters& reading);

}  // namespace barhatch

#endif
