#include "datamatrix/Interleaving.h"

#include "datamatrix/ReedSolomon.h"

namespace barhatch {

void AddErrorCorrection(const SymbolSize& size, std::uint8_t* codewords) {
  const BlockCoder coder(size.errorCodewords / size.blocks);
  for (int block = 0; block < size.blocks; ++block) {
    // D-DM-1: a block's error codewords follow its own data, also where blocks differ in length.
    const int dataOfBlock = (size.dataCodewords - block + size.blocks - 1) / size.blocks;
    coder.Encode(codewords + block, dataOfBlock, size.blocks);
  }
}

}  // namespace barhatch
