#include "symbologies/Code128Policies.h"

#include <cassert>

#include "job/CharacterClasses.h"
#include "symbologies/Code128Patterns.h"

namespace barhatch {

namespace {

enum class CodeSet { kA, kB, kC };

// By the book, indexed by policy.
constexpr Code128Start kStarts[] = {Code128Start::kFree, Code128Start::kA, Code128Start::kB,
                                    Code128Start::kPair};

constexpr char kFirstCharacter = ' ';
constexpr int kShortestRunForSetC = 4;

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

// D-128-4: the step that fills the symbol may write a switch, and a character behind it.
CodeSet SwitchTo(CodeSet set, Code128Values& symbol, Conformance& how) {
  Append(symbol, set == CodeSet::kC ? kCode128SwitchToC : kCode128SwitchToB);
  if (!TakesMoreText(symbol)) how.Meet(Deviation::kD128_4);
  return set;
}

// Each policy returns where the text ends that it has taken.
const char* AppendByDigitRuns(const char* text, const char* end, Code128Values& symbol,
                              Conformance& how) {
  const char* const last = end - 1;
  CodeSet set = StartSetByDigitRun(text);
  Append(symbol, StartValue(set));
  while (text < end && TakesMoreText(symbol)) {
    if (set == CodeSet::kB) {
      AppendCharacter(symbol, *text++);
      if (DigitsAreWorthSetC(text)) set = SwitchTo(CodeSet::kC, symbol, how);
    } else if (IsDigitPair(text)) {
      AppendDigitPair(symbol, text);
      text += 2;
      if (text < last && !IsDigit(*text)) set = SwitchTo(CodeSet::kB, symbol, how);
    } else {
      // A lone last character stays in set C.
      const bool staysInC = text == last && how.Deviates(Deviation::kD128_1);
      if (!staysInC) set = SwitchTo(CodeSet::kB, symbol, how);
      AppendCharacter(symbol, *text++);
    }
  }
  return text;
}

// Byte 127 is missing from set A as well; the device leaves it there.
bool NeedsSetB(char character, const Conformance& how) {
  return character >= 96 && (character < 127 || !how.IsInForce(Deviation::kD128_2));
}

const char* AppendFromSetA(const char* text, const char* end, Code128Values& symbol,
                           Conformance& how) {
  CodeSet set = NeedsSetB(*text, how) ? CodeSet::kB : CodeSet::kA;
  Append(symbol, StartValue(set));
  for (; text < end && TakesMoreText(symbol); ++text) {
    AppendCharacter(symbol, *text);
    if (set == CodeSet::kB) continue;
    if (*text == 127) how.Meet(Deviation::kD128_2);
    if (NeedsSetB(text[1], how)) set = SwitchTo(CodeSet::kB, symbol, how);
  }
  return text;
}

const char* AppendInSetB(const char* text, const char* end, Code128Values& symbol) {
  Append(symbol, StartValue(CodeSet::kB));
  for (; text < end && TakesMoreText(symbol); ++text) AppendCharacter(symbol, *text);
  return text;
}

const char* AppendFromSetC(const char* text, const char* end, Code128Values& symbol,
                           Conformance& how) {
  CodeSet set = IsDigitPair(text) ? CodeSet::kC : CodeSet::kB;
  Append(symbol, StartValue(set));
  while (text < end && TakesMoreText(symbol)) {
    if (set == CodeSet::kC && IsDigitPair(text)) {
      AppendDigitPair(symbol, text);
      text += 2;
      continue;
    }
    if (set == CodeSet::kC) set = SwitchTo(CodeSet::kB, symbol, how);
    AppendCharacter(symbol, *text++);
  }
  return text;
}

const char* AppendStartAndText(const Characters& text, Code128Policy policy, Code128Values& symbol,
                               Conformance& how) {
  const char* const end = text.text + text.length;
  switch (policy) {
    case Code128Policy::kAuto:
      return AppendByDigitRuns(text.text, end, symbol, how);
    case Code128Policy::kFromA:
      return AppendFromSetA(text.text, end, symbol, how);
    case Code128Policy::kB:
      return AppendInSetB(text.text, end, symbol);
    default:
      return AppendFromSetC(text.text, end, symbol, how);
  }
}

void DrawBytes(const Characters& text, int variant, SymbolWriter& out) {
  const Block<Token> tokens(out.GetMemory(), text.length);
  if (tokens.get() == nullptr) return;
  for (std::size_t i = 0; i < text.length; ++i) {
    tokens.get()[i] = static_cast<unsigned char>(text.text[i]);
  }
  DrawShortestCode128({tokens.get(), text.length}, Code128StartOf(variant), out);
}

}  // namespace

Code128Start Code128StartOf(int variant) { return kStarts[variant]; }

void BuildCode128Values(const Characters& text, Code128Policy policy, Conformance& how,
                        Code128Values& symbol) {
  symbol.count = 0;
  const char* const rest = AppendStartAndText(text, policy, symbol, how);
  // What a full symbol leaves of the text is dropped.
  if (rest < text.text + text.length) how.Meet(Deviation::kD128_3);
  Append(symbol, Code128CheckValue(symbol.values, symbol.count));
}

void EncodeCode128(const Characters& text, int variant, Conformance& how, SymbolWriter& out) {
  if (!how.IsInForce(Deviation::kD128_3)) {
    return DrawBytes(text, variant, out);
  }
  Code128Values symbol;
  BuildCode128Values(text, static_cast<Code128Policy>(variant), how, symbol);
  out.Open(kMostCode128Letters);
  AppendCode128Characters(out, symbol.values, symbol.count);
  AppendCode128Stop(out);
}

}  // namespace barhatch
