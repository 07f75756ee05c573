#include "datamatrix/EncodationState.h"

namespace barhatch {

namespace {

// Indexed by the number of the mode; 0 where there is none.
constexpr int kLatchCodewords[] = {
    0,
    0,    // ASCII
    231,  // Base 256
    240,  // EDIFACT
    239,  // Text
    238,  // X12
    230,  // C40
};

}  // namespace

std::size_t CharactersAhead(const EncodationState& state, std::size_t limit) {
  std::size_t ahead = 0;
  while (ahead < limit && state.position + ahead < state.length &&
         !IsDesignator(state.text[state.position + ahead])) {
    ++ahead;
  }
  return ahead;
}

Mode NextMode(EncodationState& state) {
  state.how.Meet(Deviation::kDDM_2);
  return state.lookAhead.ModeFor(state.position, state.mode);
}

Mode ModeBehindGroup(EncodationState& state, std::size_t ahead, std::size_t group) {
  const bool isConsulted = ahead == group || (ahead > 0 && state.position + ahead == state.length);
  return isConsulted ? NextMode(state) : state.mode;
}

void EnterMode(EncodationState& state, Mode mode) {
  const int latch = kLatchCodewords[static_cast<int>(mode)];
  if (latch != 0) state.codewords.Append(latch);
  state.mode = mode;
}

}  // namespace barhatch
