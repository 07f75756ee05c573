// The pass over a text that finds its shortest encodation (ShortestEncodation.h): what it costs to
// stand in each state between two tokens, and how the state was reached.
#ifndef BARHATCH_DATAMATRIX_SHORTESTPASS_H
#define BARHATCH_DATAMATRIX_SHORTESTPASS_H

#include <cstddef>
#include <cstdint>

#include "job/Token.h"

namespace barhatch {

// Encodation schemes, in the order in which equal costs are settled.
enum class Scheme : std::uint8_t { kAscii, kC40, kText, kX12, kEdifact, kBase256 };

// ASCII, and the other schemes by how many values wait for their codewords: the state of the name
// with none, then one, two and, in EDIFACT, three. Base 256 is a state at the end of a text alone.
enum State : std::uint8_t {
  kInAscii = 0,
  kInC40 = 1,
  kInText = 4,
  kInX12 = 7,
  kInEdifact = 10,
  kStateCount = 14,
  kInBase256 = kStateCount,
};

// The state of a scheme with nothing that waits.
constexpr State EntryOf(Scheme scheme) {
  constexpr State kEntries[] = {kInAscii, kInC40, kInText, kInX12, kInEdifact, kInBase256};
  return kEntries[static_cast<int>(scheme)];
}
constexpr Scheme SchemeOf(State state) {
  return state == kInAscii    ? Scheme::kAscii
         : state < kInText    ? Scheme::kC40
         : state < kInX12     ? Scheme::kText
         : state < kInEdifact ? Scheme::kX12
         : state < kInBase256 ? Scheme::kEdifact
                              : Scheme::kBase256;
}

// Codewords in kCodeword, and changes of the scheme: fewer codewords are always less.
using Cost = std::uint32_t;
constexpr Cost kCodeword = 4096;
constexpr Cost kChange = 1;
constexpr Cost kNever = 0x40000000;  // more than any text costs; twice it still is a number
constexpr int CodewordsOf(Cost cost) { return static_cast<int>(cost / kCodeword); }

constexpr std::size_t kMostTokens = 3500;  // 1558 codewords hold 3116 digits, and no more of others
constexpr std::size_t kLongestShortRun = 249;  // of Base 256, with one codeword for the length

// How ASCII was reached at a place: by a token, by two digits, by an unlatch from a state or by a
// run of so many bytes in Base 256.
enum Source : std::uint16_t {
  kFromToken = 0,
  kFromPair = 1,
  kFromState = 2,  // and the state
  kFromRun = 16,   // and the bytes
};
constexpr std::uint16_t kSourceBits = 0x0FFF;
static_assert(kFromRun + kMostTokens <= kSourceBits, "the four bits above are those of entries");

// Set where a scheme was entered at a place from ASCII.
constexpr std::uint16_t EntryBit(Scheme scheme) {
  return static_cast<std::uint16_t>(0x1000 << (static_cast<int>(scheme) - 1));
}

// A place between two tokens, from 0 in front of the text.
struct Place {
  Cost ascii;          // what it costs to stand there in ASCII
  std::uint16_t way;   // a Source and EntryBits
  std::uint16_t note;  // the pass notes where a run may begin, then a trace the stretch from here
};

struct Costs {
  Cost of[kStateCount];
};

class ShortestPass {
 public:
  // Passes over the text from the place `lead` on, where `begin` is the cost of ASCII. `places`:
  // room for one more than tokens; those in front of `lead` are not written.
  ShortestPass(const TokenText& text, std::size_t lead, Cost begin, Place* places);

  static constexpr std::size_t kKept = 5;

  // Of one of the last kKept places, not in front of `lead`.
  const Costs& At(std::size_t place) const { return costs_[place % kKept]; }

  // Where the cheapest run of Base 256 begins that has more than kLongestShortRun bytes and ends
  // with the text, and what it costs with two codewords for the length; kNever for none.
  std::size_t LongRunBegin() const { return longBegin_; }
  Cost LongRunCost() const {
    return longCost_ < kNever ? RunCost(longBegin_, text_.length, 3, longCost_) : kNever;
  }

 private:
  void Step(std::size_t place);
  void ReachAscii(std::size_t place, Costs& after);
  void Consider(Cost cost, int source);
  void ConsiderRuns(std::size_t place);
  void Enter(std::size_t place, Costs& after);

  Cost Balance(std::size_t begin) const;
  static Cost RunCost(std::size_t begin, std::size_t end, Cost overhead, Cost cost);

  const TokenText& text_;
  const std::size_t lead_;
  Place* const places_;
  Costs costs_[kKept] = {};

  Cost best_ = kNever;  // of ASCII at the place in hand
  int source_ = kFromToken;

  // Of the run of bytes that the place in hand stands in.
  std::size_t runBegin_;
  std::size_t queueFront_ = 0;
  std::size_t queueBack_ = 0;
  std::size_t longBegin_ = 0;
  Cost longCost_ = kNever;
};

}  // namespace barhatch

#endif
