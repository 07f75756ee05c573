/* A host for Windows CE as its compilers see it: C90 or C++98, no <stdint.h>, a wide character of
 * 16 bits. */
#include "barhatch.h"

#ifdef INT32_MAX
#error "<stdint.h> is included, which these compilers do not have"
#endif

/* An array of a negative size does not compile. */
typedef char Int32HasFourBytes[sizeof(int32_t) == 4 && (int32_t)-1 < 0 ? 1 : -1];
typedef char Uint8HasOneByte[sizeof(uint8_t) == 1 && (uint8_t)-1 == 255 ? 1 : -1];
typedef char Uint16HasTwoBytes[sizeof(uint16_t) == 2 && (uint16_t)-1 == 65535 ? 1 : -1];

static const BarhatchChar* const kText = L"ABC-123";

int MarkWithOldCompiler(void) {
  LinearBarcodeInfo info = {8.0, 40.0, 1, 0, 0, 0.1, 0, 3.0, 0, 0, 0};
  FillBufferInfo* fill;
  info.DataString = kText;
#ifdef __cplusplus
  SetMatrixsize(kMatrixSize12x12);
#endif
  fill = GenerateLinearBarcode(&info);
  if (fill == NULL) return 1;
  FreeBarcodeData(fill);
  return 0;
}
