#include "determinism/SeededRun.h"

#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "device/LinearCases.h"

namespace barhatch::determinism {

using device::BarcodeLibrary;
using device::LinearBarcode;
using device::MatrixBarcode;

namespace {

constexpr std::uint64_t kFnvBasis = 14695981039346656037U;
constexpr std::uint64_t kFnvPrime = 1099511628211U;

// FNV-1a over words instead of bytes; the shift brings the high bits back down.
class Checksum {
 public:
  void Add(std::uint64_t word) {
    value_ = (value_ ^ word) * kFnvPrime;
    value_ ^= value_ >> 32;
  }
  std::uint64_t Value() const { return value_; }

 private:
  std::uint64_t value_ = kFnvBasis;
};

// Rows x 256 + columns: the sizes of ISO/IEC 16022, then sizes that do not exist.
constexpr std::int32_t kSizes[] = {
    0x0A0A, 0x0C0C, 0x0E0E, 0x1010, 0x1212, 0x1414, 0x1616, 0x1818, 0x1A1A, 0x2020, 0x2424, 0x2828,
    0x2C2C, 0x3030, 0x3434, 0x4040, 0x4848, 0x5050, 0x5858, 0x6060, 0x6868, 0x7878, 0x8484, 0x9090,
    0x0812, 0x0820, 0x0C1A, 0x0C24, 0x1024, 0x1030, 0x0B0B, 0x0A0C, 0x0C0A, -1,     0x10000};

// Characters as the encodations of Data Matrix group them.
constexpr const char* kClasses[] = {"0123456789",
                                    "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
                                    "abcdefghijklmnopqrstuvwxyz",
                                    "ABC 0123\r*>",
                                    "!\"#$%&'()+,-./:;<=>?@[\\]^",
                                    "\x01\x07\t\x1C\x1D\x1E\x1F",
                                    "\x80\x9F\xA0\xC4\xE4\xFF"};
constexpr std::uint32_t kClassCount = sizeof kClasses / sizeof *kClasses;

// Exponents of two around which the sizes of one barcode lie. Far out there, a size that is odd
// besides could ask for a fill that one machine has the memory for and another has not.
struct Scale {
  int exponent;
  bool isFarOut;
};

class Generator {
 public:
  explicit Generator(std::uint32_t seed) : random_(seed) {}

  std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_()) % limit; }
  bool OneIn(std::uint32_t count) { return Below(count) == 0; }

  // From 2^exponent up to its double, every bit of it random; among the smallest of all numbers the
  // leading bits are lost, as they have to be.
  double Magnitude(int exponent) {
    std::uint64_t mantissa = static_cast<std::uint64_t>(random_()) << 20;
    mantissa ^= random_();
    mantissa &= (std::uint64_t{1} << 52) - 1;
    std::uint64_t bits = 0;
    if (exponent >= -1022) {
      bits = static_cast<std::uint64_t>(exponent + 1023) << 52 | mantissa;
    } else {
      bits = (std::uint64_t{1} << 52 | mantissa) >> (-1022 - exponent);
    }
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
  }

  Scale NextScale() {
    switch (Below(8)) {
      case 0:
        return {static_cast<int>(Below(581)) - 290, false};
      case 1:
        return {-1060 + static_cast<int>(Below(50)), true};
      case 2:
        return {1000 + static_cast<int>(Below(16)), true};
      default:
        return {static_cast<int>(Below(41)) - 20, false};
    }
  }

  // What no sensible host would give.
  double Odd(bool isFarOut) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double odd[] = {0.0,       -0.0,     -1.5,
                          -infinity, infinity, std::numeric_limits<double>::quiet_NaN(),
                          5e-324,    1e-310,   1e308};
    return odd[Below(isFarOut ? 6 : 9)];
  }

 private:
  std::mt19937 random_;
};

