// What the plain readers of the tests have to get from a linear symbol, where the published
// standard and the register of deviations leave one answer.
#ifndef BARHATCH_FUZZ_LINEARREADINGS_H
#define BARHATCH_FUZZ_LINEARREADINGS_H

#include <cstdint>
#include <string>

namespace barhatch::fuzz {

// letters: the symbol of the text without quiet zones, not empty. text: as it is narrowed.
void DemandReading(std::int32_t type, const std::string& text, const std::string& letters);

}  // namespace barhatch::fuzz

#endif
