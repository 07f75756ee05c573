// How a text may end in a Data Matrix (ISO/IEC 16022), by the capacity of the symbol in codewords;
// w is what the state costs (ShortestPass.h), header included, and nothing waits in it:
//
//   end         state           capacity          writes behind the state
//   ASCII       ASCII           w and more        pads
//   (a)         C40 Text X12    w                 nothing: the symbol is full
//   EDIFACT     EDIFACT         w + a to w + 2    the last a codewords, 0 to 2, in ASCII, without
//   an
//                                                 unlatch
//   Base 256    a run of n      w + 2 + n         the length 0, which reaches to the end
//               bytes, n > 249
//   loose (d)   C40 Text X12    w + 1             one codeword of ASCII, without an unlatch
//
// Two ends of the standard are not here, as they save nothing: (b), two values and a pad value, and
// (d) where it leaves one character of one value to ASCII. The same number of codewords comes of
// moving characters at the front of the stretch, which waste as much, into the ASCII before it:
// then the last triple is whole and the end is (a). Of characters of 1, 2, 3 and 4 values ASCII
// takes 1, 1, 2 and 2 codewords, triples two thirds of a codeword a value; so the shortest front
// that leaves whole triples costs one third more than in triples for (d), two thirds for (b): the
// pad. (c) is the end in ASCII.
//
// What readers take beyond the standard is the loose end: a last codeword, without an unlatch, of a
// character that would be shifted, or of two digits. That saves one.
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
  void AddLooseEnd(State state, std::size_t position);
  void Add(State state, std::size_t position, Cost cost, int spare);

  bool HasPlaces(std::size_t tokens) const { return text_.length >= lead_ + tokens; }

  const TokenText& text_;
  const std::size_t lead_;
  const ShortestPass& pass_;

  // ASCII; of C40, Text and X12 (a) and two that are loose; EDIFACT; Base 256.
  static constexpr int kMostEnds = 1 + 3 * 3 + 5 + 1;
  End ends_[kMostEnds];
  int count_ = 0;
};

}  // namespace barhatch

#endif
