#include "support/Raster.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace barhatch::test {

namespace {

constexpr int kSegmentShape = 0;
constexpr int kPointShape = 2;
constexpr double kMostPixels = 1e8;

// Borders are rounded to this part of a pixel before they are compared with pixel centres, which
// are multiples of it: two borders that are equal but for rounding fall on the same side of every
// centre, so that touching strokes neither leave a line between them nor overlap.
constexpr double kStepsPerPixel = 1024.0;

// The first pixel whose centre does not lie before the border.
int FirstPixelFrom(double border) {
  const double steps = std::round(border * kStepsPerPixel);
  return static_cast<int>(std::ceil((steps - kStepsPerPixel / 2) / kStepsPerPixel));
}

// One axis of the picture: host units to pixels. A negative scale turns y up into y down.
struct Axis {
  double origin;
  double scale;
  int pixels;

  double Position(double coordinate) const {
    return std::clamp((coordinate - origin) * scale, -1.0, pixels + 1.0);
  }
  int PixelAt(double coordinate) const {
    return std::clamp(static_cast<int>(Position(coordinate)), 0, pixels - 1);
  }
};

int PictureSize(double length, const MarkParameters& parameters) {
  const double pixels = (length + 2 * parameters.margin) * parameters.pixelsPerUnit;
  if (!(pixels >= 0.5 && pixels <= kMostPixels)) throw std::invalid_argument("size of the picture");
  return static_cast<int>(std::lround(pixels));
}

Axis HorizontalAxis(const MarkParameters& parameters) {
  return {parameters.left - parameters.margin, parameters.pixelsPerUnit,
          PictureSize(parameters.width, parameters)};
}

Axis VerticalAxis(const MarkParameters& parameters) {
  return {parameters.bottom + parameters.height + parameters.margin, -parameters.pixelsPerUnit,
          PictureSize(parameters.height, parameters)};
}

class Head {
 public:
  explicit Head(const MarkParameters& parameters)
      : parameters_(parameters),
        x_(HorizontalAxis(parameters)),
        y_(VerticalAxis(parameters)),
        mark_(parameters.colour == MarkColour::kDarkOnLight ? kDarkShade : kLightShade),
        raster_(CheckedRaster()) {}

  void MarkStroke(double xa, double ya, double xb, double yb) {
    const double radius = parameters_.beamWidth / 2;
    const double end = parameters_.ends == StrokeEnds::kProjecting ? radius : 0.0;
    if (xa == xb) {
      MarkRectangle(xa - radius, std::min(ya, yb) - end, xb + radius, std::max(ya, yb) + end);
    } else if (ya == yb) {
      MarkRectangle(std::min(xa, xb) - end, ya - radius, std::max(xa, xb) + end, yb + radius);
    } else {
      throw std::invalid_argument("stroke that is neither horizontal nor vertical");
    }
  }

  void MarkPoint(double x, double y) {
    const double halfWidth = parameters_.cellWidth / 2;
    const double halfHeight = parameters_.cellHeight / 2;
    MarkRectangle(x - halfWidth, y - halfHeight, x + halfWidth, y + halfHeight);
  }

  Raster Release() { return std::move(raster_); }

 private:
  Raster CheckedRaster() const {
    if (static_cast<double>(x_.pixels) * y_.pixels > kMostPixels) {
      throw std::invalid_argument("size of the picture");
    }
    return Raster(x_.pixels, y_.pixels, static_cast<std::uint8_t>(255 - mark_));
  }

  void MarkRectangle(double x0, double y0, double x1, double y1) {
    raster_.Fill(FirstPixelFrom(x_.Position(x0)), FirstPixelFrom(y_.Position(y1)),
                 FirstPixelFrom(x_.Position(x1)), FirstPixelFrom(y_.Position(y0)), mark_);
  }

  const MarkParameters& parameters_;
  Axis x_;
  Axis y_;
  std::uint8_t mark_;
  Raster raster_;
};

int DoublesPerShape(const FillBufferInfo& fill) {
  if (fill.FillingShapeType == kSegmentShape) return 4;
  if (fill.FillingShapeType == kPointShape) return 2;
  throw std::invalid_argument("unknown filling shape");
}

void CheckBuffer(const FillBufferInfo& fill) {
  if (fill.BufferLength < 0 || fill.BufferLength % DoublesPerShape(fill) != 0 ||
      (fill.FilledArray == nullptr && fill.BufferLength > 0)) {
    throw std::invalid_argument("length of the fill buffer");
  }
  for (int i = 0; i < fill.BufferLength; ++i) {
    if (!std::isfinite(fill.FilledArray[i])) throw std::invalid_argument("coordinate");
  }
}

}  // namespace

Raster::Raster(int width, int height, std::uint8_t shade)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), shade) {}

void Raster::Fill(int left, int top, int right, int bottom, std::uint8_t shade) {
  left = std::max(left, 0);
  right = std::min(right, width_);
  bottom = std::min(bottom, height_);
  if (left >= right) return;
  for (int y = std::max(top, 0); y < bottom; ++y) {
    std::fill_n(pixels_.begin() + static_cast<std::ptrdiff_t>(Index(left, y)), right - left, shade);
  }
}

void Raster::Invert() {
  for (std::uint8_t& pixel : pixels_) pixel = static_cast<std::uint8_t>(255 - pixel);
}

std::string ToText(const Raster& raster) {
  std::string text;
  for (int y = 0; y < raster.Height(); ++y) {
    for (int x = 0; x < raster.Width(); ++x) text += raster.At(x, y) < 128 ? '#' : '.';
    text += '\n';
  }
  return text;
}

Raster MarkStrokes(const FillBufferInfo& fill, const MarkParameters& parameters) {
  CheckBuffer(fill);
  Head head(parameters);
  const int step = DoublesPerShape(fill);
  for (int i = 0; i < fill.BufferLength; i += step) {
    const double* shape = fill.FilledArray + i;
    if (fill.FillingShapeType == kSegmentShape) {
      head.MarkStroke(shape[0], shape[1], shape[2], shape[3]);
    } else {
      head.MarkPoint(shape[0], shape[1]);
    }
  }
  return head.Release();
}

std::string SampleModules(const Raster& picture, const MarkParameters& parameters, int rows,
                          int columns) {
  const Axis x = HorizontalAxis(parameters);
  const Axis y = VerticalAxis(parameters);
  std::string modules;
  for (int row = 0; row < rows; ++row) {
    const double fromTop = (row + 0.5) / rows * parameters.height;
    const int py = y.PixelAt(parameters.bottom + parameters.height - fromTop);
    for (int column = 0; column < columns; ++column) {
      const double fromLeft = (column + 0.5) / columns * parameters.width;
      modules += picture.At(x.PixelAt(parameters.left + fromLeft), py) < 128 ? 'A' : 'a';
    }
  }
  return modules;
}

}  // namespace barhatch::test
