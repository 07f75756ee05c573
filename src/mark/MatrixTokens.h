// The text of a job as the tokens of a Data Matrix by the book: bytes, FNC1, ECI designators and,
// of a mask, bytes that are not known yet.
#ifndef BARHATCH_MARK_MATRIXTOKENS_H
#define BARHATCH_MARK_MATRIXTOKENS_H

#include <cstddef>
#include <cstdint>

#include "barhatch_mark.h"
#include "datamatrix/PublishedMatrix.h"
#include "job/Token.h"

namespace barhatch {

// More than any symbol holds, also of a mask with a backslash before every character.
constexpr std::size_t kMostCharactersOfMatrix = 2 * kMaxDataMatrixText;

// Up to four bytes of UTF-8 a character, an ECI designator, FNC1 and an envelope.
constexpr std::size_t MostTokensOf(std::size_t characters) { return 4 * characters + 16; }

MatrixHead MatrixHeadOf(const BarhatchJob& job);

// Writes the tokens in their order: ECI designator, envelope, text, the end of the envelope; FNC1
// in second position behind the first letter or the first two digits.
//
// Bytes stay bytes. Of characters, those of a text that has none above 255 are bytes of Latin-1,
// which a Data Matrix begins with; else they are bytes of UTF-8 behind ECI 26, with the warning
// BARHATCH_W_ECI. With an ECI of the host's choice: UTF-8 for 26, Latin-1 for 1 and 3, ASCII for
// every other. Behind an ECI that an escape names, UTF-8 for 26, and else bytes by their numbers.
//
// Refused with the place of a character: kEmpty, kFunction, kNoSuchByte, kFnc1Place, kMaskEscape.
Refusal TokensOfMatrix(const BarhatchJob& job, const TokenText& text, Token* tokens,
                       std::size_t& count, std::uint32_t& warnings);

}  // namespace barhatch

#endif
