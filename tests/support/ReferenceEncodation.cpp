#include "support/ReferenceEncodation.h"

#include <cstddef>
#include <optional>

#include "support/DataMatrixReader.h"
#include "support/SlowLookAhead.h"
#include "support/SymbolSizeReference.h"

namespace barhatch::test {

namespace {

enum { kAscii = 1, kBase256 = 2, kEdifact = 3, kText = 4, kX12 = 5, kC40 = 6 };

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

std::string Binary(int value, int width) {
  std::string digits;
  for (int bit = width - 1; bit >= 0; --bit) digits += (value >> bit & 1) != 0 ? '1' : '0';
  return digits;
}

int FromBinary(const std::string& digits) {
  int value = 0;
  for (const char digit : digits) value = 2 * value + (digit - '0');
  return value;
}

// What the values of a character are, spelled out from the description of the sets.
std::vector<int> Values(int mode, int c) {
  if (c >= 128) {
    std::vector<int> values = {1, 30};
    for (const int value : Values(mode, c - 128)) values.push_back(value);
    return values;
  }
  const std::string letters =
      mode == kC40 ? "ABCDEFGHIJKLMNOPQRSTUVWXYZ" : "abcdefghijklmnopqrstuvwxyz";
  const std::string basic = " 0123456789" + letters;
  const std::string shift2 = "!\"#$%&'()*+,-./:;<=>?@[\\]^_";
  const std::string shift3 =
      mode == kC40 ? "`abcdefghijklmnopqrstuvwxyz{|}~\x7F" : "`ABCDEFGHIJKLMNOPQRSTUVWXYZ{|}~\x7F";
  const char character = static_cast<char>(c);
  if (c < 32) return {0, c};
  if (basic.find(character) != std::string::npos)
    return {3 + static_cast<int>(basic.find(character))};
  if (shift2.find(character) != std::string::npos) {
    return {1, static_cast<int>(shift2.find(character))};
  }
  return {2, static_cast<int>(shift3.find(character))};
}

const std::string kX12Characters = "\r*> 0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

class Encoder {
 public:
  Encoder(const std::u16string& text, int codeFormat, const ReferenceRequest& request)
      : text_(text), codeFormat_(codeFormat), request_(request) {
    for (const char16_t c : text) narrow_ += static_cast<char>(c & 0xFF);
  }

  ReferenceEncodation Encode() {
    if (codeFormat_ == 2) Macro(236, kReadMacro05);
    if (codeFormat_ == 3) Macro(237, kReadMacro06);
    while (p_ < text_.size()) {
      CheckFnc1();
      if (text_[p_] > 255) {
        Designator();
      } else if (mode_ == kAscii) {
        AsciiStep();
      } else if (mode_ == kEdifact) {
        Edifact();
      } else {
        Triples();
      }
    }
    CheckFnc1();
    Conclude();
    return result_;
  }

 private:
  int N() const { return static_cast<int>(result_.codewords.size()); }
  int Left() const { return static_cast<int>(text_.size() - p_); }
  void Put(int codeword) { result_.codewords.push_back(codeword); }

  void Read(int item) {
    if (!result_.isAstray) result_.reading.push_back(item);
  }
  void Touch(const std::string& id) {
    if (!result_.isAstray) result_.ids.insert(id);
  }
  void LeadAstray(const std::string& id) {
    Touch(id);
    result_.isAstray = true;
  }

  void Macro(int codeword, int item) {
    Put(codeword);
    Read(item);
  }

  void CheckFnc1() {
    if (codeFormat_ != 1 || N() != 1) return;
    Put(232);
    if (mode_ != kAscii) LeadAstray("D-DM-6");
    Read(kReadFnc1);
    isFnc1Written_ = true;
  }

  // Data codewords of the symbol for n codewords.
  std::optional<int> D(int n) const {
    const auto size = ReferenceChoice(n, request_.rows, request_.columns, request_.isExpanding);
    if (!size) return std::nullopt;
    return size->data;
  }

  // The smallest square capacity above N.
  int S() const {
    for (const ReferenceSize& size : ReferenceSquares()) {
      if (size.data > N()) return size.data;
    }
    return -1;
  }

  int PlainAhead(int limit) const {
    int ahead = 0;
    while (ahead < limit && ahead < Left() && text_[p_ + static_cast<std::size_t>(ahead)] < 256) {
      ++ahead;
    }
    return ahead;
  }

  // After a group: characters remain, and no designator stands among the next so many.
  bool IsModeAsked(int group) const {
    const int next = Left() < group ? Left() : group;
    return next > 0 && PlainAhead(group) == next;
  }

  void AsciiCharacter(int c) {
    if (c < 128) {
      Put(c + 1);
      Read(c);
    } else if (c > 128) {
      Put(235);
      Put(c - 128);
      Read(c - 1);
      Touch("D-DM-3");
    } else {
      Touch("D-DM-4");
    }
  }

