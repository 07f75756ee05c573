// The call trace: every export but InitBarcode and TestStruct writes itself as a source-code
// statement to a stream, before its own work, so that a sequence of calls can be read back and
// replayed by hand. Without a stream, which is how the library is loaded, nothing is written and
// nothing changes; no export sets a stream.
//
// The statement texts are fixed: people and tools that read traces know them letter by letter,
// oddities included. SetDataString gives 16-bit text to an 8-bit conversion, FreeBarcodeData an
// address and GenerateDataMatrixBarcode an integer to "%f", and the two stringResult lines lack
// their semicolons.
#ifndef BARHATCH_API_APITRACE_H
#define BARHATCH_API_APITRACE_H

#include <cstdint>
#include <cstdio>

#include "barhatch.h"

namespace barhatch {

// The stream that statements go to; null when there is none. A stream that the loader closed is
// still returned here, but nothing is written to it any more.
std::FILE* ApiTrace();

// For tests and tools. AttachApiTrace takes the stream over; CloseApiTrace flushes and closes it
// and clears the pointer.
void AttachApiTrace(std::FILE* stream);
void CloseApiTrace();

// For the entry point. ForgetApiTrace clears the pointer without touching the stream. EndApiTrace
// flushes and closes the stream and leaves the pointer as it is; a stream is closed once, however
// often the loader calls.
void ForgetApiTrace();
void EndApiTrace();

// One function for each statement, in the order of the header. Null records are not traced; a
// null text shows as (null).
void TraceSetBarcodeType(std::int32_t type);
void TraceSetDataString(const BarhatchChar* text);
void TraceSetModuleWidth(double moduleWidth);
void TraceSetPrintRatio(double ratio);
void TraceSetImageInversionMode(std::uint8_t invert);
void TraceSetHatchPattern(double lineGap, std::int32_t hatchingType);
void TraceSetBarcodeSize(double width, double height);
void TraceSetBarcodeHeight(std::int32_t height);
void TraceSetCodeFormat(std::int32_t format);
void TraceSetMatrixsize(std::int32_t size);
void TraceGenerateBarcodeString();
void TraceHatchBarcodeString(const char* moduleString);
void TraceGenerateVectorizedBarcode();
void TraceGenerateLinearBarcode(const LinearBarcodeInfo* info);
void TraceGenerateDataMatrixBarcode(const DataMatrixBarcodeInfo* info);
void TraceFreeBarcodeData(const FillBufferInfo& fill);
void TraceFree2DBarcodeStringResult(const TwoDStringResult& grid);
void TraceFreePdf417BarcodeStringResult(const TwoDStringResult& grid);

}  // namespace barhatch

#endif
