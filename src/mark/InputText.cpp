#include "mark/InputText.h"

#include <cstring>

#include "job/CharacterClasses.h"

namespace barhatch {

namespace {

// What is no character, by the reason.
constexpr Token kNoCharacter = 0xFFFFFFFF;
constexpr Token kNoEscape = 0xFFFFFFFE;
constexpr Token kFirstSupplementary = 0x10000;
constexpr char kEscape = '^';

bool IsContinuation(std::uint8_t byte) { return (byte & 0xC0) == 0x80; }
bool IsHighSurrogate(Token unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLowSurrogate(Token unit) { return unit >= 0xDC00 && unit < 0xE000; }

// Bytes of the character that begins with this one; 0 for a byte that begins none.
std::size_t ExtentOf(std::uint8_t first) {
  if (first < 0x80) return 1;
  if (first < 0xC2 || first > 0xF4) return 0;
  return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

// Longer forms than needed, surrogates and what lies above U+10FFFF are no characters.
bool IsCodePoint(Token code, std::size_t extent) {
  constexpr Token kLeast[] = {0, 0, 0x80, 0x800, kFirstSupplementary};
  const bool isSurrogate = IsHighSurrogate(code) || IsLowSurrogate(code);
  return code >= kLeast[extent] && code < kTokensOfCharacters && !isSurrogate;
}

const std::uint8_t* Bytes(const void* text) { return static_cast<const std::uint8_t*>(text); }

// The host's units may be of any type of 16 bits.
std::uint16_t ReadUnit(const void* text, std::size_t index) {
  std::uint16_t unit = 0;
  std::memcpy(&unit, Bytes(text) + index * sizeof unit, sizeof unit);
  return unit;
}

// Escapes: a name behind '^', and so many digits behind it, whose number is added to the token.
struct Escape {
  const char* name;
  std::size_t digits;
  Token token;
  std::int32_t largest;
};

constexpr Escape kEscapes[] = {
    {"^", 0, kEscape, 0},       {"FNC1", 0, kFnc1Token, 0},           {"FNC2", 0, kFnc2Token, 0},
    {"FNC3", 0, kFnc3Token, 0}, {"ECI", 6, kFirstEciToken, kLastEci}, {"", 3, 0, 255},
};

// The number of the digits, -1 where there are not as many.
std::int32_t NumberOf(const std::uint8_t* bytes, std::size_t left, std::size_t digits) {
  if (left < digits) return -1;
  std::int32_t number = 0;
  for (std::size_t i = 0; i < digits; ++i) {
    if (!IsDigit(static_cast<char>(bytes[i]))) return -1;
    number = 10 * number + (bytes[i] - '0');
  }
  return number;
}

}  // namespace

InputText::InputText(const BarhatchJob& job)
    : text_(job.text),
      length_(job.length),
      input_(job.input == BARHATCH_CODEWORDS ? BARHATCH_BYTES : job.input),
      isDevice_(job.conformance == BARHATCH_DEVICE) {
  if (text_ == nullptr || length_ != 0) return;
  if (input_ == BARHATCH_UNITS) {
    while (ReadUnit(text_, length_) != 0) ++length_;
  } else {
    while (Bytes(text_)[length_] != 0) ++length_;
  }
}

InputText::Character InputText::At(std::size_t position) const {
  switch (input_) {
    case BARHATCH_UNITS:
      return UnitAt(position);
    case BARHATCH_BYTES:
      return {Bytes(text_)[position], 1};
    case BARHATCH_ESCAPED:
      return Bytes(text_)[position] == kEscape ? EscapedAt(position) : Utf8At(position);
    default:
      return Utf8At(position);
  }
}

// The device has its units as they are.
InputText::Character InputText::UnitAt(std::size_t position) const {
  const Token unit = ReadUnit(text_, position);
  if (isDevice_ || !(IsHighSurrogate(unit) || IsLowSurrogate(unit))) return {unit, 1};
  const Token next = position + 1 < length_ ? ReadUnit(text_, position + 1) : 0;
  if (!IsHighSurrogate(unit) || !IsLowSurrogate(next)) return {kNoCharacter, 1};
  return {kFirstSupplementary + (unit - 0xD800) * 0x400 + (next - 0xDC00), 2};
}

InputText::Character InputText::Utf8At(std::size_t position) const {
  const std::uint8_t* const bytes = Bytes(text_) + position;
  const std::size_t extent = ExtentOf(bytes[0]);
  if (extent == 1) return {bytes[0], 1};
  if (extent == 0 || extent > length_ - position) return {kNoCharacter, 1};
  Token code = bytes[0] & (0x7Fu >> extent);
  for (std::size_t i = 1; i < extent; ++i) {
    if (!IsContinuation(bytes[i])) return {kNoCharacter, 1};
    code = code << 6 | (bytes[i] & 0x3Fu);
  }
  return IsCodePoint(code, extent) ? Character{code, extent} : Character{kNoCharacter, 1};
}

InputText::Character InputText::EscapedAt(std::size_t position) const {
  const std::uint8_t* const bytes = Bytes(text_) + position + 1;
  const std::size_t left = length_ - position - 1;
  for (const Escape& escape : kEscapes) {
    const std::size_t name = std::strlen(escape.name);
    if (name > left || std::memcmp(bytes, escape.name, name) != 0) continue;
    const std::int32_t number = NumberOf(bytes + name, left - name, escape.digits);
    if (number < 0 || number > escape.largest) break;
    return {escape.token + static_cast<Token>(number), 1 + name + escape.digits};
  }
  return {kNoEscape, 1};
}

std::size_t InputText::CountOf(Token token) const {
  const bool isPair = isDevice_ && token >= kFirstSupplementary && IsCharacter(token);
  return isPair ? 2 : 1;
}

Refusal InputText::Count(std::size_t& count, TextPlace& broken) const {
  count = 0;
  for (std::size_t position = 0; position < length_;) {
    const Character character = At(position);
    const bool isFunction = isDevice_ && !IsCharacter(character.token);
    if (isFunction || character.token >= kNoEscape) {
      broken = {position, character.extent};
      return {character.token == kNoCharacter ? Reason::kNoUtf8
              : character.token == kNoEscape  ? Reason::kNoEscape
                                              : Reason::kFunction};
    }
    count += CountOf(character.token);
    position += character.extent;
  }
  return {};
}

void InputText::CopyTokens(Token* tokens, std::size_t count) const {
  std::size_t position = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const Character character = At(position);
    tokens[i] = character.token;
    position += character.extent;
  }
}

void InputText::CopyUnits(char16_t* units, std::size_t count) const {
  std::size_t position = 0;
  for (std::size_t i = 0; i < count;) {
    const Character character = At(position);
    position += character.extent;
    if (CountOf(character.token) == 2) {
      const Token rest = character.token - kFirstSupplementary;
      units[i++] = static_cast<char16_t>(0xD800 + (rest >> 10));
      units[i++] = static_cast<char16_t>(0xDC00 + (rest & 0x3FF));
    } else {
      units[i++] = static_cast<char16_t>(character.token);
    }
  }
}

TextPlace InputText::PlaceOf(std::size_t index) const {
  std::size_t position = 0;
  for (std::size_t count = 0; position < length_;) {
    const Character character = At(position);
    count += CountOf(character.token);
    if (count > index) return {position, character.extent};
    position += character.extent;
  }
  return {position, 0};
}

}  // namespace barhatch
