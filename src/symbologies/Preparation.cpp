#include "symbologies/Preparation.h"

#include <cstring>

namespace barhatch {

Refusal CheckCharacters(PreparedText& text, Conformance& how) {
  return CheckText(*text.rule, text.room, text.length, how);
}

void Insert(PreparedText& text, std::size_t at, char character) {
  std::memmove(text.room + at + 1, text.room + at, text.length + 1 - at);
  text.room[at] = character;
  ++text.length;
}

Refusal VerifyCharacter(const PreparedText& text, std::size_t at, char right) {
  if (text.room[at] == right) return {};
  return {Reason::kCheck, static_cast<std::int32_t>(at), static_cast<unsigned char>(right)};
}

}  // namespace barhatch
