// Independent readers that look at the picture of a marked part and say what stands there. None of
// them shares code or a table with the encoders.
//
//                 zxing-cpp              ZBar                      libdmtx
//   Codabar       from 2 data characters yes                       -
//   Code 39, 93   yes                    yes                       -
//   Code 128      yes                    bytes above 127 come out  -
//                                        128 lower
//   EAN/UPC       with add-ons           with add-ons; UPC-E in    -
//                                        number system 0 alone
//   Int. 2 of 5   from 6 digits          yes                       -
//   Data Matrix   yes, 144 x 144 in the  -                         yes, 144 x 144 in the order
//                 order of most printers                           of its own encoder
//
// All of them read reliably from 2 pixels a module (Data Matrix: 3) on; linear symbols need 4 rows
// of pixels, Data Matrix one light module around. The linear readers get by without a quiet zone,
// so a symbol that is read is no proof of one.
//
// An answer is given for one symbology at a time, and only for a symbol that is dark on light and
// stands upright: some readers find negative, turned and mirrored symbols as well, which would hide
// inverted marks, exchanged ends and a y axis that runs the wrong way. Errors that a reader
// corrects or looks past stay hidden: see SampleModules in Raster.h.
#ifndef BARHATCH_TESTS_SUPPORT_READERORACLE_H
#define BARHATCH_TESTS_SUPPORT_READERORACLE_H

#include <optional>
#include <string>

#include "support/Raster.h"

namespace barhatch::test {

enum class Reader { kZxing, kZbar, kDmtx };

enum class Symbology {
  kCodabar,
  kCode39,
  kCode93,
  kCode128,
  kEan13,
  kEan8,
  kUpcA,
  kUpcE,
  kInterleaved2of5,
  kDataMatrix
};

enum class AddOn { kIgnored, kRequired };

struct ReadResult {
  // The bytes of the message. Codabar: with start and stop letter; EAN/UPC: all digits of the
  // symbology (UPC-A 12, UPC-E 8) with the check digit; Code 93: full ASCII resolved; FNC1 as a
  // separator: byte 29. Of Data Matrix, zxing-cpp expands the macro headers.
  std::string text;
  // The 2 or 5 digits of an EAN/UPC add-on.
  std::string addOn;
  // Symbology identifier such as "]C1"; zxing-cpp only. It tells of an FNC1 in first or second
  // position, which the text of zxing-cpp does not contain.
  std::string identifier;
  // Identifier and text with the ECI designators as backslash and six digits; zxing-cpp only.
  std::string eciText;
  // Modules of a Data Matrix without its quiet zone; libdmtx only.
  int rows = 0;
  int columns = 0;
};

// Whether the tests were built with the reader (CMake variable BARHATCH_TEST_READERS).
bool HasReader(Reader reader);

// What the reader finds in the picture; nothing when it finds no such symbol, does not know the
// symbology or was not built in.
std::optional<ReadResult> Read(Reader reader, const Raster& picture, Symbology symbology,
                               AddOn addOn = AddOn::kIgnored);

}  // namespace barhatch::test

#endif
