// A text by the book, one token a character: what a host gives in UTF-8, bytes or escapes, and what
// the symbologies with function characters are written from.
//
// "(01)" FNC1 is the tokens 0x28 0x30 0x31 0x29 kFnc1Token.
#ifndef BARHATCH_JOB_TOKEN_H
#define BARHATCH_JOB_TOKEN_H

#include <cstddef>
#include <cstdint>

namespace barhatch {

// Below kTokensOfCharacters a character: a code point, of which those up to 255 are bytes as well.
// From there on what no character stands for.
using Token = std::uint32_t;

constexpr Token kTokensOfCharacters = 0x110000;
constexpr Token kFnc1Token = 0x110001;
constexpr Token kFnc2Token = 0x110002;
constexpr Token kFnc3Token = 0x110003;
constexpr Token kFirstEciToken = 0x200000;  // and the number of the ECI
constexpr std::int32_t kLastEci = 999999;

constexpr bool IsDigitToken(Token token) { return token >= '0' && token <= '9'; }
constexpr bool IsLetterToken(Token token) {
  return (token >= 'A' && token <= 'Z') || (token >= 'a' && token <= 'z');
}
constexpr bool IsByte(Token token) { return token < 256; }
constexpr bool IsCharacter(Token token) { return token < kTokensOfCharacters; }
constexpr bool IsEci(Token token) { return token >= kFirstEciToken; }
constexpr Token EciToken(std::int32_t number) {
  return kFirstEciToken + static_cast<Token>(number);
}
constexpr std::int32_t EciNumber(Token token) {
  return static_cast<std::int32_t>(token - kFirstEciToken);
}

struct TokenText {
  const Token* tokens;
  std::size_t length;
};

}  // namespace barhatch

#endif
