// Exact instruction counts of calls on the device, the arithmetic of doubles included; they are the
// speed of the library where it lives. The same build gives the same counts always.
#ifndef BARHATCH_TESTS_DEVICE_INSTRUCTIONCOUNTS_H
#define BARHATCH_TESTS_DEVICE_INSTRUCTIONCOUNTS_H

#include <cstdint>
#include <string>
#include <vector>

#include "device/DeviceLibrary.h"

namespace barhatch::device {

struct InstructionCount {
  std::string name;  // one word, as in instruction-budgets.txt
  double instructions;
};

// "string/<type>": GenerateBarcodeString for the type's typical text.
// "stroke/<pattern>": what one more stroke costs, from fills of two sizes; pattern 6: one point.
// "matrix/<text>": GenerateDataMatrixBarcode for the smallest square that holds the text,
// pattern 6. "fill/<type>": GenerateLinearBarcode, typical text, pattern 0 with ten lines.
std::vector<InstructionCount> CountInstructions(DeviceLibrary& device);

// Instructions of GenerateBarcodeString, or 0 when the text is refused.
std::uint64_t CountString(DeviceLibrary& device, std::int32_t type, const std::string& text);

std::uint64_t CountMatrix(DeviceLibrary& device, const std::u16string& text);

// A fill of the Code 39 symbol "A" in the pattern, about `lines` strokes high (or wide) each bar.
struct FillCount {
  std::uint64_t instructions;
  std::uint32_t strokes;
};
FillCount CountFill(DeviceLibrary& device, std::int32_t pattern, double lines);

}  // namespace barhatch::device

#endif
