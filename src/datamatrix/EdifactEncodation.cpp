#include "datamatrix/ModeEncodations.h"

namespace barhatch {

namespace {

constexpr std::size_t kGroup = 4;

// Four characters of six bits in three codewords.
void EncodeGroup(EncodationState& state) {
  int bits = 0;
  for (std::size_t i = 0; i < kGroup; ++i) {
    bits = bits << 6 | (state.text[state.position + i] & 0x3F);  // D-DM-9: also outside ' ' to '^'
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
    if (mode != Mode::kEdifact) {
      state.codewords.Append(UnlatchCodeword(Mode::kEdifact));
      return EnterMode(state, mode);
    }
  }
  EndStretch(state, state.position + ahead);
}

}  // namespace barhatch
