#include "symbologies/Code128Shortest.h"

#include "symbologies/Code128Patterns.h"

namespace barhatch {

namespace {

enum CodeSet { kA, kB, kC };

// A way to stand at a place: the set, and three more where FNC4 is latched.
constexpr int kWays = 6;
constexpr int kSets = 3;
constexpr int WayOf(int set, bool isLatched) { return isLatched ? set + kSets : set; }
constexpr int SetOf(int way) { return way % kSets; }
constexpr bool IsLatched(int way) { return way >= kSets; }

constexpr std::uint16_t kNoWay = 0x7FFF;  // more than any text costs, and twice it is a number yet
constexpr int kLatchCost = 2;

// What the rest of the text costs from a place on, by the way to stand there.
struct Costs {
  std::uint16_t of[kWays];
};

constexpr int kStartValues[] = {kCode128StartA, kCode128StartB, kCode128StartC};
constexpr int kSwitchValues[] = {kCode128SwitchToA, kCode128SwitchToB, kCode128SwitchToC};
// FNC4 has the value of the switch to the own set; C has none.
constexpr int kFnc4Values[] = {kCode128SwitchToA, kCode128SwitchToB, 0};
constexpr int kSetsByPreference[] = {kB, kA, kC};

int LowBits(Token byte) { return static_cast<int>(byte & 0x7F); }
bool IsHigh(Token byte) { return byte >= 128; }

bool IsInSet(int set, Token byte) {
  const int low = LowBits(byte);
  return set == kA ? low < 96 : low >= ' ';
}

int DigitOf(Token token) { return static_cast<int>(token) - '0'; }

bool IsPair(const TokenText& text, std::size_t at) {
  return at + 1 < text.length && IsDigitToken(text.tokens[at]) && IsDigitToken(text.tokens[at + 1]);
}

// Values of one character in set A or B. A function character is one in either.
int CharacterCost(int way, Token token) {
  if (!IsByte(token)) return 1;
  return 1 + (IsInSet(SetOf(way), token) ? 0 : 1) + (IsHigh(token) != IsLatched(way) ? 1 : 0);
}

int FunctionValue(Token token) {
  if (token == kFnc1Token) return kCode128Fnc1;
  return token == kFnc2Token ? kCode128Fnc2 : kCode128Fnc3;
}

// From one way to stand at a place to another, directly.
int StepCost(int from, int to) {
  if (IsLatched(from) == IsLatched(to)) return SetOf(from) == SetOf(to) ? 0 : 1;
  return SetOf(from) == SetOf(to) && SetOf(from) != kC ? kLatchCost : kNoWay;
}

class ShortestWalk {
 public:
  ShortestWalk(const TokenText& text, Code128Start start, Costs* costs)
      : text_(text), start_(start), costs_(costs) {
    costs_[text_.length] = {};
    for (std::size_t at = text_.length; at-- > 0;) FindCosts(at);
  }

  // Writes the values, as many as CountValues.
  void Write(std::uint8_t* values) {
    next_ = values;
    int way = StartWay();
    Put(kStartValues[SetOf(way)]);
    for (std::size_t at = 0; at < text_.length;) {
      if (costs_[at].of[way] == TakingCost(way, at)) {
        at += Take(way, at);
      } else {
        way = Step(way, at);
      }
    }
  }

  int CountValues() const { return 1 + costs_[0].of[StartWay()]; }

 private:
  bool MayStandIn(int way) const { return start_ != Code128Start::kB || way == WayOf(kB, false); }

  // Without a switch: the next character or pair, and what follows it.
  int TakingCost(int way, std::size_t at) const {
    if (!MayStandIn(way)) return kNoWay;
    const Token token = text_.tokens[at];
    if (SetOf(way) == kC && token != kFnc1Token) {
      return IsPair(text_, at) ? 1 + costs_[at + 2].of[way] : kNoWay;
    }
    return CharacterCost(way, token) + costs_[at + 1].of[way];
  }

