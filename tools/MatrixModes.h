// The encodation modes of a Data Matrix and the look-ahead that chooses between them: one count of
// codewords for each mode, from a position to the end of the text, in double precision as it is
// defined. Quadratic when asked at every character, which a desktop does not mind.
#ifndef BARHATCH_TOOLS_MATRIXMODES_H
#define BARHATCH_TOOLS_MATRIXMODES_H

#include <cstddef>
#include <string>

namespace preview {

enum class MatrixMode { kAscii, kBase256, kEdifact, kText, kX12, kC40 };

// The mode in which the text goes on at the position, when current is in force there. The text is
// made of the low bytes of the units.
MatrixMode LookAhead(const std::string& bytes, std::size_t position, MatrixMode current);

// How many values a byte takes in C40, Text or X12; 0 where X12 lacks it.
std::size_t ValueCount(MatrixMode mode, char byte);

}  // namespace preview

#endif
