// What the user asked for, and the library's answer to it: a job of the mark interface goes in, a
// result comes out.
#ifndef BARHATCH_TOOLS_REQUEST_H
#define BARHATCH_TOOLS_REQUEST_H

#include <cstdint>
#include <memory>
#include <string>

#include "barhatch_mark.h"

namespace preview {

struct Request {
  std::int32_t symbology = BARHATCH_CODE_39;
  bool device = false;  // as the device writes it, also where there is a mark by the book
  bool permit = false;  // what readers know and the standard leaves out
  std::string text;     // UTF-8
  double width = 60.0;  // of a linear symbol
  double height = 12.0;
  double ratio = 0.0;  // 0: the library's
  bool invert = false;
  bool quietZone = false;  // a part of the symbol's size
  std::int32_t pattern = BARHATCH_SCAN_LINES;
  double gap = 0.1;
  std::int32_t rows = 0;  // of a Data Matrix; 0 x 0 is the smallest square
  std::int32_t columns = 0;
  bool expand = false;      // it may be larger than that
  std::int32_t format = 0;  // of a Data Matrix: 1 FNC1 in second position, 2 and 3 macro headers
};

struct ResultRelease {
  void operator()(BarhatchResult* result) const;
};
using Result = std::unique_ptr<BarhatchResult, ResultRelease>;

// Never null; refused where its status says so.
Result ResultOf(const Request& request);

// What the library says of a symbology before there is a text: its name, what it accepts, and with
// BARHATCH_BAD_OPTION that it does not write such marks in this version.
Result AnswerOf(std::int32_t symbology, std::int32_t conformance);

bool IsMatrix(const Request& request);

// By the book where the library can and the user does not want the device's.
std::int32_t ConformanceOf(const Request& request);

// "by the book" or "as the device writes it".
const char* ConformanceName(const Request& request);

}  // namespace preview

#endif
