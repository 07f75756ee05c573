#include "support/MsiReader.h"

#include <algorithm>

#include "support/QuietZoneTrim.h"

namespace barhatch::test {
namespace {

int DigitSum(const std::string& digits) {
  int sum = 0;
  for (char digit : digits) sum += digit - '0';
  return sum;
}

// Four groups of a bar and a space that fill three modules: a wide bar is a one.
std::optional<char> ReadDigit(const std::string& letters) {
  int value = 0;
  for (std::size_t at = 0; at < 12; at += 3) {
    const std::string bit = letters.substr(at, 3);
    if (bit != "Aaa" && bit != "AAa") return std::nullopt;
    value = value * 2 + (bit == "AAa" ? 1 : 0);
  }
  if (value > 9) return std::nullopt;
  return static_cast<char>('0' + value);
}

}  // namespace

std::optional<std::string> ReadMsiDigits(const std::string& letters) {
  const std::string symbol = WithoutQuietZone(letters);
  if (symbol.size() < 7 || (symbol.size() - 7) % 12 != 0) return std::nullopt;
  if (symbol.substr(0, 3) != "AAa" || symbol.substr(symbol.size() - 4) != "AaaA") {
    return std::nullopt;
  }
  std::string digits;
  for (std::size_t at = 3; at + 4 < symbol.size(); at += 12) {
    const auto digit = ReadDigit(symbol.substr(at, 12));
    if (!digit) return std::nullopt;
    digits += *digit;
  }
  return digits;
}

std::optional<std::string> ReadMsi(const std::string& letters) {
  const auto digits = ReadMsiDigits(letters);
  if (!digits || digits->empty()) return std::nullopt;
  const std::string data = digits->substr(0, digits->size() - 1);
  if (digits->back() != PublishedMsiModulo10(data)) return std::nullopt;
  return data;
}

std::string Doubled(const std::string& number) {
  std::string product;
  int carry = 0;
  for (auto digit = number.rbegin(); digit != number.rend(); ++digit) {
    const int twice = 2 * (*digit - '0') + carry;
    product += static_cast<char>('0' + twice % 10);
    carry = twice / 10;
  }
  if (carry != 0) product += '1';
  std::reverse(product.begin(), product.end());
  return product;
}

char PublishedMsiModulo10(const std::string& data) {
  std::string odd;
  std::string even;
  for (std::size_t position = 1; position <= data.size(); ++position) {
    std::string& half = position % 2 == 1 ? odd : even;
    half.insert(half.begin(), data[data.size() - position]);
  }
  const int sum = DigitSum(Doubled(odd)) + DigitSum(even);
  const int toTheNextTen = sum % 10 == 0 ? 0 : 10 - sum % 10;
  return static_cast<char>('0' + toTheNextTen);
}

}  // namespace barhatch::test
