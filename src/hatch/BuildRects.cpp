#include "hatch/BuildRects.h"

#include "job/ModuleString.h"

namespace barhatch {

namespace {

bool IsNarrow(char letter) { return letter == kNarrowBar || letter == kNarrowSpace; }
bool IsWide(char letter) { return letter == kWideBar || letter == kWideSpace; }

bool IsFilled(char letter, FilledElements filled) {
  return filled == FilledElements::kDark ? letter == kNarrowBar || letter == kWideBar
                                         : letter == kNarrowSpace || letter == kWideSpace;
}

}  // namespace

double ModuleCount(const char* moduleString, double printRatio) {
  double modules = 0.0;
  for (; *moduleString != '\0'; ++moduleString) {
    if (IsNarrow(*moduleString)) modules += 1.0;
    if (IsWide(*moduleString)) modules += printRatio;
  }
  return modules;
}

std::size_t CountFilled(const char* row, FilledElements filled) {
  std::size_t count = 0;
  for (; *row != '\0'; ++row) count += IsFilled(*row, filled) ? 1u : 0u;
  return count;
}

double BuildRects(const char* row, const ElementSizes& sizes, FilledElements filled,
                  RectList& rects) {
  double x = 0.0;
  for (; *row != '\0'; ++row) {
    if (!IsNarrow(*row) && !IsWide(*row)) continue;
    const double right = x + (IsWide(*row) ? sizes.wideSize : sizes.moduleSize);
    if (IsFilled(*row, filled)) rects.Append(HatchRect(x, 0.0, right, sizes.barHeight));
    x = right;
  }
  return x;
}

}  // namespace barhatch
