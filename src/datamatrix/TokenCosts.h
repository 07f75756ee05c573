// What one token of a text takes in each encodation scheme (ISO/IEC 16022), by the book: codewords
// in ASCII, values in C40, Text and X12, a place in EDIFACT and Base 256 or none.
#ifndef BARHATCH_DATAMATRIX_TOKENCOSTS_H
#define BARHATCH_DATAMATRIX_TOKENCOSTS_H

#include "datamatrix/C40Sets.h"
#include "job/Token.h"

namespace barhatch {

// Of a mask: a byte that is not known yet. It takes what the dearest byte takes, and stands where
// all bytes take the same.
constexpr Token kAnyByteToken = 0x110010;

// What Base 256 takes: one codeword each.
constexpr bool IsByteToken(Token token) { return IsByte(token) || token == kAnyByteToken; }

// ISO/IEC 16022, codewords of an ECI designator behind the first, 241.
constexpr std::int32_t kMostShortEci = 126;
constexpr std::int32_t kMostMiddleEci = 16382;
constexpr int EciCodewords(std::int32_t number) {
  return number <= kMostShortEci ? 1 : number <= kMostMiddleEci ? 2 : 3;
}

// Alone, not as half of a pair of digits.
constexpr int AsciiCodewordsOf(Token token) {
  if (IsEci(token)) return 1 + EciCodewords(EciNumber(token));
  if (token == kFnc1Token) return 1;
  return token < 128 ? 1 : 2;
}

constexpr int kShift2Fnc1 = 27;

// 0 for what the set lacks.
constexpr int TripleValuesOf(CharacterSet set, Token token) {
  if (IsByte(token)) return ValueCountOf(set, static_cast<int>(token));
  return token == kFnc1Token && set != CharacterSet::kX12 ? 2 : 0;
}

constexpr bool IsEdifactToken(Token token) { return token >= 32 && token <= 94; }

}  // namespace barhatch

#endif
