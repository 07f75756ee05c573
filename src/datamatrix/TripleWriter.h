// The values of C40, Text and X12 on their way into codewords: three of them in every two. The mode
// can only be left where the values fill their codewords, or lack one that a pad stands for. So
// characters behind the last such place wait; when the mode ends they have not been written.
//
// "AAa" in C40 is 14 14 2 1: with "AA" and a pad 89 177, 'a' waits; with "AAab" 14 14 2 and 1 2 2.
#ifndef BARHATCH_DATAMATRIX_TRIPLEWRITER_H
#define BARHATCH_DATAMATRIX_TRIPLEWRITER_H

#include <cstddef>

#include "datamatrix/C40Sets.h"
#include "datamatrix/EncodationState.h"
#include "datamatrix/Unlatching.h"

namespace barhatch {

// Lives for one stretch in the mode. REQUIRES: the state outlives it.
class TripleWriter {
 public:
  static constexpr std::size_t kGroup = 3;

  TripleWriter(EncodationState& state, CharacterSet set)
      : state_(state), set_(set), written_(state.position) {}

  // True when the set has the whole group at the position: C40 and Text always.
  bool HasGroup() const;

  // Takes the group at the position. The last character of the text waits where it leaves values
  // over: then the text is going to end in ASCII.
  void TakeGroup();

  // True when the characters taken are whole groups of values: nothing waits, no pad is missing.
  bool IsWhole() const { return values_ == 0; }

  // What would come of it if the characters left, up to the end of the text, were taken as well.
  // Not possible in X12, which has no pad, and where nothing is left to be taken.
  KeptEnding EndingWith(std::size_t charactersLeft) const;

  // Takes all characters left, and the pad that may be missing behind them. A single value over is
  // that of the last character, which fills the symbol in ASCII.
  void Finish();

  // Fills the last codewords and takes back the characters that wait.
  void Close();

 private:
  int CountAt(std::size_t index) const { return ValueCountOf(set_, state_.text[index] & 0xFF); }

  int ValuesBetween(std::size_t begin, std::size_t end) const;
  int PendingValues() const;
  void WriteUntil(std::size_t end);
  void Queue(int value);

  EncodationState& state_;
  CharacterSet set_;
  std::size_t written_;  // end of the characters whose values are written or queued
  int values_ = 0;       // of all characters taken, modulo 3
  int queue_[3] = {};
  int queued_ = 0;
};

}  // namespace barhatch

#endif
