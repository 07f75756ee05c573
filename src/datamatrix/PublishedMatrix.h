// Data Matrix by the book (ISO/IEC 16022, ISO/IEC 21471), the door to it: tokens become the
// smallest symbol of the wanted shape, or the size that is asked for, or a refusal that says how
// many codewords it would take. No deviation of the device is in it.
//
// What the symbol begins with, in front of the text:
//   FNC1 first               a text that begins with FNC1: GS1
//   FNC1 second              a text with FNC1 behind one letter or two digits
//   macro 05, 06             236, 237: ISO/IEC 15434 without its head and tail
//   reader programming       234: not data, but settings of the reader
//   structured append        233, place and number of the symbols, two codewords of identification
#ifndef BARHATCH_DATAMATRIX_PUBLISHEDMATRIX_H
#define BARHATCH_DATAMATRIX_PUBLISHEDMATRIX_H

#include <cstddef>
#include <cstdint>

#include "datamatrix/DataMatrix.h"
#include "datamatrix/PublishedSizes.h"
#include "datamatrix/TokenCosts.h"
#include "job/Memory.h"
#include "job/Refusal.h"
#include "job/Token.h"

namespace barhatch {

enum class MatrixHead : std::uint8_t {
  kNone,
  kMacro05,
  kMacro06,
  kReaderProgramming,
  kStructuredAppend,
};

// One of several symbols that together are a message.
struct StructuredAppend {
  int part = 0;                     // 1..parts
  int parts = 0;                    // 2..16
  std::int32_t identification = 0;  // 0..kLastIdentification, the same in all of them
};
constexpr int kMostParts = 16;
constexpr std::int32_t kLastIdentification = 254 * 254 - 1;

struct PublishedText {
  TokenText text;  // bytes, FNC1, ECI designators; one or more
  MatrixHead head = MatrixHead::kNone;
  StructuredAppend append = {};
  bool hasLooseEnd = false;  // see EndOfData.h
};

// Tokens in front that are written in ASCII, so that FNC1 is the first codeword, or the second
// behind a letter or a pair of digits; 0 where it is neither.
std::size_t LeadOf(const TokenText& text, MatrixHead head);

// The symbol of a text with its quiet zone (modules, kNoQuietZone or kStandardQuietZone). Of `how`
// D-DM-1 is asked for alone: the order of the error codewords in 144 x 144. Refused:
//   kLength              more tokens than kMaxDataMatrixText; figure: the tokens
//   kFnc1Place           FNC1 as the second codeword behind something else than a letter or two
//                        digits, which readers would take for that all the same
//   of sizes             see PublishedSizes.h
//   kOption, kNoMemory   as of EncodeDataMatrix
Refusal EncodePublishedMatrix(const PublishedText& text, const SizeWish& wish, std::int32_t quiet,
                              Conformance& how, const Memory& memory, MatrixSymbol& symbol);

// The size that holds whatever a mask stands for, a text with bytes of a mask in it, and the
// codewords of the longest. Refused likewise.
Refusal SizeOfMask(const PublishedText& mask, const SizeWish& wish, const Memory& memory,
                   SymbolSize& size, int& codewords);

// The symbol of data codewords that the host brings: padding, error correction and placement alone.
// Refused: kLength for more than kMaxDataCodewords; figure: the codewords; and as above.
Refusal DrawCodewords(const std::uint8_t* codewords, std::size_t count, const SizeWish& wish,
                      std::int32_t quiet, Conformance& how, const Memory& memory,
                      MatrixSymbol& symbol);

}  // namespace barhatch

#endif
