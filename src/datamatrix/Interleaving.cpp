#include "datamatrix/Interleaving.h"

#include "datamatrix/ReedSolomon.h"

namespace barhatch {

void AddErrorCorrection(const SymbolSize& size, Conformance& how, std::uint8_t* codewords) {
  const BlockCoder coder(size.errorCodewords / size.blocks);
  const bool isUnequal = size.dataCodewords % size.blocks != 0;
  // Error codewords follow the data of their own block, or the data of all blocks.
  const bool followsOwnData = !isUnequal || how.Deviates(Deviation::kDDM_1);
  for (int block = 0; block < size.blocks; ++block) {
    const int dataOfBlock = (size.dataCodewords - block + size.blocks - 1) / size.blocks;
    const int dataInFront = followsOwnData ? dataOfBlock * size.blocks : size.dataCodewords;
    coder.Encode(codewords + block, dataOfBlock, codewords + block + dataInFront, size.blocks);
  }
}

}  // namespace barhatch
