#include "api/DataMatrixEncoder.h"

#include <cstddef>
#include <new>

#include "api/BarcodeSettings.h"

namespace barhatch {

namespace {

std::size_t LengthOf(const char16_t* text) {
  std::size_t length = 0;
  while (text[length] != u'\0') ++length;
  return length;
}

// By code format.
constexpr Header kHeaders[] = {Header::kNone, Header::kFnc1Second, Header::kMacro05,
                               Header::kMacro06};

Header HeaderOf(std::int32_t format) {
  return format >= 0 && format <= 3 ? kHeaders[format] : Header::kNone;
}

MatrixJob JobOf(const BarcodeSettings& settings) {
  MatrixJob job{};
  job.text = {settings.DataString, LengthOf(settings.DataString)};
  job.quietModules = settings.QuietZone != 0 ? kStandardQuietZone : kNoQuietZone;
  job.size = RequestFromMatrixSize(settings.MatrixSize, settings.IsExpanding);
  job.header = HeaderOf(settings.format);
  return job;
}

// A record of zeros. Null when there is no memory.
TwoDStringResult* NewRecord() { return new (std::nothrow) TwoDStringResult{0, 0, nullptr}; }

// The letters go over to the record.
TwoDStringResult* NewRecordOf(MatrixSymbol& symbol) {
  char* const letters = symbol.letters;
  symbol.letters = nullptr;
  TwoDStringResult* const record = NewRecord();
  if (record == nullptr) {
    RuntimeMemory().Release(letters);
    return nullptr;
  }
  *record = {symbol.rows, symbol.columns, letters};
  return record;
}

}  // namespace

SizeRequest RequestFromMatrixSize(std::int32_t matrixSize, std::int32_t isExpanding) {
  const std::uint32_t bits = static_cast<std::uint32_t>(matrixSize);
  return {static_cast<int>(bits >> 8 & 0xFF), static_cast<int>(bits & 0xFF), isExpanding};
}

TwoDStringResult* DataMatrixEncoder::EncodeDataMatrix() {
  const BarcodeSettings& settings = CurrentSettings();
  if (settings.DataStringRefused) return NewRecord();
  Conformance how = Conformance::Device();
  const Refusal refusal =
      barhatch::EncodeDataMatrix(JobOf(settings), how, RuntimeMemory(), symbol_);
  if (refusal.reason == Reason::kNoMemory) return nullptr;
  return refusal.IsRefused() ? NewRecord() : NewRecordOf(symbol_);
}

}  // namespace barhatch
