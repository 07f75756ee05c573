// The exports whose arguments the platform passes by rules of its own. A double comes in two
// consecutive 32-bit words, low word first, wherever they fall; the compiler's own convention would
// look for it in an even pair of registers or on an 8-byte boundary. A boolean is the low byte of
// its word, the other bits may hold anything. The export table renames these functions to the
// public names; all other exports agree in both conventions and are exported as they are.
#include <cstdint>
#include <cstring>

#include "barhatch.h"

namespace {

double FromWords(std::uint32_t low, std::uint32_t high) {
  const std::uint64_t bits = std::uint64_t{high} << 32 | low;
  double value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

}  // namespace

extern "C" {

void DeviceSetModuleWidth(std::uint32_t low, std::uint32_t high) {
  SetModuleWidth(FromWords(low, high));
}

void DeviceSetPrintRatio(std::uint32_t low, std::uint32_t high) {
  SetPrintRatio(FromWords(low, high));
}

void DeviceSetImageInversionMode(std::uint32_t word) {
  SetImageInversionMode(static_cast<std::uint8_t>(word));
}

void DeviceSetHatchPattern(std::uint32_t gapLow, std::uint32_t gapHigh, std::int32_t hatchingType) {
  SetHatchPattern(FromWords(gapLow, gapHigh), hatchingType);
}

void DeviceSetBarcodeSize(std::uint32_t widthLow, std::uint32_t widthHigh, std::uint32_t heightLow,
                          std::uint32_t heightHigh) {
  SetBarcodeSize(FromWords(widthLow, widthHigh), FromWords(heightLow, heightHigh));
}

}  // extern "C"