  // One codeword of two digits, or one character. Returns the number of characters.
  int AsciiAt(std::size_t at, std::size_t end) {
    if (at + 1 < end && IsDigit(text_[at]) && IsDigit(text_[at + 1])) {
      Put(130 + (text_[at] - '0') * 10 + (text_[at + 1] - '0'));
      Read(text_[at]);
      Read(text_[at + 1]);
      return 2;
    }
    AsciiCharacter(text_[at]);
    return 1;
  }

  void AsciiUntil(std::size_t end) {
    while (p_ < end) p_ += static_cast<std::size_t>(AsciiAt(p_, end));
  }

  void Latch(int mode) {
    const int latches[] = {0, 0, 231, 240, 239, 238, 230};
    if (mode != kAscii) Put(latches[mode]);
    mode_ = mode;
  }

  void AsciiStep() {
    const bool isPair = p_ + 1 < text_.size() && IsDigit(text_[p_]) && IsDigit(text_[p_ + 1]);
    const int mode = isPair ? kAscii : SlowLookAhead(narrow_, p_, kAscii);
    if (mode == kAscii) {
      p_ += static_cast<std::size_t>(AsciiAt(p_, text_.size()));
    } else {
      Latch(mode);
    }
  }

  void Designator() {
    const int v = text_[p_++];
    Put(241);
    if (v <= 16382) {
      Put((v - 127) / 254 + 128);
      Put((v - 127) % 254 + 1);
    } else {
      Put((v - 16383) / 64516 + 192);
      Put((v - 16383) / 254 % 254 + 1);
      Put((v - 16383) % 254 + 1);
    }
    Read(ReadEci(v));
  }

  // 254 or 124. Where 124 is written into the last two codewords, the reader is in ASCII already.
  void Unlatch() {
    if (mode_ == kEdifact && !result_.isAstray) braces_.push_back({N(), result_.reading.size()});
    Put(mode_ == kEdifact ? 124 : 254);
  }

  // The end of the text, with nothing left to encode.
  void UnlatchBehindLastGroup() {
    if (N() + 1 == S()) {
      omittedAt_ = N();
    } else {
      Unlatch();
    }
  }

  int AsciiCodewords(std::size_t from) {
    Encoder counting(text_, 0, request_);
    counting.p_ = from;
    counting.AsciiUntil(text_.size());
    return counting.N();
  }

  void TextEnds() {
    const int r = Left();
    if (r == 0) return UnlatchBehindLastGroup();
    const int a = AsciiCodewords(p_);
    bool isImplied = false;
    if (mode_ == kEdifact) {
      isImplied = D(N() + a).has_value() && *D(N() + a) - N() <= 2;
    } else {
      isImplied = r == 1 && a == 1 && D(N() + 1) == N() + 1;
    }
    if (!isImplied) Unlatch();
    AsciiUntil(text_.size());
    mode_ = kAscii;
  }

  void DesignatorComes(std::size_t end) {
    Unlatch();
    AsciiUntil(end);
    mode_ = kAscii;
  }

  void Edifact() {
    for (;;) {
      const int ahead = PlainAhead(4);
      if (ahead == Left() && ahead < 4) return TextEnds();
      if (ahead < 4) return DesignatorComes(p_ + static_cast<std::size_t>(ahead));
      std::string bits;
      for (int i = 0; i < 4; ++i) {
        const int value = text_[p_++] % 64;
        bits += Binary(value, 6);
        const int read = value < 32 ? value + 64 : value;
        if (read != text_[p_ - 1]) Touch("D-DM-9");
        if (value == 31) LeadAstray("D-DM-9");
        Read(read);
      }
      for (std::size_t i = 0; i < 24; i += 8) Put(FromBinary(bits.substr(i, 8)));
      const int mode = IsModeAsked(4) ? SlowLookAhead(narrow_, p_, kEdifact) : kEdifact;
      if (mode != kEdifact) {
        Unlatch();
        return Latch(mode);
      }
    }
  }

  std::vector<int> ValuesBetween(std::size_t begin, std::size_t end) const {
    std::vector<int> values;
    for (std::size_t i = begin; i < end; ++i) {
      const int c = text_[i] & 0xFF;
      if (mode_ == kX12) {
        values.push_back(static_cast<int>(kX12Characters.find(static_cast<char>(c))));
      } else {
        for (const int value : Values(mode_, c)) values.push_back(value);
      }
    }
    return values;
  }

