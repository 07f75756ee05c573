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

  // Takes the group at the position, without the last character of the text where that one would
  // leave values over: then the text is going to end in ASCII.
  void TakeGroup() {
    for (std::size_t i = 0; i < kGroup; ++i) {
      const int values = (values_ + ValuesAt(state_.position).count) % 3;
      if (state_.position + 1 == state_.length && values != 0) return;
      values_ = values;
      ++state_.position;
      if (values_ != 1) WriteUntil(state_.position);
    }
  }

  // Fills the last codewords and takes back the characters that wait.
  void Close() {
    if (queued_ == 2) Queue(kPadValue);
    state_.position = written_;
  }

 private:
  CharacterValues ValuesAt(std::size_t index) const {
    return ValuesOf(set_, state_.text[index] & 0xFF);
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

  EncodationState& state_;
  CharacterSet set_;
  std::size_t written_;  // end of the characters whose values are written or queued
  int values_ = 0;       // of all characters taken, modulo 3
  int queue_[3] = {};
  int queued_ = 0;
};

// The look-ahead says another mode. Without characters taken back the unlatch falls under D-DM-7.
void LeaveFor(EncodationState& state, TripleWriter& writer, Mode mode) {
  const std::size_t end = state.position;
  writer.Close();
  // cppcheck-suppress knownConditionTrueFalse ; Close takes characters back
  if (state.position < end || !IsOneBelowSquareCapacity(state)) {
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

}  // namespace

void EncodeTriples(EncodationState& state) {
  TripleWriter writer(state, SetOf(state.mode));
  bool isFirst = true;
  while (CharactersAhead(state, kGroup) == kGroup) {
    if (!isFirst) {
      const Mode mode = state.lookAhead.ModeFor(state.position, state.mode);
      if (mode != state.mode) return LeaveFor(state, writer, mode);
    }
    if (state.mode == Mode::kX12 && !writer.HasGroup()) return LeaveWithGroup(state);
    writer.TakeGroup();
    if (state.codewords.HasOverflowed()) return;
    isFirst = false;
  }
  const std::size_t restEnd = state.position + CharactersAhead(state, kGroup);
  writer.Close();
  EndStretch(state, restEnd);
}

}  // namespace barhatch