std::u16string LinearText(Generator& random, std::int32_t type) {
  const device::TextKind& kind = device::KindOf(type);
  const auto characters = static_cast<std::uint32_t>(std::strlen(kind.characters));
  auto length = static_cast<std::uint32_t>(kind.shortest);
  length += random.Below(static_cast<std::uint32_t>(kind.longest - kind.shortest + 1));
  if (random.OneIn(10)) length = random.Below(40);
  if (random.OneIn(200)) length = random.Below(3200);
  std::u16string text;
  while (text.size() < length)
    text += static_cast<char16_t>(kind.characters[random.Below(characters)]);
  const bool isUpcE = type == 10 || type == 19 || type == 20;
  if (isUpcE && !text.empty()) text[0] = static_cast<char16_t>(u'0' + random.Below(2));
  if (random.OneIn(12) && !text.empty()) {
    const std::uint32_t position = random.Below(length);
    text[position] = static_cast<char16_t>(1 + random.Below(0xFFFF));
  }
  return text;
}

std::u16string MatrixText(Generator& random) {
  std::uint32_t length = random.Below(40);
  if (random.OneIn(8)) length = random.Below(400);
  if (random.OneIn(60)) length = random.Below(3200);
  std::u16string text;
  while (text.size() < length) {
    const std::string characters = kClasses[random.Below(kClassCount)];
    for (std::uint32_t run = 1 + random.Below(9); run > 0; --run) {
      const char pick = characters[random.Below(static_cast<std::uint32_t>(characters.size()))];
      text += static_cast<char16_t>(static_cast<unsigned char>(pick));
    }
  }
  text.resize(length);
  if (random.OneIn(10)) {
    const std::uint32_t position = random.Below(length + 1);
    text.insert(position, 1, static_cast<char16_t>(1 + random.Below(0xFFFF)));
  }
  return text;
}

// One of `steps` magnitudes, the lowest of them 2^lowest times the scale.
double MagnitudeNear(Generator& random, const Scale& scale, int lowest, std::uint32_t steps) {
  const int step = static_cast<int>(random.Below(steps));
  return random.Magnitude(scale.exponent + lowest + step);
}

// At most some hundred strokes across the height, some thousand across the width.
LinearBarcode NextLinear(Generator& random, std::int32_t type) {
  const Scale scale = random.NextScale();
  LinearBarcode barcode;
  barcode.type = type;
  barcode.text = LinearText(random, type);
  barcode.width = MagnitudeNear(random, scale, 3, 4);
  barcode.height = MagnitudeNear(random, scale, 0, 4);
  barcode.LineGap = MagnitudeNear(random, scale, -2, 4);
  barcode.PrintRatio = random.Magnitude(1);
  barcode.HatchingType = static_cast<std::int32_t>(random.Below(8));
  barcode.InvertImage = static_cast<std::uint8_t>(random.OneIn(3) ? 255 : 0);
  barcode.QuietZone = static_cast<std::uint8_t>(random.OneIn(3) ? 1 : 0);
  barcode.QuietZoneSize = static_cast<std::int32_t>(random.Below(10));
  if (random.OneIn(15)) barcode.width = random.Odd(scale.isFarOut);
  if (random.OneIn(15)) barcode.height = random.Odd(scale.isFarOut);
  if (random.OneIn(15)) barcode.LineGap = random.Odd(scale.isFarOut);
  if (random.OneIn(15)) barcode.PrintRatio = random.Odd(scale.isFarOut);
  return barcode;
}

MatrixBarcode NextMatrix(Generator& random) {
  const Scale scale = random.NextScale();
  MatrixBarcode barcode;
  barcode.text = MatrixText(random);
  barcode.height = MagnitudeNear(random, scale, 2, 3);
  barcode.LineGap = MagnitudeNear(random, scale, -2, 4);
  barcode.format = static_cast<std::int32_t>(random.Below(5));
  if (random.OneIn(2)) barcode.MatrixSize = kSizes[random.Below(sizeof kSizes / sizeof *kSizes)];
  barcode.IsExpanding = static_cast<std::uint8_t>(random.OneIn(5) ? 0 : 1 + random.Below(2));
  barcode.HatchingType = static_cast<std::int32_t>(random.Below(8));
  barcode.InvertImage = static_cast<std::uint8_t>(random.OneIn(4) ? 1 : 0);
  barcode.QuietZone = static_cast<std::uint8_t>(random.OneIn(3) ? 255 : 0);
  if (random.OneIn(15)) barcode.height = random.Odd(scale.isFarOut);
  if (random.OneIn(15)) barcode.LineGap = random.Odd(scale.isFarOut);
  return barcode;
}

