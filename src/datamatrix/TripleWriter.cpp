#include "datamatrix/TripleWriter.h"

#include "datamatrix/ModeEncodations.h"

namespace barhatch {

bool TripleWriter::HasGroup() const {
  for (std::size_t i = 0; i < kGroup; ++i) {
    if (CountAt(state_.position + i) == 0) return false;
  }
  return true;
}

void TripleWriter::TakeGroup() {
  std::size_t place = written_;
  for (std::size_t i = 0; i < kGroup; ++i) {
    values_ = (values_ + CountAt(state_.position)) % 3;
    ++state_.position;
    const bool isLast = state_.position == state_.length;
    if (values_ == 0 || (values_ == 2 && !isLast)) place = state_.position;
  }
  WriteUntil(place);
}

KeptEnding TripleWriter::EndingWith(std::size_t charactersLeft) const {
  const int lastValues = values_ + ValuesBetween(state_.position, state_.length);
  const KeptEnding none = {0, lastValues, charactersLeft};
  if (set_ == CharacterSet::kX12 || (charactersLeft == 0 && IsWhole())) return none;
  const int values = PendingValues();
  const int whole = state_.codewords.Count() + values / 3 * 2;
  if (values % 3 == 0) return {whole, lastValues, charactersLeft};
  if (values % 3 == 2) return {whole + 2, lastValues, charactersLeft};
  const bool isLastInAscii = charactersLeft == 2 && CountAt(state_.length - 1) == 1;
  return isLastInAscii ? KeptEnding{whole + 1, lastValues, charactersLeft} : none;
}

void TripleWriter::Finish() {
  WriteUntil(PendingValues() % 3 == 1 ? state_.length - 1 : state_.length);
  Close();
  EncodeAsciiUntil(state_, state_.length);
}

void TripleWriter::Close() {
  if (queued_ == 2) Queue(kPadValue);
  state_.position = written_;
}

int TripleWriter::ValuesBetween(std::size_t begin, std::size_t end) const {
  int values = 0;
  for (std::size_t i = begin; i < end; ++i) values += CountAt(i);
  return values;
}

// Up to the end of the text, behind the codewords that are full.
int TripleWriter::PendingValues() const { return queued_ + ValuesBetween(written_, state_.length); }

void TripleWriter::WriteUntil(std::size_t end) {
  for (; written_ < end; ++written_) {
    const CharacterValues values = ValuesOf(set_, state_.text[written_] & 0xFF);
    for (int i = 0; i < values.count; ++i) Queue(values.values[i]);
  }
}

void TripleWriter::Queue(int value) {
  queue_[queued_++] = value;
  if (queued_ < 3) return;
  const int packed = 1600 * queue_[0] + 40 * queue_[1] + queue_[2] + 1;
  state_.codewords.Append(packed >> 8);
  state_.codewords.Append(packed & 0xFF);
  queued_ = 0;
}

}  // namespace barhatch
