// Element strings as tests write and read them.
//
// In a text ^ is FNC1 and | is the character GS, on the way in and on the way out.
#ifndef BARHATCH_TESTS_GS1_PARSEDELEMENTS_H
#define BARHATCH_TESTS_GS1_PARSEDELEMENTS_H

#include <string>
#include <vector>

#include "gs1/ApplicationIdentifiers.h"
#include "gs1/ElementStrings.h"

namespace barhatch::test {

inline std::vector<Token> TokensOf(const std::string& text) {
  std::vector<Token> tokens;
  for (const char character : text) {
    tokens.push_back(character == '^'   ? kFnc1Token
                     : character == '|' ? kGroupSeparator
                                        : static_cast<unsigned char>(character));
  }
  return tokens;
}

inline std::string TextOf(const Token* tokens, std::size_t length) {
  std::string text;
  for (std::size_t i = 0; i < length; ++i) {
    text += tokens[i] == kFnc1Token        ? '^'
            : tokens[i] == kGroupSeparator ? '|'
                                           : static_cast<char>(tokens[i]);
  }
  return text;
}

struct Parsed {
  Refusal refusal;
  std::string tokens;
  std::string text;
  bool missesPartner = false;
  bool hasNeedlessSeparator = false;

  bool IsAccepted() const { return !refusal.IsRefused(); }
};

// The tokens stand in a block of their own size, so that a sanitizer sees what is read beyond them.
inline Parsed Parse(const std::string& text, const ElementOptions& options = {}) {
  const std::vector<Token> given = TokensOf(text);
  ElementString found;
  Parsed parsed;
  parsed.refusal = ParseElements({given.data(), given.size()}, options, RuntimeMemory(), found);
  if (!parsed.IsAccepted()) return parsed;
  parsed.tokens = TextOf(found.tokens, found.length);
  parsed.text = std::string(found.text, found.textLength);
  parsed.missesPartner = found.missesPartner;
  parsed.hasNeedlessSeparator = found.hasNeedlessSeparator;
  RuntimeMemory().Release(found.tokens);
  RuntimeMemory().Release(found.text);
  return parsed;
}

}  // namespace barhatch::test

#endif
