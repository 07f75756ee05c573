// The encoders of the exports: text of the settings in, module string out. An encoder lives for one
// generating call and keeps no state between calls. What it encodes with is the library's; what is
// the device's own about it, the narrowed text and the size of the array, stays here.
#ifndef BARHATCH_API_SYMBOLOGY_H
#define BARHATCH_API_SYMBOLOGY_H

#include <cstddef>
#include <cstdint>

namespace barhatch {

// Bytes of a narrowed DataString with its NUL: one for each 16-bit unit the settings hold.
constexpr std::size_t kNarrowTextCapacity = 3120;

// One char per 16-bit unit, its low 8 bits (U+0141 becomes 'A'), and a NUL. Ends at the first unit
// whose low byte is zero, such as U+0100. Returns the length of the copy. REQUIRES: room in
// destination for the source with its NUL, kNarrowTextCapacity bytes for DataString.
std::size_t NarrowDataString(const char16_t* source, char* destination);

class Symbology {
 public:
  Symbology() = default;
  virtual ~Symbology() = default;
  Symbology(const Symbology&) = delete;
  Symbology& operator=(const Symbology&) = delete;

  // The module string of the current settings in a new char array, which the caller owns
  // (delete[]); null when the text cannot be encoded or there is no memory. The base encodes
  // nothing and returns null.
  virtual char* GenerateString();
};

// The encoder of a linear type.
class TableSymbology final : public Symbology {
 public:
  // REQUIRES: type in 0..22.
  explicit TableSymbology(std::int32_t type) : type_(type) {}
  char* GenerateString() override;

 private:
  std::int32_t type_;
};

}  // namespace barhatch

#endif
