// Texts as tokens, and what the encodation by the book makes of them.
#ifndef BARHATCH_TESTS_DATAMATRIX_TOKENSOFTESTS_H
#define BARHATCH_TESTS_DATAMATRIX_TOKENSOFTESTS_H

#include <cstddef>
#include <string>
#include <vector>

#include "datamatrix/ShortestEncodation.h"
#include "support/DataMatrixReader.h"

namespace barhatch::test {

inline std::vector<Token> TokensOf(const std::string& bytes) {
  std::vector<Token> tokens;
  for (const char byte : bytes) tokens.push_back(static_cast<unsigned char>(byte));
  return tokens;
}

// As the plain reader reports them.
inline std::vector<int> ItemsOf(const std::vector<Token>& tokens) {
  std::vector<int> items;
  for (const Token token : tokens) {
    items.push_back(token == kFnc1Token ? kReadFnc1
                    : IsEci(token)      ? ReadEci(EciNumber(token))
                                        : static_cast<int>(token));
  }
  return items;
}

struct Encoding {
  std::size_t lead = 0;
  int header = 0;
  bool isLooseEnd = false;
};

inline int LeastFor(const std::vector<Token>& tokens, Encoding how = {}) {
  std::vector<Place> places(tokens.size() + 1);
  const TokenText text = {tokens.data(), tokens.size()};
  return ShortestEncodation(text, how.lead, how.header, how.isLooseEnd, places.data())
      .LeastCodewords();
}

// Those of the text, without pads. The header is as many codewords 0.
inline std::vector<int> CodewordListFor(const std::vector<Token>& tokens, int capacity,
                                        Encoding how = {}) {
  std::vector<Place> places(tokens.size() + 1);
  const TokenText text = {tokens.data(), tokens.size()};
  CodewordBuffer codewords;
  for (int i = 0; i < how.header; ++i) codewords.Append(0);
  ShortestEncodation(text, how.lead, how.header, how.isLooseEnd, places.data())
      .Write(capacity, codewords);
  std::vector<int> list;
  for (int i = 0; i < codewords.Count(); ++i) list.push_back(codewords[i]);
  return list;
}

inline std::string CodewordsFor(const std::vector<Token>& tokens, int capacity, Encoding how = {}) {
  std::string text;
  for (const int codeword : CodewordListFor(tokens, capacity, how))
    text += (text.empty() ? "" : " ") + std::to_string(codeword);
  return text;
}

}  // namespace barhatch::test

#endif
