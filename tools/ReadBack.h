// Reads a drawn symbol back with an independent reader, where one was found at build time.
#ifndef BARHATCH_TOOLS_READBACK_H
#define BARHATCH_TOOLS_READBACK_H

#include <optional>
#include <string>

#include "MarkImage.h"

namespace preview {

// What a reader made of a picture.
struct Reading {
  std::string reader;  // "zxing-cpp"
  std::string format;  // "Code39"
  std::string text;    // UTF-8
  std::string bytes;   // as they are in the symbol, where the reader tells
};

// True when the program was built with a reader.
bool CanReadBack();

// Nothing when no reader finds a symbol. Pairs of Code 39 are read as the characters of full ASCII
// that they stand for where that is asked for.
std::optional<Reading> ReadBack(const Picture& picture, bool isFullAscii);

}  // namespace preview

#endif
