// What the user asked for, and the library's answer to it.
#ifndef BARHATCH_TOOLS_REQUEST_H
#define BARHATCH_TOOLS_REQUEST_H

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "barhatch.h"

namespace preview {

struct Request {
  std::int32_t type = 1;
  std::string text;  // UTF-8
  double width = 60.0;
  double height = 12.0;
  double ratio = 3.0;
  bool invert = false;
  bool quietZone = false;
  std::int32_t pattern = 0;
  double gap = 0.1;
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

// Why Generate gave null, as far as a host can tell.
std::string WhyRefused(const Request& request);

}  // namespace preview

#endif
