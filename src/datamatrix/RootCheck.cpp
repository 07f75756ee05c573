#include "datamatrix/RootCheck.h"

namespace barhatch {

namespace {

constexpr std::uint64_t kLowestBits = 0x0101010101010101;

// Eight elements of the field, each times 2.
constexpr std::uint64_t Doubled(std::uint64_t elements) {
  const std::uint64_t carries = elements >> 7 & kLowestBits;
  return ((elements & ~(kLowestBits << 7)) << 1) ^ carries * 0x2D;
}

// Eight elements, each times the same one.
constexpr std::uint64_t Product(std::uint64_t elements, std::uint64_t factor) {
  std::uint64_t product = 0;
  for (; factor != 0; factor >>= 1, elements = Doubled(elements)) {
    if ((factor & 1) != 0) product ^= elements;
  }
  return product;
}
static_assert(Doubled(0x8040) == 0x2D80, "x^8 is the rest of the field polynomial");
static_assert(Product(0x1001, 0x10) == 0x2D10, "each element by itself");

// (x + 2^first) ... (x + 2^(first + count - 1)) without its highest power.
constexpr std::uint64_t ProductOfFactors(int first, int count) {
  std::uint64_t root = 1;
  for (int i = 0; i < first; ++i) root = Doubled(root);
  std::uint64_t product = 0;
  for (int i = 0; i < count; ++i, root = Doubled(root))
    product ^= root << 56 ^ Product(product, root) >> 8;
  return product;
}
// ISO/IEC 16022, the generator polynomials of five and seven error codewords.
static_assert(ProductOfFactors(1, 5) == 0x3E6F0F30E4000000, "62 111 15 48 228");
static_assert(ProductOfFactors(1, 7) == 0xFE5CF08690441700, "254 92 240 134 144 68 23");

constexpr int kMostRoots = 68;

// Of every eight roots from 2^1 on, and of the first ones of them; for none a product that every
// polynomial has.
struct Products {
  std::uint64_t of[(kMostRoots + 7) / 8 + 1][9];
};

constexpr Products MakeProducts() {
  Products products{};
  int first = 1;
  for (auto& row : products.of) {
    for (int count = 1; count <= 8; ++count) row[count] = ProductOfFactors(first, count);
    first += 8;
  }
  return products;
}
constexpr Products kProducts = MakeProducts();

void Tabulate(std::uint64_t lowest, std::uint64_t (&multiples)[16]) {
  multiples[0] = 0;
  for (int bit = 1; bit < 16; bit *= 2, lowest = Doubled(lowest)) {
    for (int i = 0; i < bit; ++i) multiples[bit + i] = multiples[i] ^ lowest;
  }
}

}  // namespace

RootCheck::EightRoots::EightRoots(int eight, int count) {
  const std::uint64_t product = kProducts.of[eight][count];
  Tabulate(product, low);
  Tabulate(Product(product, 16), high);
}

RootCheck::RootCheck(int sixteen, int count)
    : first_(2 * sixteen, count < 8 ? count : 8),
      second_(2 * sixteen + 1, count < 8 ? 0 : count - 8) {}

RootCheck::Remainders RootCheck::Divide(Remainders left, const std::uint8_t* codewords, int count,
                                        int stride) const {
  for (; count > 0; --count, codewords += stride) {
    left.first = first_.Next(left.first, *codewords);
    left.second = second_.Next(left.second, *codewords);
  }
  return left;
}

bool RootCheck::Divides(const InterleavedBlock& block) const {
  const Remainders ofData = Divide({0, 0}, block.data, block.dataCodewords, block.stride);
  const Remainders left = Divide(ofData, block.errors, block.errorCodewords, block.stride);
  return left.first == 0 && left.second == 0;
}

}  // namespace barhatch
