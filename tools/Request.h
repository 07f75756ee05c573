// What the user asked for, and the library's answer to it.
#ifndef BARHATCH_TOOLS_REQUEST_H
#define BARHATCH_TOOLS_REQUEST_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "BarcodeText.h"
#include "barhatch.h"

namespace preview {

struct Request {
  Kind kind = Kind::kLinear;
  std::int32_t type = 1;  // of a linear symbol
  std::string text;       // UTF-8
  double width = 60.0;
  double height = 12.0;
  double ratio = 3.0;
  bool invert = false;
  bool quietZone = false;
  std::int32_t pattern = 0;
  double gap = 0.1;
  std::int32_t matrixSize = 0;  // of a Data Matrix: rows x 256 + columns, 0 for the smallest square
  bool expand = true;           // a Data Matrix may grow beyond its size
  std::int32_t format = 0;      // code format of a Data Matrix
};

struct FillRelease {
  void operator()(FillBufferInfo* fill) const { FreeBarcodeData(fill); }
};
using Fill = std::unique_ptr<FillBufferInfo, FillRelease>;

// UTF-8 as 16-bit units, surrogate pairs beyond U+FFFF. Nothing where it is no UTF-8 or holds a
// NUL: a mark is made of the whole text or not at all.
std::optional<std::u16string> ToUnits(const std::string& utf8);

// What the rules of the texts look at. REQUIRES: text that ToUnits takes.
BarcodeText TextOf(const Request& request);

// Null when the library refuses. REQUIRES: text that ToUnits takes.
Fill Generate(const Request& request);

// "code39" or "datamatrix".
std::string NameOf(const Request& request);

// Width of the symbol that was generated: what was asked for, or what a Data Matrix has taken. Its
// cells are square, and both extents of a matrix are its size less two cells.
double WidthOf(const Request& request, const FillBufferInfo& fill);

// Width of one module: the X dimension. 0 where there is no symbol.
double ModuleSizeOf(const Request& request, const FillBufferInfo& fill);

}  // namespace preview

#endif
