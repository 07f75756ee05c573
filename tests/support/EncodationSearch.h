// Whether data codewords for a text fit a symbol of so many, found by trying every sequence of
// encodation schemes (ISO/IEC 16022), character by character: slow, plain and without any choice of
// what is better. Shares nothing with the encoder.
#ifndef BARHATCH_TESTS_SUPPORT_ENCODATIONSEARCH_H
#define BARHATCH_TESTS_SUPPORT_ENCODATIONSEARCH_H

#include <vector>

namespace barhatch::test {

enum class LastCodeword {
  kStrict,  // without an unlatch it holds one character of one value in C40, Text or X12
  kLoose    // it holds whatever one codeword of ASCII holds
};

// items: bytes, kReadFnc1 and ReadEci(number) (DataMatrixReader.h).
bool Fits(const std::vector<int>& items, int capacity, LastCodeword last = LastCodeword::kStrict);

// The smallest capacity that they fit.
int LeastCapacity(const std::vector<int>& items, LastCodeword last = LastCodeword::kStrict);

}  // namespace barhatch::test

#endif
