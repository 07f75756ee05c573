// The codewords of one Data Matrix: data codewords are appended one after the other, error
// correction is written behind them in place. "123456" in ASCII encodation is 142 164 186.
//
// What the chosen symbol holds beyond them is filled with pads: 129 first, the others 129 under the
// standard's 253-state randomising by position, as in 66 129 70 ("A" in 10 x 10).
//
// Nothing is ever written past the limit of 1558 data codewords: the append that would do so only
// sets the count to 1559, which is how every stage sees that the text does not fit any symbol.
#ifndef BARHATCH_DATAMATRIX_CODEWORDBUFFER_H
#define BARHATCH_DATAMATRIX_CODEWORDBUFFER_H

#include <cstdint>

#include "datamatrix/SymbolSizes.h"

namespace barhatch {

class CodewordBuffer {
 public:
  // codeword: 0..255. Writes nothing when the limit has been reached.
  void Append(int codeword);

  // Fills the positions from Count() up to the symbol's data capacity with pads. They do not count.
  // REQUIRES: !HasOverflowed() and dataCodewords <= kMaxDataCodewords.
  void PadTo(int dataCodewords);

  // Data codewords appended so far, 0..1558, or 1559 once the limit has been exceeded.
  int Count() const { return count_; }
  bool HasOverflowed() const { return count_ > kMaxDataCodewords; }

  // position: 0..2177. Positions that no stage has written are 0.
  int operator[](int position) const { return codewords_[position]; }

  // All kMaxCodewords bytes, for error correction, which does not count either.
  std::uint8_t* data() { return codewords_; }
  const std::uint8_t* data() const { return codewords_; }

 private:
  int count_ = 0;
  std::uint8_t codewords_[kMaxCodewords] = {};
};

}  // namespace barhatch

#endif
