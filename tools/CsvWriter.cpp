#include "CsvWriter.h"

#include <fmt/core.h>

namespace preview {

std::string CsvOf(const Drawing& drawing) {
  if (drawing.kind == MarkKind::kPoints) {
    std::string csv = "x,y\n";
    for (const Stroke& mark : drawing.marks) csv += fmt::format("{},{}\n", mark.x0, mark.y0);
    return csv;
  }
  std::string csv = "x0,y0,x1,y1\n";
  for (const Stroke& mark : drawing.marks) {
    csv += fmt::format("{},{},{},{}\n", mark.x0, mark.y0, mark.x1, mark.y1);
  }
  return csv;
}

}  // namespace preview
