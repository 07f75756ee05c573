#include "symbologies/SymbologyReaders.h"

#include "symbologies/FamilyReaders.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {

namespace {

// The type is the index; the variant is that of its encoder.
constexpr Reader kReaders[] = {
    ReadCodabar,          // 0
    ReadCode39,           // 1
    ReadCode93,           // 2
    ReadEan13UpcA,        // 3
    ReadMsi,              // 4
    ReadCode128,          // 5
    ReadCode128,          // 6
    ReadCode128,          // 7
    ReadCode128,          // 8
    ReadEan13UpcA,        // 9
    ReadUpcE,             // 10
    ReadCode11,           // 11
    ReadEan8,             // 12
    ReadEan13UpcA,        // 13
    ReadEan13UpcA,        // 14
    ReadEan13UpcA,        // 15
    ReadEan13UpcA,        // 16
    ReadEan8,             // 17
    ReadEan8,             // 18
    ReadUpcE,             // 19
    ReadUpcE,             // 20
    ReadInterleaved2of5,  // 21
    ReadCode93,           // 22
};
static_assert(sizeof(kReaders) / sizeof(kReaders[0]) == kSymbologyCount, "one for each type");

// Far above the longest symbol of any type, and low enough for every check sum.
constexpr std::size_t kMostLetters = std::size_t{1} << 20;

}  // namespace

bool ReadSymbol(std::int32_t symbology, const char* letters, std::size_t length,
                SymbolReading& reading) {
  reading.textLength = 0;
  reading.valuesCount = 0;
  const bool isType = symbology >= 0 && symbology < kSymbologyCount;
  const bool isRead =
      isType && length <= kMostLetters &&
      kReaders[symbology](letters, length, kSymbologies[symbology].variant, reading);
  if (!isRead) reading.textLength = 0;
  reading.text[reading.textLength] = '\0';
  return isRead;
}

}  // namespace barhatch
