#include "datamatrix/SchemeWriter.h"

#include "datamatrix/TokenCosts.h"

namespace barhatch {

namespace {

constexpr int kLatches[] = {0, 230, 239, 238, 240, 231};  // by Scheme; ASCII has none
constexpr int kTripleUnlatch = 254;
constexpr int kEdifactUnlatch = 31;
constexpr int kFirstPair = 130;
constexpr int kFnc1 = 232;
constexpr int kUpperShiftAscii = 235;
constexpr int kEci = 241;

void WriteEci(std::int32_t number, CodewordBuffer& codewords) {
  codewords.Append(kEci);
  if (number <= kMostShortEci) return codewords.Append(number + 1);
  const int middle = number - kMostShortEci - 1;
  if (number <= kMostMiddleEci) {
    codewords.Append(middle / 254 + 128);
    return codewords.Append(middle % 254 + 1);
  }
  const int large = number - kMostMiddleEci - 1;
  codewords.Append(large / 64516 + 192);
  codewords.Append(large / 254 % 254 + 1);
  codewords.Append(large % 254 + 1);
}

void WriteAsciiToken(Token token, CodewordBuffer& codewords) {
  if (IsEci(token)) return WriteEci(EciNumber(token), codewords);
  if (token == kFnc1Token) return codewords.Append(kFnc1);
  if (token >= 128) codewords.Append(kUpperShiftAscii);
  codewords.Append(static_cast<int>(token % 128) + 1);
}

void WriteAscii(const TokenText& text, std::size_t begin, std::size_t end,
                CodewordBuffer& codewords) {
  for (std::size_t i = begin; i < end; ++i) {
    const Token* const tokens = text.tokens + i;
    const bool isPair = i + 1 < end && IsDigitToken(tokens[0]) && IsDigitToken(tokens[1]);
    if (!isPair) {
      WriteAsciiToken(tokens[0], codewords);
      continue;
    }
    codewords.Append(kFirstPair + static_cast<int>(tokens[0] - '0') * 10 +
                     static_cast<int>(tokens[1] - '0'));
    ++i;
  }
}

CharacterValues ValuesOfToken(CharacterSet set, Token token) {
  if (IsByte(token)) return ValuesOf(set, static_cast<int>(token));
  CharacterValues values;
  values.Append(kShift2Value);
  values.Append(kShift2Fnc1);
  return values;
}

// Packs three values into two codewords.
class Triples {
 public:
  explicit Triples(CodewordBuffer& codewords) : codewords_(codewords) {}

  void Put(int value) {
    packed_ = packed_ * 40 + value;
    if (++waiting_ < 3) return;
    codewords_.Append((packed_ + 1) / 256);
    codewords_.Append((packed_ + 1) % 256);
    packed_ = 0;
    waiting_ = 0;
  }

 private:
  CodewordBuffer& codewords_;
  int packed_ = 0;
  int waiting_ = 0;
};

void WriteTriples(const TokenText& text, std::size_t begin, std::size_t end, CharacterSet set,
                  Leaving leaving, CodewordBuffer& codewords) {
  Triples triples(codewords);
  for (std::size_t i = begin; i < end; ++i) {
    const CharacterValues values = ValuesOfToken(set, text.tokens[i]);
    for (int k = 0; k < values.count; ++k) triples.Put(values.values[k]);
  }
  if (leaving == Leaving::kUnlatch) codewords.Append(kTripleUnlatch);
}

// Packs values of six bits, most significant first.
class SixBits {
 public:
  explicit SixBits(CodewordBuffer& codewords) : codewords_(codewords) {}

  void Put(int value) {
    bits_ = bits_ << 6 | (value & 0x3F);
    count_ += 6;
    if (count_ < 8) return;
    count_ -= 8;
    codewords_.Append(bits_ >> count_ & 0xFF);
    bits_ &= (1 << count_) - 1;
  }

  // Zeros up to the end of the codeword.
  void Close() {
    if (count_ > 0) codewords_.Append(bits_ << (8 - count_) & 0xFF);
  }

 private:
  CodewordBuffer& codewords_;
  int bits_ = 0;
  int count_ = 0;
};

void WriteEdifact(const TokenText& text, std::size_t begin, std::size_t end, Leaving leaving,
                  CodewordBuffer& codewords) {
  SixBits values(codewords);
  for (std::size_t i = begin; i < end; ++i) values.Put(static_cast<int>(text.tokens[i]));
  if (leaving == Leaving::kUnlatch) values.Put(kEdifactUnlatch);
  values.Close();
}

// The 255-state randomising by position.
void AppendRandomised(int codeword, CodewordBuffer& codewords) {
  const int position = codewords.Count() + 1;
  codewords.Append((codeword + 149 * position % 255 + 1) % 256);
}

void WriteLength(std::size_t length, CodewordBuffer& codewords) {
  const int bytes = static_cast<int>(length);
  if (bytes >= 250) AppendRandomised(249 + bytes / 250, codewords);
  AppendRandomised(bytes >= 250 ? bytes % 250 : bytes, codewords);
}

void WriteBase256(const TokenText& text, std::size_t begin, std::size_t end, Leaving leaving,
                  CodewordBuffer& codewords) {
  if (leaving == Leaving::kNone) {
    AppendRandomised(0, codewords);
  } else {
    WriteLength(end - begin, codewords);
  }
  for (std::size_t i = begin; i < end; ++i)
    AppendRandomised(static_cast<int>(text.tokens[i]), codewords);
}

}  // namespace

void WriteStretch(const TokenText& text, std::size_t begin, std::size_t end, Scheme scheme,
                  Leaving leaving, CodewordBuffer& codewords) {
  if (scheme != Scheme::kAscii) codewords.Append(kLatches[static_cast<int>(scheme)]);
  switch (scheme) {
    case Scheme::kAscii:
      return WriteAscii(text, begin, end, codewords);
    case Scheme::kC40:
      return WriteTriples(text, begin, end, CharacterSet::kC40, leaving, codewords);
    case Scheme::kText:
      return WriteTriples(text, begin, end, CharacterSet::kText, leaving, codewords);
    case Scheme::kX12:
      return WriteTriples(text, begin, end, CharacterSet::kX12, leaving, codewords);
    case Scheme::kEdifact:
      return WriteEdifact(text, begin, end, leaving, codewords);
    case Scheme::kBase256:
      return WriteBase256(text, begin, end, leaving, codewords);
  }
}

}  // namespace barhatch
