#include "datamatrix/CodewordBuffer.h"

#include <cassert>

namespace barhatch {

void CodewordBuffer::Append(int codeword) {
  assert(codeword >= 0 && codeword <= 255);
  if (count_ < kMaxDataCodewords) codewords_[count_] = static_cast<std::uint8_t>(codeword);
  if (count_ <= kMaxDataCodewords) ++count_;
}

}  // namespace barhatch
