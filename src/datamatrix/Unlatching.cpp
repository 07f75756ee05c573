#include "datamatrix/Unlatching.h"

#include "datamatrix/ModeEncodations.h"
#include "datamatrix/SymbolSizes.h"

namespace barhatch {

namespace {

constexpr int kTripleUnlatch = 254;
constexpr int kEdifactUnlatch = 124;  // 011111 and two zero bits

// A symbol with so many codewords left goes on in ASCII by itself.
constexpr int ImpliedWithin(Mode mode) { return mode == Mode::kEdifact ? 2 : 1; }

// What is left of the symbol behind the codewords so far, if `more` are to come; negative for a
// refusal.
int CodewordsLeft(const EncodationState& state, int more) {
  const int count = state.codewords.Count();
  const int capacity = CapacityUnder(state.request, count + more);
  return capacity != 0 ? capacity - count : -1;
}

bool IsImplied(const EncodationState& state, int more) {
  const int left = CodewordsLeft(state, more);
  return left >= 0 && left <= ImpliedWithin(state.mode);
}

// Whatever symbol is asked for.
bool IsOneBelowSquareCapacity(const EncodationState& state) {
  const int count = state.codewords.Count();
  return count + 1 == SquareCapacityAbove(count);
}

bool UnlatchesForMode(EncodationState& state, bool isWhole) {
  return !isWhole || !IsOneBelowSquareCapacity(state) || !state.how.Deviates(Deviation::kDDM_7);
}

bool UnlatchesBehindLastGroup(EncodationState& state) {
  const bool isImplied = IsImplied(state, 0);
  if (IsOneBelowSquareCapacity(state)) {
    return !isImplied && !state.how.Deviates(Deviation::kDDM_7);
  }
  if (!isImplied) return true;
  const bool fillsSymbol = CodewordsLeft(state, 0) <= 1;
  const bool isRead = state.mode == Mode::kEdifact && IsImplied(state, 1);  // as a character
  bool unlatches = fillsSymbol && state.how.Deviates(Deviation::kDDM_8);
  if (isRead && state.how.Deviates(Deviation::kDDM_10)) unlatches = true;
  return unlatches;
}

bool UnlatchesForRest(const EncodationState& state) {
  const int rest = AsciiCodewordsUntil(state, state.length);
  const bool mayBeImplied =
      state.mode == Mode::kEdifact || (state.length - state.position == 1 && rest == 1);
  return !mayBeImplied || !IsImplied(state, rest);
}

void Leave(EncodationState& state, bool unlatches, std::size_t end, Mode next) {
  if (unlatches) {
    state.codewords.Append(state.mode == Mode::kEdifact ? kEdifactUnlatch : kTripleUnlatch);
  }
  EncodeAsciiUntil(state, end);
  EnterMode(state, next);
}

}  // namespace

void LeaveBehindUnlatch(EncodationState& state, std::size_t end, Mode next) {
  Leave(state, true, end, next);
}

void LeaveForMode(EncodationState& state, std::size_t end, Mode next, bool isWhole) {
  Leave(state, UnlatchesForMode(state, isWhole), end, next);
}

void LeaveAtEnd(EncodationState& state) {
  const bool unlatches =
      state.position == state.length ? UnlatchesBehindLastGroup(state) : UnlatchesForRest(state);
  Leave(state, unlatches, state.length, Mode::kAscii);
}

bool KeepsModeToTheEnd(EncodationState& state, const KeptEnding& ending) {
  if (ending.codewords == 0) return false;
  if (CapacityUnder(state.request, ending.codewords) != ending.codewords) return false;
  const bool isShort = ending.lastValues == 2 || ending.lastValues == 3;
  return (isShort && ending.charactersLeft > 0) || !state.how.Deviates(Deviation::kDDM_8);
}

}  // namespace barhatch
