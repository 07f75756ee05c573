#include "datamatrix/ModeEncodations.h"
#include "datamatrix/Unlatching.h"

namespace barhatch {

namespace {

constexpr std::size_t kGroup = 4;

// The characters of six bits.
constexpr bool IsEdifact(char16_t character) { return character >= u' ' && character <= u'^'; }

// Four characters of six bits in three codewords.
void EncodeGroup(EncodationState& state) {
  int bits = 0;
  for (std::size_t i = 0; i < kGroup; ++i) {
    const char16_t character = state.text[state.position + i];
    if (!IsEdifact(character)) state.how.Meet(Deviation::kDDM_9);
    bits = bits << 6 | (character & 0x3F);
  }
  state.codewords.Append(bits >> 16);
  state.codewords.Append(bits >> 8 & 0xFF);
  state.codewords.Append(bits & 0xFF);
  state.position += kGroup;
}

}  // namespace

void EncodeEdifact(EncodationState& state) {
  std::size_t ahead = CharactersAhead(state, kGroup);
  while (ahead == kGroup) {
    EncodeGroup(state);
    if (state.codewords.HasOverflowed()) return;
    ahead = CharactersAhead(state, kGroup);
    const Mode mode = ModeBehindGroup(state, ahead, kGroup);
    if (mode != Mode::kEdifact) return LeaveBehindUnlatch(state, state.position, mode);
  }
  const std::size_t restEnd = state.position + ahead;
  if (restEnd < state.length) return LeaveBehindUnlatch(state, restEnd, Mode::kAscii);
  LeaveAtEnd(state);
}

}  // namespace barhatch
