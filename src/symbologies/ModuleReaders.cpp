#include "symbologies/Code93Characters.h"
#include "symbologies/CyclicWeights.h"
#include "symbologies/FamilyReaders.h"
#include "symbologies/Msi.h"
#include "symbologies/PatternRows.h"

namespace barhatch {

namespace {

constexpr std::size_t kCode93Modules = 9;

// All characters between start and stop.
bool ReadCode93Values(const char* letters, std::size_t length, SymbolReading& reading) {
  if (length < 2 * kCode93Modules || length % kCode93Modules != 1) return false;
  const std::size_t last = length - 1 - kCode93Modules;
  for (std::size_t at = 0; at <= last; at += kCode93Modules) {
    const int value = Code93Value(letters + at);
    const bool isFrame = at == 0 || at == last;
    if (value == kCode93NoValue || (value == kCode93StartStop) != isFrame) return false;
    if (!isFrame) AddValue(reading, value);
  }
  return AreModules(letters + length - 1, kCode93TerminationBar);
}

int Code93Check(const SymbolReading& reading, std::size_t count, int longestWeight) {
  CyclicWeightedSum sum(1, longestWeight);
  while (count-- > 0) sum.Add(reading.values[count]);
  return sum.Modulo(kCode93CheckModulus);
}

bool HasCAndK(const SymbolReading& reading) {
  const std::size_t c = reading.valuesCount - 2;
  return reading.values[c] == Code93Check(reading, c, kCode93LongestWeightOfC) &&
         reading.values[c + 1] == Code93Check(reading, c + 1, kCode93LongestWeightOfK);
}

bool AddCode93Text(SymbolReading& reading, std::size_t count) {
  const std::uint8_t* const values = reading.values;
  for (std::size_t i = 0; i < count; ++i) {
    if (values[i] < kCode93FirstShift) {
      AddText(reading, Code93CharacterOf(values[i]));
      continue;
    }
    const std::size_t shift = i++;
    if (i == count) return false;
    const int character = Code93CharacterOfPair(values[shift], values[i]);
    if (character == kCode93NoValue) return false;
    AddText(reading, character);
  }
  return true;
}

}  // namespace

bool ReadCode93(const char* letters, std::size_t length, ReaderSetting /*setting*/,
                SymbolReading& reading) {
  if (!ReadCode93Values(letters, length, reading)) return false;
  if (reading.valuesCount < 3 || !HasCAndK(reading)) return false;
  return AddCode93Text(reading, reading.valuesCount - 2);
}

bool ReadMsi(const char* letters, std::size_t length, ReaderSetting setting,
             SymbolReading& reading) {
  constexpr std::size_t kStart = sizeof kMsiStart - 1;
  constexpr std::size_t kStop = sizeof kMsiStop - 1;
  if (length < kStart + kStop || !AreModules(letters, kMsiStart)) return false;
  const std::size_t stop = length - kStop;
  if ((stop - kStart) % kMsiDigitLetters != 0) return false;
  for (std::size_t at = kStart; at < stop; at += kMsiDigitLetters) {
    const int digit = MsiDigit(letters + at);
    if (digit == kNoRow) return false;
    AddDigit(reading, digit);
  }
  const auto checks = static_cast<std::size_t>(MsiCheckDigitsOf(setting.check));
  if (reading.textLength <= checks || !AreModules(letters + stop, kMsiStop)) return false;
  if (!HasMsiCheck({reading.text, reading.textLength}, setting.check)) return false;
  reading.textLength -= checks;
  return true;
}

}  // namespace barhatch
