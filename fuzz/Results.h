// What every result of the library is held to, whatever went in.
#ifndef BARHATCH_FUZZ_RESULTS_H
#define BARHATCH_FUZZ_RESULTS_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "api/BarcodeSettings.h"
#include "barhatch.h"

namespace barhatch::fuzz {

// Null, or a record whose numbers fit together and whose memory can be read to the last double.
void DemandSoundFill(const FillBufferInfo* fill);

// Null, or a string of the four letters that is not empty.
void DemandSoundLetters(const char* letters);

// What a call may hold at its peak, its result included: the result, for each element its rectangle
// (32 bytes) and two strokes (64 bytes) that were counted ahead and came to nothing, since counts
// come from above and are at most one too high a rectangle, two in a spiral; and a constant for
// records and encoders on the heap.
std::size_t MostFillBytes(const FillBufferInfo* fill, std::size_t elements);

// The same for a Data Matrix, with what its encoder holds: mapping matrix, grid, rectangles of two
// rows.
std::size_t MostMatrixBytes(const FillBufferInfo* fill, std::size_t modules);

// The same for the module string of a text: strings have a usual size, and a longer one only where
// the text needs it, at most 40 letters a unit.
std::size_t MostLetterBytes(std::size_t units);

// True where the settings ask for a fill that is rightly as large as a fuzzer has no time for: from
// a hundred thousand strokes up to what 32 bits can count. Beyond that, for lengths that are no
// numbers and for gaps that are no pitch the library has to refuse, and soon: those are tried.
bool IsLargeLinearFill(const std::string& letters, const BarcodeSettings& settings);
bool IsLargeMatrixFill(std::int32_t rows, std::int32_t columns, const BarcodeSettings& settings);

}  // namespace barhatch::fuzz

#endif
