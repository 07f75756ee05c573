#include "mark/MatrixTokens.h"

#include "mark/JobRecord.h"

namespace barhatch {

namespace {

constexpr Token kFirstSupplementary = 0x10000;
constexpr std::int32_t kUtf8Eci = 26;
constexpr char kEnvelopeEnd[] = "\x1E\x04";

struct Envelope {
  std::int32_t number;
  const char* head;  // spelled out; null for a macro header
};
constexpr Envelope kSpelledEnvelopes[] = {
    {BARHATCH_ENVELOPE_12,
     "[)>\x1E"
     "12\x1D"},
    {BARHATCH_ENVELOPE_DD,
     "[)>\x1E"
     "DD\x1D"},
};

const char* SpelledHeadOf(std::int32_t envelope) {
  for (const Envelope& row : kSpelledEnvelopes) {
    if (row.number == envelope) return row.head;
  }
  return nullptr;
}

enum class CharacterBytes { kAscii, kLatin1, kUtf8 };

class TokenWriter {
 public:
  TokenWriter(const BarhatchJob& job, const TokenText& text, Token* tokens)
      : job_(job), text_(text), tokens_(tokens), isMask_((job.flags & BARHATCH_MASK) != 0) {}

  Refusal Write(std::uint32_t& warnings) {
    const Refusal refusal = ChooseBytes(warnings);
    if (refusal.IsRefused()) return refusal;
    if (eci_ != 0) Put(EciToken(eci_));
    const char* const head = SpelledHeadOf(job_.envelope);
    if (head != nullptr) PutAll(head);
    const Refusal text = WriteText();
    if (head != nullptr) PutAll(kEnvelopeEnd);
    return text.IsRefused() ? text : InsertFnc1();
  }

  std::size_t Count() const { return count_; }

 private:
  void Put(Token token) { tokens_[count_++] = token; }
  void PutAll(const char* text) {
    for (; *text != '\0'; ++text) Put(static_cast<unsigned char>(*text));
  }

  static Refusal RefuseAt(Reason reason, std::size_t at) { return {reason, FigureOf(at)}; }

  bool HasBytes() const { return job_.input == BARHATCH_BYTES || job_.input == BARHATCH_CODEWORDS; }

  static CharacterBytes BytesUnder(std::int32_t eci) {
    if (eci == kUtf8Eci) return CharacterBytes::kUtf8;
    return eci == 0 || eci == 1 || eci == 3 ? CharacterBytes::kLatin1 : CharacterBytes::kAscii;
  }

  // Escapes name an ECI themselves, and the bytes behind it by their numbers.
  Refusal ChooseBytes(std::uint32_t& warnings) {
    eci_ = job_.eci;
    bytes_ = HasBytes() ? CharacterBytes::kLatin1 : BytesUnder(eci_);
    bool isAboveLatin1 = false;
    bool namesEci = false;
    for (std::size_t at = 0; at < text_.length; ++at) {
      const Token token = text_.tokens[at];
      if (token == kFnc2Token || token == kFnc3Token) return RefuseAt(Reason::kFunction, at);
      isAboveLatin1 = isAboveLatin1 || (IsCharacter(token) && !IsByte(token));
      namesEci = namesEci || IsEci(token);
    }
    if (!isAboveLatin1 || namesEci || job_.eci != 0) return {};
    eci_ = kUtf8Eci;
    bytes_ = CharacterBytes::kUtf8;
    warnings |= BARHATCH_W_ECI;
    return {};
  }

  Refusal WriteText() {
    for (std::size_t at = 0; at < text_.length;) {
      const Token token = text_.tokens[at];
      const bool isOfMask = isMask_ && IsOfMask(token);
      const Refusal refusal = isOfMask             ? WriteOfMask(at)
                              : IsCharacter(token) ? WriteCharacter(at++)
                                                   : WriteFunction(at++);
      if (refusal.IsRefused()) return refusal;
    }
    return {};
  }

  Refusal WriteFunction(std::size_t at) {
    const Token token = text_.tokens[at];
    Put(token);
    if (!IsEci(token)) return {};
    bytes_ = EciNumber(token) == kUtf8Eci ? CharacterBytes::kUtf8 : CharacterBytes::kLatin1;
    return {};
  }

