#include "datamatrix/EndOfData.h"

#include <cassert>

#include "datamatrix/TokenCosts.h"

namespace barhatch {

namespace {

constexpr int kAnyCapacity = 0x7FFF;
constexpr std::size_t kMostEdifactRest = 4;  // tokens: two pairs of digits
constexpr int kMostEdifactRestCodewords = 2;

}  // namespace

EndsOfData::EndsOfData(const TokenText& text, std::size_t lead, const ShortestPass& pass,
                       bool isLoose)
    : text_(text), lead_(lead), pass_(pass) {
  Add(kInAscii, text.length, pass.At(text.length).of[kInAscii], kAnyCapacity);
  AddTripleEnds(Scheme::kC40, isLoose);
  AddTripleEnds(Scheme::kText, isLoose);
  AddTripleEnds(Scheme::kX12, isLoose);
  AddEdifactEnds();
  const Cost run = pass.LongRunCost();  // 0 is one codeword less than the length
  if (run < kNever) Add(kInBase256, text.length, run - kCodeword, 0);
}

// spare: codewords that may be left behind it.
void EndsOfData::Add(State state, std::size_t position, Cost cost, int spare) {
  if (cost >= kNever) return;
  ends_[count_++] = {cost, static_cast<std::uint16_t>(CodewordsOf(cost) + spare),
                     static_cast<std::uint16_t>(position), state};
}

void EndsOfData::AddTripleEnds(Scheme scheme, bool isLoose) {
  const State entry = EntryOf(scheme);
  const std::size_t end = text_.length;
  Add(entry, end, pass_.At(end).of[entry], 0);
  if (isLoose && HasPlaces(1)) AddLooseEnd(entry, end - 1);
  if (isLoose && HasPlaces(2)) AddLooseEnd(entry, end - 2);
}

// The tokens behind the position, if they are one codeword of text.
void EndsOfData::AddLooseEnd(State state, std::size_t position) {
  const Token first = text_.tokens[position];
  const bool isOne = position + 1 == text_.length
                         ? IsByteToken(first) && AsciiCodewordsOf(first) == 1
                         : IsDigitToken(first) && IsDigitToken(text_.tokens[position + 1]);
  if (isOne) Add(state, position, pass_.At(position).of[state] + kCodeword, 0);
}

// From the end backwards, so that a rest grows token by token.
void EndsOfData::AddEdifactEnds() {
  int after[2] = {0, 0};  // codewords of ASCII behind the last place, and behind the one after it
  for (std::size_t rest = 0; rest <= kMostEdifactRest && HasPlaces(rest); ++rest) {
    const std::size_t position = text_.length - rest;
    if (rest > 0) {
      const Token token = text_.tokens[position];
      int codewords = after[0] + AsciiCodewordsOf(token);
      const bool isPair =
          rest > 1 && IsDigitToken(token) && IsDigitToken(text_.tokens[position + 1]);
      if (isPair && after[1] + 1 < codewords) codewords = after[1] + 1;
      after[1] = after[0];
      after[0] = codewords;
    }
    const int spare = kMostEdifactRestCodewords - after[0];
    if (spare < 0) return;
    Add(kInEdifact, position,
        pass_.At(position).of[kInEdifact] + static_cast<Cost>(after[0]) * kCodeword, spare);
  }
}

int EndsOfData::LeastCodewords() const {
  Cost least = kNever;
  for (int i = 0; i < count_; ++i) least = ends_[i].cost < least ? ends_[i].cost : least;
  return CodewordsOf(least);
}

const End& EndsOfData::For(int capacity) const {
  const End* best = nullptr;
  for (int i = 0; i < count_; ++i) {
    const End& end = ends_[i];
    if (CodewordsOf(end.cost) > capacity || capacity > end.mostCapacity) continue;
    if (best == nullptr || end.cost < best->cost) best = &end;
  }
  assert(best != nullptr);
  return *best;
}

}  // namespace barhatch
