#include "api/Ownership.h"

#include <new>

#include "api/ApiTrace.h"

namespace barhatch {

FillBufferInfo* NewFillBuffer() { return new (std::nothrow) FillBufferInfo{}; }

void ReleaseModuleString(const char* moduleString) { delete[] moduleString; }

}  // namespace barhatch

namespace {

void ReleaseGrid(TwoDStringResult* grid) {
  delete[] grid->data;
  delete grid;
}

}  // namespace

extern "C" {

void FreeBarcodeData(FillBufferInfo* fill) {
  if (fill == nullptr) return;
  barhatch::TraceFreeBarcodeData(*fill);
  delete[] fill->FilledArray;
  delete fill;
}

void Free2DBarcodeStringResult(TwoDStringResult* grid) {
  if (grid == nullptr) return;
  barhatch::TraceFree2DBarcodeStringResult(*grid);
  ReleaseGrid(grid);
}

void FreePdf417BarcodeStringResult(TwoDStringResult* grid) {
  if (grid == nullptr) return;
  barhatch::TraceFreePdf417BarcodeStringResult(*grid);
  ReleaseGrid(grid);
}

}  // extern "C"
