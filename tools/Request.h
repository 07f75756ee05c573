// What the user asked for, and the library's answer to it.
#ifndef BARHATCH_TOOLS_REQUEST_H
#define BARHATCH_TOOLS_REQUEST_H

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "barhatch.h"

namespace preview {

enum class Kind { kLinear, kDataMatrix };

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

// UTF-8 as 16-bit units with their NUL. Characters beyond U+FFFF become surrogate pairs, broken
// sequences U+FFFD.
std::vector<BarhatchChar> ToUnits(const std::string& utf8);

// Null when the library refuses.
Fill Generate(const Request& request);

// "code39" or "datamatrix".
std::string NameOf(const Request& request);

// Width of the symbol that was generated: what was asked for, or what a Data Matrix has taken. Its
// cells are square, and both extents of a matrix are its size less two cells.
double WidthOf(const Request& request, const FillBufferInfo& fill);

// Why Generate gave null, as far as a host can tell.
std::string WhyRefused(const Request& request);

}  // namespace preview

#endif
