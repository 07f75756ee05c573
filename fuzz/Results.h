// What every result of the library is held to, whatever went in.
#ifndef BARHATCH_FUZZ_RESULTS_H
#define BARHATCH_FUZZ_RESULTS_H

#include <cstddef>
#include <string>

#include "api/BarcodeSettings.h"
#include "barhatch.h"

namespace barhatch::fuzz {

// Null, or a record whose numbers fit together and whose memory can be read to the last double.
void DemandSoundFill(const FillBufferInfo* fill);

// Null, or a string of the four letters that is not empty.
void DemandSoundLetters(const char* letters);

std::size_t BytesOf(const FillBufferInfo* fill);

// True where the settings ask for a fill that is rightly as large as a fuzzer has no time for: from
// some hundred thousand strokes up to what 32 bits can count. Beyond that, and for lengths that are
// no numbers, the library has to refuse, and soon: those are tried.
bool IsLargeLinearFill(const std::string& letters, const BarcodeSettings& settings);
bool IsLargeMatrixFill(const DataMatrixBarcodeInfo& info);

}  // namespace barhatch::fuzz

#endif
