// The preview host: asks the library for a barcode as the host on a device would, and draws what
// the head would mark. Exit codes: 0 done, 1 the library refused or a file could not be written, 2
// bad arguments.
#include <CLI/CLI.hpp>
#include <cmath>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "LinearTypes.h"
#include "MarkImage.h"
#include "PngWriter.h"
#include "ReadBack.h"
#include "Request.h"
#include "SvgWriter.h"

namespace {

constexpr int kRefused = 1;
constexpr int kBadArguments = 2;
constexpr const char* kDataMatrixName = "datamatrix";
constexpr int kSpiral = 5;
constexpr double kLargestPicture = 100e6;  // pixels

struct Options {
  preview::Request request;
  std::vector<std::string> outputs;
  bool darkPart = false;
  bool verify = false;
  bool expandSize = false;
  double beam = 0.0;           // 0: as wide as the gap
  double margin = -1.0;        // negative: a tenth of the width
  double pixelsPerUnit = 0.0;  // 0: 1600 pixels across
};

bool EndsWith(const std::string& text, const std::string& ending) {
  return text.size() >= ending.size() &&
         text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

void SetType(const std::string& text, preview::Request& request) {
  if (text == kDataMatrixName) {
    request.kind = preview::Kind::kDataMatrix;
  } else {
    request.type = *preview::LinearTypeFrom(text);
  }
}

std::string CheckType(const std::string& text) {
  if (text == kDataMatrixName || preview::LinearTypeFrom(text)) return "";
  return "no barcode type \"" + text + "\" (see --help)";
}

// "16x48" as rows x 256 + columns; nothing for anything else.
std::optional<std::int32_t> MatrixSizeFrom(const std::string& text) {
  const std::size_t x = text.find('x');
  std::int32_t rows = 0;
  std::int32_t columns = 0;
  if (x == std::string::npos || !CLI::detail::lexical_cast(text.substr(0, x), rows) ||
      !CLI::detail::lexical_cast(text.substr(x + 1), columns)) {
    return std::nullopt;
  }
  if (rows < 1 || rows > 255 || columns < 1 || columns > 255) return std::nullopt;
  return rows * 256 + columns;
}

std::string CheckMatrixSize(const std::string& text) {
  return MatrixSizeFrom(text) ? "" : "\"" + text + "\" is not a size such as 16x48";
}

std::string CheckOutput(const std::string& path) {
  return EndsWith(path, ".svg") || EndsWith(path, ".png")
             ? ""
             : "output \"" + path + "\" is neither .svg nor .png";
}

std::string CheckLength(const std::string& text) {
  double value = 0.0;
  if (!CLI::detail::lexical_cast(text, value) || !(value > 0.0) || value > 1e9) {
    return "\"" + text + "\" is not a length above zero";
  }
  return "";
}

void Describe(CLI::App& app, Options& options) {
  preview::Request& request = options.request;
  app.add_option_function<std::string>(
         "-t,--type", [&](const std::string& text) { SetType(text, request); },
         "barcode type by number or name (default code39)")
      ->check(CheckType);
  app.add_option("text", request.text, "text of the barcode, UTF-8")->required();
  app.add_option("-W,--width", request.width, "width of the whole symbol")
      ->check(CheckLength)
      ->capture_default_str();
  app.add_option("-H,--height", request.height, "bar height")
      ->check(CheckLength)
      ->capture_default_str();
  app.add_option("-r,--ratio", request.ratio, "width of a wide element in modules")
      ->check(CheckLength)
      ->capture_default_str();
  app.add_flag("-i,--invert", request.invert, "fill the light elements instead of the dark ones");
  app.add_flag("-q,--quiet-zone", request.quietZone, "add the quiet zones of the symbology");
  app.add_option("-p,--pattern", request.pattern,
                 "0 scan lines, 1 vertical, 2 horizontal alternating, 3 vertical alternating, 5 "
                 "spiral, 6 points")
      ->check(CLI::Range(0, 6))
      ->capture_default_str();
  app.add_option("-g,--gap", request.gap, "pitch of the strokes")
      ->check(CheckLength)
      ->capture_default_str();
  app.add_option("-o,--output", options.outputs,
                 "file to write, .svg or .png; may be given several times")
      ->check(CheckOutput)
      ->required();
  app.add_option_function<std::string>(
         "--size",
         [&](const std::string& text) {
           request.matrixSize = *MatrixSizeFrom(text);
           request.expand = false;
         },
         "size of a Data Matrix, rows x columns (default: the smallest square)")
      ->check(CheckMatrixSize);
  app.add_flag("--expand", options.expandSize, "the Data Matrix may grow beyond --size");
  app.add_option("--format", request.format,
                 "code format of a Data Matrix: 1 FNC1 second, 2 and 3 macro headers")
      ->check(CLI::Range(0, 3));
  app.add_flag("--verify", options.verify,
               "read the drawn symbol back with an independent reader; exit code 1 if it cannot");
  app.add_flag("--dark-part", options.darkPart,
               "light marks on a dark part instead of dark marks on a light one");
  app.add_option("--beam", options.beam, "width of a stroke (default: the gap)")
      ->check(CheckLength);
  app.add_option("--margin", options.margin,
                 "margin around the symbol (default: a tenth of its width)")
      ->check(CLI::Range(0.0, 1e9));
  app.add_option("--pixels-per-unit", options.pixelsPerUnit,
                 "resolution of a PNG (default: 1600 pixels across)")
      ->check(CheckLength);
  app.footer(preview::LinearTypeList());
}

preview::View ViewOf(const FillBufferInfo& fill, const Options& options) {
  const preview::Request& request = options.request;
  const double beam = options.beam > 0.0 ? options.beam : request.gap;
  const double width = preview::WidthOf(request, fill);
  const double margin = options.margin >= 0.0 ? options.margin : width / 10;
  return {
      width,
      request.height,
      margin,
      beam,
      options.darkPart ? preview::Part::kDark : preview::Part::kLight,
      request.pattern == kSpiral ? preview::StrokeEnds::kProjecting : preview::StrokeEnds::kFlush};
}

std::optional<preview::Picture> DrawPicture(const FillBufferInfo& fill, const Options& options) {
  const preview::View view = ViewOf(fill, options);
  const double across = view.width + 2 * view.margin;
  const double pixelsPerUnit =
      options.pixelsPerUnit > 0.0 ? options.pixelsPerUnit : 1600.0 / across;
  const double columns = std::ceil(across * pixelsPerUnit);
  const double rows = std::ceil((view.height + 2 * view.margin) * pixelsPerUnit);
  if (!(columns * rows <= kLargestPicture)) {
    std::fprintf(stderr, "barhatch: %g x %g pixels are too many for a picture\n", columns, rows);
    return std::nullopt;
  }
  return preview::Draw(preview::MarksOf(fill, view), view, pixelsPerUnit);
}

bool WriteOne(const std::string& path, const FillBufferInfo& fill, const Options& options) {
  if (EndsWith(path, ".svg")) return preview::WriteSvg(path, fill, ViewOf(fill, options));
  const std::optional<preview::Picture> picture = DrawPicture(fill, options);
  return picture && preview::WritePng(path, *picture);
}

bool Verify(const FillBufferInfo& fill, const Options& options) {
  if (!preview::CanReadBack()) {
    std::fprintf(stderr, "barhatch: built without a reader, cannot verify\n");
    return false;
  }
  const std::optional<preview::Picture> picture = DrawPicture(fill, options);
  const std::optional<preview::Reading> reading =
      picture ? preview::ReadBack(*picture) : std::nullopt;
  if (!reading) {
    std::fprintf(stderr, "barhatch: the reader finds no symbol in the picture\n");
    return false;
  }
  std::printf("%s reads %s \"%s\"\n", reading->reader.c_str(), reading->format.c_str(),
              reading->text.c_str());
  return true;
}

int Run(const Options& options) {
  const preview::Request& request = options.request;
  const preview::Fill fill = preview::Generate(request);
  if (!fill) {
    std::fprintf(stderr, "barhatch: %s\n", preview::WhyRefused(request).c_str());
    return kRefused;
  }
  const bool points = fill->FillingShapeType == 2;
  std::printf("%s \"%s\": %d %s\n", preview::NameOf(request).c_str(), request.text.c_str(),
              fill->BufferLength / (points ? 2 : 4), points ? "points" : "strokes");
  for (const std::string& path : options.outputs) {
    if (!WriteOne(path, *fill, options)) {
      std::fprintf(stderr, "barhatch: cannot write %s\n", path.c_str());
      return kRefused;
    }
  }
  if (options.verify && !Verify(*fill, options)) return kRefused;
  return 0;
}

int ParseAndRun(int argc, char** argv) {
  CLI::App app{"Draws the strokes with which a marking head marks a barcode.", "barhatch"};
  Options options;
  Describe(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return app.exit(help);
  } catch (const CLI::ParseError& error) {
    std::fprintf(stderr, "barhatch: %s\n", error.what());
    return kBadArguments;
  }
  if (options.expandSize) options.request.expand = true;
  return Run(options);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return ParseAndRun(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "barhatch: %s\n", error.what());
    return kRefused;
  }
}
