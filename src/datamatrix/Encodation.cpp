#include "datamatrix/Encodation.h"

#include "datamatrix/ModeEncodations.h"

namespace barhatch {

namespace {

constexpr std::int32_t kFnc1Format = 1;
constexpr int kFnc1Codeword = 232;

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
constexpr int kTripleUnlatch = 254;
constexpr int kEdifactUnlatch = 124;  // D-DM-10: 011111 and two zero bits

// D-DM-6: the count alone decides, so a latch may be in front of the FNC1, and a first character of
// two codewords leaves no place for it.
void AppendFnc1WhereSecond(std::int32_t codeFormat, CodewordBuffer& codewords) {
  if (codeFormat == kFnc1Format && codewords.Count() == 1) codewords.Append(kFnc1Codeword);
}

void EncodeStretch(EncodationState& state) {
  if (IsDesignator(state.text[state.position])) return EncodeDesignator(state);
  switch (state.mode) {
    case Mode::kAscii:
      return EncodeAscii(state);
    case Mode::kBase256:
      return EncodeBase256(state);
    case Mode::kEdifact:
      return EncodeEdifact(state);
    case Mode::kText:
    case Mode::kX12:
    case Mode::kC40:
      return EncodeTriples(state);
  }
}

// Of the symbol that the count of codewords gets under the request; 0 for a refusal.
int SymbolCapacity(const EncodationState& state, int codewords) {
  SymbolSize size;
  return ChooseSymbolSize(codewords, state.request, size) ? size.dataCodewords : 0;
}

// A symbol with one codeword left for C40, Text or X12, or at most two for EDIFACT, goes on in
// ASCII.
bool SymbolImpliesUnlatch(const EncodationState& state) {
  const int count = state.codewords.Count();
  const int rest = AsciiCodewordsUntil(state, state.length);
  const int capacity = SymbolCapacity(state, count + rest);
  if (state.mode == Mode::kEdifact) return capacity != 0 && capacity - count <= 2;
  return state.length - state.position == 1 && rest == 1 && capacity == count + 1;
}

bool NeedsUnlatch(const EncodationState& state, std::size_t restEnd) {
  if (restEnd < state.length) return true;
  if (state.position == restEnd) return !IsOneBelowSquareCapacity(state);  // D-DM-7, D-DM-8
  return !SymbolImpliesUnlatch(state);
}

}  // namespace

std::size_t CharactersAhead(const EncodationState& state, std::size_t limit) {
  std::size_t ahead = 0;
  while (ahead < limit && state.position + ahead < state.length &&
         !IsDesignator(state.text[state.position + ahead])) {
    ++ahead;
  }
  return ahead;
}

Mode ModeBehindGroup(EncodationState& state, std::size_t ahead, std::size_t group) {
  const bool isAsked = ahead == group || (ahead > 0 && state.position + ahead == state.length);
  return isAsked ? state.lookAhead.ModeFor(state.position, state.mode) : state.mode;
}

int UnlatchCodeword(Mode mode) { return mode == Mode::kEdifact ? kEdifactUnlatch : kTripleUnlatch; }

void EnterMode(EncodationState& state, Mode mode) {
  const int latch = kLatchCodewords[static_cast<int>(mode)];
  if (latch != 0) state.codewords.Append(latch);
  state.mode = mode;
}

bool IsOneBelowSquareCapacity(const EncodationState& state) {
  const int count = state.codewords.Count();
  return count + 1 == SquareCapacityAbove(count);
}

bool IsSymbolFull(const EncodationState& state, int codewords) {
  return SymbolCapacity(state, codewords) == codewords;
}

void EndStretch(EncodationState& state, std::size_t restEnd) {
  if (NeedsUnlatch(state, restEnd)) state.codewords.Append(UnlatchCodeword(state.mode));
  EncodeAsciiUntil(state, restEnd);
  EnterMode(state, Mode::kAscii);
}

void EncodeText(const char16_t* text, std::size_t length, std::int32_t codeFormat,
                const SizeRequest& request, CodewordBuffer& codewords) {
  EncodationState state(text, length, request, codewords);
  while (state.position < length && !codewords.HasOverflowed()) {
    AppendFnc1WhereSecond(codeFormat, codewords);
    EncodeStretch(state);
  }
  AppendFnc1WhereSecond(codeFormat, codewords);
}

}  // namespace barhatch