  // Writes the characters from begin to end and moves the position behind them.
  void PackTriples(std::size_t begin, std::size_t end) {
    std::vector<int> values = ValuesBetween(begin, end);
    if (values.size() % 3 == 2) values.push_back(0);
    for (std::size_t i = 0; i + 2 < values.size(); i += 3) {
      const std::string bits =
          Binary(1600 * values[i] + 40 * values[i + 1] + values[i + 2] + 1, 16);
      Put(FromBinary(bits.substr(0, 8)));
      Put(FromBinary(bits.substr(8)));
    }
    for (std::size_t i = begin; i < end; ++i) Read(text_[i] & 0xFF);
    p_ = end;
  }

  bool IsX12Group() const {
    for (std::size_t i = p_; i < p_ + 3; ++i) {
      if (kX12Characters.find(static_cast<char>(text_[i])) == std::string::npos) return false;
    }
    return true;
  }

  // The last place from begin to end where values end with a codeword, or one short of it.
  std::size_t LastPlaceToLeave(std::size_t begin, std::size_t end) const {
    while (ValuesBetween(begin, end).size() % 3 == 1) --end;
    return end;
  }

  void Triples() {
    const std::size_t begin = p_;
    std::size_t end = p_;
    for (;;) {
      p_ = end;
      const int ahead = PlainAhead(3);
      const std::size_t aheadEnd = p_ + static_cast<std::size_t>(ahead);
      if (end > begin && IsModeAsked(3)) {
        const int mode = SlowLookAhead(narrow_, p_, mode_);
        if (mode != mode_) return LeaveTriples(begin, end, mode);
      }
      if (ahead < 3) {
        EndTriples(begin, end, aheadEnd);
        return;
      }
      if (mode_ == kX12 && !IsX12Group()) {
        PackTriples(begin, end);
        Unlatch();
        AsciiUntil(end + 3);
        mode_ = kAscii;
        return;
      }
      end += 3;
    }
  }

  void LeaveTriples(std::size_t begin, std::size_t end, int mode) {
    PackTriples(begin, LastPlaceToLeave(begin, end));
    if (ValuesBetween(begin, end).size() % 3 == 0 && N() + 1 == S()) {
      LeadAstray("D-DM-7");
    } else {
      Unlatch();
    }
    AsciiUntil(end);
    Latch(mode);
  }

  // One or two characters behind the last group are written in the mode where their values and
  // those that the groups leave over make two or three, and the symbol ends with them.
  bool FinishesInMode(std::size_t begin, std::size_t end) const {
    if (mode_ == kX12 || end == text_.size()) return false;
    const std::size_t over = ValuesBetween(begin, end).size() % 3;
    const std::size_t last = over + ValuesBetween(end, text_.size()).size();
    if (last != 2 && last != 3) return false;
    const std::size_t values = ValuesBetween(begin, text_.size()).size();
    const int n = N() + static_cast<int>((values + 2) / 3) * 2;
    return D(n) == n;
  }

  void EndTriples(std::size_t begin, std::size_t end, std::size_t restEnd) {
    if (restEnd == text_.size() && FinishesInMode(begin, end)) {
      return PackTriples(begin, restEnd);
    }
    std::size_t leave = LastPlaceToLeave(begin, end);
    const bool isEndOfText = restEnd == text_.size();
    if (isEndOfText && end == restEnd && ValuesBetween(begin, end).size() % 3 != 0) {
      leave = LastPlaceToLeave(begin, end - 1);
    }
    PackTriples(begin, leave);
    if (isEndOfText) return TextEnds();
    DesignatorComes(restEnd);
  }

  // What depends on the symbol that comes out.
  void Conclude() {
    const auto capacity = D(N());
    if (!capacity || N() > 1558) return;
    result_.capacity = *capacity;
    std::size_t inserted = 0;
    for (const Brace& brace : braces_) {
      if (*capacity - brace.count > 2) continue;
      result_.reading.insert(
          result_.reading.begin() + static_cast<std::ptrdiff_t>(brace.item + inserted++), '{');
      result_.ids.insert("D-DM-10");
    }
    const int tolerated = mode_ == kEdifact ? 2 : 1;
    if (omittedAt_ >= 0 && *capacity - omittedAt_ > tolerated) LeadAstray("D-DM-7");
    if (codeFormat_ == 1 && !isFnc1Written_) Touch("D-DM-6");
  }

  struct Brace {
    int count;
    std::size_t item;
  };

  const std::u16string& text_;
  std::string narrow_;
  int codeFormat_;
  ReferenceRequest request_;
  std::size_t p_ = 0;
  int mode_ = kAscii;
  int omittedAt_ = -1;
  bool isFnc1Written_ = false;
  std::vector<Brace> braces_;
  ReferenceEncodation result_;
};

}  // namespace

ReferenceEncodation EncodeByReference(const std::u16string& text, int codeFormat,
                                      const ReferenceRequest& request) {
  return Encoder(text, codeFormat, request).Encode();
}

}  // namespace barhatch::test
