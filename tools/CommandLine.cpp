#include "CommandLine.h"

#include <fmt/core.h>

#include <CLI/CLI.hpp>

#include "JobOptions.h"
#include "Messages.h"
#include "Symbologies.h"

namespace preview {

namespace {

constexpr double kLargestNumber = 1e9;

constexpr const char* kFooter =
    "Lengths are in millimetres, texts in UTF-8. A text that begins with - goes behind --.\n"
    "The ending of an output says what it is: .svg .png pictures, .csv the strokes, .dxf a "
    "drawing,\n"
    ".gcode .nc a program for an engraver. With --batch, {n} in its name is the number of the "
    "line\n"
    "and {text} its text.\n"
    "Exit codes: 0 done; 1 a text was refused or a file could not be read or written; 2 bad\n"
    "arguments; 3 a symbol was not read back as its text.\n"
    "barhatch --list shows the types.";

std::string CheckType(const std::string& text) {
  return SymbologyFrom(text) ? "" : "no barcode type \"" + text + "\" (see --list)";
}

struct MatrixSize {
  std::int32_t rows;
  std::int32_t columns;
};

// "16x48"; nothing for anything else.
std::optional<MatrixSize> MatrixSizeFrom(const std::string& text) {
  const std::size_t x = text.find('x');
  MatrixSize size{};
  if (x == std::string::npos || !CLI::detail::lexical_cast(text.substr(0, x), size.rows) ||
      !CLI::detail::lexical_cast(text.substr(x + 1), size.columns)) {
    return std::nullopt;
  }
  if (size.rows < 1 || size.rows > 255 || size.columns < 1 || size.columns > 255) {
    return std::nullopt;
  }
  return size;
}

std::string CheckMatrixSize(const std::string& text) {
  return MatrixSizeFrom(text) ? "" : "\"" + text + "\" is not a size such as 16x48";
}

std::string CheckOutput(const std::string& path) {
  for (const char* ending : {".svg", ".png", ".csv", ".dxf", ".gcode", ".nc"}) {
    if (HasEnding(path, ending)) return "";
  }
  return "\"" + path + "\" ends in none of .svg .png .csv .dxf .gcode .nc";
}

std::string CheckAboveZero(const std::string& text) {
  double value = 0.0;
  if (!CLI::detail::lexical_cast(text, value) || !(value > 0.0) || value > kLargestNumber) {
    return "\"" + text + "\" is not a number above zero, up to 1e9";
  }
  return "";
}

// A check of a number from zero on; the limit is a number and its text.
auto FromZeroTo(double most, const char* limit) {
  return [most, limit](const std::string& text) -> std::string {
    double value = 0.0;
    if (CLI::detail::lexical_cast(text, value) && value >= 0.0 && value <= most) return "";
    return "\"" + text + "\" is not a number from 0 to " + limit;
  };
}

std::string CheckPattern(const std::string& text) {
  for (const char* pattern : {"0", "1", "2", "3", "5", "6"}) {
    if (text == pattern) return "";
  }
  return "\"" + text + "\" is no pattern; there are 0, 1, 2, 3, 5 and 6";
}

CLI::Option* AddLength(CLI::App& app, const char* name, double& value, const char* description) {
  return app.add_option(name, value, description)->check(CheckAboveZero);
}

void DescribeSymbol(CLI::App& app, Options& options) {
  Request& request = options.request;
  BarhatchJob& job = request.job;
  app.add_option("text", request.text, "text of the barcode")->group("Symbol");
  app.add_option_function<std::string>(
         "-t,--type", [&](const std::string& text) { job.symbology = *SymbologyFrom(text); },
         "type by number or name (default code39)")
      ->check(CheckType);
  app.add_flag("-d,--device", request.device,
               "as the device writes it, with its deviations from the standard");
  AddLength(app, "-W,--width", job.width, "width of a linear symbol")->capture_default_str();
  AddLength(app, "-H,--height", job.height, "height of the bars, or of a Data Matrix")
      ->capture_default_str();
  AddLength(app, "-r,--ratio", job.ratio, "width of a wide element in modules (default 3)");
  app.add_option_function<std::string>(
         "--size",
         [&](const std::string& text) {
           const MatrixSize size = *MatrixSizeFrom(text);
           job.rows = size.rows;
           job.columns = size.columns;
         },
         "size of a Data Matrix, rows x columns (default: the smallest of the shape)")
      ->check(CheckMatrixSize);
  DescribeJobOptions(app, job);
}

void DescribeMarking(CLI::App& app, Options& options) {
  BarhatchJob& job = options.request.job;
  app.add_option("-p,--pattern", job.pattern,
                 "0 scan lines, 1 vertical, 2 horizontal alternating, 3 vertical alternating, 5 "
                 "spiral, 6 points")
      ->check(CheckPattern)
      ->capture_default_str();
  AddLength(app, "-g,--gap", job.gap, "pitch of the strokes")->capture_default_str();
  app.add_flag("-i,--invert", job.invert, "fill the light elements instead of the dark ones");
  AddLength(app, "--mark-speed,--feed", options.speeds.mark, "marking speed, mm/s")
      ->capture_default_str();
  AddLength(app, "--jump-speed,--travel-speed", options.speeds.jump, "speed between strokes, mm/s")
      ->capture_default_str();
  AddLength(app, "--dwell", options.speeds.dwell, "time at each point, ms")->capture_default_str();
  app.add_option("--power", options.laser.power, "S word of G-code, in the controller's measure")
      ->check(FromZeroTo(1e6, "1e6"))
      ->capture_default_str();
  app.add_option_function<std::string>(
         "--laser",
         [&](const std::string& word) {
           options.laser.mode = word == "M4" ? LaserMode::kDynamic : LaserMode::kConstant;
         },
         "M3 constant or M4 dynamic power in G-code (default M3)")
      ->check(CLI::IsMember({"M3", "M4"}));
}

void DescribeOutput(CLI::App& app, Options& options) {
  app.add_option("-o,--output", options.outputs, "file to write; may be given several times")
      ->check(CheckOutput)
      ->allow_extra_args(false);
  app.add_flag("--animate", options.animate, "the SVG draws the strokes in marking order");
  app.add_flag("--dark-part", options.darkPart,
               "light marks on a dark part instead of dark marks on a light one");
  AddLength(app, "--beam", options.beam,
            "width of a stroke or dot in pictures (default: the gap, for dots a module)");
  app.add_option("--margin", options.margin,
                 "margin of pictures (default: a tenth of the symbol's width)")
      ->check(FromZeroTo(kLargestNumber, "1e9"));
  AddLength(app, "--pixels-per-unit", options.pixelsPerUnit,
            "resolution of a PNG (default: 1600 pixels across)");
}

void DescribeTasks(CLI::App& app, Options& options) {
  app.add_option("--batch", options.batch, "texts from a file, one a line; - for standard input");
  app.add_flag("--same-size", options.sameSize,
               "every Data Matrix of the batch in the size of the largest");
  app.add_option("--mask", options.mask,
                 "in the size that holds every text of a mask: # a digit, A a letter, ? any byte")
      ->excludes("--same-size", "--size");
  app.add_flag("--sheet", options.sheet, "all symbols of the batch in one file, with captions");
  app.add_option("--columns", options.columns, "symbols side by side on the sheet")
      ->check(CLI::Range(1, 1000))
      ->capture_default_str();
  app.add_flag(
      "--explain", options.explain,
      "say why a text is refused, or what a standard reader reads and which deviations are met");
  app.add_flag("--verify", options.verify, "read the drawn symbol back with an independent reader");
  app.add_flag("--list", options.list, "show the types");
  app.add_option("--table", options.table, "print the list as a table in Markdown: types")
      ->check(CLI::IsMember({"types"}));
  app.add_flag("-Q,--quiet", options.quiet, "print no statistics");
  app.set_version_flag("--version", "barhatch " BARHATCH_VERSION);
  app.footer(kFooter);
}

bool HasOutput(const Options& options, std::initializer_list<const char*> endings) {
  for (const std::string& path : options.outputs) {
    for (const char* ending : endings) {
      if (HasEnding(path, ending)) return true;
    }
  }
  return false;
}

bool IsForMatrix(const Options& o) { return IsMatrix(o.request); }
bool IsForLinear(const Options& o) { return !IsMatrix(o.request); }
bool IsByTheBook(const Options& o) { return !o.request.device; }
bool IsOfTheDevice(const Options& o) { return o.request.device; }
bool HasSvg(const Options& o) { return HasOutput(o, {".svg"}); }
bool HasPixels(const Options& o) { return o.verify || HasOutput(o, {".png"}); }
bool HasPicture(const Options& o) { return HasSvg(o) || HasPixels(o); }
bool HasGcode(const Options& o) { return HasOutput(o, {".gcode", ".nc"}); }
bool MarksPoints(const Options& o) { return o.request.job.pattern == BARHATCH_POINTS; }
bool MarksStrokes(const Options& o) { return !MarksPoints(o); }
bool HasBatch(const Options& o) { return !o.batch.empty(); }
bool HasBatchOfMatrices(const Options& o) { return HasBatch(o) && IsForMatrix(o); }
bool HasSheet(const Options& o) { return o.sheet; }

// Where an option has an effect.
struct Applicability {
  const char* option;
  bool (*applies)(const Options& options);
  const char* where;
};
constexpr Applicability kApplicabilities[] = {
    {"--permit", IsByTheBook, "marks by the book"},
    {"--width", IsForLinear, "a linear type; a Data Matrix takes its size from --height"},
    {"--ratio", IsForLinear, "linear types with wide elements"},
    {"--size", IsForMatrix, "a Data Matrix"},
    {"--expand", IsForMatrix, "a Data Matrix"},
    {"--format", IsOfTheDevice, "--device; by the book there are --fnc1-second and --envelope"},
    {"--animate", HasSvg, "an SVG"},
    {"--dark-part", HasPicture, "a picture (.svg, .png, --verify)"},
    {"--beam", HasPicture, "a picture (.svg, .png, --verify)"},
    {"--margin", HasPicture, "a picture (.svg, .png, --verify)"},
    {"--pixels-per-unit", HasPixels, "a PNG or --verify"},
    {"--power", HasGcode, "G-code (.gcode, .nc)"},
    {"--laser", HasGcode, "G-code (.gcode, .nc)"},
    {"--dwell", MarksPoints, "points (--pattern 6)"},
    {"--mark-speed", MarksStrokes, "strokes; points have a --dwell"},
    {"--sheet", HasBatch, "a batch"},
    {"--same-size", HasBatchOfMatrices, "a batch of Data Matrix symbols"},
    {"--mask", IsForMatrix, "a Data Matrix"},
    {"--columns", HasSheet, "a --sheet"},
};

std::string WhyBatchIsWrong(const CLI::App& app, const Options& options) {
  if (app.count("text") > 0) return "a batch takes its texts from the file, not from arguments";
  if (options.sheet && options.outputs.empty()) return "--sheet needs an --output";
  if (options.sheet) return "";
  for (const std::string& path : options.outputs) {
    if (path.find("{n}") == std::string::npos && path.find("{text}") == std::string::npos) {
      return "output \"" + path + "\" of a batch needs {n} or {text} in its name, or --sheet";
    }
  }
  return "";
}

// Empty where nothing is asked for beside the list or the table.
std::string WhyListIsWrong(const CLI::App& app, const std::string& asked) {
  for (const CLI::Option* option : app.get_options()) {
    const std::string name = option->get_name();
    if (option->count() > 0 && name != asked) {
      return fmt::format("{} stands alone, without {}", asked, name);
    }
  }
  return "";
}

// Empty where everything fits together.
std::string WhyItIsWrong(const CLI::App& app, const Options& options) {
  if (options.list) return WhyListIsWrong(app, "--list");
  if (!options.table.empty()) return WhyListIsWrong(app, "--table");
  for (const Applicability& row : kApplicabilities) {
    if (app.count(row.option) > 0 && !row.applies(options)) {
      return std::string(row.option) + " is for " + row.where;
    }
  }
  if (app.count("--expand") > 0 && app.count("--size") == 0) return "--expand needs a --size";
  if (MarksPoints(options) && options.laser.mode == LaserMode::kDynamic) {
    return "--laser M4 is off where the head stands still: points need M3";
  }
  if (HasBatch(options)) return WhyBatchIsWrong(app, options);
  if (app.count("text") == 0) return "a text is required (or --batch, --list, --help)";
  return TextFrom(options.request, options.request.text) ? "" : WhyNoBytes(options.request.text);
}

// The arguments that are no options and no text.
std::string WhyExtrasAreWrong(const CLI::App& app) {
  const std::string first = app.remaining().front();
  if (first.size() > 1 && first[0] == '-') {
    return "there is no option " + Quoted(first) + "; a text that begins with - goes behind --";
  }
  return "one text only, without " + Quoted(first) + "; a text with spaces goes in quotes";
}

// "--gap: 1 required FLOAT missing" and "--gap: At Most 1 required but received 2".
std::string WhyCountIsWrong(const std::string& told) {
  const std::string option = told.substr(0, told.find(':'));
  const bool isMissing = told.find("missing") != std::string::npos;
  return option + (isMissing ? " needs a value" : " is given more than once");
}

}  // namespace

bool HasEnding(const std::string& path, const std::string& ending) {
  return path.size() >= ending.size() &&
         path.compare(path.size() - ending.size(), ending.size(), ending) == 0;
}

std::optional<int> ParseCommandLine(int argc, const char* const* argv, Options& options) {
  CLI::App app{"Draws the strokes with which a marking head marks a barcode.", "barhatch"};
  DescribeSymbol(app, options);
  DescribeMarking(app, options);
  DescribeOutput(app, options);
  DescribeTasks(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return app.exit(help);
  } catch (const CLI::CallForVersion& version) {
    return app.exit(version);
  } catch (const CLI::ExtrasError&) {
    PrintError(WhyExtrasAreWrong(app));
    return kBadArguments;
  } catch (const CLI::ArgumentMismatch& error) {
    PrintError(WhyCountIsWrong(error.what()));
    return kBadArguments;
  } catch (const CLI::ParseError& error) {
    PrintError(error.what());
    return kBadArguments;
  }
  const std::string wrong = WhyItIsWrong(app, options);
  if (!wrong.empty()) {
    PrintError(wrong);
    return kBadArguments;
  }
  options.request.text = *TextFrom(options.request, options.request.text);
  return std::nullopt;
}

}  // namespace preview
