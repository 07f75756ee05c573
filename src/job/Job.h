// One mark, described by values: what the rooms below the doors are asked for. Nothing here reads
// settings or records; whoever opens a door fills it in.
#ifndef BARHATCH_JOB_JOB_H
#define BARHATCH_JOB_JOB_H

#include <cstddef>
#include <cstdint>

#include "job/Deviations.h"

namespace barhatch {

// Text in 16-bit units, as hosts of the device give it; the length is measured once. There need not
// be a zero behind it.
struct TextUnits {
  const char16_t* units;
  std::size_t length;
};

// Text of a linear symbol, one byte a character; a NUL stands behind it.
struct Characters {
  const char* text;
  std::size_t length;
};

// Light modules that a symbol gets on its sides. 1 and more: so many on each side.
constexpr std::int32_t kNoQuietZone = -1;
constexpr std::int32_t kStandardQuietZone = 0;  // those that the symbology asks for

// How many they are on a side where the standard asks for so many.
constexpr int QuietZoneOf(std::int32_t asked, int standard) {
  if (asked < 0) return 0;
  return asked == kStandardQuietZone ? standard : asked;
}

// Size of a Data Matrix that is asked for. isExpanding: 0 forbids the symbol to grow beyond rows
// and columns, every other value allows it, but only 1 lets a rectangle become a square.
struct SizeRequest {
  int rows;     // 0..255
  int columns;  // 0..255
  std::int32_t isExpanding;
};

// What a Data Matrix begins with.
enum class Header : std::uint8_t {
  kNone,
  kFnc1Second,  // FNC1 in second position
  kMacro05,     // ISO/IEC 15434, format 05
  kMacro06,     // ISO/IEC 15434, format 06
};

// A Data Matrix: everything but its size on the part.
struct MatrixJob {
  TextUnits text;             // up to 255 data, above an ECI designator
  std::int32_t quietModules;  // or kNoQuietZone, kStandardQuietZone
  SizeRequest size;
  Header header;
};

// A linear symbol: likewise.
struct LinearJob {
  std::int32_t symbology;  // 0..22
  char* text;              // with a NUL behind it; may be written, where a check shortens the text
  std::size_t length;
  std::int32_t quietModules;  // or kNoQuietZone, kStandardQuietZone
};

enum class FilledElements : std::uint8_t { kDark, kLight };  // kLight: the image is inverted

// How the elements of a symbol are filled.
struct Filling {
  std::int32_t pattern;  // 0..3, 5, 6; every other value fills nothing
  double gap;            // pitch of the strokes in the host's unit; pattern 6 needs none
  FilledElements filled;
};

// Sizes of the elements of a linear symbol, in the host's unit.
struct ElementSizes {
  double moduleSize;  // width of a narrow element
  double wideSize;    // width of a wide element
  double barHeight;
};

}  // namespace barhatch

#endif
