#include "datamatrix/Encodation.h"

#include "datamatrix/ModeEncodations.h"

namespace barhatch {

namespace {

constexpr int kFnc1Codeword = 232;

void EncodeStretch(EncodationState& state) {
  if (IsDesignator(state.text[state.position])) return EncodeDesignator(state);
  switch (state.mode) {
    case Mode::kAscii:
      return EncodeAscii(state);
    case Mode::kBase256:
      return EncodeBase256(state);
    case Mode::kEdifact:
      return EncodeEdifact(state);
    case Mode::kText:
    case Mode::kX12:
    case Mode::kC40:
      return EncodeTriples(state);
  }
}

// The FNC1 in second position. The count alone decides (D-DM-6), so a latch may be in front of it,
// and a first character of two codewords leaves no place for it. Published, the first character
// stays in ASCII for it.
class Fnc1Writer {
 public:
  Fnc1Writer(EncodationState& state, Header header)
      : state_(state), isMissing_(header == Header::kFnc1Second) {}

  void WriteBehindFirstCharacter() {
    if (!isMissing_ || state_.how.IsInForce(Deviation::kDDM_6) || state_.length == 0) return;
    IsDesignator(state_.text[0]) ? EncodeDesignator(state_)
                                 : EncodePairOrCharacter(state_, state_.length);
    Write();
  }

  void WriteWhereSecond() {
    if (!isMissing_ || state_.codewords.Count() != 1) return;
    if (state_.mode != Mode::kAscii) state_.how.Meet(Deviation::kDDM_6);
    Write();
  }

  void Conclude() {
    WriteWhereSecond();
    if (isMissing_ && state_.codewords.Count() > 0) state_.how.Meet(Deviation::kDDM_6);
  }

 private:
  void Write() {
    state_.codewords.Append(kFnc1Codeword);
    isMissing_ = false;
  }

  EncodationState& state_;
  bool isMissing_;
};

}  // namespace

void EncodeText(const TextUnits& text, Header header, const SizeRequest& request, Conformance& how,
                CodewordBuffer& codewords) {
  EncodationState state(text, request, how, codewords);
  Fnc1Writer fnc1(state, header);
  fnc1.WriteBehindFirstCharacter();
  while (state.position < state.length && !codewords.HasOverflowed()) {
    fnc1.WriteWhereSecond();
    EncodeStretch(state);
  }
  fnc1.Conclude();
}

}  // namespace barhatch
