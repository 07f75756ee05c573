#include "datamatrix/ModeEncodations.h"

namespace barhatch {

namespace {

constexpr int kFirstDigitPair = 130;
constexpr int kUpperShift = 235;
constexpr int kEci = 241;

constexpr bool IsDigit(char16_t character) { return character >= u'0' && character <= u'9'; }

// Whole characters are compared: a designator is no digit, whatever its low byte.
bool IsDigitPair(const EncodationState& state, std::size_t index, std::size_t end) {
  return index + 1 < end && IsDigit(state.text[index]) && IsDigit(state.text[index + 1]);
}

void AppendCharacter(EncodationState& state, int byte) {
  if (byte <= 127) return state.codewords.Append(byte + 1);
  if (byte == 128 && state.how.Deviates(Deviation::kDDM_4)) return;  // dropped
  state.codewords.Append(kUpperShift);
  const bool isLower = byte != 128 && state.how.Deviates(Deviation::kDDM_3);
  state.codewords.Append(isLower ? byte - 128 : byte - 127);
}

int CharacterCodewords(const EncodationState& state, int byte) {
  if (byte <= 127) return 1;
  return byte == 128 && state.how.IsInForce(Deviation::kDDM_4) ? 0 : 2;
}

}  // namespace

void EncodePairOrCharacter(EncodationState& state, std::size_t end) {
  const char16_t* const next = state.text + state.position;
  if (IsDigitPair(state, state.position, end)) {
    state.codewords.Append(kFirstDigitPair + (next[0] - u'0') * 10 + (next[1] - u'0'));
    state.position += 2;
  } else {
    AppendCharacter(state, next[0] & 0xFF);
    ++state.position;
  }
}

void EncodeAsciiUntil(EncodationState& state, std::size_t end) {
  while (state.position < end) EncodePairOrCharacter(state, end);
}

int AsciiCodewordsUntil(const EncodationState& state, std::size_t end) {
  int codewords = 0;
  for (std::size_t i = state.position; i < end; ++i) {
    if (IsDigitPair(state, i, end)) {
      ++codewords;
      ++i;
    } else {
      codewords += CharacterCodewords(state, state.text[i] & 0xFF);
    }
  }
  return codewords;
}

void EncodeAscii(EncodationState& state) {
  if (IsDigitPair(state, state.position, state.length)) {
    return EncodePairOrCharacter(state, state.length);
  }
  const Mode mode = NextMode(state);
  if (mode != Mode::kAscii) return EnterMode(state, mode);
  EncodePairOrCharacter(state, state.length);
}

void AppendEciSequence(CodewordBuffer& codewords, int number) {
  codewords.Append(kEci);
  if (number < 127) {
    codewords.Append(number + 1);
  } else if (number < 16383) {
    codewords.Append((number - 127) / 254 + 128);
    codewords.Append((number - 127) % 254 + 1);
  } else {
    codewords.Append((number - 16383) / 64516 + 192);
    codewords.Append((number - 16383) / 254 % 254 + 1);
    codewords.Append((number - 16383) % 254 + 1);
  }
}

void EncodeDesignator(EncodationState& state) {
  AppendEciSequence(state.codewords, state.text[state.position]);
  ++state.position;
}

void EncodeBase256(EncodationState& state) {
  Mode mode = Mode::kBase256;
  while (mode == Mode::kBase256 && CharactersAhead(state, 1) == 1) {
    state.how.Meet(Deviation::kDDM_5);  // no length and no data
    ++state.position;
    mode = NextMode(state);
  }
  EnterMode(state, CharactersAhead(state, 1) == 1 ? mode : Mode::kAscii);
}

}  // namespace barhatch
