#include "mark/MatrixTokens.h"

#include "mark/JobRecord.h"

namespace barhatch {

namespace {

constexpr std::uint32_t kFirstSupplementary = 0x10000;
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

// One character of the text, of one unit or two.
struct Character {
  std::uint32_t code;
  std::size_t units;  // 0 for half of a surrogate pair
};

bool IsBetween(char16_t unit, std::uint32_t first, std::uint32_t last) {
  return unit >= first && unit <= last;
}

Character CharacterAt(const TextUnits& text, std::size_t at) {
  const char16_t unit = text.units[at];
  if (!IsBetween(unit, 0xD800, 0xDFFF)) return {unit, 1};
  const bool isPair =
      unit < 0xDC00 && at + 1 < text.length && IsBetween(text.units[at + 1], 0xDC00, 0xDFFF);
  if (!isPair) return {unit, 0};
  return {kFirstSupplementary + ((unit - 0xD800u) << 10) + (text.units[at + 1] - 0xDC00u), 2};
}

enum class CharacterBytes { kAscii, kLatin1, kUtf8 };

class TokenWriter {
 public:
  TokenWriter(const BarhatchJob& job, const TextUnits& text, Token* tokens)
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

  static Refusal RefuseAt(Reason reason, std::size_t unit, std::uint32_t code) {
    return {reason, FigureOf(unit), static_cast<std::int32_t>(code)};
  }

  bool HasBytes() const { return job_.input == BARHATCH_BYTES || job_.input == BARHATCH_CODEWORDS; }

  Refusal ChooseBytes(std::uint32_t& warnings) {
    eci_ = job_.eci;
    bytes_ = eci_ == kUtf8Eci                                    ? CharacterBytes::kUtf8
             : HasBytes() || eci_ == 0 || eci_ == 1 || eci_ == 3 ? CharacterBytes::kLatin1
                                                                 : CharacterBytes::kAscii;
    if (HasBytes()) return {};
    std::uint32_t largest = 0;
    for (std::size_t at = 0; at < text_.length;) {
      const Character character = CharacterAt(text_, at);
      if (character.units == 0) return RefuseAt(Reason::kCharacter, at, character.code);
      if (character.code > largest) largest = character.code;
      at += character.units;
    }
    if (largest < 256 || job_.eci != 0) return {};
    eci_ = kUtf8Eci;
    bytes_ = CharacterBytes::kUtf8;
    warnings |= BARHATCH_W_ECI;
    return {};
  }

  Refusal WriteText() {
    for (std::size_t at = 0; at < text_.length;) {
      const Character character =
          HasBytes() ? Character{text_.units[at], 1} : CharacterAt(text_, at);
      const std::uint32_t most = bytes_ == CharacterBytes::kAscii ? 127 : 255;
      if (isMask_ && IsOfMask(character.code)) {
        const Refusal refusal = WriteOfMask(at);
        if (refusal.IsRefused()) return refusal;
        continue;
      }
      if (bytes_ == CharacterBytes::kUtf8 && !HasBytes()) {
        PutUtf8(character.code);
      } else if (character.code <= most) {
        Put(character.code);
      } else {
        return RefuseAt(Reason::kNoSuchByte, at, character.code);
      }
      at += character.units;
    }
    return {};
  }

  static bool IsOfMask(std::uint32_t code) {
    return code == '#' || code == 'A' || code == '?' || code == '\\';
  }

  // A class, or a backslash and what it stands in front of. All digits cost the same in every
  // scheme, and so do all capital letters: one stands for all.
  Refusal WriteOfMask(std::size_t& at) {
    const char16_t unit = text_.units[at++];
    if (unit == '#') Put('0');
    if (unit == 'A') Put('A');
    if (unit == '?') Put(kAnyByteToken);
    if (unit != '\\') return {};
    if (at == text_.length || !IsOfMask(text_.units[at])) {
      return RefuseAt(Reason::kMaskEscape, at - 1, unit);
    }
    Put(text_.units[at++]);
    return {};
  }

  void PutUtf8(std::uint32_t code) {
    if (code < 0x80) return Put(code);
    const int more = code < 0x800 ? 1 : code < kFirstSupplementary ? 2 : 3;
    constexpr std::uint32_t kFirstBytes[] = {0, 0xC0, 0xE0, 0xF0};
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
    if (!isLetter && !isPair) return RefuseAt(Reason::kFnc1Place, 0, 0);
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
  const TextUnits& text_;
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

Refusal TokensOfMatrix(const BarhatchJob& job, const TextUnits& text, Token* tokens,
                       std::size_t& count, std::uint32_t& warnings) {
  if (text.length == 0) return {Reason::kEmpty, -1, 0};
  TokenWriter writer(job, text, tokens);
  const Refusal refusal = writer.Write(warnings);
  count = writer.Count();
  if ((job.flags & BARHATCH_GS_SEPARATORS) != 0) WriteSeparatorsAsGs(tokens, count);
  return refusal;
}

}  // namespace barhatch
