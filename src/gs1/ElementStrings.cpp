#include "gs1/ElementStrings.h"

#include <new>

#include "gs1/ApplicationIdentifiers.h"
#include "gs1/ElementChecks.h"
#include "gs1/PartnerRules.h"

namespace barhatch {

namespace {

bool IsSeparator(Token token) { return token == kGroupSeparator || token == kFnc1Token; }

// One element: where it was given and where it was written. Spans are tokens, from 0.
struct Element {
  AiCode ai = 0;
  const AiRange* range = nullptr;  // null: not assigned
  std::size_t begin = 0;           // of the digits of the identifier
  std::size_t valueBegin = 0;
  std::size_t end = 0;
  TokenText value = {nullptr, 0};  // as written, without the signs of an escape
};

// The value of the first element with an identifier, where it was written.
struct FirstValue {
  std::uint32_t at = 0;
  std::uint32_t length = 0;  // 0: there is none
};

struct SeenValues {
  FirstValue of[kMostAis] = {};
  AiPresence presence;
};

class ElementWalk {
 public:
  // REQUIRES: room for MostTokens in `out` and MostCharacters in `text`.
  ElementWalk(const TokenText& given, const ElementOptions& options, SeenValues& seen, Token* out,
              char* text)
      : given_(given), options_(options), seen_(seen), out_(out), text_(text) {}

  // One FNC1 in front, for each bracket or separator given at most one token.
  static std::size_t MostTokens(const TokenText& given) { return given.length + 1; }
  // Two brackets for each element of three tokens and more, and a NUL.
  static std::size_t MostCharacters(const TokenText& given) { return 2 * given.length + 1; }

  Refusal Walk() {
    Put(kFnc1Token);
    if (At(at_) == kFnc1Token) ++at_;
    if (at_ == given_.length) return {Reason::kEmpty, -1, 0};
    isBracketed_ = At(at_) == '(';
    while (at_ < given_.length) {
      Element element;
      Refusal refusal = isBracketed_ ? TakeBracketed(element) : TakeRaw(element);
      if (!refusal.IsRefused()) refusal = Check(element);
      if (!refusal.IsRefused()) refusal = Note(element);
      if (refusal.IsRefused()) return refusal;
    }
    text_[textLength_] = '\0';
    return {};
  }

  std::size_t Length() const { return length_; }
  std::size_t TextLength() const { return textLength_; }
  // The last element needs no separator, but one before it has one.
  bool HasNeedlessSeparator() const { return hasSeparator_ && !isOpen_; }

 private:
  // Beyond the end stands no character.
  Token At(std::size_t index) const {
    return index < given_.length ? given_.tokens[index] : kTokensOfCharacters;
  }

  void Put(Token token) { out_[length_++] = token; }
  void PutText(Token token) { text_[textLength_++] = static_cast<char>(token); }
  void PutBoth(Token token) {
    Put(token);
    PutText(token);
  }

  // ---- What is refused ----

  Refusal Refused(Reason reason, std::size_t begin, std::size_t end, std::int32_t figure) const {
    return {reason, FigureOf(begin), figure, FigureOf(end - begin)};
  }

  Refusal NoAi(std::size_t begin, std::size_t end) const {
    return Refused(Reason::kGs1Syntax, begin, end < given_.length ? end : given_.length, 0);
  }

  // ---- Application identifiers ----

  std::size_t DigitsAt(std::size_t index) const {
    std::size_t digits = 0;
    while (digits < kMostAiDigits && IsDigitToken(At(index + digits))) ++digits;
    return digits;
  }

  AiCode CodeAt(std::size_t index, std::size_t digits) const {
    std::uint32_t code = 1;
    for (std::size_t i = 0; i < digits; ++i) code = code * 10 + (At(index + i) - '0');
    return static_cast<AiCode>(code);
  }

  // Begins an element whose identifier has so many digits. One that is not assigned may be written
  // where a reader still finds its end.
  Refusal Begin(Element& element, std::size_t begin, std::size_t digits, std::size_t known) {
    element.begin = begin;
    element.ai = CodeAt(begin, digits);
    element.range = FindAi(element.ai);
    const bool isPermitted = options_.isPermitted && digits == known;
    if (element.range == nullptr && !isPermitted) {
      return Refused(Reason::kUnknownAi, begin, begin + digits, AiFigure(element.ai, 0));
    }
    if (isOpen_) Put(options_.separator);
    hasSeparator_ = hasSeparator_ || isOpen_;
    PutText('(');
    for (std::size_t i = 0; i < digits; ++i) PutBoth(At(begin + i));
    PutText(')');
    isOpen_ = PrefixOf(FirstTwoOf(element.ai)).predefined == 0;
    return {};
  }

  void Finish(Element& element, std::size_t valueAt) {
    element.end = at_;
    element.value = {out_ + valueAt, length_ - valueAt};
  }

  // ---- (01)... ----

