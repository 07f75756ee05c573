// Linear barcodes for comparisons, made from a seed: texts that the symbology takes, texts that it
// refuses, every pattern, sizes from tiny to huge and some that make no sense.
#ifndef BARHATCH_TESTS_DEVICE_LINEARCASES_H
#define BARHATCH_TESTS_DEVICE_LINEARCASES_H

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "device/BarcodeLibrary.h"

namespace barhatch::device {

constexpr std::int32_t kTypes = 23;  // 0 to 22

// What a type takes: characters, and lengths in steps from the shortest to the longest.
struct TextKind {
  std::int32_t type;
  const char* name;
  const char* characters;
  std::size_t shortest;
  std::size_t longest;
  const char* typical;  // a text as it is marked every day
};
const TextKind& KindOf(std::int32_t type);

std::u16string Wide(const std::string& text);

class LinearCases {
 public:
  explicit LinearCases(std::uint32_t seed) : random_(seed) {}

  // A barcode of the type; mostly one that can be made.
  LinearBarcode Next(std::int32_t type);

 private:
  std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_() % limit); }
  double Between(double low, double high);
  double Length();
  std::u16string Text(std::int32_t type);
  void MakeOdd(LinearBarcode& barcode);

  std::mt19937 random_;
};

}  // namespace barhatch::device

#endif
