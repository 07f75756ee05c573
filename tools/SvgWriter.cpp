#include "SvgWriter.h"

#include <fmt/core.h>

#include <algorithm>

namespace preview {

namespace {

// On the screen; the drawing is in the host's units. A sheet is as high as its rows.
constexpr double kPixelsWide = 1000.0;
constexpr double kPixelsHigh = 700.0;
constexpr double kShortestAnimation = 2.0;
constexpr double kLongestAnimation = 12.0;

constexpr const char* kCaptionFont = "ui-monospace,'DejaVu Sans Mono',monospace";

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '<') {
      escaped += "&lt;";
    } else if (c == '&') {
      escaped += "&amp;";
    } else if (static_cast<unsigned char>(c) < 32) {
      escaped += "\u00B7";  // most control characters are not allowed in XML
    } else {
      escaped += c;
    }
  }
  return escaped;
}

// When each mark begins and how long it takes, as the style of its element.
class Schedule {
 public:
  Schedule(const Drawing& drawing, const Speeds& speeds) : drawing_(drawing), speeds_(speeds) {
    const double seconds = StatisticsOf(drawing, speeds).seconds;
    const double wanted = std::clamp(seconds, kShortestAnimation, kLongestAnimation);
    stretch_ = seconds > 0.0 ? wanted / seconds : 0.0;
  }

  std::string StyleOf(std::size_t index) {
    const Stroke& mark = drawing_.marks[index];
    if (index > 0) now_ += SecondsBetween(drawing_.marks[index - 1], mark, speeds_);
    const double duration = SecondsOf(mark, drawing_.kind, speeds_);
    const double begin = now_;
    now_ += duration;
    return fmt::format(" style=\"--t:{:.4f}s;--d:{:.4f}s\"", begin * stretch_, duration * stretch_);
  }

 private:
  const Drawing& drawing_;
  const Speeds& speeds_;
  double stretch_ = 0.0;
  double now_ = 0.0;
};

class Svg {
 public:
  Svg(const Drawing& drawing, const Look& look) : drawing_(drawing), look_(look) {}

  std::string Write(Schedule* schedule) {
    WriteHead();
    if (schedule != nullptr) WriteAnimation();
    WriteMarks(schedule);
    WriteCaptions();
    return text_ + "</svg>\n";
  }

 private:
  const char* MarkColour() const { return look_.part == Part::kLight ? "black" : "white"; }
  const char* PartColour() const { return look_.part == Part::kLight ? "white" : "black"; }
  bool HasPoints() const { return drawing_.kind == MarkKind::kPoints; }

  // Ten digits are enough for a picture and spare it the last bit of a sum.
  std::string X(double x) const { return fmt::format("{:.10g}", x + look_.margin); }
  std::string Y(double y) const {
    return fmt::format("{:.10g}", drawing_.height + look_.margin - y);
  }

  void WriteHead() {
    const double width = drawing_.width + 2 * look_.margin;
    const double height = drawing_.height + 2 * look_.margin;
    const double perUnit = drawing_.captions.empty()
                               ? std::min(kPixelsWide / width, kPixelsHigh / height)
                               : kPixelsWide / width;
    text_ += fmt::format(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{:.10g}\" height=\"{:.10g}\" "
        "viewBox=\"0 0 {:.10g} {:.10g}\">\n",
        width * perUnit, height * perUnit, width, height);
    if (!drawing_.title.empty()) text_ += "<title>" + Escaped(drawing_.title) + "</title>\n";
    text_ += fmt::format("<rect width=\"{:.10g}\" height=\"{:.10g}\" fill=\"{}\"/>\n", width,
                         height, PartColour());
  }

  void WriteAnimation() {
    const std::string property = HasPoints() ? "fill" : "stroke";
    text_ +=
        "<style>\n@media (prefers-reduced-motion:no-preference){\n"
        "line{animation:mark var(--d) linear var(--t) backwards,"
        "glow 0.7s ease-out var(--t) backwards}\n"
        "circle{animation:dot 0.01s linear var(--t) backwards,"
        "glow 0.7s ease-out var(--t) backwards}\n}\n"
        "@keyframes mark{0%{opacity:0;stroke-dasharray:1 2;stroke-dashoffset:1}"
        "1%{opacity:1}100%{opacity:1;stroke-dasharray:1 2;stroke-dashoffset:0}}\n"
        "@keyframes dot{from{opacity:0}}\n"
        "@keyframes glow{from{" +
        property + ":#ff5a1f}}\n</style>\n";
  }

  void WriteMarks(Schedule* schedule) {
    if (HasPoints()) {
      text_ += fmt::format("<g fill=\"{}\">\n", MarkColour());
    } else {
      text_ += fmt::format("<g stroke=\"{}\" stroke-width=\"{:.10g}\" stroke-linecap=\"{}\">\n",
                           MarkColour(), look_.beam,
                           look_.ends == StrokeEnds::kProjecting ? "square" : "butt");
    }
    for (std::size_t i = 0; i < drawing_.marks.size(); ++i) {
      WriteMark(drawing_.marks[i], schedule != nullptr ? schedule->StyleOf(i) : "",
                schedule != nullptr ? " pathLength=\"1\"" : "");
    }
    text_ += "</g>\n";
  }

  void WriteMark(const Stroke& mark, const std::string& style, const char* length) {
    if (HasPoints()) {
      text_ += fmt::format("<circle cx=\"{}\" cy=\"{}\" r=\"{:.10g}\"{}/>\n", X(mark.x0),
                           Y(mark.y0), look_.beam / 2, style);
    } else {
      text_ += fmt::format("<line x1=\"{}\" y1=\"{}\" x2=\"{}\" y2=\"{}\"{}{}/>\n", X(mark.x0),
                           Y(mark.y0), X(mark.x1), Y(mark.y1), length, style);
    }
  }

  void WriteCaptions() {
    for (const Caption& caption : drawing_.captions) {
      text_ += fmt::format(
          "<text x=\"{}\" y=\"{}\" font-family=\"{}\" font-size=\"{:.10g}\" fill=\"{}\" "
          "xml:space=\"preserve\">{}</text>\n",
          X(caption.x), Y(caption.y), kCaptionFont, caption.size, MarkColour(),
          Escaped(caption.text));
    }
  }

  const Drawing& drawing_;
  const Look& look_;
  std::string text_;
};

}  // namespace

std::string SvgOf(const Drawing& drawing, const Look& look) {
  return Svg(drawing, look).Write(nullptr);
}

std::string AnimatedSvgOf(const Drawing& drawing, const Look& look, const Speeds& speeds) {
  Schedule schedule(drawing, speeds);
  return Svg(drawing, look).Write(&schedule);
}

}  // namespace preview
