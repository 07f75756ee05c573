#include "mark/InputText.h"

#include <cstring>

namespace barhatch {

namespace {

constexpr std::uint32_t kBroken = 0xFFFFFFFF;
constexpr std::uint32_t kFirstSupplementary = 0x10000;

std::size_t UnitsOf(std::uint32_t code) { return code >= kFirstSupplementary ? 2 : 1; }

bool IsContinuation(std::uint8_t byte) { return (byte & 0xC0) == 0x80; }

// Bytes of the character that begins with this one; 0 for a byte that begins none.
std::size_t ExtentOf(std::uint8_t first) {
  if (first < 0x80) return 1;
  if (first < 0xC2 || first > 0xF4) return 0;
  return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

// Longer forms than needed, surrogates and what lies above U+10FFFF are no characters.
bool IsCodePoint(std::uint32_t code, std::size_t extent) {
  constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, kFirstSupplementary};
  const bool isSurrogate = code >= 0xD800 && code < 0xE000;
  return code >= kLeast[extent] && code <= 0x10FFFF && !isSurrogate;
}

const std::uint8_t* Bytes(const void* text) { return static_cast<const std::uint8_t*>(text); }

// The host's units may be of any type of 16 bits.
std::uint16_t UnitAt(const void* text, std::size_t index) {
  std::uint16_t unit = 0;
  std::memcpy(&unit, Bytes(text) + index * sizeof unit, sizeof unit);
  return unit;
}

}  // namespace

InputText::InputText(const BarhatchJob& job)
    : text_(job.text),
      length_(job.length),
      input_(job.input == BARHATCH_CODEWORDS ? BARHATCH_BYTES : job.input) {
  if (text_ == nullptr || length_ != 0) return;
  if (input_ == BARHATCH_UNITS) {
    while (UnitAt(text_, length_) != 0) ++length_;
  } else {
    while (Bytes(text_)[length_] != 0) ++length_;
  }
}

InputText::Character InputText::At(std::size_t position) const {
  if (input_ == BARHATCH_UNITS) return {UnitAt(text_, position), 1};
  const std::uint8_t* const bytes = Bytes(text_) + position;
  if (input_ == BARHATCH_BYTES) return {bytes[0], 1};

  const std::size_t extent = ExtentOf(bytes[0]);
  if (extent == 1) return {bytes[0], 1};
  if (extent == 0 || extent > length_ - position) return {kBroken, 1};
  std::uint32_t code = bytes[0] & (0x7Fu >> extent);
  for (std::size_t i = 1; i < extent; ++i) {
    if (!IsContinuation(bytes[i])) return {kBroken, 1};
    code = code << 6 | (bytes[i] & 0x3Fu);
  }
  return IsCodePoint(code, extent) ? Character{code, extent} : Character{kBroken, 1};
}

bool InputText::CountUnits(std::size_t& units, TextPlace& broken) const {
  units = 0;
  for (std::size_t position = 0; position < length_;) {
    const Character character = At(position);
    if (character.code == kBroken) {
      broken = {position, 1};
      return false;
    }
    units += UnitsOf(character.code);
    position += character.extent;
  }
  return true;
}

void InputText::CopyUnits(char16_t* units, std::size_t count) const {
  std::size_t position = 0;
  for (std::size_t i = 0; i < count;) {
    const Character character = At(position);
    position += character.extent;
    if (UnitsOf(character.code) == 2) {
      const std::uint32_t rest = character.code - kFirstSupplementary;
      units[i++] = static_cast<char16_t>(0xD800 + (rest >> 10));
      units[i++] = static_cast<char16_t>(0xDC00 + (rest & 0x3FF));
    } else {
      units[i++] = static_cast<char16_t>(character.code);
    }
  }
}

TextPlace InputText::PlaceOf(std::size_t unit) const {
  std::size_t position = 0;
  for (std::size_t units = 0; position < length_;) {
    const Character character = At(position);
    units += UnitsOf(character.code);
    if (units > unit) return {position, character.extent};
    position += character.extent;
  }
  return {position, 0};
}

}  // namespace barhatch
