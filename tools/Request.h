// What the user asked for, and the library's answer to it: a job of the mark interface goes in, a
// result comes out.
#ifndef BARHATCH_TOOLS_REQUEST_H
#define BARHATCH_TOOLS_REQUEST_H

#include <cstdint>
#include <string>

#include "barhatch.hpp"

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

using barhatch::Result;

// A mark or a refusal.
Result ResultOf(const Request& request);

// What the library says of a symbology before there is a text: its name and what it accepts.
Result AnswerOf(std::int32_t symbology, std::int32_t conformance);

// True where this version makes such marks.
bool IsWritten(std::int32_t symbology, std::int32_t conformance);

bool IsMatrix(const Request& request);

// By the book where this version can and the user does not want the device's.
std::int32_t ConformanceOf(const Request& request);

// "by the book" or "as the device writes it".
const char* ConformanceName(const Request& request);

}  // namespace preview

#endif
