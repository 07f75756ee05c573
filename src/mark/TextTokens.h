// The text of a job by the book as tokens. An element string of GS1 is checked on the way and has
// its FNC1 in front and between.
#ifndef BARHATCH_MARK_TEXTTOKENS_H
#define BARHATCH_MARK_TEXTTOKENS_H

#include <cstddef>
#include <cstdint>

#include "barhatch_mark.h"
#include "job/Memory.h"
#include "job/Refusal.h"
#include "job/Token.h"
#include "mark/InputText.h"
#include "mark/MarkedSymbol.h"

namespace barhatch {

// GS1-128 has so many data characters at most, separators among them.
constexpr std::int32_t kMostGs1Characters = 48;

class TextTokens {
 public:
  explicit TextTokens(const Memory& memory) : memory_(memory) {}
  ~TextTokens() { memory_.Release(tokens_); }
  TextTokens(const TextTokens&) = delete;
  TextTokens& operator=(const TextTokens&) = delete;

  // count: what text.Count has counted. The symbol gets the text for people of an element string,
  // and its warnings. A refusal names tokens as the host gave them.
  Refusal Read(const BarhatchJob& job, const InputText& text, std::size_t count,
               MarkedSymbol& symbol);

  TokenText Get() const { return {tokens_, length_}; }

 private:
  Refusal ParseElements(const BarhatchJob& job, MarkedSymbol& symbol);

  const Memory& memory_;
  Token* tokens_ = nullptr;
  std::size_t length_ = 0;
};

}  // namespace barhatch

#endif
