#include "symbologies/Codabar.h"
#include "symbologies/Code11.h"
#include "symbologies/Code39.h"
#include "symbologies/Code39FullAscii.h"
#include "symbologies/CyclicWeights.h"
#include "symbologies/FamilyReaders.h"
#include "symbologies/Interleaved2of5.h"
#include "symbologies/PatternRows.h"

namespace barhatch {

namespace {

// Elements of a character, and of it with the narrow space behind it.
constexpr std::size_t kCodabarElements = 7;
constexpr std::size_t kCode39Elements = 9;
constexpr std::size_t kCode11Elements = 5;

using RowOf = int (*)(const char* letters);

// Characters with a gap between each two: letters of whole ones.
template <std::size_t kElements>
constexpr bool AreWholeCharacters(std::size_t length) {
  return length % (kElements + 1) == kElements;
}

// The row of the character at a place; the gap behind it must be there unless it is the last.
template <std::size_t kElements, RowOf kRowOf>
int RowAt(const char* letters, std::size_t length, std::size_t at) {
  const std::size_t gap = at + kElements;
  return gap == length || letters[gap] == kNarrowSpace ? kRowOf(letters + at) : kNoRow;
}

bool IsCodabarStartStop(int value) { return value >= kCodabarStartA; }

bool AreFramed(const std::uint8_t* values, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const bool isAtAnEnd = i == 0 || i + 1 == count;
    if (IsCodabarStartStop(values[i]) != isAtAnEnd) return false;
  }
  return true;
}

int Code11Check(const SymbolReading& reading, std::size_t count, int longestWeight) {
  CyclicWeightedSum sum(1, longestWeight);
  while (count-- > 0) sum.Add(reading.values[count]);
  return sum.Modulo(kCode11CheckModulus);
}

// Check characters among so many characters of a symbol: by length, both take two of them away.
int Code11ChecksIn(CheckScheme check, std::size_t characters) {
  return Code11CheckCharactersOf(check, characters < 2 ? 0 : characters - 2);
}

bool TestsCheck(ReaderSetting setting, CheckScheme scheme) {
  return setting.check == scheme || setting.check == CheckScheme::kVerify;
}

// Of the first values.
int Sum(const SymbolReading& reading, std::size_t count) {
  int sum = 0;
  while (count-- > 0) sum += reading.values[count];
  return sum;
}

bool HasModulo43Check(const SymbolReading& reading) {
  if (reading.valuesCount < 2) return false;
  const std::size_t last = reading.valuesCount - 1;
  return reading.values[last] == Sum(reading, last) % kCode39CheckModulus;
}

bool HasInterleavedCheck(const SymbolReading& reading) {
  Conformance how = Conformance::Published();
  const std::size_t last = reading.textLength - 1;
  return reading.text[last] == Interleaved2of5CheckDigit({reading.text, last}, how);
}

// All characters between start and stop.
bool ReadCode11Values(const char* letters, std::size_t length, SymbolReading& reading) {
  if (!AreWholeCharacters<kCode11Elements>(length)) return false;
  const std::size_t last = length - kCode11Elements;
  for (std::size_t at = 0; at <= last; at += kCode11Elements + 1) {
    const int value = RowAt<kCode11Elements, Code11Value>(letters, length, at);
    const bool isFrame = at == 0 || at == last;
    if (value == kNoRow || (value == kCode11StartStop) != isFrame) return false;
    if (!isFrame) AddValue(reading, value);
  }
  return true;
}

}  // namespace

bool ReadCodabar(const char* letters, std::size_t length, ReaderSetting setting,
                 SymbolReading& reading) {
  if (!AreWholeCharacters<kCodabarElements>(length)) return false;
  for (std::size_t at = 0; at < length; at += kCodabarElements + 1) {
    const int value = RowAt<kCodabarElements, CodabarValue>(letters, length, at);
    if (value == kNoRow) return false;
    AddValue(reading, value);
  }
  if (reading.valuesCount < 3 || !AreFramed(reading.values, reading.valuesCount)) return false;
  for (std::size_t i = 1; i + 1 < reading.valuesCount; ++i)
    AddText(reading, CodabarCharacterOf(reading.values[i]));
  return !TestsCheck(setting, CheckScheme::kModulo16) ||
         Sum(reading, reading.valuesCount) % kCodabarCheckModulus == 0;
}