  Refusal WriteCharacter(std::size_t at) {
    const Token token = text_.tokens[at];
    const Token most = bytes_ == CharacterBytes::kAscii ? 127 : 255;
    if (bytes_ == CharacterBytes::kUtf8 && !HasBytes()) {
      PutUtf8(token);
    } else if (token <= most) {
      Put(token);
    } else {
      return RefuseAt(Reason::kNoSuchByte, at);
    }
    return {};
  }

  static bool IsOfMask(Token token) {
    return token == '#' || token == 'A' || token == '?' || token == '\\';
  }

  // A class, or a backslash and what it stands in front of. All digits cost the same in every
  // scheme, and so do all capital letters: one stands for all.
  Refusal WriteOfMask(std::size_t& at) {
    const Token token = text_.tokens[at++];
    if (token == '#') Put('0');
    if (token == 'A') Put('A');
    if (token == '?') Put(kAnyByteToken);
    if (token != '\\') return {};
    if (at == text_.length || !IsOfMask(text_.tokens[at])) {
      return RefuseAt(Reason::kMaskEscape, at - 1);
    }
    Put(text_.tokens[at++]);
    return {};
  }

  void PutUtf8(Token code) {
    if (code < 0x80) return Put(code);
    const int more = code < 0x800 ? 1 : code < kFirstSupplementary ? 2 : 3;
    constexpr Token kFirstBytes[] = {0, 0xC0, 0xE0, 0xF0};
    Put(kFirstBytes[more] | code >> (6 * more));
    for (int rest = more - 1; rest >= 0; --rest) Put(0x80 | (code >> (6 * rest) & 0x3F));
  }

  // Behind the first letter or the first two digits. An ECI designator, which would have to be in
  // front of them, comes behind it.
  Refusal InsertFnc1() {
    if ((job_.flags & BARHATCH_FNC1_SECOND) == 0) return {};
    const std::size_t first = eci_ != 0 ? 1 : 0;
    const bool isLetter = count_ > first && IsLetterToken(tokens_[first]);
    const bool isPair =
        count_ > first + 1 && IsDigitToken(tokens_[first]) && IsDigitToken(tokens_[first + 1]);
    if (!isLetter && !isPair) return RefuseAt(Reason::kFnc1Place, 0);
    const std::size_t lead = isLetter ? 1 : 2;
    for (std::size_t i = count_; i > first + lead; --i) tokens_[i] = tokens_[i - 1];
    if (first != 0) {
      for (std::size_t i = 0; i < lead; ++i) tokens_[i] = tokens_[i + 1];
      tokens_[lead + 1] = EciToken(eci_);
    }
    tokens_[lead] = kFnc1Token;
    ++count_;
    return {};
  }

  const BarhatchJob& job_;
  const TokenText& text_;
  Token* const tokens_;
  const bool isMask_;
  std::size_t count_ = 0;
  std::int32_t eci_ = 0;
  CharacterBytes bytes_ = CharacterBytes::kLatin1;
};

// FNC1 first stays; where it separates, hosts may have GS instead.
void WriteSeparatorsAsGs(Token* tokens, std::size_t count) {
  constexpr Token kGs = 29;
  const std::size_t lead = LeadOf({tokens, count}, MatrixHead::kNone);
  for (std::size_t i = lead; i < count; ++i) {
    if (tokens[i] == kFnc1Token) tokens[i] = kGs;
  }
}

}  // namespace

MatrixHead MatrixHeadOf(const BarhatchJob& job) {
  if (job.envelope == BARHATCH_ENVELOPE_05) return MatrixHead::kMacro05;
  if (job.envelope == BARHATCH_ENVELOPE_06) return MatrixHead::kMacro06;
  if ((job.flags & BARHATCH_READER_PROGRAMMING) != 0) return MatrixHead::kReaderProgramming;
  return job.parts != 0 ? MatrixHead::kStructuredAppend : MatrixHead::kNone;
}

Refusal TokensOfMatrix(const BarhatchJob& job, const TokenText& text, Token* tokens,
                       std::size_t& count, std::uint32_t& warnings) {
  if (text.length == 0) return {Reason::kEmpty};
  TokenWriter writer(job, text, tokens);
  const Refusal refusal = writer.Write(warnings);
  count = writer.Count();
  if ((job.flags & BARHATCH_GS_SEPARATORS) != 0) WriteSeparatorsAsGs(tokens, count);
  return refusal;
}

}  // namespace barhatch
