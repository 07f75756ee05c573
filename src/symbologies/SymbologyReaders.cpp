#include "symbologies/SymbologyReaders.h"

#include "symbologies/SymbologyTable.h"

namespace barhatch {

namespace {

// Far above the longest symbol of any type, and low enough for every check sum.
constexpr std::size_t kMostLetters = std::size_t{1} << 20;

}  // namespace

bool ReadSymbol(std::int32_t symbology, CheckScheme check, const char* letters, std::size_t length,
                SymbolReading& reading) {
  reading.textLength = 0;
  reading.valuesCount = 0;
  const SymbologyRow* const row = RowOf(symbology);
  const bool isRead = row != nullptr && length <= kMostLetters &&
                      row->read(letters, length, {row->drawing.variant, check}, reading);
  if (!isRead) reading.textLength = 0;
  reading.text[reading.textLength] = '\0';
  return isRead;
}

}  // namespace barhatch
