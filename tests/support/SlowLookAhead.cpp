#include "support/SlowLookAhead.h"

#include <cmath>

namespace barhatch::test {

namespace {

void CountCharacter(SlowCounts& counts, char character) {
  const int c = static_cast<signed char>(character);
  const bool isDigit = c >= '0' && c <= '9';
  const bool isUpper = c >= 'A' && c <= 'Z';
  const bool isLower = c >= 'a' && c <= 'z';
  const bool isX12Sign = c == '*' || c == '>';

  if (isDigit) {
    counts.ascii += 0.5;
  } else if ((c >= 32 && c <= 94) || c == 13 || isLower) {
    counts.ascii = std::ceil(counts.ascii) + 1;
  } else {
    counts.ascii = std::trunc(counts.ascii) + 1;
  }

  if (isDigit || isUpper || c == ' ') {
    counts.c40 += 2.0 / 3.0;
  } else {
    counts.c40 += 4.0 / 3.0;
  }

  if (isDigit || isLower || c == ' ') {
    counts.text += 2.0 / 3.0;
  } else {
    counts.text += 4.0 / 3.0;
  }

  if (isDigit || isUpper || c == ' ' || isX12Sign || c == 13) {
    counts.x12 += 2.0 / 3.0;
  } else {
    counts.x12 += 10.0 / 3.0;
  }

  if (c >= 32 && c <= 94) {
    counts.edifact += 0.75;
  } else {
    counts.edifact += 3.25;
  }

  counts.base256 += 1;
}

}  // namespace

SlowCounts SlowLookAheadCounts(const std::string& text, std::size_t position, int mode) {
  const double others = mode == 1 ? 1.0 : 2.0;
  SlowCounts counts = {others, others, others, others, others, others};
  if (mode == 1) counts.ascii = 0;
  if (mode == 2) counts.base256 = 0;
  if (mode == 3) counts.edifact = 0;
  if (mode == 4) counts.text = 0;
  if (mode == 5) counts.x12 = 0;
  if (mode == 6) counts.c40 = 0;
  for (std::size_t i = position; i < text.size(); ++i) CountCharacter(counts, text[i]);
  return counts;
}

int SlowLookAhead(const std::string& text, std::size_t position, int mode) {
  if (position > text.size()) return mode;
  const SlowCounts counts = SlowLookAheadCounts(text, position, mode);
  const double a = std::ceil(counts.ascii);
  const double b = std::ceil(counts.base256);
  const double e = std::ceil(counts.edifact);
  const double t = std::ceil(counts.text);
  const double x = std::ceil(counts.x12);
  const double c = std::ceil(counts.c40);
  if (a <= c && a <= t && a <= x && a <= e && a <= b) return 1;
  if (b < a && b < c && b < t && b < x && b < e) return 2;
  if (e < a && e < c && e < t && e < x && e < b) return 3;
  if (t < a && t < c && t < x && t < e && t < b) return 4;
  if (x < a && x < c && x < t && x < e && x < b) return 5;
  return 6;
}

}  // namespace barhatch::test
