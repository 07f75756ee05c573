// Data Matrix by the book (ISO/IEC 16022): the fewest data codewords that a text can have.
//
// A place between two tokens is reached in one of fourteen states: ASCII; C40, Text and X12 with
// none, one or two values that wait for their two codewords; EDIFACT with none to three that wait
// for their three. One pass over the text (ShortestPass.h) finds for each place and state the
// fewest codewords that lead there, and among those the fewest changes of the scheme:
//
//   ASCII        a byte below 128, two digits, FNC1: 1 codeword; other bytes 2; an ECI 2 to 4
//   C40, Text    a token of v values (FNC1 has 2): 2 for every three
//   X12          one of its forty characters: 2 for every three
//   EDIFACT      one of 32 to 94: 3 for every four
//   Base 256     a run of bytes, from ASCII to ASCII: 2, from 250 bytes on 3, and one each
//   latch 1; unlatch 1, in EDIFACT with one, two or three that wait 2, 3, 3
//
// Base 256 is an edge between two places in ASCII. Where the cheapest run of up to 249 bytes begins
// is the front of a queue of ascending costs, for longer ones it is a running minimum; tokens that
// are no bytes empty both. The capacity of the symbol has a say at the end alone (EndOfData.h).
//
// Among equals the scheme of the state before is ASCII before C40, Text, X12, EDIFACT and Base 256.
#ifndef BARHATCH_DATAMATRIX_SHORTESTENCODATION_H
#define BARHATCH_DATAMATRIX_SHORTESTENCODATION_H

#include <cstddef>

#include "datamatrix/CodewordBuffer.h"
#include "datamatrix/EndOfData.h"
#include "datamatrix/ShortestPass.h"
#include "job/Memory.h"
#include "job/Token.h"

namespace barhatch {

class ShortestEncodation {
 public:
  // text    bytes, FNC1, ECI designators and bytes of a mask; at most kMostTokens
  // places  room for one more, which the object takes to itself
  // lead    tokens in front that are written in ASCII whatever that costs
  // header  codewords in front of the text
  // The tokens outlive the object. Takes time in proportion to the text.
  ShortestEncodation(const TokenText& text, std::size_t lead, int header, bool isLooseEnd,
                     Place* places);

  // The fewest codewords, those in front included.
  int LeastCodewords() const { return ends_.LeastCodewords(); }

  // Appends the codewords for a symbol of that capacity: the fewest, then the fewest changes of the
  // scheme. REQUIRES: capacity >= LeastCodewords(), no bytes of a mask in the text.
  void Write(int capacity, CodewordBuffer& codewords);

 private:
  void Trace(const End& end);
  State StepBack(State state, std::size_t& place) const;
  void Keep(Scheme scheme, std::size_t begin, std::size_t end);

  const TokenText text_;
  const std::size_t lead_;
  Place* const places_;
  const ShortestPass pass_;
  const EndsOfData ends_;
};

}  // namespace barhatch

#endif
