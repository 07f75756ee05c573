#include "symbologies/Code128Symbologies.h"

#include <cassert>
#include <cstddef>
#include <cstring>

#include "job/CharacterClasses.h"
#include "symbologies/Code128Patterns.h"

namespace barhatch {

namespace {

enum class CodeSet { kA, kB, kC };

// What a Code 128 module string has always been allocated with.
constexpr std::size_t kUsualCapacity = 40521;
// The values and the stop, the termination bar and both quiet zones.
constexpr std::size_t kMostLetters = kCode128CharacterModules * (kMaxCode128Values + 1) +
                                     kCode128TerminationBarModules + 2 * kQuietZoneModules;
static_assert(kMostLetters == 935 && kMostLetters < kUsualCapacity, "room for every symbol");

constexpr char kFirstCharacter = ' ';
constexpr int kShortestRunForSetC = 4;

bool IsCode128Text(const char* text) {
  if (*text == '\0') return false;
  for (; *text != '\0'; ++text) {
    if (AsSignedByte(*text) < kFirstCharacter) return false;
  }
  return true;
}

bool TakesMoreText(const Code128Values& symbol) { return symbol.count < kCode128FullSymbol; }

void Append(Code128Values& symbol, int value) {
  assert(symbol.count < kMaxCode128Values);
  symbol.values[symbol.count++] = static_cast<std::uint8_t>(value);
}

int StartValue(CodeSet set) {
  switch (set) {
    case CodeSet::kA:
      return kCode128StartA;
    case CodeSet::kB:
      return kCode128StartB;
    default:
      return kCode128StartC;
  }
}

void AppendCharacter(Code128Values& symbol, char character) {
  Append(symbol, character - kFirstCharacter);
}

bool IsDigitPair(const char* text) { return IsDigit(text[0]) && IsDigit(text[1]); }

void AppendDigitPair(Code128Values& symbol, const char* text) {
  Append(symbol, (text[0] - '0') * 10 + (text[1] - '0'));
}

int DigitRun(const char* text) {
  int length = 0;
  while (IsDigit(text[length])) ++length;
  return length;
}

CodeSet StartSetByDigitRun(const char* text) {
  const int run = DigitRun(text);
  const bool isOnePair = run == 2 && text[2] == '\0';
  return isOnePair || run >= kShortestRunForSetC ? CodeSet::kC : CodeSet::kB;
}

// From inside set B an odd run of digits waits: its first digit goes into set B, after which the
// run is even.
bool DigitsAreWorthSetC(const char* text) {
  const int run = DigitRun(text);
  const bool isLastPair = run == 2 && text[2] == '\0';
  return isLastPair || (run >= kShortestRunForSetC && run % 2 == 0);
}

void AppendByDigitRuns(const char* text, Code128Values& symbol) {
  const char* const last = text + std::strlen(text) - 1;
  CodeSet set = StartSetByDigitRun(text);
  Append(symbol, StartValue(set));
  while (text <= last && TakesMoreText(symbol)) {
    if (set == CodeSet::kB) {
      AppendCharacter(symbol, *text++);
      if (DigitsAreWorthSetC(text)) {
        Append(symbol, kCode128SwitchToC);  // D-128-4: may be the 80th value after the start
        set = CodeSet::kC;
      }
    } else if (IsDigitPair(text)) {
      AppendDigitPair(symbol, text);
      text += 2;
      if (text < last && !IsDigit(*text)) {
        Append(symbol, kCode128SwitchToB);  // D-128-4
        set = CodeSet::kB;
      }
    } else if (text == last) {
      AppendCharacter(symbol, *text++);  // D-128-1: still in set C
    } else {
      Append(symbol, kCode128SwitchToB);
      AppendCharacter(symbol, *text++);  // D-128-4
      set = CodeSet::kB;
    }
  }
}

// Byte 127 is missing from set A as well; D-128-2 leaves it out here.
bool NeedsSetB(char character) { return character >= 96 && character <= 126; }

void AppendFromSetA(const char* text, Code128Values& symbol) {
  CodeSet set = NeedsSetB(*text) ? CodeSet::kB : CodeSet::kA;
  Append(symbol, StartValue(set));
  for (; *text != '\0' && TakesMoreText(symbol); ++text) {
    AppendCharacter(symbol, *text);
    if (set == CodeSet::kA && NeedsSetB(text[1])) {
      Append(symbol, kCode128SwitchToB);  // D-128-4
      set = CodeSet::kB;
    }
  }
}

void AppendInSetB(const char* text, Code128Values& symbol) {
  Append(symbol, StartValue(CodeSet::kB));
  for (; *text != '\0' && TakesMoreText(symbol); ++text) AppendCharacter(symbol, *text);
}

void AppendFromSetC(const char* text, Code128Values& symbol) {
  CodeSet set = IsDigitPair(text) ? CodeSet::kC : CodeSet::kB;
  Append(symbol, StartValue(set));
  while (*text != '\0' && TakesMoreText(symbol)) {
    if (set == CodeSet::kC && IsDigitPair(text)) {
      AppendDigitPair(symbol, text);
      text += 2;
      continue;
    }
    if (set == CodeSet::kC) {
      Append(symbol, kCode128SwitchToB);
      set = CodeSet::kB;
    }
    AppendCharacter(symbol, *text++);  // D-128-4: after a switch the 80th value after the start
  }
}

// D-128-3 in every policy: what TakesMoreText leaves of the text is dropped.
void AppendStartAndText(const char* text, Code128Policy policy, Code128Values& symbol) {
  switch (policy) {
    case Code128Policy::kAuto:
      return AppendByDigitRuns(text, symbol);
    case Code128Policy::kFromA:
      return AppendFromSetA(text, symbol);
    case Code128Policy::kB:
      return AppendInSetB(text, symbol);
    case Code128Policy::kFromC:
      return AppendFromSetC(text, symbol);
  }
}

}  // namespace

bool BuildCode128Values(const char* text, Code128Policy policy, Code128Values& symbol) {
  if (!IsCode128Text(text)) return false;
  symbol.count = 0;
  AppendStartAndText(text, policy, symbol);
  Append(symbol, Code128CheckValue(symbol.values, symbol.count));
  return true;
}

char* EncodeCode128(const char* text, Code128Policy policy, QuietZone quietZone) {
  Code128Values symbol;
  if (!BuildCode128Values(text, policy, symbol)) return nullptr;

  const int quietModules = QuietModules(quietZone);
  ModuleStringBuilder builder(kUsualCapacity, kMostLetters);
  builder.AppendSpace(quietModules);
  for (int i = 0; i < symbol.count; ++i) AppendCode128Character(builder, symbol.values[i]);
  AppendCode128Stop(builder);
  builder.AppendSpace(quietModules);
  return builder.Release();
}

}  // namespace barhatch
