#include "SvgWriter.h"

#include <fstream>
#include <locale>

namespace preview {

namespace {

constexpr double kPixelsWide =
    1000.0;  // size on the screen; the drawing itself is in the host's units

void WriteHead(std::ofstream& out, const View& view) {
  const double width = view.width + 2 * view.margin;
  const double height = view.height + 2 * view.margin;
  const char* background = view.part == Part::kLight ? "white" : "black";
  out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << kPixelsWide << "\" height=\""
      << kPixelsWide * height / width << "\" viewBox=\"0 0 " << width << ' ' << height << "\">\n"
      << "<rect width=\"" << width << "\" height=\"" << height << "\" fill=\"" << background
      << "\"/>\n";
}

void WriteStrokes(std::ofstream& out, const FillBufferInfo& fill, const View& view) {
  const auto x = [&](double value) { return value + view.margin; };
  const auto y = [&](double value) { return view.height + view.margin - value; };
  const double* c = fill.FilledArray;
  if (fill.FillingShapeType == 2) {
    for (std::int32_t i = 0; i + 1 < fill.BufferLength; i += 2) {
      out << "<circle cx=\"" << x(c[i]) << "\" cy=\"" << y(c[i + 1]) << "\" r=\"" << view.beam / 2
          << "\"/>\n";
    }
    return;
  }
  for (std::int32_t i = 0; i + 3 < fill.BufferLength; i += 4) {
    out << "<line x1=\"" << x(c[i]) << "\" y1=\"" << y(c[i + 1]) << "\" x2=\"" << x(c[i + 2])
        << "\" y2=\"" << y(c[i + 3]) << "\"/>\n";
  }
}

}  // namespace

bool WriteSvg(const std::string& path, const FillBufferInfo& fill, const View& view) {
  std::ofstream out(path);
  out.imbue(std::locale::classic());
  out.precision(10);
  WriteHead(out, view);
  const char* colour = view.part == Part::kLight ? "black" : "white";
  if (fill.FillingShapeType == 2) {
    out << "<g fill=\"" << colour << "\">\n";
  } else {
    out << "<g stroke=\"" << colour << "\" stroke-width=\"" << view.beam << "\" stroke-linecap=\""
        << (view.ends == StrokeEnds::kProjecting ? "square" : "butt") << "\">\n";
  }
  WriteStrokes(out, fill, view);
  out << "</g>\n</svg>\n";
  out.close();
  return !out.fail();
}

}  // namespace preview
