// A plain reader of Interleaved 2 of 5, written from the published symbology (ISO/IEC 16390). It
// has no table: the five elements of a digit weigh 1, 2, 4, 7 and 0, the two wide ones add up to
// the digit, and 11 stands for 0.
#ifndef BARHATCH_TESTS_SUPPORT_INTERLEAVED2OF5READER_H
#define BARHATCH_TESTS_SUPPORT_INTERLEAVED2OF5READER_H

#include <optional>
#include <string>

namespace barhatch::test {

// The digit of every second letter from `first` on; wide letters are 'B' and 'b'.
inline std::optional<char> ReadInterleavedDigit(const std::string& pair, std::size_t first) {
  const int weights[] = {1, 2, 4, 7, 0};
  int wide = 0;
  int sum = 0;
  for (std::size_t i = 0; i < 5; ++i) {
    const char letter = pair[first + 2 * i];
    if (letter != (first == 0 ? 'A' : 'a') && letter != (first == 0 ? 'B' : 'b'))
      return std::nullopt;
    if (letter != 'B' && letter != 'b') continue;
    wide += 1;
    sum += weights[i];
  }
  if (wide != 2) return std::nullopt;
  return sum == 11 ? '0' : static_cast<char>('0' + sum);
}

// The digits of a module string without quiet zones; nothing when it is no Interleaved 2 of 5.
inline std::optional<std::string> ReadInterleaved2of5(const std::string& letters) {
  const std::string start = "AaAa";
  const std::string stop = "BaA";
  if (letters.size() < start.size() + stop.size()) return std::nullopt;
  const std::size_t stopAt = letters.size() - stop.size();
  if (letters.compare(0, start.size(), start) != 0 || letters.substr(stopAt) != stop ||
      (stopAt - start.size()) % 10 != 0)
    return std::nullopt;
  std::string digits;
  for (std::size_t at = start.size(); at < stopAt; at += 10) {
    const std::string pair = letters.substr(at, 10);
    const std::optional<char> inBars = ReadInterleavedDigit(pair, 0);
    const std::optional<char> inSpaces = ReadInterleavedDigit(pair, 1);
    if (!inBars || !inSpaces) return std::nullopt;
    digits += *inBars;
    digits += *inSpaces;
  }
  return digits;
}

}  // namespace barhatch::test

#endif