  // Three steps lead from any way to any other.
  void FindCosts(std::size_t at) {
    Costs& costs = costs_[at];
    for (int way = 0; way < kWays; ++way) Lower(costs.of[way] = kNoWay, TakingCost(way, at));
    for (int round = 0; round < kSets; ++round) {
      for (int from = 0; from < kWays; ++from) {
        for (int to = 0; to < kWays; ++to) Lower(costs.of[from], StepCost(from, to) + costs.of[to]);
      }
    }
  }

  static void Lower(std::uint16_t& cost, int other) {
    if (other < cost) cost = static_cast<std::uint16_t>(other);
  }

  int StartWay() const {
    if (start_ == Code128Start::kA) return WayOf(kA, false);
    if (start_ == Code128Start::kB) return WayOf(kB, false);
    if (start_ == Code128Start::kPair) return WayOf(BeginsWithPair() ? kC : kB, false);
    if (BeginsWithPairAndFnc1()) return WayOf(kC, false);
    int best = kB;
    for (const int set : kSetsByPreference) {
      if (costs_[0].of[set] < costs_[0].of[best]) best = set;
    }
    return best;
  }

  // FNC1 in front says what the text is; set C has it too.
  bool BeginsWithPair() const { return IsPair(text_, text_.tokens[0] == kFnc1Token ? 1 : 0); }

  // A pair of digits is in set C where FNC1 in second position stands behind it. No way is shorter.
  bool BeginsWithPairAndFnc1() const {
    return IsPair(text_, 0) && text_.length > 2 && text_.tokens[2] == kFnc1Token;
  }

  void Put(int value) { *next_++ = static_cast<std::uint8_t>(value); }

  // Returns the characters taken.
  std::size_t Take(int way, std::size_t at) {
    const Token token = text_.tokens[at];
    const int set = SetOf(way);
    if (!IsByte(token)) {
      Put(FunctionValue(token));
      return 1;
    }
    if (set == kC) {
      Put(DigitOf(token) * 10 + DigitOf(text_.tokens[at + 1]));
      return 2;
    }
    if (IsHigh(token) != IsLatched(way)) Put(kFnc4Values[set]);
    if (!IsInSet(set, token)) Put(kCode128Shift);
    const int low = LowBits(token);
    Put(low < ' ' ? low + 64 : low - ' ');
    return 1;
  }

  // The first step of a cheapest way, a switch before a latch.
  int Step(int from, std::size_t at) {
    const Costs& costs = costs_[at];
    for (const int set : kSetsByPreference) {
      const int to = WayOf(set, IsLatched(from));
      if (to == from || StepCost(from, to) + costs.of[to] != costs.of[from]) continue;
      Put(kSwitchValues[set]);
      return to;
    }
    Put(kFnc4Values[SetOf(from)]);
    Put(kFnc4Values[SetOf(from)]);
    return WayOf(SetOf(from), !IsLatched(from));
  }

  const TokenText& text_;
  const Code128Start start_;
  Costs* const costs_;  // by place, one more than there are characters
  std::uint8_t* next_ = nullptr;
};

}  // namespace

std::uint8_t* ShortestCode128Values(const TokenText& text, Code128Start start, const Memory& memory,
                                    int& count) {
  const Block<Costs> costs(memory, text.length + 1);
  if (costs.get() == nullptr) return nullptr;
  ShortestWalk walk(text, start, costs.get());
  count = walk.CountValues();
  Block<std::uint8_t> values(memory, static_cast<std::size_t>(count) + 1);
  if (values.get() == nullptr) return nullptr;
  walk.Write(values.get());
  return values.Release();
}

void DrawShortestCode128(const TokenText& text, Code128Start start, SymbolWriter& out) {
  int count = 0;
  std::uint8_t* const values = ShortestCode128Values(text, start, out.GetMemory(), count);
  if (values == nullptr) return;
  if (count < kMostShortestValues) {
    values[count] = Code128CheckValue(values, count);
    ++count;
    const int characters = count + 1;  // and the stop
    out.Open(static_cast<std::size_t>(characters * kCode128CharacterModules +
                                      kCode128TerminationBarModules));
    AppendCode128Characters(out, values, count);
    AppendCode128Stop(out);
  } else {
    out.Refuse({Reason::kTooManyValues, -1, count + 1});
  }
  out.GetMemory().Release(values);
}

}  // namespace barhatch
