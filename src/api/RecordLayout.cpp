// The records are an interface between binaries: hosts on the device were built against these
// offsets. They are checked where they are real, on a 32-bit platform that aligns doubles to 8
// bytes; elsewhere pointers have another size.
#include <stddef.h>

#include "barhatch.h"

namespace {

constexpr bool kIsTheDevice = sizeof(void*) == 4 && alignof(double) == 8;

constexpr bool LiesAt(size_t offset, size_t expected) {
  return !kIsTheDevice || offset == expected;
}
constexpr bool Occupies(size_t size, size_t expected) { return !kIsTheDevice || size == expected; }

static_assert(sizeof(BarhatchChar) == 2, "text is made of 16-bit units");

static_assert(LiesAt(offsetof(LinearBarcodeInfo, height), 0), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, width), 8), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, type), 16), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, DataString), 20), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, HatchingType), 24), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, LineGap), 32), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, InvertImage), 40), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, PrintRatio), 48), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, QuietZone), 56), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, QuietZoneSize), 60), "");
static_assert(LiesAt(offsetof(LinearBarcodeInfo, BorderWidth), 64), "");
static_assert(Occupies(sizeof(LinearBarcodeInfo), 72), "");

static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, height), 0), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, format), 8), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, DataString), 12), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, HatchingType), 16), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, LineGap), 24), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, InvertImage), 32), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, MatrixSize), 36), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, IsExpanding), 40), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, QuietZone), 41), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, QuietZoneSize), 44), "");
static_assert(LiesAt(offsetof(DataMatrixBarcodeInfo, BorderWidth), 48), "");
static_assert(Occupies(sizeof(DataMatrixBarcodeInfo), 56), "");

static_assert(LiesAt(offsetof(TwoDStringResult, numrows), 0), "");
static_assert(LiesAt(offsetof(TwoDStringResult, numcols), 4), "");
static_assert(LiesAt(offsetof(TwoDStringResult, data), 8), "");
static_assert(Occupies(sizeof(TwoDStringResult), 12), "");

static_assert(LiesAt(offsetof(FillBufferInfo, FillingShapeType), 0), "");
static_assert(LiesAt(offsetof(FillBufferInfo, BufferLength), 4), "");
static_assert(LiesAt(offsetof(FillBufferInfo, FilledArray), 8), "");
static_assert(LiesAt(offsetof(FillBufferInfo, FillHeight), 16), "");
static_assert(LiesAt(offsetof(FillBufferInfo, FillWidth), 24), "");
static_assert(Occupies(sizeof(FillBufferInfo), 32), "");

}  // namespace
