// What a marking head leaves on a part, as a picture: the strokes or points of a fill buffer become
// pixels of a grey picture that readers can look at.
//
// The head is modelled by its beam alone, a square spot as wide as the beam. A stroke marks the
// band of that width centred on the line from its start to its end; the picture shows either the
// mark or the bare part and nothing between, and a pixel is marked when its centre is. With the
// beam as wide as the line gap, neighbouring strokes touch without overlapping. (A round spot would
// mark less at the outer corners of a stroke, by a fifth of a square of half the beam width.)
//
// What the strokes of one bar cover, and what a test has to allow for:
//   horizontal strokes   run from edge to edge of the bar: with flush ends its marked width is
//                        exact, with projecting ends each bar grows by one beam width;
//   vertical strokes     lie on multiples of the gap: a bar whose edges lie there too keeps its
//                        width and is moved half a gap to the left; any other one comes out at most
//                        half a gap narrower and less than one and a half gaps wider;
//   spirals              are moved half a gap to the right and up instead; where a bar starts at
//                        coordinate 0 they begin on its very edge and it grows by one gap. The beam
//                        stays on at the corners, so they need projecting ends: with flush ones
//                        each bar would keep a hole in its middle, just where readers look.
// So the gap should be a small part of a module or divide it evenly. The readers of ReaderOracle.h
// read all this with 4 pixels a module and a gap of a tenth of a module (Data Matrix: a fifth).
#ifndef BARHATCH_TESTS_SUPPORT_RASTER_H
#define BARHATCH_TESTS_SUPPORT_RASTER_H

#include <cstdint>
#include <string>
#include <vector>

#include "barhatch.h"

namespace barhatch::test {

// Shades of a picture of one byte per pixel.
constexpr std::uint8_t kDarkShade = 0;
constexpr std::uint8_t kLightShade = 255;

// A grey picture, row by row from the top, without padding between the rows.
class Raster {
 public:
  Raster(int width, int height, std::uint8_t shade);

  int Width() const { return width_; }
  int Height() const { return height_; }
  const std::uint8_t* Pixels() const { return pixels_.data(); }
  std::uint8_t At(int x, int y) const { return pixels_[Index(x, y)]; }

  // Columns left to right - 1 of the rows top to bottom - 1, as far as they lie in the picture.
  void Fill(int left, int top, int right, int bottom, std::uint8_t shade);

  // Every pixel p becomes 255 - p.
  void Invert();

 private:
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(x);
  }

  int width_;
  int height_;
  std::vector<std::uint8_t> pixels_;
};

// The picture as text, a line for each row: '#' dark, '.' light.
std::string ToText(const Raster& raster);

// Where the mark of a stroke begins and ends.
enum class StrokeEnds {
  kFlush,      // at the coordinates: the controller switches the beam by its radius late and early
  kProjecting  // half a beam width beyond them: it is on while its centre travels the stroke
};

enum class MarkColour { kDarkOnLight, kLightOnDark };

// The part under the head and the head's beam. Lengths are in the host's unit.
struct MarkParameters {
  double left = 0.0;  // lower left corner and size of the area that the symbol takes
  double bottom = 0.0;
  double width = 0.0;
  double height = 0.0;
  double margin = 0.0;  // bare part shown around that area, on every side
  double pixelsPerUnit = 0.0;
  double beamWidth = 0.0;  // usually the line gap
  StrokeEnds ends = StrokeEnds::kFlush;
  double cellWidth = 0.0;  // size of what a single point marks: the size of a module
  double cellHeight = 0.0;
  MarkColour colour = MarkColour::kDarkOnLight;
};

// The picture of the marked part: y up in the fill buffer is up in the picture. Marks outside the
// picture are cut off. Each point marks a rectangle of one cell, centred on it, whatever it stands
// for; a wide bar that is given as one point is therefore marked as one cell only.
// Throws std::invalid_argument for a buffer that no head could trace: no array, a length that does
// not fit the shape, a coordinate that is no number, a stroke that is neither horizontal nor
// vertical; likewise for a picture without pixels or with more than 100 million.
Raster MarkStrokes(const FillBufferInfo& fill, const MarkParameters& parameters);

// What the picture shows at the centres of the modules of a symbol that takes the whole area of the
// parameters: 'A' dark, 'a' light, row by row from the top, as in the grid of a TwoDStringResult. A
// linear symbol is one row. Readers correct wrong modules silently, this does not.
std::string SampleModules(const Raster& picture, const MarkParameters& parameters, int rows,
                          int columns);

}  // namespace barhatch::test

#endif
