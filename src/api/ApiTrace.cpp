#include "api/ApiTrace.h"

#include <cstring>

namespace barhatch {

namespace {

std::FILE* traceStream = nullptr;
bool traceEnded = false;  // the loader closed the stream; the pointer stays, as it always has

constexpr const char* kNullText = "(null)";

// The double whose low word is the given one and whose high word is 0: what a "%f" makes of an
// integer that stands where the double should be.
double DoubleOfLowWord(std::uint32_t word) {
  const std::uint64_t bits = word;
  double value = 0.0;
  static_assert(sizeof value == sizeof bits, "IEEE double");
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

constexpr std::uint32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// The code point that begins at *text, which moves to its last unit; a lone surrogate gives U+FFFD.
std::uint32_t CodePointAt(const BarhatchChar*& text) {
  const std::uint32_t unit = static_cast<std::uint16_t>(text[0]);
  if (IsHighSurrogate(unit) && IsLowSurrogate(static_cast<std::uint16_t>(text[1]))) {
    ++text;
    return 0x10000 + ((unit & 0x3FF) << 10) + (static_cast<std::uint16_t>(text[0]) & 0x3FF);
  }
  return IsHighSurrogate(unit) || IsLowSurrogate(unit) ? kReplacement : unit;
}

struct Utf8Character {
  char bytes[5];
};

Utf8Character ToUtf8(std::uint32_t point) {
  const auto last = [&](int shift) { return static_cast<char>(0x80 | (point >> shift & 0x3F)); };
  const auto first = [&](std::uint32_t mark, int shift) {
    return static_cast<char>(mark | point >> shift);
  };
  if (point < 0x80) return {{static_cast<char>(point), 0}};
  if (point < 0x800) return {{first(0xC0, 6), last(0), 0}};
  if (point < 0x10000) return {{first(0xE0, 12), last(6), last(0), 0}};
  return {{first(0xF0, 18), last(12), last(6), last(0), 0}};
}

// One call's statements: written piece by piece and flushed at the end, or nothing at all without a
// stream. No piece has more than one argument: a double right behind the format is passed alike
// under all conventions of the device.
class Statements {
 public:
  Statements() : stream_(traceEnded ? nullptr : traceStream) {}
  ~Statements() {
    if (stream_ != nullptr) std::fflush(stream_);
  }
  Statements(const Statements&) = delete;
  Statements& operator=(const Statements&) = delete;

  bool AreWanted() const { return stream_ != nullptr; }

  void Write(const char* text) { Write("%s", text); }

  void Write(const char* format, const char* text) {
    if (AreWanted()) std::fprintf(stream_, format, text != nullptr ? text : kNullText);
  }

  void Write(const char* format, std::int32_t value) {
    if (AreWanted()) std::fprintf(stream_, format, static_cast<int>(value));
  }

  void Write(const char* format, double value) {
    if (AreWanted()) std::fprintf(stream_, format, value);
  }

  // 16-bit text. Wide characters of 16 bits are the runtime's business; elsewhere the text is
  // written as UTF-8.
  void WriteWide(const BarhatchChar* text) {
    if (!AreWanted()) return;
    if (text == nullptr) {
      Write(kNullText);
      // cppcheck-suppress duplicateExpression ; equal on some platforms alone
    } else if constexpr (sizeof(wchar_t) == sizeof(BarhatchChar)) {
      std::fprintf(stream_, "%ls", static_cast<const wchar_t*>(static_cast<const void*>(text)));
    } else {
      for (; *text != 0; ++text) Write(ToUtf8(CodePointAt(text)).bytes);
    }
  }

 private:
  std::FILE* stream_;
};

void WriteGrid(const TwoDStringResult& grid, const char* release) {
  Statements out;
  out.Write("TwoDStringResult* stringResult;\n");
  out.Write("stringResult->numrows = %d\n", grid.numrows);
  out.Write("stringResult->numcols = %d\n", grid.numcols);
  out.Write(release);
  out.Write("(%d,", grid.numcols);
  out.Write("%d);\n", grid.numrows);
}

}  // namespace

std::FILE* ApiTrace() { return traceStream; }

void AttachApiTrace(std::FILE* stream) {
  traceStream = stream;
  traceEnded = false;
}

void CloseApiTrace() {
  EndApiTrace();
  ForgetApiTrace();
}

void ForgetApiTrace() { AttachApiTrace(nullptr); }

void EndApiTrace() {
  if (traceStream == nullptr || traceEnded) return;
  std::fflush(traceStream);
  std::fclose(traceStream);
  traceEnded = true;
}

void TraceSetBarcodeType(std::int32_t type) { Statements().Write("SetBarcodeType(%d);\n", type); }

void TraceSetDataString(const BarhatchChar* text) {
  // The 16-bit text is shown by an 8-bit conversion: its bytes in memory order up to the first zero
  // byte, which for ASCII is the first character alone.
  Statements().Write("SetDataString(%s);\n", reinterpret_cast<const char*>(text));
}

void TraceSetModuleWidth(double moduleWidth) {
  Statements().Write("SetModuleWidth(%ff);\n", moduleWidth);
}

void TraceSetPrintRatio(double ratio) { Statements().Write("SetPrintRatio(%ff);\n", ratio); }

void TraceSetImageInversionMode(std::uint8_t invert) {
  Statements().Write("SetImageInversionMode(%d);\n", std::int32_t{invert});
}

void TraceSetHatchPattern(double lineGap, std::int32_t hatchingType) {
  Statements out;
  out.Write("SetHatchPattern(%ff,", lineGap);
  out.Write("%d);\n", hatchingType);
}

void TraceSetBarcodeSize(double width, double height) {
  Statements out;
  out.Write("SetBarcodeSize(%ff,", width);
  out.Write("%ff);\n", height);
}

void TraceSetBarcodeHeight(std::int32_t height) {
  Statements().Write("SetBarcodeHeight(%d);\n", height);
}

void TraceSetCodeFormat(std::int32_t format) { Statements().Write("SetCodeFormat(%d);\n", format); }

void TraceSetMatrixsize(std::int32_t size) { Statements().Write("SetMatrixsize(%d);\n", size); }

void TraceGenerateBarcodeString() { Statements().Write("GenerateBarcodeString();\n"); }

void TraceHatchBarcodeString(const char* moduleString) {
  Statements().Write("HatchBarcodeString(%s);\n", moduleString);
}

void TraceGenerateVectorizedBarcode() { Statements().Write("GenerateVectorizedBarcode();\n"); }

void TraceGenerateLinearBarcode(const LinearBarcodeInfo* info) {
  if (info == nullptr) return;
  Statements out;
  out.Write("\n\n");
  out.Write("LinearBarcodeInfo* lBarInfo = new LinearBarcodeInfo();\n");
  out.Write("lBarInfo->DataString = ");
  out.WriteWide(info->DataString);
  out.Write(";\n");
  out.Write("lBarInfo->height = %ff;\n", info->height);
  out.Write("lBarInfo->width = %ff;\n", info->width);
  out.Write("lBarInfo->type = %d;\n", info->type);
  out.Write("lBarInfo->HatchingType = %d;\n", info->HatchingType);
  out.Write("lBarInfo->LineGap = %ff;\n", info->LineGap);
  out.Write("lBarInfo->InvertImage = %d;\n", std::int32_t{info->InvertImage});
  out.Write("lBarInfo->PrintRatio = %ff;\n", info->PrintRatio);
  out.Write("lBarInfo->QuietZone = %d;\n", std::int32_t{info->QuietZone});
  out.Write("lBarInfo->QuietZoneSize = %d;\n", info->QuietZoneSize);
  out.Write("lBarInfo->BorderWidth = %d;\n", info->BorderWidth);
  out.Write("GenerateLinearBarcode(lBarInfo);\n");
  out.Write("\n\n");
}

void TraceGenerateDataMatrixBarcode(const DataMatrixBarcodeInfo* info) {
  if (info == nullptr) return;
  Statements out;
  out.Write("\n\n");
  out.Write("DataMatrixBarcodeInfo* dmBarInfo = new DataMatrixBarcodeInfo();\n");
  out.Write("dmBarInfo->DataString = ");
  out.WriteWide(info->DataString);
  out.Write(";\n");
  out.Write("dmBarInfo->height = %ff;\n", info->height);
  out.Write("dmBarInfo->format = %ff;\n",
            DoubleOfLowWord(static_cast<std::uint32_t>(info->format)));
  out.Write("dmBarInfo->HatchingType = %d;\n", info->HatchingType);
  out.Write("dmBarInfo->LineGap = %ff;\n", info->LineGap);
  out.Write("dmBarInfo->InvertImage = %d;\n", std::int32_t{info->InvertImage});
  out.Write("dmBarInfo->MatrixSize = %d;\n", info->MatrixSize);
  out.Write("dmBarInfo->IsExpanding = %d;\n", std::int32_t{info->IsExpanding});
  out.Write("dmBarInfo->QuietZone = %d;\n", std::int32_t{info->QuietZone});
  out.Write("dmBarInfo->QuietZoneSize = %d;\n", info->QuietZoneSize);
  out.Write("dmBarInfo->BorderWidth = %d;\n", info->BorderWidth);
  out.Write("GenerateDataMatrixBarcode(dmBarInfo);\n");
  out.Write("\n\n");
}

void TraceFreeBarcodeData(const FillBufferInfo& fill) {
  Statements out;
  out.Write("FillBufferInfo* barcodeInfo;\n");
  out.Write("barcodeInfo->FillingShapeType = %d;\n", fill.FillingShapeType);
  out.Write("barcodeInfo->BufferLength = %d;\n", fill.BufferLength);
  // The address of the array stands where a double should be; the number carries no meaning.
  const auto address = reinterpret_cast<std::uintptr_t>(fill.FilledArray);
  out.Write("barcodeInfo->FilledArray = %f;\n",
            DoubleOfLowWord(static_cast<std::uint32_t>(address)));
  out.Write("FreeBarcodeData(barcodeInfo);\n");
}

void TraceFree2DBarcodeStringResult(const TwoDStringResult& grid) {
  WriteGrid(grid, "Free2DBarcodeStringResult");
}

void TraceFreePdf417BarcodeStringResult(const TwoDStringResult& grid) {
  WriteGrid(grid, "FreePdf417BarcodeStringResult");
}

}  // namespace barhatch
