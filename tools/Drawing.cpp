#include "Drawing.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace preview {

namespace {

constexpr double kSpacing = 0.08;         // between symbols, of the widest one
constexpr double kLeastSpacing = 0.15;    // of the highest one
constexpr double kCaptionSize = 0.55;     // of the spacing
constexpr double kCharacterWidth = 0.62;  // of a monospaced font's size

std::size_t CharacterCount(const std::string& utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

// The text, cut to what the width holds.
std::string Shortened(const std::string& utf8, std::size_t most) {
  if (CharacterCount(utf8) <= most) return utf8;
  std::string shortened;
  std::size_t count = 0;
  for (const char c : utf8) {
    if ((c & 0xC0) != 0x80 && ++count >= most) break;
    shortened += c;
  }
  return shortened + "\u2026";
}

// Where the marks begin: behind the quiet zone, where there is one.
double LeftOf(const Drawing& drawing) {
  double left = drawing.width;
  for (const Stroke& mark : drawing.marks) left = std::min({left, mark.x0, mark.x1});
  return drawing.marks.empty() ? 0.0 : std::max(left, 0.0);
}

// Bearer bars reach over a quiet zone around the symbol, which then is a part of the drawing.
bool ReachOverQuietZone(const std::vector<Stroke>& marks) {
  return std::any_of(marks.begin(), marks.end(),
                     [](const Stroke& mark) { return std::min(mark.x0, mark.x1) < 0.0; });
}

void MakeRoomAround(double left, double right, Drawing& drawing) {
  drawing.width += left + right;
  for (Stroke& mark : drawing.marks) {
    mark.x0 += left;
    mark.x1 += left;
  }
}

void Place(const Drawing& part, double x, double y, Drawing& sheet) {
  for (const Stroke& mark : part.marks) {
    sheet.marks.push_back({mark.x0 + x, mark.y0 + y, mark.x1 + x, mark.y1 + y});
  }
}

}  // namespace

Drawing DrawingOf(const barhatch::Result& result, std::string title) {
  Drawing drawing;
  drawing.kind = result.IsPoints() ? MarkKind::kPoints : MarkKind::kStrokes;
  // The origin is the corner of what the size was asked for.
  const bool isQuietInside = result.total().left >= 0.0;
  drawing.width = isQuietInside ? result.total().right : result.symbol().right;
  drawing.height = isQuietInside ? result.total().top : result.symbol().top;
  drawing.title = std::move(title);
  for (const barhatch::Segment& s : result.Segments()) {
    drawing.marks.push_back({s.xa, s.ya, s.xb, s.yb});
  }
  for (const barhatch::Point& p : result.Points()) drawing.marks.push_back({p.x, p.y, p.x, p.y});
  if (ReachOverQuietZone(drawing.marks)) {
    MakeRoomAround(-result.total().left, result.total().right - result.symbol().right, drawing);
  }
  return drawing;
}

Drawing SheetOf(const std::vector<Drawing>& drawings, std::size_t columns) {
  double width = 0.0;
  double height = 0.0;
  for (const Drawing& drawing : drawings) {
    width = std::max(width, drawing.width);
    height = std::max(height, drawing.height);
  }
  const double spacing = std::max(kSpacing * width, kLeastSpacing * height);
  const double size = kCaptionSize * spacing;
  const std::size_t rows = (drawings.size() + columns - 1) / columns;
  const std::size_t used = std::min(columns, drawings.size());
  const double rowHeight = height + 2 * spacing;

  Drawing sheet;
  sheet.kind = drawings.front().kind;
  sheet.width = static_cast<double>(used) * (width + spacing) - spacing;
  sheet.height = static_cast<double>(rows) * rowHeight - spacing;
  for (std::size_t i = 0; i < drawings.size(); ++i) {
    const std::size_t row = i / columns;
    const double x = static_cast<double>(i % columns) * (width + spacing);
    const double top = sheet.height - static_cast<double>(row) * rowHeight;
    const double y = top - drawings[i].height;
    Place(drawings[i], x, y, sheet);
    const double indent = LeftOf(drawings[i]);
    const auto most = static_cast<std::size_t>((width - indent) / (size * kCharacterWidth));
    sheet.captions.push_back(
        {x + indent, y - 0.8 * spacing, size, Shortened(drawings[i].title, most)});
  }
  return sheet;
}

double LengthOf(const Stroke& stroke) {
  return std::hypot(stroke.x1 - stroke.x0, stroke.y1 - stroke.y0);
}

double TravelBetween(const Stroke& from, const Stroke& to) {
  return std::hypot(to.x0 - from.x1, to.y0 - from.y1);
}

}  // namespace preview
