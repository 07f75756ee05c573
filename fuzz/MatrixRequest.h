// A Data Matrix by the book out of a fuzzer's bytes: the job, its text in the form of its input,
// and what a plain reader has to get from the symbol. Written from the documented rules of the mark
// interface; shares nothing with the library.
#ifndef BARHATCH_FUZZ_MATRIXREQUEST_H
#define BARHATCH_FUZZ_MATRIXREQUEST_H

#include <cstdint>
#include <optional>
#include <vector>

#include "FuzzInput.h"
#include "barhatch_mark.h"

namespace barhatch::fuzz {

// A character: a code point, FNC1, or an ECI designator.
using Character = std::uint32_t;
constexpr Character kFnc1 = 0x110000;
constexpr Character kFirstEci = 0x200000;  // and the number

struct MatrixRequest {
  BarhatchJob job = {};  // the text is for the caller to set, to bytes.data()
  std::vector<std::uint8_t> bytes;
  std::vector<Character> characters;  // that the bytes stand for, but of BARHATCH_CODEWORDS
  bool hasOddOption = false;          // numbers or combinations that may be refused
};

// Behind the options the text takes the rest of the input.
MatrixRequest ReadMatrixRequest(FuzzInput& input);

// What tests/support/DataMatrixReader.h reports of the symbol; nothing for a text that is to be
// refused: FNC1 where it has no place, characters that are no bytes under their ECI.
std::optional<std::vector<int>> ItemsAskedFor(const MatrixRequest& request);

// Behind the bytes, or the items, the bytes of a code point.
template <typename Bytes>
void AppendUtf8(Character code, Bytes& bytes) {
  const auto put = [&](Character byte) {
    bytes.push_back(static_cast<typename Bytes::value_type>(byte));
  };
  const auto follow = [&](int shift) { put(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) return put(code);
  put(code < 0x800 ? 0xC0 | code >> 6 : code < 0x10000 ? 0xE0 | code >> 12 : 0xF0 | code >> 18);
  if (code >= 0x10000) follow(12);
  if (code >= 0x800) follow(6);
  follow(0);
}

}  // namespace barhatch::fuzz

#endif
