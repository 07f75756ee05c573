#include "symbologies/Tally.h"

namespace barhatch {

namespace {

constexpr std::size_t kMostLettersOfDigit = 21;  // ten bars, nine spaces, two modules to the next

int BarsOf(char digit) { return digit == '0' ? 10 : digit - '0'; }

}  // namespace

void EncodeTally(const Characters& text, int /*variant*/, Conformance& /*how*/, SymbolWriter& out) {
  out.Open(kMostLettersOfDigit * text.length);
  for (std::size_t i = 0; i < text.length; ++i) {
    if (i > 0) out.AppendSpace(2);
    for (int bar = 0; bar < BarsOf(text.text[i]); ++bar) {
      if (bar > 0) out.AppendSpace(1);
      out.AppendModules("1");
    }
  }
}

bool ReadTally(const char* letters, std::size_t length, ReaderSetting /*setting*/,
               SymbolReading& reading) {
  int bars = 0;
  for (std::size_t i = 0; i < length; ++i) {
    if (letters[i] == kNarrowBar) ++bars;
    const bool isEnd =
        i + 1 == length || (letters[i] == kNarrowSpace && letters[i + 1] == letters[i]);
    if (!isEnd) continue;
    AddDigit(reading, bars % 10);
    bars = 0;
  }
  return reading.textLength > 0;
}

}  // namespace barhatch
