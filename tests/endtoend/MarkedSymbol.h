// One linear symbol on its whole road: record, export call, fill buffer, picture of the marked
// part.
#ifndef BARHATCH_TESTS_ENDTOEND_MARKEDSYMBOL_H
#define BARHATCH_TESTS_ENDTOEND_MARKEDSYMBOL_H

#include <string>

#include "support/Raster.h"

namespace barhatch::test {

enum class Image { kPlain, kInverted };

struct MarkRequest {
  int type = 0;
  std::string text;  // one byte a unit
  int pattern = 0;   // hatching type
  Image image = Image::kPlain;
};

// A module is one unit wide, a wide element three, the gap a tenth, a bar 12 units high. An
// inverted symbol is marked with its quiet zone, light on a dark part; a plain one with or without,
// by the length of its text.
struct MarkedSymbol {
  bool refused = false;
  std::string letters;  // the module string
  int modules = 0;      // the width of the symbol
  MarkParameters parameters;
  Raster picture{1, 1, kLightShade};
};

MarkedSymbol MarkSymbol(const MarkRequest& request);

// The module string as the picture shows it, wide elements told from narrow ones by their three
// modules, quiet zones included. For symbologies that no common reader knows.
std::string LettersOfPicture(const MarkedSymbol& symbol, bool twoWidths);

}  // namespace barhatch::test

#endif
