// What the rules of the texts look at: the type, the text in the 16-bit units that the library
// gets, and the settings that decide over a Data Matrix.
#ifndef BARHATCH_TOOLS_BARCODETEXT_H
#define BARHATCH_TOOLS_BARCODETEXT_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace preview {

enum class Kind { kLinear, kDataMatrix };

struct BarcodeText {
  Kind kind = Kind::kLinear;
  std::int32_t type = 1;        // of a linear symbol, 0 to 22
  std::u16string units;         // no NUL among them
  std::int32_t format = 0;      // code format of a Data Matrix
  std::int32_t matrixSize = 0;  // of a Data Matrix: rows x 256 + columns, 0 for the smallest square
  bool expand = true;           // a Data Matrix may grow beyond its size
};

constexpr std::size_t kLongestLinearText = 3119;
constexpr std::size_t kLongestMatrixText = 3116;

// What a linear symbology sees of the units: their low bytes, up to the first that is zero.
std::string NarrowText(const std::u16string& units);

// 'A' as "A", a byte or a unit without a sign of its own as "U+0009".
std::string CharacterName(char16_t unit);

}  // namespace preview

#endif