bool ReadCode39(const char* letters, std::size_t length, ReaderSetting setting,
                SymbolReading& reading) {
  if (!AreWholeCharacters<kCode39Elements>(length)) return false;
  for (std::size_t at = 0; at < length; at += kCode39Elements + 1) {
    const int row = RowAt<kCode39Elements, Code39Row>(letters, length, at);
    const bool isStartStop = row == kCode39StartStop;
    if (row == kNoRow || (at == 0 && !isStartStop)) return false;
    if (at == 0) continue;
    if (isStartStop) {
      return reading.textLength > 0 &&
             (!TestsCheck(setting, CheckScheme::kModulo43) || HasModulo43Check(reading));
    }
    AddValue(reading, Code39ValueOfRow(row));
    AddText(reading, Code39CharacterOf(row));
  }
  return false;
}

bool ReadCode39FullAscii(const char* letters, std::size_t length, ReaderSetting setting,
                         SymbolReading& reading) {
  if (!ReadCode39(letters, length, setting, reading)) return false;
  if (TestsCheck(setting, CheckScheme::kModulo43)) --reading.textLength;
  const std::size_t resolved = ResolveCode39(reading.text, reading.textLength);
  if (resolved == kNoSpelling) return false;
  reading.textLength = resolved;
  return true;
}

bool ReadCode11(const char* letters, std::size_t length, ReaderSetting setting,
                SymbolReading& reading) {
  if (!ReadCode11Values(letters, length, reading)) return false;
  std::size_t count = reading.valuesCount;
  const int checks = Code11ChecksIn(setting.check, count);
  if (count <= static_cast<std::size_t>(checks)) return false;
  if (checks == 2) {
    --count;
    if (reading.values[count] != Code11Check(reading, count, kCode11LongestWeightOfK)) return false;
  }
  if (checks > 0) {
    --count;
    if (reading.values[count] != Code11Check(reading, count, kCode11LongestWeightOfC)) return false;
  }
  for (std::size_t i = 0; i < count; ++i) {
    const int value = reading.values[i];
    AddText(reading, value == kCode11Dash ? '-' : '0' + value);
  }
  return true;
}

bool ReadInterleaved2of5(const char* letters, std::size_t length, ReaderSetting setting,
                         SymbolReading& reading) {
  constexpr std::size_t kStart = sizeof kInterleaved2of5Start - 1;
  constexpr std::size_t kStop = sizeof kInterleaved2of5Stop - 1;
  if (length < kStart + kStop || !AreElements(letters, kInterleaved2of5Start)) return false;
  const std::size_t stop = length - kStop;
  if ((stop - kStart) % kInterleaved2of5PairLetters != 0) return false;
  for (std::size_t at = kStart; at < stop; at += kInterleaved2of5PairLetters) {
    const int pair = Interleaved2of5Pair(letters + at);
    if (pair == kNoRow) return false;
    AddDigit(reading, pair / 10);
    AddDigit(reading, pair % 10);
  }
  if (reading.valuesCount == 0 || !AreElements(letters + stop, kInterleaved2of5Stop)) return false;
  return !TestsCheck(setting, CheckScheme::kInterleaved10) || HasInterleavedCheck(reading);
}

bool ReadItf14(const char* letters, std::size_t length, ReaderSetting setting,
               SymbolReading& reading) {
  return ReadInterleaved2of5(letters, length, {setting.variant, CheckScheme::kInterleaved10},
                             reading) &&
         reading.textLength == kItf14Digits;
}

}  // namespace barhatch
