/* A host for Windows CE as its compilers see it: C90 or C++98, no <stdint.h>, a wide character of
 * 16 bits. */
#include <string.h>

#include "barhatch_mark.h"

#ifdef INT32_MAX
#error "<stdint.h> is included, which these compilers do not have"
#endif

/* An array of a negative size does not compile. */
typedef char Int32HasFourBytes[sizeof(int32_t) == 4 && (int32_t)-1 < 0 ? 1 : -1];
typedef char Uint8HasOneByte[sizeof(uint8_t) == 1 && (uint8_t)-1 == 255 ? 1 : -1];
typedef char Uint16HasTwoBytes[sizeof(uint16_t) == 2 && (uint16_t)-1 == 65535 ? 1 : -1];
typedef char Uint32HasFourBytes[sizeof(uint32_t) == 4 && (uint32_t)-1 > 0 ? 1 : -1];
typedef char Uint64HasEightBytes[sizeof(uint64_t) == 8 && (uint64_t)-1 > 0 ? 1 : -1];

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

int MarkJobWithOldCompiler(void) {
  BarhatchJob job;
  BarhatchResult result;
  int32_t status;
  memset(&job, 0, sizeof job);
  memset(&result, 0, sizeof result);
  job.size = sizeof job;
  result.size = sizeof result;
  job.symbology = BARHATCH_CODE_39;
  job.conformance = BARHATCH_DEVICE;
  job.input = BARHATCH_UNITS;
  job.text = kText;
  job.width = 40.0;
  job.height = 8.0;
  job.gap = 0.1;
  status = BarhatchMark(&job, &result);
  BarhatchRelease(&result);
  return (int)status;
}
