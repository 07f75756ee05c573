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

MatrixRequest ReadMatrixRequest(FuzzInput& input);

// What tests/support/DataMatrixReader.h reports of the symbol; nothing for a text that is to be
// refused: FNC1 where it has no place, characters that are no bytes under their ECI.
std::optional<std::vector<int>> ItemsAskedFor(const MatrixRequest& request);

}  // namespace barhatch::fuzz

#endif
