// Numbers as texts of binary digits, most significant digit first: "101" is 5. The packing of C40,
// Text, X12 and EDIFACT values works on integers and does not come through here; the conversion
// remains for callers that hold such a text, with its diagnostic.
#ifndef BARHATCH_DATAMATRIX_BINARYTEXT_H
#define BARHATCH_DATAMATRIX_BINARYTEXT_H

namespace barhatch {

// The value of the digits, 0 for an empty text. At the first character other than '0' and '1' it
// stops, writes a line of diagnosis between two empty lines and the end of its own to standard
// output and returns 0. REQUIRES: at most 31 digits in front of that character or of the NUL.
int BinaryTextToInteger(const char* text);

}  // namespace barhatch

#endif
