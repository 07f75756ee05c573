#include "symbologies/SymbologyFactory.h"

#include <cstddef>
#include <new>

#include "symbologies/CodabarSymbology.h"
#include "symbologies/Code11Symbology.h"
#include "symbologies/Code128Symbologies.h"
#include "symbologies/Code39Symbology.h"
#include "symbologies/Code93Symbology.h"
#include "symbologies/Ean13UpcASymbologies.h"
#include "symbologies/Ean8Symbologies.h"
#include "symbologies/Interleaved2of5Symbology.h"
#include "symbologies/MsiSymbology.h"
#include "symbologies/UpcESymbologies.h"

namespace barhatch {

namespace {

enum class EncoderClass {
  kCodabar,
  kCode39,
  kCode93,
  kEan13,
  kMsi,
  kCode128Auto,
  kCode128A,
  kCode128B,
  kCode128C,
  kUpcA,
  kUpcE,
  kCode11,
  kEan8,
  kUpcAAddon2,
  kUpcAAddon5,
  kEan13Addon2,
  kEan13Addon5,
  kEan8Addon2,
  kEan8Addon5,
  kUpcEAddon2,
  kUpcEAddon5,
  kInterleaved2of5,
};

struct SymbologyRow {
  std::int32_t type;
  EncoderClass encoder;
  bool fullAscii;  // Code 93 only: any byte is accepted as input
};

// clang-format off
constexpr SymbologyRow kSymbologies[] = {
    {0, EncoderClass::kCodabar, false},
    {1, EncoderClass::kCode39, false},
    {2, EncoderClass::kCode93, false},
    {3, EncoderClass::kEan13, false},
    {4, EncoderClass::kMsi, false},
    {5, EncoderClass::kCode128Auto, false},
    {6, EncoderClass::kCode128A, false},
    {7, EncoderClass::kCode128B, false},
    {8, EncoderClass::kCode128C, false},
    {9, EncoderClass::kUpcA, false},
    {10, EncoderClass::kUpcE, false},
    {11, EncoderClass::kCode11, false},
    {12, EncoderClass::kEan8, false},
    {13, EncoderClass::kUpcAAddon2, false},
    {14, EncoderClass::kUpcAAddon5, false},
    {15, EncoderClass::kEan13Addon2, false},
    {16, EncoderClass::kEan13Addon5, false},
    {17, EncoderClass::kEan8Addon2, false},
    {18, EncoderClass::kEan8Addon5, false},
    {19, EncoderClass::kUpcEAddon2, false},
    {20, EncoderClass::kUpcEAddon5, false},
    {21, EncoderClass::kInterleaved2of5, false},
    {22, EncoderClass::kCode93, true},
};
// clang-format on
constexpr std::size_t kSymbologyCount = sizeof(kSymbologies) / sizeof(kSymbologies[0]);

constexpr bool RowsAreIndexedByType() {
  for (std::size_t i = 0; i < kSymbologyCount; ++i) {
    if (kSymbologies[i].type != static_cast<std::int32_t>(i)) return false;
  }
  return true;
}
static_assert(kSymbologyCount == 23, "types 0 to 22");
static_assert(RowsAreIndexedByType(), "the type is the index of its row");

}  // namespace

Symbology* SymbologyFactory(std::int32_t type) {
  if (static_cast<std::uint32_t>(type) >= kSymbologyCount) return nullptr;
  const SymbologyRow& row = kSymbologies[type];
  switch (row.encoder) {
    case EncoderClass::kCodabar:
      return new (std::nothrow) CodabarSymbology;
    case EncoderClass::kCode39:
      return new (std::nothrow) Code39Symbology;
    case EncoderClass::kCode93:
      return new (std::nothrow)
          Code93Symbology(row.fullAscii ? Code93Input::kFullAscii : Code93Input::kNativeSet);
    case EncoderClass::kEan13:
      return new (std::nothrow) Ean13Symbology;
    case EncoderClass::kMsi:
      return new (std::nothrow) MsiSymbology;
    case EncoderClass::kCode128Auto:
      return new (std::nothrow) Code128AutoSymbology;
    case EncoderClass::kCode128A:
      return new (std::nothrow) Code128ASymbology;
    case EncoderClass::kCode128B:
      return new (std::nothrow) Code128BSymbology;
    case EncoderClass::kCode128C:
      return new (std::nothrow) Code128CSymbology;
    case EncoderClass::kUpcA:
      return new (std::nothrow) UpcASymbology;
    case EncoderClass::kUpcE:
      return new (std::nothrow) UpcESymbology;
    case EncoderClass::kCode11:
      return new (std::nothrow) Code11Symbology;
    case EncoderClass::kEan8:
      return new (std::nothrow) Ean8Symbology;
    case EncoderClass::kUpcAAddon2:
      return new (std::nothrow) UpcAAddon2Symbology;
    case EncoderClass::kUpcAAddon5:
      return new (std::nothrow) UpcAAddon5Symbology;
    case EncoderClass::kEan13Addon2:
      return new (std::nothrow) Ean13Addon2Symbology;
    case EncoderClass::kEan13Addon5:
      return new (std::nothrow) Ean13Addon5Symbology;
    case EncoderClass::kEan8Addon2:
      return new (std::nothrow) Ean8Addon2Symbology;
    case EncoderClass::kEan8Addon5:
      return new (std::nothrow) Ean8Addon5Symbology;
    case EncoderClass::kUpcEAddon2:
      return new (std::nothrow) UpcEAddon2Symbology;
    case EncoderClass::kUpcEAddon5:
      return new (std::nothrow) UpcEAddon5Symbology;
    case EncoderClass::kInterleaved2of5:
      return new (std::nothrow) Interleaved2of5Symbology;
    default:
      return nullptr;
  }
}

}  // namespace barhatch
