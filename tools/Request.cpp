#include "Request.h"

#include <cstdio>

#include "LinearTypes.h"

namespace preview {

namespace {

constexpr std::size_t kLongestText = 3119;
constexpr std::size_t kLongestDataMatrixText = 3116;
constexpr char32_t kReplacement = 0xFFFD;

// The code point that starts at index, which moves behind it.
char32_t NextCodePoint(const std::string& utf8, std::size_t& index) {
  const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char first = byteAt(index++);
  if (first < 0x80) return first;
  const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
  if (first < 0xC2 || first > 0xF4) return kReplacement;
  char32_t point = first & (0x3Fu >> more);
  for (int i = 0; i < more; ++i) {
    if (index >= utf8.size() || (byteAt(index) & 0xC0) != 0x80) return kReplacement;
    point = point << 6 | (byteAt(index++) & 0x3Fu);
  }
  return point <= 0x10FFFF ? point : kReplacement;
}

bool HasModuleString(const Request& request) {
  InitBarcode();
  SetBarcodeType(request.type);
  SetDataString(ToUnits(request.text).data());
  const std::unique_ptr<char[]> letters(GenerateBarcodeString());
  return letters != nullptr;
}

Fill GenerateLinear(const Request& request) {
  const std::vector<BarhatchChar> text = ToUnits(request.text);
  LinearBarcodeInfo info{};
  info.height = request.height;
  info.width = request.width;
  info.type = request.type;
  info.DataString = text.data();
  info.HatchingType = request.pattern;
  info.LineGap = request.gap;
  info.InvertImage = request.invert ? 1 : 0;
  info.PrintRatio = request.ratio;
  info.QuietZone = request.quietZone ? 1 : 0;
  return Fill(GenerateLinearBarcode(&info));
}

Fill GenerateMatrix(const Request& request) {
  const std::vector<BarhatchChar> text = ToUnits(request.text);
  DataMatrixBarcodeInfo info{};
  info.height = request.height;
  info.format = request.format;
  info.DataString = text.data();
  info.HatchingType = request.pattern;
  info.LineGap = request.gap;
  info.InvertImage = request.invert ? 1 : 0;
  info.MatrixSize = request.matrixSize;
  info.IsExpanding = request.expand ? 1 : 0;
  info.QuietZone = request.quietZone ? 1 : 0;
  return Fill(GenerateDataMatrixBarcode(&info));
}

// Points of one module each always fill something, so null with them means that there is no symbol.
bool HasMatrix(const Request& request) {
  Request points = request;
  points.pattern = 6;
  points.height = 1.0;
  return Generate(points) != nullptr;
}

}  // namespace

std::vector<BarhatchChar> ToUnits(const std::string& utf8) {
  std::vector<BarhatchChar> units;
  for (std::size_t index = 0; index < utf8.size();) {
    const char32_t point = NextCodePoint(utf8, index);
    if (point > 0xFFFF) {
      units.push_back(static_cast<BarhatchChar>(0xD800 + ((point - 0x10000) >> 10)));
      units.push_back(static_cast<BarhatchChar>(0xDC00 + ((point - 0x10000) & 0x3FF)));
    } else {
      units.push_back(static_cast<BarhatchChar>(point));
    }
  }
  units.push_back(0);
  return units;
}

Fill Generate(const Request& request) {
  InitBarcode();
  return request.kind == Kind::kDataMatrix ? GenerateMatrix(request) : GenerateLinear(request);
}

std::string NameOf(const Request& request) {
  return request.kind == Kind::kDataMatrix ? "datamatrix" : LinearTypeName(request.type);
}

double WidthOf(const Request& request, const FillBufferInfo& fill) {
  if (request.kind == Kind::kLinear) return request.width;
  return fill.FillWidth + (request.height - fill.FillHeight);
}

std::string WhyRefused(const Request& request) {
  const bool isMatrix = request.kind == Kind::kDataMatrix;
  const std::size_t units = ToUnits(request.text).size() - 1;
  const std::size_t limit = isMatrix ? kLongestDataMatrixText : kLongestText;
  if (units > limit) {
    return "the text has " + std::to_string(units) + " characters, the limit is " +
           std::to_string(limit);
  }
  if (isMatrix && !HasMatrix(request))
    return "the text does not fit a Data Matrix of the size asked for";
  if (!isMatrix && !HasModuleString(request)) {
    return NameOf(request) + " cannot encode the text \"" + request.text + '"';
  }
  char gap[32];
  std::snprintf(gap, sizeof gap, "%g", request.gap);
  return "pattern " + std::to_string(request.pattern) + " with a line gap of " + gap +
         " fills nothing, or more than a fill buffer holds";
}

}  // namespace preview
