#include "support/EccReference.h"

#include <cstddef>

namespace barhatch::test {

int FieldProduct(int a, int b) {
  int product = 0;
  for (; b != 0; b >>= 1) {
    if (b & 1) product ^= a;
    a <<= 1;
    if (a & 0x100) a ^= 0x12D;
  }
  return product;
}

int FieldPower(int base, int exponent) {
  int power = 1;
  for (int i = 0; i < exponent; ++i) power = FieldProduct(power, base);
  return power;
}

std::vector<int> GeneratorPolynomial(int degree) {
  std::vector<int> polynomial = {1};
  for (int root = 1; root <= degree; ++root) {
    std::vector<int> next(polynomial.size() + 1, 0);
    for (std::size_t power = 0; power < polynomial.size(); ++power) {
      next[power + 1] ^= polynomial[power];
      next[power] ^= FieldProduct(polynomial[power], FieldPower(2, root));
    }
    polynomial = next;
  }
  return polynomial;
}

std::vector<int> ErrorCodewords(const std::vector<int>& data, int errorCodewords) {
  const std::vector<int> generator = GeneratorPolynomial(errorCodewords);
  const std::size_t degree = static_cast<std::size_t>(errorCodewords);
  // The data polynomial times x^k, the highest power first, is divided as one does on paper.
  std::vector<int> dividend = data;
  dividend.resize(data.size() + degree, 0);
  for (std::size_t i = 0; i < data.size(); ++i) {
    const int quotient = dividend[i];
    for (std::size_t j = 0; j <= degree; ++j)
      dividend[i + j] ^= FieldProduct(quotient, generator[degree - j]);
  }
  return std::vector<int>(dividend.begin() + static_cast<std::ptrdiff_t>(data.size()),
                          dividend.end());
}

std::vector<int> Syndromes(const std::vector<int>& codewords, int errorCodewords) {
  std::vector<int> syndromes;
  for (int exponent = 1; exponent <= errorCodewords; ++exponent) {
    const int root = FieldPower(2, exponent);
    int value = 0;
    for (int codeword : codewords) value = FieldProduct(value, root) ^ codeword;
    syndromes.push_back(value);
  }
  return syndromes;
}

std::vector<std::vector<int>> CodedBlocks(const std::vector<int>& data, int errorCodewords,
                                          int blocks) {
  std::vector<std::vector<int>> dealt(static_cast<std::size_t>(blocks));
  for (std::size_t i = 0; i < data.size(); ++i) dealt[i % dealt.size()].push_back(data[i]);
  for (std::vector<int>& block : dealt) {
    const std::vector<int> error = ErrorCodewords(block, errorCodewords / blocks);
    block.insert(block.end(), error.begin(), error.end());
  }
  return dealt;
}

std::vector<int> EmittedRoundRobin(const std::vector<std::vector<int>>& blocks) {
  std::vector<int> stream;
  for (std::size_t element = 0; element < blocks[0].size(); ++element) {
    for (const std::vector<int>& block : blocks)
      if (element < block.size()) stream.push_back(block[element]);
  }
  return stream;
}

}  // namespace barhatch::test
