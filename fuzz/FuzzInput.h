// Reads values out of a fuzzer's bytes. Behind the end every byte is 0, so that each input means
// something. Doubles are drawn from where programs go wrong: the special values, powers of ten, any
// bit pattern, and plain lengths.
#ifndef BARHATCH_FUZZ_FUZZINPUT_H
#define BARHATCH_FUZZ_FUZZINPUT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

namespace barhatch::fuzz {

class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* bytes, std::size_t size) : next_(bytes), end_(bytes + size) {}

  bool IsEmpty() const { return next_ == end_; }
  std::size_t Remaining() const { return static_cast<std::size_t>(end_ - next_); }

  std::uint8_t Byte() { return IsEmpty() ? std::uint8_t{0} : *next_++; }

  template <typename T>
  T Bits() {
    std::uint8_t bytes[sizeof(T)];
    for (std::uint8_t& byte : bytes) byte = Byte();
    T value;
    std::memcpy(&value, bytes, sizeof(T));
    return value;
  }

  // A small number as a rule, any 32 bits for the byte 255.
  std::int32_t Integer() {
    const std::uint8_t byte = Byte();
    return byte == 255 ? Bits<std::int32_t>() : byte - 4;
  }

  double Double() {
    const std::uint8_t kind = Byte();
    if (kind < 128) return static_cast<double>(Bits<std::int16_t>()) / (kind < 64 ? 100.0 : 1.0);
    if (kind < 160) return Bits<double>();
    if (kind < 192) return PowerOfTen(Bits<std::int8_t>());
    constexpr std::size_t kSpecials = sizeof(kSpecialDoubles) / sizeof(kSpecialDoubles[0]);
    return kSpecialDoubles[kind % kSpecials];
  }

  // Up to limit units: of one byte each as a rule, of two where the first byte of the text is odd.
  // The text ends with the input or with a unit of 0.
  std::u16string Text(std::size_t limit) {
    const bool isWide = Byte() % 2 == 1;
    std::u16string text;
    while (!IsEmpty() && text.size() < limit) {
      const char16_t unit = isWide ? Bits<char16_t>() : static_cast<char16_t>(Byte());
      if (unit == 0) break;
      text += unit;
    }
    return text;
  }

 private:
  static constexpr double kSpecialDoubles[] = {0.0,
                                               -0.0,
                                               std::numeric_limits<double>::quiet_NaN(),
                                               std::numeric_limits<double>::infinity(),
                                               -std::numeric_limits<double>::infinity(),
                                               std::numeric_limits<double>::min(),
                                               std::numeric_limits<double>::denorm_min(),
                                               -std::numeric_limits<double>::denorm_min(),
                                               std::numeric_limits<double>::max(),
                                               std::numeric_limits<double>::lowest(),
                                               std::numeric_limits<double>::epsilon(),
                                               2147483647.0,
                                               2147483648.0,
                                               -2147483649.0,
                                               4294967296.0,
                                               9007199254740993.0,
                                               1.0,
                                               0.1};

  static double PowerOfTen(int exponent) {
    double power = 1.0;
    for (int i = 0; i < exponent; ++i) power *= 10.0;
    for (int i = 0; i > exponent; --i) power /= 10.0;
    return power;
  }

  const std::uint8_t* next_;
  const std::uint8_t* end_;
};

}  // namespace barhatch::fuzz

#endif
