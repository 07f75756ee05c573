#include "job/CharacterClasses.h"
#include "symbologies/Code128Patterns.h"
#include "symbologies/FamilyReaders.h"
#include "symbologies/PatternRows.h"

namespace barhatch {

namespace {

constexpr std::size_t kModules = kCode128CharacterModules;
constexpr std::size_t kStopModules = kModules + kCode128TerminationBarModules;
constexpr int kPairValues = 100;      // of set C
constexpr int kCharacterValues = 96;  // of sets A and B
constexpr int kFirstControl = 64;     // in set A
constexpr int kSpace = 32;
constexpr int kGs = 29;
constexpr int kExtended = 128;  // what FNC4 adds

enum class CodeSet { kA, kB, kC };

CodeSet SetOfStart(int start) {
  if (start == kCode128StartC) return CodeSet::kC;
  return start == kCode128StartA ? CodeSet::kA : CodeSet::kB;
}

// Turns values into text, one by one.
class Code128Text {
 public:
  Code128Text(int start, SymbolReading& reading) : set_(SetOfStart(start)), reading_(reading) {}

  // False for a value that no symbol has there: a start, the stop.
  bool Take(int value, std::size_t position) {
    const bool isShifted = isShifted_;
    isShifted_ = false;
    if (value == kCode128Fnc1) {
      TakeFnc1(position);
      return true;
    }
    if (value > kCode128Fnc1) return false;
    if (set_ == CodeSet::kC) {
      TakeInSetC(value);
    } else {
      TakeInSet(isShifted ? Other() : set_, value);
    }
    return true;
  }

 private:
  CodeSet Other() const { return set_ == CodeSet::kA ? CodeSet::kB : CodeSet::kA; }

  // In first position, and in second behind a letter or a pair of digits, FNC1 says what the text
  // is and is no part of it.
  void TakeFnc1(std::size_t position) {
    const bool isBehindPair = position == 2 && set_ == CodeSet::kC;
    const bool isSecond = !hasFunction_ && (isBehindPair || IsBehindLetter());
    if (position > 1 && !isSecond) AddText(reading_, kGs);
    hasFunction_ = true;
  }

  bool IsBehindLetter() const {
    const char first = *reading_.text;
    return reading_.textLength == 1 && (IsAsciiUpper(first) || IsAsciiLower(first));
  }

  void TakeInSetC(int value) {
    if (value < kPairValues) {
      AddText(reading_, '0' + value / 10);
      AddText(reading_, '0' + value % 10);
    } else {
      set_ = value == kCode128SwitchToB ? CodeSet::kB : CodeSet::kA;
    }
  }

  void TakeInSet(CodeSet set, int value) {
    if (value < kCharacterValues) {
      AddCharacter(set, value);
    } else if (value < kCode128Shift) {
      hasFunction_ = true;
    } else if (value == kCode128Shift) {
      isShifted_ = true;
    } else if (value == kCode128SwitchToC) {
      set_ = CodeSet::kC;
    } else if (value > kCode128SwitchToC) {
      SwitchOrExtend(set, value == kCode128SwitchToA ? CodeSet::kA : CodeSet::kB);
    }
  }

  // The switch to the set that it stands in is FNC4.
  void SwitchOrExtend(CodeSet set, CodeSet to) {
    if (to == set) {
      TakeFnc4();
    } else {
      set_ = to;
    }
  }

  void AddCharacter(CodeSet set, int value) {
    const bool isControl = set == CodeSet::kA && value >= kFirstControl;
    const int character = isControl ? value - kFirstControl : value + kSpace;
    AddText(reading_, isExtended_ != isNextOther_ ? character + kExtended : character);
    isNextOther_ = false;
  }

  // One touches the next character, two in a row all that follow.
  void TakeFnc4() {
    if (isNextOther_) isExtended_ = !isExtended_;
    isNextOther_ = !isNextOther_;
  }

  CodeSet set_;
  SymbolReading& reading_;
  bool isShifted_ = false;
  bool hasFunction_ = false;
  bool isExtended_ = false;
  bool isNextOther_ = false;  // extended where the others are not, and the reverse
};

bool ReadValues(const char* letters, std::size_t stop, SymbolReading& reading) {
  for (std::size_t at = 0; at < stop; at += kModules) {
    const int value = Code128Value(letters + at);
    if (value == kNoRow) return false;
    AddValue(reading, value);
  }
  return true;
}

bool HasStop(const char* letters) {
  return Code128Value(letters) == kCode128Stop &&
         AreModules(letters + kModules, kCode128TerminationBar);
}

bool IsStart(int value) { return value >= kCode128StartA && value <= kCode128StartC; }

}  // namespace

bool ReadCode128(const char* letters, std::size_t length, ReaderSetting /*setting*/,
                 SymbolReading& reading) {
  if (length < kStopModules || (length - kStopModules) % kModules != 0) return false;
  const std::size_t stop = length - kStopModules;
  if (!ReadValues(letters, stop, reading) || !HasStop(letters + stop)) return false;

  // Start, one character of data or function, and check.
  if (reading.valuesCount < 3 || reading.valuesCount > kMostCode128CheckedValues) return false;
  if (!IsStart(reading.values[0])) return false;
  const std::size_t check = reading.valuesCount - 1;
  if (reading.values[check] != Code128CheckValue(reading.values, static_cast<int>(check)))
    return false;
  Code128Text text(reading.values[0], reading);
  for (std::size_t i = 1; i < check; ++i) {
    if (!text.Take(reading.values[i], i)) return false;
  }
  return true;
}

}  // namespace barhatch
