#include "device/LinearCases.h"

#include <cmath>
#include <limits>

namespace barhatch::device {

namespace {

constexpr char kDigits[] = "0123456789";
constexpr char kCode39[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";
constexpr char kPrintable[] =
    " !\"#$%&'()*+,-./"
    "0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~";

constexpr TextKind kKinds[kTypes] = {
    {0, "codabar", "0123456789-$:/.+", 1, 30, "A40156B"},
    {1, "code39", kCode39, 0, 25, "ABCD-1234567"},
    {2, "code93", kCode39, 0, 25, "ABCD-1234567"},
    {3, "ean13", kDigits, 12, 12, "950110153100"},
    {4, "msi", kDigits, 1, 14, "1234567"},
    {5, "code128-auto", kPrintable, 1, 30, "Lot 12345678-A"},
    {6, "code128-a", kCode39, 1, 30, "LOT 12345678-A"},
    {7, "code128-b", kPrintable, 1, 30, "Lot 12345678-A"},
    {8, "code128-c", kDigits, 2, 30, "12345678901234"},
    {9, "upc-a", kDigits, 11, 11, "01234567890"},
    {10, "upc-e", kDigits, 7, 7, "0123456"},
    {11, "code11", "0123456789-", 1, 20, "123-45678"},
    {12, "ean8", kDigits, 7, 7, "9501234"},
    {13, "upc-a+2", kDigits, 13, 13, "0123456789012"},
    {14, "upc-a+5", kDigits, 16, 16, "0123456789051234"},
    {15, "ean13+2", kDigits, 14, 14, "97713845240112"},
    {16, "ean13+5", kDigits, 17, 17, "97807798773054321"},
    {17, "ean8+2", kDigits, 9, 9, "950123412"},
    {18, "ean8+5", kDigits, 12, 12, "950123454321"},
    {19, "upc-e+2", kDigits, 9, 9, "012345612"},
    {20, "upc-e+5", kDigits, 12, 12, "012345654321"},
    {21, "interleaved2of5", kDigits, 0, 30, "12345678901231"},
    {22, "code93-ascii", kPrintable, 0, 20, "Lot 12345678-A"},
};

constexpr bool KindsAreIndexedByType() {
  for (std::int32_t i = 0; i < kTypes; ++i) {
    if (kKinds[i].type != i) return false;
  }
  return true;
}
static_assert(KindsAreIndexedByType());

constexpr std::uint32_t kMostLines = 40;  // across the height, or module widths across a gap

}  // namespace

const TextKind& KindOf(std::int32_t type) { return kKinds[type]; }

std::u16string Wide(const std::string& text) {
  std::u16string wide;
  for (const char c : text) wide += static_cast<char16_t>(static_cast<unsigned char>(c));
  return wide;
}

double LinearCases::Between(double low, double high) {
  return low + (high - low) * (static_cast<double>(random_()) / 4294967296.0);
}

// Four decades up and down from one unit.
double LinearCases::Length() { return std::pow(10.0, Between(-4.0, 4.0)); }

std::u16string LinearCases::Text(std::int32_t type) {
  const TextKind& kind = KindOf(type);
  const std::string characters = kind.characters;
  std::size_t length =
      kind.shortest + Below(static_cast<std::uint32_t>(kind.longest - kind.shortest + 1));
  if (Below(12) == 0) length = Below(40);
  std::u16string text;
  for (std::size_t i = 0; i < length; ++i) {
    text += static_cast<char16_t>(characters[Below(static_cast<std::uint32_t>(characters.size()))]);
  }
  const bool isUpcE = type == 10 || type == 19 || type == 20;
  if (isUpcE && !text.empty()) text[0] = static_cast<char16_t>(u'0' + Below(2));
  if (Below(12) == 0 && !text.empty()) {
    text[Below(static_cast<std::uint32_t>(text.size()))] = static_cast<char16_t>(1 + Below(0xFFFE));
  }
  return text;
}

// One value that no sensible host would give.
void LinearCases::MakeOdd(LinearBarcode& barcode) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double odd[] = {0.0,      -0.0,      -1.5,
                        5e-324,   1e-310,    1e308,
                        infinity, -infinity, std::numeric_limits<double>::quiet_NaN()};
  double* const fields[] = {&barcode.height, &barcode.width, &barcode.LineGap, &barcode.PrintRatio};
  *fields[Below(4)] = odd[Below(9)];
}

LinearBarcode LinearCases::Next(std::int32_t type) {
  LinearBarcode barcode;
  barcode.type = type;
  barcode.text = Text(type);
  barcode.height = Length();
  barcode.width = Length();
  barcode.HatchingType = static_cast<std::int32_t>(Below(8));
  // Vertical strokes are counted along the width, all others along the height.
  const bool isVertical = barcode.HatchingType == 1 || barcode.HatchingType == 3;
  const double span = isVertical ? barcode.width / 8.0 : barcode.height;
  barcode.LineGap = span / Between(0.5, kMostLines);
  barcode.InvertImage = static_cast<std::uint8_t>(Below(4) == 0 ? Below(256) : 0);
  barcode.PrintRatio = Below(3) == 0 ? 2.0 + Below(5) * 0.25 : Between(1.5, 4.0);
  barcode.QuietZone = static_cast<std::uint8_t>(Below(3) == 0 ? Below(256) : 0);
  barcode.QuietZoneSize = static_cast<std::int32_t>(Below(10));
  barcode.BorderWidth = static_cast<std::int32_t>(Below(10));
  if (Below(12) == 0) MakeOdd(barcode);
  return barcode;
}

}  // namespace barhatch::device
