#include "datamatrix/ShortestPass.h"

#include "datamatrix/TokenCosts.h"

namespace barhatch {

namespace {

struct TripleScheme {
  State entry;
  CharacterSet set;
};
constexpr TripleScheme kTripleSchemes[] = {
    {kInC40, CharacterSet::kC40}, {kInText, CharacterSet::kText}, {kInX12, CharacterSet::kX12}};

struct Unlatch {
  int state;
  Cost codewords;
};
// The codeword 254 behind whole triples; the value 31 in the group of EDIFACT, which ends with the
// codeword that the value ends in.
constexpr Unlatch kUnlatches[] = {
    {kInC40, 1},         {kInText, 1},        {kInX12, 1},         {kInEdifact, 1},
    {kInEdifact + 1, 2}, {kInEdifact + 2, 3}, {kInEdifact + 3, 3},
};

constexpr Scheme kLatched[] = {Scheme::kC40, Scheme::kText, Scheme::kX12, Scheme::kEdifact};

// Every three values are two codewords.
void TakeValues(int values, const Cost* before, Cost* after) {
  for (int waiting = 0; waiting < 3; ++waiting) {
    const int sum = waiting + values;
    const Cost more = static_cast<Cost>(sum / 3 * 2) * kCodeword;
    after[sum % 3] = values != 0 ? before[waiting] + more : kNever;
  }
}

// Every four are three.
void TakeEdifact(bool isTaken, const Cost* before, Cost* after) {
  for (int waiting = 0; waiting < 4; ++waiting) {
    const Cost more = waiting == 3 ? 3 * kCodeword : 0;
    after[(waiting + 1) % 4] = isTaken ? before[waiting] + more : kNever;
  }
}

void SetNever(Costs& costs) {
  for (Cost& cost : costs.of) cost = kNever;
}

}  // namespace

ShortestPass::ShortestPass(const TokenText& text, std::size_t lead, Cost begin, Place* places)
    : text_(text), lead_(lead), places_(places), runBegin_(lead) {
  for (Costs& costs : costs_) SetNever(costs);
  Costs& first = costs_[lead % kKept];
  first.of[kInAscii] = begin;
  source_ = kFromToken;
  Enter(lead, first);
  for (std::size_t place = lead + 1; place <= text.length; ++place) Step(place);
}

void ShortestPass::Step(std::size_t place) {
  const Token token = text_.tokens[place - 1];
  const Costs& before = costs_[(place - 1) % kKept];
  Costs& after = costs_[place % kKept];
  for (const TripleScheme& scheme : kTripleSchemes) {
    TakeValues(TripleValuesOf(scheme.set, token), before.of + scheme.entry,
               after.of + scheme.entry);
  }
  TakeEdifact(IsEdifactToken(token), before.of + kInEdifact, after.of + kInEdifact);
  ReachAscii(place, after);
  Enter(place, after);
}

void ShortestPass::Consider(Cost cost, int source) {
  if (cost >= best_) return;
  best_ = cost;
  source_ = source;
}

void ShortestPass::ReachAscii(std::size_t place, Costs& after) {
  const Token token = text_.tokens[place - 1];
  best_ = kNever;
  Consider(places_[place - 1].ascii + static_cast<Cost>(AsciiCodewordsOf(token)) * kCodeword,
           kFromToken);
  const bool isPair =
      place >= lead_ + 2 && IsDigitToken(token) && IsDigitToken(text_.tokens[place - 2]);
  if (isPair) Consider(places_[place - 2].ascii + kCodeword, kFromPair);
  for (const Unlatch& unlatch : kUnlatches) {
    Consider(after.of[unlatch.state] + unlatch.codewords * kCodeword + kChange,
             kFromState + unlatch.state);
  }
  ConsiderRuns(place);
  after.of[kInAscii] = best_;
}

// What a run from here costs, but for its end: less is better, wherever it ends.
Cost ShortestPass::Balance(std::size_t begin) const {
  return places_[begin].ascii + static_cast<Cost>(kMostTokens - begin) * kCodeword;
}

// The latch, the length and the bytes; there and back are two changes.
Cost ShortestPass::RunCost(std::size_t begin, std::size_t end, Cost overhead, Cost cost) {
  return cost + (overhead + static_cast<Cost>(end - begin)) * kCodeword + 2 * kChange;
}

void ShortestPass::ConsiderRuns(std::size_t place) {
  if (!IsByteToken(text_.tokens[place - 1])) {
    runBegin_ = place;
    queueFront_ = queueBack_ = 0;
    longCost_ = kNever;
    return;
  }
  const std::size_t newest = place - 1;
  while (queueBack_ > queueFront_ && Balance(places_[queueBack_ - 1].note) > Balance(newest)) {
    --queueBack_;
  }
  places_[queueBack_++].note = static_cast<std::uint16_t>(newest);
  if (place - places_[queueFront_].note > kLongestShortRun) ++queueFront_;
  const std::size_t begin = places_[queueFront_].note;
  Consider(RunCost(begin, place, 2, places_[begin].ascii),
           kFromRun + static_cast<int>(place - begin));

  if (place - runBegin_ <= kLongestShortRun) return;
  const std::size_t leaving = place - kLongestShortRun - 1;
  if (longCost_ == kNever || Balance(leaving) < Balance(longBegin_)) {
    longBegin_ = leaving;
    longCost_ = places_[leaving].ascii;
  }
  Consider(RunCost(longBegin_, place, 3, longCost_),
           kFromRun + static_cast<int>(place - longBegin_));
}

void ShortestPass::Enter(std::size_t place, Costs& after) {
  const Cost ascii = after.of[kInAscii];
  std::uint16_t way = static_cast<std::uint16_t>(source_);
  for (const Scheme scheme : kLatched) {
    Cost& entry = after.of[EntryOf(scheme)];
    if (ascii + kCodeword + kChange >= entry) continue;
    entry = ascii + kCodeword + kChange;
    way |= EntryBit(scheme);
  }
  places_[place].ascii = ascii;
  places_[place].way = way;
}

}  // namespace barhatch
