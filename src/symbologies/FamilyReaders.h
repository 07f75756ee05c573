// The readers behind SymbologyReaders.h, one for each family of symbologies. A reader appends
// values and text to a reading that is empty, and says whether there is a symbol; what it leaves in
// the text of none is thrown away.
#ifndef BARHATCH_SYMBOLOGIES_FAMILYREADERS_H
#define BARHATCH_SYMBOLOGIES_FAMILYREADERS_H

#include <cstddef>
#include <cstdint>

#include "symbologies/Preparation.h"
#include "symbologies/SymbologyReaders.h"

namespace barhatch {

// What a reader is set to.
struct ReaderSetting {
  int variant;        // of the encoder of the family; its header says which symbologies share it
  CheckScheme check;  // whose characters it tests
};

using Reader = bool (*)(const char* letters, std::size_t length, ReaderSetting setting,
                        SymbolReading& reading);

// TwoWidthReaders.cpp: elements that are wide or narrow.
//
// Starts and stops with A to D, which stand nowhere else. A check character modulo 16 is tested and
// reported.
bool ReadCodabar(const char* letters, std::size_t length, ReaderSetting setting,
                 SymbolReading& reading);
// From the start character to the first stop character, whatever stands behind it. A check
// character modulo 43 is tested and reported.
bool ReadCode39(const char* letters, std::size_t length, ReaderSetting setting,
                SymbolReading& reading);
// Full ASCII resolved. A check character is tested and left out.
bool ReadCode39FullAscii(const char* letters, std::size_t length, ReaderSetting setting,
                         SymbolReading& reading);
// Where the setting has no other scheme: C and K where more than ten data characters are left in
// front of them, else C alone.
bool ReadCode11(const char* letters, std::size_t length, ReaderSetting setting,
                SymbolReading& reading);
// A check digit is tested and reported.
bool ReadInterleaved2of5(const char* letters, std::size_t length, ReaderSetting setting,
                         SymbolReading& reading);

// 14 digits, the last of which is the check digit of the others.
bool ReadItf14(const char* letters, std::size_t length, ReaderSetting setting,
               SymbolReading& reading);

// ModuleReaders.cpp: single modules, characters of one size.
//
bool ReadCode93(const char* letters, std::size_t length, ReaderSetting setting,
                SymbolReading& reading);
// The check digits of the setting's scheme; one of modulo 10 where it has no other.
bool ReadMsi(const char* letters, std::size_t length, ReaderSetting setting,
             SymbolReading& reading);

// Code128Reader.cpp
bool ReadCode128(const char* letters, std::size_t length, ReaderSetting setting,
                 SymbolReading& reading);

// EanUpcReader.cpp: the symbol that the variant names, an EanUpcSymbol, with its add-on. UPC-A is
// EAN-13 with a first digit 0, as which it is read for the types of EAN-13.
bool ReadEan13UpcA(const char* letters, std::size_t length, ReaderSetting setting,
                   SymbolReading& reading);
bool ReadEan8(const char* letters, std::size_t length, ReaderSetting setting,
              SymbolReading& reading);
bool ReadUpcE(const char* letters, std::size_t length, ReaderSetting setting,
              SymbolReading& reading);

inline void AddValue(SymbolReading& reading, int value) {
  reading.values[reading.valuesCount++] = static_cast<std::uint8_t>(value);
}

inline void AddText(SymbolReading& reading, int byte) {
  reading.text[reading.textLength++] = static_cast<char>(byte);
}

inline void AddDigit(SymbolReading& reading, int digit) {
  AddValue(reading, digit);
  AddText(reading, '0' + digit);
}

}  // namespace barhatch

#endif
