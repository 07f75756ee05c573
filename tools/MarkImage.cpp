#include "MarkImage.h"

#include <algorithm>
#include <cmath>

namespace preview {

namespace {

// Area of each pixel that is covered, 0 to 1; marks that overlap count once, because coverage ends
// at 1.
class CoverageMap {
 public:
  CoverageMap(std::uint32_t width, std::uint32_t height)
      : width_(width), height_(height), coverage_(std::size_t{width} * height, 0.0f) {}

  // The rectangle in pixels, y downwards.
  void Cover(double left, double top, double right, double bottom) {
    const auto firstRow = static_cast<std::int64_t>(std::floor(std::max(top, 0.0)));
    const auto lastRow =
        static_cast<std::int64_t>(std::ceil(std::min(bottom, static_cast<double>(height_))));
    for (std::int64_t row = firstRow; row < lastRow; ++row) {
      const double covered = Overlap(static_cast<double>(row), top, bottom);
      if (covered > 0.0) CoverRow(row, left, right, covered);
    }
  }

  float At(std::size_t index) const { return std::min(coverage_[index], 1.0f); }
  std::size_t Size() const { return coverage_.size(); }

 private:
  static double Overlap(double pixel, double from, double to) {
    return std::min(pixel + 1.0, to) - std::max(pixel, from);
  }

  void CoverRow(std::int64_t row, double left, double right, double share) {
    const auto first = static_cast<std::int64_t>(std::floor(std::max(left, 0.0)));
    const auto last =
        static_cast<std::int64_t>(std::ceil(std::min(right, static_cast<double>(width_))));
    float* pixels = coverage_.data() + row * width_;
    for (std::int64_t column = first; column < last; ++column) {
      const double covered = Overlap(static_cast<double>(column), left, right);
      if (covered > 0.0) pixels[column] += static_cast<float>(covered * share);
    }
  }

  std::uint32_t width_;
  std::uint32_t height_;
  std::vector<float> coverage_;
};

Mark MarkOf(const Stroke& stroke, const Look& look) {
  const double across = look.beam / 2;
  const double along = look.ends == StrokeEnds::kProjecting ? across : 0.0;
  const double dx = stroke.y0 == stroke.y1 ? along : across;
  const double dy = stroke.y0 == stroke.y1 ? across : along;
  return {std::min(stroke.x0, stroke.x1) - dx, std::min(stroke.y0, stroke.y1) - dy,
          std::max(stroke.x0, stroke.x1) + dx, std::max(stroke.y0, stroke.y1) + dy};
}

void AppendDisc(double x, double y, double radius, std::vector<Mark>& marks) {
  constexpr int kSlices = 24;
  const double slice = 2 * radius / kSlices;
  for (int i = 0; i < kSlices; ++i) {
    const double middle = (i + 0.5) * slice - radius;
    const double half = std::sqrt(radius * radius - middle * middle);
    marks.push_back({x - half, y + middle - slice / 2, x + half, y + middle + slice / 2});
  }
}

}  // namespace

std::vector<Mark> MarksOf(const Drawing& drawing, const Look& look) {
  std::vector<Mark> marks;
  for (const Stroke& stroke : drawing.marks) {
    if (drawing.kind == MarkKind::kPoints) {
      AppendDisc(stroke.x0, stroke.y0, look.beam / 2, marks);
    } else {
      marks.push_back(MarkOf(stroke, look));
    }
  }
  return marks;
}

Picture Draw(const Drawing& drawing, const Look& look, double pixelsPerUnit) {
  const auto pixels = [&](double length) {
    return static_cast<std::uint32_t>(std::ceil((length + 2 * look.margin) * pixelsPerUnit));
  };
  Picture picture{pixels(drawing.width), pixels(drawing.height), {}};
  CoverageMap map(picture.width, picture.height);
  const auto column = [&](double x) { return (x + look.margin) * pixelsPerUnit; };
  const auto row = [&](double y) { return (drawing.height + look.margin - y) * pixelsPerUnit; };
  for (const Mark& m : MarksOf(drawing, look)) {
    map.Cover(column(m.left), row(m.top), column(m.right), row(m.bottom));
  }
  picture.pixels.resize(map.Size());
  for (std::size_t i = 0; i < map.Size(); ++i) {
    const float marked = map.At(i);
    const float light = look.part == Part::kLight ? 1.0f - marked : marked;
    picture.pixels[i] = static_cast<std::uint8_t>(std::lround(light * 255.0f));
  }
  return picture;
}

}  // namespace preview
