#include "datamatrix/TextProof.h"

#include <cstddef>

#include "datamatrix/CodewordReader.h"

namespace barhatch {

namespace {

// Takes what is read and compares it as it comes.
class ExpectedText {
 public:
  explicit ExpectedText(const PublishedText& text)
      : text_(text), lead_(LeadOf(text.text, text.head)) {}

  void Write(int byte) { Take(static_cast<Token>(byte)); }

  void WriteFnc1(bool tellsReader) {
    if (tellsReader != (next_ < lead_)) isOther_ = true;
    Take(kFnc1Token);
  }

  void Designate(std::int32_t number) { Take(EciToken(number)); }

  void BeginMacro(int format) { head_ = format == 5 ? MatrixHead::kMacro05 : MatrixHead::kMacro06; }
  void EndMacro() {}
  void SetProgramming() { head_ = MatrixHead::kReaderProgramming; }

  void SetStructure(int place, int high, int low) {
    head_ = MatrixHead::kStructuredAppend;
    append_ = {place / 16 + 1, 17 - place % 16, (high - 1) * 254 + low - 1};
  }

  bool IsWhole() const {
    return !isOther_ && next_ == text_.text.length && head_ == text_.head && IsSameAppend();
  }

 private:
  void Take(Token token) {
    if (next_ == text_.text.length || text_.text.tokens[next_] != token) {
      isOther_ = true;
    } else {
      ++next_;
    }
  }

  bool IsSameAppend() const {
    if (head_ != MatrixHead::kStructuredAppend) return true;
    return append_.part == text_.append.part && append_.parts == text_.append.parts &&
           append_.identification == text_.append.identification;
  }

  const PublishedText& text_;
  const std::size_t lead_;
  std::size_t next_ = 0;
  MatrixHead head_ = MatrixHead::kNone;
  StructuredAppend append_;
  bool isOther_ = false;
};

}  // namespace

bool SaysText(const std::uint8_t* codewords, int count, const PublishedText& text) {
  ExpectedText expected(text);
  return reading::CodewordReader<ExpectedText>(codewords, count, expected).Read() &&
         expected.IsWhole();
}

}  // namespace barhatch
