// The fill patterns once more, written plainly and appending to a std::vector: no counting ahead,
// no shared code, no shared tables. The library's fills have to agree with these to the last bit.
#ifndef BARHATCH_TESTS_SUPPORT_PLAINHATCHER_H
#define BARHATCH_TESTS_SUPPORT_PLAINHATCHER_H

#include <string>
#include <vector>

namespace barhatch::test {

struct PlainRect {
  double x0, y0, x1, y1;
};

struct PlainRequest {
  double width;
  double height;
  double printRatio;
  double lineGap;
  int hatchingType;
  bool invert;
};

// REQUIRES for all: values for which the plain loops end (a gap that is not tiny).
std::vector<double> PlainPattern(const std::vector<PlainRect>& rects, int hatchingType, double gap);
std::vector<PlainRect> PlainRects(const std::string& letters, double moduleSize, double printRatio,
                                  double barHeight, bool invert);
std::vector<double> PlainLinearFill(const std::string& moduleString, const PlainRequest& request);

}  // namespace barhatch::test

#endif