  Refusal TakeBracketed(Element& element) {
    const std::size_t digits = DigitsAt(at_ + 1);
    const std::size_t close = at_ + 1 + digits;
    if (digits < kFewestAiDigits || At(close) != ')') return NoAi(at_, close + 1);
    const std::size_t known = PrefixOf(FirstTwoOf(CodeAt(at_ + 1, digits))).digits;
    const Refusal refusal = Begin(element, at_ + 1, digits, known == 0 ? digits : known);
    if (refusal.IsRefused()) return refusal;
    at_ = element.valueBegin = close + 1;
    const std::size_t valueAt = length_;
    for (; at_ < given_.length && At(at_) != '('; ++at_) {
      if (IsEscape(at_)) ++at_;
      PutBoth(At(at_));
    }
    Finish(element, valueAt);
    return {};
  }

  bool IsEscape(std::size_t index) const { return At(index) == '\\' && At(index + 1) == '('; }

  // ---- 01... ----

  Refusal TakeRaw(Element& element) {
    if (DigitsAt(at_) < kFewestAiDigits) return NoAi(at_, at_ + 1);
    const AiPrefix prefix = PrefixOf(FirstTwoOf(CodeAt(at_, kFewestAiDigits)));
    const std::size_t digits = prefix.digits == 0 ? kFewestAiDigits : prefix.digits;
    if (DigitsAt(at_) < digits) return NoAi(at_, at_ + digits);
    const Refusal refusal = Begin(element, at_, digits, prefix.digits);
    if (refusal.IsRefused()) return refusal;
    at_ = element.valueBegin = at_ + digits;
    const std::size_t valueAt = length_;
    const std::size_t most = prefix.predefined > 0 ? prefix.predefined : given_.length;
    while (length_ - valueAt < most && at_ < given_.length && !IsSeparator(At(at_)))
      PutBoth(At(at_++));
    Finish(element, valueAt);
    if (IsSeparator(At(at_))) ++at_;
    return {};
  }

  // ---- Values ----

  // The token of the text that a token of the value was given as.
  std::size_t PlaceOf(const Element& element, std::size_t valueIndex) const {
    std::size_t place = element.valueBegin;
    for (std::size_t i = 0; i < valueIndex; ++i) place += isBracketed_ && IsEscape(place) ? 2u : 1u;
    return place;
  }

  Refusal Check(const Element& element) const {
    const ValueFault fault =
        element.range != nullptr
            ? CheckValue(*element.range, element.value)
            : CheckUnknownValue(PrefixOf(FirstTwoOf(element.ai)), element.value);
    if (fault.reason == Reason::kNone) return {};
    const std::int32_t figure = AiFigure(element.ai, fault.detail);
    if (fault.reason == Reason::kAiTooShort) {
      return Refused(fault.reason, element.begin, element.end, figure);
    }
    return Refused(fault.reason, PlaceOf(element, fault.position),
                   PlaceOf(element, fault.position + fault.extent), figure);
  }

  // The same identifier has the same value wherever it stands.
  Refusal Note(const Element& element) {
    if (element.range == nullptr) return {};
    FirstValue& first = seen_.of[IndexOfAi(*element.range, element.ai)];
    const auto length = static_cast<std::uint32_t>(element.value.length);
    if (first.length == 0) {
      first = {static_cast<std::uint32_t>(element.value.tokens - out_), length};
      seen_.presence.Add(*element.range, element.ai);
      return {};
    }
    bool isSame = first.length == length;
    for (std::uint32_t i = 0; isSame && i < length; ++i)
      isSame = out_[first.at + i] == element.value.tokens[i];
    if (isSame) return {};
    return Refused(Reason::kAiRepeated, element.begin, element.end, AiFigure(element.ai, 0));
  }

  const TokenText& given_;
  const ElementOptions& options_;
  SeenValues& seen_;
  Token* const out_;
  char* const text_;
  std::size_t length_ = 0;      // of out_
  std::size_t textLength_ = 0;  // of text_
  std::size_t at_ = 0;          // in given_
  bool isBracketed_ = false;
  bool hasSeparator_ = false;
  bool isOpen_ = false;  // the length of the last value is not predefined
};

}  // namespace

Refusal ParseElements(const TokenText& given, const ElementOptions& options, const Memory& memory,
                      ElementString& found) {
  const Block<SeenValues> seen(memory, 1);
  Block<Token> tokens(memory, ElementWalk::MostTokens(given));
  Block<char> text(memory, ElementWalk::MostCharacters(given));
  if (seen.get() == nullptr || tokens.get() == nullptr || text.get() == nullptr) {
    return {Reason::kNoMemory, -1, 0};
  }
  ElementWalk walk(given, options, *new (seen.get()) SeenValues(), tokens.get(), text.get());
  const Refusal refusal = walk.Walk();
  if (refusal.IsRefused()) return refusal;
  found.tokens = tokens.Release();
  found.length = walk.Length();
  found.text = text.Release();
  found.textLength = walk.TextLength();
  found.missesPartner = !HaveTheirPartners(seen.get()->presence);
  found.hasNeedlessSeparator = walk.HasNeedlessSeparator();
  return {};
}

}  // namespace barhatch
