#include "datamatrix/BinaryText.h"

#include <cstdio>

namespace barhatch {

int BinaryTextToInteger(const char* text) {
  unsigned value = 0;
  for (; *text != '\0'; ++text) {
    if (*text != '0' && *text != '1') {
      std::puts("\n\n ERROR! BINARY has only 1 and 0!");  // puts ends the line
      return 0;
    }
    value = value << 1 | (*text == '1' ? 1u : 0u);
  }
  return static_cast<int>(value);
}

}  // namespace barhatch
