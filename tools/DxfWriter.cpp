#include "DxfWriter.h"

#include <fmt/core.h>

namespace preview {

namespace {

constexpr const char* kLayer = "MARK";

// A group: the code on one line, its value on the next.
void Put(std::string& dxf, int code, const std::string& value) {
  dxf += fmt::format("{:>3}\n{}\n", code, value);
}

// Release 12 wants a decimal point in every real number.
void Put(std::string& dxf, int code, double value) {
  std::string digits = fmt::format("{}", value);
  if (digits.find_first_of(".e") == std::string::npos) digits += ".0";
  Put(dxf, code, digits);
}

void PutPlace(std::string& dxf, int code, double x, double y) {
  Put(dxf, code, x);
  Put(dxf, code + 10, y);
  Put(dxf, code + 20, 0.0);
}

void PutHeader(std::string& dxf, const Drawing& drawing) {
  Put(dxf, 0, "SECTION");
  Put(dxf, 2, "HEADER");
  Put(dxf, 9, "$ACADVER");
  Put(dxf, 1, "AC1009");
  Put(dxf, 9, "$INSUNITS");
  Put(dxf, 70, "4");  // millimetres
  Put(dxf, 9, "$EXTMIN");
  PutPlace(dxf, 10, 0.0, 0.0);
  Put(dxf, 9, "$EXTMAX");
  PutPlace(dxf, 10, drawing.width, drawing.height);
  Put(dxf, 0, "ENDSEC");
}

void PutLayer(std::string& dxf) {
  Put(dxf, 0, "SECTION");
  Put(dxf, 2, "TABLES");
  Put(dxf, 0, "TABLE");
  Put(dxf, 2, "LAYER");
  Put(dxf, 70, "1");
  Put(dxf, 0, "LAYER");
  Put(dxf, 2, kLayer);
  Put(dxf, 70, "0");
  Put(dxf, 62, "7");
  Put(dxf, 6, "CONTINUOUS");
  Put(dxf, 0, "ENDTAB");
  Put(dxf, 0, "ENDSEC");
}

}  // namespace

std::string DxfOf(const Drawing& drawing) {
  std::string dxf;
  PutHeader(dxf, drawing);
  PutLayer(dxf);
  Put(dxf, 0, "SECTION");
  Put(dxf, 2, "ENTITIES");
  for (const Stroke& mark : drawing.marks) {
    Put(dxf, 0, drawing.kind == MarkKind::kPoints ? "POINT" : "LINE");
    Put(dxf, 8, kLayer);
    PutPlace(dxf, 10, mark.x0, mark.y0);
    if (drawing.kind == MarkKind::kStrokes) PutPlace(dxf, 11, mark.x1, mark.y1);
  }
  Put(dxf, 0, "ENDSEC");
  Put(dxf, 0, "EOF");
  return dxf;
}

}  // namespace preview
