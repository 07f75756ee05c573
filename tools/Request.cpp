#include "Request.h"

#include "TextRules.h"

namespace preview {

namespace {

constexpr char32_t kBroken = 0xFFFFFFFF;

// The code point that starts at index, which moves behind it; kBroken for what is none: stray and
// missing bytes, longer forms than needed, surrogates, values above U+10FFFF.
char32_t NextCodePoint(const std::string& utf8, std::size_t& index) {
  const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char first = byteAt(index++);
  if (first < 0x80) return first;
  if (first < 0xC2 || first > 0xF4) return kBroken;
  const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
  char32_t point = first & (0x3Fu >> more);
  for (int i = 0; i < more; ++i) {
    if (index >= utf8.size() || (byteAt(index) & 0xC0) != 0x80) return kBroken;
    point = point << 6 | (byteAt(index++) & 0x3Fu);
  }
  constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
  const bool isSurrogate = point >= 0xD800 && point < 0xE000;
  return point >= kLeast[more] && point <= 0x10FFFF && !isSurrogate ? point : kBroken;
}

// With the NUL that the library looks for.
std::basic_string<BarhatchChar> HostText(const Request& request) {
  const std::u16string units = ToUnits(request.text).value_or(u"");
  return {units.begin(), units.end()};
}

LinearBarcodeInfo LinearRecord(const Request& request, const BarhatchChar* text) {
  LinearBarcodeInfo info{};
  info.height = request.height;
  info.width = request.width;
  info.type = request.type;
  info.DataString = text;
  info.HatchingType = request.pattern;
  info.LineGap = request.gap;
  info.InvertImage = request.invert ? 1 : 0;
  info.PrintRatio = request.ratio;
  info.QuietZone = request.quietZone ? 1 : 0;
  return info;
}

DataMatrixBarcodeInfo MatrixRecord(const Request& request, const BarhatchChar* text) {
  DataMatrixBarcodeInfo info{};
  info.height = request.height;
  info.format = request.format;
  info.DataString = text;
  info.HatchingType = request.pattern;
  info.LineGap = request.gap;
  info.InvertImage = request.invert ? 1 : 0;
  info.MatrixSize = request.matrixSize;
  info.IsExpanding = request.expand ? 1 : 0;
  info.QuietZone = request.quietZone ? 1 : 0;
  return info;
}

// The modules of the linear symbol, its wide elements as so many as they are wide.
double ModulesOf(const Request& request) {
  Request points = request;
  points.pattern = 6;  // the cheapest fill; its settings stay in force, the quiet zone among them
  Generate(points);
  const std::unique_ptr<char[]> letters(GenerateBarcodeString());
  double modules = 0.0;
  for (const char* letter = letters.get(); letter != nullptr && *letter != '\0'; ++letter) {
    modules += *letter == 'A' || *letter == 'a' ? 1.0 : request.ratio;
  }
  return modules;
}

}  // namespace

std::optional<std::u16string> ToUnits(const std::string& utf8) {
  std::u16string units;
  for (std::size_t index = 0; index < utf8.size();) {
    const char32_t point = NextCodePoint(utf8, index);
    if (point == kBroken || point == 0) return std::nullopt;
    if (point > 0xFFFF) {
      units += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
      units += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
    } else {
      units += static_cast<char16_t>(point);
    }
  }
  return units;
}

BarcodeText TextOf(const Request& request) {
  return {request.kind,   request.type,       ToUnits(request.text).value_or(u""),
          request.format, request.matrixSize, request.expand};
}

Fill Generate(const Request& request) {
  const std::basic_string<BarhatchChar> text = HostText(request);
  InitBarcode();
  if (request.kind == Kind::kDataMatrix) {
    const DataMatrixBarcodeInfo info = MatrixRecord(request, text.c_str());
    return Fill(GenerateDataMatrixBarcode(&info));
  }
  const LinearBarcodeInfo info = LinearRecord(request, text.c_str());
  return Fill(GenerateLinearBarcode(&info));
}

std::string NameOf(const Request& request) {
  return request.kind == Kind::kDataMatrix ? "datamatrix" : RuleOf(request.type).name;
}

double WidthOf(const Request& request, const FillBufferInfo& fill) {
  if (request.kind == Kind::kLinear) return request.width;
  return fill.FillWidth + (request.height - fill.FillHeight);
}

double ModuleSizeOf(const Request& request, const FillBufferInfo& fill) {
  if (request.kind == Kind::kDataMatrix) return (request.height - fill.FillHeight) / 2;
  const double modules = ModulesOf(request);
  return modules > 0.0 ? request.width / modules : 0.0;
}

}  // namespace preview
