#include "api/Ownership.h"

#include <new>

#include "api/ApiTrace.h"

namespace barhatch {

FillBufferInfo* NewFillBuffer() { return new (std::nothrow) FillBufferInfo{}; }

void ReleaseModuleString(const char* moduleString) { delete[] moduleString; }

}  // namespace barhatch

extern "C" void FreeBarcodeData(FillBufferInfo* fill) {
  if (fill == nullptr) return;
  barhatch::TraceFreeBarcodeData(fill);
  delete[] fill->FilledArray;
  delete fill;
}
