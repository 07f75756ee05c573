// The text of a job as the tokens of a Data Matrix by the book: bytes, FNC1, ECI designators and,
// of a mask, bytes that are not known yet.
#ifndef BARHATCH_MARK_MATRIXTOKENS_H
#define BARHATCH_MARK_MATRIXTOKENS_H

#include <cstddef>
#include <cstdint>

#include "barhatch_mark.h"
#include "datamatrix/PublishedMatrix.h"
#include "job/Job.h"
#include "job/Token.h"

namespace barhatch {

// More than any symbol holds, also of a mask with a backslash before every character.
constexpr std::size_t kMostUnitsOfMatrix = 2 * kMaxDataMatrixText;

// Up to three bytes of UTF-8 a unit, an ECI designator, FNC1 and an envelope.
constexpr std::size_t MostTokensOf(std::size_t units) { return 3 * units + 16; }

MatrixHead MatrixHeadOf(const BarhatchJob& job);

// Writes the tokens in their order: ECI designator, envelope, text, the end of the envelope; FNC1
// in second position behind the first letter or the first two digits.
//
// Bytes stay bytes. Of characters, those of a text that has none above 255 are bytes of Latin-1,
// which a Data Matrix begins with; else they are bytes of UTF-8 behind ECI 26, with the warning
// BARHATCH_W_ECI. With an ECI of the host's choice: UTF-8 for 26, Latin-1 for 1 and 3, ASCII for
// every other.
//
// Refused with the place of a unit: kEmpty, kCharacter for half of a surrogate pair, kNoSuchByte,
// kFnc1Place, kMaskEscape.
Refusal TokensOfMatrix(const BarhatchJob& job, const TextUnits& text, Token* tokens,
                       std::size_t& count, std::uint32_t& warnings);

}  // namespace barhatch

#endif