std::string HostString(Generator& random) {
  constexpr char kLetters[] = "AaBbAaBbAaBbxZ";
  std::string letters;
  for (std::uint32_t rest = random.Below(80); rest > 0; --rest)
    letters += kLetters[random.Below(14)];
  return letters;
}

// Makes the barcodes of one run and adds them up.
class Run {
 public:
  Run(BarcodeLibrary& library, Generator& random) : library_(library), random_(random) {}

  void Step(std::int32_t type) {
    switch (random_.Below(8)) {
      case 0:
      case 1:
        return Add(library_.GenerateDataMatrixBarcode(NextMatrix(random_)));
      case 2:
        Configure(NextLinear(random_, type));
        return Add(library_.HatchBarcodeString(HostString(random_)));
      case 3:
      case 4:
        Configure(NextLinear(random_, type));
        return Add(library_.GenerateVectorizedBarcode());
      case 5:
        return WholeHeight(NextLinear(random_, type));
      default:
        Add(library_.GenerateLinearBarcode(NextLinear(random_, type)));
        return Add(library_.GenerateBarcodeString());
    }
  }

  void Defaults() {
    library_.InitBarcode();
    Add(library_.GenerateBarcodeString());
    Add(library_.GenerateVectorizedBarcode());
  }

  std::uint64_t Value() const { return checksum_.Value(); }
  int Barcodes() const { return barcodes_; }

 private:
  void Configure(const LinearBarcode& barcode) {
    if (random_.OneIn(20)) library_.InitBarcode();
    library_.SetBarcodeType(barcode.type);
    library_.SetDataString(barcode.text);
    library_.SetBarcodeSize(barcode.width, barcode.height);
    library_.SetModuleWidth(barcode.height);
    library_.SetHatchPattern(barcode.LineGap, barcode.HatchingType);
    library_.SetPrintRatio(barcode.PrintRatio);
    library_.SetImageInversionMode(barcode.InvertImage);
    library_.SetCodeFormat(barcode.QuietZoneSize);
    library_.SetMatrixsize(barcode.HatchingType);
  }

  // The height in whole units, for which the other sizes have to lie near one.
  void WholeHeight(LinearBarcode barcode) {
    barcode.width = random_.Magnitude(4);
    barcode.LineGap = random_.Magnitude(-1);
    Configure(barcode);
    library_.SetBarcodeHeight(static_cast<std::int32_t>(random_.Below(40)) - 4);
    Add(library_.GenerateVectorizedBarcode());
  }

  void Add(const BarcodeLibrary::MaybeText& text) {
    checksum_.Add(text ? text->size() + 1 : 0);
    if (!text) return;
    ++barcodes_;
    for (const char letter : *text) checksum_.Add(static_cast<unsigned char>(letter));
  }

  void Add(const BarcodeLibrary::MaybeFill& fill) {
    checksum_.Add(fill ? static_cast<std::uint32_t>(fill->BufferLength) : 0);
    if (!fill) return;
    ++barcodes_;
    checksum_.Add(static_cast<std::uint32_t>(fill->FillingShapeType));
    for (const std::uint64_t bits : fill->FilledArray) checksum_.Add(bits);
    checksum_.Add(fill->FillHeight);
    checksum_.Add(fill->FillWidth);
  }

  BarcodeLibrary& library_;
  Generator& random_;
  Checksum checksum_;
  int barcodes_ = 0;
};

}  // namespace

RunResult RunSeeded(BarcodeLibrary& library, int steps) {
  Generator random(20250);
  Run run(library, random);
  run.Defaults();
  for (int step = 0; step < steps; ++step) run.Step(step % device::kTypes);
  return {run.Value(), steps, run.Barcodes()};
}

}  // namespace barhatch::determinism
