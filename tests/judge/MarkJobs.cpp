// Marks what it is asked for, line by line, so that judges that are no C++ can look at it.
//
// A line of the standard input is one job: fields with tabs between them, each name=number, those
// of BarhatchJob by their own names. Further fields:
//   text=HEX         the text, as bytes
//   picture=PIXELS   the strokes are wanted as a picture of so many pixels a module
//   cell=DOUBLE      what a single point marks, in modules; 1 where it is left out
// x_dimension and gap are 1 and 0.25 where they are left out, the height of bars 12; without
// picture no strokes are asked for.
//
// A line of the standard output answers it, in the same form: status, warnings, position, extent,
// rows, columns, codewords, capacity, message, and of a mark
//   modules=DIGITS   of BarhatchModule, row by row
//   values=HEX, reading=HEX, hri=HEX   reading and hri are left out where there is none
//   picture=WIDTH;ROWS   each row is COUNT*RUNS: so many equal rows of light, dark, light... pixels
#include <cstdlib>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "barhatch_mark.h"
#include "support/Raster.h"

namespace {

using barhatch::test::MarkColour;
using barhatch::test::MarkParameters;
using barhatch::test::Raster;
using barhatch::test::StrokeEnds;

using Fields = std::map<std::string, std::string>;

constexpr struct {
  const char* name;
  std::int32_t BarhatchJob::*field;
} kIntegers[] = {
    {"symbology", &BarhatchJob::symbology},
    {"conformance", &BarhatchJob::conformance},
    {"input", &BarhatchJob::input},
    {"envelope", &BarhatchJob::envelope},
    {"check", &BarhatchJob::check},
    {"eci", &BarhatchJob::eci},
    {"part", &BarhatchJob::part},
    {"parts", &BarhatchJob::parts},
    {"part_id", &BarhatchJob::part_id},
    {"rows", &BarhatchJob::rows},
    {"columns", &BarhatchJob::columns},
    {"shape", &BarhatchJob::shape},
    {"addon_gap", &BarhatchJob::addon_gap},
    {"pattern", &BarhatchJob::pattern},
    {"profile", &BarhatchJob::profile},
    {"invert", &BarhatchJob::invert},
    {"dots_per_module", &BarhatchJob::dots_per_module},
    {"order", &BarhatchJob::order},
};

constexpr struct {
  const char* name;
  double BarhatchJob::*field;
} kDoubles[] = {
    {"x_dimension", &BarhatchJob::x_dimension},
    {"height", &BarhatchJob::height},
    {"ratio", &BarhatchJob::ratio},
    {"quiet", &BarhatchJob::quiet},
    {"gap", &BarhatchJob::gap},
    {"beam_x", &BarhatchJob::beam_x},
    {"beam_y", &BarhatchJob::beam_y},
    {"dot", &BarhatchJob::dot},
};

[[noreturn]] void Stop(const std::string& why) {
  std::cerr << "mark_jobs: " << why << '\n';
  std::exit(2);
}

Fields FieldsOf(const std::string& line) {
  Fields fields;
  std::istringstream parts(line);
  for (std::string part; std::getline(parts, part, '\t');) {
    const std::size_t equals = part.find('=');
    if (equals == std::string::npos) Stop("no name=value: " + part);
    fields[part.substr(0, equals)] = part.substr(equals + 1);
  }
  return fields;
}

// The field's number, and the field is done with; the usual number where it is left out.
double Take(Fields& fields, const std::string& name, double usual) {
  const auto found = fields.find(name);
  if (found == fields.end()) return usual;
  const double number = std::stod(found->second);
  fields.erase(found);
  return number;
}

std::string BytesOfHex(const std::string& hex) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

std::string HexOf(const void* data, std::size_t count) {
  static constexpr char kDigits[] = "0123456789abcdef";
  const auto* bytes = static_cast<const unsigned char*>(data);
  std::string hex;
  for (std::size_t i = 0; i < count; ++i) {
    hex += kDigits[bytes[i] >> 4];
    hex += kDigits[bytes[i] & 15];
  }
  return hex;
}

struct Asked {
  BarhatchJob job = {};
  std::string text;
  double pixels = 0.0;
  double cell = 1.0;
};

void SetNumbers(Fields& fields, BarhatchJob& job) {
  job.size = sizeof job;
  job.x_dimension = 1.0;
  job.gap = 0.25;
  for (const auto& integer : kIntegers) {
    job.*integer.field = static_cast<std::int32_t>(Take(fields, integer.name, 0.0));
  }
  if (job.symbology != BARHATCH_DATA_MATRIX) job.height = 12.0;
  for (const auto& number : kDoubles) {
    job.*number.field = Take(fields, number.name, job.*number.field);
  }
  job.flags = static_cast<std::uint32_t>(Take(fields, "flags", 0.0));
}

void Parse(const std::string& line, Asked& asked) {
  Fields fields = FieldsOf(line);
  asked.text = BytesOfHex(fields["text"]);
  fields.erase("text");
  SetNumbers(fields, asked.job);
  asked.pixels = Take(fields, "picture", 0.0);
  asked.cell = Take(fields, "cell", 1.0);
  if (!fields.empty()) Stop("unknown field " + fields.begin()->first);
  asked.job.text = asked.text.data();
  asked.job.length = asked.text.size();
  asked.job.want = BARHATCH_WANT_MODULES | BARHATCH_WANT_VALUES | BARHATCH_WANT_READING;
  if (asked.pixels > 0.0) asked.job.want |= BARHATCH_WANT_STROKES;
}

// The symbol; where light is marked, its quiet zone is too.
MarkParameters ParametersOf(const Asked& asked, const BarhatchResult& result) {
  const double* const area = asked.job.invert != 0 ? result.total : result.symbol;
  MarkParameters parameters;
  parameters.left = area[0];
  parameters.bottom = area[1];
  parameters.width = area[2] - area[0];
  parameters.height = area[3] - area[1];
  parameters.margin = result.x_dimension * (result.rows == 1 ? 12.0 : 2.0);
  parameters.pixelsPerUnit = asked.pixels / result.x_dimension;
  parameters.beamWidth = asked.job.gap;
  const bool isSpiral = asked.job.pattern == BARHATCH_SPIRAL;
  parameters.ends = isSpiral ? StrokeEnds::kProjecting : StrokeEnds::kFlush;
  parameters.cellWidth = result.x_dimension * asked.cell;
  parameters.cellHeight = result.rows == 1 ? parameters.height : parameters.cellWidth;
  parameters.colour = asked.job.invert != 0 ? MarkColour::kLightOnDark : MarkColour::kDarkOnLight;
  return parameters;
}

Raster PictureOf(const Asked& asked, const BarhatchResult& result) {
  const bool isDots = result.kind == BARHATCH_DOTS;
  std::vector<double> strokes(result.strokes,
                              result.strokes + result.strokes_count * (isDots ? 2 : 4));
  FillBufferInfo fill = {};
  fill.FilledArray = strokes.data();
  fill.BufferLength = static_cast<int>(strokes.size());
  fill.FillingShapeType = result.kind;
  return MarkStrokes(fill, ParametersOf(asked, result));
}

std::string RunsOfRow(const Raster& picture, int y) {
  std::string runs;
  bool isDark = false;
  for (int x = 0, begin = 0; x <= picture.Width(); ++x) {
    const bool isEnd = x == picture.Width();
    if (!isEnd && (picture.At(x, y) < 128) == isDark) continue;
    if (isEnd && begin == x) break;
    runs += (runs.empty() ? "" : ",") + std::to_string(x - begin);
    isDark = !isDark;
    begin = x;
  }
  return runs;
}

std::string RunsOf(const Raster& picture) {
  std::string text = std::to_string(picture.Width());
  for (int y = 0; y < picture.Height();) {
    const std::string runs = RunsOfRow(picture, y);
    const int first = y;
    while (++y < picture.Height() && RunsOfRow(picture, y) == runs) {
    }
    text += ';' + std::to_string(y - first) + '*' + runs;
  }
  return text;
}

void PrintMark(const Asked& asked, const BarhatchResult& result) {
  std::cout << "\tmodules=";
  const std::size_t modules =
      static_cast<std::size_t>(result.rows) * static_cast<std::size_t>(result.columns);
  for (std::size_t i = 0; i < modules; ++i) std::cout << static_cast<int>(result.modules[i]);
  std::cout << "\tvalues=" << HexOf(result.values, result.values_count);
  if (result.reading != nullptr) {
    std::cout << "\treading=" << HexOf(result.reading, result.reading_length);
  }
  if (result.hri != nullptr) {
    std::cout << "\thri=" << HexOf(result.hri, std::char_traits<char>::length(result.hri));
  }
  if (asked.pixels > 0.0) std::cout << "\tpicture=" << RunsOf(PictureOf(asked, result));
}

void Answer(const std::string& line) {
  Asked asked;
  Parse(line, asked);
  BarhatchResult result = {};
  result.size = sizeof result;
  BarhatchMark(&asked.job, &result);
  std::cout << "status=" << result.status << "\twarnings=" << result.warnings
            << "\tposition=" << result.position << "\textent=" << result.extent
            << "\trows=" << result.rows << "\tcolumns=" << result.columns
            << "\tcodewords=" << result.codewords << "\tcapacity=" << result.capacity
            << "\tmessage=" << result.message;
  if (result.status == BARHATCH_OK) PrintMark(asked, result);
  std::cout << '\n';
  BarhatchRelease(&result);
}

}  // namespace

int main() {
  std::ios::sync_with_stdio(false);
  for (std::string line; std::getline(std::cin, line);) Answer(line);
  return 0;
}
