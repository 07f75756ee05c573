// Reads the data codewords of a Data Matrix as a standard reader does (ISO/IEC 16022): ASCII, C40,
// Text, X12, EDIFACT and Base 256, extended channel interpretations, FNC1 and macro headers, pads,
// and the ends of a symbol that imply an unlatch: one codeword left in C40, Text and X12, at most
// two left behind a group of EDIFACT. Shares nothing with the encoder.
#ifndef BARHATCH_TESTS_SUPPORT_DATAMATRIXREADER_H
#define BARHATCH_TESTS_SUPPORT_DATAMATRIXREADER_H

#include <string>
#include <vector>

namespace barhatch::test {

// What a reader reports besides bytes (0..255).
constexpr int kReadFnc1 = 1000;
constexpr int kReadMacro05 = 1005;
constexpr int kReadMacro06 = 1006;
constexpr int kReadReaderProgramming = 1234;
constexpr int kReadStructuredAppend = 20000;  // and its three codewords: place, identification
constexpr int ReadStructuredAppend(int place, int first, int second) {
  return kReadStructuredAppend + (place * 256 + first) * 256 + second;
}
constexpr int ReadEci(int number) { return 100000000 + number; }

struct Reading {
  std::vector<int> items;
  // False when the codewords break the standard; the items are those in front of the break.
  // Tolerated, as by common readers, is an unlatch that is the last codeword of the symbol, behind
  // which there is nothing to be in another mode for.
  bool isSound = true;
};

// codewords: all data codewords of the symbol, pads included.
Reading ReadDataCodewords(const std::vector<int>& codewords);

std::vector<int> ItemsOf(const std::string& bytes);

// The codewords with pads up to the capacity: 129, then 129 randomised by position.
std::vector<int> Padded(std::vector<int> codewords, int capacity);

}  // namespace barhatch::test

#endif
