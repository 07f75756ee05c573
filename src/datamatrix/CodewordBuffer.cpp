#include "datamatrix/CodewordBuffer.h"

#include <cassert>

namespace barhatch {

namespace {

constexpr int kPad = 129;

// position: that of the codeword in the symbol, from 1.
constexpr int RandomisedPad(int position) {
  const int value = kPad + 149 * position % 253 + 1;
  return value <= 254 ? value : value - 254;
}

}  // namespace

void CodewordBuffer::Append(int codeword) {
  assert(codeword >= 0 && codeword <= 255);
  if (count_ < kMaxDataCodewords) codewords_[count_] = static_cast<std::uint8_t>(codeword);
  if (count_ <= kMaxDataCodewords) ++count_;
}

void CodewordBuffer::PadTo(int dataCodewords) {
  assert(count_ <= kMaxDataCodewords && dataCodewords <= kMaxDataCodewords);
  if (count_ < dataCodewords) codewords_[count_] = kPad;
  for (int index = count_ + 1; index < dataCodewords; ++index)
    codewords_[index] = static_cast<std::uint8_t>(RandomisedPad(index + 1));
}

}  // namespace barhatch
