#include "datamatrix/ModeEncodations.h"
#include "datamatrix/TripleWriter.h"
#include "datamatrix/Unlatching.h"

namespace barhatch {

namespace {

constexpr CharacterSet SetOf(Mode mode) {
  return mode == Mode::kC40    ? CharacterSet::kC40
         : mode == Mode::kText ? CharacterSet::kText
                               : CharacterSet::kX12;
}

// The look-ahead says another mode. Characters that are taken back go out in ASCII.
void LeaveFor(EncodationState& state, TripleWriter& writer, Mode mode) {
  const std::size_t end = state.position;
  const bool isWhole = writer.IsWhole();
  writer.Close();
  LeaveForMode(state, end, mode, isWhole);
}

// ahead: characters that follow, fewer than a group.
void EndTriples(EncodationState& state, TripleWriter& writer, std::size_t ahead) {
  const std::size_t restEnd = state.position + ahead;
  const bool isEndOfText = restEnd == state.length;
  if (isEndOfText && KeepsModeToTheEnd(state, writer.EndingWith(ahead))) return writer.Finish();
  writer.Close();
  if (isEndOfText) return LeaveAtEnd(state);
  LeaveBehindUnlatch(state, restEnd, Mode::kAscii);
}

}  // namespace

void EncodeTriples(EncodationState& state) {
  TripleWriter writer(state, SetOf(state.mode));
  std::size_t ahead = CharactersAhead(state, TripleWriter::kGroup);
  while (ahead == TripleWriter::kGroup) {
    if (state.mode == Mode::kX12 && !writer.HasGroup()) {  // X12 has no shift
      return LeaveBehindUnlatch(state, state.position + TripleWriter::kGroup, Mode::kAscii);
    }
    writer.TakeGroup();
    if (state.codewords.HasOverflowed()) return;
    ahead = CharactersAhead(state, TripleWriter::kGroup);
    const Mode mode = ModeBehindGroup(state, ahead, TripleWriter::kGroup);
    if (mode != state.mode) return LeaveFor(state, writer, mode);
  }
  EndTriples(state, writer, ahead);
}

}  // namespace barhatch
