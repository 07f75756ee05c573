#include "datamatrix/ShortestEncodation.h"

#include "datamatrix/SchemeWriter.h"
#include "datamatrix/TokenCosts.h"

namespace barhatch {

namespace {

constexpr int kLengthBits = 12;
static_assert(kMostTokens < (1 << kLengthBits), "a stretch is noted in 16 bits");

Cost CostOfHeader(const TokenText& text, std::size_t lead, int header) {
  int codewords = header;
  for (std::size_t i = 0; i < lead; ++i) {
    const bool isPair =
        i + 1 < lead && IsDigitToken(text.tokens[i]) && IsDigitToken(text.tokens[i + 1]);
    codewords += AsciiCodewordsOf(text.tokens[i]);
    if (isPair) ++i;
  }
  return static_cast<Cost>(codewords) * kCodeword;
}

CharacterSet SetOf(Scheme scheme) {
  return scheme == Scheme::kC40    ? CharacterSet::kC40
         : scheme == Scheme::kText ? CharacterSet::kText
                                   : CharacterSet::kX12;
}

// The state in front of a token that leads to the state.
State StateBefore(State state, Token token) {
  const Scheme scheme = SchemeOf(state);
  const State entry = EntryOf(scheme);
  const int values = scheme == Scheme::kEdifact ? 1 : TripleValuesOf(SetOf(scheme), token);
  const int group = scheme == Scheme::kEdifact ? 4 : 3;
  return static_cast<State>(entry + (state - entry + 2 * group - values) % group);
}

}  // namespace

ShortestEncodation::ShortestEncodation(const TokenText& text, std::size_t lead, int header,
                                       bool isLooseEnd, Place* places)
    : text_(text),
      lead_(lead),
      places_(places),
      pass_(text_, lead, CostOfHeader(text_, lead, header), places),
      ends_(text_, lead, pass_, isLooseEnd) {}

void ShortestEncodation::Keep(Scheme scheme, std::size_t begin, std::size_t end) {
  if (begin == end) return;
  const auto first = static_cast<std::size_t>(scheme) << kLengthBits;
  places_[begin].note = static_cast<std::uint16_t>(first | (end - begin));
}

// One edge back, within a scheme or out of it.
State ShortestEncodation::StepBack(State state, std::size_t& place) const {
  const int way = places_[place].way;
  const Scheme scheme = SchemeOf(state);
  if (scheme == Scheme::kBase256) {
    place = pass_.LongRunBegin();
    return kInAscii;
  }
  if (scheme != Scheme::kAscii) {
    if (state == EntryOf(scheme) && (way & EntryBit(scheme)) != 0) return kInAscii;
    --place;
    return StateBefore(state, text_.tokens[place]);
  }
  const int source = way & kSourceBits;
  if (source >= kFromRun) {
    place -= static_cast<std::size_t>(source - kFromRun);
    return kInBase256;
  }
  if (source >= kFromState) return static_cast<State>(source - kFromState);
  place -= source == kFromPair ? 2 : 1;
  return kInAscii;
}

// Notes, at the place where each stretch begins, its scheme and length.
void ShortestEncodation::Trace(const End& end) {
  State state = end.state;
  std::size_t place = end.position;
  std::size_t stretchEnd = place;
  while (place > lead_ || state != kInAscii) {
    const std::size_t from = place;
    const State before = StepBack(state, place);
    if (SchemeOf(before) == SchemeOf(state)) {
      state = before;
      continue;
    }
    if (before == kInBase256) {  // the run itself is behind us
      Keep(Scheme::kAscii, from, stretchEnd);
      Keep(Scheme::kBase256, place, from);
      stretchEnd = place;
      continue;
    }
    Keep(SchemeOf(state), place, stretchEnd);
    stretchEnd = place;
    state = before;
  }
  Keep(Scheme::kAscii, lead_, stretchEnd);
}

void ShortestEncodation::Write(int capacity, CodewordBuffer& codewords) {
  const End& end = ends_.For(capacity);
  Trace(end);
  WriteStretch(text_, 0, lead_, Scheme::kAscii, Leaving::kUnlatch, codewords);
  for (std::size_t begin = lead_; begin < end.position;) {
    const int note = places_[begin].note;
    const auto scheme = static_cast<Scheme>(note >> kLengthBits);
    const std::size_t next = begin + static_cast<std::size_t>(note & ((1 << kLengthBits) - 1));
    const bool isLast = next == end.position && end.state != kInAscii;
    WriteStretch(text_, begin, next, scheme, isLast ? Leaving::kNone : Leaving::kUnlatch,
                 codewords);
    begin = next;
  }
  WriteStretch(text_, end.position, text_.length, Scheme::kAscii, Leaving::kUnlatch, codewords);
}

}  // namespace barhatch
