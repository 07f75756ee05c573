#include "mark/RandomJobs.h"

#include <cmath>
#include <cstring>

#include "device/LinearCases.h"
#include "support/SymbolSizeReference.h"
#include "support/TextClasses.h"

namespace barhatch::test {

namespace {

constexpr std::uint32_t kPatterns = 8;

}  // namespace

// From 2^exponent up to its double.
double RandomJobs::Magnitude(int exponent) {
  return std::ldexp(1.0 + static_cast<double>(random_()) / 4294967296.0, exponent);
}

std::u16string RandomJobs::LinearText(std::int32_t type) {
  const device::TextKind& kind = device::KindOf(type);
  const auto characters = static_cast<std::uint32_t>(std::strlen(kind.characters));
  auto length = static_cast<std::uint32_t>(kind.shortest);
  length += Below(static_cast<std::uint32_t>(kind.longest - kind.shortest + 1));
  if (OneIn(10)) length = Below(40);
  if (OneIn(150)) length = 3100 + Below(30);
  std::u16string text;
  while (text.size() < length) text += static_cast<char16_t>(kind.characters[Below(characters)]);
  const bool isUpcE = type == 10 || type == 19 || type == 20;
  if (isUpcE && !text.empty()) text[0] = static_cast<char16_t>(u'0' + Below(2));
  const bool isCodabar = type == BARHATCH_CODABAR;
  if (isCodabar && !OneIn(4)) text = u"A" + text + u"DT*E"[Below(4)];
  if (OneIn(12) && length > 0) text[Below(length)] = static_cast<char16_t>(1 + Below(0xFFFF));
  if (OneIn(40)) text.insert(Below(length + 1), 1, static_cast<char16_t>((1 + Below(255)) << 8));
  return text;
}

std::u16string RandomJobs::MatrixText() {
  std::uint32_t length = Below(40);
  if (OneIn(8)) length = Below(400);
  if (OneIn(60)) length = 3000 + Below(130);
  const auto textClass = static_cast<int>(Below(kTextClassCount));
  std::u16string text = Wide(RandomText(random_, length > 2000 ? 0 : textClass, length));
  if (OneIn(10)) text.insert(Below(length + 1), 1, static_cast<char16_t>(1 + Below(0xFFFF)));
  return text;
}

// At most some hundred strokes across the height, some thousand across the width.
void RandomJobs::SetSizes(MarkNumbers& numbers) {
  const int scale = static_cast<int>(Below(41)) - 20;
  numbers.width = Magnitude(scale + 3 + static_cast<int>(Below(4)));
  numbers.height = Magnitude(scale + static_cast<int>(Below(4)));
  numbers.gap = Magnitude(scale - 2 + static_cast<int>(Below(4)));
  numbers.ratio = OneIn(3) ? 2.0 + Below(5) * 0.25 : Magnitude(1);
}

void RandomJobs::SetMatrix(MarkNumbers& numbers) {
  numbers.format = static_cast<std::int32_t>(Below(4));
  numbers.isExpanding = OneIn(5) ? 0 : 1;
  const std::vector<ReferenceSize> sizes = ReferenceSizes();
  if (OneIn(4)) {
    numbers.rows = static_cast<std::int32_t>(Below(256));
    numbers.columns = OneIn(2) ? numbers.rows : static_cast<std::int32_t>(Below(256));
  } else if (OneIn(2)) {
    const ReferenceSize& size = sizes[Below(static_cast<std::uint32_t>(sizes.size()))];
    numbers.rows = size.rows;
    numbers.columns = size.columns;
  } else {
    numbers.isExpanding = 1;  // the smallest, which the exports give where it may grow
  }
}

MarkNumbers RandomJobs::Next(std::int32_t symbology) {
  MarkNumbers numbers;
  numbers.symbology = symbology;
  numbers.pattern = static_cast<std::int32_t>(Below(kPatterns));
  numbers.isInverted = OneIn(3);
  numbers.hasQuietZone = OneIn(3);
  SetSizes(numbers);
  if (symbology == BARHATCH_DATA_MATRIX) {
    numbers.text = MatrixText();
    SetMatrix(numbers);
  } else {
    numbers.text = LinearText(symbology);
  }
  return numbers;
}

BarhatchJob JobOfNumbers(const MarkNumbers& numbers) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = numbers.symbology;
  job.conformance = BARHATCH_DEVICE;
  job.input = BARHATCH_UNITS;
  job.text = numbers.text.c_str();
  job.pattern = numbers.pattern;
  job.height = numbers.height;
  job.gap = numbers.gap;
  job.invert = numbers.isInverted ? 1 : 0;
  job.flags = numbers.hasQuietZone ? static_cast<std::uint32_t>(BARHATCH_QUIET_INSIDE) : 0;
  job.quiet = numbers.hasQuietZone ? 0.0 : -1.0;
  if (numbers.symbology != BARHATCH_DATA_MATRIX) {
    job.width = numbers.width;
    job.ratio = numbers.ratio;
    return job;
  }
  job.rows = numbers.rows;
  job.columns = numbers.columns;
  if (numbers.isExpanding != 0) job.flags |= BARHATCH_MAY_GROW;
  if (numbers.format == 1) job.flags |= BARHATCH_FNC1_SECOND;
  job.envelope = numbers.format == 2 ? 5 : numbers.format == 3 ? 6 : 0;
  return job;
}

}  // namespace barhatch::test
