#include "datamatrix/ReedSolomon.h"

#include <cassert>
#include <cstddef>

namespace barhatch {

namespace {

constexpr int kFieldPolynomial = 0x12D;
constexpr int kOrder = 255;  // of the multiplicative group: 2^255 = 1

// A sum of two logarithms, at most 254 + 254, needs no reduction before it is looked up.
struct Field {
  std::uint8_t antilog[2 * kOrder];
  std::uint8_t log[256];  // log[0] has no meaning
};

constexpr Field MakeField() {
  Field field{};
  int value = 1;
  for (int exponent = 0; exponent < kOrder; ++exponent) {
    field.antilog[exponent] = static_cast<std::uint8_t>(value);
    field.antilog[exponent + kOrder] = static_cast<std::uint8_t>(value);
    field.log[value] = static_cast<std::uint8_t>(exponent);
    value *= 2;
    if (value >= 256) value ^= kFieldPolynomial;
  }
  return field;
}
constexpr Field kField = MakeField();
static_assert(kField.antilog[8] == 0x2D, "x^8 is the rest of the field polynomial");
static_assert(kField.antilog[255] == 1 && kField.log[1] == 0, "2 generates the whole group");

// Of the sizes of ISO/IEC 16022, and those that ISO/IEC 21471 adds.
constexpr int kDegrees[] = {5, 7, 10, 11, 12, 14, 18, 20, 24, 28, 36, 42, 48, 56, 62, 68};
constexpr int kMoreDegrees[] = {15, 22, 27, 32, 34, 38, 41, 46, 50};
constexpr int kMaxDegree = 68;

template <std::size_t count>
constexpr std::size_t SumOf(const int (&degrees)[count]) {
  std::size_t sum = 0;
  for (int degree : degrees) sum += static_cast<std::size_t>(degree);
  return sum;
}

// The generator polynomials one after the other, each as the logarithms of its coefficients from
// x^(k-1) down to x^0. The leading one is 1; none is 0, as the polynomial is itself a codeword and
// codewords that differ, differ in k + 1 places.
template <std::size_t count>
struct Generators {
  std::uint8_t logs[count];
};

// Multiplies the polynomial of the given degree, in ascending powers, by x + 2^(degree + 1).
constexpr void MultiplyByNextRoot(std::uint8_t (&polynomial)[kMaxDegree + 1], int degree) {
  for (int power = degree + 1; power >= 0; --power) {
    const int shifted = power > 0 ? polynomial[power - 1] : 0;
    const int kept =
        power <= degree ? kField.antilog[kField.log[polynomial[power]] + degree + 1] : 0;
    polynomial[power] = static_cast<std::uint8_t>(shifted ^ kept);
  }
}

template <const auto& degrees>
constexpr auto MakeGenerators() {
  Generators<SumOf(degrees)> generators{};
  std::uint8_t polynomial[kMaxDegree + 1] = {1};
  int degree = 0;
  int written = 0;
  for (int wanted : degrees) {
    for (; degree < wanted; ++degree) MultiplyByNextRoot(polynomial, degree);
    for (int power = degree - 1; power >= 0; --power)
      generators.logs[written++] = kField.log[polynomial[power]];
  }
  return generators;
}
constexpr auto kGenerators = MakeGenerators<kDegrees>();
constexpr auto kMoreGenerators = MakeGenerators<kMoreDegrees>();

// offset: where the logarithms of the generator begin; coefficients: from x^0 up.
template <std::size_t degree>
constexpr bool GeneratorAtIs(std::size_t offset, const int (&coefficients)[degree]) {
  for (std::size_t power = 0; power < degree; ++power) {
    const std::uint8_t log = kGenerators.logs[offset + degree - 1 - power];
    if (kField.antilog[log] != coefficients[power]) return false;
  }
  return true;
}
static_assert(GeneratorAtIs(0, {228, 48, 15, 111, 62}), "ISO/IEC 16022, five error codewords");
static_assert(GeneratorAtIs(5, {23, 68, 144, 134, 240, 92, 254}), "seven error codewords");

template <std::size_t count>
const std::uint8_t* LogsFor(int degree, const int (&degrees)[count], const std::uint8_t* logs) {
  for (int listed : degrees) {
    if (listed == degree) return logs;
    logs += listed;
  }
  return nullptr;
}

const std::uint8_t* GeneratorLogs(int degree) {
  const std::uint8_t* const logs = LogsFor(degree, kDegrees, kGenerators.logs);
  return logs != nullptr ? logs : LogsFor(degree, kMoreDegrees, kMoreGenerators.logs);
}

constexpr int ShiftOf(int coefficient) { return 24 - 8 * (coefficient % 4); }

}  // namespace

BlockCoder::BlockCoder(int errorCodewords)
    : degree_(errorCodewords), words_((errorCodewords + 3) / 4) {
  Tabulate(lowMultiples_, 1);
  Tabulate(highMultiples_, 16);
}

// Multiplication in the field is linear: four products make the others by addition.
void BlockCoder::Tabulate(Polynomial (&multiples)[16], int lowestFactor) const {
  const std::uint8_t* const generatorLogs = GeneratorLogs(degree_);
  assert(generatorLogs != nullptr);
  multiples[0] = {};
  for (int factor = 1; factor < 16; ++factor) {
    Polynomial& multiple = multiples[factor];
    const int lowestBit = factor & -factor;
    if (factor != lowestBit) {
      for (int w = 0; w < words_; ++w) {
        multiple.words[w] = multiples[lowestBit].words[w] ^ multiples[factor - lowestBit].words[w];
      }
      continue;
    }
    const std::uint8_t* const products = kField.antilog + kField.log[factor * lowestFactor];
    multiple = {};
    for (int i = 0; i < degree_; ++i) {
      multiple.words[i / 4] |= static_cast<std::uint32_t>(products[generatorLogs[i]]) << ShiftOf(i);
    }
  }
}

void BlockCoder::Encode(const std::uint8_t* data, int dataCodewords, std::uint8_t* errors,
                        int stride) const {
  std::uint32_t remainder[kMaxWords + 1] = {};  // the last word stays 0
  for (int i = 0; i < dataCodewords; ++i) {
    const std::uint32_t leading = data[i * stride] ^ remainder[0] >> 24;
    const Polynomial& low = lowMultiples_[leading & 0xF];
    const Polynomial& high = highMultiples_[leading >> 4];
    for (int w = 0; w < words_; ++w) {
      const std::uint32_t moved = remainder[w] << 8 | remainder[w + 1] >> 24;
      remainder[w] = moved ^ low.words[w] ^ high.words[w];
    }
  }
  for (int i = 0; i < degree_; ++i) {
    errors[i * stride] = static_cast<std::uint8_t>(remainder[i / 4] >> ShiftOf(i));
  }
}

}  // namespace barhatch
