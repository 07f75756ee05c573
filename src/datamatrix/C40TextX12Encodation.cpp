#include "datamatrix/C40Sets.h"
#include "datamatrix/ModeEncodations.h"

namespace barhatch {

namespace {

constexpr std::size_t kGroup = 3;

constexpr CharacterSet SetOf(Mode mode) {
  return mode == Mode::kC40    ? CharacterSet::kC40
         : mode == Mode::kText ? CharacterSet::kText
                               : CharacterSet::kX12;
}

// Turns characters into values and every three values into two codewords. The mode can only be left
// where the values fill their codewords, or lack one that a pad stands for. So characters behind
// the last such place wait; when the mode ends they have not been written.
class TripleWriter {
 public:
  TripleWriter(EncodationState& state, CharacterSet set)
      : state_(state), set_(set), written_(state.position) {}

  // True when the set has the whole group at the position.
  bool HasGroup() const {
    for (std::size_t i = 0; i < kGroup; ++i) {
      if (ValuesAt(state_.position + i).count == 0) return false;
    }
    return true;
  }

  // Takes the group at the position. The last character of the text waits where it leaves values
  // over: then the text is going to end in ASCII.
  void TakeGroup() {
    for (std::size_t i = 0; i < kGroup; ++i) {
      values_ = (values_ + ValuesAt(state_.position).count) % 3;
      ++state_.position;
      const bool isLast = state_.position == state_.length;
      if (values_ == 0 || (values_ == 2 && !isLast)) WriteUntil(state_.position);
    }
  }

  // True when the characters taken are whole groups of values: nothing waits, no pad is missing.
  bool IsWhole() const { return values_ == 0; }

  // True when the values that wait and those of the characters left, one or two, fill the last two
  // codewords of the finished symbol, with a pad or without. X12 has no pad.
  bool FillsSymbol() const {
    if (set_ == CharacterSet::kX12) return false;
    const int left = ValuesBetween(state_.position, state_.length);
    if (values_ + left != 2 && values_ + left != 3) return false;
    const int waiting = queued_ + ValuesBetween(written_, state_.position);
    return IsSymbolFull(state_, state_.codewords.Count() + waiting / 3 * 2 + 2);
  }

  // Takes all characters left, and the pad that may be missing behind them.
  void Finish() {
    state_.position = state_.length;
    WriteUntil(state_.length);
    FillUp();
  }

  // Fills the last codewords and takes back the characters that wait.
  void Close() {
    FillUp();
    state_.position = written_;
  }

 private:
  CharacterValues ValuesAt(std::size_t index) const {
    return ValuesOf(set_, state_.text[index] & 0xFF);
  }

  int ValuesBetween(std::size_t begin, std::size_t end) const {
    int values = 0;
    for (std::size_t i = begin; i < end; ++i) values += ValuesAt(i).count;
    return values;
  }

  void WriteUntil(std::size_t end) {
    for (; written_ < end; ++written_) {
      const CharacterValues values = ValuesAt(written_);
      for (int i = 0; i < values.count; ++i) Queue(values.values[i]);
    }
  }

  void Queue(int value) {
    queue_[queued_++] = value;
    if (queued_ < 3) return;
    const int packed = 1600 * queue_[0] + 40 * queue_[1] + queue_[2] + 1;
    state_.codewords.Append(packed / 256);
    state_.codewords.Append(packed % 256);
    queued_ = 0;
  }

  void FillUp() {
    if (queued_ == 2) Queue(kPadValue);
  }

  EncodationState& state_;
  CharacterSet set_;
  std::size_t written_;  // end of the characters whose values are written or queued
  int values_ = 0;       // of all characters taken, modulo 3
  int queue_[3] = {};
  int queued_ = 0;
};

// The look-ahead says another mode. Behind whole groups alone the unlatch falls under D-DM-7.
void LeaveFor(EncodationState& state, TripleWriter& writer, Mode mode) {
  const std::size_t end = state.position;
  const bool isWhole = writer.IsWhole();
  writer.Close();
  if (!isWhole || !IsOneBelowSquareCapacity(state)) {
    state.codewords.Append(UnlatchCodeword(state.mode));
  }
  EncodeAsciiUntil(state, end);
  EnterMode(state, mode);
}

// X12 has no shift: a group with a character that it lacks goes out in ASCII.
void LeaveWithGroup(EncodationState& state) {
  state.codewords.Append(UnlatchCodeword(state.mode));
  EncodeAsciiUntil(state, state.position + kGroup);
  EnterMode(state, Mode::kAscii);
}

// ahead: characters that follow, fewer than a group.
void EndTriples(EncodationState& state, TripleWriter& writer, std::size_t ahead) {
  const std::size_t restEnd = state.position + ahead;
  if (ahead > 0 && restEnd == state.length && writer.FillsSymbol()) return writer.Finish();
  writer.Close();
  EndStretch(state, restEnd);
}

}  // namespace

void EncodeTriples(EncodationState& state) {
  TripleWriter writer(state, SetOf(state.mode));
  std::size_t ahead = CharactersAhead(state, kGroup);
  while (ahead == kGroup) {
    if (state.mode == Mode::kX12 && !writer.HasGroup()) return LeaveWithGroup(state);
    writer.TakeGroup();
    if (state.codewords.HasOverflowed()) return;
    ahead = CharactersAhead(state, kGroup);
    const Mode mode = ModeBehindGroup(state, ahead, kGroup);
    if (mode != state.mode) return LeaveFor(state, writer, mode);
  }
  EndTriples(state, writer, ahead);
}

}  // namespace barhatch
