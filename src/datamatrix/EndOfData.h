// How a text may end in a Data Matrix (ISO/IEC 16022), by the capacity of the symbol in codewords;
// w is what the state costs (ShortestPass.h), header included:
//
//   end         state               capacity      writes behind the state
//   ASCII       ASCII               w and more    pads
//   (a)         C40 Text X12, none  w             nothing: the symbol is full
//               waits
//   (b)         C40 Text, two wait  w + 2         the two and a pad value of 0
//   (d)         C40 Text X12, none  w + 1         the last character in ASCII, without an unlatch
//               waits
//   EDIFACT     none waits          w + a to      the last a codewords, 0 to 2, in ASCII, without
//                                   w + 2         an unlatch
//   Base 256    a run of n bytes,   w + 2 + n     the length 0, which reaches to the end
//               250 and more
//
// (c) of the standard, an unlatch and ASCII, is the end in ASCII. For (d) the standard asks for a
// character of one value; readers take whatever one codeword of ASCII holds, and so does a loose
// end: a character that would be shifted, a pair of digits.
//
// What has an end in one capacity has one in every larger one, as an unlatch costs one codeword
// more than none. So the fewest codewords decide the size, and the size decides the end.
#ifndef BARHATCH_DATAMATRIX_ENDOFDATA_H
#define BARHATCH_DATAMATRIX_ENDOFDATA_H

#include <cstddef>
#include <cstdint>

#include "datamatrix/ShortestPass.h"

namespace barhatch {

struct End {
  Cost cost;                   // of the whole text
  std::uint16_t mostCapacity;  // of a symbol that it is allowed in
  std::uint16_t position;      // of the last state; the tokens behind it are written in ASCII
  State state;
};

class EndsOfData {
 public:
  // REQUIRES: a text that is longer than the lead of the pass, or as long.
  EndsOfData(const TokenText& text, std::size_t lead, const ShortestPass& pass, bool isLoose);

  // The fewest codewords that a capacity must have.
  int LeastCodewords() const;

  // The end with the fewest codewords, then the fewest changes, then the first scheme. REQUIRES: a
  // capacity of LeastCodewords() and more.
  const End& For(int capacity) const;

 private:
  void AddTripleEnds(Scheme scheme, bool isLoose);
  void AddEdifactEnds();
  void AddRest(State state, std::size_t position);
  void Add(State state, std::size_t position, Cost cost, int spare);

  bool IsOneValue(Scheme scheme) const;
  bool HasPlaces(std::size_t tokens) const { return text_.length >= lead_ + tokens; }

  const TokenText& text_;
  const std::size_t lead_;
  const ShortestPass& pass_;

  // ASCII 1; C40 and Text (a), (b) and two of (d); X12 without (b); EDIFACT 5; Base 256 1.
  static constexpr int kMostEnds = 1 + 4 + 4 + 3 + 5 + 1;
  End ends_[kMostEnds];
  int count_ = 0;
};

}  // namespace barhatch

#endif
