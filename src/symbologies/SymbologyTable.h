// The linear symbologies: one row for each that a host can ask for. A new symbology is a file pair
// with its tables, its encoder and its reader, and a row here.
#ifndef BARHATCH_SYMBOLOGIES_SYMBOLOGYTABLE_H
#define BARHATCH_SYMBOLOGIES_SYMBOLOGYTABLE_H

#include <cstdint>

#include "symbologies/Encoder.h"
#include "symbologies/FamilyReaders.h"
#include "symbologies/Preparation.h"
#include "symbologies/TextRules.h"

namespace barhatch {

// In words for people.
struct SymbologyName {
  const char* name;
  const char* accepts;
  const char* deviceAccepts;  // where that is less; else null
};

// What a text is checked and drawn by.
struct DrawingRow {
  TextRule text;
  Encoder encode;
  std::uint8_t variant;     // of the encoder
  std::uint8_t quietLeft;   // modules that the standard asks for
  std::uint8_t quietRight;  // behind the add-on where there is one
};

struct SymbologyRow {
  SymbologyName name;
  DrawingRow drawing;
  Reader read;
  Prepare prepare;         // of texts by the book; null: they are drawn as they stand
  std::int32_t symbology;  // the number that hosts ask for it by
  ReadingForm reading;     // of the text as it is drawn where nothing prepares it
  CheckSchemes checks;     // that a mark by the book may ask for
};

// Null for a number that names no linear symbology.
const SymbologyRow* RowOf(std::int32_t symbology);

// The drawing half of the rows that the device has. Names, readers and preparations are out of its
// reach, and the linker leaves them out of its DLL.
constexpr std::int32_t kDeviceTypes = 23;
struct DeviceDrawings {
  DrawingRow of[kDeviceTypes];  // the type is the index
};
extern const DeviceDrawings kDeviceDrawings;

}  // namespace barhatch

#endif
