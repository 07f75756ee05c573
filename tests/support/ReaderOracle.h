// Independent readers that look at the picture of a marked part and say what stands there. None of
// them shares code or a table with the encoders.
//
//                       zxing-cpp                ZBar                     libdmtx
//   Codabar             from 2 data characters   yes                      -
//   Code 39             any length               up to 250 characters     -
//   Code 93             full ASCII               full ASCII               -
//   Code 128            bytes 0 to 255           bytes above 127 come     -
//                                                out 128 lower
//   EAN/UPC             with add-ons             with add-ons; UPC-E in   -
//                                                number system 0 only
//   Interleaved 2 of 5  from 6 digits            from 2 digits            -
//   Data Matrix         all sizes; 144 x 144 in  -                        all sizes; 144 x 144 in
//                       the usual order                                   an order of its own
//
// They read reliably from 2 pixels a module on (Data Matrix: 3), from 4 rows of pixels, with wide
// elements of 2 to 3 modules. Data Matrix needs one light module around; the linear readers do
// without any quiet zone, so that a symbol is read is no proof of one. libdmtx takes milliseconds
// to find a symbol, but seconds to give up on a large picture without one.
//
// An answer is given for one format at a time, and only for a symbol that is dark on light and
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

enum class Format {
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
  // The bytes of the message. Codabar: with start and stop letter; EAN/UPC: all digits with the
  // check digit (UPC-A 12, UPC-E 8); Code 93: full ASCII resolved; Data Matrix: macro headers
  // expanded. An FNC1 that separates is byte 29; in first or second position libdmtx gives the same
  // byte, zxing-cpp none. ECI designators are left out by zxing-cpp and mistaken for text by
  // libdmtx.
  std::string text;
  // The 2 or 5 digits of an EAN/UPC add-on.
  std::string addOn;
  // Symbology identifier; zxing-cpp only. It tells of an FNC1 in first ("]C1", "]d2") or second
  // ("]d3") position.
  std::string identifier;
  // Identifier and text with the ECI designators in their places, "]d4\\000026AB"; zxing-cpp only.
  std::string eciText;
  // Modules of a Data Matrix without its quiet zone; libdmtx only.
  int rows = 0;
  int columns = 0;
};

// Whether the tests were built with the reader (CMake variable BARHATCH_TEST_READERS).
bool HasReader(Reader reader);

// What the reader finds in the picture; nothing when it finds no such symbol, does not know the
// format or was not built in. With AddOn::kRequired a symbol without add-on is not found.
std::optional<ReadResult> Read(Reader reader, const Raster& picture, Format format,
                               AddOn addOn = AddOn::kIgnored);

}  // namespace barhatch::test

#endif
