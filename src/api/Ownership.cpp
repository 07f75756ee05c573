#include "api/Ownership.h"

#include <new>

namespace barhatch {

FillBufferInfo* NewFillBuffer() { return new (std::nothrow) FillBufferInfo{}; }

void ReleaseModuleString(const char* moduleString) { delete[] moduleString; }

}  // namespace barhatch

extern "C" void FreeBarcodeData(FillBufferInfo* fill) {
  if (fill == nullptr) return;
  delete[] fill->FilledArray;
  delete fill;
}
